// Reading files, and telling settings from jobs.
#include "companions/settings/jobs.h"

#include "companions/check/checks.h"
#include "companions/check/job.h"
#include "companions/check/scan.h"
#include "companions/check/vocabulary.h"
#include "config/path.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
namespace element = korvel::vocabulary::element;

namespace korvel::settings {

QByteArray resource(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::optional<QByteArray> fileBytes(const QString &name, QString &error)
{
    const QString path = korvel::path::forToolkit(name);
    QFile file(path);
    if (!QFileInfo::exists(path))
        error = QCoreApplication::translate("jobs", "There is no file %1.").arg(path);
    else if (!QFileInfo(path).isFile())
        error = QCoreApplication::translate("jobs", "%1 is no file.").arg(path);
    else if (!file.open(QIODevice::ReadOnly))
        error = QCoreApplication::translate("jobs", "%1 cannot be read: %2")
                    .arg(path, file.errorString());
    else
        return file.readAll();
    return {};
}

FileKind kindOf(const QByteArray &bytes)
{
    const check::Scan scan(bytes);
    if (scan.behindSpaceAndComments(0) == scan.size() || check::isSettings(bytes))
        return FileKind::Settings;
    const QList<check::Tag> tags = check::readJob(bytes).tags;
    if (tags.isEmpty()) // what stands before the first tag may be all that is wrong
        return scan.isOneOf("<", scan.behindSpace(0)) ? FileKind::Job : FileKind::Other;
    if (tags.constFirst().name == vocabulary::group::korvel)
        return FileKind::Settings;
    const bool isJob = std::any_of(tags.begin(), tags.end(), [](const check::Tag &tag) {
        return tag.name == element::root || tag.name == element::method
               || vocabulary::isElement(tag.name);
    });
    return isJob ? FileKind::Job : FileKind::Other;
}

const vocabulary::Method *methodOf(const QByteArray &job)
{
    QXmlStreamReader reader(job);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == element::method)
            return vocabulary::findMethod(reader.attributes().value("name"_L1));
    }
    return nullptr;
}

} // namespace korvel::settings

// Reading jobs.
#include "companions/settings/jobs.h"

#include "companions/check/vocabulary.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

QByteArray resource(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::optional<QByteArray> jobFile(const QString &path, QString &error)
{
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        return file.readAll();
    error =
        QCoreApplication::translate("jobs", "%1 cannot be read: %2").arg(path, file.errorString());
    return {};
}

const vocabulary::Method *methodOf(const QByteArray &job)
{
    QXmlStreamReader reader(job);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == "method"_L1)
            return vocabulary::findMethod(reader.attributes().value("name"_L1));
    }
    return nullptr;
}

} // namespace korvel::settings

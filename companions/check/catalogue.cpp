// The catalogue of labels that settings name: loaded as the renderer loads it.
#include "companions/check/catalogue.h"

#include "companions/check/settingwords.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"
#include "config/catalogue.h"
#include "config/path.h"

#include <QDir>
#include <QTranslator>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

namespace group = vocabulary::group;
namespace language = vocabulary::language;

/// The paths of one folder that the toolkit makes of a name, in its order.
QStringList completed(QString name)
{
    QStringList paths;
    while (true) {
        paths << name + ".qm"_L1 << name;
        const qsizetype cut = std::max(name.lastIndexOf(u'_'), name.lastIndexOf(u'.'));
        if (cut <= name.lastIndexOf(u'/') + 1)
            break;
        name.truncate(cut);
    }
    paths.removeDuplicates();
    return paths;
}

QString joined(QStringList paths)
{
    constexpr qsizetype most = 8;
    if (paths.size() > most) {
        paths.resize(most);
        paths.append(u"..."_s);
    }
    return shared::inOneLine(paths.join(", "_L1), u' ');
}

/// Why no catalogue is loaded; empty when one is, or when the folder has those of other locales.
QString whyUntranslated(const QString &name, const QString &folder, const QString &file)
{
    if (QTranslator().load(name))
        return {};
    if (file == korvel::catalogue::byLocale) {
        const QString pattern = korvel::catalogue::beforeLocale.sliced(1) + u"*.qm"_s;
        // Without a folder, names begin at the root.
        const QDir dir(korvel::path::forToolkit(folder.isEmpty() ? u"/"_s : folder));
        if (!dir.entryList({pattern}, QDir::Files).isEmpty())
            return {};
        return filled(
            phrase::notFound,
            shared::inOneLine(folder + korvel::catalogue::beforeLocale + "*.qm"_L1, u' '));
    }
    const QStringList paths = completed(name);
    const auto found = std::find_if(paths.begin(), paths.end(), [](const QString &path) {
        return korvel::path::kindOf(path) == korvel::path::Kind::File;
    });
    if (found != paths.end())
        return filled(phrase::notLoaded, quoted(*found));
    const bool lacksSlash = !folder.isEmpty() && !folder.endsWith(u'/') && !file.startsWith(u'/');
    return filled(phrase::notFound, joined(paths))
           + (lacksSlash ? QString(phrase::beginsWithSlash) : QString());
}

} // namespace

QString catalogueOf(const SettingsFile &settings)
{
    const QString name = catalogue::nameOf(settings.value(group::language, language::basedir),
                                           settings.value(group::language, language::file));
    return name.isEmpty() ? QString() : path::forToolkit(name);
}

void checkCatalogue(const SettingsFile &settings, QList<Finding> &findings)
{
    const QString file = settings.value(group::language, language::file);
    const QList<SettingsFile::Entry> &entries = settings.entries();
    const auto entry =
        std::find_if(entries.begin(), entries.end(), [](const SettingsFile::Entry &candidate) {
            return candidate.meant == language::file && !candidate.value.isEmpty();
        });
    if (entry == entries.end())
        return;
    const QString folder = settings.value(group::language, language::basedir);
    const QString why = whyUntranslated(catalogueOf(settings), folder, file);
    const auto isAscii = [](QChar c) { return c.unicode() < 0x80; };
    const bool isMisread = !std::all_of(why.begin(), why.end(), isAscii);
    const QString words = asSeen(why) + (isMisread ? QString(phrase::beyondAscii) : QString());
    if (!why.isEmpty())
        findings.append({entry->place, Code::Catalogue, worded(Code::Catalogue, words),
                         entry->groups + QStringList(entry->key), entry->occurrence});
}

} // namespace korvel::check

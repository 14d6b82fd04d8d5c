// A settings file by itself: what nothing reads, and values that are hardly meant.
#include "companions/check/catalogue.h"
#include "companions/check/checks.h"
#include "companions/check/columns.h"
#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"
#include "vocabulary/paper.h"

#include <QHash>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Kind;
using vocabulary::Method;
using vocabulary::Setting;

QStringList pathOf(const SettingsFile::Entry &entry)
{
    return entry.groups + QStringList(entry.key);
}

/// A finding about a setting.
template<typename... Words>
Finding about(const SettingsFile::Entry &entry, Code code, const Words &...words)
{
    return {entry.place, code, worded(code, words...), pathOf(entry), entry.occurrence};
}

/// The keys that a group may have.
QStringList keysOf(QStringView group)
{
    QStringList keys;
    if (group == vocabulary::group::language) {
        for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
            keys.append(row.key);
    } else {
        for (const Setting &row : vocabulary::settings())
            keys.append(row.key);
    }
    return keys;
}

/// Whether settings may stand in such groups.
bool isRead(const QStringList &groups)
{
    return groups.size() == 2 && groups.constFirst() == vocabulary::group::korvel
           && vocabulary::groupNames().contains(groups.constLast());
}

/// Why no document reads a setting; empty when one does, or when it is a known one that nothing
/// depends on.
QString whyUnread(const SettingsFile::Entry &entry)
{
    if (entry.groups.isEmpty())
        return phrase::outsideKorvel;
    if (!entry.searched || entry.groups.constFirst() != vocabulary::group::korvel)
        return phrase::otherTopGroup;
    if (entry.groups.size() > 2)
        return filled(phrase::misplaced, phrase::unclosedGroup);
    if (entry.groups.size() < 2)
        return filled(phrase::misplaced, QString());

    const QString &group = entry.groups.constLast();
    if (!vocabulary::groupNames().contains(group))
        return filled(phrase::unknownGroup, shared::inOneLine(group, u' '),
                      orNearest(group, vocabulary::groupNames()));
    const QStringList keys = keysOf(group);
    if (!keys.contains(entry.key))
        return filled(phrase::unknownSetting, orNearest(entry.key, keys));
    return {};
}

/// A question for what ends a value of several lines.
QString orLineEnd(const QString &value)
{
    return value.contains(u'\n') ? QString(phrase::lineEnd) : QString();
}

/// How the value of a setting is read, where that is hardly meant.
void checkValue(const SettingsFile::Entry &entry, QList<Finding> &findings)
{
    const Setting *setting = vocabulary::findSetting(entry.key);
    if (!setting || entry.value.isEmpty())
        return;
    bool isNumber = false;
    const int number = entry.value.toInt(&isNumber);
    if (setting->kind == Kind::Switch && entry.value != vocabulary::on && entry.value != "false"_L1)
        findings.append(
            about(entry, Code::NotTrue, entry.key, quoted(entry.value), orLineEnd(entry.value)));
    if (setting->kind == Kind::Number && !isNumber)
        findings.append(
            about(entry, Code::NotANumber, entry.key, quoted(entry.value), orLineEnd(entry.value)));
    const auto documents = vocabulary::documentsOf(entry.groups.constLast());
    if (entry.key == vocabulary::key::paperWidth && (setting->documents & documents) != 0
        && number > vocabulary::lineWidth)
        findings.append(about(entry, Code::Columns,
                              filled(phrase::widePaper, shared::inOneLine(entry.value, u' '),
                                     QString::number(vocabulary::lineWidth))));
}

/// What the settings say, but for lines that are written wrong.
QList<Finding> checkEntries(const SettingsFile &settings)
{
    QList<Finding> findings;
    QHash<QString, Place> groups; // of documents, where their first setting stands
    QSet<qsizetype> wrongLines;
    for (const Finding &slip : settings.slips())
        wrongLines.insert(slip.place.line);
    QSet<QStringList> unread; // groups that are reported
    for (const SettingsFile::Entry &entry : settings.entries()) {
        if (wrongLines.contains(entry.place.line))
            continue;
        if (const QString why = whyUnread(entry); !why.isEmpty()) {
            // Settings of a group that nothing reads are one mistake.
            if (!isRead(entry.groups) && unread.contains(entry.groups))
                continue;
            unread.insert(entry.groups);
            const QString name = shared::inOneLine(pathOf(entry).join(u'.'), u' ').simplified();
            findings.append(about(entry, Code::UnreadKey, name, why));
            continue;
        }
        checkValue(entry, findings);
        if (const QString &group = entry.groups.constLast(); !groups.contains(group))
            groups.insert(group, entry.place);
    }
    checkColumns(settings, groups, findings);
    // Without one of the two settings that are misspelt there, another catalogue is named.
    if (!unread.contains({vocabulary::group::korvel, vocabulary::group::language}))
        checkCatalogue(settings, findings);
    return findings;
}

} // namespace

QList<Finding> checkSettings(const SettingsFile &settings)
{
    QList<Finding> findings = settings.slips();
    if (!settings.isLost())
        findings += checkEntries(settings);
    if (const qsizetype count = settings.leftOut(); count > 0) {
        const QString words = filled(phrase::settingsReadOver, QString::number(count));
        findings.append({Place(), Code::Limit, worded(Code::Limit, words), {}, 0});
    }
    sortByPlace(findings);
    return findings;
}

} // namespace korvel::check

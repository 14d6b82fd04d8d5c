// A settings file by itself: what nothing reads, and values that are hardly meant.
#include "companions/check/catalogue.h"
#include "companions/check/checks.h"
#include "companions/check/columns.h"
#include "companions/check/settingsfile.h"
#include "companions/check/settingwords.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"
#include "vocabulary/paper.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Kind;
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

/// Why no document reads a setting; empty when one does, or when it is a known one that nothing
/// depends on.
QString whyUnread(const SettingsFile &settings, const SettingsFile::Entry &entry)
{
    if (entry.group < 0)
        return phrase::outsideKorvel;
    const SettingsGroup &group = settings.groups()[entry.group];
    if (group.role == SettingsGroup::Role::Groups)
        return filled(phrase::misplaced, QString());
    if (entry.meant == entry.key)
        return {};
    if (isCommentedOut(entry.key))
        return phrase::commentedOut;
    const QString meant =
        group.meant.isEmpty() ? QString() : meantKey(group.meant.constFirst(), entry.key);
    return filled(phrase::unknownSetting, orName(meant));
}

/// A question for what a value may be meant to be.
QString orMeant(Kind kind, const QString &value)
{
    if (value.contains(u'\n'))
        return phrase::lineEnd;
    const QString meant = meantValue(kind, value);
    return meant.isEmpty() && kind == Kind::Switch ? QString(phrase::onlyTrue) : orName(meant);
}

/// How the value of a setting is read, where that is hardly meant.
void checkValue(const SettingsFile::Entry &entry, vocabulary::Documents documents,
                QList<Finding> &findings)
{
    const Setting *setting = vocabulary::findSetting(entry.meant);
    if (!setting || entry.value.isEmpty())
        return;
    bool isNumber = false;
    const int number = entry.value.toInt(&isNumber);
    const QString seen = asSeen(entry.value);
    if (setting->kind == Kind::Switch && entry.value != vocabulary::on && entry.value != "false"_L1)
        findings.append(about(entry, Code::NotTrue, entry.key, quoted(seen),
                              orMeant(Kind::Switch, entry.value)));
    if (setting->kind == Kind::Number && !isNumber)
        findings.append(about(entry, Code::NotANumber, entry.key, quoted(seen),
                              orMeant(Kind::Number, entry.value)));
    if (entry.meant == vocabulary::key::paperWidth && (setting->documents & documents) != 0
        && number > vocabulary::lineWidth)
        findings.append(about(entry, Code::Columns,
                              filled(phrase::widePaper, shared::inOneLine(entry.value, u' '),
                                     QString::number(vocabulary::lineWidth))));
}

/// What a setting says, if its group is read.
void checkEntry(const SettingsFile &settings, const SettingsFile::Entry &entry,
                QList<Finding> &findings)
{
    if (const QString why = whyUnread(settings, entry); !why.isEmpty()) {
        const QString name = asSeen(pathOf(entry).join(u'.')).simplified();
        findings.append(about(entry, Code::UnreadKey, name, why));
        return;
    }
    if (entry.before)
        findings.append(about(entry, Code::Duplicate, entry.key,
                              filled(phrase::lastCounts, QString::number(entry.before->line))));
    const QStringList &meant = settings.groups()[entry.group].meant;
    checkValue(entry, vocabulary::documentsOf(meant.constFirst()), findings);
}

/// What the settings say, but for lines that are written wrong.
QList<Finding> checkEntries(const SettingsFile &settings)
{
    QList<Finding> findings;
    QSet<QString> groups; // of documents, that have settings
    QSet<qsizetype> wrongLines;
    bool knowsLanguage = true; // no setting of it is one that nobody knows
    for (const Finding &slip : settings.slips())
        wrongLines.insert(slip.place.line);
    for (const Finding &finding : settings.groupFindings()) {
        if (!wrongLines.contains(finding.place.line))
            findings.append(finding);
    }
    QSet<qsizetype> misplaced; // groups of documents' groups that have settings, which is said
    for (const SettingsFile::Entry &entry : settings.entries()) {
        const auto role =
            entry.group < 0 ? SettingsGroup::Role::Groups : settings.groups()[entry.group].role;
        const bool isSaid =
            role == SettingsGroup::Role::Nothing
            || (role == SettingsGroup::Role::Groups && misplaced.contains(entry.group));
        if (wrongLines.contains(entry.place.line) || isSaid)
            continue;
        if (role == SettingsGroup::Role::Groups)
            misplaced.insert(entry.group);
        checkEntry(settings, entry, findings);
        if (role != SettingsGroup::Role::Settings)
            continue;
        const QStringList &meant = settings.groups()[entry.group].meant;
        if (meant.size() == 1)
            groups.insert(meant.constFirst());
        if (meant.constFirst() == vocabulary::group::language && entry.meant.isEmpty())
            knowsLanguage = false;
    }
    checkColumns(settings, groups, findings);
    // Without one of the two settings, another catalogue is named.
    if (knowsLanguage)
        checkCatalogue(settings, findings);
    return findings;
}

} // namespace

bool isSettings(const QByteArray &bytes)
{
    const Notation notation = readNotation(bytes);
    if (notation.isLost || notation.hasTop)
        return notation.hasTop;
    const SettingsFile settings(bytes);
    return std::any_of(settings.entries().begin(), settings.entries().end(),
                       [](const SettingsFile::Entry &entry) {
                           return vocabulary::findSetting(entry.key) != nullptr;
                       });
}

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

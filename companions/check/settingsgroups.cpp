// Groups beside those that documents read: misspelt ones, strange ones, and the same one twice.
#include "companions/check/settingsgroups.h"

#include "companions/check/settingwords.h"
#include "companions/check/words.h"

#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using libconfig::Tree;
using Role = SettingsGroup::Role;

/// The groups of a tree in their order, that of the file itself first.
std::vector<Tree::Index> groupsInOrder(const Tree &tree)
{
    std::vector<Tree::Index> order;
    Tree::Index group = Tree::file;
    while (group != Tree::none) {
        order.push_back(group);
        Tree::Index next = tree.groups()[group].firstChild;
        for (; next == Tree::none && group != Tree::none; group = tree.groups()[group].parent)
            next = tree.groups()[group].next;
        group = next;
    }
    return order;
}

/// A name in quotes, as it is seen.
QString shown(const QString &name) { return quoted(asSeen(name).simplified()); }

} // namespace

SettingsGroups::SettingsGroups(const Tree &tree, const std::function<Place(qint64)> &placeOf)
    : indexes(tree.groups().size(), -1)
{
    QHash<QStringList, int> counts;
    for (const Tree::Index index : groupsInOrder(tree)) {
        if (index == Tree::file)
            continue;
        const Tree::Group &group = tree.groups()[index];
        const qsizetype parent = indexes[group.parent];
        const QStringList path =
            (parent < 0 ? QStringList() : groups[parent].path) + QStringList(tree.text(group.name));
        indexes[index] = groups.size();
        groups.append({path, parent, counts[path]++, placeOf(group.place)});
    }
    for (qsizetype at = 0; at < groups.size(); ++at)
        judge(at);
    for (const qsizetype at : misspelt)
        judgeMisspelt(at);
    judgeNameless(tree);
}

void SettingsGroups::note(qsizetype at, Code code, const QString &text)
{
    const SettingsGroup &group = groups[at];
    found.append({group.place, code, text, group.path, group.occurrence});
}

void SettingsGroups::noteUnread(qsizetype at, const QString &why)
{
    const QString path = asSeen(groups[at].path.join(u'.')).simplified();
    note(at, Code::UnreadKey, worded(Code::UnreadKey, path, why));
}

void SettingsGroups::noteLost(qsizetype at, const QString &why, const QString &question)
{
    note(at, Code::LostGroup, worded(Code::LostGroup, why, question));
}

bool SettingsGroups::holdsDocuments(qsizetype at) const
{
    for (qsizetype inner = at + 1; inner < groups.size() && groups[inner].parent >= at; ++inner) {
        if (groups[inner].parent == at
            && vocabulary::groupNames().contains(groups[inner].path.constLast()))
            return true;
    }
    return false;
}

void SettingsGroups::judge(qsizetype at)
{
    const qsizetype parent = groups[at].parent;
    if (parent < 0)
        judgeTop(at);
    else if (groups[parent].role == Role::Groups)
        judgeInner(at);
    else if (groups[parent].role == Role::Settings)
        noteUnread(at, filled(phrase::misplaced, phrase::unclosedGroup));
}

void SettingsGroups::judgeTop(qsizetype at)
{
    const QString &name = groups[at].path.constLast();
    const bool isMeant = at == 0 || isNear(name, {vocabulary::group::korvel});
    groups[at].role = isMeant ? Role::Groups : Role::Nothing;
    if (!isMeant)
        noteUnread(at, phrase::otherTopGroup);
    else if (at > 0)
        noteLost(at, filled(phrase::secondTopGroup, shown(name)));
}

/// A group that stands where those of documents do.
void SettingsGroups::judgeInner(qsizetype at)
{
    SettingsGroup &group = groups[at];
    const QString &name = group.path.constLast();
    if (vocabulary::groupNames().contains(name)) {
        judgeKnown(at, name);
    } else if (isCommentedOut(name)) {
        noteUnread(at, phrase::commentedOut);
    } else if (holdsDocuments(at)) {
        group.role = Role::Groups;
        noteLost(at, filled(phrase::groupBetween, shown(name)));
    } else if (name == QLatin1StringView(namelessGroup)) {
        group.role = Role::Settings;
        unnamed.append(at);
    } else if (const QString meant = meantGroup(name); !meant.isEmpty()) {
        group.role = Role::Settings;
        group.meant = QStringList(meant);
        misspelt.append(at);
    } else {
        noteUnread(at, filled(phrase::unknownGroup, QString()));
    }
}

void SettingsGroups::judgeKnown(qsizetype at, const QString &name)
{
    groups[at].role = Role::Settings;
    groups[at].meant = QStringList(name);
    const auto first = known.constFind(name);
    if (first == known.constEnd()) {
        known.insert(name, at);
        return;
    }
    const QString line = QString::number(groups[*first].place.line);
    note(at, Code::Duplicate,
         worded(Code::Duplicate, filled(phrase::groupTwice, name),
                filled(phrase::firstCounts, line)));
}

/// A misspelt group, beside which the right one may stand.
void SettingsGroups::judgeMisspelt(qsizetype at)
{
    SettingsGroup &group = groups[at];
    const QString question = orName(group.meant.constFirst());
    if (known.contains(group.meant.constFirst())) {
        group.meant.clear();
        group.role = Role::Nothing;
        noteUnread(at, filled(phrase::unknownGroup, question));
    } else {
        noteLost(at, filled(phrase::noSuchGroup, shown(group.path.constLast())), question);
    }
}

/// Groups without a name, each of which may be any that the file lacks.
void SettingsGroups::judgeNameless(const Tree &tree)
{
    if (unnamed.isEmpty())
        return;
    QStringList missing = vocabulary::groupNames();
    for (const SettingsGroup &group : groups) {
        for (const QString &name : group.meant)
            missing.removeAll(name);
    }
    QSet<qsizetype> ofLanguage;
    for (const Tree::Setting &setting : tree.settings()) {
        if (keysOf(vocabulary::group::language).contains(tree.text(setting.name)))
            ofLanguage.insert(indexOf(setting.group));
    }
    for (const qsizetype at : unnamed) {
        for (const QString &name : missing) {
            if ((name == vocabulary::group::language) == ofLanguage.contains(at))
                groups[at].meant.append(name);
        }
        const QStringList &meant = groups[at].meant;
        groups[at].role = meant.isEmpty() ? Role::Nothing : Role::Settings;
        noteLost(at, phrase::noGroupName,
                 meant.size() == 1 ? orName(meant.constFirst()) : QString());
    }
}

} // namespace korvel::check

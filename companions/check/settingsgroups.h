// The groups of a settings file: which of them documents read, and which are meant.
#pragma once

#include "companions/check/findings.h"
#include "config/tree.h"

#include <QHash>

#include <functional>
#include <vector>

namespace korvel::check {

/// What the name of a group that has none is taken for.
inline constexpr char namelessGroup[] = "?";

/// A group of a settings file.
struct SettingsGroup
{
    /// What of it is read.
    enum class Role {
        Nothing,
        Groups,   // of documents
        Settings, // of a document, or the language
    };

    QStringList path;      // names as the renderer reads them, from the top-level group on
    qsizetype parent = -1; // in the list of all; -1 for a top-level group
    int occurrence = 0;    // which of several of that path, counted from 0
    Place place;           // of its name

    Role role = Role::Nothing; // as it is meant
    QStringList meant = {};    // the groups that its settings are for; without a name, all that
                               // the file lacks
};

/**
 * The groups of a settings file, each before those in it and these before the next one beside it.
 * The first is taken for the one that all others belong into, whatever its name. What is wrong is
 * said of a group, and of none in it besides.
 */
class SettingsGroups
{
public:
    /// @param placeOf where so many bytes before it put a name
    SettingsGroups(const libconfig::Tree &tree, const std::function<Place(qint64)> &placeOf);

    [[nodiscard]] const QList<SettingsGroup> &all() const { return groups; }

    /// Where a group of the tree is in the list of all; -1 for the file itself.
    [[nodiscard]] qsizetype indexOf(libconfig::Tree::Index group) const { return indexes[group]; }

    /// What is wrong, in no order.
    [[nodiscard]] const QList<Finding> &findings() const { return found; }

private:
    void judge(qsizetype at);
    void judgeTop(qsizetype at);
    void judgeInner(qsizetype at);
    void judgeKnown(qsizetype at, const QString &name);
    void judgeMisspelt(qsizetype at);
    void judgeNameless(const libconfig::Tree &tree);
    void note(qsizetype at, Code code, const QString &text);
    void noteUnread(qsizetype at, const QString &why);
    void noteLost(qsizetype at, const QString &why, const QString &question = {});
    [[nodiscard]] bool holdsDocuments(qsizetype at) const;

    QList<SettingsGroup> groups;
    QList<Finding> found;
    std::vector<qsizetype> indexes;     // by those of the tree
    QHash<QString, qsizetype> known;    // the first of each name that documents read
    QList<qsizetype> misspelt, unnamed; // to be judged when these are known
};

} // namespace korvel::check

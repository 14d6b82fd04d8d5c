// Help in the tree: what a row means, and what the renderer will make of a value.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QTreeWidget;
class QTreeWidgetItem;

namespace korvel::settings::hints {

/// What is hardly meant about a setting or a group.
struct Hint
{
    QStringList setting; // groups and key, or the group alone that it is about
    int occurrence = 0;  // which of several of that name, counted from 0
    QString text;        // in the user's language
    bool isUnread = false;
    bool isOfAll = false; // about the file as a whole
};

/// The hint that nothing is read of a file in the XML notation.
Hint ofXml();

/// The hint that nothing is read of a file whose first group is not that of the shop.
Hint ofFirstGroup(const QString &name);

/// All hints of a settings file, in its order. @param settings what the store writes for the view
QList<Hint> find(const QByteArray &settings);

/**
 * Marks the rows of a view that are hardly meant: keys that no document reads, values that count as
 * off or as 0, columns wider than the paper. What was marked before is not, unless it still is.
 */
void mark(QTreeWidget &view, const QList<Hint> &found);

/// The rows of settings and groups that nothing reads, in the order of the view: what is in none of
/// the forms. Of a group that is not read there is its row alone.
QList<QTreeWidgetItem *> unreadRows(const QTreeWidget &view);

/// What a row means and which documents read it, as rich text; empty for no row.
QString meaningOf(const QTreeWidgetItem *row);

/// A meaning of the table of settings in the user's language, as plain text.
QString translated(const char *meaning);

} // namespace korvel::settings::hints

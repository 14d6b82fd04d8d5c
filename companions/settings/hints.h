// Help in the tree: what a row means, and what the renderer will make of a value.
#pragma once

#include <QString>

class QTreeWidget;
class QTreeWidgetItem;

namespace korvel::settings::hints {

/**
 * Marks the rows of a view that are hardly meant: keys that no document reads, values that count as
 * off or as 0, columns wider than the paper. What was marked before is not, unless it still is.
 *
 * @param settings what the store writes for the view
 */
void mark(QTreeWidget &view, const QByteArray &settings);

/// What a row means and which documents read it, as rich text; empty for no row.
QString meaningOf(const QTreeWidgetItem *row);

/// A meaning of the table of settings in the user's language, as rich text.
QString translated(const char *meaning);

} // namespace korvel::settings::hints

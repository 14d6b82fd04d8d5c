// Where the columns of a document's items stand on the paper, by the settings.
#pragma once

#include "companions/settings/paperview.h"
#include "vocabulary/methods.h"

#include <QList>
#include <QStringList>

namespace korvel::settings {

class State;

/// An edge of a column, which its setting moves.
struct ColumnEdge
{
    QStringList setting; // path
    int at = 0;          // column of the paper
    int fixed = 0;       // where the column's other edge stands
    Span span;           // the column

    /// What the setting becomes when the edge is moved to a column of the paper.
    [[nodiscard]] int valueAt(int column) const;
};

/// The edges of a document's columns, the paper's last; none for a document without columns.
QList<ColumnEdge> edgesOf(const State &state, const vocabulary::Method &method);

} // namespace korvel::settings

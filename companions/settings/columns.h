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
    Span span;           // the column
    bool isLeft = false; // it is the column's left edge; the other one stays where it is

    /// The column of the paper where it stands.
    [[nodiscard]] int at() const { return isLeft ? span.from : span.to; }

    /// What the setting becomes when the edge is moved to a column of the paper.
    [[nodiscard]] int valueAt(int column) const;
};

/// The edges of a document's columns, the paper's last; none for a document without columns. The
/// columns that are wider than the paper go on behind its edge, as its characters do.
QList<ColumnEdge> edgesOf(const State &state, const vocabulary::Method &method);

} // namespace korvel::settings

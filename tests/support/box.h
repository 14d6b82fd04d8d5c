// Rows of the preview's paper as a terminal shows them.
#pragma once

#include "companions/preview/terminal.h"

#include <QList>

/// The whole box; the parameters are those of korvel::preview::Box.
inline QString boxed(const QList<korvel::preview::PaperRow> &rows, int columns, bool coloured)
{
    const korvel::preview::Box box(columns, coloured);
    QString text = box.top();
    for (const korvel::preview::PaperRow &row : rows)
        text += box.line(row);
    return text + box.bottom();
}

// Rolls of paper to be painted.
#pragma once

#include "companions/paper/paper.h"

#include <QStringList>

inline constexpr int columns = 32;
inline constexpr int paperWidth = 40 + columns * 12 + 40; // in dots

namespace korvel::preview {

inline QList<PaperRow> printed(const QStringList &texts)
{
    QList<PaperRow> rows;
    for (const QString &text : texts)
        rows.append({PaperRow::Kind::Printed, text});
    return rows;
}

/// A roll of numbered rows.
inline QList<PaperRow> roll(int length)
{
    QStringList texts;
    for (int i = 1; i <= length; ++i)
        texts.append("row " + QString::number(i));
    return printed(texts);
}

} // namespace korvel::preview

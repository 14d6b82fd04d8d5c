// Texts padded and cut to the width of a column, in characters (UTF-16 units).
#pragma once

#include "vocabulary/limits.h"

#include <QChar>
#include <QString>

#include <algorithm>

namespace korvel::columns {

/// A width from the settings as one that can be padded to: below 0 it counts as 0, and a slip does
/// not pad without end.
inline qint64 padWidth(qint64 width)
{
    return std::clamp<qint64>(width, 0, vocabulary::limit::widestPad);
}

/// A text padded on the left to a width; a longer one is kept whole.
inline QString right(const QString &text, qint64 width, QChar fill = u' ')
{
    return text.rightJustified(padWidth(width), fill);
}

/// A text padded on the right to a width; a longer one is kept whole.
inline QString left(const QString &text, qint64 width, QChar fill = u' ')
{
    return text.leftJustified(padWidth(width), fill);
}

/// A text padded on the right to a width; a longer one is cut to it.
inline QString cut(const QString &text, qint64 width, QChar fill = u' ')
{
    return left(text.left(std::max<qint64>(width, 0)), width, fill);
}

} // namespace korvel::columns

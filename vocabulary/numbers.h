// How a text of a job is read as a number.
#pragma once

#include <QString>

#include <optional>

namespace korvel::vocabulary {

/// A text as a decimal number with a point, blanks around it left aside; nothing for a text that is
/// none or is beyond the range of one. The minus of typographers counts as one, which versions of
/// the toolkit do not agree on.
inline std::optional<double> numberIn(QString text)
{
    constexpr QChar minus = u'\u2212';
    bool isNumber = false;
    const double number = text.replace(minus, u'-').toDouble(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace korvel::vocabulary

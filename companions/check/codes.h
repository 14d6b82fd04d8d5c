// The kinds of findings: their codes, how grave they are, what they mean and what to do.
#pragma once

#include <QList>
#include <QString>

namespace korvel::check {

/// An error loses or falsifies something on the paper; a warning is about what is probably not
/// meant.
enum class Level { Error, Warning };

/// One kind of finding. Codes are stable: programs may rely on them.
struct Code
{
    QLatin1StringView code;
    Level level;
    QLatin1StringView meaning; // what is wrong, in a sentence or two
    QLatin1StringView advice;  // what to do
};

/// All kinds, in the order of docs/checks.md.
const QList<Code> &codes();

/// The kind of that code; null when there is none.
const Code *findCode(QAnyStringView code);

/// "error" or "warning".
QLatin1StringView levelName(Level level);

} // namespace korvel::check

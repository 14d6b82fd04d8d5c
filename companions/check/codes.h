// The kinds of findings: their codes, how grave they are, what they mean and what to do.
#pragma once

#include <QList>
#include <QString>

namespace korvel::check {

/// An error loses or falsifies something on the paper; a warning is about what is probably not
/// meant.
enum class Level { Error, Warning };

/// The kinds of findings, in the order of docs/checks.md.
enum class Code {
    // The job as a whole.
    MalformedXml,
    Encoding,
    Limit,
    NoMethod,
    UnknownMethod,
    SecondMethod,
    BeforeMethod,

    // Elements and attributes.
    UnknownElement,
    IgnoredElement,
    UnknownAttribute,
    MissingAttribute,
    CancelledList,

    // Amounts and quantities.
    Amount,
    Hundredths,
    DecimalComma,
    VariantQuantity,
    FiscalIncomplete,
    FiscalAmount,
    FiscalHundredths,
    FiscalQuantity,

    // Texts.
    EndsCommand,
    LineBreak,
    Parenthesis,
    ControlCharacter,
    Totale,
    Address,

    // The job beside its settings.
    SwitchedOff,
    WideFigure,

    // The settings.
    Columns,
    UnreadKey,
    NotTrue,
    NotANumber,

    Count, // of the codes above
};

/// A row of the table of codes.
struct CodeInfo
{
    Code code;
    QLatin1StringView name; // as findings show it; stable: programs may rely on it
    Level level;
    QLatin1StringView meaning; // what is wrong, in a sentence or two
    QLatin1StringView advice;  // what to do
};

/// The whole table, in the order of the codes.
const QList<CodeInfo> &codes();

/// The row of a code.
const CodeInfo &infoOf(Code code);

/// The row of the code that is shown by that name; null when there is none.
const CodeInfo *findCode(QAnyStringView name);

/// "error" or "warning".
QLatin1StringView levelName(Level level);

} // namespace korvel::check

// The kinds of findings: a code for each; all that they say is in jobcodes.h and settingscodes.h.
#pragma once

#include "companions/check/phrases.h"
#include "companions/shared/oneline.h"

#include <QList>
#include <QString>

namespace korvel::check {

using namespace Qt::Literals::StringLiterals;

/// An error: what is said is not on the paper, or is there wrongly, or the printer refuses it. A
/// warning: it is odd, but on the paper, or only a text that decorates is not.
enum class Level { Error, Warning };

/// The kinds of findings, in the order of docs/checks.md: each has its row in jobcodes.h or
/// settingscodes.h.
enum class Code {
    // The job as a whole.
    MalformedXml,
    Encoding,
    Limit,
    NoMethod,
    UnknownMethod,
    WrongMethod,
    SecondMethod,
    BeforeMethod,

    // Elements and attributes.
    UnknownElement,
    IgnoredElement,
    LostElement,
    TextContent,
    UnknownAttribute,
    LostFigure,
    MisspeltAttribute,
    MissingAttribute,
    MissingText,
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
    FiscalDepartment,

    // Sums.
    RowSum,
    TotalSum,
    TaxSum,
    NoTotal,
    SecondTotal,
    BehindTotal,

    // Texts.
    EndsCommand,
    LineBreak,
    Parenthesis,
    ControlCharacter,
    Totale,
    Address,
    Mojibake,
    OddCharacter,
    EscapedTwice,
    NotInCharset,

    // The job beside its settings.
    SwitchedOff,
    WideLine,
    CutCharacter,

    // The settings as a whole.
    NoSettings,
    ByteOrderMark,
    Comment,
    Unterminated,
    LostGroup,
    Catalogue,

    // The settings.
    Columns,
    UnreadKey,
    Duplicate,
    NotTrue,
    NotANumber,

    Count, // of the codes above
};

/// A row of the tables of codes.
struct CodeInfo
{
    Code code;
    Level level;
    QLatin1StringView name;    // as findings show it; stable: programs may rely on it
    QLatin1StringView wording; // of a finding, in one line; words of the job at %1, %2 ...
    QLatin1StringView meaning; // what is wrong, in a sentence or two
    QLatin1StringView advice;  // what to do
};

/// All rows, in the order of the codes.
const QList<CodeInfo> &codes();

/// The row of a code.
const CodeInfo &infoOf(Code code);

/// The row of the code that is shown by that name; null when there is none.
const CodeInfo *findCode(QAnyStringView name);

/// "error" or "warning".
QLatin1StringView levelName(Level level);

/// What a finding says: the wording of its code with words at its places, in one line.
template<typename... Words>
QString worded(Code code, const Words &...words)
{
    return shared::inOneLine(filled(infoOf(code).wording, words...), u' ');
}

} // namespace korvel::check

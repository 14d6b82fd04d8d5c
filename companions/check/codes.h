// The kinds of findings: a code for each; all that they say is in jobcodes.h and settingscodes.h.
#pragma once

#include "companions/check/phrases.h"
#include "companions/shared/codes.h"

#include <QList>
#include <QString>

namespace korvel::check {

using namespace Qt::Literals::StringLiterals;

/// An error: what is said is not on the paper, or is there wrongly, or the printer refuses it. A
/// warning: it is odd, but on the paper, or only a text that decorates is not.
using shared::Level;
using shared::levelName;

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

using CodeInfo = shared::CodeRow<Code>;

/// All rows, in the order of the codes.
const QList<CodeInfo> &codes();

/// The row of a code.
const CodeInfo &infoOf(Code code);

/// The row of the code that is shown by that name; null when there is none.
const CodeInfo *findCode(QAnyStringView name);

/// What a finding says: the wording of its code with words at its places, in one line.
template<typename... Words>
QString worded(Code code, const Words &...words)
{
    return shared::worded(infoOf(code), words...);
}

} // namespace korvel::check

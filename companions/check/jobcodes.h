// All that findings in jobs say, alone and beside their settings: a row for each code.
#pragma once

#include "companions/check/codes.h"

namespace korvel::check {

// clang-format off
inline constexpr CodeInfo jobCodes[] = {
    // The job as a whole.
    {Code::MalformedXml, Level::Error, "malformed-xml"_L1,
     QT_TRANSLATE_NOOP("findings", "%1: nothing behind %2 was checked"),
     "The job is not well-formed XML. The paper usually ends at the error, and its section is "
     "not closed; the checker stops there."_L1,
     "Correct the XML where the finding points. An XML library writes jobs without such "
     "errors."_L1},
    {Code::Encoding, Level::Error, "encoding"_L1,
     "%1",
     "Bytes of the job are not in the encoding that it names, or the encoding is one that the "
     "checker cannot read."_L1,
     "Write jobs as UTF-8, with no encoding or with UTF-8 in the XML declaration."_L1},
    {Code::Limit, Level::Error, "limit"_L1,
     "%1",
     "The job is nested more deeply, or declares more namespaces or entities, than the renderer "
     "takes. The paper ends there. Of a settings file, what is beyond the limits is read over."_L1,
     "Put the elements one after the other; they need no nesting, no namespaces and no document "
     "type. Keep to the settings that documents read."_L1},
    {Code::NoMethod, Level::Error, "no-method"_L1,
     QT_TRANSLATE_NOOP("findings", "no method: nothing is printed; %1"),
     "The job selects no document, so nothing is printed but the command that closes a section."_L1,
     "Send a `method` element before all others, with the name of the document."_L1},
    {Code::UnknownMethod, Level::Error, "unknown-method"_L1,
     QT_TRANSLATE_NOOP("findings", "%1: the job ends here%2"),
     "There is no document of that name. The renderer says \"File Format Not Supported\" and "
     "the job ends there."_L1,
     "Use one of the thirteen names; upper and lower case are different."_L1},
    {Code::WrongMethod, Level::Error, "wrong-method"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "most elements are those of the %1, not of the %2; did you mean \"%3\"?"),
     "Most elements of the job, or their attributes, are not printed by the document that the "
     "method selects, and all by another one. The job is checked as that one."_L1,
     "Select the document that the elements are of; each name is fixed."_L1},
    {Code::SecondMethod, Level::Error, "second-method"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "a second method: the section of the %1 is not closed; send one document "
                       "per job"),
     "The job selects a second document. Both open a section on the printer, and only one is "
     "closed."_L1,
     "Send one document per job: two jobs, two runs."_L1},
    {Code::BeforeMethod, Level::Error, "before-method"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "<%1> stands before the method and is not printed; move it behind <method>"),
     "An element stands before the method. It prints nothing."_L1,
     "Put the `method` element first."_L1},

    // Elements and attributes.
    {Code::UnknownElement, Level::Error, "unknown-element"_L1,
     QT_TRANSLATE_NOOP("findings", "no document knows <%1>: nothing is printed%2"),
     "No document knows an element of that name. It prints nothing."_L1,
     "Correct the name; the spellings are fixed, an item is a `receipe`. An element that only "
     "holds others is not reported."_L1},
    {Code::IgnoredElement, Level::Warning, "ignored-element"_L1,
     QT_TRANSLATE_NOOP("findings", "<%1> prints nothing in the document \"%2\"%3%4"),
     "Other documents know the element, but this one ignores it. It prints nothing."_L1,
     "Leave it out, or select the document that prints it."_L1},
    {Code::LostElement, Level::Error, "lost-element"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "<%1> prints nothing in the document \"%2\": its figures are lost%3%4"),
     "The document ignores an element that carries a figure: a quantity, a price, an amount. The "
     "figure is not on the paper."_L1,
     "Select the document that prints it, or send what this document prints in its place."_L1},
    {Code::TextContent, Level::Error, "text-content"_L1,
     "%1",
     "A text stands between tags. Documents print the values of attributes alone."_L1,
     "Send it as an attribute: <receipe name=\"Coffee\" price=\"1.20\"/>."_L1},
    {Code::UnknownAttribute, Level::Warning, "unknown-attribute"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing reads \"%1\" of <%2> in this document%3"),
     "This document does not read an attribute of that name. It is not printed."_L1,
     "Correct the name, or leave the attribute out."_L1},
    {Code::LostFigure, Level::Error, "lost-figure"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing reads %1 of <%2> in the document \"%3\": %4%5"),
     "This document does not read an attribute that carries a figure: a price in a kitchen order, "
     "a discount in a row. The figure is not on the paper."_L1,
     "Leave the attribute out, select the document that prints it, or send the figure where it is "
     "printed: a discount as a row of its own. A shop that sends it on purpose ignores the "
     "code."_L1},
    {Code::MisspeltAttribute, Level::Error, "misspelt-attribute"_L1,
     QT_TRANSLATE_NOOP("findings", "nothing reads \"%1\" of <%2>%3"),
     "A figure, a name or a serial number stands under a name that the document does not read. "
     "Its place on the paper stays empty."_L1,
     "Correct the name; upper and lower case are different."_L1},
    {Code::MissingAttribute, Level::Error, "missing-attribute"_L1,
     QT_TRANSLATE_NOOP("findings", "<%1> has no %2: %3"),
     "A figure, a name or a serial number is missing. Its label or its column is printed all the "
     "same, with nothing in it."_L1,
     "Send the attribute. Where the place is meant to stay empty, send it empty."_L1},
    {Code::MissingText, Level::Warning, "missing-text"_L1,
     QT_TRANSLATE_NOOP("findings", "<%1> has no %2, which the settings switch on: %3"),
     "The settings switch on a text that the job does not send. Its label is printed all the "
     "same, with nothing behind it."_L1,
     "Send the attribute, empty where the place is meant to stay empty, or switch it off."_L1},
    {Code::CancelledList, Level::Error, "cancelled-list"_L1,
     "%1",
     "The list of cancelled documents is not read as it is meant: `number` and `totals` must "
     "be its first two attributes, and each document has three more, in the number that "
     "`number` says."_L1,
     "Send serial number, total and tax rate of each document, in this order, after `number` "
     "and `totals`."_L1},

    // Amounts and quantities.
    {Code::Amount, Level::Warning, "amount"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" is %2, no number; it prints as it is"),
     "The text stands for an amount, a quantity or a tax rate and is no number. It is printed as "
     "it is."_L1,
     "Send digits with a decimal point, and a currency sign if it is to be printed."_L1},
    {Code::Hundredths, Level::Warning, "hundredths"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" is %2, with parts of a hundredth; it prints as it is"),
     "The amount has parts of a hundredth. It is printed as it is, not rounded."_L1,
     "Round amounts to hundredths before they are sent."_L1},
    {Code::DecimalComma, Level::Warning, "decimal-comma"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" is %2; other amounts of this job have a %3 as their decimal mark"),
     "Some amounts of the job have a decimal comma and some a point. Amounts are printed as they "
     "are, so that both stand on the paper."_L1,
     "Send the decimal mark that is to stand on the paper, the same in all amounts."_L1},
    {Code::VariantQuantity, Level::Warning, "variant-quantity"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "the quantity %1 is no number and prints as \"-\", something left out"),
     "The quantity of a variant is no number. It prints as \"-\", as something left out."_L1,
     "Send 1 for something added, -1 for something left out, or a number with a decimal point."_L1},
    {Code::FiscalIncomplete, Level::Error, "fiscal-incomplete"_L1,
     QT_TRANSLATE_NOOP("findings", "the sale row has no %1: %2"),
     "A sale row lacks its department, quantity, name or price, or has it empty. A missing "
     "price is registered as 0."_L1,
     "Send all four."_L1},
    {Code::FiscalAmount, Level::Error, "fiscal-amount"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" of a sale row is %2, %3"),
     "The price of a sale row is no plain number that the printer can take. What is no number "
     "at all is registered as 0."_L1,
     "Send at most 13 digits, a decimal point or comma and two decimals; nothing between "
     "thousands, no currency sign."_L1},
    {Code::FiscalHundredths, Level::Error, "fiscal-hundredths"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" of a sale row is %2, with parts of a hundredth, which are sent"),
     "The price of a sale row has parts of a hundredth. They are sent to the printer, which "
     "registers whole hundredths."_L1,
     "Round prices to hundredths before they are sent."_L1},
    {Code::FiscalQuantity, Level::Error, "fiscal-quantity"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" of a sale row is %2, no number above 0"),
     "The quantity of a sale row is no plain number, or none above 0. It is sent as it is, and "
     "the printer refuses it."_L1,
     "Send digits, with a decimal point where a part of a piece is sold."_L1},
    {Code::FiscalDepartment, Level::Error, "fiscal-department"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" of a sale row is %2; the printer takes a whole number from 1 on"),
     "The department of a sale row is no whole number from 1 on. It is sent as it is, and the "
     "printer refuses it."_L1,
     "Send the department's number on the printer."_L1},

    // Sums.
    {Code::RowSum, Level::Warning, "row-sum"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 times %2 is %3, and \"%4\" is %5"),
     "The quantity of a row times its price is not its total. All are printed as they are."_L1,
     "Send the amount that the quantity and the price come to."_L1},
    {Code::TotalSum, Level::Warning, "total-sum"_L1,
     QT_TRANSLATE_NOOP("findings", "the rows come to %1, and %2"),
     "The amounts of the rows, discounts and variants among them, do not come to the total. That "
     "of a fiscal receipt is the printer's own, whatever the job says."_L1,
     "Send the total of the rows."_L1},
    {Code::TaxSum, Level::Warning, "tax-sum"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 %2, and \"%3\" is %4"),
     "The tax is not the rate's part of what is taxable, or the two do not come to the total of "
     "the tax line."_L1,
     "Send the tax to the hundredth, and as the total what is taxable and the tax together."_L1},
    {Code::NoTotal, Level::Warning, "no-total"_L1,
     QT_TRANSLATE_NOOP("findings", "the %1 has rows and no <%2>: no total is printed"),
     "A document that ends with a total has none."_L1,
     "Send the total behind the rows."_L1},
    {Code::SecondTotal, Level::Warning, "second-total"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "the total stands here a second time, with no row in front of it, and "
                       "prints again"),
     "Two totals stand one behind the other, without a row between them. Both are printed."_L1,
     "Send the total once; one behind some of the rows is that of a part."_L1},
    {Code::BehindTotal, Level::Warning, "behind-total"_L1,
     QT_TRANSLATE_NOOP("findings", "<%1> stands behind the total and prints below it"),
     "A row stands behind the total. It prints below it, in the order of the job."_L1,
     "Send all rows in front of the total."_L1},

    // Texts.
    {Code::EndsCommand, Level::Error, "ends-command"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" of a sale row is %2: a %3 in it breaks the printer's command"),
     "A character in a text that is registered ends or splits the printer's command, and the "
     "row is lost or misread: a closing parenthesis, a line break, or a slash in a department "
     "or a quantity."_L1,
     "Leave the character out, or send another one in its place, such as ] for )."_L1},
    {Code::LineBreak, Level::Error, "line-break"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" of <%2> has a line break, which breaks the printed line"),
     "A line break in a text that is printed breaks the printer's command."_L1,
     "Send one line. Of an address, part the lines by commas."_L1},
    {Code::Parenthesis, Level::Warning, "parenthesis"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" of <%2> has a \")\", which some printers take for the end of the "
                       "line"),
     "The text has a closing parenthesis, which some printers take for the end of the line."_L1,
     "Leave it out, or send another character in its place, such as ]."_L1},
    {Code::ControlCharacter, Level::Warning, "control-character"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 a tab or another control character"),
     "The text has a tab or another control character. The printer's width of it is unknown, "
     "and columns may shift."_L1,
     "Send blanks instead."_L1},
    {Code::Totale, Level::Warning, "totale"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" of <%2> has TOTALE, which prints as T0TALE"),
     "The text has the word TOTALE, which is printed as T0TALE, with a zero: the printer "
     "reserves the word."_L1,
     "Nothing, if the zero does no harm; else write Totale."_L1},
    {Code::Address, Level::Error, "address"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" has an empty part: what follows is not printed"),
     "An address has an empty part between two commas. What follows it is not printed."_L1,
     "Leave the empty part out; one with a blank prints an empty line."_L1},
    {Code::Mojibake, Level::Warning, "mojibake"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" is %2, probably %3: UTF-8 was read as %4 and saved again"),
     "The text has two or three odd characters in place of an accented letter or a sign. Its "
     "UTF-8 was read in another encoding and saved again. It prints as it is."_L1,
     "Correct the text where it is kept, and read it as UTF-8 on its way into the job."_L1},
    {Code::OddCharacter, Level::Warning, "odd-character"_L1,
     "%1 %2",
     "The text has a replacement character, in place of one that was lost before, or one that has "
     "no shape and no width, such as a mark for the direction of writing. Printers have no "
     "character for these."_L1,
     "Correct the text where it is kept, and read it in the encoding that it is in."_L1},
    {Code::EscapedTwice, Level::Warning, "escaped-twice"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 %2, which prints as it is: it was escaped twice"),
     "The text has a reference to a character where the character is meant: \"&\" was written "
     "as a reference twice on its way into the job. It prints as it is."_L1,
     "Write the text as it is to be printed and let the XML library escape it, once."_L1},
    {Code::NotInCharset, Level::Warning, "not-in-charset"_L1,
     QT_TRANSLATE_NOOP("findings", "\"%1\" has what %2 lacks: %3"),
     "A text that is printed or registered has a character that the printer's code page lacks. "
     "Another one is printed in its place."_L1,
     "Send a character that the code page has, or set the printer to another one; --charset "
     "names it."_L1},

    // The job beside its settings.
    {Code::SwitchedOff, Level::Warning, "switched-off"_L1,
     QT_TRANSLATE_NOOP("findings", "%1: %2 is off in %3"),
     "The settings switch off what the job sends. It is not printed."_L1,
     "Switch it on in the settings if it is meant to be printed, with exactly true; else leave "
     "it out of the job."_L1},
    {Code::WideLine, Level::Warning, "wide-line"_L1,
     QT_TRANSLATE_NOOP("findings", "a line of %1 characters is wider than the paper (%2): %3%4"),
     "A line of this job, laid out by these settings and in their language, is wider than the "
     "paper. The printer breaks it or cuts it. Labels that are too wide by themselves are not "
     "reported, nor what the settings alone make wide."_L1,
     "Shorten the text, or the label in the catalogue; if it is a figure in a column, widen the "
     "column in the settings."_L1},
    {Code::CutCharacter, Level::Warning, "cut-character"_L1,
     QT_TRANSLATE_NOOP("findings",
                       "\"%1\" is cut in the middle of %2, which prints as another character"),
     "A text is cut to the width of its column in the middle of a character that counts as two, "
     "such as an emoji. Another character, or none, is printed in its place."_L1,
     "Shorten the text, or lengthen it by a blank before the character, or leave that out."_L1},
};
// clang-format on

} // namespace korvel::check

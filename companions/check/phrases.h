// The parts of findings' wordings that have several forms.
#pragma once

#include "companions/shared/codes.h"

namespace korvel::check {

using shared::filled;

/// The parts of wordings that have several forms.
namespace phrase {

using Phrase = QLatin1StringView;

// What a misspelt name may be.
inline constexpr Phrase didYouMean{"; did you mean \"%1\"?"};

// NoMethod: what to do
inline constexpr Phrase beginWithMethod{"begin with <method name=\"...\"/>"};
inline constexpr Phrase misspeltMethod{"did you mean <method> by <%1>?"};
inline constexpr Phrase writeMethodFirst{"begin with <method name=\"%1\"/>"};

// MalformedXml: where it is no more checked; and what the reader does not say
inline constexpr Phrase behindThis{"this"};
inline constexpr Phrase behindLine{"line %1"};
inline constexpr Phrase namelessInstruction{"an instruction has no name"};
inline constexpr Phrase noName{"\"%1\" is no name"};
inline constexpr Phrase otherVersion{"XML %1 is not read; write 1.0"};

// Encoding
inline constexpr Phrase otherEncoding{
    "%1 is named, but the job is written in %2: the paper ends here; name %2, or none"};
inline constexpr Phrase namedWrongly{
    "%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none"};
inline constexpr Phrase unknownEncoding{
    "the checker cannot read the encoding \"%1\": nothing else was checked; write UTF-8"};
inline constexpr Phrase wrongBytes{"not %1: the bytes here print as a replacement character; save "
                                   "the job as UTF-8, or name what it is written in"};

// Limit
inline constexpr Phrase nestedElements{
    "more than %1 elements nested in each other: the paper ends here"};
inline constexpr Phrase declaredNamespaces{"more than %1 namespaces declared: the paper ends here"};
inline constexpr Phrase declaredEntities{
    "more entities than the renderer takes, longer ones, or one in itself: the paper ends here"};
inline constexpr Phrase declaredAttributes{
    "more than %1 attributes in the document type: nothing behind this was checked"};

inline constexpr Phrase settingsReadOver{
    "groups and settings that are too many, too deep or too long are read over: %1"};

// UnknownMethod
inline constexpr Phrase noDocument{"no document is called %1"};
inline constexpr Phrase noMethodName{"the method has no name"};
inline constexpr Phrase writeMethod{"; write <method name=\"%1\"/>"};

// LostFigure: what is lost
inline constexpr Phrase figureLost{"its figure is lost"};
inline constexpr Phrase figuresLost{"their figures are lost"};

// MisspeltAttribute: what is missing
inline constexpr Phrase meantMissing{"; did you mean \"%1\", which is missing?"};
inline constexpr Phrase otherMissing{", and its \"%1\" is missing"};

// TextContent
inline constexpr Phrase childElements{
    "<%1> has %2 as elements, which print nothing: write them as attributes"};
inline constexpr Phrase strayText{"the text %1 in <%2> is not printed: write it as an attribute"};

// IgnoredElement, LostElement: the documents that print it
inline constexpr Phrase printedIn{"; it is printed in %1"};

// MissingAttribute: what the lack of it prints
inline constexpr Phrase emptyPlace{"its place prints empty"};
inline constexpr Phrase emptyPlaces{"their places print empty"};
inline constexpr Phrase leftOut{"it prints as \"-\", something left out"};

// CancelledList
inline constexpr Phrase listBeginsWrong{
    "\"number\" and \"totals\" must be the first two attributes, and are not: all others are "
    "taken for serial number, total and tax rate of one document after the other"};
inline constexpr Phrase listNotInThrees{
    "each cancelled document takes three attributes behind \"number\" and \"totals\", its serial "
    "number, total and tax rate; there are %1"};
inline constexpr Phrase listMiscounted{
    "\"number\" is %1, but the cancelled documents that are listed are %2"};

// DecimalComma: the mark of the others
inline constexpr Phrase comma{"comma"};
inline constexpr Phrase point{"point"};

// TotalSum: the total
inline constexpr Phrase totalIs{"\"%1\" of <%2> is %3"};
inline constexpr Phrase taxLinesCome{"the tax lines come to %1"};

// TaxSum: what comes to something else
inline constexpr Phrase taxOfRate{"%1 of %2 is"};
inline constexpr Phrase taxableAndTax{"%1 and %2 come to"};

// FiscalIncomplete: what the lack of it does
inline constexpr Phrase zeroRegistered{"0 is registered"};
inline constexpr Phrase maybeRefused{"the printer may refuse it"};

// FiscalAmount: what is wrong with it
inline constexpr Phrase noNumber{"no number: 0 is registered"};
inline constexpr Phrase noPlainNumber{"no plain number"};
inline constexpr Phrase tooManyDigits{"more than the printer takes"};

// EndsCommand: the character
inline constexpr Phrase lineBreak{"line break"};
inline constexpr Phrase parenthesis{"\")\""};
inline constexpr Phrase slash{"\"/\""};

// ControlCharacter: what has it
inline constexpr Phrase attributeHas{"\"%1\" of <%2> has"};
inline constexpr Phrase saleRowHas{"\"%1\" of a sale row is %2, with"};

// Mojibake: what UTF-8 was read as
inline constexpr Phrase latin1{"Latin-1"};

// OddCharacter, EscapedTwice: what there is
inline constexpr Phrase replacement{"U+FFFD in place of a character that was lost before"};
inline constexpr Phrase shapeless{"%1, a character without a shape; leave it out"};

// NotInCharset: a character, how it is shown, and what stands in its place; and how many more
inline constexpr Phrase replacedCharacter{"%1 prints as %2"};
inline constexpr Phrase moreCharacters{", and %1 more"};

// SwitchedOff
inline constexpr Phrase elementNotPrinted{"<%1> is not printed"};
inline constexpr Phrase attributeNotPrinted{"\"%1\" is not printed"};
inline constexpr Phrase onlyPrinterName{"of <headers> only the printer's name is printed"};

// WideLine: the figure that makes it so
inline constexpr Phrase wideFigure{"; \"%1\" is %2 in a column of %3 (%4 in %5)"};

// NoSettings: why
inline constexpr Phrase emptyFile{"it is empty"};
inline constexpr Phrase noGroup{"it has no group korvel: { ... };"};
inline constexpr Phrase noSetting{"no setting stands in it"};
inline constexpr Phrase otherNotation{
    "it is written as %1; settings are written korvel: { doc: { paperWidth = \"32\"; }; };"};
inline constexpr Phrase otherFirstGroup{"its first group is %1, not korvel%2"};
inline constexpr Phrase namelessFirstGroup{"its first group has no name%1"};

// ByteOrderMark
inline constexpr Phrase markInFront{"a byte order mark stands in front of it"};
inline constexpr Phrase wideCharacters{"it is written as UTF-16"};

// Comment, Unterminated: what is lost by it, or lacks a mark
inline constexpr Phrase theGroup{"the group %1"};
inline constexpr Phrase whatFollows{"what follows"};

// Unterminated
inline constexpr Phrase noSemicolon{"%1 is %2: does the line end with ;?"};
inline constexpr Phrase lineEnd{"; does the line end with ;?"};
inline constexpr Phrase braceAlone{"a } has no ; behind it: %1 is skipped"};
inline constexpr Phrase groupOpen{"the group %1 is not closed: a }; is missing here"};
inline constexpr Phrase fileEnds{"the file ends inside the group %1: a }; is missing, if not more"};
inline constexpr Phrase braceTooMany{"a } closes %1 too early: what follows is not read"};
inline constexpr Phrase closesFile{"a } closes nothing: what follows is not read"};
inline constexpr Phrase noBrace{"the group %1 has no { behind its name"};
inline constexpr Phrase noColon{"the group %1 has no : behind its name%2"};
inline constexpr Phrase otherMark{"\"%1\" stands where the \"%2\" of %3 belongs"};
inline constexpr Phrase otherQuote{
    "%1 stands where a \" of %2 belongs, and becomes part of the value"};
inline constexpr Phrase readAs{"%1: it is read as %2"};
inline constexpr Phrase braceTwice{"a { too many: %1 has one already"};
inline constexpr Phrase noEquals{"%1 has no = behind its name and is not read"};
inline constexpr Phrase noSettingName{"no name stands before the =: %1 is not read"};

// Catalogue
inline constexpr Phrase notFound{"no catalogue is found as %1"};
inline constexpr Phrase notLoaded{"%1 is no catalogue"};
inline constexpr Phrase beyondAscii{"; letters beyond ASCII are misread: leave them out of paths"};
inline constexpr Phrase beginsWithSlash{"; file must begin with a /"};

// Columns
inline constexpr Phrase noRoom{"the columns of the %1 leave no room for the description: "
                               "the others and the blanks take %2 of %3 characters"};
inline constexpr Phrase negativeWidth{
    "%1 is %2: the description of the %3 gets as many characters too many"};
inline constexpr Phrase widePaper{
    "paperWidth is %1: lines are wider than the printer's %2 characters"};

// LostGroup: what it is
inline constexpr Phrase noSuchGroup{"no document reads the group %1"};
inline constexpr Phrase noGroupName{"a group has no name before its {"};
inline constexpr Phrase secondTopGroup{
    "only the first group of the file is read, and %1 is another"};
inline constexpr Phrase groupBetween{"documents' groups stand in korvel itself, not in %1"};

// Duplicate: what it is, and which of both counts
inline constexpr Phrase groupTwice{"the group %1"};
inline constexpr Phrase firstCounts{
    "what the one in line %1 sets counts, this one adds what it does not set"};
inline constexpr Phrase lastCounts{"this one counts, not that in line %1"};

// NotTrue: where it cannot be told what is meant
inline constexpr Phrase onlyTrue{"; only true switches it on"};

// UnreadKey: why nothing reads it
inline constexpr Phrase outsideKorvel{"it stands outside the group korvel"};
inline constexpr Phrase otherTopGroup{
    "only the first group of the file is read, and it must be korvel"};
inline constexpr Phrase misplaced{
    "settings stand in a document's group or in language, in korvel%1"};
inline constexpr Phrase unclosedGroup{"; does a } lack its ;?"};
inline constexpr Phrase unknownGroup{"no document has such a group%1"};
inline constexpr Phrase unknownSetting{"there is no such setting%1"};
inline constexpr Phrase commentedOut{
    "it is commented out; nothing else is lost by it, but deleting it is safer"};

} // namespace phrase

} // namespace korvel::check

// The parts of findings' wordings that have several forms.
#pragma once

#include "companions/shared/codes.h"

namespace korvel::check {

using shared::filled;

/// The parts of wordings that have several forms.
namespace phrase {

using shared::Phrase;

// What a misspelt name may be.
inline constexpr Phrase didYouMean{QT_TRANSLATE_NOOP("findings", "; did you mean \"%1\"?")};

// NoMethod: what to do
inline constexpr Phrase beginWithMethod{
    QT_TRANSLATE_NOOP("findings", "begin with <method name=\"...\"/>")};
inline constexpr Phrase misspeltMethod{
    QT_TRANSLATE_NOOP("findings", "did you mean <method> by <%1>?")};
inline constexpr Phrase writeMethodFirst{
    QT_TRANSLATE_NOOP("findings", "begin with <method name=\"%1\"/>")};

// MalformedXml: where it is no more checked; and what the reader does not say
inline constexpr Phrase behindThis{QT_TRANSLATE_NOOP("findings", "this")};
inline constexpr Phrase behindLine{QT_TRANSLATE_NOOP("findings", "line %1")};
inline constexpr Phrase namelessInstruction{
    QT_TRANSLATE_NOOP("findings", "an instruction has no name")};
inline constexpr Phrase noName{QT_TRANSLATE_NOOP("findings", "\"%1\" is no name")};
inline constexpr Phrase otherVersion{
    QT_TRANSLATE_NOOP("findings", "XML %1 is not read; write 1.0")};
inline constexpr Phrase notWellFormed{QT_TRANSLATE_NOOP("findings", "this is not well-formed")};
inline constexpr Phrase characterOrNumber{QT_TRANSLATE_NOOP("findings", "\"%1\" or %2")};

// Encoding
inline constexpr Phrase otherEncoding{QT_TRANSLATE_NOOP(
    "findings",
    "%1 is named, but the job is written in %2: the paper ends here; name %2, or none")};
inline constexpr Phrase namedWrongly{QT_TRANSLATE_NOOP(
    "findings",
    "%1 is named, but the job is written in UTF-8: accents print wrongly; name UTF-8, or none")};
inline constexpr Phrase unknownEncoding{QT_TRANSLATE_NOOP(
    "findings",
    "the checker cannot read the encoding \"%1\": nothing else was checked; write UTF-8")};
inline constexpr Phrase wrongBytes{
    QT_TRANSLATE_NOOP("findings", "not %1: the bytes here print as a replacement character; save "
                                  "the job as UTF-8, or name what it is written in")};

// Limit
inline constexpr Phrase nestedElements{QT_TRANSLATE_NOOP(
    "findings", "more than %1 elements nested in each other: the paper ends here")};
inline constexpr Phrase declaredNamespaces{
    QT_TRANSLATE_NOOP("findings", "more than %1 namespaces declared: the paper ends here")};
inline constexpr Phrase declaredEntities{QT_TRANSLATE_NOOP(
    "findings",
    "more entities than the renderer takes, longer ones, or one in itself: the paper ends here")};
inline constexpr Phrase declaredAttributes{QT_TRANSLATE_NOOP(
    "findings", "more than %1 attributes in the document type: nothing behind this was checked")};

inline constexpr Phrase settingsReadOver{QT_TRANSLATE_NOOP(
    "findings", "groups and settings that are too many, too deep or too long are read over: %1")};

// UnknownMethod
inline constexpr Phrase noDocument{QT_TRANSLATE_NOOP("findings", "no document is called %1")};
inline constexpr Phrase noMethodName{QT_TRANSLATE_NOOP("findings", "the method has no name")};
inline constexpr Phrase writeMethod{QT_TRANSLATE_NOOP("findings", "; write <method name=\"%1\"/>")};

// LostFigure: what is lost
inline constexpr Phrase figureLost{QT_TRANSLATE_NOOP("findings", "its figure is lost")};
inline constexpr Phrase figuresLost{QT_TRANSLATE_NOOP("findings", "their figures are lost")};

// MisspeltAttribute: what is missing
inline constexpr Phrase meantMissing{
    QT_TRANSLATE_NOOP("findings", "; did you mean \"%1\", which is missing?")};
inline constexpr Phrase otherMissing{QT_TRANSLATE_NOOP("findings", ", and its \"%1\" is missing")};

// TextContent
inline constexpr Phrase childElement{QT_TRANSLATE_NOOP(
    "findings", "<%1> has %2 as an element, which prints nothing: write it as an attribute")};
inline constexpr Phrase childElements{QT_TRANSLATE_NOOP(
    "findings", "<%1> has %2 as elements, which print nothing: write them as attributes")};
inline constexpr Phrase strayText{
    QT_TRANSLATE_NOOP("findings", "the text %1 in <%2> is not printed: write it as an attribute")};

// IgnoredElement, LostElement: the documents that print it
inline constexpr Phrase printedIn{QT_TRANSLATE_NOOP("findings", "; it is printed in %1")};

// MissingAttribute: what the lack of it prints
inline constexpr Phrase emptyPlace{QT_TRANSLATE_NOOP("findings", "its place prints empty")};
inline constexpr Phrase emptyPlaces{QT_TRANSLATE_NOOP("findings", "their places print empty")};
inline constexpr Phrase leftOut{
    QT_TRANSLATE_NOOP("findings", "it prints as \"-\", something left out")};

// CancelledList
inline constexpr Phrase listBeginsWrong{QT_TRANSLATE_NOOP(
    "findings",
    "\"number\" and \"totals\" must be the first two attributes, and are not: all others are "
    "taken for serial number, total and tax rate of one document after the other")};
inline constexpr Phrase listNotInThrees{QT_TRANSLATE_NOOP(
    "findings",
    "each cancelled document takes three attributes behind \"number\" and \"totals\", its serial "
    "number, total and tax rate; there are %1")};
inline constexpr Phrase listMiscounted{QT_TRANSLATE_NOOP(
    "findings", "\"number\" is %1, but the cancelled documents that are listed are %2")};

// DecimalComma: the mark of the others
inline constexpr Phrase comma{QT_TRANSLATE_NOOP("findings", "comma")};
inline constexpr Phrase point{QT_TRANSLATE_NOOP("findings", "point")};

// TotalSum: the total
inline constexpr Phrase totalIs{QT_TRANSLATE_NOOP("findings", "\"%1\" of <%2> is %3")};
inline constexpr Phrase taxLinesCome{QT_TRANSLATE_NOOP("findings", "the tax lines come to %1")};

// TaxSum: what comes to something else
inline constexpr Phrase taxOfRate{QT_TRANSLATE_NOOP("findings", "%1 of %2 is")};
inline constexpr Phrase taxableAndTax{QT_TRANSLATE_NOOP("findings", "%1 and %2 come to")};

// FiscalIncomplete: what the lack of it does
inline constexpr Phrase zeroRegistered{QT_TRANSLATE_NOOP("findings", "0 is registered")};
inline constexpr Phrase maybeRefused{QT_TRANSLATE_NOOP("findings", "the printer may refuse it")};

// FiscalAmount: what is wrong with it
inline constexpr Phrase noNumber{QT_TRANSLATE_NOOP("findings", "no number: 0 is registered")};
inline constexpr Phrase noPlainNumber{QT_TRANSLATE_NOOP("findings", "no plain number")};
inline constexpr Phrase tooManyDigits{QT_TRANSLATE_NOOP("findings", "more than the printer takes")};

// EndsCommand: the character
inline constexpr Phrase lineBreak{QT_TRANSLATE_NOOP("findings", "line break")};
inline constexpr Phrase parenthesis{"\")\""};
inline constexpr Phrase slash{"\"/\""};

// ControlCharacter: what has it
inline constexpr Phrase attributeHas{QT_TRANSLATE_NOOP("findings", "\"%1\" of <%2> has")};
inline constexpr Phrase saleRowHas{
    QT_TRANSLATE_NOOP("findings", "\"%1\" of a sale row is %2, with")};

// Mojibake: what UTF-8 was read as
inline constexpr Phrase latin1{"Latin-1"};

// OddCharacter, EscapedTwice: what there is
inline constexpr Phrase replacement{
    QT_TRANSLATE_NOOP("findings", "U+FFFD in place of a character that was lost before")};
inline constexpr Phrase shapeless{
    QT_TRANSLATE_NOOP("findings", "%1, a character without a shape; leave it out")};

// NotInCharset: a character, how it is shown, and what stands in its place; and how many more
inline constexpr Phrase replacedCharacter{QT_TRANSLATE_NOOP("findings", "%1 prints as %2")};
inline constexpr Phrase moreCharacters{QT_TRANSLATE_NOOP("findings", ", and %1 more")};

// SwitchedOff
inline constexpr Phrase elementNotPrinted{QT_TRANSLATE_NOOP("findings", "<%1> is not printed")};
inline constexpr Phrase attributeNotPrinted{QT_TRANSLATE_NOOP("findings", "\"%1\" is not printed")};
inline constexpr Phrase onlyPrinterName{
    QT_TRANSLATE_NOOP("findings", "of <headers> only the printer's name is printed")};

// WideLine: the figure that makes it so
inline constexpr Phrase wideFigure{
    QT_TRANSLATE_NOOP("findings", "; \"%1\" is %2 in a column of %3 (%4 in %5)")};

// NoSettings: why
inline constexpr Phrase emptyFile{QT_TRANSLATE_NOOP("findings", "it is empty")};
inline constexpr Phrase noGroup{QT_TRANSLATE_NOOP("findings", "it has no group korvel: { ... };")};
inline constexpr Phrase noSetting{QT_TRANSLATE_NOOP("findings", "no setting stands in it")};
inline constexpr Phrase otherNotation{QT_TRANSLATE_NOOP(
    "findings",
    "it is written as %1; settings are written korvel: { doc: { paperWidth = \"32\"; }; };")};
inline constexpr Phrase otherFirstGroup{
    QT_TRANSLATE_NOOP("findings", "its first group is %1, not korvel%2")};
inline constexpr Phrase namelessFirstGroup{
    QT_TRANSLATE_NOOP("findings", "its first group has no name%1")};

// ByteOrderMark
inline constexpr Phrase markInFront{
    QT_TRANSLATE_NOOP("findings", "a byte order mark stands in front of it")};
inline constexpr Phrase wideCharacters{QT_TRANSLATE_NOOP("findings", "it is written as UTF-16")};

// Comment, Unterminated: what is lost by it, or lacks a mark
inline constexpr Phrase theGroup{QT_TRANSLATE_NOOP("findings", "the group %1")};
inline constexpr Phrase whatFollows{QT_TRANSLATE_NOOP("findings", "what follows")};

// Unterminated
inline constexpr Phrase noSemicolon{
    QT_TRANSLATE_NOOP("findings", "%1 is %2: does the line end with ;?")};
inline constexpr Phrase lineEnd{QT_TRANSLATE_NOOP("findings", "; does the line end with ;?")};
inline constexpr Phrase braceAlone{
    QT_TRANSLATE_NOOP("findings", "a } has no ; behind it: %1 is skipped")};
inline constexpr Phrase groupOpen{
    QT_TRANSLATE_NOOP("findings", "the group %1 is not closed: a }; is missing here")};
inline constexpr Phrase fileEnds{QT_TRANSLATE_NOOP(
    "findings", "the file ends inside the group %1: a }; is missing, if not more")};
inline constexpr Phrase braceTooMany{
    QT_TRANSLATE_NOOP("findings", "a } closes %1 too early: what follows is not read")};
inline constexpr Phrase closesFile{
    QT_TRANSLATE_NOOP("findings", "a } closes nothing: what follows is not read")};
inline constexpr Phrase noBrace{
    QT_TRANSLATE_NOOP("findings", "the group %1 has no { behind its name")};
inline constexpr Phrase noColon{
    QT_TRANSLATE_NOOP("findings", "the group %1 has no : behind its name%2")};
inline constexpr Phrase noHead{
    QT_TRANSLATE_NOOP("findings", "the group %1 has neither : nor { behind its name%2")};
inline constexpr Phrase otherMark{
    QT_TRANSLATE_NOOP("findings", "\"%1\" stands where the \"%2\" of %3 belongs")};
inline constexpr Phrase otherQuote{QT_TRANSLATE_NOOP(
    "findings", "%1 stands where a \" of %2 belongs, and becomes part of the value")};
inline constexpr Phrase readAs{QT_TRANSLATE_NOOP("findings", "%1: it is read as %2")};
inline constexpr Phrase braceTwice{
    QT_TRANSLATE_NOOP("findings", "a { too many: %1 has one already")};
inline constexpr Phrase noEquals{
    QT_TRANSLATE_NOOP("findings", "%1 has no = behind its name and is not read")};
inline constexpr Phrase noSettingName{
    QT_TRANSLATE_NOOP("findings", "no name stands before the =: %1 is not read")};

// Catalogue
inline constexpr Phrase notFound{QT_TRANSLATE_NOOP("findings", "no catalogue is found as %1")};
inline constexpr Phrase notLoaded{QT_TRANSLATE_NOOP("findings", "%1 is no catalogue")};
inline constexpr Phrase beyondAscii{
    QT_TRANSLATE_NOOP("findings", "; letters beyond ASCII are misread: leave them out of paths")};
inline constexpr Phrase beginsWithSlash{
    QT_TRANSLATE_NOOP("findings", "; file must begin with a /")};

// Columns
inline constexpr Phrase noRoom{
    QT_TRANSLATE_NOOP("findings", "the columns of the %1 leave no room for the description: "
                                  "the others and the blanks take %2 of %3 characters")};
inline constexpr Phrase negativeWidth{QT_TRANSLATE_NOOP(
    "findings", "%1 is %2: the description of the %3 gets as many characters too many")};
inline constexpr Phrase widePaper{QT_TRANSLATE_NOOP(
    "findings", "paperWidth is %1: lines are wider than the printer's %2 characters")};

// LostGroup: what it is
inline constexpr Phrase noSuchGroup{
    QT_TRANSLATE_NOOP("findings", "no document reads the group %1")};
inline constexpr Phrase noGroupName{
    QT_TRANSLATE_NOOP("findings", "a group has no name before its {")};
inline constexpr Phrase secondTopGroup{
    QT_TRANSLATE_NOOP("findings", "only the first group of the file is read, and %1 is another")};
inline constexpr Phrase groupBetween{
    QT_TRANSLATE_NOOP("findings", "documents' groups stand in korvel itself, not in %1")};

// Duplicate: what it is, and which of both counts
inline constexpr Phrase groupTwice{QT_TRANSLATE_NOOP("findings", "the group %1")};
inline constexpr Phrase firstCounts{QT_TRANSLATE_NOOP(
    "findings", "what the one in line %1 sets counts, this one adds what it does not set")};
inline constexpr Phrase lastCounts{
    QT_TRANSLATE_NOOP("findings", "this one counts, not that in line %1")};

// NotTrue: where it cannot be told what is meant
inline constexpr Phrase onlyTrue{QT_TRANSLATE_NOOP("findings", "; only true switches it on")};

// UnreadKey: why nothing reads it
inline constexpr Phrase outsideKorvel{
    QT_TRANSLATE_NOOP("findings", "it stands outside the group korvel")};
inline constexpr Phrase otherTopGroup{QT_TRANSLATE_NOOP(
    "findings", "only the first group of the file is read, and it must be korvel")};
inline constexpr Phrase misplaced{QT_TRANSLATE_NOOP(
    "findings", "settings stand in a document's group or in language, in korvel%1")};
inline constexpr Phrase unclosedGroup{QT_TRANSLATE_NOOP("findings", "; does a } lack its ;?")};
inline constexpr Phrase unknownGroup{
    QT_TRANSLATE_NOOP("findings", "no document has such a group%1")};
inline constexpr Phrase unknownSetting{QT_TRANSLATE_NOOP("findings", "there is no such setting%1")};
inline constexpr Phrase commentedOut{QT_TRANSLATE_NOOP(
    "findings", "it is commented out; nothing else is lost by it, but deleting it is safer")};

} // namespace phrase

} // namespace korvel::check

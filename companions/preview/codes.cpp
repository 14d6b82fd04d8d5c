// All that findings in streams say: a row for each code.
#include "companions/preview/codes.h"

#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

// clang-format off
constexpr CodeInfo rows[] = {
    {Code::TooWide, Level::Warning, "too-wide"_L1,
     QT_TRANSLATE_NOOP("findings", "a %1 of %2 characters is wider than the paper (%3)"),
     "A line, a sale row or a deduction has more characters than a line of the paper. The printer "
     "breaks it or cuts it."_L1,
     "Make the columns of the document narrower in the settings, or shorten the label or the name; "
     "of sale rows, lower descriptionWidth."_L1},

    // The stream as a whole.
    {Code::EmptyStream, Level::Error, "empty-stream"_L1,
     QT_TRANSLATE_NOOP("findings", "the stream is empty: nothing is printed"),
     "The stream has no bytes. No job was rendered into it, or the run ended before it wrote."_L1,
     "Look for the message of korvel-print, and whether the job was there to be read."_L1},
    {Code::LeftOpen, Level::Error, "left-open"_L1,
     QT_TRANSLATE_NOOP("findings", "the %1 opened here is never closed"),
     "The stream ends before a section does. The job ended early, at an XML error or a method that "
     "is not known, or the run was ended."_L1,
     "Correct the job; on a fiscal printer close the open receipt."_L1},
    {Code::StillOpen, Level::Error, "still-open"_L1,
     QT_TRANSLATE_NOOP("findings", "the %1 opened at byte %2 is still open where the %3 is opened"),
     "A section is opened inside another one. The job has two methods, or ended early, with "
     "another stream behind it."_L1,
     "Send one document in each job; on a fiscal printer close the open receipt."_L1},
    {Code::NotOpen, Level::Error, "not-open"_L1,
     QT_TRANSLATE_NOOP("findings", "the %1 is closed but not open"),
     "A section is closed that was not opened, or was closed before. The beginning of the stream "
     "is missing."_L1,
     "Look at who writes to the file, and at what else does."_L1},

    // What is registered.
    {Code::OutsideFiscal, Level::Error, "outside-fiscal"_L1,
     QT_TRANSLATE_NOOP("findings", "a %1 outside a fiscal section"),
     "A sale row or a deduction stands where no fiscal section is open. The printer refuses it, or "
     "registers nothing."_L1,
     "Look at who writes to the file, and at what else does."_L1},
    {Code::WrongAmount, Level::Error, "wrong-amount"_L1,
     QT_TRANSLATE_NOOP("findings", "the amount %1 is no whole number of hundredths"),
     "An amount has more than two decimals, is too large, or is no number. The printer refuses "
     "it."_L1,
     "Correct the amount in the job."_L1},
    {Code::WrongQuantity, Level::Error, "wrong-quantity"_L1,
     QT_TRANSLATE_NOOP("findings", "the quantity %1 is no number"),
     "The printer cannot multiply by the quantity of a sale row, and refuses it."_L1,
     "Correct the quantity in the job."_L1},
    {Code::TooLarge, Level::Error, "too-large"_L1,
     QT_TRANSLATE_NOOP("findings", "the %1 is too large for the preview to add up"),
     "A sale row or a deduction, or the sum with it, has more digits than the preview counts, and "
     "than a printer takes."_L1,
     "Correct the amount and the quantity in the job."_L1},

    // Texts.
    {Code::EndsText, Level::Warning, "ends-text"_L1,
     QT_TRANSLATE_NOOP("findings", "a \"%1\" inside a text ends it early"),
     "A printed line has a closing parenthesis. Some printers take it for the end of the line, and "
     "what follows for a command."_L1,
     "Leave parentheses out of names, or send another character in their place, such as ]."_L1},
    {Code::EndsField, Level::Error, "ends-field"_L1,
     QT_TRANSLATE_NOOP("findings", "a \"%1\" inside a field of a sale row ends it early"),
     "A field of a sale row has a closing parenthesis, or a department or a quantity has a slash. "
     "The printer takes what follows for something else."_L1,
     "Leave the character out of the job, or send another one in its place."_L1},
    {Code::BreaksText, Level::Error, "breaks-text"_L1,
     QT_TRANSLATE_NOOP("findings", "the line break %1 inside a text ends it early"),
     "A text goes over several lines. The printer takes the first for a broken command."_L1,
     "Take the line break out of the name or the note in the job."_L1},
    {Code::ControlCode, Level::Warning, "control-code"_L1,
     QT_TRANSLATE_NOOP("findings", "the control character %1 inside a text"),
     "A text has a character that does not print. The printer may obey it, and its width is "
     "unknown."_L1,
     "Take it out of the name in the job, or send a blank instead."_L1},
    {Code::NotUtf8, Level::Warning, "not-utf-8"_L1,
     QT_TRANSLATE_NOOP("findings", "%1 is not %2"),
     "Bytes of a text are no UTF-8, or no characters of the code page of --charset. The stream was "
     "converted to another encoding, or damaged."_L1,
     "Name the code page with --charset, or show the stream as it was before it was "
     "converted."_L1},

    // Bytes that are no command.
    {Code::UnknownCommand, Level::Error, "unknown-command"_L1,
     "%1",
     "No command of the printer begins like this."_L1,
     "See whether something else wrote into the stream."_L1},
    {Code::BrokenCommand, Level::Error, "broken-command"_L1,
     QT_TRANSLATE_NOOP("findings", "broken %1: %2 does not belong here"),
     "The command begins well; the byte that is shown is the first that does not fit."_L1,
     "See whether something else wrote into the stream."_L1},
    {Code::UnterminatedCommand, Level::Error, "unterminated-command"_L1,
     QT_TRANSLATE_NOOP("findings", "unterminated %1 that begins at byte %2: the stream ends here"),
     "The stream breaks off in the middle of a command."_L1,
     "See whether the disk was full, or the run was ended."_L1},

    // More findings than are listed.
    {Code::MoreErrors, Level::Error, "more-errors"_L1,
     QT_TRANSLATE_NOOP("findings", "too much is wrong; no more is listed"),
     "There are more findings than are listed, and an error is among them."_L1,
     "Correct the first ones, and look again."_L1},
    {Code::MoreWarnings, Level::Warning, "more-warnings"_L1,
     QT_TRANSLATE_NOOP("findings", "too much is odd; no more is listed"),
     "There are more findings than are listed, and all of these are warnings."_L1,
     "Correct the first ones, and look again, or leave their code out."_L1},
};
// clang-format on

static_assert(shared::areInOrder(rows) && std::size(rows) == std::size_t(Code::Count),
              "each code has its row, in the order of the codes");

} // namespace

const QList<CodeInfo> &codes()
{
    static const QList<CodeInfo> all(std::begin(rows), std::end(rows));
    return all;
}

const CodeInfo &infoOf(Code code) { return rows[std::size_t(code)]; }

} // namespace korvel::preview

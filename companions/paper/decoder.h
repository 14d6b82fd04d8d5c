// The printer's command stream taken apart: bytes to commands, and back.
#pragma once

#include "companions/recode/codepage.h"

#include <QByteArray>

#include <optional>

namespace korvel::preview {

/// Every command begins with this byte.
inline constexpr char commandStart = '=';

/// What a section of the stream is to the printer.
enum class Section { Fiscal, Receipt, Document };

/**
 * One command of the stream. Texts are bytes as they stand in it: of the code page, unless
 * something went wrong on the way.
 */
struct Command
{
    /// Unknown is what fits no command, kept with its bytes.
    enum class Kind { Line, SectionOpened, SectionClosed, SaleRow, Deduction, Unknown };

    Kind kind = Kind::Unknown;
    qsizetype offset = 0;                // of the first byte, in the stream
    qsizetype line = 1;                  // of the stream, counted in line feeds from 1
    Section section = Section::Document; // opened or closed
    int spaces = 0;                      // Line: the blanks that centre it
    QByteArray content;                  // Line: the text behind those blanks; Unknown: all bytes
    QByteArray department;               // SaleRow
    QByteArray amount;                   // SaleRow, Deduction: hundredths, in decimal
    QByteArray quantity;                 // SaleRow
    QByteArray description;              // SaleRow
    const recode::CodePage *codePage = &recode::CodePage::utf8(); // of the texts

    /// Unknown: offset of the first byte that does not fit; the stream's size when it ends too
    /// early.
    qsizetype badByte = 0;

    /// Unknown: what it would have been, where its beginning tells.
    std::optional<Kind> begunAs;
};

/**
 * Takes a stream apart, one command after the other, in time and memory that grow with the stream
 * and no faster. Every byte of it belongs to one command, in order; any bytes at all can be given.
 *
 * A line counts as centred when so many blanks stand before its text as the back end puts there
 * for a text of that length. A line that is indented by just as many may be either, and counts as
 * centred.
 *
 * The command that opens a document also closes one, and closes receipts. It closes when a receipt
 * or document is open; when none is open, it still counts as closing where nothing follows or
 * another section is opened next. Otherwise it opens.
 *
 * What fits no command is unknown up to and including its next line feed; a pair of commands with
 * a broken second one is unknown as a whole.
 */
class Decoder
{
public:
    /// @param page of the texts; outlives the commands
    explicit Decoder(QByteArray bytes, const recode::CodePage &page = recode::CodePage::utf8());

    /// The next command; nothing at the end of the stream.
    std::optional<Command> next();

private:
    std::optional<Command> read();
    void sortSection(Command &command);
    bool endsHere();

    const QByteArray stream;
    const recode::CodePage &codePage;
    qsizetype offset = 0;         // of what was not read yet
    qsizetype line = 1;           // there
    std::optional<Command> ahead; // read already, because the one before asked what follows
    bool isOpen = false;
    Section open = Section::Document; // while isOpen
};

/// The bytes of a command, put together from what it holds.
QByteArray encode(const Command &command);

} // namespace korvel::preview

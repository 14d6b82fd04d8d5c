// The commands of the printer's language as tables, matched and written.
#include "companions/paper/decoder.h"

#include "printer/company/commands.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace korvel::preview {

namespace {

using Kind = Command::Kind;

/// A piece of a command: fixed bytes, and the text that stands behind them, if any.
struct Part
{
    QLatin1StringView bytes;
    QByteArray Command::*text = nullptr;
};

/// A command with its pieces.
struct Form
{
    Kind kind;
    const Part *parts;
    std::size_t count;
};

constexpr Part lineParts[] = {
    {commands::lineOpener, &Command::content},
    {commands::lineCloser},
};
constexpr Part saleRowParts[] = {
    {commands::saleDepartment, &Command::department},
    {commands::saleAmount, &Command::amount},
    {commands::saleQuantity, &Command::quantity},
    {commands::saleDescription, &Command::description},
    {commands::saleEnd},
};
constexpr Part deductionParts[] = {
    {commands::announceDeduction},
    {commands::deductionAmount, &Command::amount},
    {commands::deductionEnd},
};

constexpr Form forms[] = {
    {Kind::Line, lineParts, std::size(lineParts)},
    {Kind::SaleRow, saleRowParts, std::size(saleRowParts)},
    {Kind::Deduction, deductionParts, std::size(deductionParts)},
};

/// A command without a text. The bytes that open a document close it too: sortSection() tells them
/// apart.
struct Mark
{
    Kind kind;
    Section section;
    QLatin1StringView bytes;
};

constexpr Mark marks[] = {
    {Kind::SectionOpened, Section::Fiscal, commands::openFiscal},
    {Kind::SectionClosed, Section::Fiscal, commands::closeFiscal},
    {Kind::SectionOpened, Section::Receipt, commands::openReceipt},
    {Kind::SectionOpened, Section::Document, commands::openDocument},
    {Kind::SectionClosed, Section::Receipt, commands::closeDocument},
    {Kind::SectionClosed, Section::Document, commands::closeDocument},
};

QByteArrayView bytesOf(QLatin1StringView text) { return {text.data(), text.size()}; }

QByteArrayView slice(QByteArrayView stream, qsizetype offset, qsizetype length)
{
    const qsizetype start = std::min(offset, stream.size());
    return stream.sliced(start, std::min(length, stream.size() - start));
}

/// How many bytes of `expected` stand at an offset of the stream.
qsizetype commonBytes(QByteArrayView stream, qsizetype offset, QByteArrayView expected)
{
    const qsizetype most = std::min(stream.size() - offset, expected.size());
    qsizetype common = 0;
    while (common < most && stream[offset + common] == expected[common])
        ++common;
    return common;
}

/// A try to read a command: the mark or the form that fits, or the form that fits best.
struct Match
{
    const Mark *mark = nullptr;
    const Form *form = nullptr;
    std::array<QByteArrayView, std::size(saleRowParts)> texts; // behind each piece of the form
    qsizetype end = 0;                                         // behind the last byte that fits
    bool whole = false;
    bool begun = false; // the first piece at least is there
};

/// Where a text that may hold anything ends, or what is wrong with it. It reaches to the bytes that
/// close it, unless a command begins on a new line before.
struct TextEnd
{
    qsizetype end = 0;
    bool closed = false;
};

TextEnd endOfText(QByteArrayView stream, qsizetype start, QByteArrayView closer)
{
    const qsizetype nextCommand = stream.indexOf("\n=", start);
    const QByteArrayView text =
        slice(stream, start, nextCommand < 0 ? stream.size() : nextCommand + 1 - start);
    if (const qsizetype end = text.indexOf(closer); end >= 0)
        return {start + end, true};

    const QByteArrayView almost = closer.chopped(1); // without its line feed
    if (const qsizetype end = text.indexOf(almost); end >= 0)
        return {start + end + almost.size(), false};
    const auto *const bad = std::find_if(text.begin(), text.end(),
                                         [](char byte) { return byte == ')' || byte == '\n'; });
    return {start + (bad - text.begin()), false};
}

/// Where a field of a row ends: before the mark of the next one, or where that should have stood.
qsizetype endOfField(QByteArrayView stream, qsizetype start, QByteArrayView closer)
{
    const qsizetype feed = stream.indexOf('\n', start);
    const QByteArrayView row = slice(stream, start, feed < 0 ? stream.size() : feed + 1 - start);
    if (const qsizetype end = row.indexOf(closer); end >= 0)
        return start + end;
    const auto *const bad = std::find_if(row.begin(), row.end(), [&](char byte) {
        return byte == closer.front() || byte == '/' || byte == '\n';
    });
    return start + (bad - row.begin());
}

Match match(const Form &form, QByteArrayView stream, qsizetype offset)
{
    Match result;
    result.form = &form;
    result.end = offset;
    for (std::size_t i = 0; i < form.count; ++i) {
        const Part &part = form.parts[i];
        const QByteArrayView bytes = bytesOf(part.bytes);
        const qsizetype fitting = commonBytes(stream, result.end, bytes);
        result.end += fitting;
        if (fitting < bytes.size())
            return result;
        result.begun = true;
        if (!part.text)
            continue;

        const qsizetype start = result.end;
        const QByteArrayView closer = bytesOf(form.parts[i + 1].bytes);
        if (part.text == &Command::content || part.text == &Command::description) {
            const TextEnd text = endOfText(stream, start, closer);
            result.end = text.end;
            if (!text.closed)
                return result;
        } else {
            result.end = endOfField(stream, start, closer);
        }
        result.texts.at(i) = stream.sliced(start, result.end - start);
    }
    result.whole = true;
    return result;
}

/// What stands at an offset: the mark or the command that fits, or how far the best one does.
Match bestMatch(QByteArrayView stream, qsizetype offset)
{
    Match best;
    best.end = offset;
    if (stream[offset] != commandStart)
        return best;
    for (const Mark &mark : marks) {
        const QByteArrayView bytes = bytesOf(mark.bytes);
        const qsizetype end = offset + commonBytes(stream, offset, bytes);
        if (end < offset + bytes.size()) {
            best.end = std::max(best.end, end);
            continue;
        }
        best.mark = &mark;
        best.end = end;
        best.whole = true;
        return best;
    }
    for (const Form &form : forms) {
        const Match result = match(form, stream, offset);
        if (result.whole)
            return result;
        if (result.end > best.end || (result.begun && result.end == best.end))
            best = result;
    }
    return best;
}

/// The command that fits, with copies of its texts.
Command commandOf(const Match &match)
{
    Command command;
    if (match.mark) {
        command.kind = match.mark->kind;
        command.section = match.mark->section;
        return command;
    }
    command.kind = match.form->kind;
    for (std::size_t i = 0; i < match.form->count; ++i) {
        if (match.form->parts[i].text)
            command.*match.form->parts[i].text = match.texts.at(i).toByteArray();
    }
    return command;
}

/// Behind the line feed that ends the line of an offset.
qsizetype endOfLine(const QByteArray &stream, qsizetype offset)
{
    const qsizetype feed = stream.indexOf('\n', offset);
    return feed < 0 ? stream.size() : feed + 1;
}

/// Takes the blanks that centre a line off its content.
void splitCentring(Command &command)
{
    const auto *const text = std::find_if(command.content.cbegin(), command.content.cend(),
                                          [](char byte) { return byte != ' '; });
    const auto blanks = text - command.content.cbegin();
    if (blanks == 0)
        return;
    const qsizetype width = command.codePage->decode(command.content).size();

    // With s blanks before n characters: s = (W - n) / 2 rounded down, and s + n is the width.
    for (const qsizetype spaces : {commands::lineWidth - width, commands::lineWidth - 1 - width}) {
        if (spaces < 1 || spaces > blanks)
            continue;
        command.spaces = static_cast<int>(spaces);
        command.content.remove(0, spaces);
        return;
    }
}

} // namespace

Decoder::Decoder(QByteArray bytes, const recode::CodePage &page)
    : stream(std::move(bytes))
    , codePage(page)
{
}

std::optional<Command> Decoder::next()
{
    std::optional<Command> command = ahead ? std::exchange(ahead, std::nullopt) : read();
    if (command)
        sortSection(*command);
    return command;
}

/// Reads the command at the offset; the bytes that open a document or close it open it.
std::optional<Command> Decoder::read()
{
    if (offset == stream.size())
        return {};

    const Match found = bestMatch(stream, offset);
    Command command = found.whole ? commandOf(found) : Command();
    command.codePage = &codePage;
    qsizetype end = found.end;
    if (found.whole) {
        if (command.kind == Kind::Line)
            splitCentring(command);
    } else {
        end = endOfLine(stream, offset);
        // Of a pair of commands with a bad second one, that one is bad too.
        if (found.end > end && !bestMatch(stream, end).whole)
            end = endOfLine(stream, found.end);
        command.content = stream.sliced(offset, end - offset);
        command.badByte = found.end;
        if (found.begun)
            command.begunAs = found.form->kind;
    }
    command.offset = offset;
    command.line = line;
    line += std::count(stream.cbegin() + offset, stream.cbegin() + end, '\n');
    offset = end;
    return command;
}

/// Tells a closing command from an opening one where their bytes are the same.
void Decoder::sortSection(Command &command)
{
    if (command.kind == Kind::SectionClosed) { // a fiscal one: its bytes are its own
        isOpen = isOpen && open != Section::Fiscal;
    } else if (command.kind == Kind::SectionOpened) {
        const bool closes =
            command.section == Section::Document && (isOpen ? open != Section::Fiscal : endsHere());
        if (closes) {
            command.kind = Kind::SectionClosed;
            command.section = isOpen ? open : Section::Document;
        } else {
            open = command.section;
        }
        isOpen = !closes;
    }
}

/// Whether nothing follows, or what opens a receipt or a fiscal section.
bool Decoder::endsHere()
{
    ahead = read();
    return !ahead || (ahead->kind == Kind::SectionOpened && ahead->section != Section::Document);
}

QByteArray encode(const Command &command)
{
    if (command.kind == Kind::Unknown)
        return command.content;

    for (const Mark &mark : marks) {
        if (mark.kind == command.kind && mark.section == command.section)
            return bytesOf(mark.bytes).toByteArray();
    }
    QByteArray bytes;
    for (const Form &form : forms) {
        if (form.kind != command.kind)
            continue;
        for (std::size_t i = 0; i < form.count; ++i) {
            const Part &part = form.parts[i];
            bytes += bytesOf(part.bytes);
            if (part.text == &Command::content)
                bytes += QByteArray(command.spaces, ' ');
            if (part.text)
                bytes += command.*part.text;
        }
    }
    return bytes;
}

} // namespace korvel::preview

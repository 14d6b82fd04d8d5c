// Sections found line by line: what opens or closes one is always a line of its own, or two.
#include "companions/simulator/documents.h"

#include "printer/company/commands.h"

#include <algorithm>
#include <utility>

namespace korvel::simulator {

namespace {

using preview::Section;

constexpr QByteArrayView bytesOf(QLatin1StringView text) { return {text.data(), text.size()}; }

constexpr QByteArrayView openFiscal = bytesOf(commands::openFiscal);
constexpr QByteArrayView closeFiscal = bytesOf(commands::closeFiscal);
constexpr QByteArrayView openReceipt = bytesOf(commands::openReceipt);
constexpr QByteArrayView openDocument = bytesOf(commands::openDocument); // and closes one, too

// Longer lines open and close nothing.
constexpr qsizetype longestCommand = openFiscal.size();

/// How a document ends that another one, or nothing, follows. Alone, the command that opens one is
/// the end of a job that opened none.
Document::End endOf(const Document &document, Document::End otherwise)
{
    const bool isLone = document.section == Section::Document && document.bytes == openDocument;
    return isLone ? Document::End::Closed : otherwise;
}

} // namespace

Splitter::Splitter(TakeDocument takeDocument)
    : take(std::move(takeDocument))
{
}

void Splitter::add(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qsizetype feed = bytes.indexOf('\n');
        const QByteArrayView part = feed < 0 ? bytes : bytes.first(feed + 1);
        append(part);
        if (feed >= 0)
            endLine();
        bytes = bytes.sliced(part.size());
    }
}

void Splitter::end()
{
    if (document.size > 0)
        finish(endOf(document, Document::End::CutOff));
}

void Splitter::append(QByteArrayView bytes)
{
    document.size += bytes.size();
    document.bytes += bytes.first(std::min(bytes.size(), largestDocument - document.bytes.size()));
    line += bytes.first(std::min(bytes.size(), longestCommand + 1 - line.size()));
}

/// Does what the line says that has just ended.
void Splitter::endLine()
{
    const QByteArray command = std::exchange(line, {});
    const QByteArray before = std::exchange(lineBefore, command);
    if (QByteArray(before + command) == openFiscal) {
        open(Section::Fiscal, openFiscal);
    } else if (command == openReceipt) {
        open(Section::Receipt, openReceipt);
    } else if (command == closeFiscal) {
        if (document.section == Section::Fiscal)
            finish(Document::End::Closed);
    } else if (command == openDocument) {
        if (document.section && document.section != Section::Fiscal)
            finish(Document::End::Closed);
        else
            open(Section::Document, openDocument);
    }
}

/// A section is opened by the last bytes that arrived; what stands before them has ended.
void Splitter::open(Section section, QByteArrayView command)
{
    const qint64 before = document.size - command.size();
    if (before > 0) {
        document.size = before;
        document.bytes.truncate(before);
        finish(endOf(document, Document::End::Interrupted));
    }
    document.section = section;
    document.bytes = command.toByteArray();
    document.size = command.size();
}

void Splitter::finish(Document::End how)
{
    document.end = how;
    take(std::exchange(document, {}));
}

} // namespace korvel::simulator

// Streams of any bytes, taken apart, put together, inspected, listed and printed.
#include "companions/paper/text.h"
#include "companions/preview/findings.h"
#include "companions/preview/listing.h"
#include "fuzz/expect.h"
#include "support/box.h"
#include "support/commands.h"

#include <QJsonDocument>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <tuple>

using namespace korvel::preview;

namespace {

using Kind = Command::Kind;

/// UTF-16 units of a text, a byte order mark and replacement characters included.
qsizetype widthOf(const QByteArray &text) { return QString::fromUtf8('|' + text).size() - 1; }

/// Whether a text is one line that no terminal obeys.
bool isLine(const QString &text)
{
    return std::none_of(text.cbegin(), text.cend(), [](QChar character) {
        return character.category() == QChar::Other_Control
               || character.category() == QChar::Separator_Line
               || character.category() == QChar::Separator_Paragraph;
    });
}

bool isDigits(const QByteArray &text)
{
    return !text.isEmpty()
           && std::all_of(text.cbegin(), text.cend(), [](char c) { return c >= '0' && c <= '9'; });
}

auto fieldsOf(const Command &command)
{
    return std::tie(command.spaces, command.content, command.department, command.amount,
                    command.quantity, command.description);
}

/// Every byte belongs to one command, in order, and can be told from its fields.
void expectCover(const QByteArray &stream, const QList<Command> &commands)
{
    qsizetype end = 0;
    qsizetype line = 1;
    for (const Command &command : commands) {
        const QByteArray bytes = encode(command);
        expect(command.offset == end, "commands follow each other");
        expect(command.line == line, "commands know their line");
        expect(!bytes.isEmpty() && stream.mid(end, bytes.size()) == bytes,
               "a command written back is as it was");
        end += bytes.size();
        line += bytes.count('\n');
    }
    expect(end == stream.size(), "commands cover the stream");
}

/// A command alone is what it is in the stream, but that a closing one may be an opening one.
void expectKinds(const QList<Command> &commands)
{
    for (const Command &command : commands) {
        const QList<Command> alone = decode(encode(command));
        expect(alone.size() == 1 && fieldsOf(alone.first()) == fieldsOf(command),
               "a command alone has its fields");
        if (command.kind == Kind::SectionOpened || command.kind == Kind::SectionClosed)
            expect(alone.first().kind == Kind::SectionOpened
                       || alone.first().kind == Kind::SectionClosed,
                   "a section's command alone is one");
        else
            expect(alone.first().kind == command.kind, "a command alone is of its kind");
        if (command.kind == Kind::Line && command.spaces > 0) {
            const qsizetype width = widthOf(command.content);
            expect(width < 32 && command.spaces == (32 - width) / 2,
                   "as many blanks centre a line as the printer's width asks for");
        }
        if (command.kind == Kind::Unknown)
            expect(command.content.endsWith('\n') || &command == &commands.last(),
                   "what is unknown ends with a line");
        else
            expect(!command.begunAs, "only what is unknown has begun as something");
    }
}

void expectFindings(const QByteArray &stream, const QList<Command> &commands)
{
    const QList<Finding> found = findings(stream, 32);
    const QList<PaperRow> paper = paperOf(stream, 32);
    expect(found.size() <= mostFindings + 1, "findings have a limit");
    qsizetype before = 0;
    qsizetype line = 1;
    for (const Finding &finding : found) {
        expect(finding.offset >= before && finding.offset <= stream.size(),
               "findings are sorted and about the stream");
        line += std::count(stream.cbegin() + before, stream.cbegin() + finding.offset, '\n');
        before = finding.offset;
        expect(finding.line == line, "a finding knows its line");
        expect(finding.row >= 0 && finding.row <= paper.size()
                   && (finding.row == 0
                       || (paper[finding.row - 1].kind != PaperRow::Kind::Cut
                           && paper[finding.row - 1].kind != PaperRow::Kind::Computed)),
               "a finding knows its row of the paper, which is a command's");
        expect(!finding.text.isEmpty() && isLine(finding.text), "a finding is one line");
    }

    const auto isFound = [&](qsizetype offset) {
        const auto at = std::lower_bound(
            found.cbegin(), found.cend(), offset,
            [](const Finding &finding, qsizetype value) { return finding.offset < value; });
        return found.size() > mostFindings || (at != found.cend() && at->offset == offset);
    };
    bool sound = !stream.isEmpty(); // what no finding is needed for
    bool fiscal = false;
    for (const Command &command : commands) {
        switch (command.kind) {
        case Kind::Line:
            sound = sound && command.content.isValidUtf8() && !command.content.contains(')')
                    && command.spaces + widthOf(command.content) <= 32;
            break;
        case Kind::SectionOpened:
            sound = sound && !fiscal;
            fiscal = command.section == Section::Fiscal;
            break;
        case Kind::SectionClosed:
            sound = sound && fiscal == (command.section == Section::Fiscal);
            fiscal = false;
            break;
        case Kind::SaleRow:
        case Kind::Deduction:
            sound = sound && fiscal && isDigits(command.amount)
                    && widthOf(command.description) <= 32
                    && (command.department + command.quantity + command.description).isValidUtf8()
                    && !(command.department + command.quantity).contains('/');
            break;
        case Kind::Unknown:
            expect(command.badByte >= command.offset && command.badByte <= stream.size(),
                   "a bad byte is in the stream");
            expect(isFound(command.badByte), "what is unknown is found");
            sound = false;
            break;
        }
    }
    expect((sound && !fiscal) || !found.isEmpty(), "a stream without findings is sound");

    const bool counted = std::none_of(paper.cbegin(), paper.cend(), [](const PaperRow &row) {
        return row.kind == PaperRow::Kind::Computed && row.text.startsWith("Rows not counted ");
    });
    expect(counted || !found.isEmpty(), "what is not counted is found");
}

void expectListings(const QList<Command> &commands)
{
    for (const Command &command : commands) {
        expect(isLine(listed(command)), "a listed command is one line");
        const QByteArray json = jsonOf(command) + '}';
        QJsonParseError error;
        const QJsonObject object = QJsonDocument::fromJson(json, &error).object();
        expect(!json.contains('\n') && error.error == QJsonParseError::NoError,
               "a command is JSON in one line");
        const QByteArray bytes = encode(command);
        expect(object.contains("bytes") || bytes.isValidUtf8(), "JSON holds what is not text");
        expect(!object.contains("bytes")
                   || object.value("bytes").toString() == QString::fromLatin1(bytes.toHex()),
               "JSON holds a command's exact bytes");
        const auto holds = [&](const char *key, const QByteArray &text) {
            return !object.contains(QLatin1StringView(key))
                   || object.value(QLatin1StringView(key)).toString()
                          == CodePage::utf8().decode(text);
        };
        expect(holds("text", command.content) && holds("department", command.department)
                   && holds("amount", command.amount) && holds("quantity", command.quantity)
                   && holds("description", command.description),
               "JSON holds the texts of a command");
    }
}

void expectPaper(const QByteArray &stream, const QList<Command> &commands, int columns)
{
    const QList<PaperRow> rows = paperOf(stream, columns);

    qsizetype next = 0; // row that a line or what is unknown must not be before
    const auto expectRow = [&](PaperRow::Kind kind, qsizetype width) {
        while (next < rows.size() && rows[next].kind != kind)
            ++next;
        expect(next < rows.size() && rows[next].text.size() == width,
               "a line is on the paper in its width");
        ++next;
    };
    for (const Command &command : commands) {
        if (command.kind == Kind::Line)
            expectRow(PaperRow::Kind::Printed, command.spaces + widthOf(command.content));
        else if (command.kind == Kind::Unknown)
            expectRow(PaperRow::Kind::Unknown, escaped(command.content).size());
    }

    const QString box = boxed(rows, columns, false);
    expect(isLine(QString(box).remove(u'\n')), "a terminal obeys nothing in a box");
    const QStringList lines = box.split(u'\n');
    expect(lines.size() == rows.size() + 3 && lines.last().isEmpty(), "a row is a line of a box");
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const QString &text = rows[i].text;
        const QString &line = lines[i + 1];
        expect(isLine(text), "no control character is on the paper");
        if (rows[i].kind == PaperRow::Kind::Cut)
            expect(text.isEmpty() && line.size() == columns + 2, "a cut is as wide as the paper");
        else if (text.size() <= columns)
            expect(line.sliced(1).startsWith(text) && line.front() == line.back(),
                   "a row has an edge on both sides");
        else
            expect(line.contains(u'»') && line.endsWith(text.sliced(columns)),
                   "a wide row goes on behind the edge");
    }

    const QString coloured = boxed(rows, columns, true);
    expect(coloured.count(u'\n') == rows.size() + 2
               && coloured.count(QStringLiteral("\033[0m")) * 2 == coloured.count(u'\033'),
           "a colour that begins also ends");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray stream(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<Command> commands = decode(stream);
    expectCover(stream, commands);
    expectKinds(commands);
    expectFindings(stream, commands);
    expectListings(commands);
    expectPaper(stream, commands, 32);
    expectPaper(stream, commands, 1);
    return 0;
}

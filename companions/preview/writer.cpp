// Boxes, lists and JSON, file after file.
#include "companions/preview/writer.h"

#include "companions/paper/ledger.h"
#include "companions/preview/listing.h"
#include "companions/preview/terminal.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

Writer::Writer(Format outputFormat, const Reading &howToRead, bool isNamed, bool isColoured)
    : format(outputFormat)
    , reading(howToRead)
    , named(isNamed)
    , coloured(isColoured)
{
}

void Writer::write(const Shown &shown)
{
    if (named && format != Format::Json)
        out << (first ? QString() : u"\n"_s) + nameOf(shown) + u'\n';
    first = false;
    switch (format) {
    case Format::Paper:
        writePaper(shown);
        break;
    case Format::List:
        writeList(shown);
        break;
    case Format::Json:
        writeJson(shown);
        break;
    }
    out.flush(); // before what is said of the next one
}

void Writer::writeList(const Shown &shown)
{
    const QByteArray lineEnd("\n");
    Decoder decoder(shown.input.stream, *reading.page);
    while (const auto command = decoder.next())
        out << listed(*command) << lineEnd;
}

void Writer::writePaper(const Shown &shown)
{
    const Box box(reading.columns, coloured);
    out << box.top();
    printRows(shown, reading, [&](const PaperRow &row) { out << box.line(row); });
    out << box.bottom();
}

void Writer::writeObject(QJsonObject object, const Shown &shown)
{
    if (named)
        object.insert(u"file"_s, shown.input.path);
    out << shared::jsonLine(object);
}

/// Writes each command, behind it what is wrong with it, and the sum of each fiscal section.
void Writer::writeJson(const Shown &shown)
{
    for (const Input::CheckError &error : shown.input.errors) {
        const QString line = shared::jsonLine(toJson(error.file, error.finding));
        if (error.file == shown.input.path || !errors.contains(line))
            out << line;
        errors.insert(line);
    }
    if (shown.input.said)
        writeObject({{u"said"_s, *shown.input.said}}, shown);
    const QByteArray end =
        named ? ",\"file\":" + shared::jsonText(shown.input.path) + "}\n" : QByteArray("}\n");
    auto next = shown.found.begin();
    const auto writeFindings = [&](qsizetype before) {
        for (; next != shown.found.end() && next->offset < before; ++next)
            writeObject(toJson(*next), shown);
    };
    const auto writeSum = [&](const std::optional<Sum> &sum) {
        if (sum)
            writeObject(toJson(*sum), shown);
    };
    Ledger ledger;
    Decoder decoder(shown.input.stream, *reading.page);
    while (const auto command = decoder.next()) {
        writeFindings(command->offset);
        out << jsonOf(*command) << end;
        writeSum(ledger.take(*command));
    }
    writeFindings(shown.input.stream.size() + 1);
    writeSum(ledger.end());
}

} // namespace korvel::preview

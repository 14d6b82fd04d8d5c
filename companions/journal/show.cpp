// korvel-journal show: a document, what became of it, and its paper.
#include "companions/journal/documents.h"
#include "companions/journal/subcommands.h"
#include "companions/journal/words.h"
#include "companions/preview/terminal.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "printer/company/commands.h"

#include <unistd.h>

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

using delivery::Contents;
using delivery::Document;

struct PartInfo
{
    Part part;
    QByteArray Contents::*bytes;
    QLatin1StringView missing; // why a document that was not forgotten has none
};

constexpr PartInfo parts[] = {
    {Part::Job, &Contents::job, "it was given as a stream, without a job"_L1},
    {Part::Settings, &Contents::settings, "it was given as a stream, without settings"_L1},
    {Part::Stream, &Contents::rendered, "it was refused before there was a stream"_L1},
    {Part::Sent, &Contents::sent, "it was refused before there was a stream"_L1},
};

/// Bytes that a terminal shows and does not obey.
QString harmless(const QByteArray &bytes)
{
    QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (QString &line : lines)
        line = inOneLine(line);
    return lines.join(u'\n');
}

int showPart(const Document &document, const Contents &contents, Part part)
{
    const PartInfo &info = parts[int(part)];
    const QByteArray &bytes = contents.*info.bytes;
    if (bytes.isEmpty()) {
        trouble(document.id + u": "_s
                + (document.forgotten ? u"its contents were forgotten"_s : QString(info.missing)));
        return Findings;
    }
    return isatty(STDOUT_FILENO) == 1 ? writeOut(harmless(bytes), Clean) : writeBytes(bytes, Clean);
}

void showPaper(Output &out, const QByteArray &stream)
{
    const preview::Box box(commands::lineWidth, false);
    out << box.top();
    for (const preview::PaperRow &row : preview::paperOf(stream, commands::lineWidth))
        out << box.line(row);
    out << box.bottom();
}

} // namespace

int show(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    const auto document = journal.find(call.id);
    if (!document)
        return noDocument(call.id);
    const Contents contents = journal.contentsOf(*document);
    if (call.part)
        return showPart(*document, contents, *call.part);

    Output out;
    const auto field = [&out](const QString &name, const QString &value) {
        if (!value.isEmpty())
            out << name.leftJustified(10) + inOneLine(value) + u'\n';
    };
    field(u"document"_s, document->id);
    field(u"state"_s, infoOf(document->state).name
                          + (isAbandoned(*document) ? u": "_s + abandonedText() : QString()));
    field(u"device"_s, document->device);
    field(u"origin"_s, document->origin);
    field(u"charset"_s, document->charset);
    field(u"catalogue"_s, contents.catalogue);
    out << u"\n"_s;
    for (const delivery::Event &event : journal.events(call.id)) {
        QString line = placeTime(event.time) + u"  "_s + event.name;
        if (!event.detail.isEmpty())
            line += u": "_s + event.detail;
        out << inOneLine(line) + u'\n';
    }
    out << u"\n"_s;
    if (!contents.rendered.isEmpty())
        showPaper(out, contents.rendered);
    else
        out << (document->forgotten ? u"Its contents were forgotten.\n"_s
                                    : u"It has no paper.\n"_s);
    return out.end(Clean);
}

} // namespace korvel::journal

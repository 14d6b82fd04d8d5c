// The words and the keys of each event.
#include "companions/simulator/report.h"

#include "companions/preview/listing.h"
#include "companions/preview/terminal.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"
#include "printer/company/commands.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace korvel::simulator {

namespace {

using End = Document::End;

constexpr auto notice =
    "this is no fiscal device: what it takes is neither printed nor registered"_L1;

struct EndNames
{
    End end;
    QLatin1StringView words;
    QLatin1StringView key; // in JSON
};

constexpr EndNames ends[] = {
    {End::Closed, {}, "closed"_L1},
    {End::Interrupted, "another section was opened before it was closed"_L1, "interrupted"_L1},
    {End::CutOff, "cut off: its end did not come"_L1, "cut-off"_L1},
};

struct ClosingNames
{
    Closing by;
    QLatin1StringView words;
    QLatin1StringView key; // in JSON
};

constexpr ClosingNames closings[] = {
    {Closing::Sender, "closed by the sender"_L1, "sender"_L1},
    {Closing::SenderReset, "reset by the sender"_L1, "sender-reset"_L1},
    {Closing::FaultReset, "reset by the fault"_L1, "fault-reset"_L1},
    {Closing::LeftOpen, "left open by the fault"_L1, "fault"_L1},
    {Closing::Simulator, "closed"_L1, "simulator"_L1},
};

const EndNames &namesOf(End end)
{
    const EndNames *row = ends;
    while (row->end != end)
        ++row;
    return *row;
}

const ClosingNames &namesOf(Closing by)
{
    const ClosingNames *row = closings;
    while (row->by != by)
        ++row;
    return *row;
}

/// "fiscal section"; a section's first word is its key.
QString nameOf(const Document &document)
{
    return document.section ? preview::sectionName(*document.section) : u"outside any section"_s;
}

/// Why a document is not whole, in words; empty for one that is.
QString remarkOn(const Document &document)
{
    if (document.size > document.bytes.size())
        return u"larger than "_s + QString::number(largestDocument)
               + u" bytes: the rest is left out"_s;
    return document.section ? QString(namesOf(document.end).words) : QString();
}

QString sumOf(const Day &day)
{
    QString text =
        day.registered.toString() + u" in "_s + shared::counted(day.fiscal, u"fiscal receipt"_s);
    if (day.uncounted > 0)
        text += u", "_s + shared::counted(day.uncounted, u"row"_s) + u" not counted"_s;
    return text;
}

QJsonObject sumsOf(const Day &day)
{
    return {
        {u"documents"_s, day.documents},      {u"others"_s, day.others},
        {u"fiscalReceipts"_s, day.fiscal},    {u"registered"_s, day.registered.toString()},
        {u"rowsNotCounted"_s, day.uncounted},
    };
}

} // namespace

QString paperOf(const Print &print, bool coloured)
{
    const preview::Box box(commands::lineWidth, coloured);
    QString text = box.top();
    for (const preview::PaperRow &row : print.paper)
        text += box.line(row);
    text += box.bottom();
    if (print.rowsLeftOut > 0)
        text += shared::counted(print.rowsLeftOut, u"more row"_s) + u" left out\n"_s;
    if (const QString remark = remarkOn(print.document); !remark.isEmpty())
        text += remark + u'\n';
    return text;
}

Report::Report(bool asJson, bool isColoured)
    : json(asJson)
    , coloured(isColoured)
{
}

void Report::listening(const QString &place, const QJsonObject &details)
{
    QJsonObject object = details;
    object.insert(u"event"_s, u"listening"_s);
    QString lines = u"listening on "_s + place + u'\n';
    if (!introduced) {
        object.insert(u"notice"_s, QString(notice));
        lines.prepend(shared::programName() + u": "_s + QString(notice) + u'\n');
    }
    introduced = true;
    write(lines, object);
}

void Report::connected(qint64 connection, const QString &from)
{
    QJsonObject object{{u"event"_s, u"connected"_s}, {u"connection"_s, connection}};
    QString line = u"connection "_s + QString::number(connection);
    if (!from.isEmpty()) {
        object.insert(u"from"_s, from);
        line += u" from "_s + from;
    }
    write(line + u'\n', object);
}

void Report::printed(const Print &print)
{
    const Document &document = print.document;
    QJsonArray rows;
    for (const preview::PaperRow &row : print.paper)
        rows.append(row.text);
    write(u"document "_s + QString::number(print.number) + u": "_s + nameOf(document) + u", "_s
              + shared::counted(document.size, u"byte"_s) + u'\n' + paperOf(print, coloured),
          {
              {u"event"_s, u"document"_s},
              {u"document"_s, print.number},
              {u"connection"_s, print.connection},
              {u"section"_s, document.section ? nameOf(document).section(u' ', 0, 0) : QString()},
              {u"end"_s, QString(namesOf(document.end).key)},
              {u"whole"_s, document.isWhole()},
              {u"bytes"_s, document.size},
              {u"paper"_s, rows},
              {u"rowsLeftOut"_s, print.rowsLeftOut},
          });
}

void Report::found(qint64 document, const preview::Finding &finding)
{
    QJsonObject object = preview::toJson(finding);
    object.insert(u"event"_s, u"finding"_s);
    object.insert(u"document"_s, document);
    write(preview::lineOf(u"document "_s + QString::number(document), false, finding), object);
}

void Report::registered(const Day &day)
{
    QJsonObject object = sumsOf(day);
    object.insert(u"event"_s, u"amounts"_s);
    write(u"registered today: "_s + sumOf(day) + u'\n', object);
}

void Report::faulted(qint64 connection, const Fault &fault, qint64 bytes)
{
    QJsonObject object{{u"event"_s, u"fault"_s}, {u"fault"_s, fault.name}};
    QString line = u"fault "_s + fault.name;
    if (connection > 0) {
        object.insert(u"connection"_s, connection);
        object.insert(u"bytes"_s, bytes);
        line = u"connection "_s + QString::number(connection) + u": "_s + line + u", "_s
               + shared::counted(bytes, u"byte"_s) + u" read"_s;
    }
    write(line + u'\n', object);
}

void Report::closed(qint64 connection, Closing by, qint64 bytes, qint64 documents)
{
    write(u"connection "_s + QString::number(connection) + u' ' + QString(namesOf(by).words)
              + u": "_s + shared::counted(bytes, u"byte"_s) + u", "_s
              + shared::counted(documents, u"whole document"_s) + u'\n',
          {
              {u"event"_s, u"closed"_s},
              {u"connection"_s, connection},
              {u"by"_s, QString(namesOf(by).key)},
              {u"bytes"_s, bytes},
              {u"documents"_s, documents},
          });
}

void Report::ended(const Day &day)
{
    QJsonObject object = sumsOf(day);
    object.insert(u"event"_s, u"ended"_s);
    QString line = u"end of the day: "_s + shared::counted(day.documents, u"document"_s);
    if (day.others > 0)
        line += u", "_s + QString::number(day.others) + u" not whole"_s;
    write(line + u"; registered "_s + sumOf(day) + u'\n', object);
}

void Report::write(const QString &lines, const QJsonObject &object)
{
    if (!sound)
        return;
    sound =
        shared::writeOut(json ? shared::jsonLine(object) : lines, shared::Clean) == shared::Clean;
}

} // namespace korvel::simulator

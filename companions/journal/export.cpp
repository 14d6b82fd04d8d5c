// korvel-journal export: all events, a JSON object each.
#include "companions/journal/subcommands.h"
#include "companions/journal/words.h"
#include "companions/shared/output.h"
#include "companions/shared/progress.h"

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

QString jsonOf(const delivery::Event &event)
{
    return jsonLine({
        {u"number"_s, event.number},
        {u"time"_s, exactTime(event.time)},
        {u"document"_s, event.document},
        {u"event"_s, event.name},
        {u"device"_s, event.device},
        {u"detail"_s, event.detail},
        {u"job"_s, QString::fromLatin1(event.jobHash)},
        {u"settings"_s, QString::fromLatin1(event.settingsHash)},
        {u"catalogue"_s, QString::fromLatin1(event.catalogueHash)},
        {u"stream"_s, QString::fromLatin1(event.renderedHash)},
        {u"sent"_s, QString::fromLatin1(event.sentHash)},
        {u"charset"_s, event.charset},
        {u"origin"_s, event.origin},
        {u"lease"_s, QString::fromLatin1(event.lease)},
        {u"previous"_s, QString::fromLatin1(event.previous)},
        {u"hash"_s, QString::fromLatin1(event.hash)},
    });
}

} // namespace

int exportEvents(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    Output out;
    ProgressLine progress(u"exporting"_s);
    journal.eachEvent(
        call.since, [&](const delivery::Event &event) { out << jsonOf(event); },
        [&](qint64 done, qint64 all) { progress.show(done, all); });
    progress.clear();
    return out.end(Clean);
}

} // namespace korvel::journal

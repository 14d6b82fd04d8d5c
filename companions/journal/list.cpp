// korvel-journal list: the documents, a line each.
#include "companions/journal/documents.h"
#include "companions/journal/subcommands.h"
#include "companions/journal/words.h"
#include "companions/shared/oneline.h"
#include "companions/shared/output.h"

using namespace korvel::shared;
using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

namespace {

using delivery::Document;
using delivery::State;

constexpr int stateWidth = 11; // of "not-printed"

QString lineOf(const Document &document, bool abandoned)
{
    QString line = placeTime(document.changed) + u"  "_s
                   + QString(infoOf(document.state).name).leftJustified(stateWidth) + u"  "_s
                   + inOneLine(document.id) + u"  "_s + inOneLine(document.device);
    const QString detail = abandoned ? abandonedText() : document.detail;
    if (!detail.isEmpty())
        line += u"  "_s + inOneLine(detail);
    return line + u'\n';
}

QString jsonOf(const Document &document, bool abandoned)
{
    return jsonLine({
        {u"id"_s, document.id},
        {u"state"_s, QString(infoOf(document.state).name)},
        {u"abandoned"_s, abandoned},
        {u"accepted"_s, exactTime(document.accepted)},
        {u"changed"_s, exactTime(document.changed)},
        {u"device"_s, document.device},
        {u"origin"_s, document.origin},
        {u"charset"_s, document.charset},
        {u"detail"_s, document.detail},
        {u"forgotten"_s, document.forgotten},
    });
}

} // namespace

int list(const Call &call)
{
    delivery::Journal journal(call.journal, delivery::Journal::Access::Read);
    Output out;
    const auto write = [&](const Document &document, bool abandoned) {
        out << (call.json ? jsonOf(document, abandoned) : lineOf(document, abandoned));
    };
    journal.eachDocument(call.state, call.since,
                         [&](const Document &document) { write(document, isAbandoned(document)); });
    // Whoever asks for what is in doubt means these, too.
    if (call.state == State::InDoubt)
        journal.eachDocument(State::Sending, call.since, [&](const Document &document) {
            if (isAbandoned(document))
                write(document, true);
        });
    return out.end(Clean);
}

} // namespace korvel::journal

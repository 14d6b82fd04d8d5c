// Whether the journal is what was written: the chain, what is made of it, and the contents.
#include "config/path.h"
#include "delivery/rows.h"

#include <QHash>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

namespace {

using sqlite::Statement;
using sqlite::Transaction;

constexpr int lookedAtAtOnce = 256; // events looked at before a delivery may write

// A value of another type than its column's compares unlike, whatever its bytes are.
constexpr char textsOnly[] =
    "typeof(time) || typeof(document) || typeof(event) || typeof(device) || typeof(detail)"
    " || typeof(job) || typeof(settings) || typeof(catalogue) || typeof(rendered) || typeof(sent)"
    " || typeof(charset) || typeof(origin) || typeof(lease) || typeof(previous) || typeof(hash)";

// Without these nothing can be looked at.
constexpr const char *needed[] = {"contents",        "events",      "documents",      "uses",
                                  "events_document", "events_time", "documents_state"};

class Verifier
{
public:
    Verifier(sqlite::Database &of, const std::optional<Head> &toFind,
             const std::function<void(const QString &)> &toTell, const Progress &toReport)
        : database(of)
        , kept(toFind)
        , tell(toTell)
        , progress(toReport)
        , events(of, QByteArray("SELECT *, ") + textsOnly
                         + " FROM events WHERE number > ? ORDER BY number LIMIT ?")
        , byDocument(of, "SELECT 1 FROM events INDEXED BY events_document"
                         " WHERE document = ? AND number = ?")
        , byTime(of, "SELECT 1 FROM events INDEXED BY events_time WHERE time = ? AND number = ?")
        , isStored(of, "SELECT 1 FROM contents WHERE hash = ?")
        , isUsed(of, "SELECT 1 FROM uses WHERE hash = ? AND event = ?")
    {
    }

    Head run()
    {
        keptIsThere = kept && kept->number == 0; // of a journal without events
        lookAtContents();
        lookInFront();
        bool more = true;
        while (more) {
            {
                const Transaction transaction(database, Transaction::Kind::Read);
                more = lookAtEvents();
                if (!more)
                    lookAtDocuments();
            }
            tellFlaws();
        }
        if (kept && !keptIsThere)
            flaw(u"event "_s + QString::number(kept->number) + u" with the hash "_s
                 + QString::fromUtf8(kept->hash)
                 + (kept->number > last.number
                        ? u": is missing, as all behind event "_s + QString::number(last.number)
                        : u": is another one now"_s));
        tellFlaws();
        return last;
    }

private:
    void flaw(const QString &text) { flaws.append(text); }

    /// Outside transactions, as whoever is told may take its time.
    void tellFlaws()
    {
        for (const QString &text : std::exchange(flaws, {}))
            tell(text);
        if (progress)
            progress(done, all);
    }

    void lookAtContents();
    void lookInFront();
    bool lookAtEvents();
    void lookAt(const Record &record);
    void lookAtUses(const Record &record);
    void lookAtDocuments();

    sqlite::Database &database;
    const std::optional<Head> &kept;
    const std::function<void(const QString &)> &tell;
    const Progress &progress;
    Statement events, byDocument, byTime, isStored, isUsed;

    QStringList flaws; // not told yet
    qint64 done = 0;
    qint64 all = 0;
    Head last;
    bool keptIsThere = false;
    QHash<QByteArray, Row> rows;
    QHash<QByteArray, qint64> uses; // by documents: that there are and should be
    qint64 allUses = 0;
};

QString eventName(qint64 number) { return u"event "_s + QString::number(number); }

/// Each text by itself, so that a delivery waits for one at most.
void Verifier::lookAtContents()
{
    all = numberOf(database,
                   "SELECT (SELECT count(*) FROM events) + (SELECT count(*) FROM contents)");
    QByteArray hash;
    bool more = true;
    while (more) {
        {
            Statement next(database, "SELECT hash, bytes, typeof(hash) || typeof(bytes)"
                                     " FROM contents WHERE hash > ? ORDER BY hash LIMIT 1");
            more = next.with(hash).step();
            if (more) {
                hash = next.bytes(0);
                if (hashOf(next.bytes(1)) != hash || next.bytes(2) != "textblob")
                    flaw(u"contents "_s + QString::fromUtf8(hash) + u": were changed"_s);
                ++done;
            }
        }
        if (!flaws.isEmpty() || done % lookedAtAtOnce == 0)
            tellFlaws();
    }
}

/// Events begin at 1.
void Verifier::lookInFront()
{
    Statement event(database, "SELECT number FROM events WHERE number < 1 ORDER BY number");
    event.with();
    while (event.step())
        flaw(eventName(event.number(0)) + u": was put in"_s);
}

/// The next events; false when there are no more.
bool Verifier::lookAtEvents()
{
    int seen = 0;
    events.with(last.number, qint64(lookedAtAtOnce));
    while (events.step()) {
        const Record record = recordAt(events);
        if (events.bytes(16) != QByteArray("text").repeated(15))
            flaw(eventName(record.number) + u": was changed"_s);
        lookAt(record);
        ++done;
        ++seen;
    }
    return seen == lookedAtAtOnce;
}

void Verifier::lookAt(const Record &record)
{
    if (record.number != last.number + 1)
        flaw(eventName(last.number + 1)
             + (record.number == last.number + 2
                    ? u": is missing"_s
                    : u" to "_s + QString::number(record.number - 1) + u": are missing"_s));
    else if (record.previous != last.hash)
        flaw(eventName(record.number) + u": does not follow the one before it"_s);
    if (record.hash != hashOf(record))
        flaw(eventName(record.number) + u": was changed"_s);
    last = {record.number, record.hash};
    if (kept && kept->number == last.number && kept->hash == last.hash)
        keptIsThere = true;

    const auto known = rows.constFind(record.document);
    const auto row =
        after(known == rows.constEnd() ? std::nullopt : std::optional<Row>(*known), record);
    if (row)
        rows.insert(record.document, *row);
    else
        flaw(eventName(record.number) + u": may not follow what its document was"_s);
    if (!byDocument.has(record.document, record.number) || !byTime.has(record.time, record.number))
        flaw(eventName(record.number) + u": is missing from an index"_s);
    // Those that were looked at before somebody forgot them.
    if (record.name == forgottenName)
        allUses -= uses.take(record.document);
    lookAtUses(record);
}

void Verifier::lookAtUses(const Record &record)
{
    const auto row = rowOf(database, record.document);
    if (row && row->forgotten > record.number)
        return;
    for (const QByteArray &hash : contentsIn(record)) {
        if (!isStored.has(hash))
            flaw(eventName(record.number) + u": its contents "_s + QString::fromUtf8(hash)
                 + u" are missing"_s);
        if (isUsed.has(hash, record.number)) {
            ++uses[record.document];
            ++allUses;
        } else {
            flaw(eventName(record.number) + u": its contents "_s + QString::fromUtf8(hash)
                 + u" are not held for it"_s);
        }
    }
}

/// What is made of the events, in the state of the file in which the last of them was read.
void Verifier::lookAtDocuments()
{
    Statement stored(database, "SELECT *, typeof(id) || typeof(state) FROM documents");
    qint64 known = 0;
    stored.with();
    while (stored.step()) {
        const Row row = rowAt(stored);
        const auto expected = rows.constFind(row.id);
        if (expected == rows.constEnd()) {
            flaw(u"document "_s + korvel::path::fromBytes(row.id) + u": has no events"_s);
            continue;
        }
        ++known;
        if (row != *expected || stored.bytes(6) != "texttext"
            || !Statement(database, "SELECT 1 FROM documents INDEXED BY documents_state"
                                    " WHERE state = ? AND id = ?")
                    .has(row.state, row.id))
            flaw(u"document "_s + korvel::path::fromBytes(row.id)
                 + u": is not what its events say"_s);
    }
    if (known != rows.size())
        flaw(u"documents: "_s + QString::number(rows.size() - known) + u" are missing"_s);
    if (numberOf(database, "SELECT count(*) FROM uses") != allUses)
        flaw(u"contents: some are held for events that do not have them"_s);
    Statement unused(database, "SELECT hash FROM contents"
                               " WHERE hash NOT IN (SELECT hash FROM uses)");
    unused.with();
    while (unused.step())
        flaw(u"contents "_s + QString::fromUtf8(unused.bytes(0)) + u": belong to no event"_s);
}

} // namespace

Head Journal::verify(const std::optional<Head> &kept,
                     const std::function<void(const QString &)> &found, const Progress &progress)
{
    bool isWhole = true;
    Statement known(*database, "SELECT 1 FROM sqlite_schema WHERE name = ?");
    for (const QByteArray name : needed) {
        if (known.has(name))
            continue;
        isWhole = false;
        found(u"the table or index "_s + QString::fromUtf8(name)
              + u": is missing; nothing else was looked at"_s);
    }
    return isWhole ? Verifier(*database, kept, found, progress).run() : Head();
}

} // namespace korvel::delivery

// Documents found, taken in, and brought from state to state.
#include "delivery/journal.h"

#include "companions/shared/oneline.h"
#include "config/path.h"
#include "delivery/chain.h"
#include "delivery/schema.h"

using namespace Qt::Literals::StringLiterals;
using korvel::path::fromBytes;
using korvel::path::toBytes;

namespace korvel::delivery {

namespace {

using sqlite::Statement;
using sqlite::Transaction;

/// A row of documents, see schema.cpp.
struct Row
{
    QByteArray id;
    State state = State::Accepted;
    qint64 first = 0, taken = 0, last = 0, forgotten = 0;
};

State stateIn(sqlite::Database &database, const QByteArray &name)
{
    const auto state = stateNamed(QString::fromUtf8(name));
    if (!state)
        database.fail(u"it has a document in no state; run \"korvel-journal verify\""_s);
    return *state;
}

std::optional<Row> rowOf(sqlite::Database &database, const QByteArray &id)
{
    Statement row(database, "SELECT state, first, taken, last, forgotten FROM documents"
                            " WHERE id = ?");
    if (!row.with(id).step())
        return {};
    return Row{
        id,           stateIn(database, row.bytes(0)), row.number(1), row.number(2), row.number(3),
        row.number(4)};
}

void save(sqlite::Database &database, const Row &row)
{
    Statement(database, "INSERT OR REPLACE INTO documents VALUES (?, ?, ?, ?, ?, ?)")
        .with(row.id, QByteArray(infoOf(row.state).name.latin1()), row.first, row.taken, row.last,
              row.forgotten)
        .run();
}

/// Stores a text under its hash, unless it is there; the hash, or nothing for no text.
QByteArray store(sqlite::Database &database, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    const QByteArray hash = hashOf(bytes);
    Statement(database, "INSERT OR IGNORE INTO contents VALUES (?, ?)")
        .with(hash, sqlite::Blob{bytes})
        .run();
    return hash;
}

/// An event without its number and hashes.
Record eventFor(const QByteArray &document, State state, const QString &device,
                const QString &detail)
{
    Record record;
    record.document = document;
    record.name = infoOf(state).name.latin1();
    record.device = toBytes(device);
    record.detail = korvel::shared::inOneLine(detail).toUtf8();
    return record;
}

/// Stores contents, and names them in an event.
void addContents(sqlite::Database &database, Record &record, const Contents &contents,
                 const QString &origin)
{
    record.job = store(database, contents.job);
    record.settings = store(database, contents.settings);
    record.catalogue = store(database, toBytes(contents.catalogue));
    record.rendered = store(database, contents.rendered);
    record.sent = store(database, contents.sent);
    record.charset = contents.charset.toUtf8();
    record.origin = toBytes(origin);
}

/// Appends an event that brings contents and a state.
void take(sqlite::Database &database, std::optional<Row> row, const Record &record, State state)
{
    const qint64 number = append(database, record);
    if (!row)
        row = Row{record.document, state, number};
    row->state = state;
    row->taken = number;
    row->last = number;
    row->forgotten = 0;
    save(database, *row);
}

} // namespace

Journal::Journal(const QString &path, Access access)
    : database(openJournal(path, access))
{
}
Journal::~Journal() = default;
Journal::Journal(Journal &&) noexcept = default;

std::optional<Document> Journal::find(const QString &id)
{
    Statement row(*database,
                  "SELECT documents.state, first.time, last.time, last.device, taken.origin,"
                  " last.detail, taken.job, taken.settings, taken.catalogue, taken.rendered,"
                  " taken.sent, taken.charset, documents.forgotten"
                  " FROM documents"
                  " JOIN events AS first ON first.number = documents.first"
                  " JOIN events AS taken ON taken.number = documents.taken"
                  " JOIN events AS last ON last.number = documents.last"
                  " WHERE documents.id = ?");
    if (!row.with(toBytes(id)).step())
        return {};
    return Document{id,
                    stateIn(*database, row.bytes(0)),
                    timeOf(row.bytes(1)),
                    timeOf(row.bytes(2)),
                    fromBytes(row.bytes(3)),
                    fromBytes(row.bytes(4)),
                    fromBytes(row.bytes(5)),
                    row.bytes(6),
                    row.bytes(7),
                    row.bytes(8),
                    row.bytes(9),
                    row.bytes(10),
                    QString::fromUtf8(row.bytes(11)),
                    row.number(12) != 0};
}

Contents Journal::contentsOf(const Document &document)
{
    Statement stored(*database, "SELECT bytes FROM contents WHERE hash = ?");
    const auto load = [&](const QByteArray &hash) {
        return !hash.isEmpty() && stored.with(hash).step() ? stored.bytes(0) : QByteArray();
    };
    return {load(document.jobHash),
            load(document.settingsHash),
            fromBytes(load(document.catalogueHash)),
            load(document.renderedHash),
            load(document.sentHash),
            document.charset};
}

bool Journal::accept(const QString &id, const Contents &contents, const QString &device,
                     const QString &origin)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    const auto row = rowOf(*database, toBytes(id));
    if (row && !mayFollow(row->state, State::Accepted))
        return false;
    Record record = eventFor(toBytes(id), State::Accepted, device, {});
    addContents(*database, record, contents, origin);
    take(*database, row, record, State::Accepted);
    transaction.commit();
    return true;
}

State Journal::change(const QString &id, State to, const QString &device, const QString &detail)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    auto row = rowOf(*database, toBytes(id));
    if (!row)
        database->fail(u"there is no document "_s + id);
    const State before = row->state;
    if (to == State::Accepted || !mayFollow(before, to))
        return before;
    row->last = append(*database, eventFor(row->id, to, device, detail));
    row->state = to;
    save(*database, *row);
    transaction.commit();
    return before;
}

void Journal::refuse(const QString &id, const Contents &contents, const QString &device,
                     const QString &origin, const QString &detail)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    const auto row = rowOf(*database, toBytes(id));
    if (row && row->state != State::Refused)
        return;
    Record record = eventFor(toBytes(id), State::Refused, device, detail);
    addContents(*database, record, contents, origin);
    take(*database, row, record, State::Refused);
    transaction.commit();
}

QStringList Journal::documents(State state, const QString &device)
{
    Statement row(*database, "SELECT documents.id FROM documents"
                             " JOIN events ON events.number = documents.last"
                             " WHERE documents.state = ? AND events.device = ?"
                             " ORDER BY documents.last");
    row.with(QByteArray(infoOf(state).name.latin1()), toBytes(device));
    QStringList ids;
    while (row.step())
        ids.append(fromBytes(row.bytes(0)));
    return ids;
}

} // namespace korvel::delivery

// The journal read: documents, their events and contents.
#include "config/path.h"
#include "delivery/rows.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using korvel::path::fromBytes;
using korvel::path::toBytes;

namespace korvel::delivery {

namespace {

using sqlite::Statement;
using sqlite::Transaction;

// Read at once. Between two batches the file is free: a reader that waits for its terminal must
// not keep a delivery waiting.
constexpr qsizetype readAtOnce = 256;

/// Works through a list in batches, each in one transaction; what was read is taken outside.
template<typename Key, typename Load, typename Take>
void inBatches(sqlite::Database &database, const QList<Key> &keys, const Load &load,
               const Take &take, const Progress &progress)
{
    for (qsizetype start = 0; start < keys.size(); start += readAtOnce) {
        QList<typename std::invoke_result_t<Load, Key>::value_type> loaded;
        {
            const Transaction transaction(database, Transaction::Kind::Read);
            for (const Key &key : keys.mid(start, readAtOnce)) {
                if (auto one = load(key))
                    loaded.append(std::move(*one));
            }
        }
        for (const auto &one : loaded)
            take(one);
        if (progress)
            progress(std::min(start + readAtOnce, keys.size()), keys.size());
    }
}

std::optional<Record> recordOf(sqlite::Database &database, qint64 number)
{
    Statement event(database, "SELECT * FROM events WHERE number = ?");
    if (!event.with(number).step())
        return {};
    return recordAt(event);
}

/// A time as it is compared with those of events; all of them are later than an invalid one.
QByteArray boundOf(const QDateTime &time) { return time.isValid() ? textOf(time) : QByteArray(); }

} // namespace

std::optional<Document> Journal::find(const QString &id)
{
    Statement row(*database, "SELECT documents.*, first.time, last.time, last.device, last.detail,"
                             " last.lease"
                             " FROM documents"
                             " JOIN events AS first ON first.number = documents.first"
                             " JOIN events AS last ON last.number = documents.last"
                             " WHERE documents.id = ?");
    std::optional<Transaction> transaction;
    if (!database->inTransaction())
        transaction.emplace(*database, Transaction::Kind::Read);
    if (!row.with(toBytes(id)).step())
        return {};
    const Row numbers = rowAt(row);
    const auto contents = recordOf(*database, numbers.taken);
    if (!contents)
        return {};
    return Document{id,
                    stateOf(*database, numbers),
                    timeOf(row.bytes(6)),
                    timeOf(row.bytes(7)),
                    fromBytes(row.bytes(8)),
                    fromBytes(contents->origin),
                    row.bytes(10),
                    fromBytes(row.bytes(9)),
                    contents->job,
                    contents->settings,
                    contents->catalogue,
                    contents->rendered,
                    contents->sent,
                    QString::fromUtf8(contents->charset),
                    numbers.forgotten > numbers.taken};
}

Contents Journal::contentsOf(const Document &document)
{
    if (document.forgotten)
        return {{}, {}, {}, {}, {}, document.charset};
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

void Journal::eachDocument(std::optional<State> state, const QDateTime &since,
                           const std::function<void(const Document &)> &take,
                           const Progress &progress)
{
    // Each of these is answered from an index, so that few are found among many.
    const char *const choice =
        since.isValid() ? "SELECT id FROM documents WHERE (?1 = '' OR state = ?1) AND id IN"
                          " (SELECT document FROM events WHERE time >= ?2) ORDER BY first"
        : state         ? "SELECT id FROM documents WHERE state = ?1 AND ?2 = '' ORDER BY first"
                        : "SELECT id FROM documents WHERE ?1 = '' AND ?2 = '' ORDER BY first";
    QStringList ids;
    {
        Statement row(*database, choice);
        row.with(state ? QByteArray(infoOf(*state).name.latin1()) : QByteArray(), boundOf(since));
        while (row.step())
            ids.append(fromBytes(row.bytes(0)));
    }
    inBatches(
        *database, ids, [this](const QString &id) { return find(id); }, take, progress);
}

void Journal::eachEvent(const QDateTime &since, const std::function<void(const Event &)> &take,
                        const Progress &progress)
{
    QList<qint64> numbers;
    {
        // The plus keeps from the index of numbers, in which all would be looked through.
        Statement event(*database, "SELECT number FROM events WHERE time >= ? ORDER BY +number");
        event.with(boundOf(since));
        while (event.step())
            numbers.append(event.number(0));
    }
    inBatches(
        *database, numbers, [this](qint64 number) { return recordOf(*database, number); },
        [&take](const Record &record) { take(eventOf(record)); }, progress);
}

QList<Event> Journal::events(const QString &id)
{
    Statement event(*database, "SELECT * FROM events WHERE document = ? ORDER BY number");
    event.with(toBytes(id));
    QList<Event> events;
    while (event.step())
        events.append(eventOf(recordAt(event)));
    return events;
}

Head Journal::head() { return lastEvent(*database); }

} // namespace korvel::delivery

// How documents follow from events.
#include "delivery/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

using sqlite::Statement;

Head lastEvent(sqlite::Database &database)
{
    Statement last(database, "SELECT number, hash FROM events ORDER BY number DESC LIMIT 1");
    return last.step() ? Head{last.number(0), last.bytes(1)} : Head{};
}

Row rowAt(const Statement &statement)
{
    return {statement.bytes(0),  statement.bytes(1),  statement.number(2),
            statement.number(3), statement.number(4), statement.number(5)};
}

std::optional<Row> rowOf(sqlite::Database &database, const QByteArray &id)
{
    Statement row(database, "SELECT * FROM documents WHERE id = ?");
    if (!row.with(id).step())
        return {};
    return rowAt(row);
}

State stateOf(sqlite::Database &database, const Row &row)
{
    const auto state = stateNamed(QString::fromUtf8(row.state));
    if (!state)
        database.fail(u"it has a document in no state; run \"korvel-journal verify\""_s);
    return *state;
}

std::optional<Row> after(const std::optional<Row> &row, const Record &record)
{
    if (record.name == forgottenName) {
        if (!row)
            return {};
        Row forgotten = *row;
        forgotten.forgotten = record.number;
        return forgotten;
    }
    const auto state = stateNamed(QString::fromUtf8(record.name));
    if (!state)
        return {};
    if (!row) {
        if (state != State::Accepted && state != State::Refused)
            return {};
        return Row{record.document, record.name, record.number, record.number, record.number, 0};
    }
    const auto before = stateNamed(QString::fromUtf8(row->state));
    const bool again =
        before == State::Refused && (state == State::Accepted || state == State::Refused);
    if (!again && (!before || !mayFollow(*before, *state)))
        return {};
    Row changed = *row;
    changed.state = record.name;
    changed.last = record.number;
    if (again)
        changed.taken = record.number;
    return changed;
}

QList<QByteArray> contentsIn(const Record &record)
{
    QList<QByteArray> hashes;
    for (const QByteArray &hash :
         {record.job, record.settings, record.catalogue, record.rendered, record.sent}) {
        if (!hash.isEmpty() && !hashes.contains(hash))
            hashes.append(hash);
    }
    return hashes;
}

void append(sqlite::Database &database, Record record)
{
    const Head last = lastEvent(database);
    record.number = last.number + 1;
    record.previous = last.hash;
    record.time = textOf(QDateTime::currentDateTimeUtc());
    record.hash = hashOf(record);
    Statement(database,
              "INSERT INTO events VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        .with(record.number, record.time, record.document, record.name, record.device,
              record.detail, record.job, record.settings, record.catalogue, record.rendered,
              record.sent, record.charset, record.origin, record.lease, record.previous,
              record.hash)
        .run();

    const auto row = after(rowOf(database, record.document), record);
    if (!row)
        database.fail(u"an event that may not follow was not written"_s);
    Statement(database, "INSERT OR REPLACE INTO documents VALUES (?, ?, ?, ?, ?, ?)")
        .with(row->id, row->state, row->first, row->taken, row->last, row->forgotten)
        .run();
    Statement use(database, "INSERT INTO uses VALUES (?, ?)");
    for (const QByteArray &hash : contentsIn(record))
        use.with(hash, record.number).run();
}

} // namespace korvel::delivery

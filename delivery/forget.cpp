// Contents that the law no longer asks for: gone, while the chain stays.
#include "config/path.h"
#include "delivery/rows.h"

namespace korvel::delivery {

namespace {

using sqlite::Statement;
using sqlite::Transaction;

constexpr qsizetype forgottenAtOnce = 100; // in a transaction, so that deliveries wait little

/// Whether nothing more is to become of a document. One that was not sent, or not printed, may be
/// sent later, from what is stored.
bool isFinished(const QByteArray &state)
{
    const auto is = stateNamed(QString::fromUtf8(state));
    return is && (setOf(State::Sent, State::Printed, State::Refused) & setOf(*is)) != 0;
}

/// Drops an event's use of contents, and those that have no other.
void dropContents(sqlite::Database &database, const Record &record)
{
    Statement use(database, "DELETE FROM uses WHERE hash = ? AND event = ?");
    Statement unused(database, "DELETE FROM contents WHERE hash = ?1"
                               " AND NOT EXISTS (SELECT * FROM uses WHERE hash = ?1)");
    for (const QByteArray &hash : contentsIn(record)) {
        use.with(hash, record.number).run();
        unused.with(hash).run();
    }
}

/// Forgets what a document was made of, each time that it was taken.
void forgetDocument(sqlite::Database &database, const QByteArray &id)
{
    Statement event(database, "SELECT * FROM events WHERE document = ? ORDER BY number");
    event.with(id);
    while (event.step())
        dropContents(database, recordAt(event));
    Record forgotten;
    forgotten.document = id;
    forgotten.name = forgottenName;
    append(database, forgotten);
}

} // namespace

Journal::Forgotten Journal::forget(const QDateTime &before)
{
    Forgotten result;
    QList<Row> rows;
    {
        Statement row(*database, "SELECT documents.* FROM documents"
                                 " JOIN events ON events.number = documents.last"
                                 " WHERE events.time < ? AND documents.forgotten < documents.taken"
                                 " ORDER BY documents.first");
        row.with(textOf(before));
        while (row.step()) {
            if (const Row found = rowAt(row); isFinished(found.state))
                rows.append(found);
            else
                ++result.kept;
        }
    }
    for (qsizetype start = 0; start < rows.size(); start += forgottenAtOnce) {
        Transaction transaction(*database, Transaction::Kind::Write);
        for (const Row &row : rows.mid(start, forgottenAtOnce)) {
            if (rowOf(*database, row.id) != row) // it was taken in again meanwhile
                continue;
            forgetDocument(*database, row.id);
            ++result.documents;
        }
        transaction.commit();
    }
    return result;
}

} // namespace korvel::delivery

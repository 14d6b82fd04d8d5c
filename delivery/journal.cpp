// Documents taken in, and brought from state to state.
#include "delivery/journal.h"

#include "companions/shared/oneline.h"
#include "config/path.h"
#include "delivery/rows.h"
#include "delivery/schema.h"

using namespace Qt::Literals::StringLiterals;
using korvel::path::fromBytes;
using korvel::path::toBytes;

namespace korvel::delivery {

namespace {

using sqlite::Statement;
using sqlite::Transaction;

/// Stores a text under its hash, unless it is there; the hash, or nothing for no text.
QByteArray store(sqlite::Database &database, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    QByteArray hash = hashOf(bytes);
    Statement(database, "INSERT OR IGNORE INTO contents VALUES (?, ?)")
        .with(hash, sqlite::Blob{bytes})
        .run();
    return hash;
}

/// An event without its number and hashes.
Record eventFor(const QString &document, State state, const QString &device, const QString &detail)
{
    Record record;
    record.document = toBytes(document);
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

} // namespace

Journal::Journal(const QString &path, Access access)
    : database(openJournal(path, access))
{
}
Journal::~Journal() = default;
Journal::Journal(Journal &&) noexcept = default;

bool Journal::accept(const QString &id, const Contents &contents, const QString &device,
                     const QString &origin, const QString &detail)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    Record record = eventFor(id, State::Accepted, device, detail);
    const auto row = rowOf(*database, record.document);
    if (row && !mayFollow(stateOf(*database, *row), State::Accepted))
        return false;
    addContents(*database, record, contents, origin);
    append(*database, record);
    transaction.commit();
    return true;
}

State Journal::change(const QString &id, State to, const QString &device, const QString &detail,
                      const QByteArray &lease)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    Record record = eventFor(id, to, device, detail);
    record.lease = lease;
    const auto row = rowOf(*database, record.document);
    if (!row)
        database->fail(u"there is no document "_s + id);
    const State before = stateOf(*database, *row);
    if (to != State::Accepted && mayFollow(before, to)) {
        append(*database, record);
        transaction.commit();
    }
    return before;
}

void Journal::refuse(const QString &id, const Contents &contents, const QString &device,
                     const QString &origin, const QString &detail)
{
    Transaction transaction(*database, Transaction::Kind::Write);
    Record record = eventFor(id, State::Refused, device, detail);
    const auto row = rowOf(*database, record.document);
    if (row && stateOf(*database, *row) != State::Refused)
        return;
    addContents(*database, record, contents, origin);
    append(*database, record);
    transaction.commit();
}

} // namespace korvel::delivery

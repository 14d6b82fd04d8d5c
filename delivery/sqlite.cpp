// SQLite's C interface, with an owner for each of its objects and words for its errors.
#include "delivery/sqlite.h"

#include "config/path.h"
#include "delivery/journal.h"

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery::sqlite {

namespace {

constexpr int longestWait = 10'000; // milliseconds, for another writer

/// Why an operation failed, and what to do.
QString reasonOf(sqlite3 *database)
{
    const int code = sqlite3_extended_errcode(database);
    if (code == SQLITE_READONLY_ROLLBACK)
        return u"a program was ended while it wrote, and what it left must be undone first: run "
               "this once as someone who may write the file"_s;
    switch (code & 0xFF) {
    case SQLITE_BUSY:
        return u"another program kept it locked for ten seconds; try again"_s;
    case SQLITE_FULL:
        return u"the disk is full, nothing was written; make room"_s;
    case SQLITE_READONLY:
        return u"it may only be read; run this as someone who may write it"_s;
    case SQLITE_NOTADB:
        return u"it is no journal"_s;
    case SQLITE_NOMEM:
        return u"not enough memory; try again"_s;
    case SQLITE_CORRUPT:
        return u"it is damaged; keep the file. A copy from before does not know the ids delivered "
               "since: call none of them again before somebody has looked at the paper"_s;
    default:
        break;
    }
    const int error = sqlite3_system_errno(database);
    const QString reason = error == 0 ? QString() : u": "_s + qt_error_string(error);
    switch (code & 0xFF) {
    case SQLITE_IOERR:
        return u"the disk could not be read or written"_s + reason
               + u"; see whether it is full, or fails"_s;
    case SQLITE_CANTOPEN:
        return u"it cannot be opened"_s + reason
               + u"; see that you may read it, and make files beside it"_s;
    default:
        return QString::fromUtf8(sqlite3_errmsg(database)) + reason
               + u"; run \"korvel-journal verify\""_s;
    }
}

} // namespace

void Database::Close::operator()(sqlite3 *database) const { sqlite3_close_v2(database); }

Database::Database(const QString &path)
    : file(path)
{
    // Neither a URI nor one of the names that stand for something else.
    QByteArray name = korvel::path::toBytes(path);
    if (name.isEmpty())
        name = ":memory:";
    else if (!name.startsWith('/'))
        name.prepend("./");
    sqlite3 *opened = nullptr;
    const int result = sqlite3_open_v2(name.constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    database.reset(opened);
    if (!opened)
        throw std::bad_alloc();
    if (result != SQLITE_OK)
        fail();
    sqlite3_extended_result_codes(opened, 1);
    sqlite3_busy_timeout(opened, longestWait);
}

void Database::run(const QByteArray &sql) const
{
    if (sqlite3_exec(handle(), sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

bool Database::inTransaction() const { return sqlite3_get_autocommit(handle()) == 0; }

void Database::fail() const { fail(reasonOf(handle())); }

void Database::fail(const QString &text) const { throw JournalError(file + u": "_s + text); }

void Statement::Finalize::operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }

Statement::Statement(Database &of, const QByteArray &sql)
    : database(of)
{
    sqlite3_stmt *prepared = nullptr;
    expect(sqlite3_prepare_v2(of.handle(), sql.constData(), -1, &prepared, nullptr));
    statement.reset(prepared);
}

void Statement::begin() { static_cast<void>(sqlite3_reset(statement.get())); }

bool Statement::step()
{
    const int result = sqlite3_step(statement.get());
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        database.fail();
    return result == SQLITE_ROW;
}

void Statement::run()
{
    while (step()) { }
}

qint64 Statement::number(int column) const { return sqlite3_column_int64(statement.get(), column); }

QByteArray Statement::bytes(int column) const
{
    const void *bytes = sqlite3_column_blob(statement.get(), column);
    return {static_cast<const char *>(bytes), sqlite3_column_bytes(statement.get(), column)};
}

void Statement::bind(int place, qint64 value)
{
    expect(sqlite3_bind_int64(statement.get(), place, value));
}

void Statement::bind(int place, const QByteArray &value)
{
    expect(sqlite3_bind_text64(statement.get(), place, value.constData(),
                               static_cast<sqlite3_uint64>(value.size()), SQLITE_TRANSIENT,
                               SQLITE_UTF8));
}

void Statement::bind(int place, const Blob &value)
{
    expect(sqlite3_bind_blob64(statement.get(), place, value.bytes.constData(),
                               static_cast<sqlite3_uint64>(value.bytes.size()), SQLITE_TRANSIENT));
}

void Statement::expect(int result)
{
    if (result != SQLITE_OK)
        database.fail();
}

qint64 numberOf(Database &database, const QByteArray &sql)
{
    Statement query(database, sql);
    return query.step() ? query.number(0) : 0;
}

Transaction::Transaction(Database &of, Kind kind)
    : database(of)
{
    of.run(kind == Kind::Write ? "BEGIN IMMEDIATE" : "BEGIN");
}

Transaction::~Transaction()
{
    // An error may have undone it already, and what cannot be undone now the next one to open does.
    if (database.inTransaction())
        sqlite3_exec(database.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit() { database.run("COMMIT"); }

} // namespace korvel::delivery::sqlite

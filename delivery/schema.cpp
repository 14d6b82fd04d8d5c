// The tables of the journal, step by step from schema to schema, and the file that they are in.
#include "delivery/schema.h"

#include "config/path.h"
#include "delivery/descriptor.h"

#include <iterator>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

namespace {

constexpr qint64 applicationId = 0x4B72764A; // "KrvJ", by which a file is known as a journal

// What brings a file from one schema to the next; the first makes it of an empty one.
//
// documents and uses are made of events, so that a document is found, those in a state are, and
// what nobody uses is, in the logarithm of all. documents has the number of a document's first
// event, of that with its contents, of the last that brought a state, and of the last by which
// contents were forgotten (0: none). uses has which event brought which contents, without those
// that are forgotten.
constexpr const char *steps[] = {
    R"(
    CREATE TABLE contents (
        hash TEXT NOT NULL PRIMARY KEY,
        bytes BLOB NOT NULL
    ) STRICT;
    CREATE TABLE events (
        number INTEGER NOT NULL PRIMARY KEY,
        time TEXT NOT NULL,
        document TEXT NOT NULL,
        event TEXT NOT NULL,
        device TEXT NOT NULL,
        detail TEXT NOT NULL,
        job TEXT NOT NULL,
        settings TEXT NOT NULL,
        catalogue TEXT NOT NULL,
        rendered TEXT NOT NULL,
        sent TEXT NOT NULL,
        charset TEXT NOT NULL,
        origin TEXT NOT NULL,
        lease TEXT NOT NULL,
        previous TEXT NOT NULL,
        hash TEXT NOT NULL
    ) STRICT;
    CREATE INDEX events_document ON events (document);
    CREATE INDEX events_time ON events (time);
    CREATE TABLE documents (
        id TEXT NOT NULL PRIMARY KEY,
        state TEXT NOT NULL,
        first INTEGER NOT NULL,
        taken INTEGER NOT NULL,
        last INTEGER NOT NULL,
        forgotten INTEGER NOT NULL
    ) STRICT, WITHOUT ROWID;
    CREATE INDEX documents_state ON documents (state);
    CREATE TABLE uses (
        hash TEXT NOT NULL,
        event INTEGER NOT NULL,
        PRIMARY KEY (hash, event)
    ) STRICT, WITHOUT ROWID;
    CREATE TRIGGER events_stay BEFORE DELETE ON events
        BEGIN SELECT raise(ABORT, 'events are never removed'); END;
    CREATE TRIGGER events_unchanged BEFORE UPDATE ON events
        BEGIN SELECT raise(ABORT, 'events are never changed'); END;
    CREATE TRIGGER contents_unchanged BEFORE UPDATE ON contents
        BEGIN SELECT raise(ABORT, 'contents are never changed'); END;
    )",
};
constexpr qint64 presentVersion = std::size(steps);

/// The version of the schema in a file; complains of a file that is no journal, or a newer one.
qint64 versionOf(sqlite::Database &database)
{
    std::optional<sqlite::Transaction> transaction; // another process may be making the file
    if (!database.inTransaction())
        transaction.emplace(database, sqlite::Transaction::Kind::Read);
    const qint64 application = numberOf(database, "PRAGMA application_id");
    const qint64 version = numberOf(database, "PRAGMA user_version");
    const bool empty = numberOf(database, "SELECT count(*) FROM sqlite_schema") == 0;
    if (application != applicationId && !(application == 0 && version == 0 && empty))
        database.fail(u"it is no journal"_s);
    if (version > presentVersion)
        database.fail(u"it was written by a newer korvel-print (schema "_s
                      + QString::number(version) + u", this program knows "_s
                      + QString::number(presentVersion) + u"); update this program"_s);
    return version;
}

/// Brings a file to the present schema, in one transaction.
void migrate(sqlite::Database &database)
{
    sqlite::Transaction transaction(database, sqlite::Transaction::Kind::Write);
    const qint64 version = versionOf(database); // another process may have been faster
    for (qint64 step = version; step < presentVersion; ++step)
        database.run(steps[step]);
    database.run("PRAGMA application_id = " + QByteArray::number(applicationId));
    database.run("PRAGMA user_version = " + QByteArray::number(presentVersion));
    transaction.commit();
}

/// Puts the entry of a new file or folder on disk.
void syncFolderOf(const QByteArray &path)
{
    const qsizetype slash = path.lastIndexOf('/');
    const QByteArray folder = slash < 0 ? "." : path.first(slash + 1);
    const Descriptor opened(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen()) // one may be written and not read; the database syncs it too
        ::fsync(opened.number());
}

/// Makes the folders of a path that are not there, for this user alone.
void makeFolders(const QByteArray &path)
{
    for (qsizetype slash = path.indexOf('/', 1); slash > 0; slash = path.indexOf('/', slash + 1)) {
        const QByteArray folder = path.first(slash);
        if (::mkdir(folder.constData(), 0700) == 0)
            syncFolderOf(folder);
    }
}

/// Takes an empty file from all whom its mode does not name, before anything is written: what
/// undoes a write that was cut short gets the same rights.
void makePrivate(const QString &path, mode_t mode)
{
    const QByteArray bytes = korvel::path::toBytes(path);
    struct stat status = {};
    if (::stat(bytes.constData(), &status) != 0)
        throw JournalError(path + u": it leads to a file that is not there; name another"_s);
    if (status.st_size == 0 && (status.st_mode & 07777U) != mode
        && ::chmod(bytes.constData(), mode) != 0)
        throw JournalError(path + u": it is empty, and cannot be made its owner's alone: "_s
                           + qt_error_string() + u"; remove it, or name another"_s);
}

/// Makes an empty file of a mode, unless there is one.
void makeFile(const QString &path, mode_t mode)
{
    const QByteArray bytes = korvel::path::toBytes(path);
    if (path == Journal::userPath())
        makeFolders(bytes);
    const Descriptor made(::open(bytes.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!made.isOpen()) {
        if (errno == EEXIST)
            return makePrivate(path, mode);
        throw JournalError(path + u": it cannot be made: "_s + qt_error_string()
                           + u"; see that its folder is there and may be written"_s);
    }
    ::fchmod(made.number(), mode);
    syncFolderOf(bytes);
}

} // namespace

QString Journal::userPath()
{
    const QByteArray data = qgetenv("XDG_DATA_HOME");
    if (!data.startsWith('/') && !qgetenv("HOME").startsWith('/'))
        return {};
    const QString folder = data.startsWith('/') ? korvel::path::fromBytes(data)
                                                : korvel::path::home() + u"/.local/share"_s;
    return folder + u"/korvel-print/journal.db"_s;
}

std::unique_ptr<sqlite::Database> openJournal(const QString &path, Journal::Access access)
{
    const bool write = access != Journal::Access::Read;
    if (path.isEmpty())
        throw JournalError(
            u"there is no place for the user's journal, as HOME names no folder from "
            "the root on: set it, or name a file with --journal"_s);
    if (korvel::path::kindOf(path) == korvel::path::Kind::Other)
        throw JournalError(path + u": it is no regular file; name another"_s);
    if (write)
        makeFile(path, access == Journal::Access::WriteForGroup ? 0640 : 0600);
    else if (korvel::path::kindOf(path) == korvel::path::Kind::Nothing)
        throw JournalError(path + u": there is no journal yet"_s);
    auto database = std::make_unique<sqlite::Database>(path);
    // With TRUNCATE and FULL the end of a transaction is synced too: were the rollback file only
    // unlinked, a power cut could bring it back, and undo what was said to be on disk.
    database->run("PRAGMA journal_mode = TRUNCATE; PRAGMA synchronous = FULL;"
                  "PRAGMA secure_delete = ON");
    const qint64 version = versionOf(*database);
    if (!write && version == 0)
        database = std::make_unique<sqlite::Database>(QString());
    if (version < presentVersion && (write || version == 0))
        migrate(*database);
    if (!write)
        database->run("PRAGMA query_only = ON");
    return database;
}

} // namespace korvel::delivery

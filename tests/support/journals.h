// Journals for tests: in a folder of their own, filled, and changed behind their back.
#pragma once

#include "delivery/journal.h"
#include "delivery/sqlite.h"
#include "support/files.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

#include <sys/stat.h>

namespace korvel::delivery {

/// Where a test's journal is.
class JournalFolder
{
public:
    [[nodiscard]] QString path() const { return folder.filePath("journal.db"); }
    [[nodiscard]] QString filePath(const QString &name) const { return folder.path() + '/' + name; }
    [[nodiscard]] Journal writer() const { return {path(), Journal::Access::Write}; }
    [[nodiscard]] Journal reader() const { return {path(), Journal::Access::Read}; }

    /// Everybody may read all, and nobody may write.
    void makeReadOnly() const { setModes(0555, 0444); }
    void makeWritable() const { setModes(0700, 0600); }

private:
    void setModes(mode_t ofFolder, mode_t ofFiles) const
    {
        ::chmod(qPrintable(folder.path()), ofFolder);
        for (const char *name : {"journal.db", "journal.db-journal"})
            ::chmod(qPrintable(filePath(name)), ofFiles);
    }

    // In memory, where the machine has such a folder: thousands of syncs are waited for.
    QTemporaryDir folder{(QFile::exists("/dev/shm") ? "/dev/shm" : QDir::tempPath())
                         + "/korvel-journal-XXXXXX"};
};

const QString till = "tcp://192.0.2.7:9100";

inline Contents contentsFor(const QByteArray &name)
{
    return {"<job>" + name + "</job>",
            "korvel: {};",
            "/labels/korvel_it.qm",
            "=o\n=\"/(" + name + " \xC3\xA8 )\n=o\n",
            "=o\n=\"/(" + name + " \x8A )\n=o\n",
            "cp858"};
}

/// Brings an accepted document through states.
inline void bring(Journal &journal, const QString &id, const QList<State> &states)
{
    for (const State state : states)
        journal.change(id, state, till, {});
}

/// A document taken in and brought through states.
inline void deliver(Journal &journal, const QString &id, const QList<State> &states)
{
    if (!journal.accept(id, contentsFor(id.toUtf8()), till, "lucia"))
        qFatal("%s is there already", qPrintable(id));
    bring(journal, id, states);
}

/// All that verify() finds.
inline QStringList flawsOf(Journal &journal, const std::optional<Head> &kept = {})
{
    QStringList flaws;
    journal.verify(kept, [&](const QString &flaw) { flaws.append(flaw); });
    return flaws;
}

/// What an operation says when it fails; empty when it does not.
template<typename Operation>
QString errorOf(const Operation &operation)
{
    try {
        operation();
    } catch (const JournalError &error) {
        return error.text();
    }
    return {};
}

/// Statements run on the file of a journal that nothing keeps from it.
inline void tamper(const QString &path, const QByteArray &statements)
{
    sqlite::Database database(path);
    database.run("PRAGMA synchronous = OFF; DROP TRIGGER IF EXISTS events_stay;"
                 "DROP TRIGGER IF EXISTS events_unchanged;"
                 "DROP TRIGGER IF EXISTS contents_unchanged");
    database.run(statements);
}

/// A number that a query gives.
inline qint64 numberIn(const QString &path, const QByteArray &query)
{
    sqlite::Database database(path);
    sqlite::Statement statement(database, query);
    return statement.with().step() ? statement.number(0) : -1;
}

} // namespace korvel::delivery

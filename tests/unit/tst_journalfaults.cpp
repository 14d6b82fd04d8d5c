// A journal whose disk is full or broken, and whose writer is killed: before every call that
// writes.
#include "support/bytes.h"
#include "support/journals.h"
#include "support/ordinaryuser.h"
#include "support/test.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tst_journalfaults {

using namespace korvel::delivery;

/// What becomes of the calls of this program that write.
struct Calls
{
    long failing = 0;       // which of them fails, counted from 1; 0: none
    int error = 0;          // by which; 0: the process is killed before it
    bool once = false;      // else all later ones fail too
    bool log = false;       // they are noted
    long made = 0;          // so far
    QStringList noted = {}; // "write journal.db", "sync journal.db-journal", ...
};
Calls calls;

/// Whether a call is to fail; errno is set then.
bool fails(const char *call, int descriptor)
{
    if (calls.log) {
        char path[4096] = {};
        const QByteArray link = "/proc/self/fd/" + QByteArray::number(descriptor);
        static_cast<void>(!::readlink(link.constData(), path, sizeof path - 1));
        calls.noted.append(QString(call) + ' ' + QString(path).section('/', -1));
    }
    if (calls.failing == 0)
        return false;
    const long number = ++calls.made;
    if (calls.once ? number != calls.failing : number < calls.failing)
        return false;
    if (calls.error == 0)
        ::raise(SIGKILL);
    errno = calls.error;
    return true;
}

} // namespace tst_journalfaults

// In the place of the system's, for the database's library too.
extern "C" {

ssize_t pwrite64(int descriptor, const void *bytes, size_t count, off64_t offset)
{
    return tst_journalfaults::fails("write", descriptor)
               ? -1
               : ::syscall(SYS_pwrite64, descriptor, bytes, count, offset);
}

int fdatasync(int descriptor)
{
    return tst_journalfaults::fails("sync", descriptor)
               ? -1
               : static_cast<int>(::syscall(SYS_fdatasync, descriptor));
}

int ftruncate64(int descriptor, off64_t length) noexcept
{
    return tst_journalfaults::fails("truncate", descriptor)
               ? -1
               : static_cast<int>(::syscall(SYS_ftruncate, descriptor, length));
}
}

namespace tst_journalfaults {

/// A journal with a document that is being sent.
struct Begun : JournalFolder
{
    Begun()
    {
        Journal journal = writer();
        deliver(journal, "sending", {State::Sending});
    }
};

/// Takes a document in, then says that the other was sent.
void work(const QString &path)
{
    Journal journal(path, Journal::Access::Write);
    journal.accept("new", contentsFor("new"), till, {});
    journal.change("sending", State::Sent, till, {});
}

/// How far work() came; -1 when the journal is neither here nor there.
int stepsDone(Journal &journal)
{
    const bool accepted = journal.find("new").has_value();
    const auto other = journal.find("sending");
    if (!other || (other->state != State::Sending && other->state != State::Sent))
        return -1;
    const bool sent = other->state == State::Sent;
    if (sent && !accepted)
        return -1;
    return int(accepted) + int(sent);
}

class TestJournalFaults : public QObject
{
    Q_OBJECT

private slots:
    void failingCalls_data()
    {
        QTest::addColumn<int>("error");
        QTest::addColumn<bool>("once");
        QTest::addColumn<QString>("text");
        const QString full = "the disk is full, nothing was written; make room";
        const QString broken = "the disk could not be read or written";
        QTest::newRow("the disk is full") << ENOSPC << false << full;
        QTest::newRow("the disk was full for a moment") << ENOSPC << true << full;
        QTest::newRow("the disk is broken") << EIO << false << broken;
        QTest::newRow("the disk failed once") << EIO << true << broken;
    }

    void failingCalls()
    {
        QFETCH(int, error);
        QFETCH(bool, once);
        QFETCH(QString, text);
        int failures = 0;
        for (long call = 1;; ++call) {
            const Begun folder;
            calls = {call, error, once};
            const QString said = errorOf([&] { work(folder.path()); });
            const bool reached = calls.made >= call;
            calls = {};
            if (!reached) {
                QCOMPARE(said, "");
                break;
            }
            Journal journal = folder.writer();
            QCOMPARE(flawsOf(journal), {});
            const int done = stepsDone(journal);
            if (said.isEmpty()) {
                QCOMPARE(done, 2); // it could do without that call
                continue;
            }
            ++failures;
            QVERIFY2(done >= 0 && done <= 2, qPrintable(QString::number(call)));
            QVERIFY2(said.startsWith(folder.path() + ": "), qPrintable(said));
            // A sync says no more than that it failed, whatever the reason was.
            QVERIFY2(said.contains(text) || said.contains("the disk could not be read or written"),
                     qPrintable(said));
            // The rest is made up for.
            if (done == 0)
                QVERIFY(journal.accept("new", contentsFor("new"), till, {}));
            if (done < 2)
                journal.change("sending", State::Sent, till, {});
            QCOMPARE(stepsDone(journal), 2);
            QCOMPARE(flawsOf(journal), {});
        }
        QVERIFY2(failures > 20, qPrintable(QString::number(failures)));
    }

    void killedBeforeEveryCall_data()
    {
        QTest::addColumn<bool>("begun");
        QTest::newRow("while a document is on its way") << true;
        QTest::newRow("while the journal is made") << false;
    }

    void killedBeforeEveryCall()
    {
        QFETCH(bool, begun);
        int kills = 0;
        int lastDone = 0;
        bool unreadable = false;
        for (long call = 1;; ++call) {
            const std::unique_ptr<JournalFolder> folder =
                begun ? std::make_unique<Begun>() : std::make_unique<JournalFolder>();
            const pid_t child = ::fork();
            if (child == 0) {
                calls = {call, 0};
                ::_exit(errorOf([&] {
                            if (begun)
                                work(folder->path());
                            else
                                deliver(*std::make_unique<Journal>(folder->writer()), "new", {});
                        }).isEmpty()
                            ? 0
                            : 1);
            }
            int status = 0;
            ::waitpid(child, &status, 0);
            if (WIFEXITED(status)) {
                QCOMPARE(WEXITSTATUS(status), 0);
                break;
            }
            ++kills;

            // Who may not write either reads what is there, or says why not.
            folder->makeReadOnly();
            QString said;
            {
                const OrdinaryUser user;
                said = errorOf([&] {
                    Journal reader = folder->reader();
                    if (!flawsOf(reader).isEmpty())
                        throw JournalError("flaws");
                });
            }
            folder->makeWritable();
            if (!said.isEmpty()) {
                unreadable = true;
                QCOMPARE(said,
                         folder->path()
                             + ": a program was ended while it wrote, and what it left must be"
                               " undone first: run this once as someone who may write the file");
            }
            // A reader who may rolls it back.
            Journal reader = folder->reader();
            QCOMPARE(flawsOf(reader), {});
            if (begun) {
                const int done = stepsDone(reader);
                QVERIFY2(done >= lastDone, qPrintable(QString::number(call)));
                lastDone = done;
            }
            Journal journal = folder->writer();
            if (!journal.find("new"))
                QVERIFY(journal.accept("new", contentsFor("new"), till, {}));
            QCOMPARE(flawsOf(journal), {});
        }
        QVERIFY2(kills > 20, qPrintable(QString::number(kills)));
        QVERIFY(unreadable);
        QCOMPARE(lastDone, begun ? 2 : 0);
    }

    /// No file is left with something that was written and not synced, and the file itself is not
    /// touched before what undoes it is on disk.
    void allIsOnDiskBeforeTheNextStep()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        const auto notesOf = [](const auto &operation) {
            calls = {};
            calls.log = true;
            operation();
            const QStringList notes = calls.noted;
            calls = {};
            return notes;
        };
        for (const QStringList &notes : {
                 notesOf([&] { journal.accept("a", contentsFor("a"), till, {}); }),
                 notesOf([&] { journal.change("a", State::Sending, till, {}); }),
                 notesOf([&] { journal.change("a", State::Sent, till, {}); }),
             }) {
            QVERIFY(notes.contains("write journal.db"));
            QVERIFY(notes.contains("truncate journal.db-journal"));
            QSet<QString> unsynced;
            for (const QString &note : notes) {
                const QString file = note.section(' ', 1);
                if (note.startsWith("sync "))
                    unsynced.remove(file);
                else
                    unsynced.insert(file);
                if (note == "write journal.db")
                    QVERIFY2(!unsynced.contains("journal.db-journal"),
                             qPrintable(notes.join('\n')));
                if (note == "truncate journal.db-journal")
                    QVERIFY2(!unsynced.contains("journal.db"), qPrintable(notes.join('\n')));
            }
            QVERIFY2(unsynced.isEmpty(), qPrintable(notes.join('\n')));
        }
    }
};

KORVEL_TEST(TestJournalFaults)

} // namespace tst_journalfaults

#include "tst_journalfaults.moc"

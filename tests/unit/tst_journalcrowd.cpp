// Many processes at one journal.
#include "support/journals.h"
#include "support/test.h"

#include <sys/wait.h>
#include <unistd.h>

namespace tst_journalcrowd {

using namespace korvel::delivery;

constexpr int processes = 20;
constexpr int rounds = 8;

/// Delivers documents of its own, and tries to take in those that all want; how many it got.
int work(const QString &path, int process)
{
    Journal journal(path, Journal::Access::Write);
    int got = 0;
    for (int round = 0; round < rounds; ++round) {
        deliver(journal, QString("%1-%2").arg(process).arg(round), {State::Sending, State::Sent});
        got += journal.accept(QString("all-%1").arg(round), contentsFor("all"), till, {}) ? 1 : 0;
        if (journal.change(QString("all-%1").arg(round), State::Sending, till, {})
            == State::Accepted)
            got += 100;
    }
    return got;
}

class TestJournalCrowd : public QObject
{
    Q_OBJECT

private slots:
    void twentyAtOnce()
    {
        const JournalFolder folder;
        QList<pid_t> children;
        int ends[2] = {-1, -1};
        QCOMPARE(::pipe(ends), 0);
        for (int process = 0; process < processes; ++process) {
            const pid_t child = ::fork();
            if (child == 0) {
                int got = -1;
                const QString error = errorOf([&] { got = work(folder.path(), process); });
                static_cast<void>(!::write(ends[1], &got, sizeof got));
                ::_exit(error.isEmpty() ? 0 : 1);
            }
            children.append(child);
        }
        int all = 0;
        for (const pid_t child : children) {
            int status = 0;
            ::waitpid(child, &status, 0);
            QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
            int got = 0;
            QCOMPARE(::read(ends[0], &got, sizeof got), ssize_t(sizeof got));
            all += got;
        }
        QCOMPARE(all, rounds * 101); // each was taken in once, and brought on once
        Journal journal = folder.reader();
        QCOMPARE(flawsOf(journal), {});
        QCOMPARE(journal.head().number, processes * rounds * 3 + rounds * 2);
    }

    /// Whoever opens a journal finds none, or a whole one.
    void manyMakeTheSameJournal()
    {
        for (int round = 0; round < 40; ++round) {
            const JournalFolder folder;
            int gate[2] = {-1, -1};
            QCOMPARE(::pipe(gate), 0);
            QList<pid_t> children;
            for (int process = 0; process < 6; ++process) {
                const pid_t child = ::fork();
                if (child == 0) {
                    char open = 0;
                    ::close(gate[1]);
                    static_cast<void>(!::read(gate[0], &open, 1)); // until all are there
                    ::_exit(errorOf([&] { const Journal made = folder.writer(); }).isEmpty() ? 0
                                                                                             : 1);
                }
                children.append(child);
            }
            ::close(gate[0]);
            ::close(gate[1]);
            for (const pid_t child : children) {
                int status = 0;
                ::waitpid(child, &status, 0);
                QVERIFY(WIFEXITED(status) && WEXITSTATUS(status) == 0);
            }
        }
    }

    void readersDoNotWait()
    {
        const JournalFolder folder;
        Journal journal = folder.writer();
        for (int i = 0; i < 600; ++i) // several batches
            deliver(journal, QString::number(i), {});
        // Whoever is told of a document may take its time: others write meanwhile.
        Journal reader = folder.reader();
        int told = 0;
        reader.eachDocument({}, {}, [&](const Document &document) {
            ++told;
            journal.change(document.id, State::Sending, till, {});
        });
        reader.eachEvent({}, [&](const Event &event) {
            if (event.name == "sending")
                journal.change(event.document, State::Sent, till, {});
        });
        QCOMPARE(told, 600);
        QCOMPARE(journal.head().number, 1800);
        sqlite::Database(folder.path())
            .run("UPDATE documents SET state = 'printed' WHERE id < '2'");
        int flaws = 0;
        reader.verify({}, [&](const QString &) {
            journal.accept("while " + QString::number(++flaws), contentsFor("x"), till, {});
        });
        QCOMPARE(flaws, 112); // 0, 1, 10 to 19, 100 to 199
    }
};

KORVEL_TEST(TestJournalCrowd)

} // namespace tst_journalcrowd

#include "tst_journalcrowd.moc"

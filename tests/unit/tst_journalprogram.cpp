// korvel-journal as a user meets it: arguments, options, exit statuses and errors.
#include "delivery/lease.h"
#include "support/built.h"
#include "support/journaldesk.h"
#include "support/ordinaryuser.h"
#include "support/test.h"

#include <QRegularExpression>

#include <unistd.h>

namespace tst_journalprogram {

using namespace korvel::delivery;

/// Documents "sent", "doubt", "left", which nobody sends any more, and "waiting".
struct Filled : JournalDesk
{
    Filled()
    {
        Journal journal = writer();
        deliver(journal, "sent", {State::Sending, State::Sent});
        deliver(journal, "doubt", {State::Sending});
        journal.change("doubt", State::InDoubt, till, "reset after 64 bytes");
        deliver(journal, "left", {State::Sending});
        deliver(journal, "waiting", {State::NotSent});
    }
};

class TestJournalProgram : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const QStringList &arguments, const QString &error) {
            QTest::newRow(name) << arguments << error;
        };
        const QString time = " takes a date such as 2026-05-12, or a time such as"
                             " 2026-05-12T18:30 that the clocks here do not skip";
        row("nothing", {}, "a subcommand is needed; see --help");
        row("no such subcommand", {"print"}, "there is no subcommand \"print\"; see --help");
        row("an unknown option", {"list", "--all"}, "Unknown option 'all'.");
        row("list with an id", {"list", "sent"}, "list takes no argument; see --help");
        row("show without an id", {"show"}, "show takes ID; see --help");
        row("show with two", {"show", "sent", "doubt"}, "show takes ID; see --help");
        row("an empty id", {"show", ""}, "an id is never empty");
        row("resolve without a word", {"resolve", "doubt"},
            "resolve takes ID printed|not-printed; see --help");
        row("resolve with another word", {"resolve", "doubt", "sent"},
            "resolve takes \"printed\" or \"not-printed\"");
        row("replay of two", {"replay", "sent", "doubt"}, "replay takes [ID]; see --help");
        row("verify with an id", {"verify", "sent"}, "verify takes no argument; see --help");
        row("an option of another subcommand", {"verify", "--json"},
            "verify takes no --json; see --help");
        row("a state of list for show", {"show", "sent", "--state", "sent"},
            "show takes no --state; see --help");
        row("no such state", {"list", "--state", "lost"},
            "--state takes accepted, refused, not-sent, sending, sent, in-doubt, printed or "
            "not-printed");
        row("no date", {"list", "--since", "yesterday"}, "--since" + time);
        row("no such day", {"list", "--since", "2026-02-30"}, "--since" + time);
        row("no day", {"sum", "--day", "2026-05-12T10:00"}, "--day takes a day such as 2026-05-12");
        row("no head", {"verify", "--head", "12"},
            "--head takes what \"korvel-journal head\" wrote: NUMBER:HASH");
        row("a head whose hash is cut", {"verify", "--head", "12:00ff"},
            "--head takes what \"korvel-journal head\" wrote: NUMBER:HASH");
        row("two parts", {"show", "sent", "--job", "--sent"},
            "--job, --stream, --sent and --settings exclude each other");
        row("forget without a date", {"forget"}, "forget needs --before DATE");
        row("forget with none", {"forget", "--before", ""}, "--before" + time);
        row("an empty journal's name", {"list", "--journal", ""},
            "--journal takes the name of a file");
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, error);
        const Filled desk;
        const QByteArray before = bytesOf(desk.path());
        const Run run = desk.run(arguments);
        VERIFY_SAID(run, 2, QStringList(), "korvel-journal: " + error);
        QCOMPARE(bytesOf(desk.path()), before);
    }

    void statuses_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("output");
        QTest::addColumn<QStringList>("error");
        const auto row = [](const QStringList &arguments, int status, const QStringList &output,
                            const QStringList &error) {
            QTest::newRow(qPrintable(arguments.join(' ')))
                << arguments << status << output << error;
        };
        const QString none = "korvel-journal: there is no document nobody";
        row({"show", "nobody"}, 1, {}, {none});
        row({"resolve", "nobody", "printed"}, 1, {}, {none});
        row({"replay", "nobody"}, 1, {}, {none});
        row({"resolve", "doubt", "printed"}, 0, {"document doubt: printed"}, {});
        row({"resolve", "doubt", "not-printed"}, 0,
            {"document doubt: not-printed; the next delivery with this id sends it again"}, {});
        row({"resolve", "left", "printed"}, 0, {"document left: printed"}, {});
        row({"resolve", "sent", "not-printed"}, 1, {},
            {"korvel-journal: document sent is not in doubt, but sent"});
        row({"resolve", "waiting", "printed"}, 1, {},
            {"korvel-journal: document waiting is not in doubt, but not-sent"});
        row({"verify"}, 0, {"10 events, nothing wrong; head 10:HASH"}, {});
        row({"head"}, 0, {"10:HASH"}, {});
        row({"verify", "--head", "11:" + QString(64, '0')}, 1,
            {"event 11 with the hash HASH: is missing, as all behind event 10"}, {});
        row({"verify", "--head", "0:"}, 0, {"10 events, nothing wrong; head 10:HASH"}, {});
        row({"forget", "--before", "2020-01-01"}, 0, {"0 documents forgotten"}, {});
        row({"forget", "--before", "2100-01-01"}, 0,
            {"1 document forgotten; 3 older ones kept, which are not finished"}, {});
    }

    void statuses()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QStringList, output);
        QFETCH(QStringList, error);
        const Filled desk;
        VERIFY_SAID(desk.run(arguments), status, output, error);
        Journal journal = desk.reader();
        QCOMPARE(flawsOf(journal), {});
    }

    void resolvingIsAnEvent()
    {
        const Filled desk;
        QCOMPARE(desk.run({"resolve", "left", "not-printed"}).status, 0);
        Journal journal = desk.reader();
        QStringList names;
        for (const Event &event : journal.events("left"))
            names.append(event.name);
        QCOMPARE(names, QStringList({"accepted", "sending", "in-doubt", "not-printed"}));
        QVERIFY(journal.find("left")->detail.startsWith("said by "));
        // Said twice, it is said once; and it is said for good.
        VERIFY_SAID(desk.run({"resolve", "left", "not-printed"}), 0,
                    "document left: not-printed already", QStringList());
        VERIFY_SAID(desk.run({"resolve", "left", "printed"}), 1, QStringList(),
                    "korvel-journal: document left is not in doubt, but not-printed");
        QCOMPARE(journal.events("left").size(), 4);
    }

    void whatIsBeingSentIsNotResolved()
    {
        const JournalDesk desk;
        const QByteArray name = "of-a-test-" + QByteArray::number(::getpid());
        {
            Journal journal = desk.writer();
            journal.accept("a", contentsFor("a"), till, {});
            journal.change("a", State::Sending, till, {}, name);
        }
        QString error;
        auto lease = Lease::take(name, error);
        QVERIFY2(lease, qPrintable(error));
        VERIFY_SAID(desk.run({"resolve", "a", "printed"}), 1, QStringList(),
                    "korvel-journal: document a is being sent; wait for its end");
        VERIFY_SAID(desk.run({"list", "--state", "in-doubt"}), 0, QStringList(), QStringList());
        QCOMPARE(desk.reader().find("a")->state, State::Sending);
        lease.reset();
        VERIFY_SAID(desk.run({"resolve", "a", "printed"}), 0, "document a: printed", QStringList());
    }

    void aBrokenChain()
    {
        const Filled desk;
        tamper(desk.path(), "UPDATE events SET detail = 'all went well' WHERE number = 6");
        VERIFY_SAID(desk.run({"verify"}), 1, "event 6: was changed", QStringList());
    }

    void noJournal()
    {
        const JournalDesk desk;
        const QString none = "korvel-journal: " + desk.path() + ": there is no journal yet";
        for (const QStringList &arguments : {QStringList{"list"},
                                             {"show", "a"},
                                             {"verify"},
                                             {"replay"},
                                             {"sum"},
                                             {"export"},
                                             {"head"}})
            VERIFY_SAID(desk.run(arguments), 2, QStringList(), none);
        QVERIFY(!QFile::exists(desk.path()));
        writeFile(desk.path(), "no journal\n");
        VERIFY_SAID(desk.run({"list"}), 2, QStringList(),
                    "korvel-journal: " + desk.path() + ": it is no journal");
    }

    void anEmptyJournal()
    {
        const JournalDesk desk;
        static_cast<void>(desk.writer());
        VERIFY_SAID(desk.run({"list"}), 0, QStringList(), QStringList());
        VERIFY_SAID(desk.run({"export"}), 0, QStringList(), QStringList());
        VERIFY_SAID(desk.run({"head"}), 0, "0:", QStringList());
        VERIFY_SAID(desk.run({"verify", "--head", "0:"}), 0,
                    "0 events, nothing wrong; head 0:", QStringList());
    }

    void theUsersOwnJournal()
    {
        const JournalDesk desk;
        const QString folder = desk.filePath("data/korvel-print");
        QVERIFY(QDir().mkpath(folder));
        {
            Journal journal(folder + "/journal.db", Journal::Access::Write);
            deliver(journal, "mine", {});
        }
        const Run run = runProgram(built::journal, {"list"},
                                   {{}, {"XDG_DATA_HOME=" + desk.filePath("data")}, {}});
        QCOMPARE(shownLines(run.standardOutput),
                 QStringList("TIME  accepted     mine  tcp://192.0.2.7:9100"));
    }

    void idsThatLookLikeOptions()
    {
        const JournalDesk desk;
        deliver(*std::make_unique<Journal>(desk.writer()), "--json", {});
        const Run run = desk.run({"show", "--", "--json"});
        QCOMPARE(run.status, 0);
        QCOMPARE(shownLines(run.standardOutput).value(0), QString("document  --json"));
    }

    /// What changes nothing leaves every byte, and needs no right to write.
    void readersChangeNothing_data()
    {
        QTest::addColumn<QStringList>("arguments");
        for (const QStringList &arguments : {QStringList{"list"},
                                             {"list", "--state", "in-doubt"},
                                             {"show", "left"},
                                             {"verify"},
                                             {"replay", "waiting"},
                                             {"sum"},
                                             {"export"},
                                             {"head"}})
            QTest::newRow(qPrintable(arguments.join(' '))) << arguments;
    }

    void readersChangeNothing()
    {
        QFETCH(QStringList, arguments);
        const Filled desk;
        const QByteArray before = bytesOf(desk.path());
        const QStringList files = QDir(desk.filePath("")).entryList(QDir::Files);
        const int status = desk.run(arguments).status;
        QCOMPARE(bytesOf(desk.path()), before);
        desk.makeReadOnly();
        QProcess ordinary;
        ordinary.setChildProcessModifier([] {
            if (!becomeOrdinaryUser())
                ::_exit(127);
        });
        ordinary.start(built::journal, QStringList{"--journal", desk.path()} + arguments);
        const bool ended = ordinary.waitForFinished();
        desk.makeWritable();
        QVERIFY(ended);
        QCOMPARE(ordinary.exitStatus(), QProcess::NormalExit);
        QCOMPARE(ordinary.exitCode(), status);
        QCOMPARE(QDir(desk.filePath("")).entryList(QDir::Files), files);
    }
};

KORVEL_TEST(TestJournalProgram)

} // namespace tst_journalprogram

#include "tst_journalprogram.moc"

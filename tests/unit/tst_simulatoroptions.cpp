// How korvel-printer-sim begins and ends.
#include "support/built.h"
#include "support/simulatordesk.h"
#include "support/test.h"

namespace tst_simulatoroptions {

const QString notice =
    "korvel-printer-sim: this is no fiscal device: what it takes is neither printed nor registered";

Run simulate(const QStringList &arguments, const Surroundings &surroundings = {})
{
    return runProgram(built::printerSim, arguments, surroundings);
}

/// Fails the test unless a run took nothing and said in one line why.
#define VERIFY_REFUSED(run, words)                                                                 \
    do {                                                                                           \
        const Run &refused = (run);                                                                \
        QVERIFY(refused.exited);                                                                   \
        QCOMPARE(refused.status, 2);                                                               \
        QCOMPARE(linesOf(refused.standardOutput), QStringList());                                  \
        QCOMPARE(QString::fromUtf8(refused.standardError),                                         \
                 QString("korvel-printer-sim: ") + (words) + '\n');                                \
    } while (false)

class TestSimulatorOptions : public QObject
{
    Q_OBJECT

private slots:
    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("words");
        const auto row = [](const QStringList &arguments, const QString &words) {
            QTest::newRow(qPrintable(arguments.join(' '))) << arguments << words;
        };
        const QString faults = "refuse, reset=N, stall=N, slow=RATE, keep-open or deaf";

        row({"receipt.out"}, "no argument is taken; see --help");
        row({anyPort, "--pty"}, "--listen and --pty exclude each other");
        row({"--pty", "--fault=refuse"}, "a serial line has no fault refuse; leave out --pty");
        row({"--pty", "--fault=keep-open"},
            "a serial line has no fault keep-open; leave out --pty");
        row({"--first=1"}, "--first needs a --fault");
        row({"--fault=refuse", "--first=1"},
            "connections that are refused cannot be counted; take --fault reset=0");
        for (const QString number : {"0", "-1", "x", "", "1.5"}) {
            row({"--fault=deaf", "--first=" + number}, "--first takes a whole number from 1 on");
            row({"--documents=" + number}, "--documents takes a whole number from 1 on");
        }
        for (const QString fault : {"", "fire", "reset", "reset=", "reset=-1", "reset=x", "stall",
                                    "slow=0", "slow", "deaf=1", "refuse=", "DEAF"})
            row({"--fault=" + fault}, "there is no fault \"" + fault + "\"; take one of " + faults);
        for (const QString address : {"9100", "", ":9100", "127.0.0.1", "127.0.0.1:", "127.0.0.1:x",
                                      "127.0.0.1:65536", "[]:9100"})
            row({"--listen=" + address},
                "--listen takes an address and a port, such as 127.0.0.1:9100");
        row({"--charset=cp0"}, "there is no code page \"cp0\"; take UTF-8, or one that iconv knows "
                               "of one byte a character, with ASCII below 128, such as cp858");
        row({"--paper=/nowhere/paper"}, "/nowhere/paper: No such file or directory");
        row({"--paper=/dev/null"}, "/dev/null: Not a directory");
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, words);
        VERIFY_REFUSED(simulate(arguments, {{}, {"LC_ALL=C"}, {}}), words);
    }

    void anAddressInUse()
    {
        Simulator first({anyPort});
        VERIFY_REFUSED(simulate({"--listen=" + first.place()}),
                       first.place()
                           + ": another program listens there; end it, or take a free port with "
                             "--listen 127.0.0.1:0");
        VERIFY_SIMULATED(first.end());
    }

    /// As soon as it has ended, another one can take the place, whatever was connected.
    void anAddressThatWasInUse()
    {
        Simulator first({anyPort});
        const QString place = first.place();
        Sender sender(first.port());
        sender.send(documentOf("a"));
        first.waitFor("document 1");
        VERIFY_SIMULATED(first.end());
        Simulator second({"--listen=" + place});
        QCOMPARE(second.place(), place);
        VERIFY_SIMULATED(second.end());
    }

    void firstLines_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("place");
        QTest::newRow("a free port") << QStringList{anyPort} << "127\\.0\\.0\\.1:[1-9]\\d*";
        QTest::newRow("by name") << QStringList{"--listen=localhost:0"}
                                 << "(127\\.0\\.0\\.1|\\[::1\\]):[1-9]\\d*";
        QTest::newRow("IPv6") << QStringList{"--listen=[::1]:0"} << "\\[::1\\]:[1-9]\\d*";
        QTest::newRow("a serial line") << QStringList{"--pty"} << "/dev/pts/\\d+";
    }

    void firstLines()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, place);
        Simulator simulator(arguments);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const QStringList lines = QString::fromUtf8(run.standardOutput).split('\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0], notice);
        QVERIFY2(QRegularExpression("\\Alistening on " + place + "\\z").match(lines[1]).hasMatch(),
                 qPrintable(lines[1]));
        QCOMPARE(lines[2],
                 QString("end of the day: 0 documents; registered 0.00 in 0 fiscal receipts"));
    }

    /// A signal ends it with the sums, at rest and with a document open, which is shown.
    void signalsEndIt_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGTERM") << SIGTERM;
    }

    void signalsEndIt()
    {
        QFETCH(int, signal);
        Simulator simulator({anyPort});
        Sender sender(simulator.port());
        sender.send(fiscal("=R1/$120/*2/(COFFEE)\n") + "=o\n");
        simulator.waitFor("registered today");
        const Run run = simulator.end(signal);
        VERIFY_SIMULATED(run);
        QCOMPARE(remarksOf(run.standardOutput).mid(3),
                 QStringList({
                     "document 1: fiscal section, 32 bytes",
                     "registered today: 2.40 in 1 fiscal receipt",
                     "document 2: document section, 3 bytes",
                     "document 2:1: byte 0: error: the document section is closed but not open "
                     "[not-open]",
                     "connection 1 closed: 35 bytes, 2 whole documents",
                     "end of the day: 2 documents; registered 2.40 in 1 fiscal receipt",
                 }));
    }

    void standardOutputThatTakesNothing()
    {
        for (const QStringList &arguments : {QStringList{anyPort}, {"--pty", "--json"}}) {
            const Run run = simulate(arguments, {{}, {}, {}, "/dev/full"});
            VERIFY_REFUSED(run, "cannot write to standard output");
        }
    }

    /// It ends behind so many whole documents: when the sender is gone, or sends nothing more.
    void endsByItself_data()
    {
        QTest::addColumn<bool>("closes");
        QTest::newRow("the sender closes") << true;
        QTest::newRow("the sender stays") << false;
    }

    void endsByItself()
    {
        QFETCH(bool, closes);
        Simulator simulator({anyPort, "--documents=2"});
        QCOMPARE(deliver(simulator.port(), "=o\ncut"), Met::End);
        QCOMPARE(deliver(simulator.port(), documentOf("a")), Met::End);
        Sender sender(simulator.port());
        sender.send(documentOf("b") + documentOf("c"));
        if (closes)
            sender.finish();
        const Run run = simulator.finish();
        VERIFY_SIMULATED(run);
        QCOMPARE(sender.meets(), Met::End);
        QCOMPARE(remarksOf(run.standardOutput).last(),
                 QString("end of the day: 3 documents, 1 not whole; registered 0.00 in 0 fiscal "
                         "receipts"));
    }
};

KORVEL_TEST(TestSimulatorOptions)

} // namespace tst_simulatoroptions

#include "tst_simulatoroptions.moc"

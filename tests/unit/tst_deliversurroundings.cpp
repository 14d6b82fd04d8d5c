// korvel-deliver with less than it needs of the system: files, memory, signals, a home.
#include "support/built.h"
#include "support/deliverdesk.h"
#include "support/test.h"

#include <cerrno>

namespace tst_deliversurroundings {

/// Runs it behind a command of the shell, with arguments behind the device and the journal.
/// Files that whoever runs the test has left open are none of the program's.
Run runBehind(const DeliverDesk &desk, const QString &command, const QStringList &arguments)
{
    const QString script = "exec 3>&- 4>&- 5>&- 6>&- 7>&- 8>&- 9>&-; " + command + "; exec \"$@\"";
    const QStringList call = {built::deliver, "--to", desk.device(), "--journal",
                              desk.path("journal.db")};
    return runProgram("sh", QStringList{"-c", script, "sh"} + call + arguments,
                      {desk.path("."), desk.variables(), {}});
}

/// A command of the shell that leaves little memory. A sanitizer takes more than any limit leaves:
/// it is told to give no more than so much at once, and to say so elsewhere.
QString littleMemory(const DeliverDesk &desk)
{
    if (!built::sanitized)
        return "ulimit -v 150000";
    return "export ASAN_OPTIONS=allocator_may_return_null=1:max_allocation_size_mb=40:log_path="
           + desk.path("asan");
}

class TestDeliverSurroundings : public QObject
{
    Q_OBJECT

private slots:
    /// The shell counts blocks of 512 bytes.
    void aDeviceThatMayNotGrowIsInDoubt()
    {
        const DeliverDesk desk;
        VERIFY_DELIVERY(desk.run({"--id", "first", "receipt.xml"}), 0, "sent"); // makes the journal
        writeFile(desk.path("paper"), QByteArray(500 * 512 - 100, '\n'));
        const Run run = runBehind(desk, "ulimit -f 500", {"--id", "a", "receipt.xml"});
        VERIFY_DELIVERY(run, 4, "in doubt: " + qt_error_string(EFBIG).toUtf8() + "; look at");
        QVERIFY(desk.journal({"list"}).standardOutput.contains("in-doubt     a"));
    }

    void aJournalThatMayNotGrowSendsNothing()
    {
        const DeliverDesk desk;
        VERIFY_DELIVERY(runBehind(desk, "ulimit -f 20", {"receipt.xml"}), 2, "journal.db: ");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void childrenThatTheCallerIgnores()
    {
        const DeliverDesk desk;
        VERIFY_DELIVERY(runBehind(desk, "trap '' CHLD", {"receipt.xml"}), 0, "sent");
        QCOMPARE(desk.paper(), receipt());
    }

    void tooFewFilesForTheRenderer()
    {
        const DeliverDesk desk;
        const Run run = runBehind(desk, "ulimit -n 12", {"--id", "a", "receipt.xml"});
        VERIFY_DELIVERY(run, 3, "cannot be started: ");
        QVERIFY(run.standardError.contains(qt_error_string(EMFILE).toUtf8() + ';'));
        QCOMPARE(desk.paper(), QByteArray());
    }

    void tooLittleMemory_data()
    {
        QTest::addColumn<bool>("doubtful");
        QTest::newRow("before anything was sent") << false;
        QTest::newRow("when it is in doubt") << true;
    }

    void tooLittleMemory()
    {
        QFETCH(bool, doubtful);
        const DeliverDesk desk;
        if (doubtful)
            VERIFY_DELIVERY(desk.runTo("/dev/full", {"--id", "a", "receipt.xml"}), 4, "in doubt");
        // 48 MB, which have no room in 150 MB as bytes and as text.
        writeFile(desk.path("big.out"),
                  "=o/*1\n" + QByteArray("=\"/(12345678901234567 )\n").repeated(2'000'000)
                      + "=o\n");
        const Run run = runBehind(desk, littleMemory(desk), {"--id", "a", "big.out"});
        if (doubtful)
            VERIFY_DELIVERY(run, 4, "in doubt: not enough memory; look at the paper");
        else
            VERIFY_DELIVERY(run, 3, "not sent: not enough memory; call again with --id a");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void aHomeThatIsNone_data()
    {
        QTest::addColumn<QString>("home");
        QTest::newRow("relative") << "HOME=home";
        QTest::newRow("empty") << "HOME=";
        QTest::newRow("not there") << "HOME";
    }

    void aHomeThatIsNone()
    {
        QFETCH(QString, home);
        const DeliverDesk desk;
        writeFile(desk.path("receipt.out"), receipt());
        const Surroundings surroundings{desk.path("."), {home, "XDG_DATA_HOME"}, {}};
        const QByteArray advice = "set it, or name a file with --journal";
        const Run delivered =
            runProgram(built::deliver, {"--to", desk.device(), "receipt.out"}, surroundings);
        VERIFY_DELIVERY(delivered, 2, advice);
        VERIFY_DELIVERY(runProgram(built::journal, {"list"}, surroundings), 2, advice);
        QCOMPARE(desk.paper(), QByteArray());
        QVERIFY(!QFile::exists(desk.path("home/.local")));
        VERIFY_DELIVERY(runProgram(built::deliver,
                                   {"--to", desk.device(), "--journal", "j.db", "receipt.out"},
                                   surroundings),
                        0, "sent");
    }
};

KORVEL_TEST(TestDeliverSurroundings)

} // namespace tst_deliversurroundings

#include "tst_deliversurroundings.moc"

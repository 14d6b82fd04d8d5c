// The exit statuses of korvel-deliver: what brings each, and what there is to do.
#include "support/built.h"
#include "support/deliverdesk.h"
#include "support/printers.h"
#include "support/test.h"

#include <QProcess>

namespace tst_deliverstatus {

constexpr qsizetype largest = 50'000'000; // bytes that are taken

/// A program folder of one's own, where the renderer is a script.
class OwnRenderer
{
public:
    explicit OwnRenderer(const QByteArray &script)
    {
        if (!QFile::copy(built::deliver, program()))
            qFatal("no copy of %s", built::deliver);
        const QString renderer = folder.filePath("korvel-print");
        writeFile(renderer, "#!/bin/sh\n" + script);
        QFile::setPermissions(renderer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    [[nodiscard]] QString program() const { return folder.filePath("korvel-deliver"); }

private:
    const QTemporaryDir folder;
};

class TestDeliverStatus : public QObject
{
    Q_OBJECT

private slots:
    void refused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("reason");
        // clang-format off
        QTest::newRow("nothing")              << QByteArray() << QByteArray("it is empty");
        QTest::newRow("no job")               << QByteArray("hello") << QByteArray("x:1:1: error");
        QTest::newRow("an unknown method")
            << QByteArray("<printjob><method name=\"printIt\"/></printjob>")
            << QByteArray("unknown-method");
        QTest::newRow("a stream cut off")
            << QByteArray("=o/*1\n=\"/(a )\n") << QByteArray("never closed");
        QTest::newRow("a stream and more")
            << QByteArray("=o/*1\n=o\nhello\n") << QByteArray("unknown command");
        // clang-format on
    }

    void refused()
    {
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, reason);
        const DeliverDesk desk;
        writeFile(desk.path("x"), content);
        const Run run = desk.run({"--id", "a", "x"});
        VERIFY_DELIVERY(run, 1, reason);
        QVERIFY(run.standardError.startsWith("korvel-deliver: x: refused, nothing was sent: "));
        QCOMPARE(desk.paper(), QByteArray());
        QVERIFY(desk.journal({"list"}).standardOutput.contains("refused"));
    }

    void whatIsTooLargeIsRefused()
    {
        const DeliverDesk desk;
        const QByteArray line = "=\"/(" + QByteArray(996, 'a') + ")\n"; // 1002 bytes
        QByteArray stream = "=o/*1\n";
        while (stream.size() + line.size() + 4 <= largest)
            stream += line;
        writeFile(desk.path("x"), stream + QByteArray(largest + 1 - stream.size(), ' '));
        VERIFY_DELIVERY(desk.run({"x"}), 1, "it has more than 50000000 bytes");
        QCOMPARE(desk.paper(), QByteArray());
    }

    void withoutSettingsAJobIsRefused()
    {
        const DeliverDesk desk;
        QVERIFY(QFile::remove(desk.path("home/.korvel/conf/korvel.conf")));
        VERIFY_DELIVERY(desk.run({"receipt.xml"}), 1, "--settings names others");
        writeFile(desk.path("receipt.out"), receipt());
        VERIFY_DELIVERY(desk.run({"receipt.out"}), 0, "sent"); // a stream needs none
    }

    void notSent()
    {
        const DeliverDesk desk;
        const QString off = nobodysDevice();
        const Run run = desk.runTo(off, {"--id", "a", "receipt.xml"});
        VERIFY_DELIVERY(run, 3, "call again with --id a\n");
        QVERIFY(run.standardError.contains(off.toUtf8() + " cannot be reached"));
        VERIFY_DELIVERY(desk.run({"--id", "a", "receipt.xml"}), 0, "sent");
        QCOMPARE(desk.paper(), receipt());
    }

    void withoutAnIdItSaysWhichToCallAgainWith()
    {
        const DeliverDesk desk;
        const Run run = desk.runTo(nobodysDevice(), {"receipt.xml"});
        VERIFY_DELIVERY(run, 3, "call again with --id ");
        const QString id = QString::fromUtf8(run.standardError).section("--id ", 1).trimmed();
        VERIFY_DELIVERY(desk.run({"--id", id, "receipt.xml"}), 0, "sent");
    }

    void aRendererThatIsEndedRefusesNothing_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("by a signal") << QByteArray("kill -9 $$\n") << QByteArray("SIGKILL");
        QTest::newRow("with a status") << QByteArray("exit 3\n") << QByteArray("status 3");
        QTest::newRow("without a stream") << QByteArray("exit 0\n") << QByteArray("wrote nothing");
        QTest::newRow("with an empty stream")
            << QByteArray(": > \"$2\"\n") << QByteArray("did not come to the end");
        QTest::newRow("in the middle of the stream")
            << QByteArray("echo '=o/*1' > \"$2\"\n") << QByteArray("did not come to the end");
    }

    void aRendererThatIsEndedRefusesNothing()
    {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, reason);
        const DeliverDesk desk;
        const OwnRenderer own(script);
        const QStringList call = {"--to", desk.device(), "--journal",  desk.path("journal.db"),
                                  "--id", "a",           "receipt.xml"};
        const Run run = runProgram(own.program(), call, {desk.path("."), desk.variables(), {}});
        VERIFY_DELIVERY(run, 3, reason);
        VERIFY_DELIVERY(desk.run({"--id", "a", "receipt.xml"}), 0, "sent");
    }

    void whatTheRendererComplainsOfIsRefused()
    {
        const DeliverDesk desk;
        const OwnRenderer own("echo 'no catalogue'\necho '=o/*1' > \"$2\"\n");
        const Run run =
            runProgram(own.program(),
                       {"--to", desk.device(), "--journal", desk.path("journal.db"), "receipt.xml"},
                       {desk.path("."), desk.variables(), {}});
        VERIFY_DELIVERY(run, 1, "says: no catalogue");
    }

    void inDoubtUntilAPersonHasLooked_data()
    {
        QTest::addColumn<QString>("resolution");
        QTest::addColumn<int>("copiesThen");
        QTest::newRow("it is on paper") << "printed" << 0;
        QTest::newRow("it is not") << "not-printed" << 1;
    }

    void inDoubtUntilAPersonHasLooked()
    {
        QFETCH(QString, resolution);
        QFETCH(int, copiesThen);
        PrinterFault fault;
        fault.resetsAfter = 64;
        fault.connections = 1;
        NetworkPrinter printer(fault);
        const DeliverDesk desk;
        const QStringList call = {"--id", "a", "receipt.xml"};
        const Run first = desk.runTo(printer.device(), call);
        VERIFY_DELIVERY(first, 4, "in doubt");
        QVERIFY2(first.standardError.contains("look at the paper, then run \"korvel-journal "
                                              "--journal "
                                              + desk.path("journal.db").toUtf8()
                                              + " resolve a printed\", or not-printed"),
                 first.standardError.constData());
        VERIFY_DELIVERY(desk.runTo(printer.device(), call), 4, "in doubt");
        QCOMPARE(desk.journal({"resolve", "a", resolution}).status, 0);
        VERIFY_DELIVERY(desk.runTo(printer.device(), call), 0, copiesThen ? "sent to" : "already");
        QCOMPARE(printer.paper().count(receipt()), copiesThen);
        VERIFY_DELIVERY(desk.runTo(printer.device(), call), 0, "already sent");
        QCOMPARE(desk.journal({"verify"}).status, 0);
    }

    /// The command that it names can be typed as it stands.
    void theAnswerIsACommand_data()
    {
        QTest::addColumn<QString>("id");
        for (const char *id : {"118", "till 1: it's 118", "$(exit 1)", "-118", "\"a\";\\"})
            QTest::newRow(id) << id;
    }

    void theAnswerIsACommand()
    {
        QFETCH(QString, id);
        PrinterFault fault;
        fault.resetsAfter = 64;
        NetworkPrinter printer(fault);
        const DeliverDesk desk;
        const Run run = desk.runTo(printer.device(), {"--id=" + id, "receipt.xml"});
        VERIFY_DELIVERY(run, 4, "in doubt");
        static const QRegularExpression named("then run \"korvel-journal (.*) printed\"");
        const auto match = named.match(QString::fromUtf8(run.standardError));
        QVERIFY2(match.hasMatch(), run.standardError.constData());
        const QString command = QString(built::journal) + ' ' + match.captured(1) + " printed";
        QCOMPARE(QProcess::execute("sh", {"-c", command}), 0);
        VERIFY_DELIVERY(desk.runTo(printer.device(), {"--id=" + id, "receipt.xml"}), 0, "already");
    }

    void thePrinterIsWaitedFor()
    {
        const DeliverDesk desk;
        const QString fifo = desk.path("fifo");
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", desk.path("home"));
        process.setProcessEnvironment(environment);
        process.start(built::deliver, {"--to", fifo, "--wait", "60", "--journal",
                                       desk.path("journal.db"), desk.path("receipt.xml")});
        QVERIFY(!process.waitForFinished(1000));
        FifoPrinter printer(fifo);
        QVERIFY(process.waitForFinished(30000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(process.readAllStandardError(), QByteArray()); // no terminal, no progress
        QCOMPARE(printer.paper(receipt().size()), receipt());
    }

    void whatIsSentIsSentWhoeverListens()
    {
        const DeliverDesk desk;
        Surroundings deaf{desk.path("."), desk.variables(), {}, "/dev/full"};
        const QStringList call = {"--to", desk.device(), "--journal",  desk.path("journal.db"),
                                  "--id", "a",           "receipt.xml"};
        QCOMPARE(runProgram(built::deliver, call, deaf).status, 0);
        QCOMPARE(desk.paper(), receipt());
    }
};

KORVEL_TEST(TestDeliverStatus)

} // namespace tst_deliverstatus

#include "tst_deliverstatus.moc"

// The filter and the backend as CUPS starts them, one by one, and the description of the printer.
#include "companions/queue/backend.h"
#include "companions/queue/document.h"
#include "companions/queue/request.h"
#include "companions/recode/codepage.h"
#include "support/built.h"
#include "support/cupsdesk.h"
#include "support/queuedesk.h"
#include "support/test.h"

#include <cups/backend.h>

namespace tst_queuedriver {

using namespace korvel::queue;
using korvel::delivery::Journal;
using korvel::delivery::State;

/// A place for the settings and the journal, without a server.
class Driver
{
public:
    Driver()
    {
        QDir(folder.path()).mkpath("settings");
        QFile::copy(KORVEL_SOURCE_DIR "/examples/korvel.conf", path("settings/korvel.conf"));
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QStringList variables(const QString &uri) const
    {
        return {"HOME",
                "PPD",
                "PRINTER=cassa",
                "DEVICE_URI=" + uri,
                "KORVEL_JOURNAL=" + path("journal.db"),
                "KORVEL_SETTINGS_DIR=" + path("settings")};
    }
    static QStringList arguments(const QString &copies = "1")
    {
        return {"7", "anna", "Table 7", copies, "job-uuid=till1-118 charset=cp858"};
    }

    [[nodiscard]] Run filter(const QStringList &files, const QByteArray &input = {}) const
    {
        return runProgram(built::filter, arguments() + files,
                          {folder.path(), variables("korvel://127.0.0.1:9"), input});
    }
    [[nodiscard]] Run backend(const QString &uri, const QByteArray &input,
                              const QString &copies = "1") const
    {
        return runProgram(built::backend, arguments(copies),
                          {folder.path(), variables(uri), input});
    }
    [[nodiscard]] QByteArray journal(const QStringList &arguments) const
    {
        return runProgram(built::journal, QStringList{"--journal", path("journal.db")} + arguments,
                          {folder.path(), {}, {}})
            .standardOutput;
    }

private:
    const QTemporaryDir folder;
};

class TestQueueDriver : public QObject
{
    Q_OBJECT

private slots:
    void uris_data()
    {
        QTest::addColumn<QString>("device");
        const auto row = [](const char *uri, const char *device) { QTest::newRow(uri) << device; };
        row("korvel://192.0.2.12", "tcp://192.0.2.12:9100");
        row("korvel://Till.example:9101/", "tcp://till.example:9101");
        row("korvel://[::1]", "tcp://[::1]:9100");
        row("korvel:/dev/usb/lp0", "/dev/usb/lp0");
        row("korvel:///dev/usb/lp0", "/dev/usb/lp0");
        row("korvel:/dev/ttyS0?baud=19200", "serial:/dev/ttyS0?baud=19200");
        row("korvel:/dev/ttyUSB0", "serial:/dev/ttyUSB0?baud=9600");
        row("korvel:/dev/pts/3?baud=9600", "serial:/dev/pts/3?baud=9600");
        row("korvel:/dev/ttyS0?baud=7", "");
        row("korvel:/dev/ttyS0?parity=odd", "");
        row("korvel:lp0", "");
        row("korvel:file:/tmp/paper", "");
        row("korvel:", "");
        row("korvel://", "");
        row("socket://192.0.2.12", "");
    }

    void uris()
    {
        QFETCH(QString, device);
        QString error;
        const auto named = deviceOf(QTest::currentDataTag(), error);
        QCOMPARE(named ? named->text : QString(), device);
        QCOMPARE(error.contains("write korvel://HOST"), device.isEmpty());
    }

    void theBackendListsDevices()
    {
        const Run run = runProgram(built::backend, {}, {QDir::tempPath(), {}, {}});
        QCOMPARE(run.status, 0);
        const QStringList lines = QString::fromUtf8(run.standardOutput).trimmed().split('\n');
        QCOMPARE(lines.constFirst(),
                 QString("network korvel \"Unknown\" \"Korvel Receipt Printer (korvel://HOST)\""));
        static const QRegularExpression form(
            "^(network korvel|direct korvel:/dev/usb/lp\\d+|serial "
            "korvel:/dev/tty\\w+\\?baud=115200)"
            " \"Unknown\" \"Korvel Receipt Printer [^\"]+\"$");
        for (const QString &line : lines)
            QVERIFY2(form.match(line).hasMatch(), qPrintable(line));
    }

    void theFilterWritesTheStream()
    {
        const Driver driver;
        for (const bool inFile : {true, false}) {
            const Run run = inFile ? driver.filter({sample("receipt.xml")})
                                   : driver.filter({}, bytesOf(sample("receipt.xml")));
            QCOMPARE(run.standardError, QByteArray());
            QCOMPARE(run.standardOutput, receipt());
            QCOMPARE(run.status, 0);
        }
        QVERIFY(driver.journal({"list"}).contains("accepted     till1-118"));
    }

    /// The queue stops then, by the backend: the filter is no place for that.
    void theFilterWritesItWithoutAJournal()
    {
        const Driver driver;
        QDir(driver.path("")).mkdir("journal.db");
        const Run run = driver.filter({sample("receipt.xml")});
        QCOMPARE(run.standardOutput, receipt());
        QVERIFY(run.standardError.startsWith("DEBUG: " + driver.path("journal.db").toUtf8()));
    }

    /// Whole or nothing.
    void theFilterWritesNothingOfAWrongJob()
    {
        const Driver driver;
        const Run run = driver.filter({}, "<printjob><method name=\"printFullOrder\"/>");
        QCOMPARE(run.status, 1);
        QCOMPARE(run.standardOutput, QByteArray());
        QVERIFY2(run.standardError.contains("ERROR: refused, nothing was printed: Table 7:1:1: "
                                            "error: <printjob> is never closed"),
                 run.standardError.constData());
        QVERIFY(driver.journal({"list"}).contains("refused      till1-118"));
    }

    void bothSayHowTheyAreCalled()
    {
        for (const char *program : {built::filter, built::backend}) {
            const Run run = runProgram(program, {"7", "anna"}, {QDir::tempPath(), {}, {}});
            QVERIFY(run.status != 0);
            QCOMPARE(run.standardError,
                     QByteArray("ERROR: CUPS calls this program: JOB USER TITLE COPIES OPTIONS "
                                "[FILE]\n"));
        }
    }

    void statuses()
    {
        PaperPrinter printer;
        printer.on();
        const Driver driver;
        QCOMPARE(driver.backend(printer.uri(), receipt()).status, int(CUPS_BACKEND_OK));
        QCOMPARE(driver.backend(printer.uri(), receipt()).status, int(CUPS_BACKEND_OK)); // again
        QCOMPARE(printer.documents(1), QList<QByteArray>({inCp858(receipt())}));

        const Driver refusing;
        for (const QByteArray &stream :
             {QByteArray(), QByteArray("<printjob/>"), receipt().chopped(3), receipt() + receipt()})
            QCOMPARE(refusing.backend(printer.uri(), stream).status, int(CUPS_BACKEND_CANCEL));
        const QByteArray fiscal = bytesOf(expected("fiscal-receipt.out"));
        QCOMPARE(refusing.backend(printer.uri(), fiscal, "2").status, int(CUPS_BACKEND_CANCEL));
        QCOMPARE(refusing.backend("korvel:lp0", receipt()).status, int(CUPS_BACKEND_STOP));
        QDir(refusing.path("")).remove("journal.db");
        QDir(refusing.path("")).mkdir("journal.db");
        QCOMPARE(refusing.backend(printer.uri(), receipt()).status, int(CUPS_BACKEND_STOP));

        printer.on({"--fault", "reset=40"});
        const Driver doubting;
        QCOMPARE(doubting.backend(printer.uri(), fiscal).status, int(CUPS_BACKEND_HOLD));
        QCOMPARE(doubting.backend(printer.uri(), {}).status, int(CUPS_BACKEND_HOLD));
        QVERIFY(driver.journal({"list"}).contains("sent         till1-118"));
        QVERIFY(doubting.journal({"list"}).contains("in-doubt     till1-118"));
    }

    void aDeliveryIsLost_data()
    {
        QTest::addColumn<QList<State>>("states");
        QTest::addColumn<int>("copies");
        QTest::addColumn<int>("status");
        const auto row = [](const char *name, int copies, const QList<State> &states, int status) {
            QTest::newRow(name) << states << copies << status;
        };
        row("nothing is known", 1, {}, CUPS_BACKEND_HOLD);
        row("nothing left", 1, {State::NotSent}, CUPS_BACKEND_HOLD);
        row("it was sending", 1, {State::Sending}, CUPS_BACKEND_HOLD);
        row("it was sent", 1, {State::Sending, State::Sent}, CUPS_BACKEND_OK);
        row("only the first copy was", 2, {State::Sending, State::Sent}, CUPS_BACKEND_HOLD);
    }

    /// What was sent needs nobody, though its sender was killed before it could say so.
    void aDeliveryIsLost()
    {
        QFETCH(QList<State>, states);
        QFETCH(int, copies);
        const Driver driver;
        Journal journal(driver.path("journal.db"), Journal::Access::Write);
        if (!states.isEmpty())
            QVERIFY(journal.accept("till1-118", {}, "tcp://192.0.2.12:9100", "cassa-7"));
        for (const State state : states)
            journal.change("till1-118", state, "tcp://192.0.2.12:9100", {});
        Request request;
        request.id = "till1-118";
        request.copies = copies;
        qputenv("KORVEL_JOURNAL", driver.path("journal.db").toUtf8());
        const int status = deliveryLost(request);
        qunsetenv("KORVEL_JOURNAL");
        QTEST(status, "status");
    }

    /// Whatever the till calls its document.
    void theCommandToTypeWorksAsItStands()
    {
        PaperPrinter printer;
        printer.on({"--fault", "reset=40"});
        const Driver driver;
        QStringList arguments = Driver::arguments();
        arguments[4] = "job-uuid=\"-it\\'s 118\"";
        const Run run = runProgram(built::backend, arguments,
                                   {driver.path(""), driver.variables(printer.uri()), receipt()});
        QCOMPARE(run.status, int(CUPS_BACKEND_HOLD));
        static const QRegularExpression form("run \"([^\"]+ printed)\" or ");
        const QString command = form.match(QString::fromUtf8(run.standardError)).captured(1);
        QVERIFY2(command.endsWith(" resolve -- '-it'\\''s 118' printed"), qPrintable(command));
        const QString folder = QFileInfo(built::journal).path();
        QCOMPARE(runProgram("/bin/sh", {"-c", command}, {folder, {"PATH=" + folder}, {}}).status,
                 0);
        QVERIFY(driver.journal({"list"}).contains("printed      -it's 118"));
    }

    void whoIsToldToEndTriesTheSameJobAgain()
    {
        const Driver driver;
        QProcess backend;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        const PaperPrinter printer; // which is off
        for (const QString &variable : driver.variables(printer.uri()))
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        backend.setProcessEnvironment(environment);
        backend.start(built::backend, Driver::arguments());
        backend.write(receipt());
        backend.closeWriteChannel();
        QByteArray said;
        QVERIFY(waitUntil([&] {
            backend.waitForReadyRead(20);
            said += backend.readAllStandardError();
            return said.contains("INFO: waiting: ");
        }));
        QVERIFY(said.contains("STATE: +connecting-to-device\n"));
        backend.terminate();
        QVERIFY(backend.waitForFinished(queuePatience));
        QCOMPARE(backend.exitStatus(), QProcess::NormalExit);
        QCOMPARE(backend.exitCode(), int(CUPS_BACKEND_RETRY_CURRENT));
        QVERIFY(backend.readAllStandardError().contains("STATE: -connecting-to-device\n"));
        QVERIFY(driver.journal({"list"}).contains("not-sent     till1-118"));
    }

    /// Members of the group may read what the queue keeps; others may not.
    void theJournalIsForTheGroupToRead()
    {
        const Driver driver;
        QCOMPARE(driver.filter({sample("receipt.xml")}).status, 0);
        struct stat status = {};
        QCOMPARE(::stat(qPrintable(driver.path("journal.db")), &status), 0);
        QCOMPARE(int(status.st_mode & 0777), 0640);
    }

    /// Each code page in the description of the printer is one that texts can be written in.
    void theDescriptionIsSound()
    {
        const QString ppd = built::path("/companions/queue/korvel.ppd");
        int pages = 0;
        for (const QByteArray &line : bytesOf(ppd).split('\n')) {
            if (!line.startsWith("*charset "))
                continue;
            const QByteArray name = line.split(' ').at(1).split('/').constFirst();
            QVERIFY2(korvel::recode::CodePage::named(name), name.constData());
            ++pages;
        }
        QVERIFY(pages > 20);

        const QString test = QStandardPaths::findExecutable("cupstestppd");
        QVERIFY2(!test.isEmpty(), "cupstestppd is not there: install the package cups-client");
        const QTemporaryDir root;
        QDir(root.path()).mkpath("usr/lib/cups/filter");
        QFile::copy(built::filter, root.filePath("usr/lib/cups/filter/jobtokorvel"));
        const Run run =
            runProgram(test, {"-R", root.path(), ppd}, {root.path(), {"LC_ALL=C.UTF-8"}, {}});
        QCOMPARE(run.standardOutput, ppd.toUtf8() + ": PASS\n");
        QCOMPARE(run.status, 0);
    }
};

KORVEL_TEST(TestQueueDriver)

} // namespace tst_queuedriver

#include "tst_queuedriver.moc"

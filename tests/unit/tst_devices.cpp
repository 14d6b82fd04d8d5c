// Devices of each kind: what is taken, what is not, and how long that is waited for.
#include "delivery/device.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/printers.h"
#include "support/test.h"

#include <csignal>

namespace tst_devices {

using namespace korvel::delivery;
using namespace std::chrono_literals;

const QByteArray document = "=o/*1\n=\"/(Serial Number: 118 )\n=o\n";

/// What sending to a device came to.
struct Sent
{
    bool isReached = false;
    bool isTaken = false;
    QString error;
};

Sent send(const QString &name, const QByteArray &bytes = document,
          std::chrono::seconds patience = 5s)
{
    Sent sent;
    const auto device = deviceNamed(name, sent.error);
    if (!device)
        qFatal("%s", qPrintable(sent.error));
    for (const auto &place : placesOf(*device, QDeadlineTimer(5s), sent.error)) {
        const auto connection = place->connect(QDeadlineTimer(patience), sent.error);
        sent.isReached = connection && connection->isAlive(sent.error);
        if (!sent.isReached)
            continue;
        sent.isTaken = connection->send(bytes, patience, sent.error);
        break;
    }
    return sent;
}

/// Fails the test unless all was taken.
#define VERIFY_TAKEN(sent)                                                                         \
    do {                                                                                           \
        const Sent &its = (sent);                                                                  \
        QVERIFY2(its.isTaken, qPrintable(its.error));                                              \
    } while (false)

/// Fails the test unless the device was reached, not all was taken, and why is said.
#define VERIFY_LOST(sent, reason)                                                                  \
    do {                                                                                           \
        const Sent &its = (sent);                                                                  \
        QVERIFY2(its.isReached, qPrintable(its.error));                                            \
        QVERIFY(!its.isTaken);                                                                     \
        QVERIFY2(its.error.contains(reason), qPrintable(its.error));                               \
    } while (false)

class TestDevices : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { std::signal(SIGPIPE, SIG_IGN); }

    void aPrinterInTheNetworkTakesAll()
    {
        NetworkPrinter printer;
        VERIFY_TAKEN(send(printer.device()));
        QCOMPARE(printer.pages(), QList<QByteArray>({document}));
    }

    void aMegabyteIsTakenWhole()
    {
        NetworkPrinter printer;
        const QByteArray much = document.repeated(30'000);
        VERIFY_TAKEN(send(printer.device(), much));
        QVERIFY(printer.paper() == much);
    }

    void whatThePrinterSaysIsDropped()
    {
        PrinterFault fault;
        fault.talks = true;
        NetworkPrinter printer(fault);
        const QByteArray much = document.repeated(3'000);
        VERIFY_TAKEN(send(printer.device(), much));
        QVERIFY(printer.paper() == much);
    }

    void aPrinterThatNeverClosesTakesAll()
    {
        PrinterFault fault;
        fault.keepsOpen = true;
        NetworkPrinter printer(fault);
        VERIFY_TAKEN(send(printer.device()));
    }

    /// Its network took the bytes, and nobody read them: nothing can tell.
    void aPrinterThatIsDeafCountsAsTakingAll()
    {
        PrinterFault fault;
        fault.stallsAfter = 0;
        NetworkPrinter printer(fault);
        VERIFY_TAKEN(send(printer.device()));
        QCOMPARE(printer.paper(), QByteArray());
    }

    /// It takes longer than the printer may take no byte, and takes a byte all the time.
    void aSlowPrinterIsWaitedFor()
    {
        PrinterFault fault;
        fault.rate = 4000;
        NetworkPrinter printer(fault);
        const QByteArray much = document.repeated(300);
        VERIFY_TAKEN(send(printer.device(), much, 1s));
        QVERIFY(printer.paper() == much);
    }

    void nobodyListens()
    {
        const Sent sent = send(nobodysDevice());
        QVERIFY(!sent.isReached);
        QVERIFY2(sent.error.endsWith(" cannot be reached: " + qt_error_string(ECONNREFUSED)),
                 qPrintable(sent.error));
    }

    void aNameThatNobodyHas()
    {
        const Sent sent = send("tcp://no-such-printer.invalid");
        QVERIFY(!sent.isReached);
        QVERIFY2(sent.error.startsWith("tcp://no-such-printer.invalid:9100 is not found: "),
                 qPrintable(sent.error));
    }

    void namesOfOneAddressHaveOneLease()
    {
        QString error;
        const auto leasesOf = [&](const QString &name) {
            QByteArrayList names;
            for (const auto &place : placesOf(*deviceNamed(name, error), QDeadlineTimer(5s), error))
                names.append(place->leaseName());
            return names;
        };
        QCOMPARE(leasesOf("tcp://127.0.0.1"), QByteArrayList({"tcp-127.0.0.1-9100"}));
        QVERIFY(leasesOf("tcp://localhost").contains("tcp-127.0.0.1-9100"));
        QCOMPARE(leasesOf("tcp://[::ffff:127.0.0.1]"), QByteArrayList({"tcp-127.0.0.1-9100"}));
        QCOMPARE(leasesOf("/dev/null"), QByteArrayList({"device-1-3"}));
        const QTemporaryDir folder;
        QVERIFY(QFile::link("/dev/null", folder.filePath("link")));
        QCOMPARE(leasesOf(folder.filePath("link")), QByteArrayList({"device-1-3"}));
    }

    void aResetIsSeen()
    {
        PrinterFault fault;
        fault.resetsAfter = 10;
        NetworkPrinter printer(fault);
        VERIFY_LOST(send(printer.device()), qt_error_string(ECONNRESET));
    }

    /// It closes with bytes unread, which is a reset, or the end behind all that it took.
    void anEarlyCloseIsSeen()
    {
        PrinterFault fault;
        fault.closesAfter = 10;
        NetworkPrinter printer(fault);
        const Sent sent = send(printer.device());
        QVERIFY(sent.isReached);
        QVERIFY(!sent.isTaken);
    }

    void aPrinterThatStopsIsGivenUp()
    {
        PrinterFault fault;
        fault.stallsAfter = 100;
        NetworkPrinter printer(fault);
        VERIFY_LOST(send(printer.device(), document.repeated(300'000), 1s),
                    "the printer took no byte for 1 second");
    }

    /// What was given up must not come later: the connection is reset.
    void whatIsGivenUpIsTakenBack()
    {
        PrinterFault fault;
        fault.stallsAfter = 1;
        NetworkPrinter printer(fault);
        const QByteArray much = document.repeated(300'000);
        QVERIFY(!send(printer.device(), much, 1s).isTaken);
        QCOMPARE(printer.pages(), QList<QByteArray>({document.first(1)}));
    }

    void aFifoIsTakenWhenItIsRead()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("fifo");
        FifoPrinter printer(path);
        const QByteArray much = document.repeated(30'000);
        VERIFY_TAKEN(send(path, much));
        QVERIFY(printer.paper(much.size()) == much);
    }

    void aFifoThatNobodyReads()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("fifo");
        QCOMPARE(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
        const Sent sent = send(path);
        QVERIFY(!sent.isReached);
        QCOMPARE(sent.error, path + " cannot be reached: nobody reads from it");
    }

    void whatStaysInAFifoIsNotTaken()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("fifo");
        FifoPrinter printer(path);
        printer.stop();
        VERIFY_LOST(send(path, document, 1s), "the printer took no byte for 1 second");
    }

    void aSerialLineGetsEveryByteAsItIs()
    {
        LinePrinter printer;
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all += char(byte);
        VERIFY_TAKEN(send("serial:" + printer.path() + "?baud=19200", all.repeated(20)));
        QCOMPARE(printer.paper(all.size() * 20), all.repeated(20));
    }

    void theSpeedOfALineIsSet()
    {
        LinePrinter printer;
        VERIFY_TAKEN(send("serial:" + printer.path() + "?baud=19200"));
        const termios now = printer.settings();
        QCOMPARE(::cfgetospeed(&now), speed_t(B19200));
        QCOMPARE(now.c_lflag & (ICANON | ECHO | ISIG), tcflag_t(0));
        QCOMPARE(now.c_oflag & OPOST, tcflag_t(0));
        VERIFY_TAKEN(send(printer.path())); // by its path alone, the speed stays
        const termios later = printer.settings();
        QCOMPARE(::cfgetospeed(&later), speed_t(B19200));
    }

    void aLineThatSaysSomethingIsHeardOut()
    {
        LinePrinter printer;
        VERIFY_TAKEN(send(printer.path())); // from now on the line echoes nothing
        printer.say("\x11ready\r\n");
        VERIFY_TAKEN(send(printer.path(), document.repeated(199)));
        QCOMPARE(printer.paper(document.size() * 200), document.repeated(200));
    }

    void aLineThatTakesNothingIsGivenUp()
    {
        LinePrinter printer;
        printer.stop();
        VERIFY_LOST(send(printer.path(), document.repeated(30'000), 1s),
                    "the printer took no byte for 1 second");
    }

    void aFileIsAppendedTo()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath("paper");
        VERIFY_TAKEN(send("file:" + path));
        VERIFY_TAKEN(send("file:" + path));
        QCOMPARE(bytesOf(path), document + document);
    }

    void aDeviceOfCharacters()
    {
        VERIFY_TAKEN(send("/dev/null"));
        VERIFY_LOST(send("/dev/full"), qt_error_string(ENOSPC));
    }

    void whatIsNoDevice_data()
    {
        QTest::addColumn<QString>("error");
        QTest::newRow("/dev/no-such-printer") << "cannot be reached: " + qt_error_string(ENOENT);
        QTest::newRow("serial:/tmp") << QString("it is no serial line");
        QTest::newRow("serial:/dev/null") << "cannot be reached: " + qt_error_string(ENOTTY);
        QTest::newRow("file:/no/such/folder/paper")
            << "cannot be reached: " + qt_error_string(ENOENT);
    }

    void whatIsNoDevice()
    {
        QFETCH(QString, error);
        const Sent sent = send(QTest::currentDataTag());
        QVERIFY(!sent.isReached);
        QVERIFY2(sent.error.contains(error), qPrintable(sent.error));
    }
};

KORVEL_TEST(TestDevices)

} // namespace tst_devices

#include "tst_devices.moc"

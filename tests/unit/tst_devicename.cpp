// Names of devices: what they say, and what is none.
#include "delivery/devicename.h"
#include "support/files.h"
#include "support/test.h"

#include <QTemporaryDir>

#include <sys/stat.h>
#include <termios.h>

namespace tst_devicename {

using korvel::delivery::DeviceName;
using korvel::delivery::deviceNamed;
using Kind = DeviceName::Kind;

class TestDeviceName : public QObject
{
    Q_OBJECT

private slots:
    void names_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("spelling");
        QTest::addColumn<QString>("hostOrPath");
        QTest::addColumn<int>("portOrBaud");
        const auto row = [](const char *name, Kind kind, const QString &spelling,
                            const QString &hostOrPath, int portOrBaud) {
            QTest::newRow(name) << int(kind) << spelling << hostOrPath << portOrBaud;
        };
        // clang-format off
        row("tcp://192.168.1.50", Kind::Network, "tcp://192.168.1.50:9100", "192.168.1.50", 9100);
        row("tcp://192.168.1.50:515", Kind::Network, "tcp://192.168.1.50:515", "192.168.1.50", 515);
        row("tcp://Cassa.local", Kind::Network, "tcp://cassa.local:9100", "cassa.local", 9100);
        row("tcp://[::1]:9101", Kind::Network, "tcp://[::1]:9101", "::1", 9101);
        row("tcp://[fe80::1]", Kind::Network, "tcp://[fe80::1]:9100", "fe80::1", 9100);
        row("serial:/dev/ttyS0", Kind::Serial, "serial:/dev/ttyS0?baud=9600", "/dev/ttyS0", 9600);
        row("serial:/dev/ttyS1?baud=115200", Kind::Serial, "serial:/dev/ttyS1?baud=115200",
            "/dev/ttyS1", 115200);
        row("/dev/usb/lp0", Kind::Path, "/dev/usb/lp0", "/dev/usb/lp0", 0);
        row("/dev/null", Kind::Path, "/dev/null", "/dev/null", 0);
        row("file:/nowhere/paper", Kind::File, "file:/nowhere/paper", "/nowhere/paper", 0);
        // clang-format on
    }

    void names()
    {
        QFETCH(int, kind);
        QFETCH(QString, spelling);
        QFETCH(QString, hostOrPath);
        QFETCH(int, portOrBaud);
        QString error;
        const auto device = deviceNamed(QTest::currentDataTag(), error);
        QVERIFY2(device, qPrintable(error));
        QCOMPARE(int(device->kind), kind);
        QCOMPARE(device->text, spelling);
        QCOMPARE(device->kind == Kind::Network ? device->host : device->path, hostOrPath);
        QCOMPARE(device->kind == Kind::Network ? int(device->port) : device->baud, portOrBaud);
    }

    void noNames_data()
    {
        QTest::addColumn<QString>("advice");
        const auto row = [](const char *name, const char *advice) {
            QTest::newRow(name) << QString(advice);
        };
        row("", "write tcp://HOST");
        row("lp0", "write tcp://HOST");
        row("usb:/dev/usb/lp0", "write tcp://HOST");
        row("file:paper", "file:/path");
        row("file:/tmp/", "file:/path");
        row("tcp://", "write tcp://HOST");
        row("tcp://:9100", "write tcp://HOST");
        row("tcp://cassa:", "write tcp://HOST");
        row("tcp://cassa:0", "write tcp://HOST");
        row("tcp://cassa:65536", "write tcp://HOST");
        row("tcp://cassa:ipp", "write tcp://HOST");
        row("tcp://cassa/queue", "write tcp://HOST");
        row("tcp://::1:9100", "IPv6 address in brackets");
        row("tcp://[]", "IPv6 address in brackets");
        row("tcp://[::1]9100", "write tcp://HOST");
        row("tcp://user@cassa", "write tcp://HOST");
        row("serial:ttyS0", "write serial:/dev/ttyS0?baud=9600");
        row("serial:/dev/ttyS0?baud=9601", "9600, 19200");
        row("serial:/dev/ttyS0?baud=", "9600, 19200");
        row("serial:/dev/ttyS0?parity=even", "write serial:/dev/ttyS0?baud=9600");
        row("/dev/\x1b[2J", "does not print");
        row("/tmp", "/tmp is no device of characters and no FIFO");
        row("tcp://cassa\n", "does not print");
    }

    void noNames()
    {
        QFETCH(QString, advice);
        QString error;
        QVERIFY(!deviceNamed(QTest::currentDataTag(), error));
        QVERIFY2(error.contains(advice), qPrintable(error));
        QVERIFY(!error.contains('\n') && !error.contains('\x1b'));
    }

    void aFileIsNoDeviceAndADeviceNoFile()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("paper");
        const QString fifo = folder.filePath("fifo");
        writeFile(file, "=");
        QCOMPARE(::mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
        QString error;
        QVERIFY(!deviceNamed(file, error));
        QVERIFY2(error.contains("write file:" + file), qPrintable(error));
        QVERIFY(!deviceNamed("file:" + fifo, error));
        QVERIFY2(error.contains("leave out file:"), qPrintable(error));
        QVERIFY(deviceNamed(fifo, error));
        QVERIFY(deviceNamed("file:" + file, error));
    }

    void speeds()
    {
        QCOMPARE(korvel::delivery::terminalSpeed(9600), unsigned(B9600));
        QCOMPARE(korvel::delivery::terminalSpeed(115200), unsigned(B115200));
        QCOMPARE(korvel::delivery::terminalSpeed(0), 0U);
        QCOMPARE(korvel::delivery::terminalSpeed(9601), 0U);
    }
};

KORVEL_TEST(TestDeviceName)

} // namespace tst_devicename

#include "tst_devicename.moc"

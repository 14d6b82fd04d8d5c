// That korvel-printer-sim stays small, whatever is sent.
#include "support/launch.h"
#include "support/simulatordesk.h"
#include "support/test.h"

#include <QThread>

#include <memory>

namespace tst_simulatorlimits {

constexpr qsizetype megabyte = 1'048'576;

/// Sends while what the simulator says is read; until it says that the connection is closed.
void send(Simulator &simulator, const QByteArray &stream)
{
    const quint16 port = simulator.port();
    const std::unique_ptr<QThread> till(QThread::create([&stream, port] {
        Sender sender(port);
        sender.send(stream);
        sender.finish();
        sender.meets();
    }));
    till->start();
    simulator.waitFor("closed by the sender");
    till->wait();
}

/// The most memory that a process has had, kilobytes.
long peakOf(qint64 process)
{
    for (const QByteArray &line :
         bytesOf("/proc/" + QString::number(process) + "/status").split('\n'))
        if (line.startsWith("VmHWM:"))
            return line.simplified().split(' ').value(1).toLong();
    return -1;
}

class TestSimulatorLimits : public QObject
{
    Q_OBJECT

private slots:
    void memory_data()
    {
        QTest::addColumn<QByteArray>("pattern");
        QTest::addColumn<qsizetype>("size");
        QTest::newRow("one line that does not end") << QByteArray("x") << 40 * megabyte;
        QTest::newRow("what takes four characters a byte") << QByteArray("\x01") << 5 * megabyte;
        QTest::newRow("lines without a text") << QByteArray("\n") << megabyte / 2;
        QTest::newRow("documents") << documentOf("a") << megabyte / 4;
        QTest::newRow("sale rows") << QByteArray("=R1/$1/*1/(x)\n") << megabyte;
    }

    void memory()
    {
        QFETCH(QByteArray, pattern);
        QFETCH(qsizetype, size);
        Simulator simulator({anyPort});
        const QByteArray bytes = pattern.repeated(size / pattern.size());
        send(simulator, "=o\n" + bytes + "\n=o\n" + documentOf("last"));
        const long peak = peakOf(simulator.id());
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(run.standardOutput.contains("│last "));
        QVERIFY(peak > 0);
        if (!built::sanitized)
            QVERIFY2(peak < 200'000, QByteArray::number(qlonglong(peak)).constData());
    }

    void aDocumentThatIsTooLarge()
    {
        Simulator simulator({anyPort});
        const QByteArray large = "=o\n" + line(QByteArray(4 * megabyte, 'x')) + "=o\n";
        send(simulator, large + documentOf("small"));
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(
            remarksOf(run.standardOutput).mid(3),
            QStringList({
                "document 1: document section, 4194317 bytes",
                "larger than 4194304 bytes: the rest is left out",
                "document 1:1: byte 0: error: the document section opened here is never closed "
                "[left-open]",
                "document 1:2: byte 4194304: error: unterminated text line that begins at byte "
                "3: the stream ends here [unterminated-command]",
                "document 2: document section, 18 bytes",
                "connection 1 closed by the sender: 4194335 bytes, 1 whole document",
                "end of the day: 1 document, 1 not whole; registered 0.00 in 0 fiscal "
                "receipts",
            }));
    }

    void aPaperThatIsTooLong()
    {
        Simulator simulator({anyPort});
        send(simulator, "=o\n" + line("x").repeated(100'002) + "=o\n");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(run.standardOutput.count("\n│x "), 100'000);
        QVERIFY(run.standardOutput.contains("┘\n2 more rows left out\n"));
    }
};

KORVEL_TEST(TestSimulatorLimits)

} // namespace tst_simulatorlimits

#include "tst_simulatorlimits.moc"

// korvel-printer-sim on a serial line.
#include "support/simulatordesk.h"
#include "support/test.h"

namespace tst_simulatorline {

const QByteArray receipt = bytesOf(KORVEL_SOURCE_DIR "/examples/expected/receipt.out");

/// A till that has the line open.
class Line
{
public:
    explicit Line(const QString &path)
        : descriptor(::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_CLOEXEC))
    {
    }
    ~Line() { ::close(descriptor); }
    Q_DISABLE_COPY_MOVE(Line)

    /// Writes all bytes, or as many as are taken within a moment; how many were.
    qsizetype send(QByteArrayView bytes, int moment = simulatorPatience) const
    {
        ::fcntl(descriptor, F_SETFL, O_NONBLOCK);
        qsizetype taken = 0;
        pollfd polled{descriptor, POLLOUT, 0};
        while (taken < bytes.size() && ::poll(&polled, 1, moment) == 1
               && (polled.revents & POLLERR) == 0) {
            const ssize_t count = ::write(descriptor, bytes.data() + taken,
                                          static_cast<std::size_t>(bytes.size() - taken));
            if (count < 0 && errno != EAGAIN)
                break;
            taken += std::max<ssize_t>(count, 0);
        }
        return taken;
    }

    [[nodiscard]] termios settings() const
    {
        termios result = {};
        ::tcgetattr(descriptor, &result);
        return result;
    }

    const int descriptor;
};

void deliver(const QString &path, QByteArrayView stream)
{
    const Line line(path);
    QCOMPARE(line.send(stream), stream.size());
}

QStringList courseOf(const Run &run)
{
    return remarksOf(run.standardOutput).filter(QRegularExpression("^connection |listening"));
}

class TestSimulatorLine : public QObject
{
    Q_OBJECT

private slots:
    void theLineIsRaw()
    {
        Simulator simulator({"--pty"});
        const Line line(simulator.place());
        QVERIFY(line.descriptor >= 0);
        QVERIFY(::isatty(line.descriptor) == 1);
        const termios settings = line.settings();
        QCOMPARE(::cfgetospeed(&settings), speed_t(B9600));
        QCOMPARE(::cfgetispeed(&settings), speed_t(B9600));
        QCOMPARE(settings.c_cflag & (CSIZE | PARENB | CSTOPB), tcflag_t(CS8));
        QCOMPARE(settings.c_lflag & (ICANON | ECHO | ISIG), tcflag_t(0));
        QCOMPARE(settings.c_iflag & (ICRNL | IXON | ISTRIP), tcflag_t(0));
        QCOMPARE(settings.c_oflag & OPOST, tcflag_t(0));
        VERIFY_SIMULATED(simulator.end());
    }

    /// Every byte comes through as it was sent, line feeds, carriage returns and controls alike.
    void bytesAsTheyAre()
    {
        QByteArray all = "=o\n=S\r\n=V/$50\r\n";
        for (int byte = 0; byte < 256; ++byte)
            all += char(byte);
        all += "\n=o\n";
        const QTemporaryDir folder;
        Simulator simulator({"--pty", "--paper", folder.path(), "--documents=1"});
        deliver(simulator.place(), all);
        VERIFY_SIMULATED(simulator.finish());
        QCOMPARE(bytesOf(folder.filePath("0001.out")), all);
    }

    /// A client that sets the line up itself, drains it and closes.
    void aClientAt9600()
    {
        Simulator simulator({"--pty"});
        {
            const Line line(simulator.place());
            termios settings = line.settings();
            ::cfmakeraw(&settings);
            ::cfsetspeed(&settings, B9600);
            QCOMPARE(::tcsetattr(line.descriptor, TCSANOW, &settings), 0);
            QCOMPARE(line.send(receipt), receipt.size());
            QCOMPARE(::tcdrain(line.descriptor), 0);
        }
        simulator.waitFor("closed by the sender");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run).mid(1),
                 QStringList({"connection 1",
                              "connection 1 closed by the sender: 926 bytes, 1 whole document"}));
    }

    /// A connection is what comes until nobody has the line open.
    void oneAfterTheOther()
    {
        Simulator simulator({"--pty"});
        deliver(simulator.place(), receipt + "=o/*1\n");
        simulator.waitFor("connection 1 closed");
        { // opened and closed: nothing came
            const Line line(simulator.place());
        }
        deliver(simulator.place(), receipt);
        simulator.waitFor("connection 2 closed");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run).mid(1),
                 QStringList({"connection 1",
                              "connection 1 closed by the sender: 932 bytes, 1 whole document",
                              "connection 2",
                              "connection 2 closed by the sender: 926 bytes, 1 whole document"}));
        QVERIFY(run.standardOutput.contains("cut off"));
    }

    void endedWithALineOpen()
    {
        Simulator simulator({"--pty"});
        const Line line(simulator.place());
        line.send("=o\nx");
        simulator.waitFor("connection 1");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(courseOf(run).last().startsWith("connection 1 closed: "));
    }

    /// As if the adapter were unplugged: the line is gone, and there is another one.
    void reset()
    {
        Simulator simulator({"--pty", "--fault=reset=64", "--first=1"});
        const QString before = simulator.place();
        const Line line(before);
        line.send(receipt);
        simulator.waitFor("listening", 2);
        QCOMPARE(line.send("x"), 0);
        deliver(simulator.place(), receipt);
        simulator.waitFor("connection 2 closed");
        const QString after = simulator.place();
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run),
                 QStringList({"listening on " + before, "connection 1",
                              "connection 1: fault reset=64, 64 bytes read",
                              "connection 1 reset by the fault: 64 bytes, 0 whole documents",
                              "listening on " + after, "connection 2",
                              "connection 2 closed by the sender: 926 bytes, 1 whole document"}));
    }

    void readsNoFurther_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("bytes");
        QTest::newRow("stall") << "stall=100" << 100;
        QTest::newRow("deaf") << "deaf" << 0;
    }

    /// The line takes nothing more until it is closed; what was not read is not the next till's.
    void readsNoFurther()
    {
        QFETCH(QString, fault);
        QFETCH(int, bytes);
        Simulator simulator({"--pty", "--fault=" + fault, "--first=1"});
        {
            const Line line(simulator.place());
            QVERIFY(line.send(QByteArray(1'000'000, 'x'), 500) < 1'000'000);
            simulator.waitFor("fault");
        }
        simulator.waitFor("left open by the fault");
        deliver(simulator.place(), receipt);
        simulator.waitFor("connection 2 closed");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const QString read = QString::number(bytes);
        QCOMPARE(courseOf(run).mid(1),
                 QStringList({
                     "connection 1",
                     "connection 1: fault " + fault + ", " + read + " bytes read",
                     "connection 1 left open by the fault: " + read + " bytes, 0 whole documents",
                     "connection 2",
                     "connection 2 closed by the sender: 926 bytes, 1 whole document",
                 }));
    }

    void slow()
    {
        Simulator simulator({"--pty", "--fault=slow=20000", "--documents=1"});
        deliver(simulator.place(), receipt);
        const Run run = simulator.finish();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run).last(),
                 QString("connection 1 closed by the sender: 926 bytes, 1 whole document"));
    }
};

KORVEL_TEST(TestSimulatorLine)

} // namespace tst_simulatorline

#include "tst_simulatorline.moc"

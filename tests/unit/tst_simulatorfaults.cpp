// What senders over the network meet at a printer that goes wrong.
#include "support/simulatordesk.h"
#include "support/test.h"

namespace tst_simulatorfaults {

const QByteArray receipt = bytesOf(KORVEL_SOURCE_DIR "/examples/expected/receipt.out");

// More than the system takes in the printer's place: it takes a few hundred kilobytes at most.
const QByteArray muchText = "=o\n" + line("x").repeated(400'000) + "=o\n";

/// What is said of connections and of the day.
QStringList courseOf(const Run &run) { return remarksOf(run.standardOutput).filter("connection "); }

class TestSimulatorFaults : public QObject
{
    Q_OBJECT

private slots:
    void refuse()
    {
        Simulator simulator({anyPort, "--fault=refuse"});
        for (int i = 0; i < 3; ++i)
            QCOMPARE(Sender(simulator.port()).error, ECONNREFUSED);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(
            remarksOf(run.standardOutput).mid(2),
            QStringList({"fault refuse",
                         "end of the day: 0 documents; registered 0.00 in 0 fiscal receipts"}));
    }

    void reset_data()
    {
        QTest::addColumn<int>("bytes");
        QTest::addColumn<QStringList>("documents");
        QTest::newRow("at once") << 0 << QStringList();
        QTest::newRow("in a document") << 64 << QStringList{"cut-off"};
        QTest::newRow("behind a document") << int(receipt.size()) << QStringList{"closed"};
        QTest::newRow("in the next one")
            << int(receipt.size()) + 3 << QStringList{"closed", "cut-off"};
    }

    /// Exactly so many bytes are read, and the sender meets an error; the next one is served.
    void reset()
    {
        QFETCH(int, bytes);
        QFETCH(QStringList, documents);
        Simulator simulator(
            {anyPort, "--json", "--first=1", "--fault=reset=" + QString::number(bytes)});
        const auto port = quint16(eventsOf(simulator.waitFor("listening")).first()["port"].toInt());
        {
            Sender sender(port);
            sender.send(receipt + receipt);
            QCOMPARE(sender.meets(), Met::Reset);
        }
        QCOMPARE(deliver(port, receipt), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const QJsonObject fault = eventsOf(run.standardOutput, "fault").value(0);
        QCOMPARE(fault["bytes"], bytes);
        QCOMPARE(fault["connection"], 1);
        QCOMPARE(fault["fault"], "reset=" + QString::number(bytes));
        QStringList ends;
        for (const QJsonObject &document : eventsOf(run.standardOutput, "document"))
            ends.append(document["end"].toString());
        QCOMPARE(ends, documents + QStringList{"closed"});
        const QList<QJsonObject> closed = eventsOf(run.standardOutput, "closed");
        QCOMPARE(closed.size(), 2);
        QCOMPARE(closed[0]["by"], "fault-reset");
        QCOMPARE(closed[0]["bytes"], bytes);
        QCOMPARE(closed[1]["by"], "sender");
    }

    void aStreamThatEndsBeforeTheFault()
    {
        Simulator simulator({anyPort, "--fault=reset=100000"});
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(!run.standardOutput.contains("fault"));
    }

    void readsNoFurther_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<int>("bytes");
        QTest::newRow("stall") << "stall=100" << 100;
        QTest::newRow("stall at once") << "stall=0" << 0;
        QTest::newRow("deaf") << "deaf" << 0;
    }

    /// The sender can hand nothing over any more, and meets no end; the next one is served.
    void readsNoFurther()
    {
        QFETCH(QString, fault);
        QFETCH(int, bytes);
        Simulator simulator({anyPort, "--first=1", "--fault=" + fault});
        Sender sender(simulator.port());
        int buffer = 4096; // the sender's own, so that it is soon full
        QCOMPARE(setsockopt(sender.descriptor, SOL_SOCKET, SO_SNDBUF, &buffer, sizeof buffer), 0);
        QVERIFY(sender.send(muchText, 500) < muchText.size());
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        QCOMPARE(sender.meets(0), Met::Nothing);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const QString read = QString::number(bytes);
        QCOMPARE(courseOf(run),
                 QStringList({
                     "connection 1 from 127.0.0.1",
                     "connection 1: fault " + fault + ", " + read + " bytes read",
                     "connection 1 left open by the fault: " + read + " bytes, 0 whole documents",
                     "connection 2 from 127.0.0.1",
                     "connection 2 closed by the sender: 926 bytes, 1 whole document",
                 }));
        QCOMPARE(run.standardOutput.contains("cut off: its end did not come"), bytes > 0);
    }

    /// All is read as ever, but by so many bytes at a time that they last.
    void slow()
    {
        Simulator simulator({anyPort, "--fault=slow=20000"});
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run),
                 QStringList({
                     "connection 1 from 127.0.0.1",
                     "connection 1: fault slow=20000, 0 bytes read",
                     "connection 1 closed by the sender: 926 bytes, 1 whole document",
                 }));
    }

    /// One byte a second: a signal need not wait for the next one.
    void slowAndEnded()
    {
        Simulator simulator({anyPort, "--fault=slow=1"});
        Sender sender(simulator.port());
        sender.send(muchText, 0);
        simulator.waitFor("fault slow=1");
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(courseOf(run).last().startsWith("connection 1 closed: "));
    }

    void keepOpen()
    {
        Simulator simulator({anyPort, "--first=1", "--fault=keep-open"});
        Sender sender(simulator.port());
        sender.send(receipt);
        sender.finish();
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        QCOMPARE(sender.meets(0), Met::Nothing);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(courseOf(run),
                 QStringList({
                     "connection 1 from 127.0.0.1",
                     "connection 1: fault keep-open, 926 bytes read",
                     "connection 1 left open by the fault: 926 bytes, 1 whole document",
                     "connection 2 from 127.0.0.1",
                     "connection 2 closed by the sender: 926 bytes, 1 whole document",
                 }));
    }

    /// Each of the first two has the fault, and no other.
    void theFirstOnes()
    {
        Simulator simulator({anyPort, "--first=2", "--fault=reset=0"});
        QCOMPARE(Sender(simulator.port()).meets(), Met::Reset);
        QCOMPARE(Sender(simulator.port()).meets(), Met::Reset);
        QCOMPARE(deliver(simulator.port(), receipt), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(remarksOf(run.standardOutput).filter("reset by the fault").size(), 2);
    }

    void allUnlessGiven()
    {
        Simulator simulator({anyPort, "--fault=reset=0"});
        for (int i = 0; i < 5; ++i)
            QCOMPARE(Sender(simulator.port()).meets(), Met::Reset);
        VERIFY_SIMULATED(simulator.end());
    }

    /// Of connections that are left open, there is no end: the oldest are closed.
    void moreThanAHundredLeftOpen()
    {
        Simulator simulator({anyPort, "--fault=deaf"});
        std::vector<std::unique_ptr<Sender>> senders;
        for (int i = 0; i < 101; ++i)
            senders.push_back(std::make_unique<Sender>(simulator.port()));
        QCOMPARE(senders.front()->meets(), Met::End);
        QCOMPARE(senders.back()->meets(0), Met::Nothing);
        QCOMPARE(senders[1]->meets(0), Met::Nothing);
        VERIFY_SIMULATED(simulator.end());
    }
};

KORVEL_TEST(TestSimulatorFaults)

} // namespace tst_simulatorfaults

#include "tst_simulatorfaults.moc"

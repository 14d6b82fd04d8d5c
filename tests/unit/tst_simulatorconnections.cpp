// What korvel-printer-sim makes of what senders send.
#include "support/simulatordesk.h"
#include "support/test.h"

#include <memory>

namespace tst_simulatorconnections {

class TestSimulatorConnections : public QObject
{
    Q_OBJECT

private slots:
    /// A document is on paper as soon as its end has come, with the connection still open.
    void aDocumentAsItArrives()
    {
        Simulator simulator({anyPort});
        Sender sender(simulator.port());
        for (const char byte : "=o\n=\"/(Ciao )\n=" + QByteArray("o"))
            QCOMPARE(sender.send(QByteArray(1, byte)), 1);
        sender.send("\n=o/*1\n");
        const QString said = QString::fromUtf8(simulator.waitFor("└"));
        QCOMPARE(said.section('\n', 2), QString("connection 1 from 127.0.0.1\n"
                                                "document 1: document section, 17 bytes\n"
                                                "┌────────────────────────────────┐\n"
                                                "│Ciao                            │\n"
                                                "└────────────────────────────────┘\n"));
        sender.finish();
        QCOMPARE(sender.meets(), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(remarksOf(run.standardOutput).mid(4),
                 QStringList({
                     "document 2: receipt section, 6 bytes",
                     "cut off: its end did not come",
                     "document 2:1: byte 0: error: the receipt section opened here is never closed "
                     "[left-open]",
                     "connection 1 closed by the sender: 23 bytes, 1 whole document",
                     "end of the day: 1 document, 1 not whole; registered 0.00 in 0 fiscal "
                     "receipts",
                 }));
    }

    void whatIsWrong()
    {
        Simulator simulator({anyPort});
        QCOMPARE(deliver(simulator.port(),
                         "x\n" + documentOf(QByteArray(33, 'x')) + "=K\n=C1\n" + documentOf("a")),
                 Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(
            remarksOf(run.standardOutput).mid(3),
            QStringList({
                "document 1: outside any section, 2 bytes",
                "document 1:1: byte 0: error: unknown command: \"x\" does not belong here "
                "[unknown-command]",
                "document 2: document section, 46 bytes",
                "document 2:2: byte 3: warning: a line of 33 characters is wider than the paper "
                "(32) "
                "[too-wide]",
                "document 3: fiscal section, 7 bytes",
                "another section was opened before it was closed",
                "document 3:1: byte 0: error: the fiscal section opened here is never closed "
                "[left-open]",
                "registered today: 0.00 in 0 fiscal receipts",
                "document 4: document section, 14 bytes",
                "connection 1 closed by the sender: 69 bytes, 2 whole documents",
                "end of the day: 2 documents, 2 not whole; registered 0.00 in 0 fiscal receipts",
            }));
    }

    /// One sender is served at a time, in the order in which they came.
    void othersWait()
    {
        Simulator simulator({anyPort, "--json"});
        simulator.waitFor("notice");
        const quint16 port =
            static_cast<quint16>(eventsOf(simulator.waitFor("listening")).first()["port"].toInt());
        auto first = std::make_unique<Sender>(port);
        first->send("=o\n");
        simulator.waitFor("connected");
        QList<std::shared_ptr<Sender>> others;
        for (int i = 0; i < 20; ++i) {
            others.append(std::make_shared<Sender>(port));
            QCOMPARE(others.last()->error, 0);
            others.last()->send(documentOf(QByteArray::number(i)));
            others.last()->finish();
        }
        QCOMPARE(others.first()->meets(100), Met::Nothing);
        first->send("=o\n");
        first->finish();
        QCOMPARE(first->meets(), Met::End);
        for (const auto &other : others)
            QCOMPARE(other->meets(), Met::End);

        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QStringList papers;
        for (const QJsonObject &document : eventsOf(run.standardOutput, "document")) {
            QCOMPARE(document["document"], document["connection"]);
            papers.append(document["paper"].toArray().isEmpty()
                              ? QString()
                              : document["paper"].toArray().first().toString());
        }
        QStringList expected = {""};
        for (int i = 0; i < 20; ++i)
            expected.append(QString::number(i));
        QCOMPARE(papers, expected);
    }

    void aSenderThatSaysNothing()
    {
        Simulator simulator({anyPort});
        QCOMPARE(deliver(simulator.port(), {}), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QCOMPARE(
            remarksOf(run.standardOutput).mid(2),
            QStringList({"connection 1 from 127.0.0.1",
                         "connection 1 closed by the sender: 0 bytes, 0 whole documents",
                         "end of the day: 0 documents; registered 0.00 in 0 fiscal receipts"}));
    }

    /// A sender that is gone with an error leaves what it sent, and the next one is served.
    void aSenderThatResets()
    {
        Simulator simulator({anyPort});
        {
            Sender sender(simulator.port());
            sender.send(documentOf("a") + "=o\n=\"/(b");
            simulator.waitFor("document 1");
            const linger hard{1, 0};
            QCOMPARE(setsockopt(sender.descriptor, SOL_SOCKET, SO_LINGER, &hard, sizeof hard), 0);
        }
        simulator.waitFor("reset by the sender");
        QCOMPARE(deliver(simulator.port(), documentOf("c")), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(run.standardOutput.contains("connection 1 reset by the sender: "));
        QVERIFY(run.standardOutput.contains("\ndocument 3: document section, 14 bytes\n"));
    }

    /// The eighth bit, escapes, a byte order mark, directions: a terminal gets none of them.
    void noControlCharacterComesThrough_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<QByteArray>("frame");
        for (const QStringList &options :
             {QStringList{}, {"--json"}, {"--charset=ISO-8859-1"}, {"--charset=cp858", "--json"}}) {
            const QByteArray name = options.join(' ').toUtf8();
            QTest::addRow("in a line %s", name.constData()) << options << line("*");
            QTest::addRow("in a sale row %s", name.constData()) << options
                                                                << QByteArray("=R*/$*/*"
                                                                              "*/(*)\n");
            QTest::addRow("outside %s", name.constData()) << options << QByteArray("*\n");
        }
    }

    void noControlCharacterComesThrough()
    {
        QFETCH(QStringList, options);
        QFETCH(QByteArray, frame);
        QByteArray hostile;
        for (int byte = 0; byte < 256; ++byte)
            if (byte != '\n')
                hostile += char(byte);
        hostile += "\xC2\x9B"
                   "31m\xE2\x80\xAE\xE2\x80\xA8\xEF\xBB\xBF\x1b]0;x\x07\x7f";
        Simulator simulator(QStringList{anyPort} + options);
        const quint16 port =
            options.contains("--json")
                ? quint16(eventsOf(simulator.waitFor("listening")).first()["port"].toInt())
                : simulator.port();
        QCOMPARE(deliver(port, frame.replace('*', hostile)), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        QVERIFY(run.standardOutput.isValidUtf8());
        const QString text = QString::fromUtf8(run.standardOutput).remove('\n');
        for (const QChar character : text)
            QVERIFY2(character.isPrint() && character != QChar(0x2028),
                     QByteArray::number(character.unicode(), 16).constData());
    }

    void events()
    {
        Simulator simulator({anyPort, "--json"});
        const int port = eventsOf(simulator.waitFor("listening")).first()["port"].toInt();
        QCOMPARE(deliver(quint16(port), fiscal("=R1/$120/*2/(COFFEE)\n") + "=o/*1\n"), Met::End);
        const Run run = simulator.end();
        VERIFY_SIMULATED(run);
        const auto object = [](const char *text) { return QJsonDocument::fromJson(text).object(); };
        QJsonObject listening = object(
            R"({"event": "listening", "host": "127.0.0.1", "notice":
                "this is no fiscal device: what it takes is neither printed nor registered"})");
        listening["port"] = port;
        const QList<QJsonObject> expected = {
            listening,
            object(R"({"event": "connected", "connection": 1, "from": "127.0.0.1"})"),
            object(R"({"event": "document", "document": 1, "connection": 1, "section": "fiscal",
                "end": "closed", "whole": true, "bytes": 32, "rowsLeftOut": 0, "paper":
                ["  2 x 1.20", "COFFEE                   2.40 R1",
                "--------------------------------", "Sum (by the preview)        2.40"]})"),
            object(R"({"event": "amounts", "documents": 1, "others": 0, "fiscalReceipts": 1,
                "registered": "2.40", "rowsNotCounted": 0})"),
            object(R"({"event": "document", "document": 2, "connection": 1, "section": "receipt",
                "end": "cut-off", "whole": false, "bytes": 6, "rowsLeftOut": 0, "paper": []})"),
            object(R"({"event": "finding", "document": 2, "level": "error", "code": "left-open",
                "line": 1, "offset": 0, "text":
                "the receipt section opened here is never closed"})"),
            object(R"({"event": "closed", "connection": 1, "by": "sender", "bytes": 38,
                "documents": 1})"),
            object(R"({"event": "ended", "documents": 1, "others": 1, "fiscalReceipts": 1,
                "registered": "2.40", "rowsNotCounted": 0})"),
        };
        QCOMPARE(eventsOf(run.standardOutput), expected);
    }
};

KORVEL_TEST(TestSimulatorConnections)

} // namespace tst_simulatorconnections

#include "tst_simulatorconnections.moc"

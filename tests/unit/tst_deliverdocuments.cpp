// What korvel-deliver sends: jobs and streams, in the printer's code page, under ids.
#include "support/deliverdesk.h"
#include "support/test.h"

#include <QRegularExpression>

namespace tst_deliverdocuments {

class TestDeliverDocuments : public QObject
{
    Q_OBJECT

private slots:
    void aJob()
    {
        const DeliverDesk desk;
        const Run run = desk.run({"--id", "till1-118", "receipt.xml"});
        VERIFY_DELIVERY(run, 0,
                        "receipt.xml: sent to " + desk.device().toUtf8() + " as till1-118\n");
        QCOMPARE(desk.paper(), receipt());
        QCOMPARE(desk.journal({"show", "till1-118", "--stream"}).standardOutput, receipt());
        QCOMPARE(desk.journal({"show", "till1-118", "--job"}).standardOutput,
                 bytesOf(desk.path("receipt.xml")));
    }

    void aStream()
    {
        const DeliverDesk desk;
        writeFile(desk.path("receipt.out"), receipt());
        VERIFY_DELIVERY(desk.run({"receipt.out"}), 0, "sent");
        QCOMPARE(desk.paper(), receipt());
    }

    void standardInput()
    {
        const DeliverDesk desk;
        VERIFY_DELIVERY(desk.run({"-"}, receipt()), 0, "-: sent");
        VERIFY_DELIVERY(desk.run({"-"}, bytesOf(desk.path("receipt.xml"))), 0, "-: sent");
        QCOMPARE(desk.paper(), receipt() + receipt());
    }

    void thePrintersCodePage()
    {
        const DeliverDesk desk;
        writeFile(desk.path("x.out"), "=o/*1\n=\"/(Caffè 1 € )\n=o\n");
        VERIFY_DELIVERY(desk.run({"--charset", "CP858", "x.out"}), 0, "sent");
        QCOMPARE(desk.paper(), QByteArray("=o/*1\n=\"/(Caff\x8a 1 \xd5 )\n=o\n"));
    }

    void calledAgainItSendsNothing()
    {
        const DeliverDesk desk;
        const QStringList call = {"--id", "a 1", "--charset", "cp858", "receipt.xml"};
        VERIFY_DELIVERY(desk.run(call), 0, "sent to");
        VERIFY_DELIVERY(desk.run(call), 0, "receipt.xml: already sent as a 1\n");
        // The name of a code page is the same in capitals.
        VERIFY_DELIVERY(desk.run({"--id", "a 1", "--charset", "CP858", "receipt.xml"}), 0,
                        "already sent");
        QCOMPARE(desk.paper().count("Serial Number"), 1);
    }

    /// What the code page lacks is not lost in silence.
    void whatIsLostIsInTheJournal()
    {
        const DeliverDesk desk;
        writeFile(desk.path("odd.out"), "=o\n=\"/(\xE6\x97\xA5\xE6\x9C\xAC )\n=o\n");
        VERIFY_DELIVERY(desk.run({"--id", "a", "--charset", "cp858", "odd.out"}), 0, "sent");
        const QByteArray shown = desk.journal({"show", "a"}).standardOutput;
        QVERIFY2(shown.contains("accepted: odd.out:2:5: \"\xE6\x97\xA5\" is not in cp858: \"?\" is "
                                "sent in its place (and 1 more)\n"),
                 shown.constData());
    }

    void otherInputUnderAnIdIsRefused()
    {
        const DeliverDesk desk;
        writeFile(desk.path("other.conf"),
                  bytesOf(desk.path("home/.korvel/conf/korvel.conf")) + "\n");
        VERIFY_DELIVERY(desk.run({"--id", "a", "receipt.xml"}), 0, "sent");
        const QByteArray paper = desk.paper();
        VERIFY_DELIVERY(desk.run({"--id", "a", "fiscal.xml"}), 1,
                        "the id a was given to another document, which is sent: give this one an "
                        "id of its own");
        VERIFY_DELIVERY(desk.run({"--id", "a", "--charset", "cp858", "receipt.xml"}), 1,
                        "the id a was given to this document in the code page utf-8, which is "
                        "sent: with a new id it comes out once more");
        VERIFY_DELIVERY(desk.run({"--id", "a", "--settings", "other.conf", "receipt.xml"}), 1,
                        "the id a was given to this document with other settings, which is sent: "
                        "with a new id it comes out once more");
        QCOMPARE(desk.paper(), paper);
    }

    void whatWasRefusedIsCorrectedUnderItsId()
    {
        const DeliverDesk desk;
        writeFile(desk.path("wrong.xml"), "<printjob><method name=\"printFullOrderReceipt\"/>");
        VERIFY_DELIVERY(desk.run({"--id", "a", "wrong.xml"}), 1, "wrong.xml:1:");
        VERIFY_DELIVERY(desk.run({"--id", "a", "wrong.xml"}), 1, "wrong.xml:1:");
        QCOMPARE(desk.paper(), QByteArray());
        VERIFY_DELIVERY(desk.run({"--id", "a", "receipt.xml"}), 0, "sent");
        QCOMPARE(desk.paper(), receipt());
    }

    void withoutAnIdEachCallIsADocument()
    {
        const DeliverDesk desk;
        static const QRegularExpression uuid(" as [0-9a-f]{8}(-[0-9a-f]{4}){3}-[0-9a-f]{12}\n$");
        const Run first = desk.run({"receipt.xml"});
        const Run second = desk.run({"receipt.xml"});
        QVERIFY(uuid.match(QString::fromUtf8(first.standardOutput)).hasMatch());
        QVERIFY(first.standardOutput != second.standardOutput);
        QCOMPARE(desk.paper(), receipt() + receipt());
    }

    void severalFilesUntilOneIsNotSent()
    {
        const DeliverDesk desk;
        writeFile(desk.path("wrong.xml"), "<printjob>");
        const Run run = desk.run({"receipt.xml", "receipt.xml", "wrong.xml", "receipt.xml"});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.standardOutput.count("receipt.xml: sent to"), 2);
        QCOMPARE(run.standardError.count('\n'), 1);
        QCOMPARE(desk.paper(), receipt() + receipt());
    }

    void aDryRunSendsNothingAndShowsWhatIsFound()
    {
        const DeliverDesk desk;
        writeFile(desk.path("x.out"), "=o/*1\n=\"/(Caffè )\n=o\n");
        const Run run = desk.run({"--dry-run", "--charset", "us-ascii", "x.out"});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.standardOutput, "x.out: would be sent to " + desk.device().toUtf8() + '\n');
        QCOMPARE(run.standardError,
                 QByteArray("x.out:2:9: \"è\" is not in us-ascii: \"e\" is sent in its place\n"));
        QVERIFY(!QFile::exists(desk.path("journal.db")));
        QVERIFY(!QFile::exists(desk.path("paper")));
        writeFile(desk.path("wrong.xml"), "<printjob>");
        QCOMPARE(desk.run({"--dry-run", "wrong.xml"}).status, 1);
        QVERIFY(!QFile::exists(desk.path("journal.db")));
    }

    void whatWouldCommandATerminalIsNotShown()
    {
        const DeliverDesk desk;
        const QString name = "a\x1b[2Jb.out";
        writeFile(desk.path(name), "no command \x1b[2J\n");
        const Run run = desk.run({"--dry-run", name});
        QCOMPARE(run.status, 1);
        QVERIFY(!run.standardError.contains('\x1b'));
        QVERIFY(!desk.run({name}).standardError.contains('\x1b'));
        writeFile(desk.path(name), receipt());
        QVERIFY(!desk.run({name}).standardOutput.contains('\x1b'));
        QVERIFY(!desk.journal({"list"}).standardOutput.contains('\x1b'));
    }
};

KORVEL_TEST(TestDeliverDocuments)

} // namespace tst_deliverdocuments

#include "tst_deliverdocuments.moc"

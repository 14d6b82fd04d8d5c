// What korvel-journal shows: lines, JSON, paper, contents, sums.
#include "support/built.h"
#include "support/journaldesk.h"
#include "support/test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace tst_journaloutput {

using namespace korvel::delivery;

const QByteArray unfriendly = "a\033[31m\n\r\xC2\x9B\xE2\x80\xAE";

/// Documents "one", "two" in doubt, "three", which nobody sends any more, and "four".
struct Filled : JournalDesk
{
    Filled()
    {
        Journal journal = writer();
        deliver(journal, "one", {State::Sending, State::Sent});
        deliver(journal, "two", {State::Sending});
        journal.change("two", State::InDoubt, till, "reset after 64 bytes");
        deliver(journal, "three", {State::Sending});
        journal.refuse("four", {"<x/>", {}, {}, {}, {}, {}}, "file:/x", {}, "no method");
    }
};

const QString one = "TIME  sent         one  tcp://192.0.2.7:9100";
const QString two = "TIME  in-doubt     two  tcp://192.0.2.7:9100  reset after 64 bytes";
const QString three =
    "TIME  sending      three  tcp://192.0.2.7:9100  no process sends it any more: "
    "in doubt, look at the paper";
const QString four = "TIME  refused      four  file:/x  no method";

QByteArray fiscal(const QByteArray &rows) { return "=K\n=C1\n" + rows + "=T1\n"; }

class TestJournalOutput : public QObject
{
    Q_OBJECT

private slots:
    void list_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const QStringList &arguments, const QStringList &lines) {
            QTest::newRow(qPrintable("list " + arguments.join(' '))) << arguments << lines;
        };
        row({}, {one, two, three, four});
        row({"--state", "sent"}, {one});
        row({"--state", "sending"}, {three});
        row({"--state", "in-doubt"}, {two, three}); // as it is, whatever the journal calls it
        row({"--state", "printed"}, {});
        row({"--since", "2020-01-01"}, {one, two, three, four});
        row({"--since", "2020-01-01", "--state", "refused"}, {four});
        row({"--since", "2100-01-01"}, {});
    }

    void list()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QStringList, lines);
        VERIFY_SAID(Filled().run(QStringList{"list"} + arguments), 0, lines, QStringList());
    }

    void listAsJson()
    {
        const Run run = Filled().run({"list", "--json", "--state", "in-doubt"});
        QCOMPARE(shownLines(run.standardOutput),
                 QStringList({R"({"abandoned":false,"accepted":"TIME","changed":"TIME",)"
                              R"("charset":"cp858","detail":"reset after 64 bytes",)"
                              R"("device":"tcp://192.0.2.7:9100","forgotten":false,"id":"two",)"
                              R"("origin":"lucia","state":"in-doubt"})",
                              R"({"abandoned":true,"accepted":"TIME","changed":"TIME",)"
                              R"("charset":"cp858","detail":"",)"
                              R"("device":"tcp://192.0.2.7:9100","forgotten":false,"id":"three",)"
                              R"("origin":"lucia","state":"sending"})"}));
    }

    void timesAreThoseOfThePlace()
    {
        const Filled desk;
        const QDateTime time = desk.reader().find("one")->changed;
        const Run run = desk.run({"list", "--state", "sent"}, {"TZ=EAST-5"}); // five hours ahead
        QVERIFY(run.standardOutput.startsWith(
            time.addSecs(5 * 3600).toUTC().toString("yyyy-MM-dd HH:mm:ss  ").toUtf8()));
        const Run json = desk.run({"list", "--state", "sent", "--json"}, {"TZ=EAST-5"});
        QVERIFY(json.standardOutput.contains(
            "\"changed\":\"" + time.toUTC().toString("yyyy-MM-ddTHH:mm:ss.zzzZ").toUtf8() + '"'));
    }

    void show()
    {
        VERIFY_SAID(
            Filled().run({"show", "two"}), 0,
            QStringList({"document  two", "state     in-doubt", "device    tcp://192.0.2.7:9100",
                         "origin    lucia", "charset   cp858", "catalogue /labels/korvel_it.qm", "",
                         "TIME  accepted", "TIME  sending", "TIME  in-doubt: reset after 64 bytes",
                         "", "┌────────────────────────────────┐",
                         "│two è                           │",
                         "└────────────────────────────────┘"}),
            QStringList());
    }

    void showOfOneWithoutPaper()
    {
        const Filled desk;
        VERIFY_SAID(desk.run({"show", "four"}), 0,
                    QStringList({"document  four", "state     refused", "device    file:/x", "",
                                 "TIME  refused: no method", "", "It has no paper."}),
                    QStringList());
        desk.writer().forget(QDateTime::currentDateTimeUtc().addDays(1));
        const QStringList lines = shownLines(desk.run({"show", "one"}).standardOutput);
        QCOMPARE(lines.mid(lines.size() - 3),
                 QStringList({"TIME  forgotten", "", "Its contents were forgotten."}));
        VERIFY_SAID(desk.run({"show", "one", "--job"}), 1, QStringList(),
                    "korvel-journal: one: its contents were forgotten");
    }

    /// Another document, which is not finished, keeps the same contents.
    void whatIsForgottenIsNotShown()
    {
        const JournalDesk desk;
        {
            Journal journal = desk.writer();
            journal.accept("a", sampleContents("receipt"), till, {});
            bring(journal, "a", {State::Sending, State::Sent});
            journal.accept("b", sampleContents("receipt"), till, {});
            journal.forget(QDateTime::currentDateTimeUtc().addDays(1));
        }
        for (const QString option : {"--job", "--settings", "--stream", "--sent"})
            VERIFY_SAID(desk.run({"show", "a", option}), 1, QStringList(),
                        "korvel-journal: a: its contents were forgotten");
        QCOMPARE(shownLines(desk.run({"show", "a"}).standardOutput).constLast(),
                 QString("Its contents were forgotten."));
        VERIFY_SAID(desk.run({"replay"}), 0,
                    "1 document rendered again: 1 the same, 0 different; 1 without a job",
                    QStringList());
        QCOMPARE(desk.run({"show", "b", "--job"}).status, 0);
    }

    void showOfOneLeft()
    {
        QCOMPARE(shownLines(Filled().run({"show", "three"}).standardOutput).value(1),
                 QString("state     sending: no process sends it any more: in doubt, look at the "
                         "paper"));
    }

    void partsAreWrittenAsTheyAre_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QByteArray>("bytes");
        const Contents contents = contentsFor("one");
        QTest::newRow("job") << "--job" << contents.job;
        QTest::newRow("settings") << "--settings" << contents.settings;
        QTest::newRow("stream") << "--stream" << contents.rendered;
        QTest::newRow("sent") << "--sent" << contents.sent;
    }

    void partsAreWrittenAsTheyAre()
    {
        QFETCH(QString, option);
        QFETCH(QByteArray, bytes);
        const Filled desk;
        const Run run = desk.run({"show", "one", option});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.standardOutput, bytes);
    }

    void partsThatAreMissing()
    {
        const JournalDesk desk;
        desk.writer().accept("a", {{}, {}, {}, "=o\n=o\n", "=o\n=o\n", "utf-8"}, till, {});
        desk.writer().refuse("b", {"<x/>", "s", {}, {}, {}, {}}, till, {}, {});
        VERIFY_SAID(desk.run({"show", "a", "--job"}), 1, QStringList(),
                    "korvel-journal: a: it was given as a stream, without a job");
        VERIFY_SAID(desk.run({"show", "b", "--sent"}), 1, QStringList(),
                    "korvel-journal: b: it was refused before there was a stream");
    }

    /// Ids, devices, details and contents come from elsewhere: no terminal obeys them.
    void nothingCommandsTheTerminal_data()
    {
        QTest::addColumn<QString>("arguments");
        for (const char *arguments :
             {"list", "list --json", "show \"$ID\"", "show \"$ID\" --job", "show \"$ID\" --sent",
              "show \"$ID\" --stream", "export", "replay", "sum", "verify", "head",
              "resolve \"$ID\" printed", "show \"$ID$ID\""})
            QTest::newRow(arguments) << arguments;
    }

    void nothingCommandsTheTerminal()
    {
        QFETCH(QString, arguments);
        const JournalDesk desk;
        const QString id = QString::fromUtf8(unfriendly);
        {
            Journal journal = desk.writer();
            const QByteArray line = "=\"/(" + unfriendly + " )\n";
            journal.accept(id, {unfriendly, unfriendly, id, line, line, "utf-8"}, id, id);
            journal.change(id, State::Sending, "tcp://192.0.2.7:9100", id);
        }
        const QString command =
            QString(built::journal) + " --journal " + desk.path() + ' ' + arguments;
        const Run run = runProgram("script", {"--quiet", "--command", command, "/dev/null"},
                                   {desk.filePath(""), {"ID=" + id}, {}});
        const QString shown = QString::fromUtf8(run.standardOutput).remove("\r\n");
        QVERIFY(!shown.isEmpty());
        for (const QChar c : shown)
            QVERIFY2(c.isPrint(), qPrintable(QString::number(c.unicode(), 16)));
    }

    void exported()
    {
        const Filled desk;
        const QByteArrayList lines = desk.run({"export"}).standardOutput.trimmed().split('\n');
        QCOMPARE(lines.size(), 9);
        QByteArray previous;
        for (int i = 0; i < lines.size(); ++i) {
            const QJsonObject event = QJsonDocument::fromJson(lines[i]).object();
            QCOMPARE(event.keys(),
                     QStringList({"catalogue", "charset", "detail", "device", "document", "event",
                                  "hash", "job", "lease", "number", "origin", "previous", "sent",
                                  "settings", "stream", "time"}));
            QCOMPARE(event["number"].toInt(), i + 1);
            QCOMPARE(event["previous"].toString().toUtf8(), previous);
            previous = event["hash"].toString().toUtf8();
        }
        QCOMPARE(previous, desk.reader().head().hash);
        QCOMPARE(desk.run({"export", "--since", "2100-01-01"}).standardOutput, QByteArray());
    }

    void sums()
    {
        const JournalDesk desk;
        Journal journal = desk.writer();
        const auto add = [&journal](const QString &id, const QByteArray &stream,
                                    const QList<State> &states) {
            journal.accept(id, {{}, {}, {}, stream, stream, "utf-8"}, till, {});
            bring(journal, id, states);
        };
        const QList<State> sent = {State::Sending, State::Sent};
        const QList<State> doubt = {State::Sending, State::InDoubt};
        // 2 times 5.50, less 1.00; 3 times 0.333 exactly; 10.00; 0.25, behind another document;
        // what stands outside of a fiscal section, and what is no number, is in no sum.
        add("a", fiscal("=R1/$550/*2/(Tiramis\xC3\xB9)\n=S\r\n=V/$100\r\n"), sent);
        add("b", fiscal("=R1/$33.3/*3/(X)\n=R1/$1/*x/(Y)\n") + "=R1/$900/*1/(Z)\n", sent);
        add("c", fiscal("=R1/$1000/*1/(X)\n"), doubt + QList{State::Printed});
        add("d", fiscal("=R1/$5000/*1/(X)\n"), doubt);
        add("e", fiscal("=R1/$5000/*1/(X)\n"), doubt + QList{State::NotPrinted});
        add("f", fiscal("=R1/$5000/*1/(X)\n"), {});
        add("g", fiscal("=R1/$5000/*1/(X)\n"), {State::Sending}); // nobody sends it any more
        add("h", "=o/*1\n=\"/(X )\n=o\n", sent);
        add("i", "=o\n=\"/(X )\n=o\n" + fiscal("=R1/$25/*1/(X)\n"), sent); // two in one
        add("k", "=o\n=\"/(Y )\n=o\n", sent);
        const QStringList lines = {
            "fiscal receipts        3          21.249",
            "receipts               1",
            "other documents        2",
            "1 sale row not in the sum: no plain number, or too much",
            "2 documents in doubt, not counted",
        };
        VERIFY_SAID(desk.run({"sum"}), 0, lines, QStringList());
        const QString today = QDateTime::currentDateTimeUtc().date().toString(Qt::ISODate);
        VERIFY_SAID(desk.run({"sum", "--day", today}), 0, lines, QStringList());
        const QStringList nothing = {
            "fiscal receipts        0            0.00",
            "receipts               0",
            "other documents        0",
        };
        VERIFY_SAID(desk.run({"sum", "--day", "2020-01-01"}), 0, nothing, QStringList());
        VERIFY_SAID(desk.run({"sum", "--day", "2100-01-01"}), 0, nothing, QStringList());
        journal.forget(QDateTime::currentDateTimeUtc().addDays(1));
        VERIFY_SAID(desk.run({"sum"}), 0,
                    nothing
                        + QStringList({"2 documents in doubt, not counted",
                                       "6 documents forgotten, not counted"}),
                    QStringList());
    }

    /// Sent on May 1, and what a person said of it on May 3; or sent again then.
    void daysAreThoseOnWhichDocumentsWereSent()
    {
        const JournalDesk desk;
        const auto add = [&](const QString &id, const QList<State> &states) {
            Journal journal = desk.writer();
            const QByteArray stream = fiscal("=R1/$2000/*1/(X)\n");
            journal.accept(id, {{}, {}, {}, stream, stream, "utf-8"}, till, {});
            bring(journal, id, states);
        };
        const QList<State> doubt = {State::Sending, State::InDoubt};
        add("a", doubt + QList{State::Printed});                                 // 1 to 4
        add("b", doubt + QList{State::NotPrinted, State::Sending, State::Sent}); // 5 to 10
        add("c", doubt);                                                         // 11 to 13
        tamper(desk.path(), "UPDATE events SET time = '2026-05-01T18:00:00.000Z';"
                            "UPDATE events SET time = '2026-05-03T09:00:00.000Z'"
                            " WHERE number IN (4, 8, 9, 10)");
        const QStringList others = {"receipts               0", "other documents        0"};
        VERIFY_SAID(desk.run({"sum", "--day", "2026-05-01"}), 0,
                    QStringList("fiscal receipts        1           20.00") + others
                        + QStringList("1 document in doubt, not counted"),
                    QStringList());
        VERIFY_SAID(desk.run({"sum", "--day", "2026-05-03"}), 0,
                    QStringList("fiscal receipts        1           20.00") + others,
                    QStringList());
        VERIFY_SAID(desk.run({"sum", "--day", "2026-05-02"}), 0,
                    QStringList("fiscal receipts        0            0.00") + others,
                    QStringList());
    }

    void replayed()
    {
        const JournalDesk desk;
        Journal journal = desk.writer();
        journal.accept("receipt", sampleContents("receipt"), till, {});
        journal.accept("fiscal", sampleContents("fiscal-receipt"), till, {});
        journal.accept("stream", {{}, {}, {}, "=o\n=o\n", "=o\n=o\n", "utf-8"}, till, {});
        VERIFY_SAID(desk.run({"replay"}), 0,
                    "2 documents rendered again: 2 the same, 0 different; 1 without a job",
                    QStringList());
        Contents changed = sampleContents("receipt");
        changed.rendered.replace("Serial Number", "Serial number");
        journal.accept("other", changed, till, {});
        VERIFY_SAID(desk.run({"replay"}), 1,
                    QStringList({"other: differs from line "
                                     + QString::number(lineOfSerial(changed.rendered)),
                                 "3 documents rendered again: 2 the same, 1 different; 1 without a "
                                 "job"}),
                    QStringList());
        VERIFY_SAID(desk.run({"replay", "receipt"}), 0,
                    "1 document rendered again: 1 the same, 0 different", QStringList());
        QCOMPARE(desk.run({"replay", "other"}).status, 1);
        journal.change("other", State::Sending, till, {});
        QCOMPARE(flawsOf(journal), {});
    }

    void replayWithoutTheRenderer()
    {
        const JournalDesk desk;
        desk.writer().accept("a", sampleContents("receipt"), till, {});
        const QString program = desk.filePath("korvel-journal");
        QVERIFY(QFile::copy(built::journal, program));
        const Run run = runProgram(program, {"--journal", desk.path(), "replay"},
                                   {desk.filePath(""), {"PATH=/nowhere"}, {}});
        VERIFY_SAID(run, 2, QStringList(),
                    "korvel-journal: korvel-print is not found: install it, or put it beside this "
                    "program");
    }

    void progressOnATerminal()
    {
        // As many documents as take longer than it takes to show something; and none in a pipe.
        const JournalDesk desk;
        Journal journal = desk.writer();
        for (int i = 0; i < 40; ++i)
            journal.accept(QString::number(i), sampleContents("receipt"), till, {});
        const QString command = QString(built::journal) + " --journal " + desk.path() + " replay";
        const Run run = runProgram("script", {"--quiet", "--command", command, "/dev/null"},
                                   {desk.filePath(""), {}, {}});
        static const QRegularExpression shown(
            "^(\r\033\\[Krendering: \\d+ of 40)*(\r\033\\[K)?40 documents rendered again: 40 the "
            "same, 0 different\r\n$");
        QVERIFY2(shown.match(QString::fromUtf8(run.standardOutput)).hasMatch(), run.standardOutput);
        VERIFY_SAID(desk.run({"replay"}), 0,
                    "40 documents rendered again: 40 the same, 0 different", QStringList());
    }

private:
    static qsizetype lineOfSerial(const QByteArray &stream)
    {
        return stream.first(stream.indexOf("Serial number")).count('\n') + 1;
    }
};

KORVEL_TEST(TestJournalOutput)

} // namespace tst_journaloutput

#include "tst_journaloutput.moc"

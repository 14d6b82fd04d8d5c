// What korvel-preview finds: the lines that it says, the bytes that it names, its exit status.
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QMap>

namespace tst_previewstatus {

class TestPreviewStatus : public QObject
{
    Q_OBJECT

private slots:
    void findings()
    {
        const Desk desk(documentOf("a)b") + documentOf(QByteArray(40, 'x')) + "=x\n");
        // Sections take 3 bytes, a line 7 and its text: the first document 16, the second 53.
        const QStringList said = {
            "2: byte 8: warning: a \")\" inside a text ends it early [ends-text]\\n",
            "5: byte 19: warning: a line of 40 characters is wider than the paper (32) "
            "[too-wide]\\n",
            "7: byte 70: error: unknown command: \"x\" does not belong here [unknown-command]\\n",
        };
        for (const QString &option :
             QStringList{"--columns=32", "--json", "--list", "--output=y.png"}) {
            const Run run = desk.run({option, "x.out"});
            VERIFY_ENDED(run, 1);
            QCOMPARE(linesOf(run.standardError), behind("x.out:", said));

            for (const QString &quiet : QStringList{"--quiet", "-q"}) {
                const Run quietRun = desk.run({option, quiet, "x.out"});
                VERIFY_ENDED(quietRun, 1);
                QCOMPARE(linesOf(quietRun.standardError), QStringList());
                QCOMPARE(linesOf(quietRun.standardOutput), linesOf(run.standardOutput));
            }
        }
        const Run fromStandardInput = preview({"-"}, {{}, {}, bytesOf(desk.path("x.out"))});
        VERIFY_ENDED(fromStandardInput, 1);
        QCOMPARE(linesOf(fromStandardInput.standardError), behind("-:", said));

        // A finding is one line, whatever the stream is called.
        QVERIFY(QFile::copy(desk.path("x.out"), desk.path("x\n\033.out")));
        const Run oddName = desk.run({"x\n\033.out"});
        VERIFY_ENDED(oddName, 1);
        QCOMPARE(linesOf(oddName.standardError),
                 behind(QString("x%1%1.out:").arg(QChar(QChar::ReplacementCharacter)), said));
    }

    /// What is found wrong does not hide that nothing could be written.
    void findingsAndTrouble()
    {
        const Desk desk("=x\n");
        const Run run = desk.run({"-o", "missing/y.png", "x.out"});
        VERIFY_ENDED(run, 2);
        const QStringList said = linesOf(run.standardError);
        QCOMPARE(said.size(), 2);
        QVERIFY2(said[0].startsWith("x.out:1: byte 1: "), qPrintable(said[0]));
        QVERIFY2(said[1].startsWith("korvel-preview: missing/y.png: "), qPrintable(said[1]));
        VERIFY_TROUBLE(desk.run({"--quiet", "-o", "missing/y.png", "x.out"}));
    }

    /// In fiscal-receipt.out the rows begin at bytes 7 and 38, the deduction at 75 and 79, the end
    /// at 88; in receipt.out the first line begins at byte 6 and its text at 10.
    void oneWrongByteIsNamed_data()
    {
        QTest::addColumn<QString>("example");
        QTest::addColumn<qsizetype>("at");
        QTest::addColumn<char>("wrong");
        QTest::addColumn<QString>("named");
        const auto row = [](const char *name, const char *example, qsizetype at, char wrong,
                            const char *named) {
            QTest::newRow(name) << example << at << wrong << named;
        };
        const auto *const fiscal = "fiscal-receipt";
        const auto *const receipt = "receipt";

        row("the first byte", fiscal, 0, '#', "1: byte 0: ");
        row("fiscal opening, first command", fiscal, 1, '#', "1: byte 1: ");
        row("fiscal opening, second command", fiscal, 4, '#', "2: byte 4: ");
        row("fiscal opening, its end", fiscal, 6, '#', "2: byte 6: ");
        row("sale row, its first byte", fiscal, 7, '#', "3: byte 7: ");
        row("sale row, mark of the department", fiscal, 8, '#', "3: byte 8: ");
        row("sale row, amount", fiscal, 12, '#', "3: byte 12: ");
        row("sale row, mark of the quantity", fiscal, 16, '#', "3: byte 16: ");
        row("sale row, quantity", fiscal, 17, '#', "3: byte 17: ");
        row("sale row, mark of the description", fiscal, 19, '#', "3: byte 19: ");
        row("sale row, description", fiscal, 30, '\xe8', "3: byte 30: ");
        // All before it may stand in a description; the end of the line in front of a command may
        // not.
        row("sale row, end of the description", fiscal, 36, '#', "3: byte 37: ");
        row("deduction, announcement", fiscal, 76, '#', "5: byte 76: ");
        row("deduction, carriage return", fiscal, 77, '#', "5: byte 77: ");
        row("deduction, second command", fiscal, 80, '#', "6: byte 80: ");
        row("deduction, mark of the amount", fiscal, 82, '#', "6: byte 82: ");
        row("deduction, line feed", fiscal, 87, '#', "6: byte 87: ");
        row("fiscal closing", fiscal, 90, '#', "7: byte 90: ");
        row("the last byte", fiscal, 91, '#', "7: byte 91: ");
        row("receipt opening", receipt, 3, '#', "1: byte 3: ");
        row("line, opener", receipt, 7, '#', "2: byte 7: ");
        row("line, text", receipt, 12, '\xee', "2: byte 12: ");
        row("line, end of the text", receipt, 21, '#', "2: byte 22: ");
    }

    void oneWrongByteIsNamed()
    {
        QFETCH(QString, example);
        QFETCH(qsizetype, at);
        QFETCH(char, wrong);
        QFETCH(QString, named);
        QByteArray stream = bytesOf(examples + example + ".out");
        stream[at] = wrong;
        const Desk desk(stream);
        const Run run = desk.run({"--strict", "x.out"});
        VERIFY_ENDED(run, 1);
        QVERIFY2(("\n" + run.standardError).contains("\nx.out:" + named.toUtf8()),
                 run.standardError.constData());
    }

    void aCommandThatBeginsWrongIsNamed_data() { addExamples(); }

    void aCommandThatBeginsWrongIsNamed()
    {
        const QByteArray whole = bytesOf(examples + QTest::currentDataTag());
        QList<qsizetype> starts; // of lines; no line feed stands inside a text of the examples
        for (qsizetype at = 0; at < whole.size(); at = whole.indexOf('\n', at) + 1)
            starts.append(at);
        for (const qsizetype line : {qsizetype(0), starts.size() / 2, starts.size() - 1}) {
            QByteArray stream = whole;
            QCOMPARE(stream[starts[line]], '=');
            stream[starts[line]] = '#';
            const Desk desk(stream);
            const Run run = desk.run({"x.out"});
            VERIFY_ENDED(run, 1);
            const QString named = QString("x.out:%1: byte %2: ").arg(line + 1).arg(starts[line]);
            QVERIFY2(run.standardError.contains(named.toUtf8()), run.standardError.constData());
        }
    }

    void aStreamThatBreaksOffIsNamedAtItsEnd()
    {
        const QByteArray whole = bytesOf(examples + "fiscal-receipt.out");
        for (const qsizetype size : {1, 5, 8, 20, 30, 77, 85, 90}) {
            const Desk desk(whole.first(size));
            const Run run = desk.run({"x.out"});
            VERIFY_ENDED(run, 1);
            const QString named = QString(": byte %1: ").arg(size);
            QVERIFY2(run.standardError.contains(named.toUtf8()), run.standardError.constData());
            QVERIFY2(run.standardError.contains("the stream ends here ["),
                     run.standardError.constData());
        }
    }

    /// What the examples show is wider than the paper in two of them, on purpose.
    void whatTheExamplesGive_data() { addExamples(); }

    void whatTheExamplesGive()
    {
        const QMap<QString, QStringList> said = {
            {"period-report.out",
             {"30: byte 713: warning: a line of 40 characters is wider than the paper (32) "
              "[too-wide]\\n",
              "31: byte 760: warning: a line of 41 characters is wider than the paper (32) "
              "[too-wide]\\n",
              "38: byte 940: warning: a line of 34 characters is wider than the paper (32) "
              "[too-wide]\\n"}},
            {"receipt-summary.out",
             {"19: byte 501: warning: a line of 34 characters is wider than the paper (32) "
              "[too-wide]\\n"}},
        };
        const QString name = QTest::currentDataTag();
        const Run run = preview({name}, {examples, {}, {}});
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardError), behind(name + ':', said.value(name)));
        VERIFY_ENDED(preview({"--strict", name}, {examples, {}, {}}), said.contains(name) ? 1 : 0);
    }

private:
    static void addExamples()
    {
        QTest::addColumn<int>("unused");
        const QStringList files = QDir(examples).entryList({"*.out"}, QDir::Files);
        QCOMPARE(files.size(), 13);
        for (const QString &file : files)
            QTest::newRow(qPrintable(file)) << 0;
    }
};

KORVEL_TEST(TestPreviewStatus)

} // namespace tst_previewstatus

#include "tst_previewstatus.moc"

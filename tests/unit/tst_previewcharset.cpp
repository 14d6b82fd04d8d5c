// Streams as an 8-bit printer gets them: korvel-preview --charset.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tst_previewcharset {

/// What korvel-recode makes of a stream.
QByteArray recoded(const QString &path, const QString &charset)
{
    return runProgram(built::recode, {"--to", charset, path}, {}).standardOutput;
}

class TestPreviewCharset : public QObject
{
    Q_OBJECT

private slots:
    /// The samples look the same to a printer of one byte a character.
    void samples()
    {
        for (const QString &path : filesBelow(examples, "*.out")) {
            const Desk desk(recoded(path, "cp858"));
            for (const QStringList &options : {QStringList{}, QStringList{"--columns=42"}}) {
                const Run run = desk.run(options + QStringList{"--charset", "cp858", "x.out"});
                const Run original = preview(options + QStringList(path));
                VERIFY_ENDED(run, original.status);
                QCOMPARE(linesOf(run.standardOutput), linesOf(original.standardOutput));
                QCOMPARE(run.standardError.count('\n'), original.standardError.count('\n'));
            }
        }
    }

    void pictures()
    {
        const QString sample = examples + "receipt.out";
        const Desk desk(recoded(sample, "cp858"));
        VERIFY_ENDED(desk.run({"--charset", "cp858", "-o", "y.png", "x.out"}), 0);
        VERIFY_ENDED(desk.run({"-o", "z.png", sample}), 0);
        QVERIFY(!bytesOf(desk.path("y.png")).isEmpty());
        QVERIFY(bytesOf(desk.path("y.png")) == bytesOf(desk.path("z.png")));
    }

    void papers_data()
    {
        QTest::addColumn<QString>("charset");
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QString>("row"); // of the box
        QTest::addColumn<QString>("said");
        const auto row = [](const char *what, const QString &charset, const QByteArray &stream,
                            const QString &box, const QString &said = {}) {
            QTest::newRow(what) << charset << stream << box << said;
        };

        row("a letter", "cp858", documentOf("\x8A"), "│è   │");
        row("the same byte elsewhere", "KOI8-R", documentOf("\xC1"), "│а   │");
        row("by another spelling", "CP858", documentOf("\xD5"), "│€   │");
        row("UTF-8, which is the default", "UTF-8", documentOf("è"), "│è   │");
        row("a byte is a column", "cp858", documentOf("\x8A\x8A\x8A\x8A\x8A"), "│èèèè»è",
            "x.out:2: byte 3: warning: a line of 5 characters is wider than the paper (4) "
            "[too-wide]\n");
        // Bytes are those of the stream: the text begins at byte 7.
        row("a closing parenthesis", "cp858", documentOf("\x8A\x8A)"), "│èè) │",
            "x.out:2: byte 9: warning: a \")\" inside a text ends it early [ends-text]\n");
        row("a control character of the code page", "latin1", documentOf("\x9B"), "│�   │",
            "x.out:2: byte 7: warning: the control character \"\\x9b\" inside a text "
            "[control-code]\n");
        row("a byte that is no character", "ISO-8859-7", documentOf("\xD2\xD2z"), "│��z │",
            "x.out:2: byte 7: warning: \"\\xd2\" is not ISO-8859-7 [not-utf-8]\n");
        row("bytes that are no command", "cp858", "=o\n\x8A\n=o\n", "┊è\\n ┊",
            "x.out:2: byte 3: error: unknown command: \"è\" does not belong here "
            "[unknown-command]\n");
    }

    void papers()
    {
        QFETCH(QString, charset);
        QFETCH(QByteArray, stream);
        QFETCH(QString, row);
        QFETCH(QString, said);
        const Desk desk(stream);
        const Run run = desk.run({"--columns=4", "--charset", charset, "x.out"});
        QCOMPARE(run.standardError, said.toUtf8());
        VERIFY_ENDED(run, said.contains(": error: ") ? 1 : 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput).split('\n').value(1), row);
    }

    void commands()
    {
        const Desk desk(fiscal("=R1/$120/*2/(Caff\x8A)\n"));
        const Run list = desk.run({"--list", "--charset=cp858", "x.out"});
        VERIFY_ENDED(list, 0);
        QCOMPARE(QString::fromUtf8(list.standardOutput).split('\n').value(1),
                 "       7      3  sale row, department \"1\", amount \"120\", quantity \"2\", "
                 "description \"Caffè\"");
        const Run json = desk.run({"--json", "--charset=cp858", "x.out"});
        VERIFY_ENDED(json, 0);
        const QJsonObject row =
            QJsonDocument::fromJson(json.standardOutput.split('\n').value(1)).object();
        QCOMPARE(row["description"].toString(), "Caffè");
        QVERIFY(!row.contains("bytes")); // the text says it all
    }

    void exactBytes()
    {
        const Desk desk(documentOf("\xD2"));
        const Run json = desk.run({"--json", "--charset=ISO-8859-7", "x.out"});
        VERIFY_ENDED(json, 0);
        const QJsonObject line =
            QJsonDocument::fromJson(json.standardOutput.split('\n').value(1)).object();
        QCOMPARE(line["text"].toString(), QString(QChar::ReplacementCharacter));
        QCOMPARE(line["bytes"].toString(), QString(documentOf("\xD2").mid(3, 8).toHex()));
    }

    void jobIsRenderedInUtf8()
    {
        const Run run = Desk("<job/>").run({"--charset=cp858", "x.out"});
        VERIFY_TROUBLE(run);
        QCOMPARE(run.standardError,
                 "korvel-preview: --charset is for streams; a job is rendered in "
                 "UTF-8\n");

        // No work is done on the job first.
        const Run early =
            Desk("<job/>").run({"--charset=cp858", "--settings", "none.conf", "x.out"});
        VERIFY_TROUBLE(early);
        QCOMPARE(linesOf(early.standardError), linesOf(run.standardError));
    }

    void trouble()
    {
        const Desk desk(documentOf("Ciao"));
        for (const QString &name : QStringList{"", "nonsense", "cp858//TRANSLIT", "UTF-16"}) {
            const Run run = desk.run({"--charset", name, "x.out"});
            VERIFY_TROUBLE(run);
            QCOMPARE(QString::fromUtf8(run.standardError),
                     "korvel-preview: there is no code page \"" + name
                         + "\"; take UTF-8, or one that iconv knows of one byte a character, with "
                           "ASCII below 128, such as cp858\n");
        }
    }
};

KORVEL_TEST(TestPreviewCharset)

} // namespace tst_previewcharset

#include "tst_previewcharset.moc"

// Several jobs and streams, and folders of them, shown one after the other.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tst_previewmany {

/// A folder of two streams, and of what is none.
class Day : public Desk
{
public:
    Day()
        : Desk(documentOf("Uno"))
    {
        QVERIFY(QDir(folder.path()).mkpath("day/inside"));
        writeFile(path("day/9.out"), documentOf("Nove"));
        writeFile(path("day/10.out"), documentOf("Dieci"));
        writeFile(path("day/.hidden.out"), documentOf("Nascosto"));
        writeFile(path("day/notes.txt"), "Monday");
        writeFile(path("day/old.html"), "<!DOCTYPE html>\n<html></html>");
        writeFile(path("day/old.svg"), "<?xml version=\"1.0\"?>\n<svg/>");
    }
};

const QByteArray passedOver =
    "korvel-preview: day/inside is neither a job nor a stream: passed over\n"
    "korvel-preview: day/notes.txt is neither a job nor a stream: passed over\n"
    "korvel-preview: day/old.html is neither a job nor a stream: passed over\n"
    "korvel-preview: day/old.svg is neither a job nor a stream: passed over\n";

QByteArray jobOf(const QByteArray &name)
{
    return "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"" + name
           + "\"/></job>";
}

QString boxOf(const QString &text) { return "┌─────┐\n│" + text + "│\n└─────┘\n"; }

class TestPreviewMany : public QObject
{
    Q_OBJECT

private slots:
    void inTheTerminal()
    {
        const Day day;
        const QString ofDay = "day/10.out\n" + boxOf("Dieci") + "\nday/9.out\n" + boxOf("Nove ");
        Run run = day.run({"--columns=5", "day"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput), ofDay);
        QCOMPARE(run.standardError, passedOver);

        run = day.run({"--columns=5", "-q", "day/", "x.out"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput), ofDay + "\nx.out\n" + boxOf("Uno  "));
        QCOMPARE(run.standardError, "");

        run = day.run({"--columns=5", "x.out"}); // alone, it needs no name
        QCOMPARE(QString::fromUtf8(run.standardOutput), boxOf("Uno  "));
    }

    /// Jobs and streams go together, in the order in which they are given.
    void jobsAmongStreams()
    {
        const Day day;
        writeFile(day.path("a.xml"), jobOf("Pane"));
        writeFile(day.path("b.xml"), jobOf("Vino"));
        const Run run = day.run({"--settings=/dev/null/none", "b.xml", "x.out", "a.xml"});
        VERIFY_ENDED(run, 2); // the stream needs no settings
        QCOMPARE(linesOf(run.standardError).size(), 2);

        writeFile(day.path("day/11.xml"), jobOf("Pane"));
        const Run all =
            preview({"b.xml", "day"}, {day.folder.path(), {"HOME=" + day.path(".")}, {}});
        VERIFY_ENDED(all, 0);
        QStringList texts;
        for (const auto &text : QRegularExpression("Vino|Dieci|Pane|Nove")
                                    .globalMatch(QString::fromUtf8(all.standardOutput)))
            texts.append(text.captured());
        QCOMPARE(texts, QStringList({"Vino", "Dieci", "Pane", "Nove"}));
        QCOMPARE(all.standardError.count("there are no settings in"), 1);
    }

    /// A name is one line that commands no terminal.
    void hostileNames()
    {
        const Day day;
        const QString name = "a\nb\033[2J.out";
        writeFile(day.path(name), documentOf("Ciao"));
        Run run = day.run({"--columns=5", name, "x.out"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput),
                 "a�b�[2J.out\n" + boxOf("Ciao ") + "\nx.out\n" + boxOf("Uno  "));
        run = day.run({"--json", name, "x.out"});
        QVERIFY(run.standardOutput.contains("\"file\":\"a\\u000ab\\u001b[2J.out\"}"));
        QVERIFY(!run.standardOutput.contains('\033'));
    }

    void foldersWithoutAny()
    {
        const Day day;
        QVERIFY(QDir(day.folder.path()).mkpath("empty"));
        for (const QString &folder : QStringList{"empty", "day/inside"}) {
            const Run run = day.run({folder});
            VERIFY_TROUBLE(run);
            QCOMPARE(run.standardError, "korvel-preview: " + folder.toUtf8()
                                            + ": there is no job or stream in this folder\n");
        }
        VERIFY_TROUBLE(day.run({"x.out", "empty"}));
    }

    /// What is said of a file stands in front of its paper, and behind that of the one before.
    void inOrder()
    {
        const Day day;
        writeFile(day.path("empty.out"), "");
        const Run run = runProgram(
            "sh", {"-c", "\"$0\" --columns=5 x.out empty.out day/9.out 2>&1", built::preview},
            {day.folder.path(), {}, {}});
        VERIFY_ENDED(run, 1);
        const QStringList lines = QString::fromUtf8(run.standardOutput).split('\n');
        const qsizetype said = lines.indexOf(QRegularExpression("^empty\\.out:1: byte 0: .*"));
        QVERIFY(said > lines.indexOf("│Uno  │"));
        QVERIFY(said < lines.indexOf("empty.out"));
        QVERIFY(lines.indexOf("│Nove │") > lines.indexOf("empty.out"));
    }

    void lists()
    {
        const Day day;
        const Run run = day.run({"--list", "x.out", "day/9.out"});
        VERIFY_ENDED(run, 0);
        const QByteArray section = "       0      1  document section opened\n";
        QVERIFY2(run.standardOutput.startsWith("x.out\n" + section), run.standardOutput);
        QCOMPARE(run.standardOutput.count("\n\nday/9.out\n" + section), 1);
    }

    void eachObjectHasItsFile()
    {
        const Day day;
        writeFile(day.path("open.out"), "=K\n=C1\n"); // with a finding and a sum
        const Run run = day.run({"--json", "open.out", "x.out"});
        VERIFY_ENDED(run, 1);
        QStringList files;
        for (const QByteArray &line : run.standardOutput.trimmed().split('\n'))
            files += QJsonDocument::fromJson(line).object().value("file").toString();
        const QStringList expected = {"open.out", "open.out", "open.out",
                                      "x.out",    "x.out",    "x.out"};
        QCOMPARE(files, expected);
        writeFile(day.path("y.json"), run.standardOutput);
        const QString top = KORVEL_SOURCE_DIR "/";
        const Run valid = runProgram("/usr/bin/python3",
                                     {top + "tests/support/validate.py",
                                      top + "docs/preview.schema.json", day.path("y.json")},
                                     {});
        QCOMPARE(valid.status, 0);
        QCOMPARE(valid.standardOutput, "");

        const Run alone = day.run({"--json", "x.out"});
        QVERIFY(!alone.standardOutput.isEmpty() && !alone.standardOutput.contains("\"file\""));
    }

    /// What cannot be read is said, and does not keep the others from being shown.
    void statuses()
    {
        const Day day;
        writeFile(day.path("empty.out"), "");
        Run run = day.run({"--columns=5", "missing.out", "x.out"});
        VERIFY_ENDED(run, 2);
        QVERIFY(isTrouble(run.standardError));
        QCOMPARE(QString::fromUtf8(run.standardOutput), "x.out\n" + boxOf("Uno  "));
        VERIFY_ENDED(day.run({"empty.out", "missing.out"}), 2);
        VERIFY_ENDED(day.run({"missing.out", "empty.out"}), 2);
        VERIFY_ENDED(day.run({"empty.out", "x.out"}), 1);
        VERIFY_ENDED(day.run({"--columns=4", "x.out", "day"}), 0);
        VERIFY_ENDED(day.run({"--columns=4", "--strict", "x.out", "day"}), 1);
        run = preview({"--columns=5", "-", "x.out"}, {day.folder.path(), {}, documentOf("Zero")});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput),
                 "Standard input\n" + boxOf("Zero ") + "\nx.out\n" + boxOf("Uno  "));
    }

    /// An empty stream in a folder is one that got lost.
    void emptyFileInAFolder()
    {
        const Day day;
        writeFile(day.path("day/5.out"), "");
        const Run run = day.run({"day"});
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardError.contains("day/5.out:1: byte 0: error: the stream is empty"),
                 run.standardError.constData());
    }

    /// Two jobs have the same settings: what is wrong with these is said once.
    void settingsOfSeveralJobs()
    {
        const Day day;
        writeFile(day.path("no.conf"), "");
        writeFile(day.path("a.xml"), "<job><method name=\"printPartialOrder\"/></job>");
        writeFile(day.path("b.xml"), "<job><method name=\"printPartialOrder\"/></job>");
        for (const QString &format : QStringList{"--columns=32", "--json"}) {
            const Run run = day.run({"--settings=no.conf", format, "a.xml", "b.xml"});
            const QByteArray said = format == "--json" ? run.standardOutput : run.standardError;
            VERIFY_ENDED(run, 1);
            QCOMPARE(said.count("no-settings"), 1);
        }
    }

    void pagesOfAPdf()
    {
        const Day day;
        const auto infoOf = [&](const QStringList &arguments) {
            const Run run = day.run(QStringList{"-q", "-o", "y.pdf"} + arguments);
            const Run info = runProgram("pdfinfo", {day.path("y.pdf")}, {});
            return run.status == 0 ? QString::fromUtf8(info.standardOutput) : "failed";
        };
        const auto has = [](const QString &info, const QString &title, int pages) {
            return info.contains(QRegularExpression("(?m)^Title: +" + title + "$"))
                   && info.contains(QRegularExpression(QString("(?m)^Pages: +%1$").arg(pages)));
        };
        QVERIFY(has(infoOf({"x.out"}), "x.out", 1));
        QVERIFY(has(infoOf({"day/"}), "day", 2));
        QVERIFY(has(infoOf({"day", "x.out"}), "3 documents", 3));
        QVERIFY(has(infoOf({"--look=thermal", "day", "x.out"}), "3 documents", 3));
    }

    /// One that cannot be read takes no picture from the others, and one with an error neither.
    void picturesOfTheOthers()
    {
        const Day day;
        writeFile(day.path("empty.out"), "");
        for (const QString &name : QStringList{"y.pdf", "y.html"}) {
            const Run run = day.run({"-o", name, "missing.out", "empty.out", "x.out", "day/9.out"});
            VERIFY_ENDED(run, 2);
            QCOMPARE(run.standardError.count('\n'), 2);
            const QByteArray bytes = bytesOf(day.path(name));
            if (name == "y.html") {
                QCOMPARE(bytes.count("<article "), 3);
                QVERIFY(bytes.contains("<pre>\nUno\n</pre>"));
            } else {
                const Run text = runProgram("pdftotext", {day.path(name), "-"}, {});
                QCOMPARE(QString::fromUtf8(text.standardOutput).simplified(), "Uno Nove");
            }
            VERIFY_ENDED(day.run({"-o", name, "empty.out", "x.out"}), 1);
        }
        VERIFY_TROUBLE(day.run({"-o", "none.pdf", "missing.out"}));
        QVERIFY(!QFile::exists(day.path("none.pdf")));
    }

    /// Standard output takes what a file does.
    void toStandardOutput()
    {
        const Day day;
        Run run = day.run({"-q", "-o-", "--format=pdf", "day", "x.out"});
        VERIFY_ENDED(run, 0);
        writeFile(day.path("y.pdf"), run.standardOutput);
        const Run text = runProgram("pdftotext", {day.path("y.pdf"), "-"}, {});
        QCOMPARE(QString::fromUtf8(text.standardOutput).simplified(), "Dieci Nove Uno");

        run = day.run({"-q", "-o-", "day", "x.out"}); // a PNG, which holds one
        VERIFY_TROUBLE(run);
    }
};

KORVEL_TEST(TestPreviewMany)

} // namespace tst_previewmany

#include "tst_previewmany.moc"

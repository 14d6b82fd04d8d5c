// What the preview finds on paper of other widths, in very many places and in the examples; what it
// finds in streams of a few lines is in tests/preview.
#include "companions/paper/paper.h"
#include "companions/preview/findings.h"
#include "support/bytes.h"
#include "support/streams.h"
#include "support/test.h"

#include <QDirIterator>
#include <QMap>

namespace tst_previewfindings {

using namespace korvel::preview;

/// What is found in a stream, as lines of text: "2: byte 6: ..." is about line 2 of the stream.
QStringList foundIn(const QByteArray &stream, int columns = 32)
{
    QStringList lines;
    for (const Finding &finding : findings(stream, columns))
        lines.append(QString("%1: byte %2: ").arg(finding.line).arg(finding.offset) + finding.text);
    return lines;
}

class TestPreviewFindings : public QObject
{
    Q_OBJECT

private slots:
    void widthsOfOtherPaper()
    {
        QCOMPARE(foundIn(line("0123456789"), 10), QStringList());
        QCOMPARE(foundIn(line("0123456789"), 9),
                 QStringList("1: byte 0: a line of 10 characters is wider than the paper (9)"));
        const QByteArray title = line(QByteArray(13, ' ') + "CASSA");
        QCOMPARE(foundIn(title, 18), QStringList());
        QCOMPARE(foundIn(title, 17),
                 QStringList("1: byte 0: a line of 18 characters is wider than the paper (17)"));
        QCOMPARE(foundIn(line(QByteArray(33, 'x')), 40), QStringList());
        QCOMPARE(foundIn(fiscal("=R1/$1/*1/(012345678)\n"), 8),
                 QStringList("3: byte 7: a sale row of 9 characters is wider than the paper (8)"));
        QCOMPARE(foundIn(fiscal("=S\r\n=V/$5\r\n"), 9), QStringList());
        QCOMPARE(foundIn(fiscal("=S\r\n=V/$5\r\n"), 8),
                 QStringList("3: byte 7: a deduction of 9 characters is wider than the paper (8)"));
    }

    void tooMany_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<qsizetype>("expected");
        QTest::addColumn<QString>("more"); // code of the last
        const auto row = [](const char *name, const QByteArray &stream, qsizetype expected,
                            const char *more) {
            QTest::newRow(name) << stream << expected << more;
        };

        const char *const errors = "more-errors";
        const char *const warnings = "more-warnings";
        row("a thousand", QByteArray(1000, '\n'), 1000, "");
        row("one more", QByteArray(1001, '\n'), 1001, errors);
        row("very many", QByteArray(100000, '\n'), 1001, errors);
        row("a thousand in a line that is too wide", line(QByteArray(1000, ')')), 1001, warnings);
        row("very many warnings", line(QByteArray(100000, ')')), 1001, warnings);
        row("an error behind very many warnings", line(QByteArray(100000, ')')) + "x", 1001,
            errors);
        row("a thousand in a section left open", "=o\n" + QByteArray(1000, '\n'), 1001, errors);
    }

    void tooMany()
    {
        QFETCH(QByteArray, stream);
        QFETCH(qsizetype, expected);
        QFETCH(QString, more);
        QCOMPARE(mostFindings, 1000);
        const QList<Finding> found = findings(stream, 32);
        QCOMPARE(found.size(), expected);
        for (qsizetype i = 0; i < found.size(); ++i) {
            const QString code = infoOf(found[i].code).name;
            QCOMPARE(code.startsWith("more-") ? code : QString(),
                     i == mostFindings ? more : QString());
            QVERIFY(i == 0 || found[i].offset >= found[i - 1].offset);
            QCOMPARE(found[i].line, 1 + stream.first(found[i].offset).count('\n'));
        }
    }

    /// Findings that are left out leave their places to others.
    void ignored()
    {
        const QByteArray stream = line(QByteArray(2000, ')')) + "=x\n";
        QStringList left;
        for (const Finding &finding : findings(stream, 32, {Code::EndsText, Code::TooWide}))
            left.append(infoOf(finding.code).name);
        QCOMPARE(left, QStringList("unknown-command"));
    }

    /// Rows of the paper count sums and the marks between documents, as the box shows them.
    void rowsOfThePaper()
    {
        const QByteArray wide(33, 'x');
        const QByteArray stream = fiscal("=R1/$100/*2/(A)\n=R1/$1.5/*1/(B)\n") // rows 1 to 3
                                  + documentOf(wide) // behind the sum, 4 and 5, and the mark, 6
                                  + "=K\n=C1\n" + line("a)") + "=x\n"; // 9 and 10, behind a mark
        QStringList rows;
        for (const Finding &finding : findings(stream, 32))
            rows.append(QString("%1 %2").arg(infoOf(finding.code).name).arg(finding.row));
        QCOMPARE(rows, QStringList({"wrong-amount 3", "too-wide 7", "left-open 0", "ends-text 9",
                                    "unknown-command 10"}));
    }

    /// What the paper says is not counted is found too.
    void notCounted_data()
    {
        QTest::addColumn<QByteArray>("row");
        for (const char *row :
             {"=R1/$x/*1/(A)\n", "=R1/$1/*x/(A)\n", "=R1/$1000000000000000000/*1/(A)\n",
              "=R1/$1/*0.1234567891/(A)\n", "=R1/$999999999999999999/*171/(A)\n", "=S\r\n=V/$x\r\n",
              "=S\r\n=V/$1000000000000000000\r\n"})
            QTest::newRow(QByteArray(row).simplified()) << QByteArray(row);
    }

    void notCounted()
    {
        QFETCH(QByteArray, row);
        const QByteArray stream = fiscal(row);
        const QList<PaperRow> paper = paperOf(stream, 32);
        QVERIFY(paper.last().text.startsWith("Rows not counted "));
        const QStringList found = foundIn(stream);
        QCOMPARE(found.size(), 1);
        QVERIFY2(found.first().startsWith("3: ") || found.first().startsWith("4: "),
                 qPrintable(found.first()));
    }

    void examples_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("expected");

        // Lines of the sample shop that a printer of 32 characters breaks in two.
        const QMap<QString, QStringList> wide = {
            {"period-report",
             {"30: byte 713: a line of 40 characters is wider than the paper (32)",
              "31: byte 760: a line of 41 characters is wider than the paper (32)",
              "38: byte 940: a line of 34 characters is wider than the paper (32)"}},
            {"receipt-summary",
             {"19: byte 501: a line of 34 characters is wider than the paper (32)"}},
        };
        int examples = 0;
        for (QDirIterator it(KORVEL_SOURCE_DIR "/examples/expected", {"*.out"}, QDir::Files);
             it.hasNext(); ++examples) {
            const QString path = it.next();
            const QString name = it.fileInfo().completeBaseName();
            QTest::newRow(qPrintable(name)) << path << wide.value(name);
        }
        QVERIFY(examples >= 13);
    }

    void examples()
    {
        QFETCH(QString, path);
        QFETCH(QStringList, expected);
        const QByteArray stream = bytesOf(path);
        QVERIFY(!stream.isEmpty());
        QCOMPARE(foundIn(stream), expected);
    }
};

KORVEL_TEST(TestPreviewFindings)

} // namespace tst_previewfindings

#include "tst_previewfindings.moc"

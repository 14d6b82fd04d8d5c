// The paper of a stream, row by row.
#include "support/box.h"
#include "support/streams.h"
#include "support/test.h"

#include <algorithm>

namespace tst_previewpaper {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = PaperRow::Kind;

QString nameOf(Kind kind)
{
    switch (kind) {
    case Kind::Printed:
        return "printed";
    case Kind::Registered:
        return "registered";
    case Kind::Deducted:
        return "deducted";
    case Kind::Computed:
        return "computed";
    case Kind::Unknown:
        return "unknown";
    case Kind::Cut:
        break;
    }
    return "cut";
}

/// The paper of a stream, a row as a line: "printed |abc|", "cut".
QStringList shown(const QByteArray &stream, int columns = 32)
{
    QStringList lines;
    for (const PaperRow &row : paperOf(stream, columns))
        lines.append(row.kind == Kind::Cut ? "cut" : nameOf(row.kind) + " |" + row.text + '|');
    return lines;
}

/// The rows under a fiscal section: the line, and the sum at the right of the paper.
QStringList sum(const QString &amount, const QString &label = "Sum (by the preview)")
{
    return {"computed |--------------------------------|",
            "computed |" + label + amount.rightJustified(12) + '|'};
}

QString blanks(int count) { return QString(count, ' '); }

class TestPreviewPaper : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char *name, const QByteArray &stream, const QStringList &rows) {
            QTest::newRow(name) << stream << rows;
        };

        row("an empty stream has no paper", "", {});
        row("a line", line("abc"), {"printed |abc|"});
        row("an empty line", line(""), {"printed ||"});
        row("a line's indent", line("  abc "), {"printed |  abc |"});
        row("the blanks of a centred line", line("             CASSA"),
            {"printed |             CASSA|"});
        row("a line wider than the paper", line(QByteArray(40, 'x')),
            {"printed |" + QString(40, 'x') + "|"});
        row("text in UTF-8", line("Caffè €"), {"printed |Caffè €|"});
        row("sections leave nothing", "=o/*1\n=o\n", {});
        row("something unknown, its bytes spelt out", "=X\t\xFF\n", {"unknown |=X\\t\\xff\\n|"});
        row("a broken row is unknown", "=R1/$1\n", {"unknown |=R1/$1\\n|"});

        // Description and what it comes to at the two edges: 6 + 19 + 7 are 32.
        row("a sale row", "=R1/$120/*1/(COFFEE)\n",
            {"registered |COFFEE" + blanks(19) + "1.20 R1|"});
        row("a quantity stands above", "=R1/$120/*2/(COFFEE)\n",
            {"registered |  2 x 1.20|", "registered |COFFEE" + blanks(19) + "2.40 R1|"});
        row("a quantity with a comma", "=R1/$333/*0,5/(COFFEE)\n",
            {"registered |  0,5 x 3.33|", "registered |COFFEE" + blanks(18) + "1.665 R1|"});
        row("a quantity of 1 in another spelling stands above", "=R1/$120/*1.0/(COFFEE)\n",
            {"registered |  1.0 x 1.20|", "registered |COFFEE" + blanks(19) + "1.20 R1|"});
        row("parts of a hundredth", "=R1/$100.5/*1/(COFFEE)\n",
            {"registered |COFFEE" + blanks(18) + "1.005 R1|"});
        row("another department", "=R12/$5/*1/(COFFEE)\n",
            {"registered |COFFEE" + blanks(18) + "0.05 R12|"});
        row("no department and no description", "=R/$0/*1/()\n",
            {"registered |" + blanks(26) + "0.00 R|"});
        row("a description that leaves one blank", "=R1/$120/*1/(123456789 123456789 1234)\n",
            {"registered |123456789 123456789 1234 1.20 R1|"});
        row("a description that leaves none takes a row of its own",
            "=R1/$120/*1/(123456789 123456789 12345)\n",
            {"registered |123456789 123456789 12345|", "registered |" + blanks(25) + "1.20 R1|"});
        row("a description wider than the paper", "=R1/$120/*1/(" + QByteArray(40, 'x') + ")\n",
            {"registered |" + QString(40, 'x') + "|", "registered |" + blanks(25) + "1.20 R1|"});
        row("an amount that is no plain number", "=R1/$1e+16/*1/(COFFEE)\n",
            {"registered |  1 x \"1e+16\"/100|", "registered |COFFEE" + blanks(22) + "? R1|"});
        row("an amount that is no plain number, twice", "=R1/$nan/*2/(COFFEE)\n",
            {"registered |  2 x \"nan\"/100|", "registered |COFFEE" + blanks(22) + "? R1|"});
        row("a quantity that is no number", "=R1/$120/*x/(COFFEE)\n",
            {"registered |  x x 1.20|", "registered |COFFEE" + blanks(22) + "? R1|"});
        row("a product that is too large", "=R1/$999999999999999999/*999999999999999999/(A)\n",
            {"registered |  999999999999999999 x 9999999999999999.99|",
             "registered |A" + blanks(27) + "? R1|"});

        // 9 + 18 + 5 are 32.
        row("a deduction", "=S\r\n=V/$50\r\n", {"deducted |DEDUCTION" + blanks(18) + "-0.50|"});
        row("a deduction of parts of a hundredth", "=S\r\n=V/$100.5\r\n",
            {"deducted |DEDUCTION" + blanks(17) + "-1.005|"});
        row("a deduction that is no plain number", "=S\r\n=V/$inf\r\n",
            {"deducted |DEDUCTION" + blanks(13) + "-\"inf\"/100|"});
    }

    void rows()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QStringList, rows);
        QCOMPARE(shown(stream), rows);
    }

    void narrowPaper_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<int>("columns");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char *name, const QByteArray &stream, int columns,
                            const QStringList &rows) {
            QTest::newRow(name) << stream << columns << rows;
        };

        row("nothing is cut", line("0123456789"), 8, {"printed |0123456789|"});
        row("a row with one blank between", "=R1/$120/*1/(COFFEE)\n", 14,
            {"registered |COFFEE 1.20 R1|"});
        row("a row with none", "=R1/$120/*1/(COFFEE)\n", 13,
            {"registered |COFFEE|", "registered |      1.20 R1|"});
        row("an amount wider than the paper", "=R1/$120/*1/(COFFEE)\n", 1,
            {"registered |COFFEE|", "registered |1.20 R1|"});
        row("a deduction with one blank between", "=S\r\n=V/$50\r\n", 15,
            {"deducted |DEDUCTION -0.50|"});
        row("a deduction with none", "=S\r\n=V/$50\r\n", 14,
            {"deducted |DEDUCTION|", "deducted |         -0.50|"});
        row("the line over a sum is as wide as the paper", fiscal(""), 20,
            {"computed |--------------------|", "computed |Sum (by the preview)|",
             "computed |                0.00|"});
        row("on wider paper too", fiscal(""), 40,
            {"computed |----------------------------------------|",
             "computed |Sum (by the preview)" + blanks(16) + "0.00|"});
    }

    void narrowPaper()
    {
        QFETCH(QByteArray, stream);
        QFETCH(int, columns);
        QFETCH(QStringList, rows);
        QCOMPARE(shown(stream, columns), rows);
    }

    void sums_data()
    {
        QTest::addColumn<QByteArray>("rows");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<int>("notCounted");
        const auto row = [](const char *name, const QByteArray &rows, const QString &amount,
                            int notCounted = 0) {
            QTest::newRow(name) << rows << amount << notCounted;
        };
        const QByteArray coffee = "=R1/$120/*2/(COFFEE)\n"; // 2.40
        const QByteArray half = "=S\r\n=V/$50\r\n";         // -0.50

        row("nothing registered", "", "0.00");
        row("one row", coffee, "2.40");
        row("rows of any department", coffee + "=R2/$5/*1/(TEA)\n", "2.45");
        row("a deduction", coffee + half, "1.90");
        row("more deducted than sold", half + half, "-1.00");
        row("quantities with decimals", "=R1/$333/*0,333/(A)\n=R1/$100/*1.5/(B)\n", "2.60889");
        row("parts of a hundredth", "=R1/$100.5/*1/(A)\n=S\r\n=V/$0.25\r\n", "1.0025");
        row("lines and unknown bytes are in no sum", coffee + line("9.99") + "=R9\n", "2.40");
        row("an amount that is no number", coffee + "=R1/$1e+16/*1/(A)\n", "2.40", 1);
        row("a quantity that is no number", coffee + "=R1/$120/*/(A)\n", "2.40", 1);
        row("a deduction that is no number", coffee + "=S\r\n=V/$inf\r\n", "2.40", 1);
        row("a product that is too large",
            coffee + "=R1/$999999999999999999/*999999999999999999/(A)\n", "2.40", 1);
        row("two that are not counted", "=R1/$/*1/(A)\n" + coffee + "=S\r\n=V/$\r\n", "2.40", 2);
        // Two of 1.2e20 hundredths are more than a sum can be.
        row("a sum that is too large", QByteArray("=R1/$999999999999999999/*120/(A)\n").repeated(2),
            "1199999999999999998.80", 1);
    }

    void sums()
    {
        QFETCH(QByteArray, rows);
        QFETCH(QString, amount);
        QFETCH(int, notCounted);
        QStringList computed;
        for (const QString &row : shown(fiscal(rows))) {
            if (row.startsWith("computed"))
                computed.append(row);
        }
        QStringList expected = sum(amount);
        if (amount.size() > 11) // no room beside "Sum (by the preview)"
            expected = {expected.first(), "computed |Sum (by the preview)|",
                        "computed |" + amount.rightJustified(32) + '|'};
        if (notCounted > 0)
            expected.append("computed |Rows not counted" + blanks(15) + QString::number(notCounted)
                            + '|');
        QCOMPARE(computed, expected);
    }

    /// Not even a job made for it can tell a terminal what to do.
    void noControlCharacters()
    {
        const QByteArray bad = "\x1B[2J\r\a\x7F\xC2\x9B";
        const QByteArray stream = line(bad + '\n')
                                  + fiscal("=R" + bad + "/$" + bad + "/*" + bad + "/(" + bad
                                           + "\n)\n=S\r\n=V/$\x1B"
                                             "1\r\n")
                                  + bad + "\n\x1B\xFF";
        const QList<PaperRow> rows = paperOf(stream, 32);
        QVERIFY(rows.size() >= 7);
        for (const PaperRow &row : rows) {
            QVERIFY2(std::none_of(row.text.cbegin(), row.text.cend(),
                                  [](QChar character) {
                                      return character.category() == QChar::Other_Control;
                                  }),
                     qPrintable(nameOf(row.kind)));
        }
        const QString shown = boxed(rows, 32, false).remove('\n');
        QVERIFY(std::none_of(shown.cbegin(), shown.cend(), [](QChar character) {
            return character.category() == QChar::Other_Control;
        }));
    }

    void whatDoesNotPrintKeepsItsWidth()
    {
        const QString replaced(QChar::ReplacementCharacter);
        QCOMPARE(shown(line("a\x1B[1mb\nc")),
                 QStringList("printed |a" + replaced + "[1mb" + replaced + "c|"));
        QCOMPARE(shown(line("a\xFF\xFEz")),
                 QStringList("printed |a" + replaced.repeated(2) + "z|"));
        QCOMPARE(shown(line("Caff\xC3")), QStringList("printed |Caff" + replaced + "|"));
        QCOMPARE(shown(line("\xEF\xBB\xBF=o")), QStringList("printed |" + replaced + "=o|"));
    }
};

KORVEL_TEST(TestPreviewPaper)

} // namespace tst_previewpaper

#include "tst_previewpaper.moc"

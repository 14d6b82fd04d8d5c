// The paper of a stream, row by row, and the box in a terminal.
#include "support/box.h"
#include "support/bytes.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = PaperRow::Kind;

namespace {

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

/// A line as the printer gets it.
QByteArray line(const QByteArray &content) { return "=\"/(" + content + " )\n"; }

QByteArray fiscal(const QByteArray &rows) { return "=K\n=C1\n" + rows + "=T1\n"; }

/// The rows under a fiscal section: the line, and the sum at the right of the paper.
QStringList sum(const QString &amount, const QString &label = "Sum (by the preview)")
{
    return {"computed |--------------------------------|",
            "computed |" + label + amount.rightJustified(12) + '|'};
}

QString blanks(int count) { return QString(count, ' '); }

QString box(const QList<PaperRow> &rows, int columns = 8) { return boxed(rows, columns, false); }

/// The lines between the upper and the lower edge.
QStringList inside(const QString &box)
{
    QStringList lines = box.split('\n');
    return lines.mid(1, lines.size() - 3);
}

const QString pizza = "\xF0\x9F\x8D\x95"; // two units, two cells of a terminal

} // namespace

class TestPaper : public QObject
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

    void sections_data()
    {
        QTest::addColumn<QByteArray>("stream");
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char *name, const QByteArray &stream, const QStringList &rows) {
            QTest::newRow(name) << stream << rows;
        };
        const QByteArray sale = "=R1/$120/*1/(COFFEE)\n";
        const QString sold = "registered |COFFEE" + blanks(19) + "1.20 R1|";

        row("the sum stands where the section closes", fiscal(sale),
            QStringList(sold) + sum("1.20"));
        row("a section left open has a sum so far", "=K\n=C1\n" + sale,
            QStringList(sold) + sum("1.20", "Sum so far (preview)"));
        row("a section left open counts what it does not count",
            "=K\n=C1\n" + sale + "=S\r\n=V/$x\r\n",
            QStringList{sold, "deducted |DEDUCTION" + blanks(15) + "-\"x\"/100|"}
                + sum("1.20", "Sum so far (preview)")
                + QStringList{"computed |Rows not counted" + blanks(15) + "1|"});
        row("a document left open has none", "=o\n" + sale, {sold});
        row("a fiscal closing alone has none", sale + "=T1\n", {sold});
        row("a row before the section is in no sum", sale + fiscal(""),
            QStringList(sold) + sum("0.00"));
        row("a row behind the section is in no sum", fiscal(sale) + sale + "=T1\n",
            QStringList(sold) + sum("1.20") + QStringList{"cut", sold});
        row("a row of a receipt is in no sum", "=o/*1\n" + sale + "=o\n", {sold});
        row("the sum so far stands before another section", "=K\n=C1\n" + sale + "=o/*1\n" + sale,
            QStringList(sold) + sum("1.20", "Sum so far (preview)") + QStringList(sold));
        row("the other section ends the sum", "=K\n=C1\n" + sale + "=o/*1\n" + sale + "=T1\n",
            QStringList(sold) + sum("1.20", "Sum so far (preview)") + QStringList(sold));
        row("a fiscal section in a fiscal section", "=K\n=C1\n" + sale + fiscal(sale + sale),
            QStringList(sold) + sum("1.20", "Sum so far (preview)") + QStringList{sold, sold}
                + sum("2.40"));
        row("each section has its sum", fiscal(sale) + fiscal(sale + sale),
            QStringList(sold) + sum("1.20") + QStringList{"cut", sold, sold} + sum("2.40"));
        row("each section counts what it does not count",
            fiscal("=R1/$120/*x/(A)\n") + fiscal(sale),
            QStringList{"registered |  x x 1.20|", "registered |A" + blanks(27) + "? R1|"}
                + sum("0.00")
                + QStringList{"computed |Rows not counted" + blanks(15) + "1|", "cut", sold}
                + sum("1.20"));

        row("nothing is cut behind the last document", "=o/*1\n" + line("A") + "=o\n",
            {"printed |A|"});
        row("documents are cut apart", "=o/*1\n" + line("A") + "=o\n=o/*1\n" + line("B") + "=o\n",
            {"printed |A|", "cut", "printed |B|"});
        row("a document and a fiscal section are cut apart",
            "=o\n" + line("A") + "=o\n" + fiscal(""),
            QStringList{"printed |A|", "cut"} + sum("0.00"));
        row("a line behind a document is cut off", "=o/*1\n=o\n" + line("A"),
            {"cut", "printed |A|"});
        row("something unknown behind a document is cut off", "=o/*1\n=o\nx\n",
            {"cut", "unknown |x\\n|"});
        row("a document that closes twice is cut off once",
            "=o/*1\n" + line("A") + "=o\n=T1\n" + line("B"), {"printed |A|", "cut", "printed |B|"});
        row("three documents have two cuts", QByteArray("=o/*1\n=o\n").repeated(3), {"cut", "cut"});
    }

    void sections()
    {
        QFETCH(QByteArray, stream);
        QFETCH(QStringList, rows);
        QCOMPARE(shown(stream), rows);
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

    void boxes_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, Kind kind, const QString &text,
                            const QString &expected) {
            QTest::newRow(name) << kind << text << expected;
        };

        row("a row is filled up to the edge", Kind::Printed, "abc", "│abc     │");
        row("an empty row", Kind::Printed, "", "│        │");
        row("a row as wide as the paper", Kind::Printed, "01234567", "│01234567│");
        row("a character too many", Kind::Printed, "012345678", "│01234567»8");
        row("a wide row is kept whole", Kind::Printed, "0123456789 123456789",
            "│01234567»89 123456789");
        row("blanks behind the edge are kept", Kind::Printed, "01234567  ", "│01234567»  ");
        row("registered", Kind::Registered, "abc", "│abc     │");
        row("deducted", Kind::Deducted, "abc", "│abc     │");
        row("computed by the preview", Kind::Computed, "abc", "┊abc     ┊");
        row("unknown to the preview", Kind::Unknown, "abc", "┊abc     ┊");
        row("unknown and too wide", Kind::Unknown, "012345678", "┊01234567»8");
        row("a cut is a dotted line", Kind::Cut, "", "├╌╌╌╌╌╌╌╌┤");

        row("an accented letter takes a cell", Kind::Printed, "Caffè", "│Caffè   │");
        row("the euro sign takes a cell", Kind::Printed, "€", "│€       │");
        row("an emoji takes two", Kind::Printed, pizza, "│" + pizza + "      │");
        row("an accent over a letter takes none", Kind::Printed, u"e\u0301"_s,
            u"│e\u0301       │"_s);
        row("a wide letter takes two", Kind::Printed, u"\u65E5"_s, u"│\u65E5      │"_s);
        row("wide letters that fit the paper but not the box", Kind::Printed,
            u"\u65E5"_s.repeated(8), u"│"_s + u"\u65E5"_s.repeated(8) + u"│"_s);
        row("an emoji that ends at the edge", Kind::Printed, "012345" + pizza,
            "│012345" + pizza + "│");
        row("an emoji across the edge goes behind it", Kind::Printed, "0123456" + pizza + "9",
            "│0123456 »" + pizza + "9");
        row("an emoji behind the edge", Kind::Printed, "01234567" + pizza, "│01234567»" + pizza);
        row("an emoji before the edge", Kind::Printed, "012345" + pizza + "8",
            "│012345" + pizza + "»8");
    }

    void boxes()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(box({{kind, text}}), "┌────────┐\n" + expected + "\n└────────┘\n");
    }

    void theSampleFiscalReceipt()
    {
        const QByteArray stream =
            bytesOf(KORVEL_SOURCE_DIR "/examples/expected/fiscal-receipt.out");
        QCOMPARE(boxed(paperOf(stream, 32), 32, false),
                 QString("┌────────────────────────────────┐\n"
                         "│  2 x 7.00                      │\n"
                         "│Pizza Margherita        14.00 R1│\n"
                         "│  2 x 4.50                      │\n"
                         "│Birra media alla spina   9.00 R2│\n"
                         "│DEDUCTION                  -3.00│\n"
                         "┊--------------------------------┊\n"
                         "┊Sum (by the preview)       20.00┊\n"
                         "└────────────────────────────────┘\n"));
    }

    void boxesOfOtherWidths()
    {
        QCOMPARE(boxed({}, 3, false), QString("┌───┐\n└───┘\n"));
        QCOMPARE(boxed({{Kind::Printed, "ab"}, {Kind::Cut, ""}, {Kind::Printed, ""}}, 1, false),
                 QString("┌─┐\n│a»b\n├╌┤\n│ │\n└─┘\n"));
        QCOMPARE(boxed({{Kind::Printed, pizza}}, 1, false), "┌─┐\n│ »" + pizza + "\n└─┘\n");
    }

    void rowsOfABoxFollowEachOther()
    {
        QCOMPARE(box({{Kind::Printed, "a"}, {Kind::Cut, ""}, {Kind::Computed, "b"}}),
                 QString("┌────────┐\n│a       │\n├╌╌╌╌╌╌╌╌┤\n┊b       ┊\n└────────┘\n"));
    }

    void colours_data()
    {
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("coloured");
        const auto row = [](const char *name, Kind kind, const QString &text, bool coloured) {
            QTest::newRow(name) << kind << text << coloured;
        };

        row("what is printed is plain", Kind::Printed, "abc", false);
        row("so is what is registered", Kind::Registered, "abc", false);
        row("a deduction", Kind::Deducted, "abc", true);
        row("what the preview says", Kind::Computed, "abc", true);
        row("what it does not know", Kind::Unknown, "abc", true);
        row("a cut", Kind::Cut, "", true);
        row("what is wider than the paper", Kind::Printed, "0123456789", true);
        row("a deduction that is wider", Kind::Deducted, "0123456789", true);
        row("an emoji across the edge", Kind::Printed, "0123456" + pizza, true);
        row("an empty row", Kind::Deducted, "", false);
    }

    void colours()
    {
        QFETCH(Kind, kind);
        QFETCH(QString, text);
        QFETCH(bool, coloured);
        static const QRegularExpression sequence("\x1B\\[[0-9;]*m");
        static const QRegularExpression colouredText(
            "\x1B\\[(?!0m)[0-9;]+m[^\x1B\n]+\x1B\\[0m"); // each ends before its line does
        const QString plain = box({{kind, text}});
        const QString box = boxed({{kind, text}}, 8, true);
        QCOMPARE(QString(box).remove(sequence), plain);
        QCOMPARE(box.contains('\x1B'), coloured);
        QVERIFY(!QString(box).remove(colouredText).contains('\x1B'));
        QVERIFY(!plain.contains('\x1B'));
        if (text.size() > 8)
            QVERIFY2(box.contains(QRegularExpression("\x1B\\[[0-9;]+m»")), qPrintable(box));
    }

    void coloursTellKindsApart()
    {
        QSet<QString> starts;
        for (const Kind kind : {Kind::Printed, Kind::Deducted, Kind::Computed, Kind::Unknown})
            starts.insert(inside(boxed({{kind, "x"}}, 8, true)).value(0).section('x', 0, 0).mid(1));
        QCOMPARE(starts.size(), 4);
        // What is beyond the paper has its colour whatever the row's is.
        const QString printed = inside(boxed({{Kind::Printed, "01234567x"}}, 8, true)).value(0);
        const QString deducted = inside(boxed({{Kind::Deducted, "01234567x"}}, 8, true)).value(0);
        QCOMPARE(deducted.section('7', 1), "\x1B[0m" + printed.section('7', 1));
    }
};

QTEST_GUILESS_MAIN(TestPaper)
#include "tst_paper.moc"

// The paper in a terminal: the box round it, its edges and colours.
#include "support/box.h"
#include "support/bytes.h"
#include "support/test.h"

#include <QRegularExpression>
#include <QSet>

namespace tst_previewbox {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

using Kind = PaperRow::Kind;

QString box(const QList<PaperRow> &rows, int columns = 8) { return boxed(rows, columns, false); }

/// The lines between the upper and the lower edge.
QStringList inside(const QString &box)
{
    QStringList lines = box.split('\n');
    return lines.mid(1, lines.size() - 3);
}

const QString pizza = "\xF0\x9F\x8D\x95"; // two units, two cells of a terminal

class TestPreviewBox : public QObject
{
    Q_OBJECT

private slots:
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

KORVEL_TEST(TestPreviewBox)

} // namespace tst_previewbox

#include "tst_previewbox.moc"

// The row styles: widths, fills, cuts and pads of their columns.
#include "support/rows.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_rows {

/// The usual texts with another description.
QStringList named(const QString &description) { return {"2", description, "1.20", "2.40"}; }

class TestRows : public QObject
{
    Q_OBJECT

private slots:
    void qdpt_data()
    {
        addRowColumns();
        row("the usual widths give 13 characters to the description", usual, coffee, ' ',
            "  2| |COFFEE       |   1.20|    2.40");
        row("the fill is that of description and price", usual, coffee, '.',
            "  2| |COFFEE.......|...1.20|    2.40");
        row("any character fills", usual, coffee, QChar(0xb7),
            "  2| |COFFEE·······|···1.20|    2.40");
        row("a description of its width is whole", usual, named("ABCDEFGHIJKLM"), '.',
            "  2| |ABCDEFGHIJKLM|...1.20|    2.40");
        row("a description one wider is cut", usual, named("ABCDEFGHIJKLMN"), '.',
            "  2| |ABCDEFGHIJKLM|...1.20|    2.40");
        row("columns of their width", usual, {"123", "A", "1234567", "12345678"}, '.',
            "123| |A............|1234567|12345678");
        row("a quantity too wide is whole", usual, {"1234", "COFFEE", "1.20", "2.40"}, '.',
            "1234| |COFFEE.......|...1.20|    2.40");
        row("a price too wide is whole", usual, {"2", "COFFEE", "12345678", "2.40"}, '.',
            "  2| |COFFEE.......|12345678|    2.40");
        row("a total too wide is whole", usual, {"2", "COFFEE", "1.20", "123456789"}, '.',
            "  2| |COFFEE.......|...1.20|123456789");
        row("all too wide", usual, {"1234", alphabet, "12345678", "123456789"}, '.',
            "1234| |ABCDEFGHIJKLM|12345678|123456789");
        row("empty texts", usual, {"", "", "", ""}, '.', "   | |.............|.......|        ");
        row("blanks of the texts are kept", usual, {" 2", " A  B ", "1 ", " "}, '.',
            "  2| | A  B .......|.....1 |        ");
        row("placeholders are texts", usual, {"%1", "%2%3", "%4", "%1"}, '.',
            " %1| |%2%3.........|.....%4|      %1");
        row("columns of width 0", {0, 0, 0, 32}, coffee, '.', "2 COFFEE" + dots(25) + "1.20|2.40");
        row("columns of negative width pad nothing", {-3, -7, -8, 32}, coffee, '.',
            "2 COFFEE" + dots(43) + "1.20|2.40");
        row("one character for the description", {3, 7, 8, 20}, coffee, '.',
            "  2| |C|...1.20|    2.40");
        row("none for the description", {3, 7, 8, 19}, coffee, '.', "  2| |...1.20|    2.40");
        row("less than none counts as none", {3, 7, 8, 18}, coffee, '.', "  2| |...1.20|    2.40");
        row("a negative paper leaves none", {3, 7, 8, -32}, coffee, '.', "  2| |...1.20|    2.40");
        row("all widths 0", {0, 0, 0, 0}, coffee, '.', "2 1.202.40");
    }

    void qdpt() { compare("qdpt"); }

    void qxdpt_data()
    {
        addRowColumns();
        row("the usual widths give 11 characters to the description", usual, coffee, ' ',
            "  2| x |COFFEE     |   1.20|    2.40");
        row("the fill is that of description and price", usual, coffee, '.',
            "  2| x |COFFEE.....|...1.20|    2.40");
        row("dots lead from the description to the total", usual, {"2", "PIZZA", "", "14.00"}, '.',
            "  2| x |PIZZA......|.......|   14.00");
        row("a description of its width is whole", usual, named("ABCDEFGHIJK"), '.',
            "  2| x |ABCDEFGHIJK|...1.20|    2.40");
        row("a description one wider is cut", usual, named("ABCDEFGHIJKL"), '.',
            "  2| x |ABCDEFGHIJK|...1.20|    2.40");
        row("columns of their width", usual, {"123", "A", "1234567", "12345678"}, '.',
            "123| x |A..........|1234567|12345678");
        row("a quantity too wide is whole", usual, {"1234", "COFFEE", "1.20", "2.40"}, '.',
            "1234| x |COFFEE.....|...1.20|    2.40");
        row("a price too wide is whole", usual, {"2", "COFFEE", "12345678", "2.40"}, '.',
            "  2| x |COFFEE.....|12345678|    2.40");
        row("a total too wide is whole", usual, {"2", "COFFEE", "1.20", "123456789"}, '.',
            "  2| x |COFFEE.....|...1.20|123456789");
        row("empty texts", usual, {"", "", "", ""}, '.', "   | x |...........|.......|        ");
        row("placeholders are texts", usual, {"%1", "%2%3", "%4", "%1"}, '.',
            " %1| x |%2%3.......|.....%4|      %1");
        row("columns of width 0", {0, 0, 0, 32}, coffee, '.',
            "2 x COFFEE" + dots(23) + "1.20|2.40");
        row("columns of negative width pad nothing", {-3, -7, -8, 32}, coffee, '.',
            "2 x COFFEE" + dots(41) + "1.20|2.40");
        row("one character for the description", {3, 7, 8, 22}, coffee, '.',
            "  2| x |C|...1.20|    2.40");
        row("none for the description", {3, 7, 8, 21}, coffee, '.', "  2| x |...1.20|    2.40");
        row("less than none counts as none", {3, 7, 8, 20}, coffee, '.',
            "  2| x |...1.20|    2.40");
        row("a negative paper leaves none", {3, 7, 8, -32}, coffee, '.',
            "  2| x |...1.20|    2.40");
        row("all widths 0", {0, 0, 0, 0}, coffee, '.', "2 x 1.202.40");
    }

    void qxdpt() { compare("qxdpt"); }

    void qxdtDoubleLine_data()
    {
        addRowColumns();
        row("the usual widths give 24 characters to the description", usual, coffee, ' ',
            "2 x 1.20|\n|COFFEE                  |    2.40");
        row("the fill is that of description and total", usual, coffee, '.',
            "2 x 1.20|\n|COFFEE..................|....2.40");
        row("a description of its width is whole", usual, named("ABCDEFGHIJKLMNOPQRSTUVWX"), '.',
            "2 x 1.20|\n|ABCDEFGHIJKLMNOPQRSTUVWX|....2.40");
        row("a description one wider is cut", usual, named("ABCDEFGHIJKLMNOPQRSTUVWXY"), '.',
            "2 x 1.20|\n|ABCDEFGHIJKLMNOPQRSTUVWX|....2.40");
        row("a total of its width", usual, {"2", "A", "1.20", "12345678"}, '.',
            "2 x 1.20|\n|A.......................|12345678");
        row("a total too wide is whole", usual, {"2", "A", "1.20", "123456789"}, '.',
            "2 x 1.20|\n|A.......................|123456789");
        row("quantity and price are never padded nor cut", usual,
            {"123456789012", "A", "123456789012", "2.40"}, '.',
            "123456789012 x 123456789012|\n|A.......................|....2.40");
        row("the widths of quantity and price do not matter", {20, 30, 8, 32}, coffee, '.',
            "2 x 1.20|\n|COFFEE..................|....2.40");
        row("empty texts", usual, {"", "", "", ""}, '.',
            " x |\n|........................|........");
        row("placeholders are texts", usual, {"%1", "%2%3", "%4", "%1"}, '.',
            "%1 x %4|\n|%2%3....................|......%1");
        row("columns of width 0", {0, 0, 0, 32}, coffee, '.',
            "2 x 1.20|\n|COFFEE" + dots(26) + "2.40");
        row("columns of negative width pad nothing", {-3, -7, -8, 32}, coffee, '.',
            "2 x 1.20|\n|COFFEE" + dots(34) + "2.40");
        row("one character for the description", {3, 7, 8, 9}, coffee, '.',
            "2 x 1.20|\n|C|....2.40");
        row("none for the description", {3, 7, 8, 8}, coffee, '.', "2 x 1.20|\n|....2.40");
        row("less than none counts as none", {3, 7, 8, 7}, coffee, '.', "2 x 1.20|\n|....2.40");
        row("a negative paper leaves none", {3, 7, 8, -32}, coffee, '.', "2 x 1.20|\n|....2.40");
        row("all widths 0", {0, 0, 0, 0}, coffee, '.', "2 x 1.20|\n|2.40");
    }

    void qxdtDoubleLine() { compare("qxdtDoubleLine"); }

    void qxd_data()
    {
        addRowColumns();
        row("the usual widths give 26 characters to the description; price and total are left out",
            usual, coffee, ' ', "  2| x |COFFEE                    ");
        row("the fill is that of the description", usual, coffee, '.',
            "  2| x |COFFEE....................");
        row("a description of its width is whole", usual, named(alphabet), '.',
            "  2| x |ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        row("a description one wider is cut", usual, named(alphabet + "1"), '.',
            "  2| x |ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        row("a quantity of its width", usual, {"123", "A", "", ""}, '.',
            "123| x |A.........................");
        row("a quantity too wide is whole", usual, {"1234", "A", "", ""}, '.',
            "1234| x |A.........................");
        row("the widths of price and total do not matter", {3, 20, 30, 32}, coffee, '.',
            "  2| x |COFFEE....................");
        row("empty texts", usual, {"", "", "", ""}, '.', "   | x " + dots(26));
        row("placeholders are texts", usual, {"%1", "%2%3", "%4", "%1"}, '.',
            " %1| x |%2%3" + dots(22));
        row("a column of width 0", {0, 0, 0, 32}, coffee, '.', "2 x COFFEE" + dots(23));
        row("a column of negative width pads nothing", {-3, -7, -8, 32}, coffee, '.',
            "2 x COFFEE" + dots(26));
        row("one character for the description", {3, 7, 8, 7}, coffee, '.', "  2| x |C");
        row("none for the description", {3, 7, 8, 6}, coffee, '.', "  2| x ");
        row("less than none counts as none", {3, 7, 8, 5}, coffee, '.', "  2| x ");
        row("a negative paper leaves none", {3, 7, 8, -32}, coffee, '.', "  2| x ");
        row("all widths 0", {0, 0, 0, 0}, coffee, '.', "2 x ");
    }

    void qxd() { compare("qxd"); }

    // The row is two characters narrower than the paper.
    void qd_data()
    {
        addRowColumns();
        row("the usual widths give 26 characters to the description; price and total are left out",
            usual, coffee, ' ', "  2| |COFFEE                    ");
        row("the fill is ignored", usual, coffee, '.', "  2| |COFFEE                    ");
        row("a description of its width is whole", usual, named(alphabet), '.',
            "  2| |ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        row("a description one wider is cut", usual, named(alphabet + "1"), '.',
            "  2| |ABCDEFGHIJKLMNOPQRSTUVWXYZ");
        row("a quantity of its width", usual, {"123", "A", "", ""}, '.',
            "123| |A                         ");
        row("a quantity too wide is whole", usual, {"1234", "A", "", ""}, '.',
            "1234| |A                         ");
        row("the widths of price and total do not matter", {3, 20, 30, 32}, coffee, '.',
            "  2| |COFFEE                    ");
        row("empty texts", usual, {"", "", "", ""}, '.', "   | " + blanks(26));
        row("placeholders are texts", usual, {"%1", "%2%3", "%4", "%1"}, '.',
            " %1| |%2%3" + blanks(22));
        row("a column of width 0", {0, 0, 0, 32}, coffee, '.', "2 COFFEE" + blanks(23));
        row("a column of negative width pads nothing", {-3, -7, -8, 32}, coffee, '.',
            "2 COFFEE" + blanks(26));
        row("one character for the description", {3, 7, 8, 7}, coffee, '.', "  2| |C");
        row("none for the description", {3, 7, 8, 6}, coffee, '.', "  2| ");
        row("less than none counts as none", {3, 7, 8, 5}, coffee, '.', "  2| ");
        row("a negative paper leaves none", {3, 7, 8, -32}, coffee, '.', "  2| ");
        row("all widths 0", {0, 0, 0, 0}, coffee, '.', "2 ");
    }

    void qd() { compare("qd"); }

    // The row is three characters narrower than the paper.
    void dateAmountType_data()
    {
        addRowColumns();
        const Widths list = {3, 8, 9, 32};
        const QStringList payment = {"01/02/2006: ", "payment", "50.00", ""};

        row("15 characters of date, 6 of description, 8 of amount", list, payment, '.',
            "01/02/2006:    |paymen|...50.00");
        row("titles", list, {"Date", "Description", "Amount", ""}, ' ',
            "Date           |Descri|  Amount");
        row("the fill is that of description and amount, not of the date", list,
            {"1/2", "pay", "5", ""}, '.', "1/2            |pay...|.......5");
        row("a description of its width is whole", list, {"1/2", "ABCDEF", "5", ""}, '.',
            "1/2            |ABCDEF|.......5");
        row("a description one wider is cut", list, {"1/2", "ABCDEFG", "5", ""}, '.',
            "1/2            |ABCDEF|.......5");
        row("a date of its width", list, {"ABCDEFGHIJKLMNO", "pay", "5", ""}, '.',
            "ABCDEFGHIJKLMNO|pay...|.......5");
        row("a date too wide is whole", list, {"ABCDEFGHIJKLMNOP", "pay", "5", ""}, '.',
            "ABCDEFGHIJKLMNOP|pay...|.......5");
        row("an amount of its width", list, {"1/2", "pay", "12345678", ""}, '.',
            "1/2            |pay...|12345678");
        row("an amount too wide is whole", list, {"1/2", "pay", "123456789", ""}, '.',
            "1/2            |pay...|123456789");
        row("the fourth text is left out", list, {"1/2", "pay", "5", "TOTAL"}, '.',
            "1/2            |pay...|.......5");
        row("the widths of quantity and total do not matter", {20, 8, 30, 32}, payment, '.',
            "01/02/2006:    |paymen|...50.00");
        row("empty texts", list, {"", "", "", ""}, '.', blanks(15) + "......|........");
        row("placeholders are texts", list, {"%1", "%2%3", "%4", "%1"}, '.',
            "%1             |%2%3..|......%4");
        row("a column of width 0", {0, 0, 0, 32}, payment, '.',
            "01/02/2006:    |payment.......|50.00");
        row("a column of negative width pads nothing", {-3, -7, -8, 32}, payment, '.',
            "01/02/2006:    |payment" + dots(14) + "50.00");
        row("one character for the description", {3, 8, 9, 27}, payment, '.',
            "01/02/2006:    |p|...50.00");
        row("none for the description", {3, 8, 9, 26}, payment, '.', "01/02/2006:    |...50.00");
        row("less than none counts as none", {3, 8, 9, 25}, payment, '.',
            "01/02/2006:    |...50.00");
        row("a negative paper leaves none", {3, 8, 9, -32}, payment, '.',
            "01/02/2006:    |...50.00");
        row("all widths 0", {0, 0, 0, 0}, payment, '.', "01/02/2006:    50.00");
    }

    void dateAmountType() { compare("date-amount-type"); }

    // Widths count UTF-16 units.
    void units_data()
    {
        addRowColumns();
        row("a letter with an accent counts 1", usual, named("CAFF\u00c8"), '.',
            "  2 CAFF\u00c8...........1.20    2.40");
        row("a combining accent counts 1 more", usual, named("CAFFE\u0300"), '.',
            "  2 CAFFE\u0300..........1.20    2.40");
        row("a Chinese character counts 1", usual, named("\u8336"), '.',
            "  2 \u8336...............1.20    2.40");
        row("an emoji counts 2", usual, named("\U0001f600"), '.',
            "  2 \U0001f600..............1.20    2.40");
        row("an emoji in every other column", usual,
            {"\U0001f600", "A", "\U0001f600", "\U0001f600"}, '.',
            " \U0001f600 A.................\U0001f600      \U0001f600");
        row("an emoji that fits is whole", usual, named("ABCDEFGHIJK\U0001f600"), '.',
            "  2 ABCDEFGHIJK\U0001f600...1.20    2.40");
        row("a cut goes between a letter and its accent", usual, named("ABCDEFGHIJKLE\u0300"), '.',
            "  2 ABCDEFGHIJKLE...1.20    2.40");
        row("a cut goes through an emoji", usual, named("ABCDEFGHIJKL\U0001f600"), '.',
            "  2 ABCDEFGHIJKL" + QString(QChar(0xd83d)) + "...1.20    2.40");
    }

    void units() { compare("qdpt"); }

private:
    static void compare(const QString &style)
    {
        QFETCH(Widths, widths);
        QFETCH(QStringList, texts);
        QFETCH(QChar, fill);
        QFETCH(QString, expected);
        QCOMPARE(rowOf(widths, texts, fill, style), expected);
    }

    const TemporaryHome home{""};
};

KORVEL_TEST(TestRows)

} // namespace tst_rows

#include "tst_rows.moc"

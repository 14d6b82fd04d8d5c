// Column titles, printed once, and the separator line.
#include "support/jobs.h"
#include "support/rows.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_titles {

class TestTitles : public QObject
{
    Q_OBJECT

private slots:
    void columnsHeader()
    {
        RecordingDriver driver;
        setWidths(driver, usual);
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        QCOMPARE(driver.calls, QStringList({"setBold", "println |Num Description    Price  Amount|",
                                            "setCharSize"}));
    }

    void columnsHeaderTexts_data()
    {
        addRowColumns();
        row("empty titles are blanks", usual, {"", "", "", ""}, {}, blanks(32));
        row("a description is cut", usual, {"Num", alphabet, "Price", "Amount"}, {},
            "Num| |ABCDEFGHIJKLM|  Price|  Amount");
        row("other titles are whole", usual, {"Number", "A", "Unit price", "Line total"}, {},
            "Number| |A            |Unit price|Line total");
        row("placeholders are texts", usual, {"%1", "%2", "%3", "%4"}, {},
            " %1| |%2           |     %3|      %4");
        row("widths of 0", {0, 0, 0, 32}, {"N", "D", "P", "A"}, {}, "N D" + blanks(30) + "PA");
        row("a narrow paper", {3, 7, 8, 10}, {"N", "D", "P", "A"}, {}, "  N| |      P|       A");
    }

    void columnsHeaderTexts()
    {
        QFETCH(Widths, widths);
        QFETCH(QStringList, texts);
        QFETCH(QString, expected);
        RecordingDriver driver;
        setWidths(driver, widths);
        driver.printColumnsHeader(texts[0], texts[1], texts[2], texts[3]);
        QCOMPARE(driver.calls,
                 QStringList({"setBold", "println |" + expected + "|", "setCharSize"}));
    }

    void columnsHeaderOncePerRun()
    {
        RecordingDriver driver;
        setWidths(driver, usual);
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        driver.calls.clear();
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        driver.printColumnsHeader("Other", "titles", "than", "before");
        QVERIFY(readJob(driver, "<job><method name='printPartialOrder'/></job>"));
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        QCOMPARE(driver.calls.filter("println"), QStringList());

        RecordingDriver another;
        another.printColumnsHeader("Num", "Description", "Price", "Amount");
        QCOMPARE(another.calls.size(), 3);
    }

    void columnsHeaderUsesUpTheOneTime()
    {
        RecordingDriver driver;
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        QCOMPARE(driver.oneTime(), false);
    }

    void oneTimeUsesUpTheColumnsHeader()
    {
        RecordingDriver driver;
        QCOMPARE(driver.oneTime(), true);
        driver.printColumnsHeader("Num", "Description", "Price", "Amount");
        QCOMPARE(driver.calls, QStringList());
    }

    void separatorLine_data()
    {
        QTest::addColumn<int>("paperWidth");
        QTest::addColumn<int>("length");
        const auto row = [](const char *name, int paperWidth, int length) {
            QTest::newRow(name) << paperWidth << length;
        };
        row("32", 32, 32);
        row("40", 40, 40);
        row("1", 1, 1);
        row("0 is an empty line", 0, 0);
        row("-1 is an empty line", -1, 0);
        row("the least width is an empty line", least, 0);
        row("as long as the limit", paddingLimit, paddingLimit);
        row("not longer than the limit", paddingLimit + 1, paddingLimit);
        row("the greatest width", greatest, paddingLimit);
    }

    void separatorLine()
    {
        QFETCH(int, paperWidth);
        QFETCH(int, length);
        RecordingDriver driver;
        driver.layout.paperWidth = paperWidth;
        driver.printSeparatorLine();
        QCOMPARE(driver.calls, QStringList("println |" + QString(length, '=') + "|"));
    }

    void separatorLineEachTime()
    {
        RecordingDriver driver;
        driver.layout.paperWidth = 3;
        driver.printSeparatorLine();
        driver.printSeparatorLine();
        QCOMPARE(driver.calls, QStringList({"println |===|", "println |===|"}));
    }

private:
    const TemporaryHome home{""};
};

KORVEL_TEST(TestTitles)

} // namespace tst_titles

#include "tst_titles.moc"

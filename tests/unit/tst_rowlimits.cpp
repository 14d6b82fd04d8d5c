// Rows of any style beyond what is usual: unknown styles, widths at their bounds, long texts.
#include "support/rows.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_rowlimits {

const QStringList styles = {"qdpt", "qxdpt", "qxdtDoubleLine", "qxd", "qd", "date-amount-type"};

class TestRowLimits : public QObject
{
    Q_OBJECT

private slots:
    void unknownStyle_data()
    {
        QTest::addColumn<QString>("style");
        const QStringList unknown =
            QString("|q|qdp|qdptx| qdpt|qdpt |QDPT|Qdpt|qdxpt|QXDPT|qxdt|qxdtdoubleline|"
                    "QXDTDOUBLELINE|QXD|Qd|QD|date|Date-Amount-Type|DATE-AMOUNT-TYPE|%1")
                .split('|');
        for (const QString &style : unknown)
            QTest::addRow("<%s>", qPrintable(style)) << style;
    }

    void unknownStyle()
    {
        QFETCH(QString, style);
        QCOMPARE(rowOf(usual, coffee, '.', style), "");
    }

    void rowsPrintNothing()
    {
        RecordingDriver driver;
        setWidths(driver, usual);
        for (const QString &style : styles)
            QVERIFY(!driver.descriptionRow("2", "COFFEE", "1.20", "2.40", '.', style).isEmpty());
        QCOMPARE(driver.calls, QStringList());
        QCOMPARE(driver.oneTime(), true);
    }

    void hugeWidth_data()
    {
        QTest::addColumn<Widths>("widths");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("start");
        QTest::addColumn<QString>("end");
        const auto row = [](const char *name, const Widths &widths, const char *style,
                            const char *start, const char *end) {
            QTest::newRow(name) << widths << style << start << end;
        };

        row("quantity", {greatest, 0, 0, 32}, "qdpt", "  ", "  2 1.202.40");
        row("price", {0, greatest, 0, 32}, "qdpt", "2 ..", "..1.202.40");
        row("total", {0, 0, greatest, 32}, "qdpt", "2 1.20  ", "  2.40");
        row("paper", {0, 0, 0, greatest}, "qdpt", "2 COFFEE..", "..1.202.40");
        row("total of two lines", {0, 0, greatest, 32}, "qxdtDoubleLine", "2 x 1.20\n..", "..2.40");
        row("paper of two lines", {0, 0, 0, greatest}, "qxdtDoubleLine", "2 x 1.20\nCOFFEE..",
            "..2.40");
        row("paper of a row without amounts", {0, 0, 0, greatest}, "qxd", "2 x COFFEE..", "..");
        row("paper of an order", {0, 0, 0, greatest}, "qd", "2 COFFEE  ", "  ");
        row("amount of a movement", {0, greatest, 0, 32}, "date-amount-type", "2              ..",
            "..1.20");
        row("paper of a movement", {0, 0, 0, greatest}, "date-amount-type",
            "2              COFFEE..", "..1.20");
        row("a negative column widens the description", {least, 0, 0, 32}, "qdpt", "2 COFFEE..",
            "..1.202.40");
    }

    void hugeWidth()
    {
        QFETCH(Widths, widths);
        QFETCH(QString, style);
        QFETCH(QString, start);
        QFETCH(QString, end);
        const QString row = rowOf(widths, coffee, '.', style);
        QVERIFY2(row.startsWith(start), qPrintable(row.left(40)));
        QVERIFY2(row.endsWith(end), qPrintable(row.right(40)));
        QVERIFY2(row.size() >= paddingLimit, qPrintable(QString::number(row.size())));
        QVERIFY2(row.size() <= paddingLimit + 40, qPrintable(QString::number(row.size())));
    }

    void widthsAtTheirBounds_data()
    {
        QTest::addColumn<QString>("style");
        for (const QString &style : styles)
            QTest::newRow(qPrintable(style)) << style;
    }

    // Every mix of bounds: a sum of widths that overflows, or too long a pad, would show.
    void widthsAtTheirBounds()
    {
        QFETCH(QString, style);
        const int bounds[] = {least, -1, 0, greatest};
        for (int i = 0; i < 4 * 4 * 4 * 4; ++i) {
            const Widths widths = {bounds[i / 64], bounds[i / 16 % 4], bounds[i / 4 % 4],
                                   bounds[i % 4]};
            const QString row = rowOf(widths, {"QTY", "TEXT", "1.20", "2.40"}, '.', style);
            QVERIFY(row.contains("QTY"));
            QVERIFY(row.size() <= 4 * paddingLimit + 40);
        }
    }

    void widthsUpToTheLimitAreExact()
    {
        QCOMPARE(rowOf({1, 4, 4, paddingLimit}, coffee, '.', "qdpt"),
                 "2 COFFEE" + dots(paddingLimit - 16) + "1.202.40");
    }

    // The limit is one of padding: it cuts no text.
    void textsBeyondTheLimitAreWhole_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("quantity") << 0;
        QTest::newRow("description that its width holds") << 1;
        QTest::newRow("price") << 2;
        QTest::newRow("total") << 3;
    }

    void textsBeyondTheLimitAreWhole()
    {
        QFETCH(int, column);
        QStringList texts = {"", "", "", ""};
        texts[column] = QString(paddingLimit + 1000, 'A');
        const QString row = rowOf({0, 0, 0, paddingLimit + 1001}, texts, '.', "qdpt");
        QCOMPARE(row.count('A'), paddingLimit + 1000);
    }

private:
    const TemporaryHome home{""};
};

KORVEL_TEST(TestRowLimits)

} // namespace tst_rowlimits

#include "tst_rowlimits.moc"

// The limits on widths and margins: what a setting says, and how much is padded at most.
#include "support/limits.h"
#include "support/settingstext.h"
#include "support/test.h"

namespace tst_limitswidths {

class TestLimitsWidths : public QObject
{
    Q_OBJECT

private slots:
    /// A row of the sold items: "7", " x ", the description "X" in what the other columns leave,
    /// an empty price filled with dots, "9".
    void widths_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("row");

        const auto padded = [](qsizetype blanks, const QByteArray &text) {
            return times(blanks, " ") + text;
        };
        // The description in the 29 columns that widths of 0 leave, and in none.
        const QByteArray usual = "X" + times(28, ".");
        const QByteArray widest = "X" + times(65535, ".");

        const auto row = [](const QByteArray &settings, const QByteArray &expected) {
            QTest::newRow(settings.constData()) << settings << expected;
        };
        const auto quantity = [&](const QByteArray &width, const QByteArray &expected) {
            row("quantityFieldWidth = " + width + ';', expected);
        };
        const auto price = [&](const QByteArray &width, const QByteArray &expected) {
            row("priceFieldWidth = " + width + ';', expected);
        };
        const auto total = [&](const QByteArray &width, const QByteArray &expected) {
            row("totalPriceFieldWidth = " + width + ';', expected);
        };
        const auto paper = [&](const QByteArray &width, const QByteArray &expected) {
            row("paperWidth = " + width + ';', expected);
        };

        quantity("65535", padded(65534, "7") + " x " + "9");
        quantity("65536", padded(65535, "7") + " x " + "9");
        quantity("65537", padded(65535, "7") + " x " + "9");
        quantity("2147483647", padded(65535, "7") + " x " + "9");
        quantity("-1", "7 x X" + times(29, ".") + '9');
        quantity("-2147483648", "7 x " + widest + '9');

        price("65535", "7 x " + times(65535, ".") + '9');
        price("65536", "7 x " + times(65536, ".") + '9');
        price("65537", "7 x " + times(65536, ".") + '9');
        price("2147483647", "7 x " + times(65536, ".") + '9');
        price("-1", "7 x X" + times(29, ".") + '9');
        price("-2147483648", "7 x " + widest + '9');

        total("65535", "7 x " + padded(65534, "9"));
        total("65536", "7 x " + padded(65535, "9"));
        total("65537", "7 x " + padded(65535, "9"));
        total("2147483647", "7 x " + padded(65535, "9"));
        total("-1", "7 x X" + times(29, ".") + '9');
        total("-2147483648", "7 x " + widest + '9');

        // Three characters of the line are the " x ".
        paper("65535", "7 x X" + times(65531, ".") + '9');
        paper("65536", "7 x X" + times(65532, ".") + '9');
        paper("65537", "7 x X" + times(65533, ".") + '9');
        paper("65538", "7 x X" + times(65534, ".") + '9');
        paper("65539", "7 x " + widest + '9');
        paper("65540", "7 x " + widest + '9');
        paper("2147483647", "7 x " + widest + '9');
        paper("-1", "7 x 9");
        paper("-2147483648", "7 x 9");

        // Sums beyond 32 bits.
        row("quantityFieldWidth = 2147483647; priceFieldWidth = 2147483647; "
            "totalPriceFieldWidth = 2147483647; paperWidth = 2147483647;",
            padded(65535, "7") + " x " + times(65536, ".") + padded(65535, "9"));
        row("quantityFieldWidth = 2147483647; priceFieldWidth = 2147483647; "
            "totalPriceFieldWidth = 2147483647; paperWidth = -2147483648;",
            padded(65535, "7") + " x " + times(65536, ".") + padded(65535, "9"));
        row("quantityFieldWidth = -2147483648; priceFieldWidth = -2147483648; "
            "totalPriceFieldWidth = -2147483648; paperWidth = 2147483647;",
            "7 x " + widest + '9');
        row("quantityFieldWidth = -2147483648; priceFieldWidth = -2147483648; "
            "totalPriceFieldWidth = -2147483648; paperWidth = -2147483648;",
            "7 x " + widest + '9'); // 3 * 2^31 - 2^31 are left
        row("quantityFieldWidth = 2147483647; priceFieldWidth = -2147483648; paperWidth = 3;",
            padded(65535, "7") + " x X9"); // 3 - (2^31 - 1) + 2^31 - 3: one column
        // What is no number of 32 bits counts as 0, and a paper width of 0 as 32.
        for (const char *key :
             {"quantityFieldWidth", "priceFieldWidth", "totalPriceFieldWidth", "paperWidth"})
            for (const char *width : {"2147483648", "-2147483649", "4294967299", "1e5",
                                      "99999999999999999999999999999999"})
                row(QByteArray(key) + " = " + width + ';', "7 x " + usual + '9');
    }

    void widths()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, row);
        const Shop shop(settingsFile(documentGroup("solddoc", settings)));
        VERIFY_QUIET(shop.render(R"(<job><method name="printSold"/>
            <receipe quantity="7" description="X" amount="9"/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line(row) + "=o\n"), QString());
    }

    void separators_data()
    {
        QTest::addColumn<QByteArray>("width");
        QTest::addColumn<int>("length");

        QTest::newRow("65,535") << QByteArray("65535") << 65535;
        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65536;
        QTest::newRow("largest") << QByteArray::number(largest) << 65536;
        QTest::newRow("below 0") << QByteArray("-1") << 0;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 0;
    }

    void separators()
    {
        QFETCH(QByteArray, width);
        QFETCH(int, length);
        const Shop shop(settingsFile(documentGroup("doc", "paperWidth = " + width + ';')));
        VERIFY_QUIET(shop.render(R"(<job><method name="printPartialOrder"/><orderinfo/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + line(times(length, "=")) + "=o\n"), QString());
    }

    void margins_data()
    {
        QTest::addColumn<QByteArray>("margin");
        QTest::addColumn<int>("lines");

        QTest::newRow("65,535") << QByteArray("65535") << 65535;
        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65536;
        QTest::newRow("largest") << QByteArray::number(largest) << 65536;
        QTest::newRow("one more than the largest") << QByteArray("2147483648") << 0;
        QTest::newRow("below 0") << QByteArray("-1") << 0;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 0;
    }

    void margins()
    {
        QFETCH(QByteArray, margin);
        QFETCH(int, lines);
        const Shop shop(settingsFile(
            documentGroup("doc", "printGeometry = true; topMargin = " + margin + ';')));
        VERIFY_QUIET(shop.render(R"(<job><method name="printPartialOrder"/><geometry/></job>)"));
        QCOMPARE(difference(shop.output(), "=o\n" + times(lines, line("")) + "=o\n"), QString());
    }

    void fiscalDescriptions_data()
    {
        QTest::addColumn<QByteArray>("width");
        QTest::addColumn<int>("length");

        QTest::newRow("65,536") << QByteArray("65536") << 65536;
        QTest::newRow("65,537") << QByteArray("65537") << 65537;
        QTest::newRow("largest") << QByteArray::number(largest) << 70000;
        QTest::newRow("below 0") << QByteArray("-1") << 70000;
        QTest::newRow("smallest") << QByteArray::number(smallest) << 70000;
        QTest::newRow("no number of 32 bits") << QByteArray("2147483648") << 32;
    }

    void fiscalDescriptions()
    {
        QFETCH(QByteArray, width);
        QFETCH(int, length);
        const Shop shop(
            settingsFile(documentGroup("fiscaldoc", "descriptionWidth = " + width + ';')));
        VERIFY_QUIET(shop.render("<job><method name=\"printFullOrderFiscal\"/><receipe name=\""
                                 + times(70000, "x") + "\"/></job>"));
        QCOMPARE(difference(shop.output(), fiscalOpening + "=R/$0/*/(" + times(length, "x") + ")\n"
                                               + fiscalClosing),
                 QString());
    }
};

KORVEL_TEST(TestLimitsWidths)

} // namespace tst_limitswidths

#include "tst_limitswidths.moc"

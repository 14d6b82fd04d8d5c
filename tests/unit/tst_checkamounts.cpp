// Amounts and quantities: which texts are found wanting, on paper and in sale rows.
#include "support/checkjobs.h"
#include "support/test.h"

namespace tst_checkamounts {

namespace check = korvel::check;

class TestCheckAmounts : public QObject
{
    Q_OBJECT

private slots:
    /// Alone, and behind an amount with a point or a comma: the mark is that of the decimals.
    void amounts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("mark");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QString &mark,
                            const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << mark << codes;
        };

        row("12.50", ".");
        row("12.5", ".");
        row("12", "");
        row("12.", ".");
        row("0.00", ".");
        row("", "");
        row("-12.50", ".");
        row("- 12.50", ".");
        row("+12.50", ".");
        row("12.50-", ".");
        row(" 12.50 ", ".");
        row("12.50 EUR", ".");
        row("EUR 12.50", ".");
        row("EUR12.50", ".");
        row("$12.50", ".");
        row("-$12.50", ".");
        row("$-12.50", ".");
        row(QString::fromUtf8("12.50 €"), ".");
        row(QString::fromUtf8("€ 12.50"), ".");
        row(QString::fromUtf8("£12.50"), ".");
        row("1,234.50", ".");
        row("1'234.50", ".");
        row("1 234.50", ".");
        row("1.234.567", "");
        row("12345.67", ".");
        row("1,234,567.00", ".");
        row(".50", ".");
        row("12.500", ".");

        row("12,50", ",");
        row("12,5", ",");
        row("-12,50", ",");
        row(QString::fromUtf8("12,50 €"), ",");
        row("1.234,50", ",");
        row("1 234,50", ",");
        row(QString::fromUtf8("1\u00a0234,50"), ",");
        row("12,-", ",");

        row("12.505", "", {"hundredths"});
        row("0.001", "", {"hundredths"});
        row("12,505", "", {"hundredths"});
        row("12.5001", "", {"hundredths"});

        row("free", "", {"amount"});
        row(" ", "", {"amount"});
        row("-", "", {"amount"});
        row(".", "", {"amount"});
        row("12.50.", "", {"amount"});
        row("12..50", "", {"amount"});
        row("1,23,456.00", "", {"amount"});
        row("12.50 each", "", {"amount"});
        row("12.50 eur", "", {"amount"});
        row("2 x 12.50", "", {"amount"});
        row("12:50", "", {"amount"});
        row("10%", "", {"amount"});
        row("1e3", "", {"amount"});
        row("nan", "", {"amount"});
        row("0x10", "", {"amount"});
        row("(12.50", "", {"amount"});
        row(QString::fromUtf8("१२"), "", {"amount"});
    }

    void amounts()
    {
        QFETCH(QString, value);
        QFETCH(QString, mark);
        QFETCH(QStringList, codes);
        const QByteArray total = "<total" + attribute("price", value.toUtf8()) + "/>";
        QCOMPARE(codesIn(receipt(total)), codes);
        QCOMPARE(codesIn(receipt("<notPaid price=\"0.50\"/>" + total)),
                 mark == "," ? codes + QStringList("decimal-comma") : codes);
        QCOMPARE(codesIn(receipt("<notPaid price=\"0,50\"/>" + total)),
                 mark == "." ? codes + QStringList("decimal-comma") : codes);
    }

    /// As the table of amounts in docs/printer-language.md says, and what is near to it.
    void fiscalAmounts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << codes;
        };

        row("12,50");
        row("12.50");
        row("3.5");
        row("0.1");
        row("-2,00");
        row("-0.01");
        row("0");
        row("+3.50");
        row(" 3.50 ");
        row("3.");
        row(".5");
        row("007.00");
        row("1.500000");
        row("9999999999999.99");

        row("1.005", {"fiscal-hundredths"});
        row("-1.005", {"fiscal-hundredths"});
        row("0,001", {"fiscal-hundredths"});

        row("", {"fiscal-incomplete"});
        row(" ", {"fiscal-amount"});
        row("abc", {"fiscal-amount"});
        row("1.234,50", {"fiscal-amount"});
        row("1,234.50", {"fiscal-amount"});
        row("1 234", {"fiscal-amount"});
        row(QString::fromUtf8("3.50 €"), {"fiscal-amount"});
        row("EUR 3.50", {"fiscal-amount"});
        row("2.50-", {"fiscal-amount"});
        row("--2.50", {"fiscal-amount"});
        row("1e3", {"fiscal-amount"});
        row("0x10", {"fiscal-amount"});
        row("nan", {"fiscal-amount"});
        row("inf", {"fiscal-amount"});
        row("99999999999999.99", {"fiscal-amount"});
        row("10000000000000", {"fiscal-amount"});
    }

    void fiscalAmounts()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(fiscalJob("<receipe department=\"1\" number=\"1\" name=\"x\""
                                   + attribute("price", value.toUtf8()) + "/>")),
                 codes);
        QCOMPARE(codesIn(documentOf("printAbstractOrderFiscal",
                                    "<receipe_type department=\"1\" name=\"x\""
                                        + attribute("price", value.toUtf8()) + "/>")),
                 codes);
    }

    void fiscalQuantities_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << codes;
        };

        row("1");
        row("12");
        row("0.5");
        row("0,5");
        row(".001");
        row("01");
        row("+2");

        row("", {"fiscal-incomplete"});
        row("0", {"fiscal-quantity"});
        row("0.00", {"fiscal-quantity"});
        row("-0", {"fiscal-quantity"});
        row("-1", {"fiscal-quantity"});
        row("two", {"fiscal-quantity"});
        row("1e3", {"fiscal-quantity"});
        row("1.2.3", {"fiscal-quantity"});
        row("1)", {"ends-command"});
        row("1/2", {"ends-command"});
    }

    void fiscalQuantities()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(fiscalJob("<receipe department=\"1\" name=\"x\" price=\"1\""
                                   + attribute("number", value.toUtf8()) + "/>")),
                 codes);
    }

    /// Numbers of many digits are not multiplied: nobody says of them what they come to.
    void sumsOfLargeNumbers_data()
    {
        QTest::addColumn<QByteArray>("number");
        QTest::addColumn<QByteArray>("price");
        QTest::addColumn<QStringList>("codes");
        QTest::newRow("of six digits")
            << QByteArray("999999") << QByteArray("99999999.99") << QStringList{"row-sum"};
        QTest::newRow("of seven digits")
            << QByteArray("9999999") << QByteArray("1.00") << QStringList();
        QTest::newRow("a long price")
            << QByteArray("9") << QByteArray("9999999999999.99") << QStringList();
        QTest::newRow("two marks") << QByteArray("1.0.0") << QByteArray("5.00") << QStringList();
    }

    void sumsOfLargeNumbers()
    {
        QFETCH(QByteArray, number);
        QFETCH(QByteArray, price);
        QFETCH(QStringList, codes);
        QCOMPARE(
            codesIn(receipt("<receipe name=\"x\" totalPrice=\"1.00\"" + attribute("number", number)
                            + attribute("price", price) + "/><total price=\"1.00\"/>")),
            codes);
    }

    /// What a missing quantity of a variant prints is a mark, not nothing.
    void missingQuantityOfAVariant()
    {
        const auto findings =
            check::checkJob(kitchen("<variant number=\"1\" name=\"x\"/>"), nullptr);
        QCOMPARE(findings.size(), 1);
        QVERIFY2(findings.first().text.contains("\"quantity\"")
                     && findings.first().text.contains("\"-\""),
                 qPrintable(findings.first().text));
    }
};

KORVEL_TEST(TestCheckAmounts)

} // namespace tst_checkamounts

#include "tst_checkamounts.moc"

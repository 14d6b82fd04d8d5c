// Amounts and quantities: which texts are found wanting, on paper and in sale rows.
#include "support/checkjobs.h"

#include <QTest>

namespace check = korvel::check;

class TestCheckAmounts : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << codes;
        };

        row("12.50");
        row("12.5");
        row("12");
        row("12.");
        row("0.00");
        row("");
        row("-12.50");
        row("- 12.50");
        row("+12.50");
        row("12.50-");
        row(" 12.50 ");
        row("12.50 EUR");
        row("EUR 12.50");
        row("EUR12.50");
        row("$12.50");
        row("-$12.50");
        row("$-12.50");
        row(QString::fromUtf8("12.50 €"));
        row(QString::fromUtf8("€ 12.50"));
        row(QString::fromUtf8("£12.50"));
        row("1,234.50");
        row("1'234.50");
        row("1 234.50");
        row("1.234.567");
        row("12345.67");
        row("1,234,567.00");
        row(".50");
        row("12.500");

        row("12,50", {"decimal-comma"});
        row("12,5", {"decimal-comma"});
        row("-12,50", {"decimal-comma"});
        row(QString::fromUtf8("12,50 €"), {"decimal-comma"});
        row("1.234,50", {"decimal-comma"});
        row("1 234,50", {"decimal-comma"});
        row(QString::fromUtf8("1\u00a0234,50"), {"decimal-comma"});
        row("12,-", {"decimal-comma"});

        row("12.505", {"hundredths"});
        row("0.001", {"hundredths"});
        row("12,505", {"hundredths", "decimal-comma"});
        row("12.5001", {"hundredths"});

        row("free", {"amount"});
        row(" ", {"amount"});
        row("-", {"amount"});
        row(".", {"amount"});
        row("12.50.", {"amount"});
        row("12..50", {"amount"});
        row("1,23,456.00", {"amount"});
        row("12.50 each", {"amount"});
        row("12.50 eur", {"amount"});
        row("2 x 12.50", {"amount"});
        row("12:50", {"amount"});
        row("10%", {"amount"});
        row("1e3", {"amount"});
        row("nan", {"amount"});
        row("0x10", {"amount"});
        row("(12.50", {"amount"});
        row(QString::fromUtf8("१२"), {"amount"});
    }

    void amounts()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(receipt("<total" + attribute("price", value.toUtf8()) + "/>")), codes);
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
        QCOMPARE(codesIn(fiscal("<receipe department=\"1\" number=\"1\" name=\"x\""
                                + attribute("price", value.toUtf8()) + "/>")),
                 codes);
        QCOMPARE(codesIn(documentOf("printAbstractOrderFiscal",
                                    "<receipe_type department=\"1\" name=\"x\""
                                        + attribute("price", value.toUtf8()) + "/>")),
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

QTEST_GUILESS_MAIN(TestCheckAmounts)
#include "tst_checkamounts.moc"

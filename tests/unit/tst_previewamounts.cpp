// The preview's amounts: exact products and sums, and what is no number.
#include "companions/paper/amounts.h"
#include "support/spelt.h"
#include "support/test.h"

#include <QRegularExpression>

namespace tst_previewamounts {

using namespace Qt::Literals::StringLiterals;
using namespace korvel::preview;

class TestPreviewAmounts : public QObject
{
    Q_OBJECT

private slots:
    void amounts_data()
    {
        QTest::addColumn<QByteArray>("hundredths");
        QTest::addColumn<QByteArray>("quantity");
        QTest::addColumn<QString>("amount");
        const auto row = [](const QByteArray &hundredths, const QByteArray &quantity,
                            const QString &amount) {
            QTest::newRow((hundredths + " x " + quantity).constData())
                << hundredths << quantity << amount;
        };

        row("0", "1", "0.00");
        row("5", "1", "0.05");
        row("12", "1", "0.12");
        row("120", "1", "1.20");
        row("100000", "1", "1000.00");
        row("007", "1", "0.07");
        row("1250.00", "1", "12.50");
        row("100.5", "1", "1.005");
        row("100.50", "1", "1.005");
        row("0.5", "1", "0.005");
        row("120", "2", "2.40");
        row("120", "0", "0.00");
        row("120", "0,5", "0.60");
        row("120", "2.5", "3.00");
        row("120", "0,333", "0.3996");
        row("0.1", "0,1", "0.0001");
        row("333", "3,333", "11.09889");
        row("1", "0.000000001", "0.00000000001");
        row("0.000000001", "0,000000001", "0." + QString(19, '0') + "1");

        // 18 digits at most, 9 of them behind the mark.
        row("999999999999999999", "1", "9999999999999999.99");
        row("000000000000000012", "1", "0.12");
        row("0.123456789", "1", "0.00123456789");
        row("123456789.123456789", "1", "1234567.89123456789");
        row("1", "999999999999999999", "9999999999999999.99");
        row("999999999999999999", "170", "1699999999999999998.30");
    }

    void amounts()
    {
        QFETCH(QByteArray, hundredths);
        QFETCH(QByteArray, quantity);
        QFETCH(QString, amount);
        const auto result = Amount::of(hundredths, quantity);
        QVERIFY(result);
        QCOMPARE(result->toString(), amount);
        if (amount.contains(QRegularExpression("[1-9]")))
            QCOMPARE((-*result).toString(), '-' + amount);
        else
            QCOMPARE((-*result).toString(), amount);
        QCOMPARE((-(-*result)).toString(), amount);
    }

    void noNumbers_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const QByteArray &text :
             {""_ba,    "."_ba,     "5."_ba,   ".5"_ba,      "-5"_ba,    "+5"_ba,    "-0"_ba,
              " 5"_ba,  "5 "_ba,    "5\n"_ba,  "1 000"_ba,   "1.2.3"_ba, "1.2,3"_ba, "1..2"_ba,
              "1e2"_ba, "1e+16"_ba, "nan"_ba,  "inf"_ba,     "abc"_ba,   "5x"_ba,    "0x10"_ba,
              "1/2"_ba, "5\0"_ba,   "\xFF"_ba, "\xD9\xA5"_ba})
            QTest::newRow(qPrintable(spelt(text))) << text;
    }

    void noNumbers()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Amount::of(text));
        QVERIFY(!Amount::of(text, "1"));
        QVERIFY(!Amount::of("1", text));
        QVERIFY(!isQuantity(text));
        QVERIFY(!isWholeHundredths(text));
    }

    void tooManyDigits_data()
    {
        QTest::addColumn<QByteArray>("text");
        for (const char *text : {"1000000000000000000", "0000000000000000001", "0.1234567891",
                                 "0.0000000000", "1234567890.123456789"})
            QTest::newRow(text) << QByteArray(text);
    }

    void tooManyDigits()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!Amount::of(text));
        QVERIFY(!Amount::of("1", text));
        QVERIFY(isQuantity(text));
    }

    void aCommaIsForQuantities()
    {
        QVERIFY(!Amount::of("1,5"));
        QVERIFY(!Amount::of("1,0", "1"));
        QVERIFY(Amount::of("1", "1,5"));
        QVERIFY(isQuantity("1,5"));
        QVERIFY(!isWholeHundredths("1,5"));
    }

    // An amount holds up to 170141183460469231731.687... hundredths.
    void largeProducts()
    {
        QVERIFY(Amount::of("999999999999999999", "170"));
        QVERIFY(!Amount::of("999999999999999999", "171"));
        QVERIFY(!Amount::of("999999999999999999", "999999999999999999"));
    }

    void sums()
    {
        Amount sum;
        QCOMPARE(sum.toString(), QString("0.00"));
        QVERIFY(sum.add(*Amount::of("120", "2")));
        QCOMPARE(sum.toString(), QString("2.40"));
        QVERIFY(sum.add(-*Amount::of("50")));
        QCOMPARE(sum.toString(), QString("1.90"));
        QVERIFY(sum.add(*Amount::of("0.5")));
        QCOMPARE(sum.toString(), QString("1.905"));
        QVERIFY(sum.add(-*Amount::of("240.5")));
        QCOMPARE(sum.toString(), QString("-0.50"));
        QVERIFY(sum.add(*Amount::of("50")));
        QCOMPARE(sum.toString(), QString("0.00"));
    }

    void largeSums_data()
    {
        QTest::addColumn<bool>("negative");
        QTest::newRow("above zero") << false;
        QTest::newRow("below zero") << true;
    }

    void largeSums()
    {
        QFETCH(bool, negative);
        const auto amount = [&](QByteArrayView hundredths, QByteArrayView quantity) {
            const Amount result = Amount::of(hundredths, quantity).value_or(Amount());
            return negative ? -result : result;
        };
        const QString sign = negative ? "-" : "";

        Amount sum = amount("999999999999999999", "170"); // 169999999999999999830
        QVERIFY(sum.add(amount("141183460469231901", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(!sum.add(amount("1", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(!sum.add(sum));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.31");
        QVERIFY(sum.add(amount("0.5", "1")));
        QCOMPARE(sum.toString(), sign + "1701411834604692317.315");
        QVERIFY(sum.add(-sum));
        QCOMPARE(sum.toString(), QString("0.00"));
    }

    // Below zero there may be room for one unit more than above, and 512 of these parts reach it:
    // each is 2 to the power of 118 units.
    void theLowestSum()
    {
        const auto part = Amount::of("576460752.303423488", "576460752.303423488");
        QVERIFY(part);
        Amount sum;
        for (int i = 0; i < 511; ++i)
            QVERIFY(sum.add(-*part));
        const QString before = sum.toString();
        if (sum.add(-*part)) {
            QCOMPARE(sum.toString(), QString("-1701411834604692317.31687303715884105728"));
            QCOMPARE((-sum).toString(), QString("1701411834604692317.31687303715884105728"));
        } else {
            QCOMPARE(sum.toString(), before);
        }
    }

    void wholeHundredths()
    {
        QVERIFY(isWholeHundredths("0"));
        QVERIFY(isWholeHundredths("00"));
        QVERIFY(isWholeHundredths("1250"));
        QVERIFY(isWholeHundredths("0000000000000000000001"));
        QVERIFY(isWholeHundredths(QByteArray(1000, '9')));
        QVERIFY(!isWholeHundredths("100.5"));
        QVERIFY(!isWholeHundredths("100.0"));
    }

    void quantities()
    {
        for (const char *quantity : {"1", "0", "12", "2.5", "0,125", "0.123456789",
                                     "999999999999999999", "1234567890123456789012,5"})
            QVERIFY2(isQuantity(quantity), quantity);
    }
};

KORVEL_TEST(TestPreviewAmounts)

} // namespace tst_previewamounts

#include "tst_previewamounts.moc"

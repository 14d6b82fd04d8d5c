// What the values of layout settings mean: whole numbers, switches, the width of the paper.
#include "support/jobs.h"
#include "support/layouttables.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <clocale>
#include <cstdlib>
#include <limits>

namespace tst_layoutvalues {

class TestLayoutValues : public QObject
{
    Q_OBJECT

private slots:
    void localeHasADecimalComma()
    {
        QCOMPARE(QByteArray(std::localeconv()->decimal_point), ",");
        QCOMPARE(std::strtod("1,5", nullptr), 1.5);
    }

    void wholeNumber_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::addColumn<int>("value");
        const auto quoted = [](const char *name, const QByteArray &text, int value) {
            QTest::newRow(name) << "\"" + text + '"' << value;
        };

        quoted("digits", "12", 12);
        QTest::newRow("digits without quotes") << QByteArray("12") << 12;
        QTest::newRow("blanks around the quotes") << QByteArray("  \"12\" \n ") << 12;
        quoted("0", "0", 0);
        quoted("a zero in front is no octal number", "012", 12);
        quoted("blanks around it", " 12 ", 12);
        quoted("tabs and line feeds around it", "\t12\r\n", 12);
        quoted("a plus", "+5", 5);
        quoted("a minus", "-3", -3);
        quoted("blanks and a sign", " -3 ", -3);
        quoted("a negative zero", "-0", 0);
        quoted("empty", "", 0);
        quoted("blanks only", "   ", 0);
        quoted("a word", "wide", 0);
        quoted("true", "true", 0);
        quoted("a letter after it", "12x", 0);
        quoted("a letter before it", "x12", 0);
        quoted("a unit", "12 mm", 0);
        quoted("hexadecimal", "0x10", 0);
        quoted("hexadecimal without its mark", "1f", 0);
        quoted("binary", "0b1", 0);
        quoted("a plus alone", "+", 0);
        quoted("a minus alone", "-", 0);
        quoted("two signs", "+-5", 0);
        quoted("two minuses", "--5", 0);
        quoted("a blank after the sign", "- 3", 0);
        quoted("a blank inside", "1 2", 0);
        quoted("a decimal point", "12.0", 0);
        quoted("a decimal comma", "12,0", 0);
        quoted("a point at the end", "12.", 0);
        quoted("an exponent", "1e2", 0);
        quoted("digits grouped by commas", "1,000", 0);
        quoted("digits grouped by points", "1.000", 0);
        quoted("digits grouped by apostrophes", "1'000", 0);
        quoted("digits grouped by hard blanks", "1\240000", 0);
        quoted("a superscript", "\xb2", 0);
        quoted("the greatest", "2147483647", std::numeric_limits<int>::max());
        quoted("one more than the greatest", "2147483648", 0);
        quoted("the least", "-2147483648", std::numeric_limits<int>::min());
        quoted("one less than the least", "-2147483649", 0);
        quoted("32 bits and one", "4294967297", 0);
        quoted("beyond 64 bits", "99999999999999999999", 0);
        quoted("many zeros in front", "00000000000000000000000012", 12);
    }

    void wholeNumber()
    {
        QFETCH(QByteArray, statement);
        QFETCH(int, value);
        QByteArray settings;
        for (const Number &number : numbers)
            settings += QByteArray(number.key) + " = " + statement + ";\n";
        const TemporaryHome home(settingsFile(documentGroup("doc", settings)));

        WideDriver driver;
        driver.loadValues("order");
        for (const auto &[key, member] : numbers) {
            const bool device = value == 0 && qstrcmp(key, "paperWidth") == 0;
            QVERIFY2(driver.layout.*member == (device ? deviceWidth : value),
                     qPrintable(QString("%1 is %2").arg(key).arg(driver.layout.*member)));
        }
    }

    void flag_data()
    {
        QTest::addColumn<QByteArray>("statement");
        QTest::addColumn<bool>("on");
        const auto quoted = [](const char *name, const QByteArray &text, bool on) {
            QTest::newRow(name) << "\"" + text + '"' << on;
        };

        quoted("true", "true", true);
        QTest::newRow("true without quotes") << QByteArray("true") << true;
        QTest::newRow("true with blanks around the quotes") << QByteArray("\t\"true\" \n") << true;
        quoted("True", "True", false);
        quoted("TRUE", "TRUE", false);
        quoted("tRuE", "tRuE", false);
        quoted("yes", "yes", false);
        quoted("on", "on", false);
        quoted("1", "1", false);
        quoted("false", "false", false);
        quoted("empty", "", false);
        quoted("blanks around it", " true ", false);
        quoted("a blank before it", " true", false);
        quoted("a blank after it", "true ", false);
        quoted("a tab after it", "true\t", false);
        quoted("part of it", "tru", false);
        quoted("more than it", "trues", false);
        quoted("twice", "truetrue", false);
    }

    void flag()
    {
        QFETCH(QByteArray, statement);
        QFETCH(bool, on);
        QByteArray settings;
        for (const Flag &flag : flags)
            settings += QByteArray(flag.key) + " = " + statement + ";\n";
        const TemporaryHome home(settingsFile(documentGroup("doc", settings)));

        WideDriver driver;
        driver.loadValues("order");
        for (const auto &[key, member] : flags)
            QVERIFY2(driver.layout.*member == on, key);
    }

    void paperWidth_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<int>("width");
        const auto row = [](const char *name, const QByteArray &setting, int width) {
            QTest::newRow(name) << setting << width;
        };

        row("0 is the device's width", "paperWidth = \"0\";", deviceWidth);
        row("00 is the device's width", "paperWidth = \"00\";", deviceWidth);
        row("empty is the device's width", "paperWidth = \"\";", deviceWidth);
        row("missing is the device's width", "paperRows = \"3\";", deviceWidth);
        row("malformed is the device's width", "paperWidth = \"32 columns\";", deviceWidth);
        row("beyond 32 bits is the device's width", "paperWidth = \"2147483648\";", deviceWidth);
        row("a width is kept", "paperWidth = \"40\";", 40);
        row("a width of 1 is kept", "paperWidth = \"1\";", 1);
        row("a negative width is kept", "paperWidth = \"-5\";", -5);
        row("a width of -1 is kept", "paperWidth = \"-1\";", -1);
    }

    void paperWidth()
    {
        QFETCH(QByteArray, setting);
        QFETCH(int, width);
        const TemporaryHome home(settingsFile(documentGroup("doc", setting)));
        WideDriver driver;
        driver.loadValues("order");
        QCOMPARE(driver.layout.paperWidth, width);
    }
};

KORVEL_TEST(TestLayoutValues)

} // namespace tst_layoutvalues

#include "tst_layoutvalues.moc"

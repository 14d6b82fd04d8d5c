// Layout settings: every key and the member it fills, numbers and flags as they are written, and
// the prefix of each document type.
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"

#include <QTest>

#include <clocale>
#include <cstdlib>
#include <functional>
#include <limits>
#include <utility>

using korvel::Layout;

namespace {

constexpr int deviceWidth = 57;

struct Number
{
    const char *key;
    int Layout::*member;
};

// clang-format off
constexpr Number numbers[] = {
    {"quantityFieldWidth",   &Layout::quantityFieldWidth  },
    {"priceFieldWidth",      &Layout::priceFieldWidth     },
    {"totalPriceFieldWidth", &Layout::totalPriceFieldWidth},
    {"paperWidth",           &Layout::paperWidth          },
    {"paperRows",            &Layout::paperRows           },
};
// clang-format on

struct Flag
{
    const char *key;
    bool Layout::*member;
};

// In the order in which the members are declared.
// clang-format off
constexpr Flag flags[] = {
    {"printGeometry",        &Layout::printGeometry       },
    {"printHeader",          &Layout::printHeader         },
    {"printLogo",            &Layout::printLogo           },
    {"printCompany",         &Layout::printCompany        },
    {"printDeliveryAddress", &Layout::printDeliveryAddress},
    {"printTelephone",       &Layout::printTelephone      },
    {"printDate",            &Layout::printDate           },
    {"printTime",            &Layout::printTime           },
    {"printTable",           &Layout::printTable          },
    {"printCustomer",        &Layout::printCustomer       },
    {"printBillingAddress",  &Layout::printBillingAddress },
    {"printLicenseNumber",   &Layout::printLicenseNumber  },
    {"printFiscalCode",      &Layout::printFiscalCode     },
    {"printCredit",          &Layout::printCredit         },
    {"printWaiter",          &Layout::printWaiter         },
    {"printNote",            &Layout::printNote           },
    {"openCashDrawer",       &Layout::openCashDrawer      },
};
// clang-format on

struct DocumentType
{
    const char *name;
    const char *group;
    const char *prefix;
};

// clang-format off
constexpr DocumentType documentTypes[] = {
    {"order",     "doc",          "korvel.doc."         },
    {"prefiscal", "prefiscaldoc", "korvel.prefiscaldoc."},
    {"fiscal",    "fiscaldoc",    "korvel.fiscaldoc."   },
    {"receipt",   "receiptdoc",   "korvel.receiptdoc."  },
    {"invoice",   "invoicedoc",   "korvel.invoicedoc."  },
    {"delivery",  "deliverydoc",  "korvel.deliverydoc." },
    {"report",    "reportdoc",    "korvel.reportdoc."   },
    {"sold",      "solddoc",      "korvel.solddoc."     },
};
// clang-format on

/// A device whose lines are no multiple of 32.
class WideDriver : public RecordingDriver
{
public:
    int getPaperWidth() override { return deviceWidth; }
};

/// The settings that are neither 0 nor off, as "paperWidth 32" and "printLogo".
QStringList shown(const Layout &layout)
{
    QStringList settings;
    for (const auto &[key, member] : numbers) {
        if (layout.*member != 0)
            settings.append(QString("%1 %2").arg(key).arg(layout.*member));
    }
    for (const auto &[key, member] : flags) {
        if (layout.*member)
            settings.append(key);
    }
    return settings;
}

QByteArray setting(const QByteArray &key, const QByteArray &value)
{
    return key + " = \"" + value + "\";\n";
}

template<typename Setting, std::size_t count>
QByteArray allSet(const Setting (&table)[count], const QByteArray &value)
{
    QByteArray settings;
    for (const Setting &row : table)
        settings += setting(row.key, value);
    return settings;
}

} // namespace

class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void localeHasADecimalComma()
    {
        QCOMPARE(QByteArray(std::localeconv()->decimal_point), ",");
        QCOMPARE(std::strtod("1,5", nullptr), 1.5);
    }

    void nothingIsSetAtFirst()
    {
        const TemporaryHome home(settingsFile(documentGroup("doc", allSet(flags, "true"))));
        QCOMPARE(shown(WideDriver().layout), QStringList());
    }

    void keys_data()
    {
        QTest::addColumn<QString>("documentType");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QStringList>("values");
        const QString device = QString("paperWidth %1").arg(deviceWidth);

        for (const auto &[documentType, group, prefix] : documentTypes) {
            const auto row = [&, name = documentType, in = group, keys = QByteArray(prefix)](
                                 const char *key, const char *value, const QStringList &values) {
                QTest::newRow((keys + key).constData())
                    << name << settingsFile(documentGroup(in, setting(key, value))) << values;
            };
            row("quantityFieldWidth", "3", {"quantityFieldWidth 3", device});
            row("priceFieldWidth", "7", {"priceFieldWidth 7", device});
            row("totalPriceFieldWidth", "8", {"totalPriceFieldWidth 8", device});
            row("paperWidth", "40", {"paperWidth 40"});
            row("paperRows", "66", {device, "paperRows 66"});
            row("style", "true", {device});
            for (const Flag &flag : flags)
                row(flag.key, "true", {device, flag.key});
        }
    }

    void keys()
    {
        QFETCH(QString, documentType);
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, values);
        const TemporaryHome home(settings);
        WideDriver driver;
        driver.loadValues(documentType);
        QCOMPARE(shown(driver.layout), values);
    }

    void keysAreMatchedByCase()
    {
        const TemporaryHome home(settingsFile(
            documentGroup("doc", setting("PaperWidth", "40") + setting("printlogo", "true"))));
        WideDriver driver;
        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
    }

    void eachTypeReadsItsOwnGroup_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<int>("paperWidth");
        int paperWidth = 40;
        for (const auto &[name, group, prefix] : documentTypes)
            QTest::newRow(name) << prefix << ++paperWidth;
    }

    void eachTypeReadsItsOwnGroup()
    {
        QFETCH(QString, prefix);
        QFETCH(int, paperWidth);
        QByteArray groups;
        int width = 40;
        for (const DocumentType &type : documentTypes)
            groups += documentGroup(type.group, setting("paperWidth", QByteArray::number(++width)));
        const TemporaryHome home(settingsFile(groups));

        RecordingDriver driver;
        driver.loadValues(QTest::currentDataTag());
        QCOMPARE(driver.documentPrefix, prefix);
        QCOMPARE(driver.layout.paperWidth, paperWidth);
    }

    void unknownTypeReadsThePrefiscalGroup()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("doc", setting("paperWidth", "41"))
                         + documentGroup("prefiscaldoc", setting("paperWidth", "42"))));
        const CapturedOutput output;
        RecordingDriver driver;
        driver.loadValues("Bill");
        QCOMPARE(output.bytes(), "Error into PrinterDriver::documentPath:  bill\n");
        QCOMPARE(driver.documentPrefix, "korvel.prefiscaldoc.");
        QCOMPARE(driver.layout.paperWidth, 42);
    }

    void membersStandInTheirOrder()
    {
        const Layout layout;
        const void *previous = nullptr;
        const auto follows = [&](const void *member) {
            return std::less<>()(std::exchange(previous, member), member);
        };
        for (const auto &[key, member] : numbers)
            QVERIFY2(follows(&(layout.*member)), key);
        for (const auto &[key, member] : flags)
            QVERIFY2(follows(&(layout.*member)), key);
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

    void noSettingsAtAll()
    {
        const CapturedOutput output; // the missing file is reported; not here
        const TemporaryHome home;
        WideDriver driver;
        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
    }

    void readAgainEveryMemberIsOverwritten()
    {
        const QByteArray all = allSet(numbers, "9") + allSet(flags, "true");
        const TemporaryHome home(settingsFile(documentGroup("receiptdoc", all)));
        WideDriver driver;

        driver.loadValues("receipt");
        QStringList everything;
        for (const Number &number : numbers)
            everything.append(QString(number.key) + " 9");
        for (const Flag &flag : flags)
            everything.append(flag.key);
        QCOMPARE(shown(driver.layout), everything);
        QCOMPARE(driver.documentPrefix, "korvel.receiptdoc.");

        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
        QCOMPARE(driver.documentPrefix, "korvel.doc.");

        driver.loadValues("receipt");
        QCOMPARE(shown(driver.layout), everything);
        QCOMPARE(driver.documentPrefix, "korvel.receiptdoc.");
    }

    void documentPath_data()
    {
        QTest::addColumn<QString>("documentType");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QByteArray>("message");
        for (const auto &[name, group, prefix] : documentTypes) {
            const QString type = name;
            const QStringList spellings = {type, type.toUpper(),
                                           type.first(1).toUpper() + type.sliced(1)};
            for (const QString &spelling : spellings)
                QTest::newRow(qPrintable(spelling)) << spelling << prefix << QByteArray();
        }

        const auto unknown = [](const char *name, const QString &type, const QByteArray &named) {
            QTest::newRow(name) << type << "korvel.prefiscaldoc."
                                << "Error into PrinterDriver::documentPath:  " + named + '\n';
        };
        unknown("an unknown type", "bill", "bill");
        unknown("an unknown type, in lower case", "BiLL", "bill");
        unknown("no type", "", "");
        unknown("a blank before it", " order", " order");
        unknown("a blank after it", "order ", "order ");
        unknown("part of a type", "orde", "orde");
        unknown("more than a type", "orders", "orders");
        unknown("the name of a group", "receiptdoc", "receiptdoc");
        unknown("the name of a method", "printReport", "printreport");
        unknown("statement has no type of its own", "statement", "statement");
        unknown("a placeholder", "%1", "%1");
    }

    void documentPath()
    {
        QFETCH(QString, documentType);
        QFETCH(QString, prefix);
        QFETCH(QByteArray, message);
        const TemporaryHome home(settingsFile(documentGroup("doc", "")));
        const CapturedOutput output;
        RecordingDriver driver;
        QCOMPARE(driver.documentPath(documentType), prefix);
        QCOMPARE(output.bytes(), message);
        QCOMPARE(driver.documentPrefix, "");
    }
};

QTEST_GUILESS_MAIN(TestLayout)
#include "tst_layout.moc"

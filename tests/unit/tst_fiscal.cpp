// Full and summary fiscal receipt: which sale rows each element causes.
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/shown.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/translators.h"

namespace tst_fiscal {

/// Settings under which every header would print, were it not a fiscal document.
QByteArray fiscalSettings(const QByteArray &more)
{
    QByteArray text = more;
    for (const char *flag : {"printGeometry", "printHeader", "printLogo", "printCompany",
                             "printDate", "printCustomer", "openCashDrawer"})
        text += " " + QByteArray(flag) + " = \"true\";";
    return settingsFile(documentGroup("fiscaldoc", "topMargin = \"2\"; " + text));
}

QByteArray descriptionWidth(const QByteArray &width)
{
    return "descriptionWidth = \"" + width + "\";";
}

const QString sharedSections = R"(<printers name="BAR" charsize="1" ipaddress="10.0.0.1" port="9"/>
    <geometry/><headers a="ONE"/><logo/><company a="TWO"/><receipt serialnumber="3"/>
    <invoice serialnumber="4"/><delivery serialnumber="5"/><orderinfo date="1/2/2006"/>)";

const QString otherElements = R"(<variant number="1" quantity="1" name="X" price="1"/>
    <otherreceipe department="1" number="1" name="X" price="1"/><totals total="9.00"/>
    <notPaid price="1"/><date begindate="1/2/2006"/><taxrate_item amount="1"/>
    <prefiscalssummary/><receiptssummary/><invoicessummary/><cancelledsummary/>
    <statement_list/><statement type="payment"/>)";

/// A back end without a fiscal memory, which leaves both defaults.
class NoFiscalMemoryDriver : public RecordingDriver
{
public:
    void printRowFiscal(const QString &qName, const QXmlAttributes &attributes) override
    {
        PrinterDriver::printRowFiscal(qName, attributes);
    }
    void printRowFiscal(const QString &department, const QString &quantity,
                        const QString &description, const QString &amount) override
    {
        PrinterDriver::printRowFiscal(department, quantity, description, amount);
    }
};

/// A back end with a use for the "total" element.
class TotalDriver : public RecordingDriver
{
public:
    using RecordingDriver::printRowFiscal;
    void printRowFiscal(const QString &qName, const QXmlAttributes &attributes) override
    {
        calls.append("printRowFiscal(element) " + shown(qName, attributes));
    }
};

/// A back end of 24 characters.
class NarrowDriver : public RecordingDriver
{
public:
    int getPaperWidth() override { return 24; }
};

class TestFiscal : public QObject
{
    Q_OBJECT

private slots:
    void fullFiscal_data()
    {
        addColumns();

        row("a sale row for each item",
            R"(<receipe department="1" number="2" name="COFFEE" price="1.20"/>
               <receipe department="3" number="1" name="TEA" price="2.00"/>)",
            {"printRowFiscal |1|2|COFFEE|1.20|", "printRowFiscal |3|1|TEA|2.00|"});
        row("the amount is the item's price, not its total price",
            R"(<receipe department="1" number="2" name="X" price="1.20" totalPrice="2.40"/>)",
            {"printRowFiscal |1|2|X|1.20|"});
        row("an item without a department and a number", R"(<receipe name="X" price="1.20"/>)",
            {"printRowFiscal |||X|1.20|"});
        row("an item without a name", R"(<receipe department="1" number="2" price="1.20"/>)",
            {"printRowFiscal |1|2||1.20|"});
        row("an item without a price", R"(<receipe department="1" number="2" name="X"/>)",
            {"printRowFiscal |1|2|X||"});
        row("missing attributes are empty texts", "<receipe/>", {"printRowFiscal |||||"});
        row("attributes are matched by case",
            R"(<receipe Department="1" Number="2" NAME="X" Price="1"/>)", {"printRowFiscal |||||"});
        row("attributes of other documents are not read",
            R"(<receipe quantity="2" description="X" amount="1" total="1"/>)",
            {"printRowFiscal |||||"});
        row("values are sent as given",
            R"(<receipe department=" a" number="1,50" name=" X  Y " price="-1,20 "/>)",
            {"printRowFiscal | a|1,50| X  Y |-1,20 |"});
        row("values may hold %1", R"(<receipe department="%1" number="%2" name="%3" price="%4"/>)",
            {"printRowFiscal |%1|%2|%3|%4|"});
        row("no value but the name is cut",
            R"(<receipe department="12345678901234567890123456789012345"
                        number="ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHI" name="X"
                        price="1234567890123456789012345678901234.50"/>)",
            {"printRowFiscal |12345678901234567890123456789012345|"
             "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHI|X|1234567890123456789012345678901234.50|"});
        row("an item named =... is sold", R"(<receipe number="1" name="=X" price="1"/>)",
            {"printRowFiscal ||1|=X|1|"});
        row("the total goes to the back end", R"(<total price="9.00"/>)", {"printRowFiscal total"});
        row("items after the total are sold", R"(<total/><receipe name="X"/><total/>)",
            {"printRowFiscal total", "printRowFiscal |||X||", "printRowFiscal total"});
        row("lines of the summary receipt are ignored",
            R"(<receipe_type department="1" number="2" name="PIZZE" price="1.20"/>)", {});
        row("shared sections are ignored", sharedSections, {});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("the right spelling of an item is ignored", R"(<recipe name="X" price="1"/>)", {});
        row("elements are matched by case",
            R"(<Receipe name="X"/><RECEIPE name="X"/><Total price="1"/><TOTAL price="1"/>)", {});
        row("elements of other documents are ignored", otherElements, {});
    }

    void fullFiscal() { compare("printFullOrderFiscal"); }

    void summaryFiscal_data()
    {
        addColumns();

        row("a sale row for each line, of quantity 1 whatever its number",
            R"(<receipe_type department="1" number="2" name="PIZZE" price="14.00"/>
               <receipe_type department="3" number="0" name="BIBITE" price="9.00"/>)",
            {"printRowFiscal |1|1|PIZZE|14.00|", "printRowFiscal |3|1|BIBITE|9.00|"});
        row("the amount is the line's price, not its total price",
            R"(<receipe_type department="2" name="X" price="1.20" totalPrice="2.40"/>)",
            {"printRowFiscal |2|1|X|1.20|"});
        row("the name is never cut",
            R"(<receipe_type name="ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMN"/>)",
            {"printRowFiscal ||1|ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJKLMN||"});
        row("missing attributes are empty texts", "<receipe_type/>", {"printRowFiscal ||1|||"});
        row("attributes are matched by case",
            R"(<receipe_type Department="1" NAME="X" Price="1"/>)", {"printRowFiscal ||1|||"});
        row("attributes of other documents are not read",
            R"(<receipe_type quantity="2" description="X" amount="1" total="1"/>)",
            {"printRowFiscal ||1|||"});
        row("values are sent as given",
            R"(<receipe_type department=" a" name=" X  Y " price="-1,20 "/>)",
            {"printRowFiscal | a|1| X  Y |-1,20 |"});
        row("values may hold %1",
            R"(<receipe_type department="%1" number="%2" name="%3" price="%4"/>)",
            {"printRowFiscal |%1|1|%3|%4|"});
        row("a line named =... is sold", R"(<receipe_type name="=X" price="1"/>)",
            {"printRowFiscal ||1|=X|1|"});
        row("the total goes to the back end", R"(<total price="9.00"/>)", {"printRowFiscal total"});
        row("lines after the total are sold", R"(<total/><receipe_type name="X"/><total/>)",
            {"printRowFiscal total", "printRowFiscal ||1|X||", "printRowFiscal total"});
        row("items of the full receipt are ignored",
            R"(<receipe department="1" number="2" name="COFFEE" price="1.20"/>)", {});
        row("shared sections are ignored", sharedSections, {});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("the right spelling of a line is ignored", R"(<recipe_type name="X" price="1"/>)", {});
        row("elements are matched by case",
            R"(<Receipe_type name="X"/><receipe_Type name="X"/><Total price="1"/>)", {});
        row("elements of other documents are ignored", otherElements, {});
    }

    // The width of the full receipt's names is 5 here: nothing but its own items is cut.
    void summaryFiscal() { compare("printAbstractOrderFiscal", descriptionWidth("5")); }

    void nameIsCut_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("sold");
        const auto row = [](const char *rule, const QByteArray &setting, const QString &name,
                            const QString &sold) {
            QTest::newRow(rule) << setting << name << sold;
        };
        const QString long40 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ12345678901234";
        const QString paper32 = "ABCDEFGHIJKLMNOPQRSTUVWXYZ123456";

        row("a longer name is cut", descriptionWidth("20"), "ABCDEFGHIJKLMNOPQRSTUVWXY",
            "ABCDEFGHIJKLMNOPQRST");
        row("a name of just the width is whole", descriptionWidth("20"), "ABCDEFGHIJKLMNOPQRST",
            "ABCDEFGHIJKLMNOPQRST");
        row("a shorter name is whole, without padding", descriptionWidth("20"), "TEA", "TEA");
        row("a width of 1", descriptionWidth("1"), "TEA", "T");
        row("a width beyond the paper's", descriptionWidth("33"), long40,
            "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567");
        row("blanks count and stay", descriptionWidth("5"), "  A    B", "  A  ");
        row("0 is the paper's width", descriptionWidth("0"), long40, paper32);
        row("-0 is the paper's width", descriptionWidth("-0"), long40, paper32);
        row("a missing width is the paper's", "", long40, paper32);
        row("an empty width is the paper's", descriptionWidth(""), long40, paper32);
        row("a text is no width", descriptionWidth("wide"), long40, paper32);
        row("the whole text must be a number", descriptionWidth("20 characters"), long40, paper32);
        row("a decimal is no width", descriptionWidth("20.0"), long40, paper32);
        row("a width is no hexadecimal number", descriptionWidth("0x10"), long40, paper32);
        row("a leading 0 is not octal", descriptionWidth("010"), long40, "ABCDEFGHIJ");
        row("a sign and outer blanks are allowed", descriptionWidth(" +5 "), long40, "ABCDE");
        row("a negative width leaves the name whole", descriptionWidth("-1"), long40, long40);
        row("the smallest width leaves the name whole", descriptionWidth("-2147483648"), long40,
            long40);
        row("the largest width leaves the name whole", descriptionWidth("2147483647"), long40,
            long40);
        row("one beyond 32 bits is no width", descriptionWidth("2147483648"), long40, paper32);
        row("one below 32 bits is no width", descriptionWidth("-2147483649"), long40, paper32);
        row("2^32 + 5 is no width", descriptionWidth("4294967301"), long40, paper32);
        row("the layout's paper width does not count", R"(paperWidth = "10";)", long40, paper32);
        row("the setting's name is matched by case", R"(DescriptionWidth = "5";)", long40, paper32);
        row("accents are one character", descriptionWidth("5"), "CAFFÈ LUNGO", "CAFFÈ");
        row("a combining accent is a character of its own", descriptionWidth("5"),
            "CAFFE\u0300 LUNGO", "CAFFE");
        row("a pair of UTF-16 units is two characters", descriptionWidth("3"), "A\U0001F355BC",
            "A\U0001F355");
        row("a pair of UTF-16 units is cut in two", descriptionWidth("2"), "A\U0001F355BC",
            "A" + QString(QChar(0xd83c)));
    }

    void nameIsCut()
    {
        QFETCH(QByteArray, setting);
        QFETCH(QString, name);
        QFETCH(QString, sold);
        const TemporaryHome home(fiscalSettings(setting));
        QCOMPARE(RecordingDriver().callsOf("printFullOrderFiscal",
                                           "<receipe number='1' name='" + name + "' price='9'/>"),
                 QStringList("printRowFiscal ||1|" + sold + "|9|"));
    }

    void nameIsCutToTheWidthOfTheDevice()
    {
        const QString item = R"(<receipe name="ABCDEFGHIJKLMNOPQRSTUVWXYZ"/>)";
        {
            const TemporaryHome home(fiscalSettings(""));
            QCOMPARE(NarrowDriver().callsOf("printFullOrderFiscal", item),
                     QStringList("printRowFiscal |||ABCDEFGHIJKLMNOPQRSTUVWX||"));
        }
        const TemporaryHome home(fiscalSettings(descriptionWidth("25")));
        QCOMPARE(NarrowDriver().callsOf("printFullOrderFiscal", item),
                 QStringList("printRowFiscal |||ABCDEFGHIJKLMNOPQRSTUVWXY||"));
    }

    void widthIsThatOfTheDocument()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("doc", descriptionWidth("2"))
                         + documentGroup("fiscaldoc", descriptionWidth("4"))
                         + documentGroup("receiptdoc", descriptionWidth("6"))));
        RecordingDriver driver;
        QXmlAttributes attributes;
        attributes.append("name", "", "name", "ABCDEFGH");
        const auto sold = [&] {
            driver.calls.clear();
            driver.printFullOrderFiscal("receipe", attributes);
            return driver.calls;
        };

        driver.loadValues("fiscal");
        QCOMPARE(sold(), QStringList("printRowFiscal |||ABCD||"));
        driver.loadValues("receipt");
        QCOMPARE(sold(), QStringList("printRowFiscal |||ABCDEF||"));
        driver.documentPrefix = "korvel.doc.";
        QCOMPARE(sold(), QStringList("printRowFiscal |||AB||"));
        driver.documentPrefix = "korvel.solddoc.";
        QCOMPARE(sold(), QStringList("printRowFiscal |||ABCDEFGH||"));
    }

    void widthIsReadForEveryElement()
    {
        const TemporaryHome home(fiscalSettings(descriptionWidth("4")));
        RecordingDriver driver;
        driver.loadValues("fiscal");
        QXmlAttributes attributes;
        attributes.append("name", "", "name", "ABCDEFGH");
        driver.printFullOrderFiscal("receipe", attributes);

        QFile file(home.settingsPath());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(fiscalSettings(descriptionWidth("6")));
        file.close();
        SyncSingleton<KVConfiguration>::instance()->constructor(home.settingsPath(), "cfg");
        driver.printFullOrderFiscal("receipe", attributes);

        QCOMPARE(driver.calls,
                 QStringList({"printRowFiscal |||ABCD||", "printRowFiscal |||ABCDEF||"}));
    }

    void totalIsPassedOnUnchanged_data() { addMethods(); }

    void totalIsPassedOnUnchanged()
    {
        QFETCH(QString, method);
        const TemporaryHome home(fiscalSettings(descriptionWidth("2")));
        QCOMPARE(
            TotalDriver().callsOf(method, R"(<total price="9.00" name="TOTAL" a="" number="%1"/>)"),
            QStringList("printRowFiscal(element) total price=9.00 name=TOTAL a= number=%1"));
    }

    void printersTellsTheDriverNothing_data() { addMethods(); }

    void printersTellsTheDriverNothing()
    {
        QFETCH(QString, method);
        const TemporaryHome home(fiscalSettings(""));
        RecordingDriver driver;
        driver.callsOf(method, sharedSections);
        QCOMPARE(QStringList({driver.printerName, driver.printerCharSize, driver.printerAddress,
                              driver.printerPort}),
                 QStringList({"", "", "", ""}));
    }

    void nothingIsTranslated_data() { addMethods(); }

    void nothingIsTranslated()
    {
        QFETCH(QString, method);
        const TemporaryHome home(fiscalSettings(""));
        const BracketTranslator translator;
        const QString sold = R"( department="Num" number="1" name="TOTAL" price="Price"/>)";
        QCOMPARE(RecordingDriver().callsOf(method,
                                           "<receipe" + sold + "<receipe_type" + sold + "<total/>"),
                 QStringList({"printRowFiscal |Num|1|TOTAL|Price|", "printRowFiscal total"}));
    }

    void defaultsDoNothing_data() { addMethods(); }

    void defaultsDoNothing()
    {
        QFETCH(QString, method);
        const TemporaryHome home(fiscalSettings(""));
        NoFiscalMemoryDriver driver;
        QCOMPARE(driver.callsOf(method,
                                R"(<receipe department="1" number="2" name="TEA" price="1.20"/>
                                   <receipe_type department="1" name="TEA" price="-1.20"/>
                                   <total price="9.00"/>)"),
                 QStringList());
        QVERIFY(driver.wellFormed);
    }

private:
    static void addColumns()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
    }

    static void row(const char *name, const QString &elements, const QStringList &calls)
    {
        QTest::newRow(name) << elements << calls;
    }

    static void addMethods()
    {
        QTest::addColumn<QString>("method");
        for (const char *method : {"printFullOrderFiscal", "printAbstractOrderFiscal"})
            QTest::newRow(method) << method;
    }

    static void compare(const QString &method, const QByteArray &settings = {})
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(fiscalSettings(settings));
        QCOMPARE(RecordingDriver().callsOf(method, elements), calls);
    }
};

KORVEL_TEST(TestFiscal)

} // namespace tst_fiscal

#include "tst_fiscal.moc"

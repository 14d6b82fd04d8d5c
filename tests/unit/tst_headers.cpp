// Header blocks of a document: which calls each causes, under which settings.
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/translators.h"

#include <QCoreApplication>

namespace tst_headers {

const QString rule = "println |====================|"; // as wide as the paper of these tests

/// The settings of one document with these flags on: "printDate printTime".
QByteArray groupOf(const QByteArray &name, const QString &flags, const QByteArray &more = {})
{
    QByteArray settings = "paperWidth = \"20\"; " + more;
    for (const QString &flag : flags.split(' ', Qt::SkipEmptyParts))
        settings += " " + flag.toLatin1() + " = \"true\";";
    return documentGroup(name, settings);
}

/// What a job of these elements prints as a receipt with these flags on.
QStringList callsOf(const QString &flags, const QString &elements, const QByteArray &more = {})
{
    const TemporaryHome home(settingsFile(groupOf("receiptdoc", flags, more)));
    return RecordingDriver().callsOf("printFullOrderReceipt", elements);
}

const QString everyFlag =
    "printGeometry printHeader printLogo printCompany printDeliveryAddress printTelephone "
    "printDate printTime printTable printCustomer printBillingAddress printLicenseNumber "
    "printFiscalCode printCredit printWaiter printNote openCashDrawer";

QString everyFlagBut(const QString &flag)
{
    QStringList flags = everyFlag.split(' ');
    flags.removeOne(flag);
    return flags.join(' ');
}

class TestHeaders : public QObject
{
    Q_OBJECT

private slots:
    void header_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &flags, const QString &elements,
                            const QStringList &calls) {
            QTest::newRow(name) << flags << elements << calls;
        };
        const QStringList printerInfo = {"setCenterJustify", "println ||", rule};

        row("headers in the order of the job, whatever their names", "printHeader",
            R"(<headers z="ONE" a="TWO" header="THREE" m2="FOUR" M1="FIVE"/>)",
            QStringList({"println |ONE|", "println |TWO|", "println |THREE|", "println |FOUR|",
                         "println |FIVE|", rule})
                + printerInfo);
        row("headers as they are", "printHeader", R"(<headers a=" A  B " b="" c="%1" d="="/>)",
            QStringList({"println | A  B |", "println ||", "println |%1|", "println |=|", rule})
                + printerInfo);
        row("no headers", "printHeader", "<headers/>", QStringList(rule) + printerInfo);
        row("headers switched off leave the printer's name", "", R"(<headers a="ONE"/>)",
            printerInfo);
        row("no other setting switches headers on", everyFlagBut("printHeader"),
            R"(<headers a="ONE"/>)", printerInfo);

        row("the printer's name, centred, and no return to the left", "",
            R"(<printers name="BAR"/><headers/>)",
            {"initPrinter", "setCenterJustify", "println |BAR|", rule});
        row("the printer's name as it is", "", R"(<printers name=" %1 "/><headers/>)",
            {"initPrinter", "setCenterJustify", "println | %1 |", rule});
        row("a printer without a name", "", R"(<printers port="1"/><headers/>)",
            QStringList("initPrinter") + printerInfo);
        row("a printer named too late", "", R"(<headers/><printers name="BAR"/>)",
            printerInfo + QStringList("initPrinter"));

        row("company lines, centred, in the order of the job", "printCompany",
            R"(<company z="ONE" a="TWO" name="THREE" m="FOUR"/>)",
            {"setCharSize", "setCenterJustify", "println |ONE|", "println |TWO|", "println |THREE|",
             "println |FOUR|", "setCharSize", rule});
        row("company lines as they are", "printCompany", R"(<company a=" A  B " b="" c="%1"/>)",
            {"setCharSize", "setCenterJustify", "println | A  B |", "println ||", "println |%1|",
             "setCharSize", rule});
        row("no company lines", "printCompany", "<company/>",
            {"setCharSize", "setCenterJustify", "setCharSize", rule});
        row("the company switched off", "", R"(<company a="ONE"/>)", {});
        row("no other setting switches the company on", everyFlagBut("printCompany"),
            R"(<company a="ONE"/>)", {});

        row("the receipt's number in one text", "", R"(<receipt serialnumber="42"/>)",
            {"println 1 |Serial Number: 42|", rule});
        row("a receipt without a number", "", "<receipt/>", {"println 1 |Serial Number: |", rule});
        row("the receipt's other attributes are ignored", "",
            R"(<receipt number="1" serialNumber="2" serialnumber="%1"/>)",
            {"println 1 |Serial Number: %1|", rule});
        row("the invoice's number in two texts", "", R"(<invoice serialnumber="42"/>)",
            {"print 1 |Invoice Number:|", "println 1 |42|", rule});
        row("an invoice without a number", "", "<invoice/>",
            {"print 1 |Invoice Number:|", "println 1 ||", rule});
        row("the delivery note's number in two texts", "", R"(<delivery serialnumber="42"/>)",
            {"print 1 |Delivery Number:|", "println 1 |42|", rule});
        row("a delivery note without a number", "", "<delivery/>",
            {"print 1 |Delivery Number:|", "println 1 ||", rule});
        row("numbers with every setting on", everyFlag,
            R"(<receipt serialnumber="1"/><invoice serialnumber="2"/><delivery serialnumber="3"/>)",
            {"println 1 |Serial Number: 1|", rule, "print 1 |Invoice Number:|", "println 1 |2|",
             rule, "print 1 |Delivery Number:|", "println 1 |3|", rule});
    }

    void header() { compare(); }

    void orderInfo_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &flags, const QString &elements,
                            const QStringList &lines) {
            QTest::newRow(name) << flags << elements
                                << QStringList("setCharSize") + lines + QStringList(rule);
        };
        const QString order = R"(<orderinfo credit="5.00" note="NO SALT" waiter="ANNA" table="7"
                                            time="20:30" date="12/05/2006" other="X"/>)";

        row("no line leaves the separator", "", order, {});
        row("no other setting switches a line on",
            "printGeometry printHeader printLogo printCompany printDeliveryAddress printTelephone "
            "printCustomer printBillingAddress printLicenseNumber printFiscalCode openCashDrawer",
            order, {});
        row("date", "printDate", order, {"print 1 |Date:|", "println 1 |12/05/2006|"});
        row("time", "printTime", order, {"print 1 |Time:|", "println 1 |20:30|"});
        row("table", "printTable", order, {"print 1 |Table:|", "println 1 |7|"});
        row("waiter", "printWaiter", order, {"print 1 |Waiter:|", "println 1 |ANNA|"});
        row("note", "printNote", order, {"print 1 |Note:|", "println 1 |NO SALT|"});
        row("credit", "printCredit", order, {"print 1 |Credit:|", "println 1 |5.00|"});
        row("date and table", "printDate printTable", R"(<orderinfo date="12/05/2006" table="7"/>)",
            {"print 1 |Date:|", "println 1 |12/05/2006|", "print 1 |Table:|", "println 1 |7|"});
        row("all lines, in their own order", everyFlag, order,
            {"print 1 |Date:|", "println 1 |12/05/2006|", "print 1 |Time:|", "println 1 |20:30|",
             "print 1 |Table:|", "println 1 |7|", "print 1 |Waiter:|", "println 1 |ANNA|",
             "print 1 |Note:|", "println 1 |NO SALT|", "print 1 |Credit:|", "println 1 |5.00|"});
        row("missing attributes leave the labels", everyFlag, "<orderinfo/>",
            {"print 1 |Date:|", "println 1 ||", "print 1 |Time:|", "println 1 ||",
             "print 1 |Table:|", "println 1 ||", "print 1 |Waiter:|", "println 1 ||",
             "print 1 |Note:|", "println 1 ||", "print 1 |Credit:|", "println 1 ||"});
        row("attributes in another letter case are ignored", "printDate",
            R"(<orderinfo Date="1/2/2006"/>)", {"print 1 |Date:|", "println 1 ||"});
        row("values as they are", "printNote", R"(<orderinfo note=" A,  %1 "/>)",
            {"print 1 |Note:|", "println 1 | A,  %1 |"});
    }

    void orderInfo() { compare(); }

    void customer_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &flags, const QString &elements,
                            const QStringList &lines) {
            QTest::newRow(name) << "printCustomer " + flags << elements
                                << QStringList("println |CUSTOMER|") + lines + QStringList(rule);
        };
        const auto nothing = [](const char *name, const QString &flags, const QString &elements) {
            QTest::newRow(name) << flags << elements << QStringList();
        };
        const QString customer = R"(<customer fiscalcode="RSSMRA" licensenumber="IT01"
                                              telephone="06 1234" deliveryaddress="D1,D2"
                                              billingaddress="B1,B2" name="Rossi" other="X"/>)";

        nothing("switched off", "", customer);
        nothing("no other setting switches the block on", everyFlagBut("printCustomer"), customer);
        row("the name alone", "", customer, {"println 1 |Rossi|"});
        row("settings of other blocks add nothing",
            "printGeometry printHeader printLogo printCompany printDate printTime printTable "
            "printCredit printWaiter printNote openCashDrawer",
            customer, {"println 1 |Rossi|"});
        row("billing address", "printBillingAddress", customer,
            {"println 1 |Rossi|", "println 1 |B1|", "println 1 |B2|"});
        row("delivery address", "printDeliveryAddress", customer,
            {"println 1 |Rossi|", "println 1 |D1|", "println 1 |D2|"});
        row("telephone", "printTelephone", customer,
            {"println 1 |Rossi|", "print 1 |Telephone:|", "println 1 |06 1234|"});
        row("license number", "printLicenseNumber", customer,
            {"println 1 |Rossi|", "print 1 |License Number:|", "println 1 |IT01|"});
        row("fiscal code", "printFiscalCode", customer,
            {"println 1 |Rossi|", "print 1 |Fiscal Code:|", "println 1 |RSSMRA|"});
        row("all lines, in their own order", everyFlag, customer,
            {"println 1 |Rossi|", "println 1 |B1|", "println 1 |B2|", "println 1 |D1|",
             "println 1 |D2|", "print 1 |Telephone:|", "println 1 |06 1234|",
             "print 1 |License Number:|", "println 1 |IT01|", "print 1 |Fiscal Code:|",
             "println 1 |RSSMRA|"});
        row("missing attributes leave the labels; addresses leave nothing", everyFlag,
            "<customer/>",
            {"println 1 ||", "print 1 |Telephone:|", "println 1 ||", "print 1 |License Number:|",
             "println 1 ||", "print 1 |Fiscal Code:|", "println 1 ||"});
        row("attributes in another letter case are ignored", "", R"(<customer Name="Rossi"/>)",
            {"println 1 ||"});
        row("the name as it is", "", R"(<customer name=" Rossi,  %1 "/>)",
            {"println 1 | Rossi,  %1 |"});
    }

    void customer() { compare(); }

    void address_data()
    {
        QTest::addColumn<QString>("attribute"); // but for the kind in front of its name
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QString &value, const QStringList &lines) {
            QTest::newRow(name) << "address=\"" + value + "\"" << lines;
        };

        row("a line for each field, without its outer blanks", "Via Roma 1, 00100 Roma ,Italy",
            {"Via Roma 1", "00100 Roma", "Italy"});
        row("one field", "Via Roma 1", {"Via Roma 1"});
        row("an empty field ends it", "A,,B", {"A"});
        row("two empty fields end it", "A,,,B", {"A"});
        row("a comma at the end", "A,B,", {"A", "B"});
        row("a comma in front leaves nothing", ",A,B", {});
        row("a comma alone", ",", {});
        row("empty", "", {});
        QTest::newRow("missing") << "other=\"A\"" << QStringList();
        row("blanks alone are an empty line", "   ", {""});
        row("a field of blanks is an empty line and does not end it", "A,  ,B", {"A", "", "B"});
        row("a blank after the last comma is an empty line", "A, ", {"A", ""});
        row("blanks before a comma in front", " ,A", {"", "A"});
        row("trailing blanks", "A   ,B   ", {"A", "B"});
        row("leading blanks", "   A,   B", {"A", "B"});
        row("inner blanks are kept", " A  B ,C   D", {"A  B", "C   D"});
        row("outer tabs go, inner ones are kept", "&#9;A&#9;B&#9;,&#9;C", {"A\tB", "C"});
        row("a field of tabs is an empty line", "A,&#9;&#9;,B", {"A", "", "B"});
        row("outer line feeds go, inner ones are kept", "&#10;A&#10;B&#13;&#10;,C", {"A\nB", "C"});
        row("only commas part fields", "A;B|C/D.E", {"A;B|C/D.E"});
        row("placeholders are texts", "%1,%2", {"%1", "%2"});
        row("fifteen fields", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15",
            {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12", "13", "14", "15"});
    }

    void address()
    {
        QFETCH(QString, attribute);
        QFETCH(QStringList, lines);
        QStringList calls = {"println |CUSTOMER|", "println 1 |Rossi|"};
        for (const QString &line : lines)
            calls.append("println 1 |" + line + "|");
        calls.append(rule);

        const auto customer = [&](const QString &kind) {
            return "<customer name='Rossi' " + kind + attribute + "/>";
        };
        QCOMPARE(callsOf("printCustomer printBillingAddress", customer("billing")), calls);
        QCOMPARE(callsOf("printCustomer printDeliveryAddress", customer("delivery")), calls);
    }

    void topMargin_data()
    {
        QTest::addColumn<QString>("flags");
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<int>("lines");
        const auto row = [](const char *name, const QByteArray &setting, int lines) {
            QTest::newRow(name) << "printGeometry" << setting << lines;
        };

        row("three empty lines", "topMargin = \"3\";", 3);
        row("one empty line", "topMargin = \"1\";", 1);
        row("blanks around the number", "topMargin = \" 3 \";", 3);
        row("a plus", "topMargin = \"+2\";", 2);
        row("a zero in front", "topMargin = \"010\";", 10);
        row("missing", "", 0);
        row("empty", "topMargin = \"\";", 0);
        row("0", "topMargin = \"0\";", 0);
        row("negative", "topMargin = \"-2\";", 0);
        row("the least number", "topMargin = \"-2147483648\";", 0);
        row("text", "topMargin = \"three\";", 0);
        row("a unit", "topMargin = \"3 lines\";", 0);
        row("hexadecimal", "topMargin = \"0x3\";", 0);
        row("a decimal point", "topMargin = \"2.0\";", 0);
        row("a decimal comma", "topMargin = \"2,0\";", 0);
        row("beyond 32 bits", "topMargin = \"2147483648\";", 0);
        row("as many as the limit", "topMargin = \"65536\";", 65536);
        row("not more than the limit", "topMargin = \"65537\";", 65536);
        row("the greatest number", "topMargin = \"2147483647\";", 65536);
        row("another letter case", "topmargin = \"3\";", 0);
        QTest::newRow("switched off") << "" << QByteArray("topMargin = \"3\";") << 0;
        QTest::newRow("no other setting switches it on")
            << everyFlagBut("printGeometry") << QByteArray("topMargin = \"3\";") << 0;
    }

    void topMargin()
    {
        QFETCH(QString, flags);
        QFETCH(QByteArray, setting);
        QFETCH(int, lines);
        const QStringList calls = callsOf(flags, "<geometry/>", setting);
        QCOMPARE(calls.size(), lines);
        QCOMPARE(calls.count("println ||"), lines);
    }

    void topMarginOfTheCurrentDocument()
    {
        const TemporaryHome home(
            settingsFile(groupOf("doc", "printGeometry", "topMargin = \"1\";")
                         + groupOf("prefiscaldoc", "printGeometry")
                         + groupOf("receiptdoc", "printGeometry", "topMargin = \"2\";")));
        RecordingDriver driver;
        const QStringList empty = {"println ||"};
        QCOMPARE(driver.callsOf("printPartialOrder", "<geometry/>"), empty);
        QCOMPARE(driver.callsOf("printFullOrder", "<geometry/>"), QStringList());
        QCOMPARE(driver.callsOf("printFullOrderReceipt", "<geometry/>"), empty + empty);
        QCOMPARE(driver.callsOf("printFullOrderReceipt", "<geometry/><geometry/>"),
                 empty + empty + empty + empty);
        QCOMPARE(driver.callsOf("printPartialOrder", "<geometry topMargin='9'/>"), empty);
    }

    void credit()
    {
        const TemporaryHome home(
            settingsFile(groupOf("doc", "printDate") + groupOf("receiptdoc", "printCredit")));
        RecordingDriver driver;
        const auto creditAfter = [&](const QString &method, const QString &elements) {
            driver.callsOf(method, elements);
            return driver.credit;
        };

        // Kept while the setting is off, stored whenever it is on.
        QCOMPARE(creditAfter("printPartialOrder", "<orderinfo credit='1.00'/>"), "");
        QCOMPARE(creditAfter("printFullOrderReceipt", "<orderinfo credit='2.00'/>"), "2.00");
        QCOMPARE(creditAfter("printPartialOrder", "<orderinfo credit='3.00'/>"), "2.00");
        QCOMPARE(creditAfter("printFullOrderReceipt", "<customer credit='4.00'/>"), "2.00");
        QCOMPARE(creditAfter("printFullOrderReceipt",
                             "<orderinfo credit='5.00'/><orderinfo credit=' 6 '/>"),
                 " 6 ");
        QCOMPARE(creditAfter("printFullOrderReceipt", "<orderinfo date='1/2/2006'/>"), "");
    }

    void labelsAreTranslated()
    {
        const BracketTranslator translator;

        QCOMPARE(callsOf(everyFlag,
                         R"(<receipt serialnumber="Date:"/><invoice serialnumber="2"/>
                            <delivery serialnumber="3"/><orderinfo date="Date:"/>
                            <customer name="CUSTOMER" billingaddress="Date:"/>)"),
                 QStringList({"println 1 |<Serial Number: >Date:|",
                              rule,
                              "print 1 |<Invoice Number:>|",
                              "println 1 |2|",
                              rule,
                              "print 1 |<Delivery Number:>|",
                              "println 1 |3|",
                              rule,
                              "setCharSize",
                              "print 1 |<Date:>|",
                              "println 1 |Date:|",
                              "print 1 |<Time:>|",
                              "println 1 ||",
                              "print 1 |<Table:>|",
                              "println 1 ||",
                              "print 1 |<Waiter:>|",
                              "println 1 ||",
                              "print 1 |<Note:>|",
                              "println 1 ||",
                              "print 1 |<Credit:>|",
                              "println 1 ||",
                              rule,
                              "println |<CUSTOMER>|",
                              "println 1 |CUSTOMER|",
                              "println 1 |Date:|",
                              "print 1 |<Telephone:>|",
                              "println 1 ||",
                              "print 1 |<License Number:>|",
                              "println 1 ||",
                              "print 1 |<Fiscal Code:>|",
                              "println 1 ||",
                              rule}));
    }

private:
    static void compare()
    {
        QFETCH(QString, flags);
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        QCOMPARE(callsOf(flags, elements), calls);
    }
};

KORVEL_TEST(TestHeaders)

} // namespace tst_headers

#include "tst_headers.moc"

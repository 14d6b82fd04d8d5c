// The shared elements of jobs: which operation each causes, and which methods ask for them.
#include "support/attributes.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/shown.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_sections {

using Text = const QString &;
using Attributes = const QXmlAttributes &;

/// Notes which operation receives a shared element, and what a printer is told of itself.
class SectionDriver : public RecordingDriver
{
public:
    void initPrinter() override
    {
        calls.append("initPrinter |" + printerName + "|" + printerCharSize + "|" + printerAddress
                     + "|" + printerPort + "|");
    }
    void printGeometry(Attributes a) override { calls.append(shown(__func__, a)); }
    void printPrinterInfo() override { calls.append(__func__); }
    void printHeaders(Attributes a) override { calls.append(shown(__func__, a)); }
    void printCompanyHeader(Attributes a) override { calls.append(shown(__func__, a)); }
    void printReceiptHeader(Attributes a) override { calls.append(shown(__func__, a)); }
    void printInvoiceHeader(Attributes a) override { calls.append(shown(__func__, a)); }
    void printDeliveryHeader(Attributes a) override { calls.append(shown(__func__, a)); }
    void printCustomerHeader(Attributes a) override { calls.append(shown(__func__, a)); }
    void printOrderInfo(Attributes a) override { calls.append(shown(__func__, a)); }
};

/// Takes every element for a shared one.
class GreedyDriver : public RecordingDriver
{
public:
    bool printSections(Text qName, Attributes attributes) override
    {
        calls.append("printSections " + shown(qName, attributes));
        return true;
    }
};

/// The same without a kitchen order.
class NoPartialOrderDriver : public GreedyDriver
{
public:
    void printPartialOrder(Text /*qName*/, Attributes /*attributes*/) override { }
};

class TestSections : public QObject
{
    Q_OBJECT

private slots:
    void section_data()
    {
        QTest::addColumn<QString>("qName");
        QTest::addColumn<QStringList>("calls");
        const auto shared = [](const char *qName, const QStringList &calls) {
            QTest::newRow(qName) << qName << calls;
        };
        const auto other = [](const char *qName) {
            QTest::addRow("<%s> is not shared", qName) << qName << QStringList();
        };

        shared("printers", {"initPrinter |||||"});
        shared("geometry", {"printGeometry b=1 a=2"});
        shared("headers", {"printHeaders b=1 a=2", "printPrinterInfo"});
        shared("logo", {"printLogo"});
        shared("company", {"printCompanyHeader b=1 a=2"});
        shared("receipt", {"printReceiptHeader b=1 a=2"});
        shared("invoice", {"printInvoiceHeader b=1 a=2"});
        shared("delivery", {"printDeliveryHeader b=1 a=2"});
        shared("orderinfo", {"printOrderInfo b=1 a=2"});
        other("");
        other("customer");
        other("method");
        other("receipe");
        other("total");
        other("printer");
        other("header");
        other("Printers");
        other("GEOMETRY");
        other("Headers");
        other("Logo");
        other("Company");
        other("Receipt");
        other("Invoice");
        other("Delivery");
        other("orderInfo");
        other("order");
        other("headers ");
        other("fiscal");
    }

    void section()
    {
        QFETCH(QString, qName);
        QFETCH(QStringList, calls);
        SectionDriver driver;
        QCOMPARE(driver.printSections(qName, attributesOf({"b", "1", "a", "2"})), !calls.isEmpty());
        QCOMPARE(driver.calls, calls);
    }

    void printers_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("call");
        const auto row = [](const char *name, const char *element, const char *call) {
            QTest::newRow(name) << element << call;
        };

        row("all four", "<printers name='BAR' charsize='2' ipaddress='10.0.0.7' port='9100'/>",
            "initPrinter |BAR|2|10.0.0.7|9100|");
        row("in another order", "<printers port='1' ipaddress='2' charsize='3' name='4'/>",
            "initPrinter |4|3|2|1|");
        row("no name", "<printers charsize='2' ipaddress='3' port='4'/>", "initPrinter ||2|3|4|");
        row("no character size", "<printers name='1' ipaddress='3' port='4'/>",
            "initPrinter |1||3|4|");
        row("no address", "<printers name='1' charsize='2' port='4'/>", "initPrinter |1|2||4|");
        row("no port", "<printers name='1' charsize='2' ipaddress='3'/>", "initPrinter |1|2|3||");
        row("nothing", "<printers/>", "initPrinter |||||");
        row("names in another letter case",
            "<printers Name='1' charSize='2' ipAddress='3' Port='4'/>", "initPrinter |||||");
        row("texts as given", "<printers name=' a ' charsize='big' ipaddress='%1' port='-'/>",
            "initPrinter | a |big|%1|-|");
    }

    void printers()
    {
        QFETCH(QString, element);
        QFETCH(QString, call);
        SectionDriver driver;
        driver.printerName = driver.printerCharSize = "OLD";
        driver.printerAddress = driver.printerPort = "OLD";
        QCOMPARE(driver.callsOf("printPartialOrder", element), QStringList(call));
    }

    void printersByMethod_data() { addMethodsThatAsk(); }

    void printersByMethod()
    {
        QFETCH(bool, asks);
        RecordingDriver driver;
        const QStringList calls =
            driver.callsOf(QTest::currentDataTag(),
                           "<printers name='BAR' charsize='2' ipaddress='10.0.0.7' port='9100'/>");
        const QStringList stored = {driver.printerName, driver.printerCharSize,
                                    driver.printerAddress, driver.printerPort};
        QCOMPARE(stored, asks ? QStringList({"BAR", "2", "10.0.0.7", "9100"})
                              : QStringList({"", "", "", ""}));
        QCOMPARE(calls, asks ? QStringList("initPrinter") : QStringList());
    }

    void sectionsByMethod_data() { addMethodsThatAsk(); }

    // What is taken for a shared element causes nothing else.
    void sectionsByMethod()
    {
        QFETCH(bool, asks);
        const QStringList elements = {
            "headers",   "receipe",        "otherreceipe",   "variant", "receipe_type",
            "total",     "totals",         "notPaid",        "date",    "receiptssummary",
            "statement", "statement_list", "no_such_element"};
        QStringList questions;
        for (const QString &element : elements)
            questions.append("printSections " + element);

        const QStringList calls =
            GreedyDriver().callsOf(QTest::currentDataTag(), "<" + elements.join("/><") + "/>");
        QCOMPARE(asks ? calls : calls.filter("printSections"), asks ? questions : QStringList());
    }

    void deliveryNoteAsksThroughThePartialOrder()
    {
        const QString elements = "<customer/><headers/><receipe/>";
        QCOMPARE(GreedyDriver().callsOf("printFullOrderDelivery", elements),
                 QStringList({"printSections headers", "printSections receipe"}));
        QCOMPARE(NoPartialOrderDriver().callsOf("printFullOrderDelivery", elements), QStringList());
    }

    void headersThenPrinterInfo()
    {
        const TemporaryHome withHeaders(
            settingsFile(documentGroup("doc", R"(paperWidth = "9"; printHeader = "true";)")));
        QCOMPARE(
            RecordingDriver().callsOf("printPartialOrder",
                                      "<printers name='BAR'/><headers a='ONE' b='TWO'/>"),
            QStringList({"initPrinter", "println |ONE|", "println |TWO|", "println |=========|",
                         "setCenterJustify", "println |BAR|", "println |=========|"}));
    }

private:
    /// Rows named for the methods: whether they ask first if an element is a shared one.
    static void addMethodsThatAsk()
    {
        QTest::addColumn<bool>("asks");
        QTest::newRow("printPartialOrder") << true;
        QTest::newRow("printFullOrder") << true;
        QTest::newRow("printFullOrderReceipt") << true;
        QTest::newRow("printFullOrderInvoice") << true;
        QTest::newRow("printFullOrderDelivery") << true; // through the partial order
        QTest::newRow("printFullOrderFiscal") << false;
        QTest::newRow("printAbstractOrder") << false;
        QTest::newRow("printAbstractOrderReceipt") << true;
        QTest::newRow("printAbstractOrderInvoice") << true;
        QTest::newRow("printAbstractOrderFiscal") << false;
        QTest::newRow("printReport") << true;
        QTest::newRow("printSold") << true;
        QTest::newRow("printStatementOfAccount") << true;
    }

    const TemporaryHome home{""};
};

KORVEL_TEST(TestSections)

} // namespace tst_sections

#include "tst_sections.moc"

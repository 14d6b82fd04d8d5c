// Which operation gets which element of a job: the methods and the shared sections.
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/shown.h"
#include "support/temporaryhome.h"

#include <QTest>

#include <optional>

namespace {

constexpr auto notSupported = "File Format Not Supported\n";

struct Method
{
    const char *name;
    const char *group;             // of the layout settings that apply
    std::optional<bool> duplicate; // what selecting it makes of the duplicate flag, if anything
};

// The full order reads the pre-fiscal layout and the statement of account that of the report.
// clang-format off
constexpr Method methods[] = {
    {"printPartialOrder",         "doc",          {}   },
    {"printFullOrder",            "prefiscaldoc", {}   },
    {"printFullOrderReceipt",     "receiptdoc",   {}   },
    {"printFullOrderInvoice",     "invoicedoc",   true },
    {"printFullOrderDelivery",    "deliverydoc",  {}   },
    {"printFullOrderFiscal",      "fiscaldoc",    false},
    {"printAbstractOrder",        "doc",          {}   },
    {"printAbstractOrderReceipt", "receiptdoc",   {}   },
    {"printAbstractOrderInvoice", "invoicedoc",   true },
    {"printAbstractOrderFiscal",  "fiscaldoc",    false},
    {"printReport",               "reportdoc",    {}   },
    {"printSold",                 "solddoc",      {}   },
    {"printStatementOfAccount",   "reportdoc",    {}   },
};
// clang-format on

const QByteArrayList groups = {"doc",        "prefiscaldoc", "fiscaldoc", "receiptdoc",
                               "invoicedoc", "deliverydoc",  "reportdoc", "solddoc"};

/// The paper width that the settings of these tests give a group, which tells whose were read.
int paperWidthOf(const QByteArray &group) { return 41 + int(groups.indexOf(group)); }

QByteArray settings()
{
    QByteArray text;
    for (const QByteArray &group : groups) {
        const QByteArray width = QByteArray::number(paperWidthOf(group));
        text += documentGroup(group, "paperWidth = \"" + width + "\";");
    }
    return settingsFile(text);
}

using Text = const QString &;
using Attributes = const QXmlAttributes &;

/// Attributes from their names and values, in turn.
QXmlAttributes attributesOf(const QStringList &texts)
{
    QXmlAttributes attributes;
    for (qsizetype i = 0; i + 1 < texts.size(); i += 2)
        attributes.append(texts[i], "", texts[i], texts[i + 1]);
    return attributes;
}

/// Notes which document operation receives which element, and what a section opens with:
/// "startSection printReport korvel.reportdoc. 47".
class DocumentDriver : public RecordingDriver
{
public:
    void startSection() override
    {
        calls.append("startSection " + currentMethod + " " + documentPrefix + " "
                     + QString::number(layout.paperWidth) + (duplicate ? " duplicate" : ""));
    }

    void printPartialOrder(Text n, Attributes a) override { note(__func__, n, a); }
    void printFullOrder(Text n, Attributes a) override { note(__func__, n, a); }
    void printFullOrderReceipt(Text n, Attributes a) override { note(__func__, n, a); }
    void printFullOrderInvoice(Text n, Attributes a) override { note(__func__, n, a); }
    void printFullOrderDelivery(Text n, Attributes a) override { note(__func__, n, a); }
    void printFullOrderFiscal(Text n, Attributes a) override { note(__func__, n, a); }
    void printAbstractOrder(Text n, Attributes a) override { note(__func__, n, a); }
    void printAbstractOrderReceipt(Text n, Attributes a) override { note(__func__, n, a); }
    void printAbstractOrderInvoice(Text n, Attributes a) override { note(__func__, n, a); }
    void printAbstractOrderFiscal(Text n, Attributes a) override { note(__func__, n, a); }
    void printReport(Text n, Attributes a) override { note(__func__, n, a); }
    void printSold(Text n, Attributes a) override { note(__func__, n, a); }
    void printStatementOfAccount(Text n, Attributes a) override { note(__func__, n, a); }

private:
    void note(const char *operation, Text qName, Attributes attributes)
    {
        calls.append(QString(operation) + " " + shown(qName, attributes));
    }
};

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

} // namespace

class TestDispatch : public QObject
{
    Q_OBJECT

private slots:
    void method_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QString>("section");
        for (const auto &[name, group, duplicate] : methods) {
            const QString prefix = QString("korvel.") + group + ".";
            QTest::newRow(name) << prefix
                                << QString("startSection ") + name + " " + prefix + " "
                                       + QString::number(paperWidthOf(group))
                                       + (duplicate.value_or(false) ? " duplicate" : "");
        }
    }

    void method()
    {
        QFETCH(QString, prefix);
        QFETCH(QString, section);
        const QString name = QTest::currentDataTag();
        const CapturedOutput output;
        DocumentDriver driver;

        QVERIFY(readJob(driver, "<job><method name='" + name + "'/><receipe name='TEA' a='1'/>"
                                    + "<headers/><no_such_element/></job>"));
        QCOMPARE(driver.calls,
                 QStringList({"reset", section, name + " receipe name=TEA a=1", name + " headers",
                              name + " no_such_element", "endSection"}));
        QCOMPARE(driver.currentMethod, name);
        QCOMPARE(driver.documentPrefix, prefix);
        QCOMPARE(output.bytes(), "");
    }

    void duplicate_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<bool>("before");
        QTest::addColumn<bool>("after");
        for (const auto &[name, group, duplicate] : methods) {
            for (const bool before : {false, true}) {
                QTest::addRow("%s, %s", name, before ? "set before" : "clear before")
                    << name << before << duplicate.value_or(before);
            }
        }
    }

    void duplicate()
    {
        QFETCH(QString, method);
        QFETCH(bool, before);
        QFETCH(bool, after);
        DocumentDriver driver;
        driver.duplicate = before;
        QVERIFY(readJob(driver, "<job><method name='" + method + "'/><receipe/></job>"));
        QCOMPARE(driver.printDuplicate(), after);
    }

    void duplicateOfTwoMethods_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("after");
        const auto row = [](const char *name, const char *first, const char *second, bool after) {
            QTest::newRow(name) << first << second << after;
        };

        row("a report leaves it set by an invoice", "printFullOrderInvoice", "printReport", true);
        row("a fiscal receipt clears it", "printFullOrderInvoice", "printFullOrderFiscal", false);
        row("a summary fiscal receipt clears it", "printAbstractOrderInvoice",
            "printAbstractOrderFiscal", false);
        row("a receipt leaves it cleared", "printFullOrderFiscal", "printFullOrderReceipt", false);
        row("an invoice sets it again", "printFullOrderFiscal", "printAbstractOrderInvoice", true);
    }

    void duplicateOfTwoMethods()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, after);
        DocumentDriver driver;
        QVERIFY(readJob(driver, "<job><method name='" + first + "'/><method name='" + second
                                    + "'/></job>"));
        QCOMPARE(driver.printDuplicate(), after);
    }

    void unknownMethod_data()
    {
        QTest::addColumn<QString>("element");
        const auto named = [](const char *name) {
            QTest::addRow("<%s>", name) << QString("<method name='") + name + "'/>";
        };

        named("");
        named("printpartialorder");
        named("PRINTREPORT");
        named("PrintReport");
        named("printRepor");
        named("printReports");
        named(" printReport");
        named("printReport ");
        named("printReport printSold");
        named("print");
        named("report");
        named("startSection");
        named("printDuplicate");
        named("printRowFiscal");
        named("printSections");
        named("printPartialOrderReceipt");
        named("%1");
        const auto row = [](const char *name, const char *element) {
            QTest::newRow(name) << element;
        };
        row("no name", "<method/>");
        row("the name in another attribute", "<method method='printReport'/>");
        row("the attribute in another letter case", "<method Name='printReport'/>");
        row("the name as text", "<method>printReport</method>");
    }

    void unknownMethod()
    {
        QFETCH(QString, element);
        const CapturedOutput output;
        DocumentDriver driver;
        QCOMPARE(readJob(driver, "<job>" + element + "<receipe/><method name='printSold'/></job>"),
                 false);
        QCOMPARE(output.bytes(), notSupported);
        QCOMPARE(driver.calls, QStringList("reset"));
        QCOMPARE(driver.currentMethod, "");
        QCOMPARE(driver.documentPrefix, "");
        QCOMPARE(driver.layout.paperWidth, 0);
    }

    void unknownMethodAfterAnother()
    {
        const CapturedOutput output;
        DocumentDriver driver;
        QCOMPARE(readJob(driver, "<job><method name='printFullOrderInvoice'/><total/>"
                                 "<method name='printBill'/><total/></job>"),
                 false);
        QCOMPARE(output.bytes(), notSupported);
        QCOMPARE(driver.calls,
                 QStringList({"reset",
                              "startSection printFullOrderInvoice korvel.invoicedoc. 45 duplicate",
                              "printFullOrderInvoice total"}));
        QCOMPARE(driver.currentMethod, "");
        QCOMPARE(driver.documentPrefix, "korvel.invoicedoc.");
        QCOMPARE(driver.layout.paperWidth, 45);
        QCOMPARE(driver.printDuplicate(), true);
    }

    void startElementAnswers()
    {
        const CapturedOutput output;
        DocumentDriver driver;
        const auto select = [&](const char *name) {
            return driver.startElement("", "method", "method", attributesOf({"name", name}));
        };
        const auto element = [&](const char *qName) {
            return driver.startElement("", qName, qName, attributesOf({}));
        };

        QCOMPARE(element("receipe"), true);
        QCOMPARE(select("printSold"), true);
        QCOMPARE(element("receipe"), true);
        QCOMPARE(element("no_such_element"), true);
        QCOMPARE(output.bytes(), "");
        QCOMPARE(select("printBill"), false);
        QCOMPARE(output.bytes(), notSupported);
        QCOMPARE(element("receipe"), true);
        QCOMPARE(select("printReport"), true);
        QCOMPARE(driver.calls, QStringList({"startSection printSold korvel.solddoc. 48",
                                            "printSold receipe", "printSold no_such_element",
                                            "startSection printReport korvel.reportdoc. 47"}));
    }

    void onlyTheQualifiedNameCounts()
    {
        DocumentDriver driver;
        const QXmlAttributes sold = attributesOf({"name", "printSold"});
        QCOMPARE(driver.startElement("uri", "local", "method", sold), true);
        QCOMPARE(driver.startElement("uri", "method", "x:method", sold), true);
        QCOMPARE(driver.startElement("", "method", "Method", sold), true);
        QCOMPARE(driver.startElement("", "", "receipe", sold), true);
        QCOMPARE(driver.calls, QStringList({"startSection printSold korvel.solddoc. 48",
                                            "printSold x:method name=printSold",
                                            "printSold Method name=printSold",
                                            "printSold receipe name=printSold"}));
    }

    void job_data()
    {
        QTest::addColumn<QString>("job");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &job, const QStringList &calls) {
            QTest::newRow(name) << job << calls;
        };
        const QString sold = "startSection printSold korvel.solddoc. 48";
        const QString report = "startSection printReport korvel.reportdoc. 47";

        row("elements before any method are ignored",
            "<job><receipe/><headers/><printers name='A'/><orderinfo/></job>", {});
        row("elements count from the method on",
            "<job><receipe/><method name='printSold'/><total/></job>", {sold, "printSold total"});
        row("a method in another letter case is an ordinary element",
            "<job><Method name='printSold'/><method name='printSold'/><METHOD/></job>",
            {sold, "printSold METHOD"});
        row("two methods open two sections and close one",
            "<job><method name='printSold'/><a/><method name='printReport'/><b/></job>",
            {sold, "printSold a", report, "printReport b"});
        row("the same method opens a section each time",
            "<job><method name='printSold'/><method name='printSold'/></job>", {sold, sold});
        row("a root element of any name", "<receipe><method name='printSold'/><a/></receipe>",
            {sold, "printSold a"});
        row("a root element named like a method",
            "<printReport><method name='printSold'/><a/></printReport>", {sold, "printSold a"});
        row("a root element that is a method", "<method name='printSold'><a/></method>",
            {sold, "printSold a"});
        row("nesting and end tags do not matter",
            "<job><x><method name='printSold'><a><b/></a></method></x><c></c></job>",
            {sold, "printSold a", "printSold b", "printSold c"});
        row("texts do not matter",
            "<job>one<method name='printSold'>two</method>three<a>four</a>"
            "<![CDATA[<b/>]]></job>",
            {sold, "printSold a"});
        row("comments and instructions do not matter",
            "<?xml version='1.0'?><!-- <a/> --><job><method name='printSold'/><!-- <b/> -->"
            "<?print c?></job>",
            {sold});
        row("further attributes of a method do not matter",
            "<job><method type='printReport' name='printSold' a='1'/></job>", {sold});
        row("attributes keep their order and their texts",
            "<job><method name='printSold'/><a z=' 1 ' b='' a='%1&lt;'/></job>",
            {sold, "printSold a z= 1  b= a=%1<"});
    }

    void job()
    {
        QFETCH(QString, job);
        QFETCH(QStringList, calls);
        const CapturedOutput output;
        DocumentDriver driver;
        QVERIFY(readJob(driver, job));
        QCOMPARE(driver.calls, QStringList("reset") + calls + QStringList("endSection"));
        QCOMPARE(output.bytes(), "");
    }

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
        row("names in another letter case", "<printers Name='1' charSize='2' IP='3' Port='4'/>",
            "initPrinter |||||");
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

    const TemporaryHome home{settings()};
};

QTEST_GUILESS_MAIN(TestDispatch)
#include "tst_dispatch.moc"

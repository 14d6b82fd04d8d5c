// Which operation gets which element of a job, by the method that is in force.
#include "support/attributes.h"
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/shown.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <optional>

namespace tst_dispatch {

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

private:
    const TemporaryHome home{settings()};
};

KORVEL_TEST(TestDispatch)

} // namespace tst_dispatch

#include "tst_dispatch.moc"

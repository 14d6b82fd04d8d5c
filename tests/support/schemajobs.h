// Jobs that a schema of jobs accepts, and jobs with one thing wrong, each beside the same without.
#pragma once

#include "companions/check/vocabulary.h"
#include "support/files.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QTest>

struct AcceptedJob
{
    QString what;
    QByteArray job;
    bool namedRoot = true; // the root has the name that the pages use
};

struct WrongJob
{
    QString what;
    QByteArray wrong;
    QByteArray right;
    bool everywhere = true; // wrong whatever the document; else only because of its method
};

inline QByteArray printJobOf(const QByteArray &method, const QByteArray &elements)
{
    return "<printjob><method name=\"" + method + "\"/>" + elements + "</printjob>";
}

inline const QByteArray kitchenItem = "<receipe number=\"1\" name=\"x\"/>";
inline const QByteArray pricedItem =
    "<receipe number=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>";
inline const QByteArray saleItem =
    "<receipe department=\"1\" number=\"1\" name=\"x\" price=\"1\"/>";

/// A data row for each example, one of each document.
inline void addExampleJobs()
{
    QTest::addColumn<QString>("path");
    const QStringList paths = filesBelow(KORVEL_SOURCE_DIR "/examples/jobs", "*.xml");
    QCOMPARE(paths.size(), korvel::vocabulary::methods().size());
    for (const QString &path : paths)
        QTest::newRow(qPrintable(path.section('/', -1))) << path;
}

inline QList<AcceptedJob> acceptedJobs()
{
    QList<AcceptedJob> jobs;
    const auto row = [&](const char *what, const QByteArray &job, bool namedRoot = true) {
        jobs.append({what, job, namedRoot});
    };
    row("a document with nothing in it", printJobOf("printPartialOrder", ""));
    row("a root of any name, with any attributes",
        "<till number=\"7\" at=\"x\"><method name=\"printPartialOrder\"/>" + kitchenItem
            + "</till>",
        false);
    row("blanks, comments and instructions",
        "<?xml version=\"1.0\"?>\n<!-- a -->\n<printjob>\n  <method name=\"printPartialOrder\"/>\n"
        "  <!-- b --><?c d?>\n  "
            + kitchenItem + "\n</printjob>\n");
    row("elements in any order, and as often as one likes",
        printJobOf("printFullOrder",
                   "<total price=\"1\"/>" + pricedItem + pricedItem
                       + "<company/><total price=\"2\"/><logo/><company name=\"x\"/>"));
    row("attributes in any order",
        printJobOf("printPartialOrder", "<receipe name=\"x\" number=\"1\"/>"));
    row("values of any kind",
        printJobOf("printPartialOrder", "<receipe number=\"\" name=\"1&#10;)\"/>"));
    row("a start tag and an end tag",
        printJobOf("printPartialOrder", "<receipe number=\"1\" name=\"x\"></receipe>"));
    row("headers and a company of any attributes",
        printJobOf("printPartialOrder", "<headers a=\"1\" b=\"2\"/><company c=\"3\"/>"));
    row("what has a switch may be left out",
        printJobOf("printFullOrder", "<orderinfo/><orderinfo table=\"7\"/><customer name=\"x\"/>"));
    row("what this printer has no use for may be left out",
        printJobOf("printPartialOrder", "<printers name=\"CASSA\"/><printers port=\"1\"/>"));
    row("the quantity of a kind of item in a fiscal receipt, and none",
        printJobOf("printAbstractOrderFiscal",
                   "<receipe_type department=\"1\" number=\"2\" name=\"x\" price=\"1\"/>"
                   "<receipe_type department=\"1\" name=\"x\" price=\"1\"/>"));
    row("any attributes of cancelled documents",
        printJobOf("printReport",
                   "<cancelledsummary number=\"1\" totals=\"9\" a=\"1\" b=\"2\" c=\"3\"/>"));
    row("a line that names the schema to editors",
        "<?xml-model href=\"job.rng\" "
        "schematypens=\"http://relaxng.org/ns/structure/1.0\"?>\n"
            + printJobOf("printSold", ""));
    row("a root that names the XSD to editors",
        printJobOf("printSold", "")
            .replace("<printjob>",
                     "<printjob xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                     "xsi:noNamespaceSchemaLocation=\"schema\">"));
    row("a document type without rules", "<!DOCTYPE printjob>\n" + printJobOf("printSold", ""));
    return jobs;
}

class WrongJobs
{
public:
    WrongJobs()
    {
        addEnvelopes();
        addOrders();
        addPriced();
        addOthers();
    }

    QList<WrongJob> jobs;

private:
    void addEnvelopes()
    {
        const auto row = [&](const QString &what, const QByteArray &wrong,
                             const QByteArray &right) {
            jobs.append({what, wrong, right});
        };
        const QByteArray method = "<method name=\"printPartialOrder\"/>";

        row("no method", "<printjob>" + kitchenItem + "</printjob>",
            "<printjob>" + method + kitchenItem + "</printjob>");
        row("nothing at all", "<printjob/>", "<printjob>" + method + "</printjob>");
        row("an unknown method", printJobOf("printpartialOrder", ""),
            printJobOf("printPartialOrder", ""));
        row("a method with a blank behind its name", printJobOf("printSold ", ""),
            printJobOf("printSold", ""));
        row("a method without a name", "<printjob><method/></printjob>",
            "<printjob>" + method + "</printjob>");
        row("a method with more than a name",
            "<printjob><method name=\"printSold\" copies=\"2\"/></printjob>",
            printJobOf("printSold", ""));
        row("an element in the method",
            "<printjob><method name=\"printSold\"><logo/></method></printjob>",
            printJobOf("printSold", "<logo/>"));
        row("a text in the method", "<printjob><method name=\"printSold\">x</method></printjob>",
            printJobOf("printSold", ""));
        row("a second method", printJobOf("printPartialOrder", kitchenItem + method),
            printJobOf("printPartialOrder", kitchenItem));
        row("an element before the method", "<printjob><logo/>" + method + "</printjob>",
            "<printjob>" + method + "<logo/></printjob>");
        row("a text in the job", "<printjob>x" + method + "</printjob>",
            "<printjob>" + method + "</printjob>");
    }

    void addOrders()
    {
        everywhere("printPartialOrder", "an unknown element", "<recipe number=\"1\" name=\"x\"/>",
                   kitchenItem);
        everywhere("printPartialOrder", "an element in another one",
                   "<order>" + kitchenItem + "</order>", kitchenItem);
        everywhere("printPartialOrder", "an element in an item",
                   "<receipe number=\"1\" name=\"x\">" + kitchenItem + "</receipe>", kitchenItem);
        everywhere("printPartialOrder", "an element of a namespace",
                   "<receipe xmlns=\"urn:x\" number=\"1\" name=\"x\"/>", kitchenItem);
        everywhere("printPartialOrder", "a text in an item",
                   "<receipe number=\"1\" name=\"x\">x</receipe>", kitchenItem);
        everywhere("printPartialOrder", "a text in headers", "<headers a=\"b\">x</headers>",
                   "<headers a=\"b\"/>");
        everywhere("printPartialOrder", "an attribute of an element that has none",
                   "<geometry lines=\"2\"/>", "<geometry/>");
        here("printPartialOrder", "a price", pricedItem, kitchenItem);
        here("printPartialOrder", "an item without a number", "<receipe name=\"x\"/>", kitchenItem);
        everywhere("printPartialOrder", "a variant without a quantity",
                   "<variant number=\"1\" name=\"x\"/>",
                   "<variant number=\"1\" quantity=\"1\" name=\"x\"/>");
        everywhere("printPartialOrder", "an unknown attribute of the order",
                   "<orderinfo tables=\"7\"/>", "<orderinfo table=\"7\"/>");
        everywhere("printPartialOrder", "a customer without a name", "<customer telephone=\"1\"/>",
                   "<customer name=\"x\" telephone=\"1\"/>");
        here("printPartialOrder", "a total", kitchenItem + "<total price=\"1\"/>", kitchenItem);
    }

    void addPriced()
    {
        here("printFullOrderDelivery", "a price", pricedItem, kitchenItem);
        here("printFullOrderDelivery", "a total", kitchenItem + "<total price=\"1\"/>",
             kitchenItem);
        here("printFullOrder", "an item without its amount",
             "<receipe number=\"1\" name=\"x\" price=\"1\"/>", pricedItem);
        here("printFullOrder", "a variant without its price",
             "<variant number=\"1\" quantity=\"1\" name=\"x\" totalPrice=\"1\"/>",
             "<variant number=\"1\" quantity=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>");
        here("printFullOrder", "a tax block",
             "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>", "<total price=\"1\"/>");
        here("printFullOrderReceipt", "a variant",
             "<variant number=\"1\" quantity=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>",
             pricedItem);
        here("printFullOrderReceipt", "a kind of item",
             "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>", pricedItem);
        here("printFullOrderReceipt", "a total without a price", "<total/>",
             "<total price=\"1\"/>");
        everywhere("printFullOrderReceipt", "an element in other letters", "<notpaid price=\"1\"/>",
                   "<notPaid price=\"1\"/>");
        here("printFullOrderInvoice", "a total", "<total price=\"1\"/>",
             "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>");
        everywhere("printFullOrderInvoice", "a tax block without a rate",
                   "<totals taxable=\"1\" tax=\"1\" total=\"1\"/>",
                   "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>");
    }

    void addOthers()
    {
        here("printFullOrderFiscal", "a department left out",
             "<receipe number=\"1\" name=\"x\" price=\"1\"/>", saleItem);
        here("printFullOrderFiscal", "a customer", "<customer name=\"x\"/>" + saleItem, saleItem);
        here("printFullOrderFiscal", "a shared element", "<company name=\"x\"/>" + saleItem,
             saleItem);
        here("printFullOrderFiscal", "an item of a receipt", pricedItem, saleItem);
        here("printAbstractOrder", "an item", kitchenItem, "");
        here("printAbstractOrder", "a shared element", "<logo/>", "");
        here("printAbstractOrderReceipt", "a customer",
             "<customer name=\"x\"/><receipe_type number=\"1\" name=\"x\" price=\"1\"/>",
             "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        everywhere("printAbstractOrderReceipt", "an amount beside the price",
                   "<receipe_type number=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>",
                   "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        here("printAbstractOrderInvoice", "an item of an invoice", pricedItem,
             "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        here("printAbstractOrderFiscal", "an item", saleItem,
             "<receipe_type department=\"1\" name=\"x\" price=\"1\"/>");
        everywhere("printReport", "cancelled documents without their total",
                   "<cancelledsummary number=\"1\" a=\"1\" b=\"2\" c=\"3\"/>",
                   "<cancelledsummary number=\"1\" totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>");
        everywhere("printReport", "cancelled documents without their count",
                   "<cancelledsummary totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>",
                   "<cancelledsummary number=\"1\" totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>");
        everywhere("printReport", "an element in other letters",
                   "<Date begindate=\"1\" enddate=\"2\"/>",
                   "<date begindate=\"1\" enddate=\"2\"/>");
        everywhere("printReport", "a period without an end", "<date begindate=\"1\"/>",
                   "<date begindate=\"1\" enddate=\"2\"/>");
        here("printSold", "an item of another document", kitchenItem,
             "<receipe quantity=\"1\" description=\"x\" amount=\"1\"/>");
        everywhere("printStatementOfAccount", "a description",
                   "<statement date=\"1\" type=\"x\" description=\"x\" amount=\"1\"/>",
                   "<statement date=\"1\" type=\"x\" amount=\"1\"/>");
    }

    void everywhere(const QByteArray &document, const QString &what, const QByteArray &wrong,
                    const QByteArray &right)
    {
        jobs.append(
            {document + ": " + what, printJobOf(document, wrong), printJobOf(document, right)});
    }

    void here(const QByteArray &document, const QString &what, const QByteArray &wrong,
              const QByteArray &right)
    {
        everywhere(document, what, wrong, right);
        jobs.last().everywhere = false;
    }
};

inline QList<WrongJob> wrongJobs() { return WrongJobs().jobs; }

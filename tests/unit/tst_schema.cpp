// The schema of jobs, as a validator reads it.
#include "companions/check/checks.h"
#include "companions/check/schema.h"
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"

#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

namespace check = korvel::check;

namespace {

/// What xmllint ends with.
enum XmlLint {
    Valid = 0,
    Invalid = 3,
    BadSchema = 5,
};

/// A folder with a schema in it, by which jobs are validated.
class Validator
{
public:
    explicit Validator(const QByteArray &schema = check::relaxNgSchema())
    {
        writeFile(path("job.rng"), schema);
    }

    /// What the validator says of a job.
    [[nodiscard]] Run run(const QByteArray &job) const { return run(QStringList("-"), job); }

    /// Which of these jobs are valid.
    [[nodiscard]] QList<bool> areValid(const QByteArrayList &jobs) const
    {
        QStringList names;
        for (const QByteArray &job : jobs) {
            names.append(QString("%1.xml").arg(names.size()));
            writeFile(path(names.last()), job);
        }
        const QStringList said = QString::fromUtf8(run(names, {}).standardError).split('\n');
        QList<bool> valid;
        for (const QString &name : names) {
            const bool accepted = said.contains(name + " validates");
            const bool refused = said.contains(name + " fails to validate");
            const bool malformed = std::any_of(said.begin(), said.end(), [&](const QString &line) {
                return line.startsWith(name + ':') && line.contains(": parser error : ");
            });
            if (accepted == (refused || malformed))
                qFatal("not validated: %s", qPrintable(name));
            valid.append(accepted);
        }
        return valid;
    }

private:
    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }

    [[nodiscard]] Run run(const QStringList &jobs, const QByteArray &standardInput) const
    {
        return runProgram("xmllint",
                          QStringList{"--nonet", "--noout", "--relaxng", "job.rng"} + jobs,
                          {folder.path(), {}, standardInput});
    }

    QTemporaryDir folder;
};

QByteArray documentOf(const QByteArray &method, const QByteArray &elements)
{
    return "<job><method name=\"" + method + "\"/>" + elements + "</job>";
}

/// An element with all attributes that a document reads of it.
QByteArray elementOf(const vocabulary::Element &element, vocabulary::Document document)
{
    QByteArray tag = QByteArray("<") + element.name.data();
    for (const vocabulary::Attribute &row : vocabulary::attributesOf(element.name, document))
        tag += QByteArray(" ") + row.name.data() + "=\"1\"";
    return tag + "/>";
}

const QByteArray kitchenItem = "<receipe number=\"1\" name=\"x\"/>";
const QByteArray pricedItem = "<receipe number=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>";
const QByteArray saleRow = "<receipe department=\"1\" number=\"1\" name=\"x\" price=\"1\"/>";

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private slots:
    void isRelaxNg()
    {
        const Run run = Validator().run(documentOf("printSold", ""));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
        QCOMPARE(run.standardOutput, QByteArray());

        // What is no schema is noticed.
        const QByteArray schema = check::relaxNgSchema();
        const Validator broken(QByteArray(schema).replace("zeroOrMore", "anyNumberOf"));
        QCOMPARE(broken.run(documentOf("printSold", "")).status, int(BadSchema));
        const Validator cut(schema.first(schema.size() / 2));
        QCOMPARE(cut.run(documentOf("printSold", "")).status, int(BadSchema));
    }

    void examples_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList paths = filesBelow(KORVEL_SOURCE_DIR "/examples/jobs", "*.xml");
        QCOMPARE(paths.size(), vocabulary::methods().size());
        for (const QString &path : paths)
            QTest::newRow(qPrintable(path.section('/', -1))) << path;
    }

    void examples()
    {
        QFETCH(QString, path);
        const Run run = Validator().run(bytesOf(path));
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
    }

    void accepts_data()
    {
        QTest::addColumn<QByteArray>("job");
        const auto row = [](const char *what, const QByteArray &job) {
            QTest::newRow(what) << job;
        };

        row("a document with nothing in it", documentOf("printPartialOrder", ""));
        row("a root of any name, with any attributes",
            "<till number=\"7\" at=\"x\"><method name=\"printPartialOrder\"/>" + kitchenItem
                + "</till>");
        row("blanks, comments and instructions",
            "<?xml version=\"1.0\"?>\n<!-- a -->\n<job>\n  <method name=\"printPartialOrder\"/>\n"
            "  <!-- b --><?c d?>\n  "
                + kitchenItem + "\n</job>\n");
        row("elements in any order, and as often as one likes",
            documentOf("printFullOrder",
                       "<total price=\"1\"/>" + pricedItem + pricedItem
                           + "<company/><total price=\"2\"/><logo/><company name=\"x\"/>"));
        row("attributes in any order",
            documentOf("printPartialOrder", "<receipe name=\"x\" number=\"1\"/>"));
        row("values of any kind",
            documentOf("printPartialOrder", "<receipe number=\"\" name=\"1&#10;)\"/>"));
        row("a start tag and an end tag",
            documentOf("printPartialOrder", "<receipe number=\"1\" name=\"x\"></receipe>"));
        row("headers and a company of any attributes",
            documentOf("printPartialOrder", "<headers a=\"1\" b=\"2\"/><company c=\"3\"/>"));
        row("what has a switch may be left out",
            documentOf("printFullOrder",
                       "<orderinfo/><orderinfo table=\"7\"/><customer name=\"x\"/>"));
        row("what this printer has no use for may be left out",
            documentOf("printPartialOrder", "<printers name=\"CASSA\"/><printers port=\"1\"/>"));
        row("the quantity of a kind of item in a fiscal receipt, and none",
            documentOf("printAbstractOrderFiscal",
                       "<receipe_type department=\"1\" number=\"2\" name=\"x\" price=\"1\"/>"
                       "<receipe_type department=\"1\" name=\"x\" price=\"1\"/>"));
        row("any attributes of cancelled documents",
            documentOf("printReport",
                       "<cancelledsummary number=\"1\" totals=\"9\" a=\"1\" b=\"2\" c=\"3\"/>"));
        row("a line that names the schema to editors",
            "<?xml-model href=\"job.rng\" "
            "schematypens=\"http://relaxng.org/ns/structure/1.0\"?>\n"
                + documentOf("printSold", ""));
        row("a document type without rules", "<!DOCTYPE job>\n" + documentOf("printSold", ""));
    }

    void accepts()
    {
        QFETCH(QByteArray, job);
        const Run run = Validator().run(job);
        QVERIFY2(run.exited && run.status == Valid, run.standardError.constData());
    }

    /// Each job has one thing wrong; beside it stands the job that has not.
    void rejects_data()
    {
        QTest::addColumn<QByteArray>("wrong");
        QTest::addColumn<QByteArray>("right");
        const auto row = [](const QString &what, const QByteArray &wrong, const QByteArray &right) {
            QTest::newRow(qPrintable(what)) << wrong << right;
        };
        const QByteArray method = "<method name=\"printPartialOrder\"/>";

        // The job and its method.
        row("no method", "<job>" + kitchenItem + "</job>",
            "<job>" + method + kitchenItem + "</job>");
        row("nothing at all", "<job/>", "<job>" + method + "</job>");
        row("an unknown method", documentOf("printpartialOrder", ""),
            documentOf("printPartialOrder", ""));
        row("a method with a blank behind its name", documentOf("printSold ", ""),
            documentOf("printSold", ""));
        row("a method without a name", "<job><method/></job>", "<job>" + method + "</job>");
        row("a method with more than a name",
            "<job><method name=\"printSold\" copies=\"2\"/></job>", documentOf("printSold", ""));
        row("an element in the method", "<job><method name=\"printSold\"><logo/></method></job>",
            documentOf("printSold", "<logo/>"));
        row("a text in the method", "<job><method name=\"printSold\">x</method></job>",
            documentOf("printSold", ""));
        row("a second method", documentOf("printPartialOrder", kitchenItem + method),
            documentOf("printPartialOrder", kitchenItem));
        row("an element before the method", "<job><logo/>" + method + "</job>",
            "<job>" + method + "<logo/></job>");
        row("a text in the job", "<job>x" + method + "</job>", "<job>" + method + "</job>");

        // Elements, in one document after the other.
        const auto in = [&](const QByteArray &document, const QString &what,
                            const QByteArray &wrong, const QByteArray &right) {
            row(QString(document) + ": " + what, documentOf(document, wrong),
                documentOf(document, right));
        };
        in("printPartialOrder", "an unknown element", "<recipe number=\"1\" name=\"x\"/>",
           kitchenItem);
        in("printPartialOrder", "an element in another one", "<order>" + kitchenItem + "</order>",
           kitchenItem);
        in("printPartialOrder", "an element in an item",
           "<receipe number=\"1\" name=\"x\">" + kitchenItem + "</receipe>", kitchenItem);
        in("printPartialOrder", "an element of a namespace",
           "<receipe xmlns=\"urn:x\" number=\"1\" name=\"x\"/>", kitchenItem);
        in("printPartialOrder", "a text in an item", "<receipe number=\"1\" name=\"x\">x</receipe>",
           kitchenItem);
        in("printPartialOrder", "a text in headers", "<headers a=\"b\">x</headers>",
           "<headers a=\"b\"/>");
        in("printPartialOrder", "an attribute of an element that has none",
           "<geometry lines=\"2\"/>", "<geometry/>");
        in("printPartialOrder", "a price", pricedItem, kitchenItem);
        in("printPartialOrder", "an item without a number", "<receipe name=\"x\"/>", kitchenItem);
        in("printPartialOrder", "a variant without a quantity",
           "<variant number=\"1\" name=\"x\"/>",
           "<variant number=\"1\" quantity=\"1\" name=\"x\"/>");
        in("printPartialOrder", "an unknown attribute of the order", "<orderinfo tables=\"7\"/>",
           "<orderinfo table=\"7\"/>");
        in("printPartialOrder", "a customer without a name", "<customer telephone=\"1\"/>",
           "<customer name=\"x\" telephone=\"1\"/>");
        in("printPartialOrder", "a total", kitchenItem + "<total price=\"1\"/>", kitchenItem);
        in("printFullOrderDelivery", "a price", pricedItem, kitchenItem);
        in("printFullOrderDelivery", "a total", kitchenItem + "<total price=\"1\"/>", kitchenItem);
        in("printFullOrder", "an item without its amount",
           "<receipe number=\"1\" name=\"x\" price=\"1\"/>", pricedItem);
        in("printFullOrder", "a variant without its price",
           "<variant number=\"1\" quantity=\"1\" name=\"x\" totalPrice=\"1\"/>",
           "<variant number=\"1\" quantity=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>");
        in("printFullOrder", "a tax block",
           "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>", "<total price=\"1\"/>");
        in("printFullOrderReceipt", "a variant",
           "<variant number=\"1\" quantity=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>",
           pricedItem);
        in("printFullOrderReceipt", "a kind of item",
           "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>", pricedItem);
        in("printFullOrderReceipt", "a total without a price", "<total/>", "<total price=\"1\"/>");
        in("printFullOrderReceipt", "an element in other letters", "<notpaid price=\"1\"/>",
           "<notPaid price=\"1\"/>");
        in("printFullOrderInvoice", "a total", "<total price=\"1\"/>",
           "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>");
        in("printFullOrderInvoice", "a tax block without a rate",
           "<totals taxable=\"1\" tax=\"1\" total=\"1\"/>",
           "<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>");
        in("printFullOrderFiscal", "a department left out",
           "<receipe number=\"1\" name=\"x\" price=\"1\"/>", saleRow);
        in("printFullOrderFiscal", "a customer", "<customer name=\"x\"/>" + saleRow, saleRow);
        in("printFullOrderFiscal", "a shared element", "<company name=\"x\"/>" + saleRow, saleRow);
        in("printFullOrderFiscal", "an item of a receipt", pricedItem, saleRow);
        in("printAbstractOrder", "an item", kitchenItem, "");
        in("printAbstractOrder", "a shared element", "<logo/>", "");
        in("printAbstractOrderReceipt", "a customer",
           "<customer name=\"x\"/><receipe_type number=\"1\" name=\"x\" price=\"1\"/>",
           "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        in("printAbstractOrderReceipt", "an amount beside the price",
           "<receipe_type number=\"1\" name=\"x\" price=\"1\" totalPrice=\"1\"/>",
           "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        in("printAbstractOrderInvoice", "an item of an invoice", pricedItem,
           "<receipe_type number=\"1\" name=\"x\" price=\"1\"/>");
        in("printAbstractOrderFiscal", "an item", saleRow,
           "<receipe_type department=\"1\" name=\"x\" price=\"1\"/>");
        in("printReport", "cancelled documents without their total",
           "<cancelledsummary number=\"1\" a=\"1\" b=\"2\" c=\"3\"/>",
           "<cancelledsummary number=\"1\" totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>");
        in("printReport", "cancelled documents without their count",
           "<cancelledsummary totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>",
           "<cancelledsummary number=\"1\" totals=\"2\" a=\"1\" b=\"2\" c=\"3\"/>");
        in("printReport", "an element in other letters", "<Date begindate=\"1\" enddate=\"2\"/>",
           "<date begindate=\"1\" enddate=\"2\"/>");
        in("printReport", "a period without an end", "<date begindate=\"1\"/>",
           "<date begindate=\"1\" enddate=\"2\"/>");
        in("printSold", "an item of another document", kitchenItem,
           "<receipe quantity=\"1\" description=\"x\" amount=\"1\"/>");
        in("printStatementOfAccount", "a description",
           "<statement date=\"1\" type=\"x\" description=\"x\" amount=\"1\"/>",
           "<statement date=\"1\" type=\"x\" amount=\"1\"/>");
    }

    void rejects()
    {
        QFETCH(QByteArray, wrong);
        QFETCH(QByteArray, right);
        const Validator validator;
        const Run refused = validator.run(wrong);
        QVERIFY2(refused.exited && refused.status == Invalid, refused.standardError.constData());
        const Run accepted = validator.run(right);
        QVERIFY2(accepted.exited && accepted.status == Valid, accepted.standardError.constData());
    }

    /// Each element is accepted in the documents that know it, and in no other.
    void elementsOfDocuments()
    {
        QByteArrayList jobs;
        QList<bool> known;
        QStringList what;
        for (const vocabulary::Method &method : vocabulary::methods()) {
            QSet<QString> tried;
            for (const vocabulary::Element &element : vocabulary::elements()) {
                const bool knows = (element.documents & method.document) != 0;
                const QString name = element.name;
                if (!knows
                    && (tried.contains(name) || vocabulary::findElement(name, method.document)))
                    continue;
                tried.insert(name);
                const auto document =
                    knows ? method.document
                          : vocabulary::Document(element.documents & ~(element.documents - 1));
                jobs.append(documentOf(method.name.data(), elementOf(element, document)));
                known.append(knows);
                what.append(name + " in " + method.name);
            }
        }
        QVERIFY(known.count(true) > 100 && known.count(false) > 100);
        const QList<bool> valid = Validator().areValid(jobs);
        for (qsizetype i = 0; i < jobs.size(); ++i)
            QVERIFY2(valid[i] == known[i], qPrintable(what[i]));
    }

    /// What the schema accepts is in order for the checker too.
    void agreesWithTheChecker()
    {
        const QSet<QString> structure = {"no-method",         "unknown-method",   "second-method",
                                         "before-method",     "unknown-element",  "ignored-element",
                                         "unknown-attribute", "missing-attribute"};
        QByteArrayList jobs;
        for (const QString &path : filesBelow(KORVEL_SOURCE_DIR "/tests/golden/cases", "job.xml"))
            jobs.append(bytesOf(path));
        const QList<bool> valid = Validator().areValid(jobs);
        QVERIFY(valid.count(true) > 20 && valid.count(false) > 20);
        for (qsizetype i = 0; i < jobs.size(); ++i) {
            for (const check::Finding &finding : check::checkJob(jobs[i], nullptr))
                QVERIFY2(!valid[i] || !structure.contains(infoOf(finding.code).name),
                         qPrintable(finding.text + " in " + jobs[i]));
        }
    }
};

QTEST_GUILESS_MAIN(TestSchema)
#include "tst_schema.moc"

// The checker: each kind of finding with what triggers it and what nearly does, and its places.
#include "app/jobguard.h"
#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"
#include "support/bytes.h"
#include "support/settingstext.h"

#include <QBuffer>
#include <QDirIterator>
#include <QTest>
#include <QXmlDefaultHandler>

#include <algorithm>
#include <memory>

namespace check = korvel::check;

namespace {

/// What is checked: a job alone, a job beside settings, or settings alone.
struct Input
{
    QByteArray job;
    QByteArray settings;
};

/// A mark in the text that is checked: the place of a finding. Two marks: of two findings.
constexpr char mark = '^';

/// A finding as a person reads it: "2:5: error: text [code]".
QString shown(const check::Place &place, const check::Finding &finding)
{
    return QString("%1:%2: %3: %4 [%5]")
        .arg(QString::number(place.line), QString::number(place.column),
             QString(check::levelName(infoOf(finding.code).level)), finding.text,
             QString(infoOf(finding.code).name));
}

QStringList shown(const QList<check::Finding> &findings)
{
    QStringList lines;
    for (const check::Finding &finding : findings)
        lines.append(shown(finding.place, finding));
    return lines;
}

/// Takes the marks out of a text in UTF-8 and gives their places: "2:5: ".
QStringList takeMarks(QByteArray &text)
{
    QStringList places;
    for (qsizetype at = text.indexOf(mark); at >= 0; at = text.indexOf(mark)) {
        const QByteArray before = text.first(at);
        const QString line = QString::fromUtf8(before.mid(before.lastIndexOf('\n') + 1));
        places.append(QString("%1:%2: ").arg(before.count('\n') + 1).arg(line.size() + 1));
        text.remove(at, 1);
    }
    return places;
}

std::unique_ptr<check::SettingsFile> settingsOf(const QByteArray &text)
{
    return std::make_unique<check::SettingsFile>(text);
}

QStringList findingsIn(const Input &input)
{
    if (input.job.isNull())
        return shown(checkSettings(*settingsOf(input.settings)));
    if (input.settings.isNull())
        return shown(check::checkJob(input.job, nullptr));
    return shown(check::checkJob(input.job, settingsOf(input.settings).get()));
}

/// The codes of a job's findings, in their order.
QStringList codesIn(const QByteArray &job, const check::SettingsFile *settings = nullptr)
{
    QStringList codes;
    for (const check::Finding &finding : check::checkJob(job, settings))
        codes.append(infoOf(finding.code).name);
    return codes;
}

QByteArray attribute(const char *name, const QByteArray &value)
{
    return QByteArray(" ") + name + "=\"" + value + '"';
}

/// A job of one document, in one line.
QByteArray documentOf(const char *method, const QByteArray &elements)
{
    return "<job><method" + attribute("name", method) + "/>" + elements + "</job>";
}

QByteArray kitchen(const QByteArray &elements) { return documentOf("printPartialOrder", elements); }
QByteArray fullOrder(const QByteArray &elements) { return documentOf("printFullOrder", elements); }
QByteArray receipt(const QByteArray &elements)
{
    return documentOf("printFullOrderReceipt", elements);
}
QByteArray fiscal(const QByteArray &elements)
{
    return documentOf("printFullOrderFiscal", elements);
}
QByteArray report(const QByteArray &elements) { return documentOf("printReport", elements); }

/// A settings file with one setting in the group of a document.
QByteArray setting(const QByteArray &line) { return settingsFile(documentGroup("doc", line)); }

QByteArray namespaces(int count)
{
    QByteArray declarations;
    for (int i = 0; i < count; ++i)
        declarations += attribute(qPrintable("xmlns:n" + QString::number(i)), "urn:x");
    return declarations;
}

QByteArray nested(int depth, const QByteArray &innermost)
{
    return QByteArray("<x>").repeated(depth) + innermost + QByteArray("</x>").repeated(depth);
}

const QByteArray item = "<receipe number=\"1\" name=\"Caff\xC3\xA8\"/>";
const QByteArray saleRow = "<receipe department=\"1\" number=\"1\" name=\"x\" price=\"1.20\"/>";

struct Case
{
    const char *code; // that the case is about: found, or nearly so
    const char *what;
    Input input;
    QStringList findings; // all of them; the place in front where the input has no mark for it
};

QList<Case> casesOfTheJob()
{
    return {
        {"malformed-xml",
         "no end tag",
         {"<job><method name=\"printSold\"/>^", {}},
         {"error: <job> of line 1 is not closed: nothing behind this was checked [malformed-xml]"}},
        {"malformed-xml",
         "an end tag of another element",
         {"<job>\n<method name=\"printSold\"/>\n^</other>", {}},
         {"error: </other> where <job> of line 1 must be closed: nothing behind this was checked "
          "[malformed-xml]"}},
        {"malformed-xml",
         "a second root",
         {"<job><method name=\"printSold\"/></job>\n^<job/>", {}},
         {"error: a second root; one element must hold all others: nothing behind this was checked "
          "[malformed-xml]"}},
        {"malformed-xml",
         "no XML at all",
         {"^hello", {}},
         {"error: a text outside the root: nothing behind this was checked [malformed-xml]"}},
        {"malformed-xml",
         "nothing at all",
         {"^", {}},
         {"error: there is no element: nothing behind this was checked [malformed-xml]"}},
        {"malformed-xml",
         "a value without quotes",
         {kitchen("<receipe number=^3/>"), {}},
         {"error: a value without quotes: nothing behind this was checked [malformed-xml]"}},
        {"malformed-xml",
         "an ampersand that begins no reference",
         {kitchen("<receipe number=\"1\" name=\"Fish ^& chips\"/>"), {}},
         {"error: \"&\" begins no reference; write &amp;: nothing behind this was checked "
          "[malformed-xml]"}},
        {"malformed-xml",
         "an opening mark in a value",
         {kitchen("<receipe number=\"1\" name=\"^<b\"/>"), {}},
         {"error: \"<\" in a value; write &lt;, or end the value with its quote: nothing behind "
          "this was checked [malformed-xml]"}},
        {"malformed-xml",
         "what stands before the error is checked",
         {kitchen("^<recipe/>^</kitchen>"), {}},
         {"error: no document knows <recipe>: nothing is printed; did you mean \"receipe\"? "
          "[unknown-element]",
          "error: </kitchen> where <job> of line 1 must be closed: nothing behind this was checked "
          "[malformed-xml]"}},
        {"malformed-xml",
         "declaration, comments, sections, instructions and a document type",
         {"<?xml version=\"1.0\"?>\n<!DOCTYPE job>\n<!-- <receipe/> -->\n"
          "<job><method name=\"printSold\"/>text<![CDATA[<receipe>]]><?now <receipe/>?></job>\n",
          {}},
         {}},
        {"malformed-xml",
         "references",
         {kitchen("<receipe number=\"1\" name=\"&lt;&amp;&quot;&apos;&gt;&#232;&#xE8;\"/>"), {}},
         {}},
        {"malformed-xml",
         "an entity that the job declares",
         {"<!DOCTYPE job [<!ENTITY e \"Caff\">]>\n"
              + kitchen("<receipe number=\"1\" name=\"&e;\"/>"),
          {}},
         {}},

        {"encoding",
         "bytes that are not UTF-8",
         {kitchen("<receipe number=\"1\" name=\"Caff\xE8\"/>"), {}},
         {"1:70: error: not UTF-8: the bytes here print as a replacement character [encoding]"}},
        {"encoding",
         "an encoding that nobody knows",
         {"<?xml version=\"1.0\" encoding=\"nonsense\"?>" + kitchen(item), {}},
         {"1:1: error: the checker cannot read the encoding \"nonsense\": nothing else was "
          "checked; write UTF-8 [encoding]"}},
        {"encoding",
         "an encoding whose name has a line break",
         {"<?xml version=\"1.0\" encoding=\"a\nb\"?>" + kitchen(item), {}},
         {"1:1: error: the checker cannot read the encoding \"a b\": nothing else was checked; "
          "write UTF-8 [encoding]"}},
        {"encoding",
         "a replacement character that the job itself has is none of its wrong bytes",
         {kitchen("<receipe number=\"1\" name=\"\xEF\xBF\xBD\xE8\"/>"), {}},
         {"1:67: error: not UTF-8: the bytes here print as a replacement character [encoding]"}},
        {"encoding", "UTF-8 with a byte order mark", {"\xEF\xBB\xBF" + kitchen(item), {}}, {}},
        {"encoding",
         "UTF-8 by name",
         {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kitchen(item), {}},
         {}},
        {"encoding",
         "Latin-1 by name",
         {"<?xml version='1.0' encoding='ISO-8859-1'?>"
              + kitchen("<receipe number=\"1\" name=\"Caff\xE8\"/>"),
          {}},
         {}},
        {"encoding",
         "a replacement character that is meant",
         {kitchen("<receipe number=\"1\" name=\"\xEF\xBF\xBD\"/>"), {}},
         {}},

        {"limit",
         "1,025 elements in each other",
         {kitchen(nested(1023, "^" + item)), {}},
         {"error: more than 1024 elements nested in each other: the paper ends here [limit]"}},
        {"limit", "1,024 elements in each other", {kitchen(nested(1022, item)), {}}, {}},
        {"limit",
         "65 namespaces",
         {kitchen("^<x" + namespaces(65) + ">" + item + "</x>"), {}},
         {"error: more than 64 namespaces declared: the paper ends here [limit]"}},
        {"limit",
         "the 65th namespace in an element further in",
         {kitchen("<x" + namespaces(64)
                  + ">^<receipe xmlns=\"urn:x\" number=\"1\" name=\"x\"/>"
                    "</x>"),
          {}},
         {"error: more than 64 namespaces declared: the paper ends here [limit]"}},
        {"limit", "64 namespaces", {kitchen("<x" + namespaces(64) + ">" + item + "</x>"), {}}, {}},
        {"limit",
         "64 namespaces, and again beside them",
         {kitchen(("<x" + namespaces(64) + ">" + item + "</x>").repeated(2)), {}},
         {}},

        {"no-method",
         "an empty job",
         {"^<job/>", {}},
         {"error: no method: nothing is printed; begin with <method name=\"...\"/> [no-method]"}},
        {"no-method",
         "a method in a namespace of its own is none",
         {"^<job xmlns:x=\"urn:x\"><x:method name=\"printSold\"/></job>", {}},
         {"error: no method: nothing is printed; begin with <method name=\"...\"/> [no-method]"}},
        {"no-method", "the method is the root", {"<method name=\"printSold\"/>", {}}, {}},
        {"no-method",
         "the method holds what it prints",
         {"<method name=\"printPartialOrder\">" + item + "</method>", {}},
         {}},
        {"no-method",
         "what cannot be read may have had one",
         {"<job>^</other>", {}},
         {"error: </other> where <job> of line 1 must be closed: nothing behind this was checked "
          "[malformed-xml]"}},

        {"unknown-method",
         "other letters",
         {"<job><method ^name=\"printpartialorder\"/></job>", {}},
         {"error: no document is called \"printpartialorder\": the job ends here; did you mean "
          "\"printPartialOrder\"? [unknown-method]"}},
        {"unknown-method",
         "a letter too many",
         {"<job><method ^name=\"printSoldd\"/></job>", {}},
         {"error: no document is called \"printSoldd\": the job ends here; did you mean "
          "\"printSold\"? [unknown-method]"}},
        {"unknown-method",
         "nothing like it",
         {"<job><method ^name=\"receipt\"/></job>", {}},
         {"error: no document is called \"receipt\": the job ends here [unknown-method]"}},
        {"unknown-method",
         "an empty name",
         {"<job><method ^name=\"\"/></job>", {}},
         {"error: no document is called \"\": the job ends here [unknown-method]"}},
        {"unknown-method",
         "no name",
         {"<job>^<method document=\"printSold\"/></job>", {}},
         {"error: the method has no name: the job ends here [unknown-method]"}},
        {"unknown-method",
         "behind it nothing counts",
         {"<job><method ^name=\"x\"/><recipe/><method name=\"y\"/></job>", {}},
         {"error: no document is called \"x\": the job ends here [unknown-method]"}},
        {"unknown-method", "a known one", {documentOf("printAbstractOrder", ""), {}}, {}},

        {"second-method",
         "another document",
         {receipt("^<method name=\"printSold\"/>"), {}},
         {"warning: a second method: the section of the receipt is not closed [second-method]"}},
        {"second-method",
         "the same document, and a third",
         {receipt("^<method name=\"printSold\"/>^<method name=\"printSold\"/>"), {}},
         {"warning: a second method: the section of the receipt is not closed [second-method]",
          "warning: a second method: the section of the sold items is not closed "
          "[second-method]"}},
        {"second-method",
         "what follows is checked as the second document",
         {documentOf("printSold", "^<method name=\"printPartialOrder\"/>" + item), {}},
         {"warning: a second method: the section of the sold items is not closed "
          "[second-method]"}},
        {"second-method", "one document", {receipt(""), {}}, {}},

        {"before-method",
         "an item",
         {"<job>^" + item + "<method name=\"printPartialOrder\"/></job>", {}},
         {"error: <receipe> stands before the method and is not printed; move it behind <method> "
          "[before-method]"}},
        {"before-method",
         "an element that nobody knows",
         {"<job>^<version number=\"2\"/><method name=\"printPartialOrder\"/></job>", {}},
         {"error: <version> stands before the method and is not printed; move it behind <method> "
          "[before-method]"}},
        {"before-method",
         "elements that only hold the method",
         {"<shop><till><method name=\"printPartialOrder\"/>" + item + "</till></shop>", {}},
         {}},
        {"before-method",
         "a root may have any name, that of an element too",
         {"<receipt><method name=\"printPartialOrder\"/>" + item + "</receipt>", {}},
         {}},
    };
}

QList<Case> casesOfElements()
{
    return {
        {"unknown-element",
         "a misspelt one",
         {kitchen("^<recipe number=\"1\" name=\"x\"/>"), {}},
         {"error: no document knows <recipe>: nothing is printed; did you mean \"receipe\"? "
          "[unknown-element]"}},
        {"unknown-element",
         "other letters",
         {receipt("^<notpaid price=\"1.00\"/>"), {}},
         {"error: no document knows <notpaid>: nothing is printed; did you mean \"notPaid\"? "
          "[unknown-element]"}},
        {"unknown-element",
         "nothing like it",
         {kitchen("^<discount price=\"1.00\"/>"), {}},
         {"error: no document knows <discount>: nothing is printed [unknown-element]"}},
        {"unknown-element",
         "one that holds others and has attributes",
         {kitchen("^<table number=\"7\">" + item + "</table>"), {}},
         {"error: no document knows <table>: nothing is printed [unknown-element]"}},
        {"unknown-element",
         "one in a namespace of its own",
         {"<job xmlns:k=\"urn:k\"><method name=\"printPartialOrder\"/>"
          "^<k:receipe number=\"1\" name=\"x\"/></job>",
          {}},
         {"error: no document knows <k:receipe>: nothing is printed; did you mean \"receipe\"? "
          "[unknown-element]"}},
        {"unknown-element",
         "a root of any name",
         {"<recipe><method name=\"printPartialOrder\"/>" + item + "</recipe>", {}},
         {}},
        {"unknown-element",
         "one that only holds others",
         {kitchen("<order>" + item + "</order>"), {}},
         {}},
        {"unknown-element",
         "one that only holds others, and is called almost as they are",
         {kitchen("<receipes>" + item + "</receipes>"), {}},
         {}},

        {"ignored-element",
         "the customer of a summary receipt",
         {documentOf("printAbstractOrderReceipt", "^<customer name=\"x\"/>"), {}},
         {"warning: <customer> prints nothing in the document \"summary receipt\", only in "
          "kitchen order, full order, receipt, invoice, delivery note, summary invoice "
          "[ignored-element]"}},
        {"ignored-element",
         "an item of a full receipt in a summary one",
         {documentOf("printAbstractOrderReceipt", "^" + item), {}},
         {"warning: <receipe> prints nothing in the document \"summary receipt\", only in other "
          "documents; did you mean \"receipe_type\"? [ignored-element]"}},
        {"ignored-element",
         "a kind of item in a full receipt",
         {receipt("^<receipe_type number=\"1\" name=\"x\" price=\"1.00\"/>"), {}},
         {"warning: <receipe_type> prints nothing in the document \"receipt\", only in summary "
          "receipt, summary invoice, summary fiscal receipt; did you mean \"receipe\"? "
          "[ignored-element]"}},
        {"ignored-element",
         "the tax block of an invoice in a receipt",
         {receipt("^<totals taxable=\"1\" taxrate=\"1\" tax=\"1\" total=\"1\"/>"), {}},
         {"warning: <totals> prints nothing in the document \"receipt\", only in invoice, "
          "summary invoice; did you mean \"total\"? [ignored-element]"}},
        {"ignored-element",
         "shared elements in a document without text lines",
         {fiscal("^<company name=\"x\"/>"), {}},
         {"warning: <company> prints nothing in the document \"fiscal receipt\", only in other "
          "documents [ignored-element]"}},
        {"ignored-element",
         "a total prints in no fiscal receipt either",
         {documentOf("printSold", "^<total price=\"1.00\"/>"), {}},
         {"warning: <total> prints nothing in the document \"sold items\", only in full order, "
          "receipt, summary receipt [ignored-element]"}},
        {"ignored-element",
         "the total of a fiscal receipt is left to the printer",
         {fiscal(saleRow + "<total price=\"1.20\"/>"), {}},
         {}},
        {"ignored-element",
         "the customer of a receipt",
         {receipt("<customer name=\"x\"/>"), {}},
         {}},

        {"unknown-attribute",
         "a misspelt one",
         {receipt("<total price=\"1.00\" ^prise=\"1.00\"/>"), {}},
         {"warning: nothing reads \"prise\" of <total> in this document [unknown-attribute]"}},
        {"unknown-attribute",
         "a misspelt one in place of the right one",
         {receipt("^<total ^prise=\"1.00\"/>"), {}},
         {"warning: <total> has no \"price\": its place prints empty [missing-attribute]",
          "warning: nothing reads \"prise\" of <total> in this document; did you mean \"price\"? "
          "[unknown-attribute]"}},
        {"unknown-attribute",
         "two in place of two",
         {report("^<date ^beginDate=\"1\" ^endDate=\"2\"/>"), {}},
         {"warning: <date> has no \"begindate\", \"enddate\": their places print empty "
          "[missing-attribute]",
          "warning: nothing reads \"beginDate\" of <date> in this document; did you mean "
          "\"begindate\"? "
          "[unknown-attribute]",
          "warning: nothing reads \"endDate\" of <date> in this document; did you mean "
          "\"enddate\"? "
          "[unknown-attribute]"}},
        {"unknown-attribute",
         "a price in the kitchen",
         {kitchen("<receipe number=\"1\" name=\"x\" ^price=\"1.00\"/>"), {}},
         {"warning: nothing reads \"price\" of <receipe> in this document [unknown-attribute]"}},
        {"unknown-attribute",
         "a prefix is part of the name",
         {kitchen("<receipe xmlns:k=\"urn:k\" number=\"1\" name=\"x\" ^k:name=\"y\"/>"), {}},
         {"warning: nothing reads \"k:name\" of <receipe> in this document [unknown-attribute]"}},
        {"unknown-attribute",
         "of the method",
         {"<job><method name=\"printSold\" ^copies=\"2\"/></job>", {}},
         {"warning: nothing reads \"copies\" of <method> in this document [unknown-attribute]"}},
        {"unknown-attribute",
         "headers and company print every attribute",
         {kitchen("<headers hello=\"x\"/><company town=\"x\"/>"), {}},
         {}},
        {"unknown-attribute",
         "what other printers have a use for",
         {kitchen("<printers name=\"x\" charsize=\"1\" ipaddress=\"x\" port=\"1\"/>"), {}},
         {}},
        {"unknown-attribute",
         "the quantity of a kind of item, though it is not sent",
         {documentOf("printAbstractOrderFiscal",
                     "<receipe_type department=\"1\" number=\"3\" name=\"x\" price=\"1\"/>"),
          {}},
         {}},
        {"unknown-attribute",
         "a namespace is no attribute",
         {kitchen("<receipe xmlns=\"urn:x\" number=\"1\" name=\"x\"/>"), {}},
         {}},

        {"missing-attribute",
         "one",
         {kitchen("^<receipe name=\"x\"/>"), {}},
         {"warning: <receipe> has no \"number\": its place prints empty [missing-attribute]"}},
        {"missing-attribute",
         "all four",
         {documentOf("printFullOrderInvoice", "^<totals/>"), {}},
         {"warning: <totals> has no \"taxable\", \"taxrate\", \"tax\", \"total\": their places "
          "print empty [missing-attribute]"}},
        {"missing-attribute",
         "one that the settings switch on",
         {kitchen("^<orderinfo date=\"1/5\"/>"), setting("printDate = true; printTime = true;")},
         {"warning: <orderinfo> has no \"time\": its place prints empty [missing-attribute]"}},
        {"missing-attribute",
         "one that the settings switch off",
         {kitchen("<orderinfo date=\"1/5\"/>"), setting("printDate = true;")},
         {}},
        {"missing-attribute",
         "without settings nobody knows what is switched on",
         {kitchen("<orderinfo/><customer name=\"x\"/>"), {}},
         {}},
        {"missing-attribute",
         "what a printer is called is printed with the headers, if at all",
         {kitchen("<printers port=\"1\"/>"), {}},
         {}},
        {"missing-attribute",
         "an empty one is there",
         {kitchen("<receipe number=\"\" name=\"\"/>"), {}},
         {}},
        {"missing-attribute",
         "an item that is left out on purpose",
         {fullOrder("<receipe name=\"=note\"/>"), {}},
         {}},
        {"missing-attribute",
         "a receipt leaves no item out",
         {receipt("^<receipe name=\"=note\"/>"), {}},
         {"warning: <receipe> has no \"number\", \"price\", \"totalPrice\": their places print "
          "empty [missing-attribute]"}},

        {"cancelled-list",
         "one document less than the count",
         {report("<cancelledsummary ^number=\"2\" totals=\"9.00\" a=\"116\" b=\"9.00\" c=\"10\"/>"),
          {}},
         {"error: \"number\" says 2 cancelled documents, and 1 are listed [cancelled-list]"}},
        {"cancelled-list",
         "a document without its tax rate",
         {report("^<cancelledsummary number=\"1\" totals=\"9.00\" a=\"116\" b=\"9.00\"/>"), {}},
         {"error: each cancelled document takes three attributes, and there are 2 "
          "[cancelled-list]"}},
        {"cancelled-list",
         "the count behind the documents",
         {report("^<cancelledsummary a=\"116\" b=\"9.00\" c=\"10\" number=\"1\" "
                 "totals=\"9.00\"/>"),
          {}},
         {"error: \"number\" and \"totals\" are not the first two attributes: the list of "
          "documents begins at the wrong place [cancelled-list]"}},
        {"cancelled-list",
         "without the total",
         {report("^^<cancelledsummary number=\"1\" a=\"116\" b=\"9.00\" c=\"10\"/>"), {}},
         {"warning: <cancelledsummary> has no \"totals\": its place prints empty "
          "[missing-attribute]",
          "error: \"number\" and \"totals\" are not the first two attributes: the list of "
          "documents begins at the wrong place [cancelled-list]"}},
        {"cancelled-list",
         "as many as the count says",
         {report("<cancelledsummary number=\"2\" totals=\"9.00\" a=\"116\" b=\"9.00\" c=\"10\" "
                 "d=\"117\" e=\"0.00\" f=\"10\"/>"),
          {}},
         {}},
        {"cancelled-list",
         "the total first",
         {report("<cancelledsummary totals=\"9.00\" number=\"1\" a=\"116\" b=\"9.00\" "
                 "c=\"10\"/>"),
          {}},
         {}},
        {"cancelled-list",
         "none",
         {report("<cancelledsummary number=\"0\" totals=\"0.00\"/>"), {}},
         {}},
        {"cancelled-list",
         "a count that is no number is printed, and not counted by",
         {report("<cancelledsummary number=\"one\" totals=\"9.00\" a=\"1\" b=\"9\" c=\"10\"/>"),
          {}},
         {}},
        {"cancelled-list",
         "a namespace is no attribute",
         {report("<cancelledsummary xmlns=\"urn:x\" number=\"0\" totals=\"0.00\"/>"), {}},
         {}},
    };
}

QList<Case> casesOfAmounts()
{
    return {
        {"amount",
         "a word",
         {receipt("<total ^price=\"free\"/>"), {}},
         {"warning: \"price\" is \"free\", no number; it prints as it is [amount]"}},
        {"amount", "an empty one is meant", {receipt("<total price=\"\"/>"), {}}, {}},
        {"amount",
         "a tax rate is no amount",
         {documentOf("printFullOrderInvoice",
                     "<totals taxable=\"1.00\" taxrate=\"none\" tax=\"0.00\" total=\"1.00\"/>"),
          {}},
         {}},

        {"hundredths",
         "three decimals",
         {receipt("<total ^price=\"1.005\"/>"), {}},
         {"warning: \"price\" is \"1.005\", with parts of a hundredth; it prints as it is "
          "[hundredths]"}},
        {"hundredths", "a third decimal of 0", {receipt("<total price=\"1.050\"/>"), {}}, {}},

        {"decimal-comma",
         "a comma",
         {receipt("<total ^price=\"1,20\"/>"), {}},
         {"warning: \"price\" is \"1,20\" and prints with its comma [decimal-comma]"}},
        {"decimal-comma", "a point", {receipt("<total price=\"1.20\"/>"), {}}, {}},
        {"decimal-comma",
         "a comma between thousands",
         {receipt("<total price=\"1,234.50\"/>"), {}},
         {}},
        {"decimal-comma",
         "a fiscal receipt reads either",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" price=\"1,20\"/>"), {}},
         {}},

        {"variant-quantity",
         "a comma",
         {kitchen("<variant number=\"1\" ^quantity=\"1,0\" name=\"x\"/>"), {}},
         {"warning: the quantity \"1,0\" is no number and prints as \"-\", something left out "
          "[variant-quantity]"}},
        {"variant-quantity",
         "an empty one",
         {fullOrder("<variant number=\"1\" ^quantity=\"\" name=\"x\" price=\"1\" "
                    "totalPrice=\"1\"/>"),
          {}},
         {"warning: the quantity \"\" is no number and prints as \"-\", something left out "
          "[variant-quantity]"}},
        {"variant-quantity",
         "numbers",
         {kitchen("<variant number=\"1\" quantity=\"1\" name=\"x\"/>"
                  "<variant number=\"1\" quantity=\"-1\" name=\"x\"/>"
                  "<variant number=\"1\" quantity=\"0\" name=\"x\"/>"
                  "<variant number=\"1\" quantity=\"1.0\" name=\"x\"/>"
                  "<variant number=\"1\" quantity=\"-2.5\" name=\"x\"/>"),
          {}},
         {}},
        {"variant-quantity",
         "the number of a variant is a text",
         {kitchen("<variant number=\"1,0\" quantity=\"1\" name=\"x\"/>"), {}},
         {}},

        {"fiscal-incomplete",
         "nothing but an element",
         {fiscal("^<receipe/>"), {}},
         {"error: the sale row has no \"department\", \"number\", \"name\", \"price\": 0 is "
          "registered [fiscal-incomplete]"}},
        {"fiscal-incomplete",
         "an empty price",
         {fiscal("^<receipe department=\"1\" number=\"1\" name=\"x\" price=\"\"/>"), {}},
         {"error: the sale row has no \"price\": 0 is registered [fiscal-incomplete]"}},
        {"fiscal-incomplete",
         "a kind of item",
         {documentOf("printAbstractOrderFiscal", "^<receipe_type name=\"x\" price=\"1\"/>"), {}},
         {"error: the sale row has no \"department\": the printer may refuse it "
          "[fiscal-incomplete]"}},
        {"fiscal-incomplete",
         "a negative zero is a sale row",
         {fiscal("^<receipe number=\"1\" name=\"x\" price=\"-0.00\"/>"), {}},
         {"error: the sale row has no \"department\": the printer may refuse it "
          "[fiscal-incomplete]"}},
        {"fiscal-incomplete",
         "a deduction is its price",
         {fiscal("<receipe price=\"-0,50\"/>"), {}},
         {}},
        {"fiscal-incomplete",
         "a kind of item has no quantity",
         {documentOf("printAbstractOrderFiscal",
                     "<receipe_type department=\"1\" name=\"x\" price=\"1\"/>"),
          {}},
         {}},

        {"fiscal-amount",
         "a word",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" ^price=\"free\"/>"), {}},
         {"error: \"price\" of a sale row is \"free\", no number: 0 is registered "
          "[fiscal-amount]"}},
        {"fiscal-amount",
         "a mark between thousands",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" ^price=\"1.234,50\"/>"), {}},
         {"error: \"price\" of a sale row is \"1.234,50\", no number: 0 is registered "
          "[fiscal-amount]"}},
        {"fiscal-amount",
         "14 digits before the mark",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" "
                 "^price=\"99999999999999.99\"/>"),
          {}},
         {"error: \"price\" of a sale row is \"99999999999999.99\", more than the printer takes "
          "[fiscal-amount]"}},
        {"fiscal-amount",
         "an exponent",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" ^price=\"1e3\"/>"), {}},
         {"error: \"price\" of a sale row is \"1e3\", no plain number [fiscal-amount]"}},
        {"fiscal-amount",
         "13 digits before the mark",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" price=\"9999999999999.99\"/>"),
          {}},
         {}},
        {"fiscal-amount",
         "zeros in front are no digits",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" "
                 "price=\"0000000000000012.50\"/>"),
          {}},
         {}},

        {"fiscal-hundredths",
         "three decimals",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" ^price=\"1.005\"/>"), {}},
         {"error: \"price\" of a sale row is \"1.005\", with parts of a hundredth, which are sent "
          "[fiscal-hundredths]"}},
        {"fiscal-hundredths",
         "of a deduction",
         {fiscal("<receipe ^price=\"-1,005\"/>"), {}},
         {"error: \"price\" of a sale row is \"-1,005\", with parts of a hundredth, which are "
          "sent [fiscal-hundredths]"}},
        {"fiscal-hundredths",
         "a third decimal of 0",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"x\" price=\"1.050\"/>"), {}},
         {}},

        {"fiscal-quantity",
         "a number and its unit",
         {fiscal("<receipe department=\"1\" ^number=\"2 x\" name=\"x\" price=\"1.00\"/>"), {}},
         {"error: \"number\" of a sale row is \"2 x\", no plain number [fiscal-quantity]"}},
        {"fiscal-quantity",
         "a part of a piece",
         {fiscal("<receipe department=\"1\" number=\"0.5\" name=\"x\" price=\"1.00\"/>"), {}},
         {}},
        {"fiscal-quantity",
         "a deduction sends none",
         {fiscal("<receipe number=\"2 x\" price=\"-1.00\"/>"), {}},
         {}},
    };
}

QList<Case> casesOfTexts()
{
    return {
        {"ends-command",
         "a parenthesis in the name",
         {fiscal("<receipe department=\"1\" number=\"1\" ^name=\"a (b)\" price=\"1\"/>"), {}},
         {"error: \"name\" of a sale row is \"a (b)\": a \")\" in it breaks the printer's command "
          "[ends-command]"}},
        {"ends-command",
         "a slash in the department",
         {fiscal("<receipe ^department=\"1/2\" number=\"1\" name=\"x\" price=\"1\"/>"), {}},
         {"error: \"department\" of a sale row is \"1/2\": a \"/\" in it breaks the printer's "
          "command [ends-command]"}},
        {"ends-command",
         "a slash in the quantity",
         {fiscal("<receipe department=\"1\" ^^number=\"1/2\" name=\"x\" price=\"1\"/>"), {}},
         {"error: \"number\" of a sale row is \"1/2\": a \"/\" in it breaks the printer's command "
          "[ends-command]",
          "error: \"number\" of a sale row is \"1/2\", no plain number [fiscal-quantity]"}},
        {"ends-command",
         "a line break in the name",
         {fiscal("<receipe department=\"1\" number=\"1\" ^name=\"a&#10;b\" price=\"1\"/>"), {}},
         {"error: \"name\" of a sale row is \"a b\": a line break in it breaks the printer's "
          "command [ends-command]"}},
        {"ends-command",
         "a slash in the name",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"1/2 (\" price=\"1\"/>"), {}},
         {}},
        {"ends-command",
         "a deduction sends no name",
         {fiscal("<receipe name=\"a)\" price=\"-1\"/>"), {}},
         {}},

        {"line-break",
         "a reference",
         {kitchen("<receipe number=\"1\" ^name=\"a&#10;b\"/>"), {}},
         {"error: \"name\" of <receipe> has a line break, which breaks the printed line "
          "[line-break]"}},
        {"line-break",
         "a carriage return",
         {kitchen("<receipe number=\"1\" ^name=\"a&#xD;b\"/>"), {}},
         {"error: \"name\" of <receipe> has a line break, which breaks the printed line "
          "[line-break]"}},
        {"line-break",
         "a line break that stands in the job",
         {kitchen("<receipe number=\"1\" ^name=\"a\nb\"/>\n^<recipe/>"), {}},
         {"error: \"name\" of <receipe> has a line break, which breaks the printed line "
          "[line-break]",
          "error: no document knows <recipe>: nothing is printed; did you mean \"receipe\"? "
          "[unknown-element]"}},
        {"line-break",
         "in a value of any name",
         {kitchen("<company ^address=\"a\nb\"/>"), {}},
         {"error: \"address\" of <company> has a line break, which breaks the printed line "
          "[line-break]"}},
        {"line-break",
         "between attributes",
         {kitchen("<receipe\n    number=\"1\"\n    name=\"a b\"\n/>"), {}},
         {}},
        {"line-break",
         "in what is not printed",
         {kitchen("<printers name=\"x\" ipaddress=\"a\nb\"/>"), {}},
         {}},

        {"parenthesis",
         "one that closes",
         {kitchen("<receipe number=\"1\" ^name=\"Coffee (cold)\"/>"), {}},
         {"warning: \"name\" of <receipe> has a \")\", which some printers take for the end of "
          "the line [parenthesis]"}},
        {"parenthesis",
         "one that opens",
         {kitchen("<receipe number=\"1\" name=\"Coffee (\"/>"), {}},
         {}},

        {"control-character",
         "a reference to a tab",
         {kitchen("<receipe number=\"1\" ^name=\"a&#9;b\"/>"), {}},
         {"warning: \"name\" of <receipe> has a tab or another control character "
          "[control-character]"}},
        {"control-character",
         "a tab that stands in the job",
         {kitchen("<receipe number=\"1\" ^name=\"a\tb\"/>"), {}},
         {"warning: \"name\" of <receipe> has a tab or another control character "
          "[control-character]"}},
        {"control-character",
         "another one",
         {kitchen("<receipe number=\"1\" ^name=\"a&#127;b\"/>"), {}},
         {"warning: \"name\" of <receipe> has a tab or another control character "
          "[control-character]"}},
        {"control-character",
         "in a sale row",
         {fiscal("<receipe department=\"1\" number=\"1\" ^name=\"a\tb\" price=\"1\"/>"), {}},
         {"warning: \"name\" of a sale row is \"a b\", with a tab or another control character "
          "[control-character]"}},
        {"control-character",
         "a tab between attributes, and other blanks",
         {kitchen("<receipe\tnumber=\"1\" name=\"a \xC2\xA0\xE2\x80\x89"
                  "b\"/>"),
          {}},
         {}},

        {"totale",
         "inside a word",
         {kitchen("<receipe number=\"1\" ^name=\"SUBTOTALE\"/>"), {}},
         {"warning: \"name\" of <receipe> has TOTALE, which prints as T0TALE [totale]"}},
        {"totale",
         "in other letters",
         {kitchen("<receipe number=\"1\" name=\"Totale TOTAL E\"/>"), {}},
         {}},
        {"totale",
         "sale rows are sent as they are",
         {fiscal("<receipe department=\"1\" number=\"1\" name=\"TOTALE\" price=\"1\"/>"), {}},
         {}},

        {"address",
         "two commas in a row",
         {kitchen("<customer name=\"x\" ^billingaddress=\"Via Roma 1,,10122 Torino\"/>"), {}},
         {"warning: \"billingaddress\" has an empty part: what follows is not "
          "printed [address]"}},
        {"address",
         "a part of blanks is an empty line",
         {kitchen("<customer name=\"x\" deliveryaddress=\"Via Roma 1, ,10122 Torino\"/>"), {}},
         {}},
        {"address",
         "nothing follows",
         {kitchen("<customer name=\"x\" deliveryaddress=\"Via Roma 1,10122 Torino,,\"/>"), {}},
         {}},
        {"address",
         "an empty one",
         {kitchen("<customer name=\"x\" billingaddress=\"\"/>"), {}},
         {}},
    };
}

QList<Case> casesOfSettings()
{
    return {
        {"switched-off",
         "an element",
         {kitchen("^<company name=\"x\"/>"), setting("printCompany = false;")},
         {"warning: <company> is not printed: printCompany is off in doc [switched-off]"}},
        {"switched-off",
         "one that is almost on",
         {kitchen("^<company name=\"x\"/>"), setting("printCompany = True;")},
         {"warning: <company> is not printed: printCompany is off in doc [switched-off]"}},
        {"switched-off",
         "attributes",
         {receipt("<orderinfo ^waiter=\"x\" table=\"7\"/>"),
          settingsFile(documentGroup("receiptdoc", "printTable = true;"))},
         {"warning: \"waiter\" is not printed: printWaiter is off in receiptdoc [switched-off]"}},
        {"switched-off",
         "a customer, whatever its lines are",
         {kitchen("^<customer name=\"x\" telephone=\"1\"/>"), setting("printTelephone = true;")},
         {"warning: <customer> is not printed: printCustomer is off in doc [switched-off]"}},
        {"switched-off",
         "in the group of the document",
         {kitchen("^<geometry/>"),
          settingsFile(documentGroup("receiptdoc", "printGeometry = true;"))},
         {"warning: <geometry> is not printed: printGeometry is off in doc [switched-off]"}},
        {"switched-off",
         "what is on",
         {kitchen("<company name=\"x\"/><orderinfo waiter=\"x\"/>"),
          setting("printCompany = \"true\"; printWaiter = true;")},
         {}},
        {"switched-off",
         "without settings nobody knows",
         {kitchen("<company name=\"x\"/><orderinfo waiter=\"x\"/>"), {}},
         {}},
        {"switched-off",
         "headers without lines print the printer's name in any case",
         {kitchen("<printers name=\"CASSA\"/><headers/>"), setting("paperWidth = 32;")},
         {}},

        {"wide-figure",
         "a character more than the column",
         {kitchen("<receipe ^number=\"1000\" name=\"x\"/>"), setting("quantityFieldWidth = 3;")},
         {"warning: \"number\" is \"1000\" in a column of 3 (quantityFieldWidth in doc): the line "
          "grows by 1 [wide-figure]"}},
        {"wide-figure",
         "no column",
         {kitchen("<receipe ^number=\"10\" name=\"x\"/>"), setting("printDate = true;")},
         {"warning: \"number\" is \"10\" in a column of 0 (quantityFieldWidth in doc): the line "
          "grows by 2 [wide-figure]"}},
        {"wide-figure",
         "a negative column",
         {kitchen("<receipe ^number=\"10\" name=\"x\"/>"), setting("quantityFieldWidth = -5;")},
         {"warning: \"number\" is \"10\" in a column of 0 (quantityFieldWidth in doc): the line "
          "grows by 2 [wide-figure]"}},
        {"wide-figure",
         "as wide as the column",
         {kitchen("<receipe number=\"100\" name=\"x\"/>"), setting("quantityFieldWidth = 3;")},
         {}},
        {"wide-figure",
         "the description is cut",
         {kitchen("<receipe number=\"1\" name=\"as long as a name can be and longer yet\"/>"),
          setting("quantityFieldWidth = 3;")},
         {}},
        {"wide-figure",
         "without settings nobody knows",
         {kitchen("<receipe number=\"1000\" name=\"x\"/>"), {}},
         {}},

        {"columns",
         "no room for a name",
         {{}, setting("^quantityFieldWidth = 29;")},
         {"warning: the columns of the kitchen order leave no room for the description: the others "
          "and the blanks take 32 of 32 characters [columns]"}},
        {"columns",
         "a line wider than the printer's",
         {{}, setting("quantityFieldWidth = 3; ^paperWidth = 33;")},
         {"warning: paperWidth is 33: lines are wider than the printer's 32 characters [columns]"}},
        {"columns",
         "room for a character, and a line as wide as the printer's",
         {{}, setting("quantityFieldWidth = 28; paperWidth = 32;")},
         {}},
        {"columns",
         "a document without settings",
         {{}, "korvel:\n{\n    language:\n    {\n        file = \"/\";\n    };\n};\n"},
         {}},

        {"unread-key",
         "other letters",
         {{}, setting("^paperwidth = 32;")},
         {"warning: nothing reads korvel.doc.paperwidth: there is no such setting; did you mean "
          "\"paperWidth\"? [unread-key]"}},
        {"unread-key",
         "a letter too few",
         {{}, setting("quantityFieldWidth = 3; ^printWaitr = true;")},
         {"warning: nothing reads korvel.doc.printWaitr: there is no such setting; did you mean "
          "\"printWaiter\"? [unread-key]"}},
        {"unread-key",
         "nothing like it",
         {{}, setting("^colour = red;")},
         {"warning: nothing reads korvel.doc.colour: there is no such setting [unread-key]"}},
        {"unread-key",
         "a misspelt group",
         {{}, settingsFile(documentGroup("receiptsdoc", "^paperWidth = 32;"))},
         {"warning: nothing reads korvel.receiptsdoc.paperWidth: no document reads the group "
          "receiptsdoc; did you mean \"receiptdoc\"? [unread-key]"}},
        {"unread-key",
         "a document's setting in the language",
         {{}, settingsFile(documentGroup("language", "^paperWidth = 32;"))},
         {"warning: nothing reads korvel.language.paperWidth: there is no such setting "
          "[unread-key]"}},
        {"unread-key",
         "a misspelt setting of the language",
         {{}, settingsFile(documentGroup("language", "^baseDir = /usr;"))},
         {"warning: nothing reads korvel.language.baseDir: there is no such setting; did you mean "
          "\"basedir\"? [unread-key]"}},
        {"unread-key",
         "in no document",
         {{}, "korvel:\n{\n    ^paperWidth = 32;\n};\n"},
         {"warning: nothing reads korvel.paperWidth: settings stand in a document's group or in "
          "language, in korvel [unread-key]"}},
        {"unread-key",
         "a group too deep",
         {{}, settingsFile(documentGroup("doc", "columns: { ^paperWidth = 32; };"))},
         {"warning: nothing reads korvel.doc.columns.paperWidth: settings stand in a document's "
          "group or in language, in korvel; does a } lack its ;? [unread-key]"}},
        {"unread-key",
         "outside all groups",
         {{}, "^paperWidth = 32;\n" + setting("paperWidth = 32;")},
         {"warning: nothing reads paperWidth: it stands outside the group korvel [unread-key]"}},
        {"unread-key",
         "a second group beside the first",
         {{}, setting("paperWidth = 32;") + "more:\n{\n    ^printDate = true;\n};\n"},
         {"warning: nothing reads more.printDate: only the first group of the file is read, and "
          "it must be korvel [unread-key]"}},
        {"unread-key",
         "behind another group",
         {{}, "first: { ^x = 1; };\n" + setting("^printDate = true;")},
         {"warning: nothing reads first.x: only the first group of the file is read, and it must "
          "be korvel [unread-key]",
          "warning: nothing reads korvel.doc.printDate: only the first group of the file is read, "
          "and it must be korvel [unread-key]"}},
        {"unread-key",
         "a comment is part of what follows",
         {{}, setting("quantityFieldWidth = 3; # the paper\n        paperWidth = 32;")},
         {"5:33: warning: nothing reads korvel.doc.# the paper paperWidth: there is no such "
          "setting [unread-key]"}},
        {"unread-key",
         "known ones that nothing depends on",
         {{}, setting("style = a; paperRows = 3; printLogo = true; openCashDrawer = true;")},
         {}},
        {"unread-key",
         "the language",
         {{}, settingsFile(documentGroup("language", "basedir = /usr; file = /;"))},
         {}},

        {"not-true",
         "True",
         {{}, setting("^printDate = True;")},
         {"warning: printDate is \"True\" and counts as off; only true switches it on "
          "[not-true]"}},
        {"not-true",
         "yes, 1, and blanks inside the quotes",
         {{}, setting("^printDate = yes; ^printTime = 1; ^printTable = \" true\";")},
         {"warning: printDate is \"yes\" and counts as off; only true switches it on [not-true]",
          "warning: printTime is \"1\" and counts as off; only true switches it on [not-true]",
          "warning: printTable is \" true\" and counts as off; only true switches it on "
          "[not-true]"}},
        {"not-true",
         "true, false, and nothing",
         {{}, setting("printDate = true; printTime = \"false\"; printTable = \"\";")},
         {}},

        {"not-a-number",
         "a word",
         {{}, setting("^topMargin = three;")},
         {"warning: topMargin is \"three\", no whole number, and counts as 0 [not-a-number]"}},
        {"not-a-number",
         "a fraction, a unit, and more than 32 bits",
         {{},
          setting("^topMargin = 3.0; ^quantityFieldWidth = 3 columns; ^paperRows = 2147483648;")},
         {"warning: topMargin is \"3.0\", no whole number, and counts as 0 [not-a-number]",
          "warning: quantityFieldWidth is \"3 columns\", no whole number, and counts as 0 "
          "[not-a-number]",
          "warning: paperRows is \"2147483648\", no whole number, and counts as 0 "
          "[not-a-number]"}},
        {"not-a-number",
         "signs, blanks inside the quotes, and nothing",
         {{},
          setting("topMargin = -3; quantityFieldWidth = +3; paperRows = \" 3 \"; paperWidth = ;")},
         {}},
        {"not-a-number", "the style is a text", {{}, setting("style = three;")}, {}},
    };
}

QList<Case> cases()
{
    return casesOfTheJob() + casesOfElements() + casesOfAmounts() + casesOfTexts()
           + casesOfSettings();
}

/// Notes whether a job was read to its end, and lets every element pass.
class Listener : public QXmlDefaultHandler
{
public:
    bool ended = false;

    bool endDocument() override
    {
        ended = true;
        return true;
    }
};

/// Whether the renderer reads a job to its end, methods aside.
bool isReadToItsEnd(QByteArray bytes)
{
    QBuffer job(&bytes);
    Listener listener;
    korvel::app::JobGuard guard(listener);
    guard.parse(job);
    return listener.ended;
}

/// Whether the checker takes a job for one that the renderer reads to its end.
bool isReadable(const QByteArray &job)
{
    const QStringList codes = codesIn(job);
    return !codes.contains("malformed-xml") && !codes.contains("limit")
           && !codes.contains("encoding");
}

QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(KORVEL_SOURCE_DIR "/" + folder, {pattern}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

QByteArray utf16(const QByteArray &text)
{
    const QString wide = QString::fromUtf8(text);
    QByteArray bytes("\xFF\xFE");
    for (const QChar c : wide) {
        bytes += char(c.unicode() & 0xFFU);
        bytes += char(c.unicode() >> 8U);
    }
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(Input)

class TestCheck : public QObject
{
    Q_OBJECT

private slots:
    void finding_data()
    {
        QTest::addColumn<Input>("input");
        QTest::addColumn<QStringList>("findings");

        for (const Case &row : cases())
            QTest::addRow("%s: %s", row.code, row.what) << row.input << row.findings;
    }

    void finding()
    {
        QFETCH(Input, input);
        QFETCH(QStringList, findings);
        const QStringList places = takeMarks(input.job) + takeMarks(input.settings);
        QVERIFY(places.size() <= findings.size());
        for (qsizetype i = 0; i < places.size(); ++i)
            findings[i].prepend(places[i]);
        QCOMPARE(findingsIn(input), findings);
    }

    /// Each code is found once at least, and once at least it is nearly found.
    void everyCodeHasAPair()
    {
        QStringList codes;
        for (const check::CodeInfo &row : check::codes()) {
            const QString code = row.name;
            int found = 0;
            int nearly = 0;
            for (const Case &example : cases()) {
                if (example.code != code)
                    continue;
                const bool has = std::any_of(
                    example.findings.begin(), example.findings.end(),
                    [&](const QString &line) { return line.endsWith(" [" + code + ']'); });
                ++(has ? found : nearly);
            }
            QVERIFY2(found > 0, qPrintable("never found: " + code));
            QVERIFY2(nearly > 0, qPrintable("never nearly found: " + code));
            codes.append(code);
        }
        for (const Case &example : cases())
            QVERIFY2(codes.contains(example.code), example.code);
        QCOMPARE(QSet<QString>(codes.begin(), codes.end()).size(), codes.size());
    }

    void everyCodeIsExplained()
    {
        for (const check::CodeInfo &row : check::codes()) {
            const check::CodeInfo *found = check::findCode(row.name);
            QVERIFY2(found && found->code == row.code, row.name.data());
            QCOMPARE(infoOf(row.code).name, row.name);
            for (const auto &text : {QString(row.meaning), QString(row.advice)}) {
                QVERIFY2(text.endsWith('.') && text.front().isUpper(), qPrintable(text));
                QVERIFY2(!text.contains('\n') && !text.contains('|'), qPrintable(text));
            }
        }
        QCOMPARE(check::findCode(u"no-such-code"), nullptr);
        QCOMPARE(check::findCode(u""), nullptr);
    }

    void place_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QStringList>("places");

        const QByteArray root = "<job>\n<method name=\"printPartialOrder\"/>\n";
        const QByteArray wrong = "<receipe number=\"1\" name=\"a)\"/>";
        QTest::newRow("lines count line feeds, columns from 1")
            << root + "  " + wrong + "\n</job>" << QStringList{"3:23"};
        QTest::newRow("a carriage return before a line feed is no line of its own")
            << QByteArray(root + wrong + "\n \n" + wrong + "\n</job>").replace("\n", "\r\n")
            << QStringList{"3:21", "5:21"};
        QTest::newRow("a tag over several lines")
            << root + "<receipe\n  number = \"1\"\n\tname\n = \"a)\"\n/>\n</job>"
            << QStringList{"5:2"};
        QTest::newRow("a tag over several lines that end in carriage returns")
            << QByteArray(root + "<receipe\n  number=\"1\"\n  name=\"a)\"\n/>\n</job>")
                   .replace("\n", "\r\n")
            << QStringList{"5:3"};
        QTest::newRow("values in single quotes, with other marks in them")
            << root + "<receipe number='\">' name='a=\"b\">)'/></job>" << QStringList{"3:22"};
        QTest::newRow("two tags in a line")
            << root + wrong + wrong + "</job>" << QStringList{"3:21", "3:52"};
        QTest::newRow("references before it count as they are spelt")
            << root + "<receipe number=\"&amp;&#232;\" name=\"a)\"/></job>" << QStringList{"3:31"};
        QTest::newRow("an accent is one column, an emoji two")
            << root + "<!-- \xC3\xA8\xF0\x9F\x8D\x95 -->" + wrong + "</job>" << QStringList{"3:33"};
        QTest::newRow("a byte order mark is no column") << QByteArray(
            "\xEF\xBB\xBF<job><method name=\"printPartialOrder\"/>" + wrong + "</job>")
                                                        << QStringList{"1:60"};
        QTest::newRow("UTF-16") << utf16(root + wrong + "</job>") << QStringList{"3:21"};
        QTest::newRow("Latin-1")
            << "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n<!-- \xE8\xE8 -->\n" + root
                   + "<!-- \xE8 -->" + wrong + "</job>"
            << QStringList{"5:31"};
        QTest::newRow("a start tag and an end tag")
            << root + "<receipe number=\"1\" name=\"a)\"></receipe></job>" << QStringList{"3:21"};
        QTest::newRow("beside what the document type would add")
            << "<!DOCTYPE job [<!ATTLIST receipe town CDATA \"1\">]>\n" + root
                   + " <receipe number=\"1\" name=\"a)\"/></job>"
            << QStringList{"4:22"};
        QTest::newRow("far down") << root + QByteArray(5000, '\n') + QByteArray(3000, ' ') + wrong
                                         + "</job>"
                                  << QStringList{"5003:3021"};
        QTest::newRow("far to the right, behind accents")
            << root + "<!--" + QByteArray("\xC3\xA8").repeated(9000) + "-->" + wrong + "</job>"
            << QStringList{"3:9028"};
    }

    void place()
    {
        QFETCH(QByteArray, job);
        QFETCH(QStringList, places);
        QStringList found;
        for (const check::Finding &finding : check::checkJob(job, nullptr)) {
            QCOMPARE(infoOf(finding.code).name, QLatin1String("parenthesis"));
            found.append(QString("%1:%2").arg(finding.place.line).arg(finding.place.column));
        }
        QCOMPARE(found, places);
    }

    /// What the document type would add to an element, the renderer does not see: it is missing.
    void attributesOfTheDocumentType()
    {
        class Counter : public QXmlDefaultHandler
        {
        public:
            int attributes = 0;

            bool startElement(const QString &, const QString &, const QString &name,
                              const QXmlAttributes &all) override
            {
                attributes += name == "receipe" ? all.count() : 0;
                return true;
            }
        };
        QByteArray job = "<!DOCTYPE job [<!ATTLIST receipe name CDATA \"a)\">]>"
                         + kitchen("<receipe number=\"1\"/>");
        QCOMPARE(shown(check::checkJob(job, nullptr)),
                 QStringList{"1:91: warning: <receipe> has no \"name\": its place prints empty "
                             "[missing-attribute]"});
        QBuffer device(&job);
        Counter counter;
        korvel::app::JobGuard(counter).parse(device);
        QCOMPARE(counter.attributes, 1);
    }

    /// A tag out of an entity stands where the entity is used: in its line, at least.
    void placeOfAnEntity()
    {
        const QByteArray job = "<!DOCTYPE job [<!ENTITY e \"<receipe number='1' name='a)'/>\">]>\n"
                               "<job><method name=\"printPartialOrder\"/>\n\n&e;\n</job>";
        const auto findings = check::checkJob(job, nullptr);
        QCOMPARE(codesIn(job), QStringList{"parenthesis"});
        QCOMPARE(findings.first().place.line, 4);
    }

    void amounts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << codes;
        };

        row("12.50");
        row("12.5");
        row("12");
        row("12.");
        row("0.00");
        row("");
        row("-12.50");
        row("- 12.50");
        row("+12.50");
        row("12.50-");
        row(" 12.50 ");
        row("12.50 EUR");
        row("EUR 12.50");
        row("EUR12.50");
        row("$12.50");
        row("-$12.50");
        row("$-12.50");
        row(QString::fromUtf8("12.50 €"));
        row(QString::fromUtf8("€ 12.50"));
        row(QString::fromUtf8("£12.50"));
        row("1,234.50");
        row("1'234.50");
        row("1 234.50");
        row("1.234.567");
        row("12345.67");
        row("1,234,567.00");
        row(".50");
        row("12.500");

        row("12,50", {"decimal-comma"});
        row("12,5", {"decimal-comma"});
        row("-12,50", {"decimal-comma"});
        row(QString::fromUtf8("12,50 €"), {"decimal-comma"});
        row("1.234,50", {"decimal-comma"});
        row("1 234,50", {"decimal-comma"});
        row(QString::fromUtf8("1\u00a0234,50"), {"decimal-comma"});
        row("12,-", {"decimal-comma"});

        row("12.505", {"hundredths"});
        row("0.001", {"hundredths"});
        row("12,505", {"hundredths", "decimal-comma"});
        row("12.5001", {"hundredths"});

        row("free", {"amount"});
        row(" ", {"amount"});
        row("-", {"amount"});
        row(".", {"amount"});
        row("12.50.", {"amount"});
        row("12..50", {"amount"});
        row("1,23,456.00", {"amount"});
        row("12.50 each", {"amount"});
        row("12.50 eur", {"amount"});
        row("2 x 12.50", {"amount"});
        row("12:50", {"amount"});
        row("10%", {"amount"});
        row("1e3", {"amount"});
        row("nan", {"amount"});
        row("0x10", {"amount"});
        row("(12.50", {"amount"});
        row(QString::fromUtf8("१२"), {"amount"});
    }

    void amounts()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(receipt("<total" + attribute("price", value.toUtf8()) + "/>")), codes);
    }

    /// As the table of amounts in docs/printer-language.md says, and what is near to it.
    void fiscalAmounts_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const QString &value, const QStringList &codes = {}) {
            QTest::newRow(qPrintable('"' + value + '"')) << value << codes;
        };

        row("12,50");
        row("12.50");
        row("3.5");
        row("0.1");
        row("-2,00");
        row("-0.01");
        row("0");
        row("+3.50");
        row(" 3.50 ");
        row("3.");
        row(".5");
        row("007.00");
        row("1.500000");
        row("9999999999999.99");

        row("1.005", {"fiscal-hundredths"});
        row("-1.005", {"fiscal-hundredths"});
        row("0,001", {"fiscal-hundredths"});

        row("", {"fiscal-incomplete"});
        row(" ", {"fiscal-amount"});
        row("abc", {"fiscal-amount"});
        row("1.234,50", {"fiscal-amount"});
        row("1,234.50", {"fiscal-amount"});
        row("1 234", {"fiscal-amount"});
        row(QString::fromUtf8("3.50 €"), {"fiscal-amount"});
        row("EUR 3.50", {"fiscal-amount"});
        row("2.50-", {"fiscal-amount"});
        row("--2.50", {"fiscal-amount"});
        row("1e3", {"fiscal-amount"});
        row("0x10", {"fiscal-amount"});
        row("nan", {"fiscal-amount"});
        row("inf", {"fiscal-amount"});
        row("99999999999999.99", {"fiscal-amount"});
        row("10000000000000", {"fiscal-amount"});
    }

    void fiscalAmounts()
    {
        QFETCH(QString, value);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(fiscal("<receipe department=\"1\" number=\"1\" name=\"x\""
                                + attribute("price", value.toUtf8()) + "/>")),
                 codes);
        QCOMPARE(codesIn(documentOf("printAbstractOrderFiscal",
                                    "<receipe_type department=\"1\" name=\"x\""
                                        + attribute("price", value.toUtf8()) + "/>")),
                 codes);
    }

    /// What a missing quantity of a variant prints is a mark, not nothing.
    void missingQuantityOfAVariant()
    {
        const auto findings =
            check::checkJob(kitchen("<variant number=\"1\" name=\"x\"/>"), nullptr);
        QCOMPARE(findings.size(), 1);
        QVERIFY2(findings.first().text.contains("\"quantity\"")
                     && findings.first().text.contains("\"-\""),
                 qPrintable(findings.first().text));
    }

    /// A figure of each column: as wide as it, and a character wider.
    void widths_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QByteArray>("figure");
        QTest::addColumn<int>("width");

        // The quantity column is 3 wide, that of the price 7, that of the amount 8.
        const auto row = [](const char *method, const QByteArray &attributes, const char *figure,
                            int width) {
            QTest::addRow("%s: %s of %s", method, figure, attributes.constData())
                << QByteArray(method) << attributes << QByteArray(figure) << width;
        };
        const QByteArray priced = "receipe number name price totalPrice";
        const QByteArray variant = "variant number quantity name price totalPrice";
        const QByteArray kind = "receipe_type number name price";
        const QByteArray taxes = "totals taxable taxrate tax total";
        for (const char *method : {"printPartialOrder", "printFullOrderDelivery"}) {
            row(method, "receipe number name", "number", 3);
            row(method, "otherreceipe number name", "number", 3);
            row(method, "variant number quantity name", "number", 3);
        }
        for (const char *method :
             {"printFullOrder", "printFullOrderReceipt", "printFullOrderInvoice"}) {
            row(method, priced, "number", 3);
            row(method, priced, "price", 7);
            row(method, priced, "totalPrice", 8);
        }
        row("printFullOrder", variant, "number", 3);
        row("printFullOrder", variant, "price", 7);
        row("printFullOrder", variant, "totalPrice", 8);
        for (const char *method : {"printAbstractOrderReceipt", "printAbstractOrderInvoice"}) {
            row(method, kind, "number", 3);
            row(method, kind, "price", 8);
        }
        for (const char *method :
             {"printFullOrder", "printFullOrderReceipt", "printAbstractOrderReceipt"})
            row(method, "total price", "price", 8);
        for (const char *method : {"printFullOrderInvoice", "printAbstractOrderInvoice"}) {
            for (const char *figure : {"taxable", "taxrate", "tax", "total"})
                row(method, taxes, figure, 8);
        }
        row("printSold", "receipe quantity description amount", "quantity", 3);
        row("printSold", "receipe quantity description amount", "amount", 8);
        row("printStatementOfAccount", "statement date type amount", "amount", 7);
    }

    void widths()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, element);
        QFETCH(QByteArray, figure);
        QFETCH(int, width);

        QByteArray groups;
        for (const vocabulary::Method &row : vocabulary::methods())
            groups += documentGroup(QByteArray(row.group.data(), row.group.size()),
                                    "quantityFieldWidth = 3; priceFieldWidth = 7; "
                                    "totalPriceFieldWidth = 8;");
        const auto settings = settingsOf(settingsFile(groups));
        const auto jobWith = [&](const QByteArray &value) {
            QByteArrayList attributes = element.split(' ');
            QByteArray tag = '<' + attributes.takeFirst();
            for (const QByteArray &name : attributes)
                tag += attribute(name.constData(), name == figure ? value : QByteArray("1"));
            return documentOf(method.constData(), tag + "/>");
        };
        QCOMPARE(codesIn(jobWith(QByteArray(width, '1')), settings.get()), QStringList());
        QCOMPARE(codesIn(jobWith(QByteArray(width + 1, '1')), settings.get()),
                 QStringList{"wide-figure"});
    }

    /// Settings that leave a description one character, and one column more.
    void room_data()
    {
        QTest::addColumn<QByteArray>("group");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QStringList>("documents");

        // By the table of rows in docs/settings.md, W being 32 unless it is set.
        QTest::newRow("kitchen order: W - q - 3")
            << QByteArray("doc") << QByteArray("p = 99; t = 99; q = 28;")
            << QStringList{"kitchen order"};
        QTest::newRow("delivery note: W - q - 3")
            << QByteArray("deliverydoc") << QByteArray("q = 28;") << QStringList{"delivery note"};
        QTest::newRow("full order: W - q - p - t - 1")
            << QByteArray("prefiscaldoc") << QByteArray("p = 9; t = 11; q = 10;")
            << QStringList{"full order"};
        QTest::newRow("receipts: W - q - p - t - 3")
            << QByteArray("receiptdoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"receipt", "summary receipt"};
        QTest::newRow("summary invoice: W - q - p - t - 3, the invoice has two more")
            << QByteArray("invoicedoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"summary invoice"};
        QTest::newRow("both invoices")
            << QByteArray("invoicedoc") << QByteArray("q = 0; p = 20; paperWidth = 22; t = 1;")
            << QStringList();
        QTest::newRow("sold items: W - q - p - t - 3")
            << QByteArray("solddoc") << QByteArray("p = 9; t = 11; q = 8;")
            << QStringList{"sold items"};
        QTest::newRow("statement: W - 15 - p - 3")
            << QByteArray("reportdoc") << QByteArray("q = 99; t = 99; p = 13;")
            << QStringList{"statement of account"};
        QTest::newRow("a narrow paper") << QByteArray("doc") << QByteArray("paperWidth = 7; q = 3;")
                                        << QStringList{"kitchen order"};
        QTest::newRow("a paper of 0 is the printer's")
            << QByteArray("doc") << QByteArray("paperWidth = 0; q = 28;")
            << QStringList{"kitchen order"};
    }

    void room()
    {
        QFETCH(QByteArray, group);
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, documents);
        settings.replace("q =", "quantityFieldWidth =")
            .replace("p =", "priceFieldWidth =")
            .replace("t =", "totalPriceFieldWidth =");
        const auto findingsOf = [&](const QByteArray &text) {
            return checkSettings(*settingsOf(settingsFile(documentGroup(group, text))));
        };
        if (documents.isEmpty()) { // the narrower of two has no room, the wider has none left
            const QStringList both = shown(findingsOf(settings));
            QCOMPARE(both.size(), 2);
            QVERIFY2(both[0].contains("columns of the invoice "), qPrintable(both[0]));
            QVERIFY2(both[1].contains("columns of the summary invoice "), qPrintable(both[1]));
            return;
        }
        QCOMPARE(shown(findingsOf(settings)), QStringList());

        // One more in the last column, which is the narrowest with room to lose.
        const qsizetype last = settings.lastIndexOf("= ") + 2;
        const int width = settings.mid(last).chopped(1).toInt();
        const auto narrow = findingsOf(settings.first(last) + QByteArray::number(width + 1) + ';');
        QCOMPARE(narrow.size(), documents.size());
        for (qsizetype i = 0; i < documents.size(); ++i) {
            QCOMPARE(infoOf(narrow[i].code).name, QLatin1String("columns"));
            QVERIFY2(narrow[i].text.startsWith("the columns of the " + documents[i]
                                               + " leave no room for the description"),
                     qPrintable(narrow[i].text));
            QCOMPARE(shown(narrow)[i].section(' ', 0, 0), QString("5:9:"));
        }
    }

    /// The setting, or the group, that each finding in a settings file is about.
    void settingOfAFinding()
    {
        const auto settings = settingsOf(
            "loose = 1;\n"
            + settingsFile(documentGroup("doc", "quantityFieldWidth = 40; paperWidth = 33; "
                                                "printDate = yes; topMargin = x; colour = red;")));
        QStringList about;
        for (const check::Finding &finding : checkSettings(*settings))
            about.append(QString(infoOf(finding.code).name) + ' ' + finding.setting.join('.'));
        const QStringList expected = {"unread-key loose",
                                      "columns korvel.doc",
                                      "columns korvel.doc.paperWidth",
                                      "not-true korvel.doc.printDate",
                                      "not-a-number korvel.doc.topMargin",
                                      "unread-key korvel.doc.colour"};
        QCOMPARE(about, expected);
        for (const check::Finding &finding : check::checkJob(kitchen("<recipe/>"), settings.get()))
            QCOMPARE(finding.setting, QStringList());
    }

    /// The same group twice is searched in its order, and places are found in each.
    void placeInARepeatedGroup()
    {
        const auto settings =
            settingsOf(settingsFile(documentGroup("doc", "printDate = true;")
                                    + documentGroup("receiptdoc", "topMargin = 1;")
                                    + documentGroup("doc", "topMargin = x;")));
        QCOMPARE(shown(checkSettings(*settings)),
                 QStringList{"13:9: warning: topMargin is \"x\", no whole number, and counts as 0 "
                             "[not-a-number]"});
    }

    void examplesAreClean_data()
    {
        QTest::addColumn<QString>("path");
        const QStringList paths = filesBelow("examples/jobs", "*.xml");
        QCOMPARE(paths.size(), vocabulary::methods().size());
        for (const QString &path : paths)
            QTest::newRow(qPrintable(path.section('/', -1))) << path;
    }

    void examplesAreClean()
    {
        QFETCH(QString, path);
        const check::SettingsFile settings(bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf"));
        QCOMPARE(shown(checkSettings(settings)), QStringList());
        QCOMPARE(shown(check::checkJob(bytesOf(path), nullptr)), QStringList());
        QCOMPARE(shown(check::checkJob(bytesOf(path), &settings)), QStringList());
    }

    /// The checker and the renderer agree on what can be read to its end.
    void readAsTheRendererReads_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<bool>("readable");

        const QStringList golden = filesBelow("tests/golden/cases", "job.xml");
        QVERIFY(golden.size() > 60);
        for (const QString &path : golden)
            QTest::newRow(qPrintable(path.section('/', -3, -2)))
                << bytesOf(path) << !path.contains("/malformed-xml-ends-the-paper/");

        const auto row = [](const char *what, const QByteArray &job, bool readable) {
            QTest::newRow(what) << job << readable;
        };
        row("1,024 elements in each other", kitchen(nested(1022, item)), true);
        row("1,025 elements in each other", kitchen(nested(1023, item)), false);
        row("64 namespaces", kitchen("<x" + namespaces(64) + "/>"), true);
        row("65 namespaces", kitchen("<x" + namespaces(65) + "/>"), false);
        row("64 namespaces twice", kitchen(("<x" + namespaces(64) + "/>").repeated(2)), true);
        row("UTF-16", utf16(kitchen(item)), true);
        row("UTF-16, and so by name",
            utf16("<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + kitchen(item)), true);
        row("UTF-16, and UTF-8 by name",
            utf16("<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kitchen(item)), false);
        row("a byte order mark", "\xEF\xBB\xBF" + kitchen(item), true);
        row("a byte order mark, and UTF-8 by name",
            "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"UTF-8\"?>" + kitchen(item), true);
        row("a byte order mark, and another encoding by name",
            "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>" + kitchen(item), false);
        row("Latin-1 by name",
            "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"
                + kitchen("<receipe number=\"1\" name=\"\xE8\"/>"),
            true);
        row("UTF-16 by name, in bytes",
            "<?xml version=\"1.0\" encoding=\"UTF-16\"?>" + kitchen(item), false);
        row("nothing", "", false);
        row("no end tag", "<job>", false);
        row("another end tag", "<job></other>", false);
        row("a second root", "<job/><job/>", false);
        row("text before the root", "x<job/>", false);
        row("text behind the root", "<job/>x", false);
        row("blanks before the declaration", " <?xml version=\"1.0\"?><job/>", false);
        row("comments and blanks around the root", "\n<!-- -->\n<job/>\n<!-- -->\n", true);
        row("an ampersand alone", kitchen("<receipe number=\"1\" name=\"a & b\"/>"), false);
        row("an opening mark in a value", kitchen("<receipe number=\"1\" name=\"<\"/>"), false);
        row("a value without quotes", kitchen("<receipe number=1/>"), false);
        row("an attribute without a value", kitchen("<receipe number/>"), false);
        row("a quote too few", kitchen("<receipe number=\"1/>"), false);
        row("a name of other marks", kitchen("<receipe n$r=\"1\"/>"), false);
        row("a name that begins with a digit", kitchen("<receipe 1=\"1\"/>"), false);
        row("an element's name with a blank before it", kitchen("< receipe/>"), false);
        row("an instruction of other marks", "<?$?><job/>", false);
        row("a comment in a comment", kitchen("<!-- a -- b -->"), false);
        row("an entity that the job declares",
            "<!DOCTYPE job [<!ENTITY e \"x\">]>" + kitchen("<receipe number=\"&e;\" name=\"x\"/>"),
            true);
    }

    void readAsTheRendererReads()
    {
        QFETCH(QByteArray, job);
        QFETCH(bool, readable);
        QCOMPARE(isReadToItsEnd(job), readable);
        QCOMPARE(isReadable(job), readable);
    }

    /// What XML forbids and the renderer takes all the same is an error, for what other programs
    /// make of it; but the paper does not end there.
    void readOnByTheRenderer_data()
    {
        QTest::addColumn<QByteArray>("job");

        const auto row = [](const char *what, const QByteArray &job) {
            QTest::newRow(what) << job;
        };
        row("an attribute twice", kitchen("<receipe number=\"1\" name=\"a\" number=\"2\"/>"));
        row("an entity that nobody declares", kitchen("<receipe number=\"1\" name=\"&euro;\"/>"));
        row("such an entity in a text", kitchen("&nbsp;"));
        row("a reference to what is no character",
            kitchen("<receipe number=\"1\" name=\"&#1;\"/>"));
        row("a control character", kitchen("<receipe number=\"1\" name=\"\x01\"/>"));
        row("XML 1.1", "<?xml version=\"1.1\"?>" + kitchen(item));
        row("an encoding that nobody knows",
            "<?xml version=\"1.0\" encoding=\"nonsense\"?>" + kitchen(item));
        row("bytes that are not UTF-8", kitchen("<receipe number=\"1\" name=\"\xE8\"/>"));
    }

    void readOnByTheRenderer()
    {
        QFETCH(QByteArray, job);
        QVERIFY(isReadToItsEnd(job));
        const QList<check::Finding> findings = check::checkJob(job, nullptr);
        QCOMPARE(findings.size(), 1);
        const check::Finding &finding = findings.first();
        QVERIFY(infoOf(finding.code).level == check::Level::Error);
        QVERIFY2(!finding.text.contains("the paper ends here"), qPrintable(finding.text));
        const bool oneLine = std::all_of(finding.text.begin(), finding.text.end(),
                                         [](QChar c) { return c.isPrint(); });
        QVERIFY2(oneLine, qPrintable(finding.text));
    }

    /// What the renderer reads over because there is too much of it is one finding.
    void settingsBeyondTheLimits()
    {
        const auto limits = [](const QByteArray &inner) {
            QStringList texts;
            for (const check::Finding &finding :
                 checkSettings(*settingsOf("korvel: { doc: {" + inner + "}; };"))) {
                if (finding.code == check::Code::Limit)
                    texts.append(finding.text);
            }
            return texts;
        };
        const auto readOver = [](int count) {
            return QStringList("groups and settings that are too many, too deep or too long are "
                               "read over: "
                               + QString::number(count));
        };
        const auto nested = [](int levels) {
            return QByteArray("a:{").repeated(levels) + "b=1;" + QByteArray("};").repeated(levels);
        };
        QCOMPARE(limits("paperWidth=32;"), QStringList());
        QCOMPARE(limits(nested(998)), QStringList());
        QCOMPARE(limits(nested(999)), readOver(1));
        QCOMPARE(limits(QByteArray("paperWidth=32;").repeated(262144)), QStringList());
        QCOMPARE(limits(QByteArray("paperWidth=32;").repeated(262146)), readOver(2));
        QCOMPARE(limits("paperWidth=" + QByteArray(16777217, '3') + ';'), readOver(1));
    }

    /// A text of the job is shown as it stands, even where it looks like a place in a wording.
    void placesOfWordingsInTheJob()
    {
        QStringList texts;
        for (const QByteArray &job : QByteArrayList{
                 documentOf("%2", {}),
                 fiscal("<receipe department=\"1\" number=\"%3\" name=\"x\" price=\"%1\"/>"),
             }) {
            for (const check::Finding &finding : check::checkJob(job, nullptr))
                texts.append(finding.text);
        }
        const QStringList expected = {
            "no document is called \"%2\": the job ends here",
            "\"number\" of a sale row is \"%3\", no plain number",
            "\"price\" of a sale row is \"%1\", no number: 0 is registered",
        };
        QCOMPARE(texts, expected);
    }

    // Checking takes time in proportion to the job: what grows with its square ends with none of
    // these.

    void manyAttributes()
    {
        const auto numbered = [](const char *name) {
            QByteArray attributes;
            for (int i = 0; i < 80'000; ++i)
                attributes += attribute(name + QByteArray::number(i), "1");
            return attributes;
        };
        QCOMPARE(codesIn(receipt("<headers" + numbered("line") + "/>")), QStringList());
        QCOMPARE(codesIn(receipt("<total price=\"1.00\"" + numbered("prise") + "/>")).size(),
                 80'000);
        QCOMPARE(codesIn(report("<cancelledsummary number=\"80000\" totals=\"1.00\""
                                + numbered("serial") + numbered("total") + numbered("tax") + "/>")),
                 QStringList());
    }

    void longValues_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QStringList>("codes");
        const auto row = [](const char *what, const QByteArray &job, const QStringList &codes) {
            QTest::newRow(what) << job << codes;
        };
        const auto total = [](const QByteArray &price) {
            return receipt("<total" + attribute("price", price) + "/>");
        };
        const auto sale = [](const QByteArray &number, const QByteArray &price) {
            return fiscal("<receipe department=\"1\" name=\"x\"" + attribute("number", number)
                          + attribute("price", price) + "/>");
        };
        constexpr int length = 1'000'000;
        const QByteArray zeros(length, '0');
        const QByteArray blanks(length, ' ');

        row("an amount behind blanks", total(blanks + "1.00"), {});
        row("blanks, and no amount", total(blanks + 'x'), {"amount"});
        row("blanks behind an amount, and no end", total("1.00" + blanks + 'x'), {"amount"});
        row("digits", total(QByteArray(length, '1')), {});
        row("digits, and no amount", total(QByteArray(length, '1') + 'x'), {"amount"});
        row("thousands", total('1' + QByteArray(",234").repeated(length / 4)), {});
        row("thousands, and no amount", total('1' + QByteArray(",234").repeated(length / 4) + 'x'),
            {"amount"});
        row("zeros that are registered", sale(zeros + '1', zeros + "1.50" + zeros), {});
        row("zeros, and no number", sale(zeros + 'x', "0." + zeros + 'x'),
            {"fiscal-quantity", "fiscal-amount"});
        row("blanks in a sale row", sale('1' + blanks + 'x', '1' + blanks + 'x'),
            {"fiscal-quantity", "fiscal-amount"});
        row("an address of commas",
            receipt("<customer name=\"x\"" + attribute("deliveryaddress", QByteArray(length, ','))
                    + "/>"),
            {});
        row("a name of an element", receipt('<' + QByteArray(length, 'x') + "/>"),
            {"unknown-element"});
        row("a name of a method", documentOf(QByteArray(length, 'x').constData(), ""),
            {"unknown-method"});
    }

    void longValues()
    {
        QFETCH(QByteArray, job);
        QFETCH(QStringList, codes);
        QCOMPARE(codesIn(job), codes);
    }

    /// A summary order knows no element, and no setting of it matters.
    void anyDocumentsWithNothingInThem()
    {
        const auto settings = settingsOf("korvel: { };");
        for (const vocabulary::Method &method : vocabulary::methods()) {
            const QByteArray job = documentOf(method.name.data(), "");
            QCOMPARE(codesIn(job), QStringList());
            QCOMPARE(codesIn(job, settings.get()), QStringList());
        }
    }
};

QTEST_GUILESS_MAIN(TestCheck)
#include "tst_check.moc"

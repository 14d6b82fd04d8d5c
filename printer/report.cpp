// The period report: a summary of each kind of document issued, tax rates, cancelled documents.
#include "printer/printerdriver.h"

#include "printer/columns.h"
#include "vocabulary/attributes.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
using korvel::Layout;
using korvel::columns::left;
using korvel::columns::right;

namespace {

/// A title, bold and centred between empty lines.
void printTitle(PrinterDriver &printer, const QString &title)
{
    printer.setBold();
    printer.setCenterJustify();
    printer.println(QString());
    printer.println(title);
    printer.setCharSize();
    printer.println(QString());
}

/// A label with dots up to 15 characters before the paper's width; a longer label is kept whole.
QString dotted(const QString &label, const Layout &layout)
{
    return left(label, qint64(layout.paperWidth) - 15, u'.');
}

void printDotted(PrinterDriver &printer, const Layout &layout, const QString &label,
                 const QString &value)
{
    printer.print(0, dotted(label, layout));
    printer.println(value);
}

/// The first and the last serial number of the documents issued.
void printSerials(PrinterDriver &printer, const Layout &layout, const QXmlAttributes &attributes)
{
    printer.print(0, dotted(PrinterDriver::tr("Serials"), layout));
    printer.print(0, attributes.value(attribute::firstserial));
    printer.print(0, u" - "_s);
    printer.println(attributes.value(attribute::lastserial));
}

/// The cancelled documents, in rows under their titles. They follow the first two attributes, three
/// attributes each.
void printCancelled(PrinterDriver &printer, const QXmlAttributes &attributes)
{
    const auto row = [&](const QString &serial, const QString &total, const QString &taxRate) {
        printer.print(0, left(serial, 10));
        printer.print(0, left(total, 11));
        printer.println(left(taxRate, 10));
    };
    const auto at = [&](int i) { return i < attributes.count() ? attributes.value(i) : QString(); };

    row(PrinterDriver::tr("SERIAL"), PrinterDriver::tr("TOTAL"), PrinterDriver::tr("TAXRATE"));
    for (int i = 2; i < attributes.count(); i += 3)
        row(at(i), at(i + 1), at(i + 2));
}

} // namespace

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // "prefiscalssummary" and "totals" are the spellings that jobs use.
    if (qName == element::date) {
        setBold();
        setCenterJustify();
        println(QString());
        println(tr("SUMMARIES"));
        println(QString());
        setCharSize();
        print(0, tr("BeginDate: "));
        println(value(attribute::begindate));
        print(0, tr("EndDate: "));
        println(value(attribute::enddate));
    } else if (qName == element::prefiscalssummary) {
        printTitle(*this, tr("PREFISCAL SUMMARY"));
        printDotted(*this, layout, tr("Number"), value(attribute::number));
        printDotted(*this, layout, tr("TOTAL"), value(attribute::total));
    } else if (qName == element::receiptssummary) {
        printTitle(*this, tr("RECEIPTS SUMMARY"));
        printDotted(*this, layout, tr("Number"), value(attribute::number));
        printSerials(*this, layout, attributes);
        println(tr("Amount not paid: ") + value(attribute::notPaid));
        println(tr("Cash: ") + value(attribute::cash));
        println(tr("Credit Card: ") + value(attribute::creditCard));
        println(tr("Bancomat: ") + value(attribute::bancomat));
        println(tr("Other: ") + value(attribute::other));
        printDotted(*this, layout, tr("TOTAL"), value(attribute::total));
        println(QString());
        printSeparatorLine();
        println(right(tr("TAXRATE"), 6) + u' ' + right(tr("TAXABLE"), 10) + u' '
                + right(tr("TAX"), 10) + u' ' + right(tr("AMOUNT"), 10));
    } else if (qName == element::taxrate_item) {
        // One character wider before its second column than the titles, and ends in a blank.
        println(right(value(attribute::taxrate), 6) + "% "_L1 + right(value(attribute::taxable), 10)
                + u' ' + right(value(attribute::tax), 10) + u' '
                + right(value(attribute::amount), 10) + u' ');
    } else if (qName == element::invoicessummary) {
        printSeparatorLine();
        println(QString());
        printTitle(*this, tr("INVOICES SUMMARY"));
        printDotted(*this, layout, tr("Number"), value(attribute::number));
        printSerials(*this, layout, attributes);
        printDotted(*this, layout, tr("Taxable"), value(attribute::taxable));
        printDotted(*this, layout, tr("Tax"), value(attribute::tax));
        printDotted(*this, layout, tr("TOTAL"), value(attribute::total));
    } else if (qName == element::cancelledsummary) {
        printTitle(*this, tr("CANCELLED DOC SUMMARY"));
        printDotted(*this, layout, tr("Number"), value(attribute::number));
        printDotted(*this, layout, tr("TOTAL"), value(attribute::totals));
        setBold();
        println(QString());
        printCancelled(*this, attributes);
    }
}

// Invoices with their tax block, full and summary; delivery notes.
#include "printer/printerdriver.h"

#include "vocabulary/attributes.h"
#include "vocabulary/columns.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace style = korvel::vocabulary::style;

namespace {

/// The rows that close an invoice. Their values are the job's: nothing is computed.
void printTaxBlock(PrinterDriver &printer, const QXmlAttributes &attributes)
{
    const auto row = [&](const QString &label, QLatin1StringView name) {
        printer.println(
            printer.descriptionRow({}, label, {}, attributes.value(name), u'.', style::qdpt));
    };

    printer.setBold();
    printer.println(QString());
    row(PrinterDriver::tr("Taxable"), attribute::taxable);
    row(PrinterDriver::tr("TaxRate"), attribute::taxrate);
    row(PrinterDriver::tr("Tax"), attribute::tax);
    row(PrinterDriver::tr("TOTAL"), attribute::total);
    printer.setCharSize();
}

} // namespace

void PrinterDriver::printFullOrderInvoice(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::customer) {
        printCustomerHeader(attributes);
    } else if (qName == element::receipe) {
        printColumnsHeader(titles().number, titles().description, titles().price, titles().amount);
        println(descriptionRow(value(attribute::number), value(attribute::name),
                               value(attribute::price), value(attribute::totalPrice), u'.',
                               style::qdpt));
    } else if (qName == element::totals) {
        printTaxBlock(*this, attributes);
    }
}

void PrinterDriver::printAbstractOrderInvoice(const QString &qName,
                                              const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::customer) {
        printCustomerHeader(attributes);
    } else if (qName == element::receipe_type) {
        printColumnsHeader(titles().number, titles().description, {}, titles().price);
        println(descriptionRow(value(attribute::number), value(attribute::name), {},
                               value(attribute::price), u'.', style::qxdpt));
    } else if (qName == element::totals) {
        printTaxBlock(*this, attributes);
    }
}

void PrinterDriver::printFullOrderDelivery(const QString &qName, const QXmlAttributes &attributes)
{
    if (qName == element::customer)
        printCustomerHeader(attributes);
    else
        printPartialOrder(qName, attributes);
}

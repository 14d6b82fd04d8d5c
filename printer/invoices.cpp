// Invoices with their tax block, full and summary; delivery notes.
#include "printer/printerdriver.h"

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderInvoice(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        printColumnsHeader(titles().number, titles().description, titles().price, titles().amount);
        println(descriptionRow(value("number"_L1), value("name"_L1), value("price"_L1),
                               value("totalPrice"_L1), u'.', u"qdpt"_s));
    } else if (qName == "totals"_L1) {
        printTaxBlock(attributes);
    }
}

void PrinterDriver::printAbstractOrderInvoice(const QString &qName,
                                              const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe_type"_L1) {
        printColumnsHeader(titles().number, titles().description, {}, titles().price);
        println(descriptionRow(value("number"_L1), value("name"_L1), {}, value("price"_L1), u'.',
                               u"qxdpt"_s));
    } else if (qName == "totals"_L1) {
        printTaxBlock(attributes);
    }
}

void PrinterDriver::printFullOrderDelivery(const QString &qName, const QXmlAttributes &attributes)
{
    if (qName == "customer"_L1)
        printCustomerHeader(attributes);
    else
        printPartialOrder(qName, attributes);
}

/// The rows that close an invoice. Their values are the job's: nothing is computed.
void PrinterDriver::printTaxBlock(const QXmlAttributes &attributes)
{
    const auto row = [&](const QString &label, QLatin1StringView name) {
        println(descriptionRow({}, label, {}, attributes.value(name), u'.', u"qdpt"_s));
    };

    setBold();
    println(QString());
    row(tr("Taxable"), "taxable"_L1);
    row(tr("TaxRate"), "taxrate"_L1);
    row(tr("Tax"), "tax"_L1);
    row(tr("TOTAL"), "total"_L1);
    setCharSize();
}

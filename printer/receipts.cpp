// Receipts: the full receipt with every item, the summary receipt with one line a kind of item.
#include "printer/printerdriver.h"

#include "vocabulary/attributes.h"
#include "vocabulary/columns.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace style = korvel::vocabulary::style;

void PrinterDriver::printFullOrderReceipt(const QString &qName, const QXmlAttributes &attributes)
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
                               style::qxdpt));
    } else if (qName == element::total) {
        println(QString());
        println(descriptionRow({}, tr("TOTAL"), {}, value(attribute::price), u'.', style::qdpt));
    } else if (qName == element::notPaid) {
        println(QString());
        println(tr("    Amount not paid: ") + value(attribute::price));
    }
}

void PrinterDriver::printAbstractOrderReceipt(const QString &qName,
                                              const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::receipe_type) {
        printColumnsHeader(titles().number, titles().description, {}, titles().price);
        println(descriptionRow(value(attribute::number), value(attribute::name), {},
                               value(attribute::price), u'.', style::qxdpt));
    } else if (qName == element::total) {
        println(QString());
        println(descriptionRow({}, tr("TOTAL"), {}, value(attribute::price), u'.', style::qdpt));
    } else if (qName == element::notPaid) {
        println(QString());
        // Italian on purpose, whatever the installed translation.
        println("   Corrispettivo non pagato: "_L1 + value(attribute::price));
    }
}

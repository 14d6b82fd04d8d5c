// Receipts: the full receipt with every item, the summary receipt with one line a kind of item.
#include "printer/printerdriver.h"

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderReceipt(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1) {
        printColumnsHeader(titles().number, titles().description, titles().price, titles().amount);
        println(descriptionRow(value("number"_L1), value("name"_L1), value("price"_L1),
                               value("totalPrice"_L1), u'.', u"qxdpt"_s));
    } else if (qName == "total"_L1) {
        println(QString());
        println(descriptionRow({}, tr("TOTAL"), {}, value("price"_L1), u'.', u"qdpt"_s));
    } else if (qName == "notPaid"_L1) {
        println(QString());
        println(tr("    Amount not paid: ") + value("price"_L1));
    }
}

void PrinterDriver::printAbstractOrderReceipt(const QString &qName,
                                              const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "receipe_type"_L1) {
        printColumnsHeader(titles().number, titles().description, {}, titles().price);
        println(descriptionRow(value("number"_L1), value("name"_L1), {}, value("price"_L1), u'.',
                               u"qxdpt"_s));
    } else if (qName == "total"_L1) {
        println(QString());
        println(descriptionRow({}, tr("TOTAL"), {}, value("price"_L1), u'.', u"qdpt"_s));
    } else if (qName == "notPaid"_L1) {
        println(QString());
        // Italian on purpose, whatever the installed translation.
        println("   Corrispettivo non pagato: "_L1 + value("price"_L1));
    }
}

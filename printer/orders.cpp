// Orders: the kitchen order without prices, the full order, the summary order that prints nothing.
#include "printer/printerdriver.h"

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printPartialOrder(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // "receipe" is the spelling that jobs use. The title line is for back ends whose
    // printSections() leaves the order information to this document.
    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "orderinfo"_L1) {
        setBold();
        println(descriptionRow(tr("Num"), tr("Description"), {}, {}, u' ', u"qd"_s));
    } else if (qName == "receipe"_L1) {
        setCharSize();
        println(descriptionRow(value("number"_L1), value("name"_L1), {}, {}, u'.', u"qd"_s));
    } else if (qName == "otherreceipe"_L1) {
        setCharSize(1);
        println(descriptionRow(value("number"_L1), value("name"_L1), {}, {}, u'.', u"qd"_s));
    } else if (qName == "variant"_L1) {
        println(descriptionRow(value("number"_L1), variantDescription(attributes), {}, {}, u'.',
                               u"qd"_s));
    }
}

void PrinterDriver::printFullOrder(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "customer"_L1) {
        printCustomerHeader(attributes);
    } else if (qName == "receipe"_L1 && !value("name"_L1).startsWith(u'=')) {
        printColumnsHeader(titles().number, titles().description, titles().price, titles().amount);
        println(descriptionRow(value("number"_L1), value("name"_L1), value("price"_L1),
                               value("totalPrice"_L1), u'.', u"qdpt"_s));
    } else if (qName == "variant"_L1) {
        println(descriptionRow(value("number"_L1), variantDescription(attributes),
                               value("price"_L1), value("totalPrice"_L1), u'.', u"qdpt"_s));
    } else if (qName == "total"_L1) {
        println(QString());
        setBold();
        println(descriptionRow({}, tr("TOTAL"), {}, value("price"_L1), u'.', u"qdpt"_s));
    }
}

void PrinterDriver::printAbstractOrder(const QString & /*qName*/,
                                       const QXmlAttributes & /*attributes*/)
{
}

/// A variant's mark and name. The mark is '-' for a variant left out (-1, and whatever is no
/// number), '+' for one added (1), else the quantity as the job gives it.
QString PrinterDriver::variantDescription(const QXmlAttributes &attributes) const
{
    const QString quantity = attributes.value("quantity"_L1);
    bool isNumber = false;
    const double parsed = quantity.toDouble(&isNumber);
    const double number = isNumber ? parsed : 0;
    QString mark = quantity;
    if (number == -1.0 || number == 0.0)
        mark = u"-"_s;
    else if (number == 1.0)
        mark = u"+"_s;
    return mark + u' ' + attributes.value("name"_L1);
}

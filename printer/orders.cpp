// Orders: the kitchen order without prices, the full order, the summary order that prints nothing.
#include "printer/printerdriver.h"

#include "vocabulary/attributes.h"
#include "vocabulary/columns.h"
#include "vocabulary/numbers.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace style = korvel::vocabulary::style;

namespace {

/// A variant's mark and name. The mark is '-' for a variant left out (-1, and whatever is no
/// number), '+' for one added (1), else the quantity as the job gives it.
QString variantDescription(const QXmlAttributes &attributes)
{
    const QString quantity = attributes.value(attribute::quantity);
    const double number = korvel::vocabulary::numberIn(quantity).value_or(0);
    QString mark = quantity;
    if (number == -1.0 || number == 0.0)
        mark = u"-"_s;
    else if (number == 1.0)
        mark = u"+"_s;
    return mark + u' ' + attributes.value(attribute::name);
}

} // namespace

void PrinterDriver::printPartialOrder(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // "receipe" is the spelling that jobs use. The title line is for back ends whose
    // printSections() leaves the order information to this document.
    if (qName == element::customer) {
        printCustomerHeader(attributes);
    } else if (qName == element::orderinfo) {
        setBold();
        println(descriptionRow(tr("Num"), tr("Description"), {}, {}, u' ', style::qd));
    } else if (qName == element::receipe) {
        setCharSize();
        println(descriptionRow(value(attribute::number), value(attribute::name), {}, {}, u'.',
                               style::qd));
    } else if (qName == element::otherreceipe) {
        setCharSize(1);
        println(descriptionRow(value(attribute::number), value(attribute::name), {}, {}, u'.',
                               style::qd));
    } else if (qName == element::variant) {
        println(descriptionRow(value(attribute::number), variantDescription(attributes), {}, {},
                               u'.', style::qd));
    }
}

void PrinterDriver::printFullOrder(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::customer) {
        printCustomerHeader(attributes);
    } else if (qName == element::receipe && !value(attribute::name).startsWith(u'=')) {
        printColumnsHeader(titles().number, titles().description, titles().price, titles().amount);
        println(descriptionRow(value(attribute::number), value(attribute::name),
                               value(attribute::price), value(attribute::totalPrice), u'.',
                               style::qdpt));
    } else if (qName == element::variant) {
        println(descriptionRow(value(attribute::number), variantDescription(attributes),
                               value(attribute::price), value(attribute::totalPrice), u'.',
                               style::qdpt));
    } else if (qName == element::total) {
        println(QString());
        setBold();
        println(descriptionRow({}, tr("TOTAL"), {}, value(attribute::price), u'.', style::qdpt));
    }
}

void PrinterDriver::printAbstractOrder(const QString & /*qName*/,
                                       const QXmlAttributes & /*attributes*/)
{
}

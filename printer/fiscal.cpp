// Fiscal receipts, full and summary: sale rows that the printer itself registers and prints.
#include "printer/printerdriver.h"

#include "config/configuration.h"
#include "vocabulary/attributes.h"
#include "vocabulary/settings.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace key = korvel::vocabulary::key;

void PrinterDriver::printFullOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == element::receipe) {
        int width = settings->getStrValue(documentPrefix + key::descriptionWidth).toInt();
        if (width == 0)
            width = getPaperWidth();
        // A negative width leaves the name whole.
        printRowFiscal(value(attribute::department), value(attribute::number),
                       value(attribute::name).left(width), value(attribute::price));
    } else if (qName == element::total) {
        printRowFiscal(qName, attributes);
    }
}

void PrinterDriver::printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // Each line is registered once, whatever its own number says.
    if (qName == element::receipe_type)
        printRowFiscal(value(attribute::department), u"1"_s, value(attribute::name),
                       value(attribute::price));
    else if (qName == element::total)
        printRowFiscal(qName, attributes);
}

void PrinterDriver::printRowFiscal(const QString & /*qName*/, const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printRowFiscal(const QString & /*department*/, const QString & /*quantity*/,
                                   const QString & /*description*/, const QString & /*amount*/)
{
}

// Fiscal receipts, full and summary: sale rows that the printer itself registers and prints.
#include "printer/printerdriver.h"

#include "config/configuration.h"

using namespace Qt::Literals::StringLiterals;

void PrinterDriver::printFullOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    if (qName == "receipe"_L1) {
        int width = settings->getStrValue(documentPrefix + "descriptionWidth"_L1).toInt();
        if (width == 0)
            width = getPaperWidth();
        // A negative width leaves the name whole.
        printRowFiscal(value("department"_L1), value("number"_L1), value("name"_L1).left(width),
                       value("price"_L1));
    } else if (qName == "total"_L1) {
        printRowFiscal(qName, attributes);
    }
}

void PrinterDriver::printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &attributes)
{
    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // Each line is registered once, whatever its own number says.
    if (qName == "receipe_type"_L1)
        printRowFiscal(value("department"_L1), u"1"_s, value("name"_L1), value("price"_L1));
    else if (qName == "total"_L1)
        printRowFiscal(qName, attributes);
}

void PrinterDriver::printRowFiscal(const QString & /*qName*/, const QXmlAttributes & /*attributes*/)
{
}

void PrinterDriver::printRowFiscal(const QString & /*department*/, const QString & /*quantity*/,
                                   const QString & /*description*/, const QString & /*amount*/)
{
}

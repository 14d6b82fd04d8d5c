// Which document method a job asks for, and the elements that all documents share.
#include "printer/printerdriver.h"

#include "vocabulary/attributes.h"
#include "vocabulary/methods.h"

#include <algorithm>
#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
namespace method = korvel::vocabulary::method;
using korvel::vocabulary::rowOf;

namespace {

using Driver = PrinterDriver;

struct Method
{
    QLatin1StringView name;        // as jobs ask for it
    std::optional<bool> duplicate; // what selecting it makes of the duplicate flag, if anything
    void (Driver::*print)(const QString &, const QXmlAttributes &);
    QLatin1StringView documentType = rowOf(method::rows, name).documentType; // of its settings
};

// clang-format off
constexpr Method methods[] = {
    {method::printPartialOrder,         {},    &Driver::printPartialOrder        },
    {method::printFullOrder,            {},    &Driver::printFullOrder           },
    {method::printFullOrderReceipt,     {},    &Driver::printFullOrderReceipt    },
    {method::printFullOrderInvoice,     true,  &Driver::printFullOrderInvoice    },
    {method::printFullOrderDelivery,    {},    &Driver::printFullOrderDelivery   },
    {method::printFullOrderFiscal,      false, &Driver::printFullOrderFiscal     },
    {method::printAbstractOrder,        {},    &Driver::printAbstractOrder       },
    {method::printAbstractOrderReceipt, {},    &Driver::printAbstractOrderReceipt},
    {method::printAbstractOrderInvoice, true,  &Driver::printAbstractOrderInvoice},
    {method::printAbstractOrderFiscal,  false, &Driver::printAbstractOrderFiscal },
    {method::printReport,               {},    &Driver::printReport              },
    {method::printSold,                 {},    &Driver::printSold                },
    {method::printStatementOfAccount,   {},    &Driver::printStatementOfAccount  },
};
// clang-format on

/// The method of that name; null when there is none.
const Method *findMethod(const QString &name)
{
    const auto *const found = std::find_if(std::begin(methods), std::end(methods),
                                           [&](const Method &row) { return row.name == name; });
    return found == std::end(methods) ? nullptr : found;
}

} // namespace

bool PrinterDriver::startElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                                 const QString &qName, const QXmlAttributes &attributes)
{
    if (qName != element::method) {
        if (const Method *method = findMethod(currentMethod))
            (this->*method->print)(qName, attributes);
        return true;
    }

    const QString name = attributes.value(attribute::name);
    const Method *method = findMethod(name);
    if (!method) {
        std::cout << "File Format Not Supported" << std::endl;
        currentMethod.clear();
        return false;
    }
    loadValues(method->documentType);
    currentMethod = name;
    duplicate = method->duplicate.value_or(duplicate);
    startSection();
    return true;
}

bool PrinterDriver::printSections(const QString &qName, const QXmlAttributes &attributes)
{
    if (qName == element::printers) {
        printerName = attributes.value(attribute::name);
        printerCharSize = attributes.value(attribute::charsize);
        printerAddress = attributes.value(attribute::ipaddress);
        printerPort = attributes.value(attribute::port);
        initPrinter();
    } else if (qName == element::geometry) {
        printGeometry(attributes);
    } else if (qName == element::headers) {
        printHeaders(attributes);
        printPrinterInfo();
    } else if (qName == element::logo) {
        printLogo();
    } else if (qName == element::company) {
        printCompanyHeader(attributes);
    } else if (qName == element::receipt) {
        printReceiptHeader(attributes);
    } else if (qName == element::invoice) {
        printInvoiceHeader(attributes);
    } else if (qName == element::delivery) {
        printDeliveryHeader(attributes);
    } else if (qName == element::orderinfo) {
        printOrderInfo(attributes);
    } else {
        return false;
    }
    return true;
}

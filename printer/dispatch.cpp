// Which document method a job asks for, and the elements that all documents share.
#include "printer/printerdriver.h"

#include <algorithm>
#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using Driver = PrinterDriver;

struct Method
{
    QLatin1StringView name;         // as jobs ask for it
    QLatin1StringView documentType; // whose layout settings apply
    std::optional<bool> duplicate;  // what selecting it makes of the duplicate flag, if anything
    void (Driver::*print)(const QString &, const QXmlAttributes &);
};

// The full order has a layout of its own, the pre-fiscal one; the statement shares the report's.
constexpr Method methods[] = {
    {"printPartialOrder"_L1,         "order"_L1,     {},    &Driver::printPartialOrder        },
    {"printFullOrder"_L1,            "prefiscal"_L1, {},    &Driver::printFullOrder           },
    {"printFullOrderReceipt"_L1,     "receipt"_L1,   {},    &Driver::printFullOrderReceipt    },
    {"printFullOrderInvoice"_L1,     "invoice"_L1,   true,  &Driver::printFullOrderInvoice    },
    {"printFullOrderDelivery"_L1,    "delivery"_L1,  {},    &Driver::printFullOrderDelivery   },
    {"printFullOrderFiscal"_L1,      "fiscal"_L1,    false, &Driver::printFullOrderFiscal     },
    {"printAbstractOrder"_L1,        "order"_L1,     {},    &Driver::printAbstractOrder       },
    {"printAbstractOrderReceipt"_L1, "receipt"_L1,   {},    &Driver::printAbstractOrderReceipt},
    {"printAbstractOrderInvoice"_L1, "invoice"_L1,   true,  &Driver::printAbstractOrderInvoice},
    {"printAbstractOrderFiscal"_L1,  "fiscal"_L1,    false, &Driver::printAbstractOrderFiscal },
    {"printReport"_L1,               "report"_L1,    {},    &Driver::printReport              },
    {"printSold"_L1,                 "sold"_L1,      {},    &Driver::printSold                },
    {"printStatementOfAccount"_L1,   "report"_L1,    {},    &Driver::printStatementOfAccount  },
};

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
    if (qName != "method"_L1) {
        if (const Method *method = findMethod(currentMethod))
            (this->*method->print)(qName, attributes);
        return true;
    }

    const QString name = attributes.value("name"_L1);
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
    if (qName == "printers"_L1) {
        printerName = attributes.value("name"_L1);
        printerCharSize = attributes.value("charsize"_L1);
        printerAddress = attributes.value("ipaddress"_L1);
        printerPort = attributes.value("port"_L1);
        initPrinter();
    } else if (qName == "geometry"_L1) {
        printGeometry(attributes);
    } else if (qName == "headers"_L1) {
        printHeaders(attributes);
        printPrinterInfo();
    } else if (qName == "logo"_L1) {
        printLogo();
    } else if (qName == "company"_L1) {
        printCompanyHeader(attributes);
    } else if (qName == "receipt"_L1) {
        printReceiptHeader(attributes);
    } else if (qName == "invoice"_L1) {
        printInvoiceHeader(attributes);
    } else if (qName == "delivery"_L1) {
        printDeliveryHeader(attributes);
    } else if (qName == "orderinfo"_L1) {
        printOrderInfo(attributes);
    } else {
        return false;
    }
    return true;
}

// The blocks at the top of a document: margin, headers, company, numbers, order information,
// customer.
#include "printer/printerdriver.h"

#include "config/configuration.h"
#include "vocabulary/attributes.h"
#include "vocabulary/limits.h"
#include "vocabulary/settings.h"

#include <QStringTokenizer>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace key = korvel::vocabulary::key;
namespace limit = korvel::vocabulary::limit;
using korvel::Layout;

namespace {

/// A line of a label and an attribute's value that a setting switches on.
struct InfoLine
{
    bool Layout::*setting;
    const char *label;
    QLatin1StringView attribute;
};

// clang-format off
constexpr InfoLine orderInfoLines[] = {
    {&Layout::printDate,   QT_TRANSLATE_NOOP("PrinterDriver", "Date:"),   attribute::date  },
    {&Layout::printTime,   QT_TRANSLATE_NOOP("PrinterDriver", "Time:"),   attribute::time  },
    {&Layout::printTable,  QT_TRANSLATE_NOOP("PrinterDriver", "Table:"),  attribute::table },
    {&Layout::printWaiter, QT_TRANSLATE_NOOP("PrinterDriver", "Waiter:"), attribute::waiter},
    {&Layout::printNote,   QT_TRANSLATE_NOOP("PrinterDriver", "Note:"),   attribute::note  },
    {&Layout::printCredit, QT_TRANSLATE_NOOP("PrinterDriver", "Credit:"), attribute::credit},
};
// clang-format on

/// One line for each field of a comma-separated address, up to the first empty field. A field of
/// blanks is not empty.
void printAddress(PrinterDriver &printer, const QString &address)
{
    for (const QStringView field : qTokenize(address, u',')) {
        if (field.isEmpty())
            return;
        printer.println(1, field.trimmed().toString());
    }
}

/// A line of a label and a value, each after a blank.
void printLabelled(PrinterDriver &printer, const QString &label, const QString &value)
{
    printer.print(1, label);
    printer.println(1, value);
}

} // namespace

void PrinterDriver::printGeometry(const QXmlAttributes & /*attributes*/)
{
    if (!layout.printGeometry)
        return;
    const int margin = settings->getStrValue(documentPrefix + key::topMargin).toInt();
    for (int line = 0; line < std::min(margin, limit::longestMargin); ++line)
        println(QString());
}

void PrinterDriver::printHeaders(const QXmlAttributes &attributes)
{
    if (!layout.printHeader)
        return;
    for (int i = 0; i < attributes.count(); ++i)
        println(attributes.value(i));
    printSeparatorLine();
}

void PrinterDriver::printPrinterInfo()
{
    // The lines that follow stay centred until a character size is set.
    setCenterJustify();
    println(printerName);
    printSeparatorLine();
}

void PrinterDriver::printCompanyHeader(const QXmlAttributes &attributes)
{
    if (!layout.printCompany)
        return;
    setCharSize();
    setCenterJustify();
    for (int i = 0; i < attributes.count(); ++i)
        println(attributes.value(i));
    setCharSize();
    printSeparatorLine();
}

void PrinterDriver::printReceiptHeader(const QXmlAttributes &attributes)
{
    // Unlike the next two, this label brings its own blank.
    println(1, tr("Serial Number: ") + attributes.value(attribute::serialnumber));
    printSeparatorLine();
}

void PrinterDriver::printInvoiceHeader(const QXmlAttributes &attributes)
{
    printLabelled(*this, tr("Invoice Number:"), attributes.value(attribute::serialnumber));
    printSeparatorLine();
}

void PrinterDriver::printDeliveryHeader(const QXmlAttributes &attributes)
{
    printLabelled(*this, tr("Delivery Number:"), attributes.value(attribute::serialnumber));
    printSeparatorLine();
}

void PrinterDriver::printOrderInfo(const QXmlAttributes &attributes)
{
    setCharSize();
    for (const auto &[setting, label, attribute] : orderInfoLines)
        if (layout.*setting)
            printLabelled(*this, tr(label), attributes.value(attribute));
    if (layout.printCredit)
        credit = attributes.value(attribute::credit);
    printSeparatorLine();
}

void PrinterDriver::printCustomerHeader(const QXmlAttributes &attributes)
{
    if (!layout.printCustomer)
        return;
    println(tr("CUSTOMER"));
    println(1, attributes.value(attribute::name));
    if (layout.printBillingAddress)
        printAddress(*this, attributes.value(attribute::billingaddress));
    if (layout.printDeliveryAddress)
        printAddress(*this, attributes.value(attribute::deliveryaddress));
    if (layout.printTelephone)
        printLabelled(*this, tr("Telephone:"), attributes.value(attribute::telephone));
    if (layout.printLicenseNumber)
        printLabelled(*this, tr("License Number:"), attributes.value(attribute::licensenumber));
    if (layout.printFiscalCode)
        printLabelled(*this, tr("Fiscal Code:"), attributes.value(attribute::fiscalcode));
    printSeparatorLine();
}

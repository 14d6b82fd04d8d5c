// The period report: a summary of each kind of document issued, tax rates, cancelled documents.
#include "printer/printerdriver.h"

#include "printer/columns.h"
#include "vocabulary/attributes.h"

using namespace Qt::Literals::StringLiterals;

namespace attribute = korvel::vocabulary::attribute;
namespace element = korvel::vocabulary::element;
using columns::left;
using columns::right;

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // "prefiscalssummary" and "totals" are the spellings that jobs use.
    if (qName == element::date) {
        setBold();
        setCenterJustify();
        println(QString());
        println(tr("SUMMARIES"));
        println(QString());
        setCharSize();
        print(0, tr("BeginDate: "));
        println(value(attribute::begindate));
        print(0, tr("EndDate: "));
        println(value(attribute::enddate));
    } else if (qName == element::prefiscalssummary) {
        printTitle(tr("PREFISCAL SUMMARY"));
        printDotted(tr("Number"), value(attribute::number));
        printDotted(tr("TOTAL"), value(attribute::total));
    } else if (qName == element::receiptssummary) {
        printTitle(tr("RECEIPTS SUMMARY"));
        printDotted(tr("Number"), value(attribute::number));
        printSerials(attributes);
        println(tr("Amount not paid: ") + value(attribute::notPaid));
        println(tr("Cash: ") + value(attribute::cash));
        println(tr("Credit Card: ") + value(attribute::creditCard));
        println(tr("Bancomat: ") + value(attribute::bancomat));
        println(tr("Other: ") + value(attribute::other));
        printDotted(tr("TOTAL"), value(attribute::total));
        println(QString());
        printSeparatorLine();
        println(right(tr("TAXRATE"), 6) + u' ' + right(tr("TAXABLE"), 10) + u' '
                + right(tr("TAX"), 10) + u' ' + right(tr("AMOUNT"), 10));
    } else if (qName == element::taxrate_item) {
        // One character wider before its second column than the titles, and ends in a blank.
        println(right(value(attribute::taxrate), 6) + "% "_L1 + right(value(attribute::taxable), 10)
                + u' ' + right(value(attribute::tax), 10) + u' '
                + right(value(attribute::amount), 10) + u' ');
    } else if (qName == element::invoicessummary) {
        printSeparatorLine();
        println(QString());
        printTitle(tr("INVOICES SUMMARY"));
        printDotted(tr("Number"), value(attribute::number));
        printSerials(attributes);
        printDotted(tr("Taxable"), value(attribute::taxable));
        printDotted(tr("Tax"), value(attribute::tax));
        printDotted(tr("TOTAL"), value(attribute::total));
    } else if (qName == element::cancelledsummary) {
        printTitle(tr("CANCELLED DOC SUMMARY"));
        printDotted(tr("Number"), value(attribute::number));
        printDotted(tr("TOTAL"), value(attribute::totals));
        setBold();
        println(QString());
        printCancelled(tr("SERIAL"), tr("TOTAL"), tr("TAXRATE"));
        // The documents follow the first two attributes, three attributes each.
        const auto at = [&](int i) {
            return i < attributes.count() ? attributes.value(i) : QString();
        };
        for (int i = 2; i < attributes.count(); i += 3)
            printCancelled(at(i), at(i + 1), at(i + 2));
    }
}

/// A title, bold and centred between empty lines.
void PrinterDriver::printTitle(const QString &title)
{
    setBold();
    setCenterJustify();
    println(QString());
    println(title);
    setCharSize();
    println(QString());
}

/// A label, and dots up to 15 characters before the paper's width; a longer label is kept whole.
void PrinterDriver::printDottedLabel(const QString &label)
{
    print(0, left(label, qint64(layout.paperWidth) - 15, u'.'));
}

void PrinterDriver::printDotted(const QString &label, const QString &value)
{
    printDottedLabel(label);
    println(value);
}

/// The first and the last serial number of the documents issued.
void PrinterDriver::printSerials(const QXmlAttributes &attributes)
{
    printDottedLabel(tr("Serials"));
    print(0, attributes.value(attribute::firstserial));
    print(0, u" - "_s);
    println(attributes.value(attribute::lastserial));
}

/// A row of the cancelled documents.
void PrinterDriver::printCancelled(const QString &serial, const QString &total,
                                   const QString &taxRate)
{
    print(0, left(serial, 10));
    print(0, left(total, 11));
    println(left(taxRate, 10));
}

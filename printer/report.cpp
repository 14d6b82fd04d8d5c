// The period report: a summary of each kind of document issued, tax rates, cancelled documents.
#include "printer/printerdriver.h"

#include "printer/columns.h"

using namespace Qt::Literals::StringLiterals;
using columns::left;
using columns::right;

void PrinterDriver::printReport(const QString &qName, const QXmlAttributes &attributes)
{
    if (printSections(qName, attributes))
        return;

    const auto value = [&](QLatin1StringView name) { return attributes.value(name); };

    // "prefiscalssummary" and "totals" are the spellings that jobs use.
    if (qName == "date"_L1) {
        setBold();
        setCenterJustify();
        println(QString());
        println(tr("SUMMARIES"));
        println(QString());
        setCharSize();
        print(0, tr("BeginDate: "));
        println(value("begindate"_L1));
        print(0, tr("EndDate: "));
        println(value("enddate"_L1));
    } else if (qName == "prefiscalssummary"_L1) {
        printTitle(tr("PREFISCAL SUMMARY"));
        printDotted(tr("Number"), value("number"_L1));
        printDotted(tr("TOTAL"), value("total"_L1));
    } else if (qName == "receiptssummary"_L1) {
        printTitle(tr("RECEIPTS SUMMARY"));
        printDotted(tr("Number"), value("number"_L1));
        printSerials(attributes);
        println(tr("Amount not paid: ") + value("notPaid"_L1));
        println(tr("Cash: ") + value("cash"_L1));
        println(tr("Credit Card: ") + value("creditCard"_L1));
        println(tr("Bancomat: ") + value("bancomat"_L1));
        println(tr("Other: ") + value("other"_L1));
        printDotted(tr("TOTAL"), value("total"_L1));
        println(QString());
        printSeparatorLine();
        println(right(tr("TAXRATE"), 6) + u' ' + right(tr("TAXABLE"), 10) + u' '
                + right(tr("TAX"), 10) + u' ' + right(tr("AMOUNT"), 10));
    } else if (qName == "taxrate_item"_L1) {
        // One character wider before its second column than the titles, and ends in a blank.
        println(right(value("taxrate"_L1), 6) + "% "_L1 + right(value("taxable"_L1), 10) + u' '
                + right(value("tax"_L1), 10) + u' ' + right(value("amount"_L1), 10) + u' ');
    } else if (qName == "invoicessummary"_L1) {
        printSeparatorLine();
        println(QString());
        printTitle(tr("INVOICES SUMMARY"));
        printDotted(tr("Number"), value("number"_L1));
        printSerials(attributes);
        printDotted(tr("Taxable"), value("taxable"_L1));
        printDotted(tr("Tax"), value("tax"_L1));
        printDotted(tr("TOTAL"), value("total"_L1));
    } else if (qName == "cancelledsummary"_L1) {
        printTitle(tr("CANCELLED DOC SUMMARY"));
        printDotted(tr("Number"), value("number"_L1));
        printDotted(tr("TOTAL"), value("totals"_L1));
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
    print(0, attributes.value("firstserial"_L1));
    print(0, u" - "_s);
    println(attributes.value("lastserial"_L1));
}

/// A row of the cancelled documents.
void PrinterDriver::printCancelled(const QString &serial, const QString &total,
                                   const QString &taxRate)
{
    print(0, left(serial, 10));
    print(0, left(total, 11));
    println(left(taxRate, 10));
}

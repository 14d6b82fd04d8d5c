// The document engine: a print job's elements in, calls on a printer out.
#pragma once

#include "printer/layout.h"

#include <QChar>
#include <QCoreApplication>
#include <QString>
#include <QXmlAttributes>
#include <QXmlDefaultHandler>

#include <memory>
#include <optional>

class KVConfiguration;
class QFile;
class QTextStream;

/**
 * Lays out the documents of a print job, as the content handler of a SAX reader.
 *
 * The job's "method" element selects a document method; every later element goes to that method's
 * document operation, which lays it out in columns and calls the printer operations that a back
 * end implements. Only the order of start tags matters: nesting, text and end tags do not.
 *
 * The engine does no arithmetic on money: amounts are the job's texts, passed through. A missing
 * attribute reads as an empty text and prints as one. Labels pass through the installed
 * translation in the context "PrinterDriver".
 *
 * The bodies: printerdriver.cpp life cycle, output file, SAX hooks; layout.cpp settings and
 * prefixes; dispatch.cpp methods and shared sections; rows.cpp, headers.cpp; and a file for each
 * kind of document: orders.cpp, receipts.cpp, invoices.cpp (delivery notes too), fiscal.cpp,
 * report.cpp, lists.cpp (sold items and statement of account).
 *
 * Words used below: a width counts characters (UTF-16 units); a text is printed as given unless
 * the comment says otherwise; an indent is a count of leading spaces.
 */
class PrinterDriver : public QXmlDefaultHandler
{
    Q_DECLARE_TR_FUNCTIONS(PrinterDriver)

public:
    /**
     * Opens the job's output file for UTF-8 text.
     *
     * @param outputPath file, FIFO or device to write to, never a resource of the toolkit; created
     *                   when missing. A low surrogate without its other half, U+DC80 to U+DCFF, is
     *                   a byte of its name that is no UTF-8
     * @param append     whether an existing file keeps its content; otherwise it is emptied
     *
     * When it cannot be opened, a line on standard output says so, the job runs all the same and
     * what it prints is discarded.
     */
    PrinterDriver(const QString &outputPath, bool append);

    /**
     * Sends what a job prints into a text, without a file and without the user's settings: for
     * programs that look at it.
     *
     * @param settings by which documents are laid out
     * @param output   commands are appended to it
     *
     * Both belong to the caller and outlive the driver.
     */
    PrinterDriver(KVConfiguration &settings, QString &output);

    /// Flushes and closes the output file.
    ~PrinterDriver() override;

    Q_DISABLE_COPY_MOVE(PrinterDriver)

    /// True on the first call for this driver and false ever after. Column titles that were
    /// printed count as the first call.
    bool oneTime();

    /**
     * The prefix of a document type's settings keys, such as "korvel.receiptdoc.".
     *
     * @param documentType "order", "prefiscal", "fiscal", "receipt", "invoice", "delivery",
     *                     "report" or "sold", in any letter case; for any other a line on standard
     *                     output says so and the answer is the pre-fiscal prefix
     */
    QString documentPath(const QString &documentType);

    /**
     * Reads the layout settings of a document type, in place of those read before.
     *
     * A number that is missing or malformed counts as 0, a paper width of 0 as the device's own
     * width; a flag is on only when its setting is exactly "true".
     */
    void loadValues(const QString &documentType);

    /**
     * Lays out one row of a document in columns; prints nothing.
     *
     * @param quantity    padded on the left with spaces to `quantityFieldWidth`
     * @param description padded on the right and cut to the width that the other columns leave
     * @param price       padded on the left to `priceFieldWidth`
     * @param total       padded on the left to `totalPriceFieldWidth`
     * @param fill        what the description and the price are padded with
     * @param style       "qdpt", "qxdpt", "qxdtDoubleLine" (two lines), "qxd", "qd" or
     *                    "date-amount-type": which columns there are and what stands between them
     * @return the row; empty for an unknown style. Only the description is cut: a longer text in
     *         another column keeps all of it and makes the row wider. A description width below 0
     *         counts as 0.
     */
    [[nodiscard]] QString descriptionRow(const QString &quantity, const QString &description,
                                         const QString &price, const QString &total,
                                         const QChar &fill, const QString &style) const;

    // The SAX hooks. All answer true, to go on, except startElement() for an unknown method.

    /// The job begins: resets the printer.
    bool startDocument() override;

    /// The job has been read to its end: closes the section on the printer.
    bool endDocument() override;

    /**
     * Selects a method for "method", or hands any other element to the selected method's document
     * operation. Elements before the first method are ignored.
     *
     * @return false, which ends the job there, for a method name that is unknown; a line on
     *         standard output says so
     */
    bool startElement(const QString &namespaceUri, const QString &localName, const QString &qName,
                      const QXmlAttributes &attributes) override;

    /// Does nothing.
    bool endElement(const QString &namespaceUri, const QString &localName,
                    const QString &qName) override;

    // The virtual operations. Their order is the order of the virtual table, which back ends built
    // elsewhere rely on: never insert, move or remove one.

    /// Characters in a line of the device, whatever the layout settings say.
    virtual int getPaperWidth() = 0;

    /// Sets the printer back to its initial state. This default does nothing.
    virtual void reset();

    /// Prints what follows in bold, until a character size is set.
    virtual void setBold() = 0;

    /// Sets the normal character size; with most printers this ends bold and centring too.
    virtual void setCharSize() = 0;

    /// Sets a character size: 1 is the one used for an order's other items.
    virtual void setCharSize(int size) = 0;

    /// Centres the lines that follow.
    virtual void setCenterJustify() = 0;

    /// Cuts the paper.
    virtual void fullCut() = 0;

    /// Opens the cash drawer.
    virtual void generatePulse() = 0;

    /// Prints a rule of `paperWidth` '=' characters; an empty line for a width of 0 or less.
    virtual void printSeparatorLine();

    /// Opens the section of the selected method.
    virtual void startSection() = 0;

    /// Closes the section of the selected method.
    virtual void endSection() = 0;

    /// The job has named its printer. This default does nothing.
    virtual void initPrinter();

    /// Appends `indent` spaces and a text to the line under construction.
    virtual void print(unsigned indent, const QString &text) = 0;

    /// Appends like print() and prints the line.
    virtual void println(unsigned indent, const QString &text) = 0;

    /// Appends a text to the line under construction and prints the line.
    virtual void println(const QString &text) = 0;

    /**
     * Receives the "total" element of a fiscal document, whose section end closes it. A back end
     * without a use for it leaves this default, which does nothing.
     */
    virtual void printRowFiscal(const QString &qName, const QXmlAttributes &attributes);

    /**
     * Registers one sold line with the printer, or a deduction when the amount is negative.
     *
     * @param department  department the sale is booked to, sent as given
     * @param quantity    quantity, sent as given
     * @param description printed by the device, sent as given: neither trimmed nor cut
     * @param amount      decimal number with a point or a comma, sent in hundredths and not
     *                    rounded to whole ones; a text that is no number counts as 0
     *
     * A back end without a fiscal memory leaves this default, which does nothing.
     */
    virtual void printRowFiscal(const QString &department, const QString &quantity,
                                const QString &description, const QString &amount);

    /// The top margin, if `printGeometry` is on: as many empty lines as the document's setting
    /// "topMargin" says, none when it is missing, malformed or negative.
    virtual void printGeometry(const QXmlAttributes &attributes);

    /// The printer's name, centred, and a separator line. Leaves the lines that follow centred.
    virtual void printPrinterInfo();

    /// The free header lines, if `printHeader` is on: every attribute's value in the order of the
    /// job, whatever its name, then a separator line.
    virtual void printHeaders(const QXmlAttributes &attributes);

    /// The logo, where the device holds one.
    virtual void printLogo() = 0;

    /// The company, if `printCompany` is on: every attribute's value in the order of the job,
    /// centred, then a separator line from the left.
    virtual void printCompanyHeader(const QXmlAttributes &attributes);

    /// The receipt's number, from the attribute "serialnumber", and a separator line.
    virtual void printReceiptHeader(const QXmlAttributes &attributes);

    /// The invoice's number, from the attribute "serialnumber", and a separator line.
    virtual void printInvoiceHeader(const QXmlAttributes &attributes);

    /// The delivery note's number, from the attribute "serialnumber", and a separator line.
    virtual void printDeliveryHeader(const QXmlAttributes &attributes);

    /**
     * The customer block, if `printCustomer` is on: name, then addresses, telephone, license
     * number and fiscal code as their settings say, and a separator line. An address is a list of
     * lines separated by commas that ends at the first empty one; outer white space is dropped.
     */
    virtual void printCustomerHeader(const QXmlAttributes &attributes);

    /// Date, time, table, waiter, note and credit, each if its setting is on, and a separator
    /// line in any case.
    virtual void printOrderInfo(const QXmlAttributes &attributes);

    /**
     * Prints an element that all documents share: "printers", "geometry", "headers", "logo",
     * "company", "receipt", "invoice", "delivery" or "orderinfo".
     *
     * @return whether the element was one of them; otherwise nothing was printed
     */
    virtual bool printSections(const QString &qName, const QXmlAttributes &attributes);

    /// Prints column titles in bold, in the row style "qdpt", the first time it is called for
    /// this driver; later calls print nothing, from whatever document they come.
    virtual void printColumnsHeader(const QString &quantity, const QString &description,
                                    const QString &price, const QString &total);

    // The document operations: each prints one element of a job, or ignores one it does not know.

    /// Kitchen order: quantities and names of items, other items and variants, without prices.
    virtual void printPartialOrder(const QString &qName, const QXmlAttributes &attributes);

    /// Full order: customer, items and variants with their prices, total. An item whose name
    /// begins with '=' is left out.
    virtual void printFullOrder(const QString &qName, const QXmlAttributes &attributes);

    /// Receipt: customer, items with their prices, total, amount not paid.
    virtual void printFullOrderReceipt(const QString &qName, const QXmlAttributes &attributes);

    /// Invoice: customer, items with their prices, tax block.
    virtual void printFullOrderInvoice(const QString &qName, const QXmlAttributes &attributes);

    /// Delivery note: customer, and what a kitchen order prints.
    virtual void printFullOrderDelivery(const QString &qName, const QXmlAttributes &attributes);

    /// Fiscal receipt: one sale row for each item, its name cut to the setting
    /// "descriptionWidth" (the device's width when that is 0 or missing).
    virtual void printFullOrderFiscal(const QString &qName, const QXmlAttributes &attributes);

    /// Summary order: prints nothing.
    virtual void printAbstractOrder(const QString &qName, const QXmlAttributes &attributes);

    /// Summary receipt: one line for each kind of item, total, amount not paid.
    virtual void printAbstractOrderReceipt(const QString &qName, const QXmlAttributes &attributes);

    /// Summary invoice: customer, one line for each kind of item, tax block.
    virtual void printAbstractOrderInvoice(const QString &qName, const QXmlAttributes &attributes);

    /// Summary fiscal receipt: one sale row of quantity 1 for each kind of item.
    virtual void printAbstractOrderFiscal(const QString &qName, const QXmlAttributes &attributes);

    /// Period report: dates, summaries of the documents issued, tax rates, cancelled documents.
    virtual void printReport(const QString &qName, const QXmlAttributes &attributes);

    /// Sold items: one line for each item with quantity, description and amount.
    virtual void printSold(const QString &qName, const QXmlAttributes &attributes);

    /// Statement of account: one line for each movement with date, type and amount.
    virtual void printStatementOfAccount(const QString &qName, const QXmlAttributes &attributes);

    /// Whether the document is a duplicate: true from an invoice method to the next fiscal one.
    virtual bool printDuplicate();

protected:
    /// Writes a command to the output file, as UTF-8. Discarded when the file did not open.
    void write(const QString &command);

    KVConfiguration *settings; // the user's, which belong to their singleton, or the caller's
    QString currentMethod;     // name of the method last selected; empty when there is none

private:
    std::unique_ptr<QFile> outputFile;         // null when the output is a text
    std::unique_ptr<QTextStream> outputStream; // null when the file did not open; goes first

protected:
    bool duplicate = false;   // set by the invoice methods, cleared by the fiscal ones
    bool oneTimeDone = false; // oneTime() was called or the column titles were printed
    QString justification;    // "left" or "center"
    QString documentPrefix;   // prefix of the current document type's settings keys
    QString printerName;      // what the job says of its printer in "printers"
    QString printerCharSize;
    QString printerAddress;
    QString printerPort;
    QString credit;        // last credit that the order information printed
    korvel::Layout layout; // settings of the current document type

private:
    /// The titles of the columns of items, in the language of the run.
    struct Titles
    {
        QString number, description, price, amount;
    };
    const Titles &titles();
    std::optional<Titles> translatedTitles; // looked up with the first item
};

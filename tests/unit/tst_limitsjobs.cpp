// Jobs of every document at their limits: without attributes, with the widest columns, very long.
#include "support/limits.h"
#include "support/methods.h"
#include "support/settingstext.h"
#include "support/test.h"

namespace tst_limitsjobs {

// What every document prints for the elements that all of them share, without attributes and with
// every switch on. The name of the printer is empty, and centred: 16 blanks.
const QByteArray separator = line("================================");
const QByteArray sharedElements = "<printers/><geometry/><headers/><logo/><company/><receipt/>"
                                  "<invoice/><delivery/><orderinfo/>";
const QByteArray sharedLines =
    line("") + separator + line("                ") + separator + separator
    + line(" Serial Number: ") + separator + line(" Invoice Number: ") + separator
    + line(" Delivery Number: ") + separator + line(" Date: ") + line(" Time: ") + line(" Table: ")
    + line(" Waiter: ") + line(" Note: ") + line(" Credit: ") + separator;
const QByteArray customerLines = line("CUSTOMER") + line(" ") + line(" Telephone: ")
                                 + line(" License Number: ") + line(" Fiscal Code: ") + separator;
const QByteArray documentElements =
    "<customer/><receipe/><otherreceipe/><variant/><total/><notPaid/><receipe_type/><totals/>"
    "<date/><prefiscalssummary/><receiptssummary/><taxrate_item/><invoicessummary/>"
    "<cancelledsummary/><statement_list/><statement/><unknown/>";

constexpr const char *documentGroups[] = {"doc",        "prefiscaldoc", "fiscaldoc", "receiptdoc",
                                          "invoicedoc", "deliverydoc",  "reportdoc", "solddoc"};

QByteArray settingsOfAllDocuments(const QByteArray &settings)
{
    QByteArray groups;
    for (const char *name : documentGroups)
        groups += documentGroup(name, settings);
    return settingsFile(groups);
}

constexpr auto everySwitch =
    R"(printGeometry = "true"; printHeader = "true"; printLogo = "true"; printCompany = "true";
       printDeliveryAddress = "true"; printBillingAddress = "true"; printTelephone = "true";
       printDate = "true"; printTime = "true"; printTable = "true"; printCustomer = "true";
       printLicenseNumber = "true"; printFiscalCode = "true"; printCredit = "true";
       printWaiter = "true"; printNote = "true"; openCashDrawer = "true"; )";

class TestLimitsJobs : public QObject
{
    Q_OBJECT

private slots:
    void longNamesInAJob()
    {
        const Shop shop(noSettings);
        for (const int length : {2047, 2048, 2049, 1000000 / slowness}) {
            const QByteArray name = times(length, "x");
            VERIFY_QUIET(shop.render(
                fiscalJob("", '<' + name + ' ' + name + "=\"" + name + "\"/>" + sale(name))));
            QCOMPARE(difference(shop.output(), fiscalOpening + saleRow(name) + fiscalClosing),
                     QString());
        }
    }

    void elementsWithoutAttributes_data()
    {
        QTest::addColumn<QByteArray>("method");
        QTest::addColumn<QByteArray>("stream");

        const auto row = [](const char *method, const QByteArray &stream) {
            QTest::newRow(method) << QByteArray(method) << stream;
        };
        // The settings give the columns 3, 7 and 8 characters of a line of 32.
        const QByteArray titles = line("Num Description    Price  Amount");
        const QByteArray summaryTitles = line("Num Description            Price");
        const QByteArray total = line("") + line("    TOTAL...............        ");
        const QByteArray taxBlock = line("") + line("    Taxable.............        ")
                                    + line("    TaxRate.............        ")
                                    + line("    Tax.................        ")
                                    + line("    TOTAL...............        ");
        const QByteArray kitchen = line("                              ")
                                   + line("                              ")
                                   + line("    -                         ");

        row("printPartialOrder", "=o\n" + sharedLines + customerLines + kitchen + "=o\n");
        row("printFullOrder", "=o\n" + sharedLines + customerLines + titles
                                  + line("    ....................        ")
                                  + line("    - ..................        ") + total + "=o\n");
        row("printFullOrderReceipt", "=o/*1\n" + sharedLines + customerLines + titles
                                         + line("    x ..................        ") + total
                                         + line("") + line("    Amount not paid: ") + "=o\n");
        row("printFullOrderInvoice", "=o/*1\n" + sharedLines + customerLines + titles
                                         + line("    ....................        ") + taxBlock
                                         + "=o\n");
        row("printFullOrderDelivery", "=o\n" + sharedLines + customerLines + kitchen + "=o\n");
        row("printFullOrderFiscal", "=K\n=C1\n=R/$0/*/()\n=T1\n");
        row("printAbstractOrder", "=o\n=o\n");
        row("printAbstractOrderReceipt", "=o/*1\n" + sharedLines + total + line("")
                                             + line("   Corrispettivo non pagato: ") + summaryTitles
                                             + line("    x ..................        ") + "=o\n");
        row("printAbstractOrderInvoice", "=o/*1\n" + sharedLines + customerLines + summaryTitles
                                             + line("    x ..................        ") + taxBlock
                                             + "=o\n");
        row("printAbstractOrderFiscal", "=K\n=C1\n=R/$0/*1/()\n=T1\n");
        // Centred: 16 blanks for an empty line, (32 - n) / 2 for n characters. Labels are filled
        // with dots up to 17 characters.
        row("printReport",
            "=o\n" + sharedLines + line(times(16, " ")) + line("           SUMMARIES")
                + line(times(16, " ")) + line("BeginDate: ") + line("EndDate: ")
                + line(times(16, " ")) + line("       PREFISCAL SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line(times(16, " "))
                + line("        RECEIPTS SUMMARY") + line("") + line("Number...........")
                + line("Serials.......... - ") + line("Amount not paid: ") + line("Cash: ")
                + line("Credit Card: ") + line("Bancomat: ") + line("Other: ")
                + line("TOTAL............") + line("") + separator
                + line("TAXRATE    TAXABLE        TAX     AMOUNT")
                + line("      %                                  ") + separator + line("")
                + line(times(16, " ")) + line("        INVOICES SUMMARY") + line("")
                + line("Number...........") + line("Serials.......... - ")
                + line("Taxable..........") + line("Tax..............") + line("TOTAL............")
                + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line("")
                + line("SERIAL    TOTAL      TAXRATE   ") + "=o\n");
        row("printSold", "=o\n" + sharedLines + line("    x ..................        ") + "=o\n");
        // The date's 15 characters, 7 for the amount, 7 left for the type.
        row("printStatementOfAccount", "=o\n" + sharedLines + line("Date           Descrip Amount")
                                           + line(":              ..............") + "=o\n");
    }

    void elementsWithoutAttributes()
    {
        QFETCH(QByteArray, method);
        QFETCH(QByteArray, stream);
        const Shop shop(
            settingsOfAllDocuments(QByteArray(everySwitch)
                                   + "topMargin = 1; quantityFieldWidth = 3; priceFieldWidth = 7; "
                                     "totalPriceFieldWidth = 8; paperWidth = 32;"));
        const auto run = shop.render("<job><method name=\"" + method + "\"/>" + sharedElements
                                     + documentElements + "</job>");
        VERIFY_QUIET(run);
        QCOMPARE(linesOf(shop.output()), linesOf(stream));
    }

    /// All documents in one job with the widest columns: how much, not what, is at stake.
    void widestColumnsOfAllDocuments_data()
    {
        QTest::addColumn<int>("width");

        QTest::newRow("largest") << largest;
        QTest::newRow("smallest") << smallest;
    }

    void widestColumnsOfAllDocuments()
    {
        QFETCH(int, width);
        const QByteArray number = QByteArray::number(width);
        const Shop shop(settingsOfAllDocuments(
            QByteArray(everySwitch) + "topMargin = 3; quantityFieldWidth = " + number
            + "; priceFieldWidth = " + number + "; totalPriceFieldWidth = " + number
            + "; paperWidth = " + number + "; paperRows = " + number
            + "; descriptionWidth = " + number + ';'));
        QByteArray elements;
        for (const QString &method : methodNames)
            elements +=
                "<method name=\"" + method.toLatin1() + "\"/>" + sharedElements + documentElements;
        VERIFY_QUIET(shop.render("<job>" + elements + "</job>"));
        const QByteArray stream = shop.output();
        // Eight kinds of document open with "=o" alone, each but the summary order with a margin.
        QCOMPARE(stream.count("\n=o/*1\n"), 4);
        QCOMPARE(stream.count("=K\n=C1\n"), 2);
        QVERIFY(stream.startsWith("=o\n" + times(3, line(""))));
        QVERIFY(stream.endsWith("\n=o\n"));
        for (const QByteArray &row : stream.split('\n'))
            QVERIFY(row.size() <= 4 * 65536 + 20);
    }

    void cancelledDocuments_data()
    {
        QTest::addColumn<int>("attributes"); // with the number and the totals
        QTest::addColumn<QByteArray>("rows");

        const QByteArray ab = line("a         b                    ");
        const QByteArray abc = line("a         b          c         ");
        QTest::newRow("none") << 2 << QByteArray();
        QTest::newRow("a serial number") << 3 << line("a                              ");
        QTest::newRow("a serial number and a total") << 4 << ab;
        QTest::newRow("a whole document") << 5 << abc;
        QTest::newRow("a document and a serial number")
            << 6 << abc + line("d                              ");
        QTest::newRow("a document, a serial number and a total")
            << 7 << abc + line("d         e                    ");
        QTest::newRow("two documents") << 8 << abc + line("d         e          f         ");
    }

    void cancelledDocuments()
    {
        QFETCH(int, attributes);
        QFETCH(QByteArray, rows);
        const QByteArrayList all = {R"(number="2")", R"(totals="21.00")", R"(x1="a")", R"(x2="b")",
                                    R"(x3="c")",     R"(x4="d")",         R"(x5="e")", R"(x6="f")"};
        const Shop shop(noSettings);
        VERIFY_QUIET(shop.render("<job><method name=\"printReport\"/><cancelledsummary "
                                 + all.first(attributes).join(' ') + "/></job>"));
        QCOMPARE(linesOf(shop.output()),
                 linesOf("=o\n" + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY")
                         + line("") + line("Number...........2") + line("TOTAL............21.00")
                         + line("") + line("SERIAL    TOTAL      TAXRATE   ") + rows + "=o\n"));
    }

    /// Long jobs are printed to their end.
    void longJobs_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("piece"); // # is its number
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<QByteArray>("printedBefore");
        QTest::addColumn<QByteArray>("printed"); // of one piece
        QTest::addColumn<QByteArray>("printedAfter");

        const auto row = [](const char *title, int count, const QByteArray &before,
                            const QByteArray &piece, const QByteArray &after,
                            const QByteArray &printedBefore, const QByteArray &printed,
                            const QByteArray &printedAfter) {
            QTest::newRow(title) << count << before << piece << after << printedBefore << printed
                                 << printedAfter;
        };
        const QByteArray kitchen = "<job><method name=\"printPartialOrder\"/>";
        const QByteArray fiscal = "<job><method name=\"printAbstractOrderFiscal\"/>";
        const QByteArray item = line("2 X" + times(28, " "));

        row("fields of an address", 400000, kitchen + "<customer name=\"N\" billingaddress=\"",
            "a,", "\"/></job>", "=o\n" + line("CUSTOMER") + line(" N"), line(" a"),
            line(" Telephone: ") + line(" License Number: ") + line(" Fiscal Code: ") + separator
                + "=o\n");
        row("attributes of an element", 100000, kitchen + "<headers", " a#=\"v\"", "/></job>",
            "=o\n", line("v"), separator + line(times(16, " ")) + separator + "=o\n");
        row("documents of a report", 40000,
            "<job><method name=\"printReport\"/><cancelledsummary number=\"\" totals=\"\"",
            " a#=\"1\" b#=\"2\" c#=\"3\"", "/></job>",
            "=o\n" + line(times(16, " ")) + line("     CANCELLED DOC SUMMARY") + line("")
                + line("Number...........") + line("TOTAL............") + line("")
                + line("SERIAL    TOTAL      TAXRATE   "),
            line("1         2          3         "), "=o\n");
        row("items", 100000, kitchen, R"(<receipe number="2" name="X"/>)", "</job>", "=o\n", item,
            "=o\n");
        row("methods", 3000, "<job>", R"(<method name="printAbstractOrder"/>)", "</job>", "",
            "=o\n", "=o\n");
        row("elements nobody knows", 100000, kitchen, "<unknown# a=\"b\"/>",
            R"(<receipe number="2" name="X"/></job>)", "=o\n", "", item + "=o\n");
        row("texts, comments and instructions", 50000, fiscal, "text<!-- # --><?a #?><![CDATA[x]]>",
            sale("X") + "</job>", fiscalOpening, "", saleRow("X") + fiscalClosing);
        row("characters of a name", 1000000, fiscal + "<receipe_type name=\"", "x", "\"/></job>",
            fiscalOpening + "=R/$0/*1/(", "x", ")\n" + fiscalClosing);
        row("characters of a comment", 2000000, fiscal + "<!--", "x", "-->" + sale("X") + "</job>",
            fiscalOpening, "", saleRow("X") + fiscalClosing);
        row("elements in namespaces", 50000, fiscal + "<a xmlns:p=\"v\">", "<p:b/>",
            "</a>" + sale("X") + "</job>", fiscalOpening, "", saleRow("X") + fiscalClosing);
    }

    void longJobs()
    {
        QFETCH(int, count);
        count /= slowness;
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, piece);
        QFETCH(QByteArray, after);
        QFETCH(QByteArray, printedBefore);
        QFETCH(QByteArray, printed);
        QFETCH(QByteArray, printedAfter);
        const Shop shop(settingsFile(documentGroup("doc", everySwitch)));
        const QByteArray all =
            piece.contains('#') ? each(
                count, [&](const QByteArray &i) { return QByteArray(piece).replace('#', i); })
                                : times(count, piece);
        VERIFY_QUIET(shop.render(before + all + after));
        QCOMPARE(difference(shop.output(), printedBefore + times(count, printed) + printedAfter),
                 QString());
    }
};

KORVEL_TEST(TestLimitsJobs)

} // namespace tst_limitsjobs

#include "tst_limitsjobs.moc"

// Period report: which calls each element causes.
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/translators.h"

namespace tst_report {

// What a report prints on paper 40 characters wide.
const QString number = "print 0 |Number...................|";
const QString serials = "print 0 |Serials..................|";
const QString taxable = "print 0 |Taxable..................|";
const QString tax = "print 0 |Tax......................|";
const QString total = "print 0 |TOTAL....................|";
const QString dash = "print 0 | - |";
const QString empty = "println ||";
const QString rule = "println |========================================|";
const QString taxRates = "println |TAXRATE    TAXABLE        TAX     AMOUNT|";

const QStringList cancelledColumns = {"setBold", "println ||", "print 0 |SERIAL    |",
                                      "print 0 |TOTAL      |", "println |TAXRATE   |"};

/// The calls that print the title of a summary.
QStringList title(const QString &text)
{
    return {"setBold",     "setCenterJustify", "println ||", "println |" + text + "|",
            "setCharSize", "println ||"};
}

QByteArray reportSettings(const QByteArray &more)
{
    return settingsFile(documentGroup("reportdoc", R"(printCustomer = "true"; printDate = "true";
        openCashDrawer = "true"; )" + more));
}

class TestReport : public QObject
{
    Q_OBJECT

private slots:
    void report_data()
    {
        addColumns();

        row("the dates of the period", R"(<date begindate="01/02/2006" enddate="28/02/2006"/>)",
            {"setBold", "setCenterJustify", "println ||", "println |SUMMARIES|", "println ||",
             "setCharSize", "print 0 |BeginDate: |", "println |01/02/2006|", "print 0 |EndDate: |",
             "println |28/02/2006|"});
        row("missing dates are empty texts", R"(<date beginDate="1" EndDate="2" date="3"/>)",
            {"setBold", "setCenterJustify", "println ||", "println |SUMMARIES|", "println ||",
             "setCharSize", "print 0 |BeginDate: |", empty, "print 0 |EndDate: |", empty});
        row("dates may hold %1", R"(<date enddate="%1" begindate="%2"/>)",
            {"setBold", "setCenterJustify", "println ||", "println |SUMMARIES|", "println ||",
             "setCharSize", "print 0 |BeginDate: |", "println |%2|", "print 0 |EndDate: |",
             "println |%1|"});

        row("the pre-fiscal documents", R"(<prefiscalssummary number="5" total="100.00"/>)",
            title("PREFISCAL SUMMARY")
                + QStringList{number, "println |5|", total, "println |100.00|"});
        row("missing figures of the pre-fiscal documents are empty texts",
            R"(<prefiscalssummary Number="5" totals="1" TOTAL="2"/>)",
            title("PREFISCAL SUMMARY") + QStringList{number, empty, total, empty});

        row("the receipts, their payments and the titles of the tax rates",
            R"(<receiptssummary number="12" firstserial="101" lastserial="112" notPaid="1.00"
                                cash="2.00" creditCard="3.00" bancomat="4.00" other="5.00"
                                total="15.00"/>)",
            title("RECEIPTS SUMMARY")
                + QStringList{number, "println |12|", serials, "print 0 |101|", dash,
                              "println |112|", "println |Amount not paid: 1.00|",
                              "println |Cash: 2.00|", "println |Credit Card: 3.00|",
                              "println |Bancomat: 4.00|", "println |Other: 5.00|", total,
                              "println |15.00|", empty, rule, taxRates});
        row("missing figures of the receipts are empty texts, their lines stay",
            R"(<receiptssummary Number="1" firstSerial="2" lastSerial="3" notpaid="4" Cash="5"
                                creditcard="6" Bancomat="7" Other="8" totals="9" serialnumber="1"
                                taxable="2" tax="3" price="4"/>)",
            title("RECEIPTS SUMMARY")
                + QStringList{number, empty, serials, "print 0 ||", dash, empty,
                              "println |Amount not paid: |", "println |Cash: |",
                              "println |Credit Card: |", "println |Bancomat: |",
                              "println |Other: |", total, empty, empty, rule, taxRates});
        row("figures of the receipts may hold %1",
            R"(<receiptssummary number="%1" firstserial="%2" lastserial="%3" notPaid="%4"
                                cash="%5" creditCard="%6" bancomat="%7" other="%8" total="%9"/>)",
            title("RECEIPTS SUMMARY")
                + QStringList{number, "println |%1|", serials, "print 0 |%2|", dash, "println |%3|",
                              "println |Amount not paid: %4|", "println |Cash: %5|",
                              "println |Credit Card: %6|", "println |Bancomat: %7|",
                              "println |Other: %8|", total, "println |%9|", empty, rule, taxRates});

        row("a tax rate ends in a blank, one character to the right of its titles",
            R"(<taxrate_item amount="122.00" tax="22.00" taxable="100.00" taxrate="22"/>)",
            {"println |    22%     100.00      22.00     122.00 |"});
        row("missing figures of a tax rate are empty texts",
            R"(<taxrate_item Amount="1" TAX="2" Taxable="3" taxRate="4" total="5"/>)",
            {"println |      %                                  |"});
        row("figures of a tax rate as wide as their columns",
            R"(<taxrate_item taxrate="22.000" taxable="1234567.89" tax="2345678.90"
                             amount="3456789.01"/>)",
            {"println |22.000% 1234567.89 2345678.90 3456789.01 |"});
        row("figures of a tax rate are whole, whatever their length",
            R"(<taxrate_item taxrate="22.0000" taxable="12345678.90" tax="23456789.012"
                             amount="34567890.1234"/>)",
            {"println |22.0000% 12345678.90 23456789.012 34567890.1234 |"});
        row("figures of a tax rate may hold %1",
            R"(<taxrate_item taxrate="%1" taxable="%2" tax="%3" amount="%4"/>)",
            {"println |    %1%         %2         %3         %4 |"});

        row("the invoices",
            R"(<invoicessummary number="3" firstserial="7" lastserial="9" taxable="100.00"
                                tax="22.00" total="122.00"/>)",
            QStringList{rule, empty} + title("INVOICES SUMMARY")
                + QStringList{number, "println |3|", serials, "print 0 |7|", dash, "println |9|",
                              taxable, "println |100.00|", tax, "println |22.00|", total,
                              "println |122.00|"});
        row("missing figures of the invoices are empty texts",
            R"(<invoicessummary Number="1" firstSerial="2" lastSerial="3" Taxable="4" TAX="5"
                                totals="6" cash="7" notPaid="8" serialnumber="9"/>)",
            QStringList{rule, empty} + title("INVOICES SUMMARY")
                + QStringList{number, empty, serials, "print 0 ||", dash, empty, taxable, empty,
                              tax, empty, total, empty});
        row("figures of the invoices may hold %1",
            R"(<invoicessummary number="%1" firstserial="%2" lastserial="%3" taxable="%4" tax="%5"
                                total="%6"/>)",
            QStringList{rule, empty} + title("INVOICES SUMMARY")
                + QStringList{number, "println |%1|", serials, "print 0 |%2|", dash, "println |%3|",
                              taxable, "println |%4|", tax, "println |%5|", total, "println |%6|"});

        row("summaries in the order of the job, as often as it has them",
            R"(<prefiscalssummary number="1"/><taxrate_item/><prefiscalssummary total="2"/>)",
            title("PREFISCAL SUMMARY") + QStringList{number, "println |1|", total, empty}
                + QStringList{"println |      %                                  |"}
                + title("PREFISCAL SUMMARY") + QStringList{number, empty, total, "println |2|"});

        row("the receipt's number is a shared section", R"(<receipt serialnumber="42"/>)",
            {"println 1 |Serial Number: 42|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the logo is a shared section", "<logo/>", {"printLogo"});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("other spellings are ignored",
            R"(<prefiscalsummary/><receiptsummary/><invoicesummary/><canceledsummary/>
               <taxrateitem/><taxrate/>)",
            {});
        row("elements are matched by case",
            R"(<Date/><prefiscalsSummary/><receiptsSummary/><taxrate_Item/><invoicesSummary/>
               <cancelledSummary/><DATE/>)",
            {});
        row("elements of other documents are ignored",
            R"(<receipe number="1" name="X"/><otherreceipe/><receipe_type/><variant/><totals/>
               <total price="1"/><notPaid price="1"/><statement_list/><statement type="payment"/>)",
            {});
    }

    void report() { compare(); }

    void cancelled_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QStringList>("figures"); // number and total
        QTest::addColumn<QStringList>("rows");
        const auto row = [](const char *name, const QString &attributes, const QStringList &figures,
                            const QStringList &rows) {
            QTest::newRow(name) << attributes << figures << rows;
        };
        const QStringList figures = {"5", "50.00"};
        const QString serialA = "print 0 |A         |";
        const QString totalB = "print 0 |B          |";
        const QString taxRateC = "println |C         |";
        const QString serialD = "print 0 |D         |";
        const QString totalE = "print 0 |E          |";
        const QString taxRateF = "println |F         |";
        const QString serialG = "print 0 |G         |";
        const QString noTotal = "print 0 |           |";
        const QString noTaxRate = "println |          |";

        row("0 attributes", "", {"", ""}, {});
        row("1 attribute", R"(number="5")", {"5", ""}, {});
        row("2 attributes print no rows", R"(number="5" totals="50.00")", figures, {});
        row("3 attributes, a group of one", R"(number="5" totals="50.00" a="A")", figures,
            {serialA, noTotal, noTaxRate});
        row("4 attributes, a group of two", R"(number="5" totals="50.00" a="A" b="B")", figures,
            {serialA, totalB, noTaxRate});
        row("5 attributes, a whole group", R"(number="5" totals="50.00" a="A" b="B" c="C")",
            figures, {serialA, totalB, taxRateC});
        row("6 attributes, a second group of one",
            R"(number="5" totals="50.00" a="A" b="B" c="C" d="D")", figures,
            {serialA, totalB, taxRateC, serialD, noTotal, noTaxRate});
        row("7 attributes, a second group of two",
            R"(number="5" totals="50.00" a="A" b="B" c="C" d="D" e="E")", figures,
            {serialA, totalB, taxRateC, serialD, totalE, noTaxRate});
        row("8 attributes, two whole groups",
            R"(number="5" totals="50.00" a="A" b="B" c="C" d="D" e="E" f="F")", figures,
            {serialA, totalB, taxRateC, serialD, totalE, taxRateF});
        row("9 attributes, a third group of one",
            R"(number="5" totals="50.00" a="A" b="B" c="C" d="D" e="E" f="F" g="G")", figures,
            {serialA, totalB, taxRateC, serialD, totalE, taxRateF, serialG, noTotal, noTaxRate});

        row("groups in the order of the job, whatever the names",
            R"(number="5" totals="50.00" z="A" taxrate="B" serial="C" m="D" total="E" b="F")",
            figures, {serialA, totalB, taxRateC, serialD, totalE, taxRateF});
        row("number and total by name, the groups from the third attribute on",
            R"(x="1" y="2" totals="50.00" number="5" z="C")", figures,
            {"print 0 |50.00     |", "print 0 |5          |", taxRateC});
        row("one attribute of another name", R"(a="A")", {"", ""}, {});
        row("number and total are matched by case", R"(Number="1" total="2")", {"", ""}, {});
        row("empty figures of a group", R"(number="5" totals="50.00" a="" b="" c="")", figures,
            {"print 0 |          |", noTotal, noTaxRate});
        row("figures as wide as their columns",
            R"(number="5" totals="50.00" a="1234567890" b="12345678901" c="abcdefghij")", figures,
            {"print 0 |1234567890|", "print 0 |12345678901|", "println |abcdefghij|"});
        row("figures are whole, whatever their length",
            R"(number="5" totals="50.00" a="12345678901" b="123456789012" c="abcdefghijk")",
            figures, {"print 0 |12345678901|", "print 0 |123456789012|", "println |abcdefghijk|"});
        row("figures may hold %1", R"(number="%4" totals="%5" a="%1" b="%2" c="%3")", {"%4", "%5"},
            {"print 0 |%1        |", "print 0 |%2         |", "println |%3        |"});
    }

    void cancelled()
    {
        QFETCH(QString, attributes);
        QFETCH(QStringList, figures);
        QFETCH(QStringList, rows);
        const TemporaryHome home(reportSettings(R"(paperWidth = "40";)"));
        const QStringList before = {number, "println |" + figures[0] + "|", total,
                                    "println |" + figures[1] + "|"};
        QCOMPARE(RecordingDriver().callsOf("printReport", "<cancelledsummary " + attributes + "/>"),
                 title("CANCELLED DOC SUMMARY") + before + cancelledColumns + rows);
    }

    void paperWidth_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<QString>("line"); // printSeparatorLine()
        QTest::addColumn<QStringList>("labels");
        const auto row = [](const char *name, const QByteArray &setting, const QString &line,
                            const QStringList &labels) {
            QTest::newRow(name) << setting << line << labels;
        };
        const QString line32 = "================================";
        const QStringList labels32 = {"Number...........", "Serials..........", "Taxable..........",
                                      "Tax..............", "TOTAL............"};
        const QStringList bare = {"Number", "Serials", "Taxable", "Tax", "TOTAL"};

        row("40 leaves labels of 25", R"(paperWidth = "40";)",
            "========================================",
            {"Number...................", "Serials..................", "Taxable..................",
             "Tax......................", "TOTAL...................."});
        row("32 leaves labels of 17", R"(paperWidth = "32";)", line32, labels32);
        row("22 leaves labels of 7, the longest", R"(paperWidth = "22";)",
            "======================", {"Number.", "Serials", "Taxable", "Tax....", "TOTAL.."});
        row("19 leaves labels of 4, longer ones are whole", R"(paperWidth = "19";)",
            "===================", {"Number", "Serials", "Taxable", "Tax.", "TOTAL"});
        row("15 leaves nothing, labels are whole", R"(paperWidth = "15";)",
            "===============", bare);
        row("10 is narrower than the values' column", R"(paperWidth = "10";)", "==========", bare);
        row("1", R"(paperWidth = "1";)", "=", bare);
        row("0 is the device's width", R"(paperWidth = "0";)", line32, labels32);
        row("a missing width is the device's", "", line32, labels32);
        row("a negative width", R"(paperWidth = "-5";)", "", bare);
        row("the smallest width", R"(paperWidth = "-2147483648";)", "", bare);
    }

    void paperWidth()
    {
        QFETCH(QByteArray, setting);
        QFETCH(QString, line);
        QFETCH(QStringList, labels);
        const TemporaryHome home(reportSettings(setting));
        const auto label = [&](int i) { return "print 0 |" + labels[i] + "|"; };
        const QStringList separator = {"println |" + line + "|", empty};
        const QStringList figures = {label(0), "println |3|", label(1), "print 0 |7|",
                                     dash,     "println |9|", label(2), "println |4|",
                                     label(3), "println |1|", label(4), "println |5|"};
        QCOMPARE(RecordingDriver().callsOf("printReport",
                                           R"(<invoicessummary number="3" firstserial="7"
                                               lastserial="9" taxable="4" tax="1" total="5"/>)"),
                 separator + title("INVOICES SUMMARY") + figures);
    }

    void columnsDoNotFollowTheSettings()
    {
        const TemporaryHome home(reportSettings(R"(paperWidth = "10"; quantityFieldWidth = "3";
            priceFieldWidth = "7"; totalPriceFieldWidth = "8";)"));
        RecordingDriver driver;
        QCOMPARE(driver.callsOf("printReport", R"(<taxrate_item taxrate="22"/>)"),
                 QStringList("println |    22%                                  |"));
        QCOMPARE(driver.callsOf("printReport", "<receiptssummary/>").last(), taxRates);
        QCOMPARE(driver.callsOf("printReport", "<cancelledsummary/>").last(5), cancelledColumns);
    }

    // The values are labels too: they are printed as they are.
    void labelsAreTranslated_data()
    {
        addColumns();
        const QString numberLabel = "print 0 |<Number>.................|";
        const QString serialsLabel = "print 0 |<Serials>................|";
        const QString totalLabel = "print 0 |<TOTAL>..................|";

        row("dates", R"(<date begindate="Tax" enddate="Number"/>)",
            {"setBold", "setCenterJustify", "println ||", "println |<SUMMARIES>|", "println ||",
             "setCharSize", "print 0 |<BeginDate: >|", "println |Tax|", "print 0 |<EndDate: >|",
             "println |Number|"});
        row("pre-fiscal documents", R"(<prefiscalssummary number="Number" total="TOTAL"/>)",
            title("<PREFISCAL SUMMARY>")
                + QStringList{numberLabel, "println |Number|", totalLabel, "println |TOTAL|"});
        row("receipts",
            R"(<receiptssummary number="Tax" firstserial="Tax" lastserial="Tax" notPaid="Tax"
                                cash="Tax" creditCard="Tax" bancomat="Tax" other="Tax"
                                total="Tax"/>)",
            title("<RECEIPTS SUMMARY>")
                + QStringList{numberLabel, "println |Tax|", serialsLabel, "print 0 |Tax|", dash,
                              "println |Tax|", "println |<Amount not paid: >Tax|",
                              "println |<Cash: >Tax|", "println |<Credit Card: >Tax|",
                              "println |<Bancomat: >Tax|", "println |<Other: >Tax|", totalLabel,
                              "println |Tax|", empty, rule,
                              "println |<TAXRATE>  <TAXABLE>      <TAX>   <AMOUNT>|"});
        row("tax rates",
            R"(<taxrate_item taxrate="TAX" taxable="TAXABLE" tax="Tax" amount="AMOUNT"/>)",
            {"println |   TAX%    TAXABLE        Tax     AMOUNT |"});
        row("invoices",
            R"(<invoicessummary number="Tax" firstserial="Tax" lastserial="Tax" taxable="Tax"
                                tax="Tax" total="Tax"/>)",
            QStringList{rule, empty} + title("<INVOICES SUMMARY>")
                + QStringList{numberLabel, "println |Tax|", serialsLabel, "print 0 |Tax|", dash,
                              "println |Tax|", "print 0 |<Taxable>................|",
                              "println |Tax|", "print 0 |<Tax>....................|",
                              "println |Tax|", totalLabel, "println |Tax|"});
        row("cancelled documents",
            R"(<cancelledsummary number="Tax" totals="Tax" a="SERIAL" b="TOTAL" c="TAXRATE"/>)",
            title("<CANCELLED DOC SUMMARY>")
                + QStringList{numberLabel, "println |Tax|", totalLabel, "println |Tax|", "setBold",
                              empty, "print 0 |<SERIAL>  |", "print 0 |<TOTAL>    |",
                              "println |<TAXRATE> |", "print 0 |SERIAL    |",
                              "print 0 |TOTAL      |", "println |TAXRATE   |"});
    }

    void labelsAreTranslated()
    {
        const BracketTranslator translator;
        compare();
    }

    void titlesFillTheirColumns()
    {
        const TemporaryHome home(reportSettings(R"(paperWidth = "40";)"));
        const Catalogue catalogue({{"TAXRATE", "IVA"},
                                   {"TAXABLE", "IMPON"},
                                   {"TAX", "IMP"},
                                   {"AMOUNT", "TOT"},
                                   {"SERIAL", "N"},
                                   {"TOTAL", "T"}});
        RecordingDriver driver;
        QCOMPARE(driver.callsOf("printReport", "<receiptssummary/>").last(),
                 "println |   IVA      IMPON        IMP        TOT|");
        QCOMPARE(
            driver.callsOf("printReport", "<cancelledsummary/>").last(3),
            QStringList({"print 0 |N         |", "print 0 |T          |", "println |IVA       |"}));
    }

private:
    static void addColumns()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
    }

    static void row(const char *name, const QString &elements, const QStringList &calls)
    {
        QTest::newRow(name) << elements << calls;
    }

    static void compare()
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(reportSettings(R"(paperWidth = "40";)"));
        QCOMPARE(RecordingDriver().callsOf("printReport", elements), calls);
    }
};

KORVEL_TEST(TestReport)

} // namespace tst_report

#include "tst_report.moc"

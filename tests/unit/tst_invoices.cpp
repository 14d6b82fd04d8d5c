// Full and summary invoice, delivery note: which calls each element causes.
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/shown.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/translators.h"

namespace tst_invoices {

constexpr auto invoiceLayout = R"(quantityFieldWidth = "3";
        priceFieldWidth = "7";
        totalPriceFieldWidth = "8";
        paperWidth = "32";
        printCustomer = "true";
        printDate = "true";
        openCashDrawer = "true";)";

constexpr auto deliveryLayout = R"(quantityFieldWidth = "3";
        paperWidth = "32";
        printCustomer = "true";
        printDate = "true";
        openCashDrawer = "true";)";

const QByteArray settings = settingsFile(documentGroup("invoicedoc", invoiceLayout)
                                         + documentGroup("deliverydoc", deliveryLayout));

const QString rule = "println |================================|";

const QStringList fullTitles = {"setBold", "println |Num Description    Price  Amount|",
                                "setCharSize"};
const QStringList summaryTitles = {"setBold", "println |Num Description            Price|",
                                   "setCharSize"};

/// The calls of a tax block with these four rows.
QStringList block(const QStringList &rows)
{
    return QStringList{"setBold", "println ||"} + rows + QStringList{"setCharSize"};
}

/// A back end with a customer block of its own.
class CustomerDriver : public RecordingDriver
{
public:
    void printCustomerHeader(const QXmlAttributes &attributes) override
    {
        calls.append(shown("printCustomerHeader", attributes));
    }
};

/// A back end with a kitchen order of its own, which has no shared sections.
class KitchenDriver : public CustomerDriver
{
public:
    void printPartialOrder(const QString &qName, const QXmlAttributes &attributes) override
    {
        calls.append("printPartialOrder " + shown(qName, attributes));
    }
    bool printSections(const QString &qName, const QXmlAttributes &attributes) override
    {
        calls.append("printSections " + shown(qName, attributes));
        return true;
    }
};

class TestInvoices : public QObject
{
    Q_OBJECT

private slots:
    void fullInvoice_data()
    {
        addColumns();

        row("two items, the titles once, before the first",
            R"(<receipe number="2" name="COFFEE" price="1.20" totalPrice="2.40"/>
               <receipe number="1" name="TEA" price="2.00" totalPrice="2.10"/>)",
            fullTitles
                + QStringList{"println |  2 COFFEE..........1.20    2.40|",
                              "println |  1 TEA.............2.00    2.10|"});
        row("an item named =... is printed", R"(<receipe number="1" name="=TEA"/>)",
            fullTitles + QStringList{"println |  1 =TEA................        |"});
        row("missing attributes are empty texts", "<receipe/>",
            fullTitles + QStringList{"println |    ....................        |"});
        row("attributes are matched by case",
            R"(<receipe Number="1" NAME="TEA" Price="1" totalprice="1"/>)",
            fullTitles + QStringList{"println |    ....................        |"});
        row("attributes of other documents are not read",
            R"(<receipe quantity="1" description="TEA" amount="1" total="1"/>)",
            fullTitles + QStringList{"println |    ....................        |"});
        row("a long name is cut, a long number and long amounts are not",
            R"(<receipe number="10000" name="ABCDEFGHIJKLMNOP" price="12345.67"
                        totalPrice="123456.78"/>)",
            fullTitles + QStringList{"println |10000 ABCDEFGHIJKLM12345.67123456.78|"});
        row("a name of just its column's width is whole",
            R"(<receipe number="100" name="ABCDEFGHIJKLM" price="1234.56" totalPrice="12345.67"/>)",
            fullTitles + QStringList{"println |100 ABCDEFGHIJKLM1234.5612345.67|"});
        row("values may hold %1", R"(<receipe number="%1" name="%2" price="%3" totalPrice="%4"/>)",
            fullTitles + QStringList{"println | %1 %2................%3      %4|"});
        row("amounts are texts", R"(<receipe number="2" name="X" price="1,2" totalPrice="free"/>)",
            fullTitles + QStringList{"println |  2 X................1,2    free|"});
        row("lines of the summary invoice are ignored",
            R"(<receipe_type number="1" name="PIZZE" price="7.00"/>)", {});
    }

    void fullInvoice() { compare("printFullOrderInvoice"); }

    void summaryInvoice_data()
    {
        addColumns();

        row("two lines, the titles once; the price under the last title",
            R"(<receipe_type number="2" name="PIZZE" price="14.00" totalPrice="28.00"/>
               <receipe_type number="3" name="BIBITE" price="9.00"/>)",
            summaryTitles
                + QStringList{"println |  2 x PIZZE.............   14.00|",
                              "println |  3 x BIBITE............    9.00|"});
        row("a line named =... is printed", R"(<receipe_type number="1" name="=X"/>)",
            summaryTitles + QStringList{"println |  1 x =X................        |"});
        row("missing attributes are empty texts", "<receipe_type/>",
            summaryTitles + QStringList{"println |    x ..................        |"});
        row("attributes are matched by case", R"(<receipe_type Number="1" NAME="X" Price="1"/>)",
            summaryTitles + QStringList{"println |    x ..................        |"});
        row("attributes of other documents are not read",
            R"(<receipe_type quantity="1" description="X" totalPrice="1" amount="1" total="1"/>)",
            summaryTitles + QStringList{"println |    x ..................        |"});
        row("a long name is cut, a long number and a long amount are not",
            R"(<receipe_type number="10000" name="ABCDEFGHIJKLMNOP" price="123456.78"/>)",
            summaryTitles + QStringList{"println |10000 x ABCDEFGHIJK.......123456.78|"});
        row("values may hold %1", R"(<receipe_type number="%1" name="%2" price="%3"/>)",
            summaryTitles + QStringList{"println | %1 x %2................      %3|"});
        row("items of the full invoice are ignored",
            R"(<receipe number="1" name="X" price="1.00" totalPrice="1.00"/>)", {});
    }

    void summaryInvoice() { compare("printAbstractOrderInvoice"); }

    void bothInvoices_data()
    {
        addColumns();
        const QString taxable = "println |    Taxable.............  100.00|";
        const QString taxRate = "println |    TaxRate.............      22|";
        const QString tax = "println |    Tax.................   22.00|";
        const QString total = "println |    TOTAL...............  122.00|";
        const QString noTaxable = "println |    Taxable.............        |";
        const QString noTaxRate = "println |    TaxRate.............        |";
        const QString noTax = "println |    Tax.................        |";
        const QString noTotal = "println |    TOTAL...............        |";

        row("the tax block is bold and ends in the normal size",
            R"(<totals taxable="100.00" taxrate="22" tax="22.00" total="122.00"/>)",
            block({taxable, taxRate, tax, total}));
        row("the rows of a tax block do not follow the order of the attributes",
            R"(<totals total="122.00" tax="22.00" taxrate="22" taxable="100.00"/>)",
            block({taxable, taxRate, tax, total}));
        row("a tax block without the taxable amount",
            R"(<totals taxrate="22" tax="22.00" total="122.00"/>)",
            block({noTaxable, taxRate, tax, total}));
        row("a tax block without the tax rate",
            R"(<totals taxable="100.00" tax="22.00" total="122.00"/>)",
            block({taxable, noTaxRate, tax, total}));
        row("a tax block without the tax",
            R"(<totals taxable="100.00" taxrate="22" total="122.00"/>)",
            block({taxable, taxRate, noTax, total}));
        row("a tax block without the total",
            R"(<totals taxable="100.00" taxrate="22" tax="22.00"/>)",
            block({taxable, taxRate, tax, noTotal}));
        row("an empty tax block keeps its rows", "<totals/>",
            block({noTaxable, noTaxRate, noTax, noTotal}));
        row("attributes of a tax block are matched by case",
            R"(<totals Taxable="1" taxRate="2" TaxRate="3" Tax="4" TOTAL="5" price="6"/>)",
            block({noTaxable, noTaxRate, noTax, noTotal}));
        row("each tax block is printed", R"(<totals tax="22.00"/><totals total="122.00"/>)",
            block({noTaxable, noTaxRate, tax, noTotal})
                + block({noTaxable, noTaxRate, noTax, total}));
        row("amounts of a tax block are whole, whatever their length",
            R"(<totals taxable="1234567890.00" taxrate="twenty-two" tax="271604935.80"
                       total="1506172825.80"/>)",
            block({"println |    Taxable.............1234567890.00|",
                   "println |    TaxRate.............twenty-two|",
                   "println |    Tax.................271604935.80|",
                   "println |    TOTAL...............1506172825.80|"}));
        row("amounts of a tax block may hold %1",
            R"(<totals taxable="%1" taxrate="%2" tax="%3" total="%4"/>)",
            block({"println |    Taxable.............      %1|",
                   "println |    TaxRate.............      %2|",
                   "println |    Tax.................      %3|",
                   "println |    TOTAL...............      %4|"}));

        row("the customer block", R"(<customer name="Rossi"/>)",
            {"println |CUSTOMER|", "println 1 |Rossi|", rule});
        row("the invoice's number is a shared section", R"(<invoice serialnumber="42"/>)",
            {"print 1 |Invoice Number:|", "println 1 |42|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the logo is a shared section", "<logo/>", {"printLogo"});
        row("a total of its own is ignored", R"(<total price="9.00" total="9.00"/>)", {});
        row("variants are ignored", R"(<variant number="1" quantity="1" name="X" price="1"/>)", {});
        row("the right spelling of an item is ignored",
            R"(<recipe number="1" name="X"/><recipe_type number="1" name="X"/>)", {});
        row("elements are matched by case",
            R"(<Receipe name="X"/><RECEIPE name="X"/><receipe_Type name="X"/><Totals total="1"/>
               <Customer name="Rossi"/>)",
            {});
        row("elements of other documents are ignored",
            R"(<otherreceipe number="1" name="X"/><notPaid price="1"/><date begindate="1/2/2006"/>
               <prefiscalssummary/><receiptssummary/><taxrate_item/><invoicessummary/>
               <cancelledsummary/><statement_list/><statement type="payment"/>)",
            {});
    }

    void bothInvoices()
    {
        compare("printFullOrderInvoice");
        compare("printAbstractOrderInvoice");
    }

    void customerSwitchedOff_data() { addMethods(); }

    void customerSwitchedOff()
    {
        QFETCH(QString, method);
        const TemporaryHome home(settingsFile(documentGroup("invoicedoc", R"(paperWidth = "32";)")
                                              + documentGroup("deliverydoc", "")));
        QCOMPARE(RecordingDriver().callsOf(method, R"(<customer name="Rossi"/>)"), QStringList());
    }

    void customerIsThatOfTheBackEnd_data() { addMethods(); }

    void customerIsThatOfTheBackEnd()
    {
        QFETCH(QString, method);
        const TemporaryHome home(settings);
        QCOMPARE(
            CustomerDriver().callsOf(method, R"(<customer name="Rossi" telephone="%1" a=""/>)"),
            QStringList("printCustomerHeader name=Rossi telephone=%1 a="));
    }

    void titlesOncePerRun_data()
    {
        addColumns();
        const QString full = "println |  1 TEA.................        |";
        const QString summary = "println |  1 x TEA...............        |";

        row("an invoice before a summary invoice",
            R"(<method name="printFullOrderInvoice"/><receipe number="1" name="TEA"/>
               <method name="printAbstractOrderInvoice"/><receipe_type number="1" name="TEA"/>)",
            fullTitles + QStringList{full, "startSection", summary});
        row("a summary invoice before an invoice",
            R"(<method name="printAbstractOrderInvoice"/><receipe_type number="1" name="TEA"/>
               <method name="printFullOrderInvoice"/><receipe number="1" name="TEA"/>)",
            summaryTitles + QStringList{summary, "startSection", full});
        row("neither a tax block nor an ignored line uses up the titles",
            R"(<method name="printFullOrderInvoice"/><logo/><receipe_type number="1" name="TEA"/>
               <method name="printAbstractOrderInvoice"/><totals/><receipe_type number="1"
               name="TEA"/>)",
            QStringList{"printLogo", "startSection"}
                + block({"println |    Taxable.............        |",
                         "println |    TaxRate.............        |",
                         "println |    Tax.................        |",
                         "println |    TOTAL...............        |"})
                + summaryTitles + QStringList{summary});
        row("a delivery note neither prints the titles nor uses them up",
            R"(<method name="printFullOrderDelivery"/><receipe number="1" name="TEA"/>
               <method name="printFullOrderInvoice"/><receipe number="1" name="TEA"/>)",
            QStringList{"setCharSize", "println |  1 TEA                       |", "startSection"}
                + fullTitles + QStringList{full});
    }

    void titlesOncePerRun()
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf(elements), calls);
    }

    void labelsAreTranslated_data()
    {
        addColumns();
        const QStringList translatedBlock = block({"println |    <Taxable>...........     Tax|",
                                                   "println |    <TaxRate>...........     Num|",
                                                   "println |    <Tax>...............   TOTAL|",
                                                   "println |    <TOTAL>.............   Price|"});
        const QString totals = R"(<totals taxable="Tax" taxrate="Num" tax="TOTAL" total="Price"/>)";

        row("printFullOrderInvoice",
            R"(<receipe number="Num" name="Tax" price="Price" totalPrice="Amount"/>)" + totals,
            QStringList{"setBold", "println |<Num> <Description><Price><Amount>|", "setCharSize",
                        "println |Num Tax............Price  Amount|"}
                + translatedBlock);
        row("printAbstractOrderInvoice",
            R"(<receipe_type number="Num" name="Tax" price="Price"/>)" + totals,
            QStringList{"setBold", "println |<Num> <Description>        <Price>|", "setCharSize",
                        "println |Num x Tax...............   Price|"}
                + translatedBlock);
        row("printFullOrderDelivery", R"(<receipe number="Num" name="Description"/>)",
            {"setCharSize", "println |Num Description               |"});
    }

    void labelsAreTranslated()
    {
        const BracketTranslator translator;
        compare(QTest::currentDataTag());
    }

    void deliveryNote_data()
    {
        addColumns();

        row("an item in the normal size, two short of the line",
            R"(<receipe number="2" name="SPAGHETTI"/>)",
            {"setCharSize", "println |  2 SPAGHETTI                 |"});
        row("an other item in size 1", R"(<otherreceipe number="1" name="ACQUA"/>)",
            {"setCharSize 1", "println |  1 ACQUA                     |"});
        row("variants in the size of the item before them",
            R"(<variant number="1" quantity="1" name="BASILICO"/>
               <variant number="2" quantity="-1" name="AGLIO"/>
               <variant number="3" quantity="2" name="OLIVE"/>)",
            {"println |  1 + BASILICO                |", "println |  2 - AGLIO                   |",
             "println |  3 2 OLIVE                   |"});
        row("a long name is cut, a long number is not",
            R"(<receipe number="10000" name="ABCDEFGHIJKLMNOPQRSTUVWXYZ1234"/>)",
            {"setCharSize", "println |10000 ABCDEFGHIJKLMNOPQRSTUVWXYZ|"});
        row("an item named =... is printed", R"(<receipe number="1" name="=X"/>)",
            {"setCharSize", "println |  1 =X                        |"});
        row("prices are not printed", R"(<receipe number="1" name="X" price="9" totalPrice="9"/>)",
            {"setCharSize", "println |  1 X                         |"});
        row("missing attributes are empty texts", "<receipe/>",
            {"setCharSize", "println |                              |"});
        row("values may hold %1", R"(<receipe number="%1" name="%2"/>)",
            {"setCharSize", "println | %1 %2                        |"});
        row("the customer block", R"(<customer name="Rossi"/>)",
            {"println |CUSTOMER|", "println 1 |Rossi|", rule});
        row("the delivery note's number is a shared section", R"(<delivery serialnumber="42"/>)",
            {"print 1 |Delivery Number:|", "println 1 |42|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the logo is a shared section", "<logo/>", {"printLogo"});
        row("the right spelling of an item is ignored", R"(<recipe number="1" name="X"/>)", {});
        row("elements are matched by case", R"(<Receipe name="X"/><Customer name="Rossi"/>)", {});
        row("elements of other documents are ignored",
            R"(<total price="9.00"/><totals total="9.00"/><notPaid price="1"/><statement/>
               <receipe_type number="1" name="X"/><date/><statement_list/><invoicessummary/>)",
            {});
    }

    void deliveryNote() { compare("printFullOrderDelivery"); }

    void deliveryNoteIsTheKitchenOrderOfTheBackEnd()
    {
        const TemporaryHome home(settings);
        const QStringList calls = {
            "printCustomerHeader name=Rossi",
            "printPartialOrder receipe number=1 name=TEA",
            "printPartialOrder headers b=1 a=2",
            "printPartialOrder totals",
        };
        QCOMPARE(KitchenDriver().callsOf("printFullOrderDelivery",
                                         R"(<customer name="Rossi"/><receipe number="1" name="TEA"/>
                                            <headers b="1" a="2"/><totals/>)"),
                 calls);
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

    static void addMethods()
    {
        QTest::addColumn<QString>("method");
        for (const char *method :
             {"printFullOrderInvoice", "printAbstractOrderInvoice", "printFullOrderDelivery"})
            QTest::newRow(method) << method;
    }

    static void compare(const QString &method)
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf(method, elements), calls);
    }
};

KORVEL_TEST(TestInvoices)

} // namespace tst_invoices

#include "tst_invoices.moc"

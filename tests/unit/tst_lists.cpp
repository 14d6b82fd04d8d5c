// Sold items and statement of account: which calls each element causes.
#include "support/jobs.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"
#include "support/translators.h"

namespace tst_lists {

const QByteArray settings = settingsFile(documentGroup("solddoc", R"(quantityFieldWidth = "3";
        priceFieldWidth = "7";
        totalPriceFieldWidth = "8";
        paperWidth = "32";
        printCustomer = "true";
        printDate = "true";
        openCashDrawer = "true";)") + documentGroup("reportdoc", R"(quantityFieldWidth = "3";
        priceFieldWidth = "8";
        totalPriceFieldWidth = "9";
        paperWidth = "32";
        printCustomer = "true";
        printDate = "true";
        openCashDrawer = "true";)"));

const QString rule = "println |================================|";

class TestLists : public QObject
{
    Q_OBJECT

private slots:
    void sold_data()
    {
        addColumns();

        row("dots lead from the description to the amount",
            R"(<receipe quantity="2" description="PIZZA" amount="14.00"/>)",
            {"setBold", "println |  2 x PIZZA.............   14.00|", "setCharSize"});
        row("each item is bold, without titles",
            R"(<receipe quantity="2" description="PIZZA" amount="14.00"/>
               <receipe quantity="1" description="TEA" amount="2.00"/>)",
            {"setBold", "println |  2 x PIZZA.............   14.00|", "setCharSize", "setBold",
             "println |  1 x TEA...............    2.00|", "setCharSize"});
        row("an item without an amount ends in blanks",
            R"(<receipe quantity="2" description="PIZZA"/>)",
            {"setBold", "println |  2 x PIZZA.............        |", "setCharSize"});
        row("missing attributes are empty texts", "<receipe/>",
            {"setBold", "println |    x ..................        |", "setCharSize"});
        row("attributes are matched by case",
            R"(<receipe Quantity="2" DESCRIPTION="X" Amount="1"/>)",
            {"setBold", "println |    x ..................        |", "setCharSize"});
        row("attributes of other documents are not read",
            R"(<receipe number="2" name="X" price="1" totalPrice="1" total="1"/>)",
            {"setBold", "println |    x ..................        |", "setCharSize"});
        row("a long description is cut, a long quantity and a long amount are not",
            R"(<receipe quantity="10000" description="ABCDEFGHIJKLMNOP" amount="123456.78"/>)",
            {"setBold", "println |10000 x ABCDEFGHIJK.......123456.78|", "setCharSize"});
        row("values may hold %1", R"(<receipe quantity="%1" description="%2" amount="%3"/>)",
            {"setBold", "println | %1 x %2................      %3|", "setCharSize"});
        row("an item described as =... is printed", R"(<receipe quantity="1" description="=X"/>)",
            {"setBold", "println |  1 x =X................        |", "setCharSize"});
        row("the receipt's number is a shared section", R"(<receipt serialnumber="42"/>)",
            {"println 1 |Serial Number: 42|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the logo is a shared section", "<logo/>", {"printLogo"});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("the right spelling of an item is ignored",
            R"(<recipe quantity="2" description="PIZZA" amount="14.00"/>)", {});
        row("elements are matched by case",
            R"(<Receipe quantity="2" description="PIZZA" amount="14.00"/><RECEIPE/>)", {});
        row("elements of other documents are ignored",
            R"(<otherreceipe/><receipe_type/><variant/><total price="1"/><totals/><notPaid/><date/>
               <prefiscalssummary/><receiptssummary/><taxrate_item/><invoicessummary/>
               <cancelledsummary/><statement_list/><statement type="payment"/>)",
            {});
    }

    void sold() { compare("printSold"); }

    void statement_data()
    {
        addColumns();
        const QStringList caption = {"setBold", "println |Date           Descri  Amount|", "reset"};

        row("the titles are bold and end with a reset", "<statement_list/>", caption);
        row("the titles are printed each time", "<statement_list/><statement_list/>",
            caption + caption);
        row("the titles have no attributes",
            R"(<statement_list date="1" type="2" amount="3" description="4"/>)", caption);
        row("dots lead from the type to the amount",
            R"(<statement date="01/02/2006" type="sale" amount="50.00"/>)",
            {"println |01/02/2006:    sale.....50.00|"});
        row("titles again between movements",
            R"(<statement_list/><statement date="01/02/2006" type="sale" amount="50.00"/>
               <statement_list/><statement date="02/02/2006" type="refund" amount="-5.00"/>)",
            caption + QStringList{"println |01/02/2006:    sale.....50.00|"} + caption
                + QStringList{"println |02/02/2006:    refund...-5.00|"});
        row("a movement's description is not printed",
            R"(<statement date="01/02/2006" type="sale" amount="50.00" description="PIZZA"/>)",
            {"println |01/02/2006:    sale.....50.00|"});
        row("a movement without a date", R"(<statement type="sale" amount="50.00"/>)",
            {"println |:              sale.....50.00|"});
        row("a movement without a type", R"(<statement date="01/02/2006" amount="50.00"/>)",
            {"println |01/02/2006:    .........50.00|"});
        row("a movement without an amount", R"(<statement date="01/02/2006" type="sale"/>)",
            {"println |01/02/2006:    sale..........|"});
        row("missing attributes are empty texts", "<statement/>",
            {"println |:              ..............|"});
        row("attributes are matched by case", R"(<statement Date="1" TYPE="2" Amount="3"/>)",
            {"println |:              ..............|"});
        row("attributes of other documents are not read",
            R"(<statement number="1" name="2" price="3" total="4" quantity="5"/>)",
            {"println |:              ..............|"});
        row("a date of just its column's width",
            R"(<statement date="Wed 01/02/06." type="sale" amount="1"/>)",
            {"println |Wed 01/02/06.: sale.........1|"});
        row("a date is whole, whatever its length",
            R"(<statement date="Wednesday 01/02/2006" type="sale" amount="50.00"/>)",
            {"println |Wednesday 01/02/2006: sale.....50.00|"});
        row("an amount of just its column's width",
            R"(<statement date="01/02/2006" type="sale" amount="12345.67"/>)",
            {"println |01/02/2006:    sale..12345.67|"});
        row("an amount is whole, whatever its length",
            R"(<statement date="01/02/2006" type="sale" amount="1234567.89"/>)",
            {"println |01/02/2006:    sale..1234567.89|"});
        row("values may hold %1", R"(<statement date="%1" type="%2" amount="%3"/>)",
            {"println |%1:            %2..........%3|"});
        row("the receipt's number is a shared section", R"(<receipt serialnumber="42"/>)",
            {"println 1 |Serial Number: 42|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the logo is a shared section", "<logo/>", {"printLogo"});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("other spellings are ignored", "<statementlist/><statements/><statement-list/>", {});
        row("elements are matched by case", "<Statement/><statement_List/><STATEMENT_LIST/>", {});
        row("elements of other documents are ignored",
            R"(<receipe quantity="2" description="PIZZA" amount="14.00"/><otherreceipe/><variant/>
               <receipe_type/><total price="1"/><totals/><notPaid/><date begindate="1/2/2006"/>
               <prefiscalssummary/><receiptssummary/><taxrate_item/><invoicessummary/>
               <cancelledsummary/>)",
            {});
    }

    void statement() { compare("printStatementOfAccount"); }

    void untranslatedType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("column"); // 6 characters
        const auto row = [](const char *name, const QString &type, const QString &column) {
            QTest::newRow(name) << type << column;
        };

        row("a long type is cut", "payment", "paymen");
        row("a type of just its column's width", "refund", "refund");
        row("outer blanks stay", " pay ", " pay .");
        row("accents", "però", "però..");
        row("Greek", "πληρωμή", "πληρωμ");
        row("Cyrillic", "платёж", "платёж");
        row("Arabic", "دفع", "دفع...");
        row("Chinese", "付款", "付款....");
        row("Thai, with combining marks", "ชำระ", "ชำระ..");
        row("a pair of UTF-16 units is two characters", "\U0001F4B6", "\U0001F4B6....");
        row("a pair of UTF-16 units is cut in two", "short\U0001F4B6",
            "short" + QString(QChar(0xd83d)));
        row("a byte order mark in front", "&#65279;pay", QString(QChar(0xfeff)) + "pay..");
        row("a byte order mark inside", "p&#65279;ay", "p" + QString(QChar(0xfeff)) + "ay..");
        row("a byte order mark alone", "&#65279;", QString(QChar(0xfeff)) + ".....");
        row("two byte order marks in front", "&#65279;&#65279;pay",
            QString(2, QChar(0xfeff)) + "pay.");
        row("a zero inside", "pay&#0;ed", "pay" + QString(QChar(0)) + "ed");
        row("a zero in front", "&#0;pay", QString(QChar(0)) + "pay..");
        row("a zero at the end", "pay&#0;", "pay" + QString(QChar(0)) + "..");
        row("a count as translations write it", "%n %Ln", "%n %Ln");
        row("marks of XML", "&lt;a&amp;&quot;", "<a&\"..");
    }

    void untranslatedType()
    {
        QFETCH(QString, type);
        QFETCH(QString, column);
        const TemporaryHome home(settings);
        const QString movement =
            "<statement date='01/02/2006' type='" + type + "' amount='50.00'/>";
        const QStringList calls = {"println |01/02/2006:    " + column + "...50.00|"};

        QCOMPARE(RecordingDriver().callsOf("printStatementOfAccount", movement), calls);
        const Catalogue catalogue({{"Amount", "Importo"}});
        QCOMPARE(RecordingDriver().callsOf("printStatementOfAccount", movement), calls);
    }

    void typeThatIsNoText()
    {
        const TemporaryHome home(settings);
        RecordingDriver driver;
        driver.loadValues("report");
        QXmlAttributes attributes;
        attributes.append("type", "", "type", "a" + QString(QChar(0xd83d)) + "b");
        driver.printStatementOfAccount("statement", attributes);
        QCOMPARE(driver.calls, QStringList("println |:              a" + QString(QChar(0xd83d))
                                           + "b...........|"));
    }

    void translatedType_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("column"); // 6 characters
        const auto row = [](const char *name, const QString &type, const QString &column) {
            QTest::newRow(name) << type << column;
        };

        row("a type of the catalogue", "sale", "vendit");
        row("a type beyond Latin-1 of the catalogue", "платёж", "Pagato");
        row("an accented type of the catalogue", "però", "but...");
        row("a type is matched by case", "Sale", "Sale..");
        row("a type is matched as a whole", "sales", "sales.");
        row("a type is matched with its blanks", "sale ", "sale .");
        row("a type with a byte order mark is another", "&#65279;sale",
            QString(QChar(0xfeff)) + "sale.");
        row("a type with a zero is another", "sale&#0;", "sale" + QString(QChar(0)) + ".");
        row("a label of the statement is a type like any other", "Amount", "Import");
        row("a translation may hold %1", "refund", "%1 %n.");
    }

    void translatedType()
    {
        QFETCH(QString, type);
        QFETCH(QString, column);
        const TemporaryHome home(settings);
        const Catalogue catalogue({{"sale", "vendita"},
                                   {"платёж", "Pagato"},
                                   {"però", "but"},
                                   {"Amount", "Importo"},
                                   {"refund", "%1 %n"}});
        QCOMPARE(RecordingDriver().callsOf("printStatementOfAccount",
                                           "<statement date='sale' type='" + type
                                               + "' amount='refund'/>"),
                 QStringList("println |sale:          " + column + "..refund|"));
    }

    void labelsAreTranslated_data()
    {
        addColumns();
        row("printSold", R"(<receipe quantity="Num" description="Amount" amount="Price"/>)",
            {"setBold", "println |Num x Amount............   Price|", "setCharSize"});
        row("printStatementOfAccount",
            R"(<statement_list/><statement date="Date" type="sale" amount="Amount"/>)",
            {"setBold", "println |<Date>         <Descr<Amount>|", "reset",
             "println |Date:          <sale>..Amount|"});
    }

    void labelsAreTranslated()
    {
        const BracketTranslator translator;
        compare(QTest::currentDataTag());
    }

    void widthsAreThoseOfTheDocument()
    {
        const TemporaryHome home(settingsFile(
            documentGroup("solddoc", R"(quantityFieldWidth = "5"; priceFieldWidth = "2";
                totalPriceFieldWidth = "10"; paperWidth = "40";)")
            + documentGroup("reportdoc", R"(quantityFieldWidth = "9"; priceFieldWidth = "10";
                totalPriceFieldWidth = "9"; paperWidth = "40";)")));
        QCOMPARE(RecordingDriver().callsOf(
                     "printSold", R"(<receipe quantity="2" description="PIZZA" amount="14.00"/>)"),
                 QStringList({"setBold", "println |    2 x PIZZA.................     14.00|",
                              "setCharSize"}));
        QCOMPARE(RecordingDriver().callsOf("printStatementOfAccount",
                                           R"(<statement_list/><statement date="01/02/2006"
                                               type="payment" amount="50.00"/>)"),
                 QStringList({"setBold", "println |Date           Description     Amount|", "reset",
                              "println |01/02/2006:    payment..........50.00|"}));
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

    static void compare(const QString &method)
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf(method, elements), calls);
    }
};

KORVEL_TEST(TestLists)

} // namespace tst_lists

#include "tst_lists.moc"

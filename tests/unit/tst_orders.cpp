// Kitchen order and full order: which calls each element causes.
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_orders {

constexpr auto settings = R"(korvel:
{
    doc:
    {
        quantityFieldWidth = "3";
        paperWidth = "32";
        printCustomer = "true";
        printDate = "true";
    };
    prefiscaldoc:
    {
        quantityFieldWidth = "3";
        priceFieldWidth = "7";
        totalPriceFieldWidth = "8";
        paperWidth = "32";
        printCustomer = "true";
    };
};
)";

const QString rule = "println |================================|";

/// A back end that leaves the order information to the document.
class OrderInfoDriver : public RecordingDriver
{
public:
    bool printSections(const QString &qName, const QXmlAttributes &attributes) override
    {
        return qName != "orderinfo" && PrinterDriver::printSections(qName, attributes);
    }
};

class TestOrders : public QObject
{
    Q_OBJECT

private slots:
    void partialOrder_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &elements, const QStringList &calls) {
            QTest::newRow(name) << elements << calls;
        };

        row("an item in the normal size", R"(<receipe number="2" name="SPAGHETTI"/>)",
            {"setCharSize", "println |  2 SPAGHETTI                 |"});
        row("an other item in size 1", R"(<otherreceipe number="1" name="ACQUA"/>)",
            {"setCharSize 1", "println |  1 ACQUA                     |"});
        row("a variant in the size of the item before it",
            R"(<variant number="1" quantity="1" name="BASILICO"/>)",
            {"println |  1 + BASILICO                |"});
        row("a name is cut two short of the line",
            R"(<receipe number="1" name="ABCDEFGHIJKLMNOPQRSTUVWXYZ1234"/>)",
            {"setCharSize", "println |  1 ABCDEFGHIJKLMNOPQRSTUVWXYZ|"});
        row("an item named =... is printed", R"(<receipe number="1" name="=X"/>)",
            {"setCharSize", "println |  1 =X                        |"});
        row("prices are not printed", R"(<receipe number="1" name="X" price="9" totalPrice="9"/>)",
            {"setCharSize", "println |  1 X                         |"});
        row("missing attributes are empty texts", R"(<receipe/>)",
            {"setCharSize", "println |                              |"});
        row("a name may hold %1", R"(<receipe number="%2" name="100%1"/>)",
            {"setCharSize", "println | %2 100%1                     |"});
        row("the customer block", R"(<customer name="Rossi"/>)",
            {"println |CUSTOMER|", "println 1 |Rossi|", rule});
        row("the order information is a shared section", R"(<orderinfo date="1/2/2006"/>)",
            {"setCharSize", "print 1 |Date:|", "println 1 |1/2/2006|", rule});
        row("the total is ignored", R"(<total price="9.00"/>)", {});
        row("the right spelling of an item is ignored", R"(<recipe number="1" name="X"/>)", {});
        row("another letter case is ignored", R"(<Receipe number="1" name="X"/>)", {});
        row("elements of other documents are ignored",
            R"(<totals/><notPaid price="1"/><receipe_type name="X"/><statement/><date/>)", {});
    }

    void partialOrder() { compare("printPartialOrder"); }

    void fullOrder_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &elements, const QStringList &calls) {
            QTest::newRow(name) << elements << calls;
        };
        const QString titles = "println |Num Description    Price  Amount|";

        row("the first item brings the titles",
            R"(<receipe number="2" name="COFFEE" price="1.20" totalPrice="2.40"/>
               <receipe number="1" name="TEA" price="2.00" totalPrice="2.00"/>)",
            {"setBold", titles, "setCharSize", "println |  2 COFFEE..........1.20    2.40|",
             "println |  1 TEA.............2.00    2.00|"});
        row("an item named =... is skipped, the titles come with the next",
            R"(<receipe number="2" name="=COFFEE"/><receipe number="1" name="TEA"/>)",
            {"setBold", titles, "setCharSize", "println |  1 TEA.................        |"});
        row("an item named only = is skipped", R"(<receipe number="2" name="="/>)", {});
        row("an item with a = inside is printed", R"(<receipe name="A=B"/>)",
            {"setBold", titles, "setCharSize", "println |    A=B.................        |"});
        row("an item without a name is printed", R"(<receipe number="1" price="1.00"/>)",
            {"setBold", titles, "setCharSize", "println |  1 ................1.00        |"});
        row("a variant has prices and brings no titles",
            R"(<variant number="1" quantity="-1" name="OLIVE" price="0.50" totalPrice="0.50"/>)",
            {"println |  1 - OLIVE.........0.50    0.50|"});
        row("a variant named =... is printed", R"(<variant quantity="1" name="=A"/>)",
            {"println |    + =A................        |"});
        row("the total is bold, after an empty line", R"(<total price="9.00"/>)",
            {"println ||", "setBold", "println |    TOTAL...............    9.00|"});
        row("each total is printed", R"(<total price="1"/><total/>)",
            {"println ||", "setBold", "println |    TOTAL...............       1|", "println ||",
             "setBold", "println |    TOTAL...............        |"});
        row("the customer block", R"(<customer name="Rossi"/>)",
            {"println |CUSTOMER|", "println 1 |Rossi|", rule});
        row("an other item is ignored", R"(<otherreceipe number="1" name="ACQUA"/>)", {});
        row("elements of other documents are ignored",
            R"(<totals/><notPaid price="1"/><receipe_type name="X"/>)", {});
        row("a long name is cut, a long amount is not",
            R"(<receipe number="10000" name="ABCDEFGHIJKLMNOP" price="12345.67"
                        totalPrice="123456.78"/>)",
            {"setBold", titles, "setCharSize", "println |10000 ABCDEFGHIJKLM12345.67123456.78|"});
    }

    void fullOrder() { compare("printFullOrder"); }

    void variantMark_data()
    {
        QTest::addColumn<QString>("quantity");
        QTest::addColumn<QString>("mark");
        const auto row = [](const char *quantity, const char *mark) {
            QTest::newRow(qPrintable(QString("<%1>").arg(quantity))) << quantity << mark;
        };

        row("-1", "-");
        row("-1.0", "-");
        row("-1e0", "-");
        row("0", "-");
        row("-0", "-");
        row("", "-");
        row("two", "-");
        row("1,0", "-");
        row("1e999", "-");
        row("1", "+");
        row("1.0", "+");
        row(" 1 ", "+");
        row("+1", "+");
        row("2", "2");
        row("-2", "-2");
        row("0.5", "0.5");
        row(" 2 ", " 2 ");
        row("2.50", "2.50");
        row("\u22121", "-");
        row("\u22122", "\u22122"); // what is no number has a "-"
    }

    void variantMark()
    {
        QFETCH(QString, quantity);
        QFETCH(QString, mark);
        const TemporaryHome home(settings);
        const QString variant = "<variant number='1' name='X' quantity='" + quantity + "'/>";

        const QString partial = ("  1 " + mark + " X").leftJustified(30);
        QCOMPARE(RecordingDriver().callsOf("printPartialOrder", variant),
                 QStringList("println |" + partial + "|"));
        const QString full = ("  1 " + mark + " X").leftJustified(24, '.') + "        ";
        QCOMPARE(RecordingDriver().callsOf("printFullOrder", variant),
                 QStringList("println |" + full + "|"));
    }

    void variantWithoutQuantity()
    {
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf("printPartialOrder", R"(<variant name="X"/>)"),
                 QStringList("println |    - X                       |"));
    }

    void orderInformationLeftToTheDocument()
    {
        const TemporaryHome home(settings);
        const QStringList titles = {"setBold", "println |Num Description               |"};
        QCOMPARE(OrderInfoDriver().callsOf("printPartialOrder", "<orderinfo/>"), titles);
        QCOMPARE(OrderInfoDriver().callsOf("printFullOrder", "<orderinfo/>"), QStringList());
    }

    void summaryOrderPrintsNothing()
    {
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf(
                     "printAbstractOrder",
                     R"(<headers a="1"/><company a="1"/><orderinfo/><customer name="Rossi"/>
                        <receipe name="X"/><receipe_type name="X"/><variant/><total price="1"/>)"),
                 QStringList());
    }

private:
    static void compare(const QString &method)
    {
        QFETCH(QString, elements);
        QFETCH(QStringList, calls);
        const TemporaryHome home(settings);
        QCOMPARE(RecordingDriver().callsOf(method, elements), calls);
    }
};

KORVEL_TEST(TestOrders)

} // namespace tst_orders

#include "tst_orders.moc"

// Full and summary receipt: which calls each element causes.
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_receipts {

constexpr auto settings = R"(korvel:
{
    receiptdoc:
    {
        quantityFieldWidth = "3";
        priceFieldWidth = "7";
        totalPriceFieldWidth = "8";
        paperWidth = "32";
        printCustomer = "true";
    };
};
)";

class TestReceipts : public QObject
{
    Q_OBJECT

private slots:
    void fullReceipt_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &elements, const QStringList &calls) {
            QTest::newRow(name) << elements << calls;
        };
        const QString titles = "println |Num Description    Price  Amount|";

        row("two items, the titles once",
            R"(<receipe number="2" name="COFFEE" price="1.20" totalPrice="2.40"/>
               <receipe number="1" name="TEA" price="2.00" totalPrice="2.00"/>)",
            {"setBold", titles, "setCharSize", "println |  2 x COFFEE........1.20    2.40|",
             "println |  1 x TEA...........2.00    2.00|"});
        row("an item named =... is printed", R"(<receipe number="1" name="=TEA"/>)",
            {"setBold", titles, "setCharSize", "println |  1 x =TEA..............        |"});
        row("a long name is cut", R"(<receipe number="1" name="TAGLIATELLE AL RAGU"/>)",
            {"setBold", titles, "setCharSize", "println |  1 x TAGLIATELLE.......        |"});
        row("the total is not bold", R"(<total price="9.00"/>)",
            {"println ||", "println |    TOTAL...............    9.00|"});
        row("a block for each total", R"(<total price="1.00"/><total price="2.00"/>)",
            {"println ||", "println |    TOTAL...............    1.00|", "println ||",
             "println |    TOTAL...............    2.00|"});
        row("the amount not paid", R"(<notPaid price="4.00"/>)",
            {"println ||", "println |    Amount not paid: 4.00|"});
        row("an empty amount not paid leaves the label", R"(<notPaid price=""/>)",
            {"println ||", "println |    Amount not paid: |"});
        row("a missing amount not paid leaves the label", R"(<notPaid/>)",
            {"println ||", "println |    Amount not paid: |"});
        row("the customer block", R"(<customer name="Rossi"/>)",
            {"println |CUSTOMER|", "println 1 |Rossi|",
             "println |================================|"});
        row("variants are ignored", R"(<variant number="1" quantity="1" name="X"/>)", {});
        row("lines of the summary receipt are ignored", R"(<receipe_type number="1" name="X"/>)",
            {});
        row("elements are matched by case", R"(<notpaid price="1"/><Total price="1"/>)", {});
    }

    void fullReceipt() { compare("printFullOrderReceipt"); }

    void summaryReceipt_data()
    {
        QTest::addColumn<QString>("elements");
        QTest::addColumn<QStringList>("calls");
        const auto row = [](const char *name, const QString &elements, const QStringList &calls) {
            QTest::newRow(name) << elements << calls;
        };
        const QString titles = "println |Num Description            Price|";

        row("two lines, the titles once; the price under the last title",
            R"(<receipe_type number="2" name="PIZZE" price="14.00" totalPrice="28.00"/>
               <receipe_type number="3" name="BIBITE" price="9.00"/>)",
            {"setBold", titles, "setCharSize", "println |  2 x PIZZE.............   14.00|",
             "println |  3 x BIBITE............    9.00|"});
        row("the total is not bold", R"(<total price="9.00"/>)",
            {"println ||", "println |    TOTAL...............    9.00|"});
        row("the amount not paid, in Italian", R"(<notPaid price="4.00"/>)",
            {"println ||", "println |   Corrispettivo non pagato: 4.00|"});
        row("an empty amount not paid leaves the label", R"(<notPaid price=""/>)",
            {"println ||", "println |   Corrispettivo non pagato: |"});
        row("a customer is ignored", R"(<customer name="Rossi"/>)", {});
        row("items of the full receipt are ignored", R"(<receipe number="1" name="X"/>)", {});
        row("variants are ignored", R"(<variant number="1" quantity="1" name="X"/>)", {});
    }

    void summaryReceipt() { compare("printAbstractOrderReceipt"); }

    void titlesOncePerRun()
    {
        const TemporaryHome home(settings);
        RecordingDriver driver;
        driver.callsOf("printFullOrderReceipt", R"(<receipe number="1" name="TEA"/>)");
        QCOMPARE(driver.callsOf("printAbstractOrderReceipt", R"(<receipe_type name="TEA"/>)"),
                 QStringList("println |    x TEA...............        |"));
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

KORVEL_TEST(TestReceipts)

} // namespace tst_receipts

#include "tst_receipts.moc"

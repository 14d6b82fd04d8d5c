// Which settings the driver asks for, and in which order, whether or not they change anything.
//
// The store answers without leaving a trace, so this program has its own KVConfiguration, in the
// place of config/configuration.cpp, that takes note of every question.
#include "config/configuration.h"
#include "support/layouttables.h"
#include "support/test.h"

#include <QRegularExpression>

namespace {

QStringList asked; // the keys, in their order

} // namespace

KVConfiguration::KVConfiguration() = default;

QString KVConfiguration::getStrValue(const QString &key) const
{
    asked.append(key);
    return {};
}

class TestLayoutReading : public QObject
{
    Q_OBJECT

private slots:
    void init() { asked.clear(); }

    void nothingIsAskedAtFirst()
    {
        const RecordingDriver driver;
        QCOMPARE(asked, QStringList());
    }

    void everySettingInItsOrder_data()
    {
        QTest::addColumn<QString>("prefix");
        for (const auto &[name, group, prefix] : documentTypes)
            QTest::newRow(name) << prefix;
    }

    // The style is asked for, though nothing comes of it; the billing address comes before the
    // telephone.
    void everySettingInItsOrder()
    {
        QFETCH(QString, prefix);
        QStringList keys = {
            "quantityFieldWidth",
            "priceFieldWidth",
            "totalPriceFieldWidth",
            "paperWidth",
            "paperRows",
            "style",
            "printGeometry",
            "printHeader",
            "printLogo",
            "printCompany",
            "printDeliveryAddress",
            "printBillingAddress",
            "printTelephone",
            "printDate",
            "printTime",
            "printTable",
            "printCustomer",
            "printLicenseNumber",
            "printFiscalCode",
            "printCredit",
            "printWaiter",
            "printNote",
            "openCashDrawer",
        };
        RecordingDriver driver;
        driver.loadValues(QTest::currentDataTag());
        QCOMPARE(asked, keys.replaceInStrings(QRegularExpression("^"), prefix));
    }

    void readAgainEverySettingIsAskedForAgain()
    {
        RecordingDriver driver;
        driver.loadValues("order");
        const QStringList first = asked;
        asked.clear();
        driver.loadValues("order");
        QCOMPARE(asked, first);
    }
};

KORVEL_TEST(TestLayoutReading)
#include "tst_layoutreading.moc"

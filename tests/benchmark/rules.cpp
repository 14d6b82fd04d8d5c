// Benchmarks of single rules: row layout, settings, sale rows.
//
//   bench-rules                  wall time
//   bench-rules -callgrind       instructions, the same in every run
#include "printer/company/companyprinterdriver.h"
#include "support/temporaryhome.h"

#include <QTest>

namespace {

const QByteArray sample = "korvel:{receiptdoc:{quantityFieldWidth=3;priceFieldWidth=7;"
                          "totalPriceFieldWidth=8;paperWidth=32;};};";

/// A settings file of ten groups with as many settings in all.
QByteArray manySettings(int count)
{
    QByteArray bytes = "korvel:{\n";
    for (int group = 0; group < 10; ++group) {
        bytes += "group" + QByteArray::number(group) + ":{\n";
        for (int i = 0; i < count / 10; ++i)
            bytes += "setting" + QByteArray::number(i) + " = \"" + QByteArray::number(i) + "\";\n";
        bytes += "};\n";
    }
    return bytes + "};\n";
}

} // namespace

class Rules : public QObject
{
    Q_OBJECT

private slots:
    void row_data()
    {
        QTest::addColumn<QString>("style");
        for (const char *style :
             {"qdpt", "qxdpt", "qxdtDoubleLine", "qxd", "qd", "date-amount-type"})
            QTest::newRow(style) << style;
    }

    void row()
    {
        QFETCH(QString, style);
        const TemporaryHome home(sample);
        CompanyPrinterDriver driver("/dev/null", false);
        driver.loadValues("receipt");
        QString line;
        QBENCHMARK
        {
            line =
                driver.descriptionRow("2", "Spaghetti alle vongole", "14.00", "28.00", '.', style);
        }
        QVERIFY(!line.isEmpty());
    }

    void saleRow_data()
    {
        QTest::addColumn<QString>("amount");
        QTest::newRow("sale") << "12,50";
        QTest::newRow("deduction") << "-12,50";
    }

    void saleRow()
    {
        QFETCH(QString, amount);
        const TemporaryHome home(sample);
        CompanyPrinterDriver driver("/dev/null", false);
        QBENCHMARK { driver.printRowFiscal("1", "2", "COFFEE", amount); }
    }

    void readSettings_data()
    {
        QTest::addColumn<int>("count");
        QTest::newRow("1,000") << 1000;
        QTest::newRow("10,000") << 10000;
        QTest::newRow("100,000") << 100000;
    }

    void readSettings()
    {
        QFETCH(int, count);
        const TemporaryHome home(manySettings(count));
        QBENCHMARK
        {
            const libconfig::Config settings(home.settingsPath(), "cfg");
            QCOMPARE(settings.lookup("korvel.group9.setting1"), "1");
        }
    }

    void lookUp_data() { readSettings_data(); }

    void lookUp()
    {
        QFETCH(int, count);
        const TemporaryHome home(manySettings(count));
        const libconfig::Config settings(home.settingsPath(), "cfg");
        const QString last = QString::number(count / 10 - 1);
        QString value;
        QBENCHMARK { value = settings.lookup("korvel.group9.setting" + last); }
        QCOMPARE(value, last);
    }
};

QTEST_GUILESS_MAIN(Rules)
#include "rules.moc"

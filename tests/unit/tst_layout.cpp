// Layout settings: every key and the member it fills, and the prefix of each document type.
#include "support/capturedoutput.h"
#include "support/jobs.h"
#include "support/layouttables.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <functional>
#include <utility>

namespace tst_layout {

using korvel::Layout;

/// The settings that are neither 0 nor off, as "paperWidth 32" and "printLogo".
QStringList shown(const Layout &layout)
{
    QStringList settings;
    for (const auto &[key, member] : numbers) {
        if (layout.*member != 0)
            settings.append(QString("%1 %2").arg(key).arg(layout.*member));
    }
    for (const auto &[key, member] : flags) {
        if (layout.*member)
            settings.append(key);
    }
    return settings;
}

class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void nothingIsSetAtFirst()
    {
        const TemporaryHome home(settingsFile(documentGroup("doc", allSet(flags, "true"))));
        QCOMPARE(shown(WideDriver().layout), QStringList());
    }

    void keys_data()
    {
        QTest::addColumn<QString>("documentType");
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QStringList>("values");
        const QString device = QString("paperWidth %1").arg(deviceWidth);

        for (const auto &[documentType, group, prefix] : documentTypes) {
            const auto row = [&, name = documentType, in = group, keys = QByteArray(prefix)](
                                 const char *key, const char *value, const QStringList &values) {
                QTest::newRow((keys + key).constData())
                    << name << settingsFile(documentGroup(in, setting(key, value))) << values;
            };
            row("quantityFieldWidth", "3", {"quantityFieldWidth 3", device});
            row("priceFieldWidth", "7", {"priceFieldWidth 7", device});
            row("totalPriceFieldWidth", "8", {"totalPriceFieldWidth 8", device});
            row("paperWidth", "40", {"paperWidth 40"});
            row("paperRows", "66", {device, "paperRows 66"});
            row("style", "true", {device});
            for (const Flag &flag : flags)
                row(flag.key, "true", {device, flag.key});
        }
    }

    void keys()
    {
        QFETCH(QString, documentType);
        QFETCH(QByteArray, settings);
        QFETCH(QStringList, values);
        const TemporaryHome home(settings);
        WideDriver driver;
        driver.loadValues(documentType);
        QCOMPARE(shown(driver.layout), values);
    }

    void keysAreMatchedByCase()
    {
        const TemporaryHome home(settingsFile(
            documentGroup("doc", setting("PaperWidth", "40") + setting("printlogo", "true"))));
        WideDriver driver;
        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
    }

    void eachTypeReadsItsOwnGroup_data()
    {
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<int>("paperWidth");
        int paperWidth = 40;
        for (const auto &[name, group, prefix] : documentTypes)
            QTest::newRow(name) << prefix << ++paperWidth;
    }

    void eachTypeReadsItsOwnGroup()
    {
        QFETCH(QString, prefix);
        QFETCH(int, paperWidth);
        QByteArray groups;
        int width = 40;
        for (const DocumentType &type : documentTypes)
            groups += documentGroup(type.group, setting("paperWidth", QByteArray::number(++width)));
        const TemporaryHome home(settingsFile(groups));

        RecordingDriver driver;
        driver.loadValues(QTest::currentDataTag());
        QCOMPARE(driver.documentPrefix, prefix);
        QCOMPARE(driver.layout.paperWidth, paperWidth);
    }

    void unknownTypeReadsThePrefiscalGroup()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("doc", setting("paperWidth", "41"))
                         + documentGroup("prefiscaldoc", setting("paperWidth", "42"))));
        const CapturedOutput output;
        RecordingDriver driver;
        driver.loadValues("Bill");
        QCOMPARE(output.bytes(), "Error into PrinterDriver::documentPath:  bill\n");
        QCOMPARE(driver.documentPrefix, "korvel.prefiscaldoc.");
        QCOMPARE(driver.layout.paperWidth, 42);
    }

    void membersStandInTheirOrder()
    {
        const Layout layout;
        const void *previous = nullptr;
        const auto follows = [&](const void *member) {
            return std::less<>()(std::exchange(previous, member), member);
        };
        for (const auto &[key, member] : numbers)
            QVERIFY2(follows(&(layout.*member)), key);
        for (const auto &[key, member] : flags)
            QVERIFY2(follows(&(layout.*member)), key);
    }

    void noSettingsAtAll()
    {
        const CapturedOutput output; // the missing file is reported; not here
        const TemporaryHome home;
        WideDriver driver;
        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
    }

    void readAgainEveryMemberIsOverwritten()
    {
        const QByteArray all = allSet(numbers, "9") + allSet(flags, "true");
        const TemporaryHome home(settingsFile(documentGroup("receiptdoc", all)));
        WideDriver driver;

        driver.loadValues("receipt");
        QStringList everything;
        for (const Number &number : numbers)
            everything.append(QString(number.key) + " 9");
        for (const Flag &flag : flags)
            everything.append(flag.key);
        QCOMPARE(shown(driver.layout), everything);
        QCOMPARE(driver.documentPrefix, "korvel.receiptdoc.");

        driver.loadValues("order");
        QCOMPARE(shown(driver.layout), QStringList("paperWidth 57"));
        QCOMPARE(driver.documentPrefix, "korvel.doc.");

        driver.loadValues("receipt");
        QCOMPARE(shown(driver.layout), everything);
        QCOMPARE(driver.documentPrefix, "korvel.receiptdoc.");
    }

    void documentPath_data()
    {
        QTest::addColumn<QString>("documentType");
        QTest::addColumn<QString>("prefix");
        QTest::addColumn<QByteArray>("message");
        for (const auto &[name, group, prefix] : documentTypes) {
            const QString type = name;
            const QStringList spellings = {type, type.toUpper(),
                                           type.first(1).toUpper() + type.sliced(1)};
            for (const QString &spelling : spellings)
                QTest::newRow(qPrintable(spelling)) << spelling << prefix << QByteArray();
        }

        const auto unknown = [](const char *name, const QString &type, const QByteArray &named) {
            QTest::newRow(name) << type << "korvel.prefiscaldoc."
                                << "Error into PrinterDriver::documentPath:  " + named + '\n';
        };
        unknown("an unknown type", "bill", "bill");
        unknown("an unknown type, in lower case", "BiLL", "bill");
        unknown("no type", "", "");
        unknown("a blank before it", " order", " order");
        unknown("a blank after it", "order ", "order ");
        unknown("part of a type", "orde", "orde");
        unknown("more than a type", "orders", "orders");
        unknown("the name of a group", "receiptdoc", "receiptdoc");
        unknown("the name of a method", "printReport", "printreport");
        unknown("statement has no type of its own", "statement", "statement");
        unknown("a placeholder", "%1", "%1");
    }

    void documentPath()
    {
        QFETCH(QString, documentType);
        QFETCH(QString, prefix);
        QFETCH(QByteArray, message);
        const TemporaryHome home(settingsFile(documentGroup("doc", "")));
        const CapturedOutput output;
        RecordingDriver driver;
        QCOMPARE(driver.documentPath(documentType), prefix);
        QCOMPARE(output.bytes(), message);
        QCOMPARE(driver.documentPrefix, "");
    }
};

KORVEL_TEST(TestLayout)

} // namespace tst_layout

#include "tst_layout.moc"

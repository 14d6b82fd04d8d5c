// The order of settings, as the file has it, whatever order the toolkit keeps them in.
#include "support/store.h"

#include <QTest>

class TestConfigOrder : public QObject
{
    Q_OBJECT

private slots:
    void settingsKeepTheirOrder_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("format");
        QTest::newRow("braces") << "cfg" << QByteArray("a: { %1 b: { %1 }; };");
        QTest::newRow("xml") << "xml" << QByteArray("<a %1><b %1/></a>");
        QTest::newRow("xml with a declaration")
            << "xml" << QByteArray("<?xml version='1.0'?><!-- note --><a %1><b %1/></a>");
    }

    void settingsKeepTheirOrder()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, format);
        const QStringList names = {"quantityFieldWidth", "priceFieldWidth", "totalPriceFieldWidth",
                                   "paperWidth",         "paperRows",       "style",
                                   "printGeometry",      "printHeader",     "printLogo",
                                   "printCompany",       "printDate",       "openCashDrawer"};
        QByteArray settings;
        for (const QString &name : names)
            settings += name.toLatin1() + (notation == "cfg" ? " = \"1\"; " : "=\"1\" ");
        const SettingsFile file(QByteArray(format).replace("%1", settings));

        Store store;
        // Again and again: no order may be left from the tree before.
        for (int reading = 0; reading < 20; ++reading) {
            store.readFile(file.path(), notation);
            const QDomNode a = store.document->elementsByTagName("a").at(0);
            QCOMPARE(store.settingNames(a.toElement()), names);
            QCOMPARE(store.settingNames(a.firstChildElement("b")), names);
        }
    }

    /// A derived class may change a group: its settings are shown as they are now.
    void settingNamesOfAChangedGroup()
    {
        const SettingsFile file("k: { d = 1; c = 2; b = 3; };");
        Store store(file.path(), "cfg");
        QDomElement group = store.document->documentElement().firstChildElement();
        group.removeAttribute("c");
        group.setAttribute("z", "4");
        QCOMPARE(store.settingNames(group), QStringList({"d", "b", "z"}));
        group.setAttribute("a", "5");
        QCOMPARE(store.settingNames(group), QStringList({"d", "b", "a", "z"}));
        QCOMPARE(store.lookup("k.c"), "");
        QCOMPARE(store.lookup("k.z"), "4");

        store.buildConfigFile(QString());
        QCOMPARE(Store(file.path(), "cfg").tree(),
                 QStringList({"*", "  k d=|1| b=|3| a=|5| z=|4|"}));
    }

    void settingNamesOfNoGroup()
    {
        const SettingsFile file(customary);
        const Store store(file.path(), "cfg");
        QCOMPARE(store.settingNames(QDomElement()), QStringList());
        QCOMPARE(store.settingNames(store.document->createElement("korvel")), QStringList());
        QCOMPARE(Store().settingNames(QDomElement()), QStringList());
    }
};

QTEST_GUILESS_MAIN(TestConfigOrder)
#include "tst_configorder.moc"

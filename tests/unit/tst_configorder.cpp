// The order of settings: that of the file, whatever order the toolkit keeps them in.
//
// The toolkit has the attributes of an element in a hash. Its public ways to seed hashes are two:
// at random, and not at all, where the names alone say which order a hash has, the same in every
// run. So hashes have no seed here, and twenty sets of names stand for twenty seeds: each gives its
// hash another order, neither that of the file nor that of the names (theHashHasAnOrderOfItsOwn).
// Whatever went by the hash would not come out as it was set.
#include "support/capturedoutput.h"
#include "support/settingsview.h"
#include "support/store.h"
#include "support/test.h"

#include <QHash>
#include <QSet>
#include <QTextStream>

#include <memory>
#include <random>

namespace tst_configorder {

constexpr unsigned sets = 20;
constexpr int namesOfASet = 12;

/// The names of one set, in the order in which they are set: the same ones in every run.
QStringList namesOf(unsigned set)
{
    std::mt19937 random(set);
    QStringList names;
    while (names.size() < namesOfASet) {
        const QString name = "s" + QString::number(random(), 36);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

/// Each name as a setting, whose value is its place: "sa1 = \"0\"", between these.
QByteArray settingsOf(const QStringList &names, const QByteArray &before, const QByteArray &after)
{
    QByteArray text;
    for (int i = 0; i < names.size(); ++i)
        text += before + names[i].toLatin1() + " = \"" + QByteArray::number(i) + '"' + after;
    return text;
}

/// A group of these settings in a group of them, as the writers write it.
QByteArray bracesOf(const QStringList &names)
{
    return "a: \n{\n" + settingsOf(names, "    ", ";\n") + "    b: \n    {\n"
           + settingsOf(names, "        ", ";\n") + "    };\n\n};\n\n";
}

QByteArray xmlOf(const QStringList &names)
{
    return "\n<a" + settingsOf(names, "\n    ", "") + ">\n\n    <b"
           + settingsOf(names, "\n        ", "") + ">\n    </b>\n</a>\n";
}

/// The names of an element's settings in the order of the hash that it has them in.
QStringList hashed(const QDomElement &group)
{
    QStringList names;
    for (int i = 0; i < group.attributes().count(); ++i)
        names.append(group.attributes().item(i).nodeName());
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

class TestConfigOrder : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QHashSeed::setDeterministicGlobalSeed(); }

    void theHashHasAnOrderOfItsOwn()
    {
        QSet<QList<qsizetype>> orders; // as places in the file
        for (unsigned set = 0; set < sets; ++set) {
            const QStringList names = namesOf(set);
            const FileStore store(bracesOf(names), "cfg");
            const QStringList byHash =
                hashed(store.document->elementsByTagName("a").at(0).toElement());
            QCOMPARE(sorted(byHash), sorted(names));
            QVERIFY(byHash != names);
            QVERIFY(byHash != sorted(names));
            QList<qsizetype> order;
            for (const QString &name : byHash)
                order.append(names.indexOf(name));
            orders.insert(order);
        }
        QCOMPARE(orders.size(), int(sets));
    }

    void everyWayOut_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("notation");
        for (unsigned set = 0; set < sets; ++set)
            for (const char *notation : {"cfg", "xml"})
                QTest::addRow("set %u, %s", set, notation) << namesOf(set) << notation;
    }

    void everyWayOut()
    {
        QFETCH(QStringList, names);
        QFETCH(QString, notation);
        const QByteArray braces = bracesOf(names);
        const QByteArray xml = xmlOf(names);
        FileStore store(notation == "xml" ? xml : braces, notation);

        const QDomElement group = store.document->elementsByTagName("b").at(0).toElement();
        QCOMPARE(store.settingNames(group), names);
        QCOMPARE(linesOf(store.braces()), linesOf(braces));
        QCOMPARE(linesOf(store.xml()), linesOf(xml));
        const QByteArray settings = settingsOf(names, "", "\n").replace('"', "");
        QCOMPARE(
            linesOf(outputOf([&] { store.printConfigTree(); })),
            linesOf("Tree \n" + store.path().toUtf8() + "\na\n" + settings + "b\n" + settings));

        const std::unique_ptr<QTreeWidget> view(store.newConfigListView());
        QStringList rows;
        for (const QString &row : rowsOf(*view))
            if (names.contains(row.trimmed()))
                rows.append(row.trimmed());
        QCOMPARE(rows, names + names);
        store.loadListView(view.get());
        QCOMPARE(linesOf(bytesOf(store.path())), linesOf(notation == "xml" ? xml : braces));
    }

    void ofAGroupFromElsewhereByName_data()
    {
        QTest::addColumn<QStringList>("names");
        for (unsigned set = 0; set < sets; ++set)
            QTest::addRow("set %u", set) << namesOf(set);
    }

    /// Of what was set past the store there is no order but that of the names.
    void ofAGroupFromElsewhereByName()
    {
        QFETCH(QStringList, names);
        QDomDocument elsewhere;
        QDomElement group = elsewhere.createElement("g");
        for (const QString &name : names)
            group.setAttribute(name, "1");
        QString written;
        QTextStream out(&written);
        libconfig::Config().buildConfigFile(group, out);
        out.flush();
        QCOMPARE(written,
                 "g: \n{\n    " + sorted(names).join(" = \"1\";\n    ") + " = \"1\";\n};\n\n");
    }

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

KORVEL_TEST(TestConfigOrder)

} // namespace tst_configorder

#include "tst_configorder.moc"

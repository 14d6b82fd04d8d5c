// The settings in a list view, and the view read back, without a display.
#include "config/configuration.h"
#include "support/settingsview.h"
#include "support/store.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QHeaderView>
#include <QTreeWidget>

namespace tst_listview {

/// The view of a store's settings.
std::unique_ptr<QTreeWidget> viewOf(const libconfig::Config &store)
{
    return std::unique_ptr<QTreeWidget>(store.newConfigListView());
}

class TestListView : public QObject
{
    Q_OBJECT

private slots:
    void rows_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QStringList>("rows"); // below the file's
        const auto row = [](const char *name, const QByteArray &settings, const char *notation,
                            const QStringList &rows) {
            QTest::newRow(name) << settings << notation << rows;
        };

        row("settings in the order of the file, then groups", "a:{z=1;b:{y=2;};m=3;c:{x=4;};};",
            "cfg",
            {"  a", "    z", "      *1", "    m", "      *3", "    b", "      y", "        *2",
             "    c", "      x", "        *4"});
        row("settings outside every group, every top-level group", "x=1;a:{y=2;};b:{z=3;};", "cfg",
            {"  x", "    *1", "  a", "    y", "      *2", "  b", "    z", "      *3"});
        row("an empty value", "a:{x=;};", "cfg", {"  a", "    x", "      *"});
        row("xml", "<a z='1' m='2'><b/></a>", "xml",
            {"  a", "    z", "      *1", "    m", "      *2", "    b"});
        row("what is no group has no row", "<a><!-- c -->text<b x='1'/></a>", "xml",
            {"  a", "    b", "      x", "        *1"});
    }

    void rows()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, notation);
        QFETCH(QStringList, rows);
        const FileStore store(settings, notation);
        QCOMPARE(rowsOf(*viewOf(store)), QStringList(store.path()) + rows);
    }

    void oneColumn()
    {
        const FileStore store("a:{x=1;};", "cfg");
        const auto view = viewOf(store);
        QCOMPARE(view->columnCount(), 1);
        QCOMPARE(view->headerItem()->text(0), "ConfigurationFile");
        QCOMPARE(view->header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
        QVERIFY(!view->isSortingEnabled());
        QVERIFY(!view->parentWidget());
    }

    void emptyStores()
    {
        QCOMPARE(rowsOf(*viewOf(FileStore("", "cfg"))), QStringList());
        QCOMPARE(rowsOf(*viewOf(FileStore("a:{};", "cfg"))), QStringList());
        const std::unique_ptr<QTreeWidget> view(libconfig::Config().newConfigListView());
        QCOMPARE(view->topLevelItemCount(), 0);
    }

    void theViewIsASnapshot()
    {
        const QByteArray before = "a: \n{\n    x = \"1\";\n};\n\n";
        const FileStore store(before, "cfg");
        const auto view = viewOf(store);
        rowAt(*view, "a.x.1")->setText(0, "2");
        QCOMPARE(store.lookup("a.x"), "1");
        QCOMPARE(bytesOf(store.path()), before);
    }

    void unchangedViewRewritesTheFile_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("notation");

        QTest::newRow("braces") << QByteArray("korvel: \n{\n    language: \n    {\n"
                                              "        basedir = \"/opt/lang\";\n"
                                              "        file = \"/\";\n    };\n\n};\n\n")
                                << "cfg";
        QTest::newRow("xml") << QByteArray("\n<korvel>\n\n    <language\n"
                                           "        basedir = \"/opt/lang\"\n"
                                           "        file = \"/\">\n    </language>\n</korvel>\n")
                             << "xml";
        QTest::newRow("the sample settings")
            << bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf") + '\n'
            << "cfg";
        QTest::newRow("settings outside every group")
            << QByteArray("z = \"1\";\nx = \"2\";\na: \n{\n    y = \"3\";\n};\n\n") << "cfg";
        QTest::newRow("an empty group behind a setting")
            << QByteArray("\n<a\n    x = \"1\">\n\n    <b>\n    </b>\n</a>\n") << "xml";
    }

    void unchangedViewRewritesTheFile()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, notation);
        FileStore store(settings, notation);
        const auto view = viewOf(store);
        QVERIFY(QFile::remove(store.path()));
        store.loadListView(view.get());
        QCOMPARE(linesOf(bytesOf(store.path())), linesOf(settings));
        QCOMPARE(bytesOf(store.path()), settings);
    }

    void sampleSettingsSurviveEveryWay()
    {
        const QByteArray sample = bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf");
        FileStore store(sample, "cfg");
        const auto view = viewOf(store);

        QHash<QString, QString> before;
        for (int group = 0; group < view->topLevelItem(0)->child(0)->childCount(); ++group) {
            const QTreeWidgetItem *row = view->topLevelItem(0)->child(0)->child(group);
            for (int i = 0; i < row->childCount(); ++i) {
                const QString key = "korvel." + row->text(0) + '.' + row->child(i)->text(0);
                before.insert(key, store.lookup(key));
            }
        }
        QCOMPARE(before.value("korvel.receiptdoc.totalPriceFieldWidth"), "8");
        QVERIFY(before.size() > 50);

        store.loadListView(view.get());
        const FileStore again(bytesOf(store.path()), "cfg");
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            QCOMPARE(store.lookup(it.key()), it.value());
            QCOMPARE(again.lookup(it.key()), it.value());
        }
    }

    void anEditedValueIsAnswered()
    {
        FileStore store("korvel:{receiptdoc:{paperWidth=32;priceFieldWidth=7;};};", "cfg");
        const auto view = viewOf(store);
        rowAt(*view, "korvel.receiptdoc.paperWidth.32")->setText(0, "40");
        store.loadListView(view.get());
        QCOMPARE(store.lookup("korvel.receiptdoc.paperWidth"), "40");
        QCOMPARE(store.lookup("korvel.receiptdoc.priceFieldWidth"), "7");
        QCOMPARE(FileStore(bytesOf(store.path()), "cfg").lookup("korvel.receiptdoc.paperWidth"),
                 "40");
    }

    void rowsAreWrittenInTheirOrder()
    {
        FileStore store("a:{m=1;c=2;z=3;a=4;q=5;b=6;y=7;d=8;x=9;e=10;w=11;f=12;};", "cfg");
        const auto view = viewOf(store);
        QTreeWidgetItem *group = rowAt(*view, "a");
        group->addChild(group->takeChild(0));       // m goes last
        group->insertChild(0, group->takeChild(5)); // y goes first
        store.loadListView(view.get());
        QCOMPARE(bytesOf(store.path()),
                 "a: \n{\n    y = \"7\";\n    c = \"2\";\n    z = \"3\";\n    a = \"4\";\n"
                 "    q = \"5\";\n    b = \"6\";\n    d = \"8\";\n    x = \"9\";\n"
                 "    e = \"10\";\n    w = \"11\";\n    f = \"12\";\n    m = \"1\";\n};\n\n");
    }

    void twoRowsOfOneName()
    {
        FileStore store("a:{x=1;y=2;};", "cfg");
        const auto view = viewOf(store);
        rowAt(*view, "a.y")->setText(0, "x");
        store.loadListView(view.get());
        QCOMPARE(bytesOf(store.path()), "a: \n{\n    x = \"2\";\n};\n\n");
    }

    void readingBack_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("written");
        const auto row = [](const char *name, const QByteArray &settings,
                            const QByteArray &written) {
            QTest::newRow(name) << settings << written;
        };

        row("a group of groups alone is a group", "a:{b:{c=1;};};",
            "a: \n{\n    b: \n    {\n        c = \"1\";\n    };\n\n};\n\n");
        row("a group three levels deep below the first of its level stays",
            "a:{b:{x=1;c:{y=2;};};d:{z=3;};};",
            "a: \n{\n    b: \n    {\n        x = \"1\";\n        c: \n        {\n"
            "            y = \"2\";\n        };\n\n    };\n\n"
            "    d: \n    {\n        z = \"3\";\n    };\n\n};\n\n");
        row("one below any other group of its level goes to the first",
            "a:{b:{x=1;};d:{z=3;c:{y=2;};};};",
            "a: \n{\n    b: \n    {\n        x = \"1\";\n        c: \n        {\n"
            "            y = \"2\";\n        };\n\n    };\n\n"
            "    d: \n    {\n        z = \"3\";\n    };\n\n};\n\n");
        row("one deeper still, too", "a:{b:{x=1;};d:{z=3;c:{y=2;e:{w=4;};};};};",
            "a: \n{\n    b: \n    {\n        x = \"1\";\n        c: \n        {\n"
            "            y = \"2\";\n            e: \n            {\n"
            "                w = \"4\";\n            };\n\n        };\n\n    };\n\n"
            "    d: \n    {\n        z = \"3\";\n    };\n\n};\n\n");
        row("groups of a second top-level group go to the first", "a:{x=1;};b:{c:{y=2;};};",
            "a: \n{\n    x = \"1\";\n    c: \n    {\n        y = \"2\";\n    };\n\n};\n\n");
        row("a quote is lost with the file", "a:{x=1\"2;};", "a: \n{\n    x = \"12\";\n};\n\n");
    }

    void readingBack()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, written);
        FileStore store(settings, "cfg");
        store.loadListView(viewOf(store).get());
        QCOMPARE(linesOf(bytesOf(store.path())), linesOf(written));
        QCOMPARE(bytesOf(store.path()), written);
    }

    void secondTopLevelGroupStaysInTheTree()
    {
        FileStore store("a:{x=1;};b:{y=2;};", "cfg");
        store.loadListView(viewOf(store).get());
        const QDomElement second =
            store.document->documentElement().firstChildElement().nextSiblingElement();
        QCOMPARE(second.tagName(), "b");
        QCOMPARE(second.attribute("y"), "2");
    }

    void rowsWithoutChildrenAreEmptyGroups()
    {
        FileStore store("a:{x=1;y=2;};", "cfg");
        const auto view = viewOf(store);
        delete rowAt(*view, "a.y.2");
        new QTreeWidgetItem(rowAt(*view, "a"), {"b"});
        store.loadListView(view.get());
        QCOMPARE(bytesOf(store.path()),
                 "a: \n{\n    x = \"1\";\n    y: \n    {\n    };\n\n    b: \n    {\n    };\n\n"
                 "};\n\n");
    }

    /// Only the rows below it tell a group from a setting.
    void aGroupThatBeginsWithAnEmptyOneIsTakenForASetting()
    {
        FileStore store("<a><b/><c x='1'/></a>", "xml");
        store.loadListView(viewOf(store).get());
        QCOMPARE(bytesOf(store.path()), "a = \"b\";\n");
    }

    void anEmptyViewGivesAnEmptyTree()
    {
        FileStore store("a:{x=1;};", "cfg");
        const QTreeWidget view;
        store.loadListView(&view);
        QCOMPARE(store.lookup("a.x"), "");
        QCOMPARE(bytesOf(store.path()), "");
    }

    void noViewChangesNothing()
    {
        FileStore store("a:{x=1;};", "cfg");
        store.loadListView(static_cast<const QTreeWidget *>(nullptr));
        QCOMPARE(store.lookup("a.x"), "1");
        QCOMPARE(bytesOf(store.path()), "a:{x=1;};");
    }

    void anotherNotationWritesNoFile()
    {
        FileStore store("a:{x=1;};", "ini");
        const FileStore other("a:{x=2;};", "cfg");
        store.loadListView(viewOf(other).get());
        QCOMPARE(store.lookup("a.x"), "2");
        QCOMPARE(bytesOf(store.path()), "a:{x=1;};");
    }

    void aFileThatCannotBeWrittenIsPassedOver()
    {
        const QTemporaryDir folder;
        libconfig::Config store;
        store.readFile(folder.path() + "/missing/settings", "xml");
        const FileStore other("a:{x=2;};", "cfg");
        store.loadListView(viewOf(other).get());
        QCOMPARE(store.lookup("a.x"), "2");
        QVERIFY(!QFile::exists(folder.path() + "/missing"));
    }

    void namelessRows()
    {
        FileStore store("a:{x=1;b:{y=2;};};", "cfg");
        const auto view = viewOf(store);
        rowAt(*view, "a.b")->setText(0, "");
        store.loadListView(view.get());
        QCOMPARE(bytesOf(store.path()), "a: \n{\n    x = \"1\";\n};\n\n");
        view->topLevelItem(0)->setText(0, "");
        store.loadListView(view.get());
        QCOMPARE(store.lookup("a.x"), "");
    }

    /// What is read below a nameless row is gone; what comes after it keeps its own order.
    void rowsAfterANamelessOneKeepTheirOrder()
    {
        FileStore store("a:{x=1;};", "cfg");
        for (int i = 0; i < 50; ++i) {
            QTreeWidget view;
            auto *top = new QTreeWidgetItem(&view, {"file"});
            auto *nameless = new QTreeWidgetItem(top, {""});
            auto *lost = new QTreeWidgetItem(nameless, {"g"});
            new QTreeWidgetItem(new QTreeWidgetItem(lost, {"a"}), {"1"});
            new QTreeWidgetItem(new QTreeWidgetItem(lost, {"b"}), {"2"});
            auto *group = new QTreeWidgetItem(top, {"korvel"});
            for (const char *name : {"m", "b", "z", "a"})
                new QTreeWidgetItem(new QTreeWidgetItem(group, {name}), {"1"});
            store.loadListView(&view);
            QCOMPARE(bytesOf(store.path()), "korvel: \n{\n    m = \"1\";\n    b = \"1\";\n"
                                            "    z = \"1\";\n    a = \"1\";\n};\n\n");
        }
    }

    void theUsersSettings()
    {
        const TemporaryHome home("korvel:{doc:{paperWidth=32;};};");
        auto *settings = SyncSingleton<KVConfiguration>::instance();
        const std::unique_ptr<QTreeWidget> view(settings->newConfigListView());
        QCOMPARE(rowsOf(*view), QStringList({home.settingsPath(), "  korvel", "    doc",
                                             "      paperWidth", "        *32"}));
    }
};

KORVEL_TEST(TestListView)

} // namespace tst_listview

#include "tst_listview.moc"

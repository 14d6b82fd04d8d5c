// Files of the store: missing ones, other notations, reading again, and the stream.
#include "support/capturedoutput.h"
#include "support/store.h"
#include "support/test.h"

#include <QRegularExpression>

namespace tst_configfiles {

class TestConfigFiles : public QObject
{
    Q_OBJECT

private slots:
    void emptyStore()
    {
        const Store store;
        QVERIFY(!store.document);
        QCOMPARE(store.fileName, "");
        QCOMPARE(store.fileFormat, "");
        QVERIFY(!store.stream.is_open());
        QCOMPARE(store.lookup("korvel.language.file"), "");
        QCOMPARE(store.lookup(""), "");
    }

    void storeBuiltOnAFile()
    {
        const SettingsFile file(customary);
        const Store store(file.path(), "cfg");
        QCOMPARE(store.fileName, file.path());
        QCOMPARE(store.fileFormat, "cfg");
        QCOMPARE(store.document->documentElement().tagName(), file.path());
        QCOMPARE(store.tree(), customaryTree);
        QCOMPARE(store.lookup("korvel.language.basedir"), "/opt/lang");
    }

    void missingFile_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("reported");
        const auto row = [](const char *name, const QString &notation, const QString &fileName,
                            bool reported) {
            QTest::newRow(name) << notation << fileName << reported;
        };

        row("braces: reported", "cfg", "/no/such/folder/korvel.conf", true);
        row("braces: the path is reported as given", "cfg", "no-such-folder//../caffè %1.conf",
            true);
        row("braces: an empty path", "cfg", "", true);
        row("xml: not reported", "xml", "/no/such/folder/korvel.conf", false);
        row("another notation: not reported", "ini", "/no/such/folder/korvel.conf", false);
    }

    void missingFile()
    {
        QFETCH(QString, notation);
        QFETCH(QString, name);
        QFETCH(bool, reported);
        Store store;
        const QByteArray output = outputOf([&] { store.readFile(name, notation); });
        QCOMPARE(output, reported ? notFound(name) : QByteArray());
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(store.lookup("korvel.language.file"), "");
    }

    void unknownNotation_data()
    {
        QTest::addColumn<QString>("notation");
        for (const char *notation : {"", "CFG", "Xml", "cfg ", " xml", "ini", "cfgxml"})
            QTest::addRow("<%s>", notation) << notation;
    }

    void unknownNotation()
    {
        QFETCH(QString, notation);
        for (const QByteArray &text : {customary, customaryXml}) {
            const SettingsFile file(text);
            Store store;
            QCOMPARE(outputOf([&] { store.readFile(file.path(), notation); }), "");
            QCOMPARE(store.fileName, file.path());
            QCOMPARE(store.fileFormat, notation);
            QCOMPARE(store.tree(), QStringList());
            QCOMPARE(store.lookup("korvel.language.file"), "");
        }
    }

    void folderAsAFile_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::newRow("braces") << "cfg";
        QTest::newRow("xml") << "xml";
    }

    void folderAsAFile()
    {
        QFETCH(QString, notation);
        const SettingsFile file(customary);
        Store store;
        static_cast<void>(outputOf([&] { store.readFile(file.folderPath(), notation); }));
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(store.lookup("korvel.language.file"), "");
    }

    void readAgain_data()
    {
        QTest::addColumn<QByteArray>("first");
        QTest::addColumn<QString>("firstNotation");
        QTest::addColumn<QByteArray>("second");
        QTest::addColumn<QString>("secondNotation");
        QTest::addColumn<QStringList>("tree");
        const auto row = [](const char *name, const QByteArray &first, const QString &firstNotation,
                            const QByteArray &second, const QString &secondNotation,
                            const QStringList &tree) {
            QTest::newRow(name) << first << firstNotation << second << secondNotation << tree;
        };
        const QByteArray stopped = R"(a: { b = "1"; }; }; c: { d = "2"; };)";

        row("after a whole file", customary, "cfg", R"(a: { b = "1"; };)", "cfg",
            {"*", "  a b=|1|"});
        row("after one that stopped at a '}'", stopped, "cfg", customary, "cfg", customaryTree);
        row("after one in the other notation", customaryXml, "xml", stopped, "cfg",
            {"*", "  a b=|1|"});
        row("as xml", stopped, "cfg", R"(<a c="1"/>)", "xml", {"*", "  a c=|1|"});
        row("an empty file leaves nothing of the first", customary, "cfg", "", "cfg", {});
        row("a malformed file leaves nothing of the first", customaryXml, "xml", "<a", "xml", {});
        row("another notation leaves nothing of the first", customary, "cfg", customary, "ini", {});
    }

    void readAgain()
    {
        QFETCH(QByteArray, first);
        QFETCH(QString, firstNotation);
        QFETCH(QByteArray, second);
        QFETCH(QString, secondNotation);
        QFETCH(QStringList, tree);
        const SettingsFile firstFile(first);
        const SettingsFile secondFile(second);
        Store store(firstFile.path(), firstNotation);
        QVERIFY(store.document->hasChildNodes());
        store.readFile(secondFile.path(), secondNotation);
        QCOMPARE(store.fileName, secondFile.path());
        QCOMPARE(store.fileFormat, secondNotation);
        QCOMPARE(store.tree(), tree);
    }

    void readAgainAroundAMissingFile()
    {
        const SettingsFile file(customary);
        Store store(file.path(), "cfg");
        QCOMPARE(outputOf([&] { store.readFile(file.missingPath(), "cfg"); }),
                 notFound(file.missingPath()));
        QCOMPARE(store.tree(), QStringList());
        QCOMPARE(outputOf([&] { store.readFile(file.path(), "cfg"); }), "");
        QCOMPARE(store.tree(), customaryTree);
    }

    void openFile()
    {
        const SettingsFile file("\r\n\x1A\xFF");
        Store store;
        QCOMPARE(outputOf([&] { QVERIFY(store.openFile(file.path())); }), "");
        QVERIFY(store.stream.is_open());
        for (const int byte : {0x0D, 0x0A, 0x1A, 0xFF, EOF})
            QCOMPARE(store.stream.get(), byte);

        const SettingsFile other("x");
        QVERIFY(store.openFile(other.path()));
        QVERIFY(store.openFile(file.path()));
        QCOMPARE(store.stream.get(), '\r');

        QCOMPARE(outputOf([&] { QVERIFY(!store.openFile(file.missingPath())); }),
                 notFound(file.missingPath()));
        QVERIFY(!store.stream.is_open());
        QVERIFY(store.openFile(other.path()));
        QCOMPARE(store.stream.get(), 'x');
    }

    void openFileOfTheStore()
    {
        const SettingsFile file("x");
        Store store(file.path(), "not read");
        QCOMPARE(outputOf([&] { QVERIFY(store.openFile()); }), "");
        QCOMPARE(store.stream.get(), 'x');

        store.readFile(file.missingPath(), "not read");
        QCOMPARE(outputOf([&] { QVERIFY(!store.openFile()); }), notFound(file.missingPath()));
    }

    void closeFile()
    {
        const SettingsFile file("x");
        Store store;
        QVERIFY(store.openFile(file.path()));
        store.closeFile();
        QVERIFY(!store.stream.is_open());
        store.closeFile();
        QVERIFY(!store.stream.is_open());
    }

    void streamAfterReading()
    {
        const SettingsFile whole(customary);
        Store store(whole.path(), "cfg");
        QVERIFY(!store.stream.is_open());

        const SettingsFile stopped("} here;then");
        store.readFile(stopped.path(), "cfg");
        QVERIFY(store.stream.is_open());
        QCOMPARE(store.stream.get(), 't');
        store.closeFile();
        QVERIFY(!store.stream.is_open());
    }

    void jump()
    {
        const SettingsFile file("abc\nab\xFF;c");
        Store store;
        QVERIFY(store.openFile(file.path()));
        QVERIFY(store.jump('b'));
        QCOMPARE(store.stream.get(), 'c');
        QVERIFY(store.jump('b'));
        QVERIFY(store.jump('\xFF'));
        QVERIFY(store.jump(';'));
        QVERIFY(!store.jump('a'));
        QVERIFY(!store.jump('c'));
    }

    void jumpWithoutAFile()
    {
        const SettingsFile file("");
        Store store;
        QVERIFY(!store.jump(';'));
        QVERIFY(store.openFile(file.path()));
        QVERIFY(!store.jump(';'));
        static_cast<void>(outputOf([&] { store.openFile(file.missingPath()); }));
        QVERIFY(!store.jump(';'));
        static_cast<void>(outputOf([&] { store.openFile(file.folderPath()); }));
        QVERIFY(!store.jump(';'));
    }

    void nothingOnStandardError_data()
    {
        QTest::addColumn<QString>("notation");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("braces") << "cfg" << customary;
        QTest::newRow("braces, outside every group") << "cfg" << QByteArray(R"(x = "1";)");
        QTest::newRow("braces, nameless group")
            << "cfg" << QByteArray(R"(a: { : { b: { c = "1"; }; }; d = "2"; };)");
        QTest::newRow("xml") << "xml" << customaryXml;
        QTest::newRow("xml, malformed") << "xml" << QByteArray("<a");
    }

    void nothingOnStandardError()
    {
        QFETCH(QString, notation);
        QFETCH(QByteArray, text);
        const SettingsFile file(text);
        QTest::failOnWarning(QRegularExpression("."));
        const Store store(file.path(), notation);
        QCOMPARE(store.lookup("missing.key"), "");
    }
};

KORVEL_TEST(TestConfigFiles)

} // namespace tst_configfiles

#include "tst_configfiles.moc"

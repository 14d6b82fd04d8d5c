// Both notations out, byte by byte, and the dump of the tree.
#include "config/path.h"
#include "support/bytenames.h"
#include "support/capturedoutput.h"
#include "support/store.h"
#include "support/test.h"

#include <QScopeGuard>
#include <QTextStream>

namespace tst_writers {

// The settings of the notation's own example, in the writer's form.
const QByteArray language = "korvel: \n"
                            "{\n"
                            "    language: \n"
                            "    {\n"
                            "        basedir = \"/opt/lang\";\n"
                            "        file = \"/\";\n"
                            "    };\n"
                            "\n"
                            "};\n"
                            "\n";

const QByteArray languageXml = "\n"
                               "<korvel>\n"
                               "\n"
                               "    <language\n"
                               "        basedir = \"/opt/lang\"\n"
                               "        file = \"/\">\n"
                               "    </language>\n"
                               "</korvel>\n";

/// Shows bytes as lines, so that a difference is seen where it is.
#define COMPARE_BYTES(actual, expected)                                                            \
    do {                                                                                           \
        QCOMPARE(linesOf(actual), linesOf(expected));                                              \
        QCOMPARE(actual, expected);                                                                \
    } while (false)

class TestWriters : public QObject
{
    Q_OBJECT

private slots:
    void both_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("braces");
        QTest::addColumn<QByteArray>("xml");
        const auto row = [](const char *name, const QByteArray &settings, const QByteArray &braces,
                            const QByteArray &xml) {
            QTest::newRow(name) << settings << braces << xml;
        };

        row("a group in a group", "korvel:{language:{basedir=\"/opt/lang\";file=\"/\";};};",
            language, languageXml);
        row("settings come before groups", "a:{x=1;b:{y=2;};z=3;c:{};d:{w=4;};};",
            "a: \n{\n    x = \"1\";\n    z = \"3\";\n    b: \n    {\n        y = \"2\";\n    };\n\n"
            "    d: \n    {\n        w = \"4\";\n    };\n\n};\n\n",
            "\n<a\n    x = \"1\"\n    z = \"3\">\n\n    <b\n        y = \"2\">\n    </b>\n\n"
            "    <d\n        w = \"4\">\n    </d>\n</a>\n");
        row("four blanks a level", "a:{b:{c:{d:{x=1;};};};};",
            "a: \n{\n    b: \n    {\n        c: \n        {\n            d: \n            {\n"
            "                x = \"1\";\n            };\n\n        };\n\n    };\n\n};\n\n",
            "\n<a>\n\n    <b>\n\n        <c>\n\n            <d\n                x = \"1\">\n"
            "            </d>\n        </c>\n    </b>\n</a>\n");
        row("settings outside every group come first, in the brace notation",
            "x = 1; a:{y=2;}; z = 3;", "x = \"1\";\nz = \"3\";\na: \n{\n    y = \"2\";\n};\n\n",
            "x = \"1\";\nz = \"3\";\n\n<a\n    y = \"2\">\n</a>\n");
        row("nothing but settings outside every group", "x = 1;", "x = \"1\";\n", "x = \"1\";\n");
        row("later top-level groups are left out", "a:{x=1;};b:{y=2;};",
            "a: \n{\n    x = \"1\";\n};\n\n", "\n<a\n    x = \"1\">\n</a>\n");
        row("an empty group is not in the tree", "a:{x=1;b:{};};", "a: \n{\n    x = \"1\";\n};\n\n",
            "\n<a\n    x = \"1\">\n</a>\n");
        row("a group whose only group is empty", "a:{b:{};};", "a: \n{\n};\n\n", "\n<a>\n</a>\n");
        row("an empty file", "", "", "");
        row("nothing but empty groups", "a:{};b:{};", "", "");
        row("values go out as stored", "a:{x=  two words  ;y=\"  blanks  \";z=<&>':{}=\n;};",
            "a: \n{\n    x = \"two words\";\n    y = \"  blanks  \";\n    z = "
            "\"<&>':{}=\";\n};\n\n",
            "\n<a\n    x = \"two words\"\n    y = \"  blanks  \"\n    z = \"<&>':{}=\">\n</a>\n");
        row("an empty value", "a:{x=;};", "a: \n{\n    x = \"\";\n};\n\n",
            "\n<a\n    x = \"\">\n</a>\n");
        row("a value of several lines", "a:{x=\"1\n2\";};", "a: \n{\n    x = \"1\n2\";\n};\n\n",
            "\n<a\n    x = \"1\n2\">\n</a>\n");
        row("a repeated setting: the first place, the last value", "a:{x=1;y=2;x=3;};",
            "a: \n{\n    x = \"3\";\n    y = \"2\";\n};\n\n",
            "\n<a\n    x = \"3\"\n    y = \"2\">\n</a>\n");
        row("repeated groups stay two", "a:{b:{x=1;};b:{x=2;};};",
            "a: \n{\n    b: \n    {\n        x = \"1\";\n    };\n\n    b: \n    {\n"
            "        x = \"2\";\n    };\n\n};\n\n",
            "\n<a>\n\n    <b\n        x = \"1\">\n    </b>\n\n    <b\n        x = \"2\">\n"
            "    </b>\n</a>\n");
        row("Latin-1 in the brace notation, UTF-8 in XML", "a:{caff\xE8=\xFF;};",
            "a: \n{\n    caff\xE8 = \"\xFF\";\n};\n\n",
            "\n<a\n    caff\xC3\xA8 = \"\xC3\xBF\">\n</a>\n");
        row("a dozen settings in the order of the file",
            "a:{m=1;c=2;z=3;a=4;q=5;b=6;y=7;d=8;x=9;e=10;w=11;f=12;};",
            "a: \n{\n    m = \"1\";\n    c = \"2\";\n    z = \"3\";\n    a = \"4\";\n"
            "    q = \"5\";\n    b = \"6\";\n    y = \"7\";\n    d = \"8\";\n    x = \"9\";\n"
            "    e = \"10\";\n    w = \"11\";\n    f = \"12\";\n};\n\n",
            "\n<a\n    m = \"1\"\n    c = \"2\"\n    z = \"3\"\n    a = \"4\"\n    q = \"5\"\n"
            "    b = \"6\"\n    y = \"7\"\n    d = \"8\"\n    x = \"9\"\n    e = \"10\"\n"
            "    w = \"11\"\n    f = \"12\">\n</a>\n");
    }

    void both()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, braces);
        QFETCH(QByteArray, xml);
        const FileStore store(settings, "cfg");
        COMPARE_BYTES(store.braces(), braces);
        COMPARE_BYTES(store.xml(), xml);
        // The indentation is back at the margin: a second writing is the same.
        COMPARE_BYTES(store.braces(), braces);
        COMPARE_BYTES(store.xml(), xml);
    }

    void fromXml_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("braces");
        QTest::addColumn<QByteArray>("xml");
        const auto row = [](const char *name, const QByteArray &settings, const QByteArray &braces,
                            const QByteArray &xml) {
            QTest::newRow(name) << settings << braces << xml;
        };

        row("the writer's form", languageXml, language, languageXml);
        row("an empty group is written", "<a><b/><c x='1'/></a>",
            "a: \n{\n    b: \n    {\n    };\n\n    c: \n    {\n        x = \"1\";\n    "
            "};\n\n};\n\n",
            "\n<a>\n\n    <b>\n    </b>\n\n    <c\n        x = \"1\">\n    </c>\n</a>\n");
        row("order of the file", "<a m='1' c='2' z='3' a='4'/>",
            "a: \n{\n    m = \"1\";\n    c = \"2\";\n    z = \"3\";\n    a = \"4\";\n};\n\n",
            "\n<a\n    m = \"1\"\n    c = \"2\"\n    z = \"3\"\n    a = \"4\">\n</a>\n");
        row("a quote, '<' and '&' go out as stored", "<a x='&quot;' y='&lt;' z='&amp;'/>",
            "a: \n{\n    x = \"\"\";\n    y = \"<\";\n    z = \"&\";\n};\n\n",
            "\n<a\n    x = \"\"\"\n    y = \"<\"\n    z = \"&\">\n</a>\n");
        row("behind a comment the root element stands for the file", "<!-- c --><a x='1'><b/></a>",
            "x = \"1\";\nb: \n{\n};\n\n", "x = \"1\";\n\n<b>\n</b>\n");
        row("a comment in a group is a group without a name", "<a><!-- c --></a>",
            "a: \n{\n    : \n    {\n    };\n\n};\n\n", "\n<a>\n\n    <>\n    </>\n</a>\n");
        row("malformed", "<a>", "", "");
    }

    void fromXml()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, braces);
        QFETCH(QByteArray, xml);
        const FileStore store(settings, "xml");
        COMPARE_BYTES(store.braces(), braces);
        COMPARE_BYTES(store.xml(), xml);
    }

    void anEmptyNameIsTheFileRead()
    {
        const FileStore store("korvel:{language:{basedir=/opt/lang;file=/;};};b:{x=1;};", "cfg");
        store.buildConfigFile(QString());
        COMPARE_BYTES(bytesOf(store.path("settings")), language);
        store.buildConfigXmlFile("");
        COMPARE_BYTES(bytesOf(store.path("settings")), languageXml);
    }

    void unchangedFilesAreRewrittenToTheByte_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QString>("notation");

        QTest::newRow("braces") << language << "cfg";
        QTest::newRow("xml") << languageXml << "xml";
        QTest::newRow("the sample settings")
            << bytesOf(KORVEL_SOURCE_DIR "/examples/korvel.conf") + '\n'
            << "cfg";
        QTest::newRow("accents in braces")
            << QByteArray("a: \n{\n    x = \"\xE8\";\n};\n\n") << "cfg";
        QTest::newRow("accents in xml")
            << QByteArray("\n<a\n    x = \"\xC3\xA8\">\n</a>\n") << "xml";
    }

    void unchangedFilesAreRewrittenToTheByte()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QString, notation);
        const FileStore store(settings, notation);
        COMPARE_BYTES(notation == "cfg" ? store.braces() : store.xml(), settings);
    }

    void whatANotationCannotHold()
    {
        const FileStore quoted("<a x='say \"hi\"'/>", "xml");
        QCOMPARE(quoted.lookup("a.x"), "say \"hi\"");
        QCOMPARE(FileStore(quoted.braces(), "cfg").lookup("a.x"), "say hi");
        QCOMPARE(FileStore(quoted.xml(), "xml").lookup("a.x"), "");

        const FileStore marked("a:{x=1 < 2 & 3;};", "cfg");
        QCOMPARE(FileStore(marked.braces(), "cfg").lookup("a.x"), "1 < 2 & 3");
        QCOMPARE(FileStore(marked.xml(), "xml").lookup("a.x"), "");

        const FileStore loose("x=1;a:{y=2;};", "cfg");
        QCOMPARE(FileStore(loose.braces(), "cfg").lookup("a.y"), "2");
        QCOMPARE(FileStore(loose.xml(), "xml").lookup("a.y"), "");

        const FileStore semicolon("<a x='1;2'/>", "xml");
        QCOMPARE(FileStore(semicolon.braces(), "cfg").lookup("a.x"), "1");
    }

    void filesThatCannotBeWritten()
    {
        const FileStore store(language, "cfg");
        const CapturedOutput said;
        store.buildConfigFile(store.path("missing/settings"));
        store.buildConfigXmlFile(store.path("missing/settings"));
        store.buildConfigFile(store.path(""));
        QCOMPARE(said.bytes(), QByteArray());
        QVERIFY(!QFile::exists(store.path("missing")));
        COMPARE_BYTES(bytesOf(store.path("settings")), language);
    }

    void filesOfAnyName_data() { addByteNames(); }

    // Read and written under the bytes of the name, also where the toolkit would take it for
    // another.
    void filesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const QTemporaryDir folder;
        const Sweeper sweeper(folder.path());
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const auto restore = qScopeGuard([&] { QDir::setCurrent(before); });

        const QByteArray absolute = folder.path().toUtf8() + '/' + name;
        for (const QByteArray &bytes : {name, absolute}) {
            const QString path = korvel::path::fromBytes(bytes);
            const QByteArray said = outputOf([&] { libconfig::Config(path, "cfg").closeFile(); });
            QCOMPARE(said,
                     "Error in the method FileReader::open( " + bytes + " ): File Not Found\n");

            const FileStore store(language, "cfg");
            store.buildConfigFile(path);
            COMPARE_BYTES(bytesNamed(absolute), language);
            QCOMPARE(libconfig::Config(path, "cfg").lookup("korvel.language.file"), "/");
            store.buildConfigXmlFile(path);
            COMPARE_BYTES(bytesNamed(absolute), languageXml);
            QCOMPARE(libconfig::Config(path, "xml").lookup("korvel.language.file"), "/");
            QCOMPARE(namesIn(folder.path().toUtf8()), QByteArrayList{name});
            std::filesystem::remove(absolute.toStdString());
        }
    }

    void aLongerFileIsReplaced()
    {
        const FileStore store(language, "cfg");
        QFile file(store.path("braces"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(5000, 'x'));
        file.close();
        COMPARE_BYTES(store.braces(), language);
    }

    void anEmptyStoreWritesNoGroup()
    {
        const QTemporaryDir folder;
        const libconfig::Config empty;
        empty.buildConfigFile(folder.path() + "/braces");
        empty.buildConfigXmlFile(folder.path() + "/xml");
        QCOMPARE(bytesOf(folder.path() + "/braces"), QByteArray());
        QCOMPARE(bytesOf(folder.path() + "/xml"), QByteArray());
        QVERIFY(QFile::exists(folder.path() + "/xml"));
    }

    void anEmptyStoreReadsNothing()
    {
        const CapturedOutput said;
        libconfig::Config empty;
        empty.loadFile();
        empty.loadXmlFile();
        empty.buildConfigFile("");
        QCOMPARE(empty.lookup("a.x"), "");
        QCOMPARE(said.bytes(),
                 QByteArray("Error in the method FileReader::open(  ): File Not Found\n"));
    }

    void aGroupFromElsewhereIsWrittenByName()
    {
        QDomDocument elsewhere;
        QDomElement group = elsewhere.createElement("g");
        for (const char *name : {"m", "c", "z", "a"})
            group.setAttribute(name, "1");
        QString written;
        QTextStream out(&written);
        libconfig::Config().buildConfigFile(group, out);
        out.flush();
        QCOMPARE(written, "g: \n{\n    a = \"1\";\n    c = \"1\";\n    m = \"1\";\n"
                          "    z = \"1\";\n};\n\n");
    }

    void dump_data()
    {
        QTest::addColumn<QByteArray>("settings");
        QTest::addColumn<QByteArray>("lines"); // below the file's name

        QTest::newRow("groups and settings, nothing indented")
            << language << QByteArray("korvel\nlanguage\nbasedir = /opt/lang\nfile = /\n");
        QTest::newRow("every top-level group")
            << QByteArray("x=1;a:{y=2;};b:{z=3;};") << QByteArray("x = 1\na\ny = 2\nb\nz = 3\n");
        QTest::newRow("Latin-1") << QByteArray("caff\xE8:{x=\xFF;};")
                                 << QByteArray("caff\xE8\nx = \xFF\n");
    }

    void dump()
    {
        QFETCH(QByteArray, settings);
        QFETCH(QByteArray, lines);
        const FileStore store(settings, "cfg");
        const CapturedOutput said;
        store.printConfigTree();
        COMPARE_BYTES(said.bytes(), "Tree \n" + store.path("settings").toLatin1() + '\n' + lines);
    }

    void dumpOfNothing()
    {
        const CapturedOutput said;
        libconfig::Config().printConfigTree();
        FileStore("", "cfg").printConfigTree();
        QCOMPARE(said.bytes(), QByteArray("Tree \nTree \n"));
    }

    void dumpOfWhatIsNoGroup()
    {
        // A comment has no line; what follows it has.
        const FileStore store("<a x='1'><!-- c --><b y='2'/></a>", "xml");
        const CapturedOutput said;
        store.printConfigTree(store.document->documentElement().firstChild());
        QCOMPARE(said.bytes(), QByteArray("a\nx = 1\nb\ny = 2\n"));
    }
};

KORVEL_TEST(TestWriters)

} // namespace tst_writers

#include "tst_writers.moc"

// The command line: argument counts, files that are missing or broken, environments.
#include "support/built.h"
#include "support/bytenames.h"
#include "support/files.h"
#include "support/renderer.h"
#include "support/temporaryhome.h"
#include "support/test.h"

namespace tst_commandline {

constexpr auto settings = R"(korvel:
{
    doc: { quantityFieldWidth = "3"; paperWidth = "32"; };
};
)";

constexpr auto sampleJob = R"(<job>
<method name="printPartialOrder"/>
<receipe number="2" name="Caff&#232;"/>
</job>
)";

const QStringList stream = {
    "=o\\n",
    QString::fromUtf8("=\"/(  2 Caffè                      )\\n"),
    "=o\\n",
};

/// A shop's HOME, in which a job lies ready and the renderer runs.
class Shop
{
public:
    Shop() { writeFile(path("job.xml"), sampleJob); }

    [[nodiscard]] QString path(const QString &name) const { return home.path() + '/' + name; }
    [[nodiscard]] Run run(const QStringList &arguments, const QStringList &variables = {}) const
    {
        return runRenderer(arguments, home.path(), variables);
    }
    [[nodiscard]] QStringList output() const { return linesOf(bytesOf(path("stream.out"))); }

    const TemporaryHome home{QByteArray(settings)};
};

class TestCommandLine : public QObject
{
    Q_OBJECT

private slots:
    void argumentCount_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<bool>("accepted");

        QTest::newRow("none") << QStringList() << false;
        QTest::newRow("the job alone") << QStringList{"job.xml"} << false;
        QTest::newRow("job and output") << QStringList{"job.xml", "stream.out"} << true;
        QTest::newRow("one more, ignored") << QStringList{"job.xml", "stream.out", "x"} << true;
        QTest::newRow("two more") << QStringList{"job.xml", "stream.out", "x", "y"} << false;
    }

    void argumentCount()
    {
        QFETCH(QStringList, arguments);
        QFETCH(bool, accepted);
        const Shop shop;
        const Run run = shop.run(arguments);
        VERIFY_SOUND(run);
        if (accepted) {
            QCOMPARE(shop.output(), stream);
            QCOMPARE(linesOf(run.standardOutput), QStringList());
        } else {
            QVERIFY(!QFile::exists(shop.path("stream.out")));
            QCOMPARE(linesOf(run.standardOutput),
                     QStringList("Usage: " + QString(built::print) + " input_file output_file\\n"));
        }
    }

    void inputThatCannotBeRead_data()
    {
        QTest::addColumn<QString>("input");

        QTest::newRow("missing") << "missing.xml";
        QTest::newRow("a folder") << ".";
        QTest::newRow("empty") << "/dev/null";
        QTest::newRow("an empty name") << "";
    }

    void inputThatCannotBeRead()
    {
        QFETCH(QString, input);
        const Shop shop;
        const Run run = shop.run({input, "stream.out"});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput), QStringList());
        QVERIFY(QFile::exists(shop.path("stream.out")));
        QCOMPARE(shop.output(), QStringList());
    }

    void whatStandsBeforeAnErrorIsPrinted_data()
    {
        QTest::addColumn<QByteArray>("job");
        QTest::addColumn<QString>("said");

        QTest::newRow("end tag missing")
            << QByteArray(sampleJob).replace("</job>", "") << QString();
        QTest::newRow("end tag of another element")
            << QByteArray(sampleJob).replace("</job>", "</other>") << QString();
        QTest::newRow("attribute without quotes")
            << QByteArray(sampleJob).replace("</job>", "<receipe number=3/></job>") << QString();
        QTest::newRow("a second root element") << QByteArray(sampleJob) + "<job/>" << QString();
        QTest::newRow("unknown method")
            << QByteArray(sampleJob).replace("</job>", R"(<method name="printFullorder"/></job>)")
            << "File Format Not Supported\\n";
        QTest::newRow("method without a name")
            << QByteArray(sampleJob).replace("</job>", "<method/></job>")
            << "File Format Not Supported\\n";
    }

    void whatStandsBeforeAnErrorIsPrinted()
    {
        QFETCH(QByteArray, job);
        QFETCH(QString, said);
        const Shop shop;
        writeFile(shop.path("job.xml"), job);
        const Run run = shop.run({"job.xml", "stream.out"});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput).join(QString()), said);
        // The whole document was read where only what follows it is wrong; its section stays open.
        QCOMPARE(shop.output(), stream.first(2));
    }

    void jobWithoutAMethod()
    {
        const Shop shop;
        writeFile(shop.path("job.xml"), R"(<job><receipe number="1" name="X"/></job>)");
        const Run run = shop.run({"job.xml", "stream.out"});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput), QStringList());
        QCOMPARE(shop.output(), QStringList("=o\\n"));
    }

    void outputThatCannotBeOpened_data()
    {
        QTest::addColumn<QString>("output");

        QTest::newRow("a folder") << ".";
        QTest::newRow("in a missing folder") << "missing/stream.out";
        QTest::newRow("an empty name") << "";
    }

    void outputThatCannotBeOpened()
    {
        QFETCH(QString, output);
        const Shop shop;
        const Run run = shop.run({"job.xml", output});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput),
                 QStringList("PrintManager::printAbstractOrder(...): Unable To Open File\\n"));
    }

    void diagnosticsComeInOrder()
    {
        const Shop shop;
        QVERIFY(QFile::remove(shop.home.settingsPath()));
        writeFile(shop.path("job.xml"), R"(<job><method name="print"/></job>)");
        const Run run = shop.run({"job.xml", "."});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput),
                 QStringList({"Error in the method FileReader::open( " + shop.home.settingsPath()
                                  + " ): File Not Found\\n",
                              "PrintManager::printAbstractOrder(...): Unable To Open File\\n",
                              "File Format Not Supported\\n"}));
    }

    void missingSettings()
    {
        const Shop shop;
        QVERIFY(QFile::remove(shop.home.settingsPath()));
        const Run run = shop.run({"job.xml", "stream.out"});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput),
                 QStringList("Error in the method FileReader::open( " + shop.home.settingsPath()
                             + " ): File Not Found\\n"));
        // No column widths, and the device's own paper width.
        QCOMPARE(
            shop.output(),
            QStringList({"=o\\n", QString::fromUtf8("=\"/(2 Caffè                         )\\n"),
                         "=o\\n"}));
    }

    void existingOutputIsEmptied()
    {
        const Shop shop;
        writeFile(shop.path("stream.out"), QByteArray(10000, 'x'));
        VERIFY_SOUND(shop.run({"job.xml", "stream.out"}));
        QCOMPARE(shop.output(), stream);
    }

    void outputToStandardOutput()
    {
        const Shop shop;
        const Run run = shop.run({"job.xml", "/dev/stdout"});
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput), stream);
    }

    void jobThatIsItsOwnOutput()
    {
        const Shop shop;
        VERIFY_SOUND(shop.run({"job.xml", "job.xml"}));
        QCOMPARE(bytesOf(shop.path("job.xml")), QByteArray());
    }

    void namesWithBlanksAndAccents()
    {
        const Shop shop;
        const QString name = QString::fromUtf8("caffè del mattino.xml");
        writeFile(shop.path(name), sampleJob);
        VERIFY_SOUND(shop.run({name, "stream.out"}));
        QCOMPARE(shop.output(), stream);
    }

    // A name is the file system's: bytes that need not be text, and no meaning of the toolkit's.

    void inputsOfAnyName_data() { addByteNames(); }

    void inputsOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Shop shop;
        const Sweeper sweeper(shop.home.path());
        const QByteArray folder = shop.home.path().toUtf8();
        writeNamed(folder + '/' + name, sampleJob);
        for (const QByteArray &path : {name, folder + '/' + name}) {
            const Run run = runWithBytes(built::print, {path, "stream.out"}, folder);
            VERIFY_SOUND(run);
            QCOMPARE(linesOf(run.standardOutput), QStringList());
            QCOMPARE(shop.output(), stream);
        }
        QCOMPARE(namesIn(folder), sortedNames({".korvel", "job.xml", "stream.out", name}));
    }

    void outputsOfAnyName_data() { addByteNames(); }

    void outputsOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Shop shop;
        const Sweeper sweeper(shop.home.path());
        const QByteArray folder = shop.home.path().toUtf8();
        for (const QByteArray &path : {name, folder + '/' + name}) {
            const Run run = runWithBytes(built::print, {"job.xml", path}, folder);
            VERIFY_SOUND(run);
            QCOMPARE(linesOf(run.standardOutput), QStringList());
            QCOMPARE(linesOf(bytesNamed(folder + '/' + name)), stream);
            QCOMPARE(namesIn(folder), sortedNames({".korvel", "job.xml", name}));
            writeNamed(folder + '/' + name, QByteArray(10000, 'x')); // is emptied
        }
    }

    void outputInAMissingFolderOfAnyName_data() { addByteNames(); }

    void outputInAMissingFolderOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Shop shop;
        const Sweeper sweeper(shop.home.path());
        const QByteArray folder = shop.home.path().toUtf8();
        const Run run = runWithBytes(built::print, {"job.xml", name + "/stream.out"}, folder);
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput),
                 QStringList("PrintManager::printAbstractOrder(...): Unable To Open File\\n"));
        QCOMPARE(namesIn(folder), sortedNames({".korvel", "job.xml"}));
    }

    void homesOfAnyName_data() { addByteNames(); }

    void homesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Shop shop;
        const Sweeper sweeper(shop.home.path());
        const QByteArray folder = shop.home.path().toUtf8();
        const auto run = [&](const QByteArray &home) {
            return runWithBytes(built::print, {"job.xml", "stream.out"}, folder, home);
        };
        const QByteArray home = folder + '/' + name;
        for (const QByteArray &path : {name, home}) {
            const Run missing = run(path);
            VERIFY_SOUND(missing);
            QCOMPARE(missing.standardOutput, "Error in the method FileReader::open( " + path
                                                 + "/.korvel/conf/korvel.conf ): File Not Found\n");
            QVERIFY(shop.output() != stream);
        }
        QCOMPARE(namesIn(folder), sortedNames({".korvel", "job.xml", "stream.out"}));

        std::filesystem::rename(shop.path(".korvel").toStdString(),
                                shop.path("settings").toStdString());
        std::filesystem::create_directory(home.toStdString());
        std::filesystem::rename(shop.path("settings").toStdString(),
                                (home + "/.korvel").toStdString());
        for (const QByteArray &path : {name, home, folder + "/x//../" + name + '/'}) {
            const Run found = run(path);
            VERIFY_SOUND(found);
            QCOMPARE(found.standardOutput, QByteArray());
            QCOMPARE(shop.output(), stream);
        }
    }

    void workingDirectoriesOfAnyName_data() { addByteNames(); }

    void workingDirectoriesOfAnyName()
    {
        QFETCH(QByteArray, name);
        const Shop shop;
        const Sweeper sweeper(shop.home.path());
        const QByteArray folder = shop.home.path().toUtf8() + '/' + name;
        std::filesystem::create_directory(folder.toStdString());
        writeNamed(folder + "/:in", sampleJob);
        const Run run = runWithBytes(built::print, {":in", ":out"}, folder);
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput), QStringList());
        QCOMPARE(linesOf(bytesNamed(folder + "/:out")), stream);
        QCOMPARE(namesIn(shop.home.path().toUtf8()), sortedNames({".korvel", "job.xml", name}));
    }

    void environmentChangesNothing_data()
    {
        QTest::addColumn<QStringList>("variables");

        QTest::newRow("no locale") << QStringList{"LC_ALL", "LANG", "LOCPATH"};
        QTest::newRow("C") << QStringList{"LC_ALL=C"};
        QTest::newRow("POSIX") << QStringList{"LC_ALL=POSIX"};
        QTest::newRow("C.UTF-8") << QStringList{"LC_ALL=C.UTF-8"};
        QTest::newRow("not UTF-8") << QStringList{"LC_ALL=it_IT.ISO-8859-1"};
        QTest::newRow("not installed") << QStringList{"LC_ALL=xx_YY.UTF-8"};
        QTest::newRow("nonsense") << QStringList{"LC_ALL=%1/..//;"};
        QTest::newRow("no display") << QStringList{"DISPLAY", "WAYLAND_DISPLAY"};
        QTest::newRow("a platform that does not exist") << QStringList{"QT_QPA_PLATFORM=none"};
        QTest::newRow("a debugging toolkit") << QStringList{"QT_LOGGING_RULES=*=true"};
    }

    void environmentChangesNothing()
    {
        QFETCH(QStringList, variables);
        const Shop shop;
        const Run run = shop.run({"job.xml", "stream.out"}, variables);
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(run.standardOutput), QStringList());
        QCOMPARE(shop.output(), stream);
    }

    void withoutAHome()
    {
        const Shop shop;
        const Run run = shop.run({"job.xml", "stream.out"}, {"HOME"});
        VERIFY_SOUND(run);
        const QStringList said = linesOf(run.standardOutput);
        QCOMPARE(said.size(), 1);
        QVERIFY(said.first().startsWith("Error in the method FileReader::open( /"));
        QVERIFY(said.first().endsWith("/.korvel/conf/korvel.conf ): File Not Found\\n"));
        QCOMPARE(shop.output().size(), 3);
    }

    void anEmptyTranslationNameLoadsNothing()
    {
        const Shop shop;
        writeFile(shop.path(".qm"), "not a catalogue");
        const Run run = shop.run({"job.xml", "stream.out"});
        VERIFY_SOUND(run);
        QCOMPARE(shop.output(), stream);
    }

    void theRendererNeedsNoDisplayLibraries()
    {
        QProcess ldd;
        ldd.start("ldd", {built::print});
        QVERIFY(ldd.waitForFinished());
        const QByteArray libraries = ldd.readAllStandardOutput();
        QVERIFY(libraries.contains("libQt6Core.so"));
        QVERIFY2(!libraries.contains("libQt6Gui.so"), libraries.constData());
        QVERIFY2(!libraries.contains("libQt6Widgets.so"), libraries.constData());
    }
};

KORVEL_TEST(TestCommandLine)

} // namespace tst_commandline

#include "tst_commandline.moc"

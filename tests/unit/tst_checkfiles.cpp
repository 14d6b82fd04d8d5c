// The files of korvel-check: standard input, any names, and what cannot be read or written.
#include "support/built.h"
#include "support/bytenames.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <algorithm>

namespace tst_checkfiles {

/// A name as --json gives it: half a pair for a byte that is no UTF-8, what does not print escaped.
QByteArray inJson(const QByteArray &name)
{
    QByteArray text;
    for (QByteArrayView rest = name; !rest.isEmpty();) {
        qsizetype length = std::min<qsizetype>(4, rest.size());
        while (length > 0 && !rest.first(length).isValidUtf8())
            --length;
        text += length > 0 ? rest.first(length).toByteArray()
                           : "\\udc" + rest.first(1).toByteArray().toHex();
        rest = rest.sliced(std::max<qsizetype>(1, length));
    }
    return text.replace("\x1b", "\\u001b").replace("\xEF\xBB\xBF", "\\ufeff");
}

class TestCheckFiles : public QObject
{
    Q_OBJECT

private slots:
    void standardInput()
    {
        const CheckDesk desk;
        const Run alone = desk.run({"-"}, jobWithError);
        VERIFY_ENDED(alone, 1);
        QCOMPARE(alone.standardOutput, "-" + error);

        const Run between = desk.run({"warning.xml", "-", "error.xml"}, jobWithWarning);
        VERIFY_ENDED(between, 1);
        QCOMPARE(linesOf(between.standardOutput),
                 linesOf("warning.xml" + warning + "-" + warning + "error.xml" + error));

        const Run empty = desk.run({"-"}, "");
        VERIFY_ENDED(empty, 1);
        QVERIFY2(empty.standardOutput.startsWith("-:1:1: error: ")
                     && empty.standardOutput.endsWith(" [malformed-xml]\n"),
                 empty.standardOutput.constData());
    }

    void whatCannotBeRead_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("output");
        const auto row = [](const char *what, const QStringList &arguments,
                            const QByteArray &output = {}) {
            QTest::newRow(what) << arguments << output;
        };

        row("a missing job", {"missing.xml"});
        row("a folder", {"."});
        row("an empty name", {""});
        row("a missing job among others: these are checked",
            {"warning.xml", "missing.xml", "error.xml"},
            "warning.xml" + warning + "error.xml" + error);
        row("a missing job behind an error", {"error.xml", "missing.xml", "clean.xml"},
            "error.xml" + error);
        row("missing settings", {"--settings", "missing.conf", "error.xml"});
        row("settings in a folder", {"--settings", ".", "error.xml"});
        row("settings for a job: the others are checked", {"korvel.conf", "error.xml"},
            "error.xml" + error);
        // The renderer takes what is no regular file for missing settings.
        row("settings in a device", {"--settings", "/dev/null"});
        row("settings in standard input", {"--settings", "-"});
    }

    void whatCannotBeRead()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, output);
        const Run run = CheckDesk().run(arguments);
        VERIFY_TROUBLE(run, output);
    }

    /// Settings that are given as a job, which what is in them shows.
    void settingsForAJob()
    {
        const CheckDesk desk;
        const QByteArray said = "settings.xml: settings, not a job; check them with korvel-check "
                                "--settings FILE\n";
        for (const QByteArray settings :
             {"korvel:\n{\n};\n", "\xEF\xBB\xBFkorvel: { };", "# ours\nKorvel: { doc: { }; };",
              "doc: { paperWidth = 32; };"}) {
            writeFile(desk.path("settings.xml"), settings);
            const Run run = desk.run({"settings.xml"});
            VERIFY_TROUBLE(run, QByteArray());
            QCOMPARE(run.standardError, "korvel-check: " + said);
        }
        for (const QByteArray job :
             {"paperWidth", "x: { y = 1; };", "<job a=\"korvel: {\" paperWidth=\"32\"/>"}) {
            writeFile(desk.path("settings.xml"), job);
            VERIFY_ENDED(desk.run({"settings.xml"}), 1);
        }
    }

    void filesOfAnyName_data() { addByteNames(); }

    void filesOfAnyName()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, shown);
        const CheckDesk desk;
        const Sweeper sweeper(desk.folder.path());
        const QByteArray folder = desk.folder.path().toUtf8();
        const QByteArray path = folder + '/' + name;
        const QByteArray missing = "korvel-check: " + shown + ": No such file or directory\n";
        const auto run = [&](const QByteArrayList &arguments) {
            return runWithBytes(built::check, arguments, folder);
        };

        const Run missingJob = run({"--", name});
        VERIFY_TROUBLE(missingJob, QByteArray());
        QCOMPARE(missingJob.standardError, missing);
        const Run missingSettings = run({"--settings", name});
        VERIFY_TROUBLE(missingSettings, QByteArray());
        QCOMPARE(missingSettings.standardError, missing);

        writeNamed(path, jobWithError);
        const Run job = run({"--", name});
        VERIFY_ENDED(job, 1);
        QCOMPARE(linesOf(job.standardOutput), linesOf(shown + error));
        const Run json = run({"--json", "--", name});
        VERIFY_ENDED(json, 1);
        QVERIFY2(json.standardOutput.contains("\"file\":\"" + inJson(name) + "\","),
                 json.standardOutput.constData());
        QCOMPARE(refusedBy(checkSchema, json.standardOutput), QStringList());

        writeNamed(path, bytesOf(desk.path("korvel.conf")));
        const Run settings = run({"--settings", name});
        VERIFY_ENDED(settings, 0);
        QCOMPARE(linesOf(settings.standardOutput),
                 linesOf(QByteArray(settingsWarning).replace("korvel.conf", shown)));

        std::filesystem::remove(path.toStdString());
        std::filesystem::create_directory(path.toStdString());
        const Run inFolder = run({"--settings", name});
        VERIFY_TROUBLE(inFolder, QByteArray());
        QCOMPARE(inFolder.standardError, "korvel-check: " + shown + ": no regular file\n");
    }

    void filesThatAreTooLarge()
    {
        const CheckDesk desk;
        QFile file(desk.path("large"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(qint64(64) * 1024 * 1024 + 1));
        VERIFY_TROUBLE(desk.run({"large", "error.xml"}), "error.xml" + error);
        VERIFY_TROUBLE(desk.run({"--settings", "large", "error.xml"}), QByteArray());
    }

    void outputThatCannotBeWritten_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("findings") << QStringList{"error.xml"};
        QTest::newRow("JSON") << QStringList{"--json", "error.xml"};
        QTest::newRow("schema") << QStringList{"--schema"};
        QTest::newRow("XSD") << QStringList{"--schema", "xsd"};
        QTest::newRow("explanation") << QStringList{"--explain", "limit"};
        QTest::newRow("codes") << QStringList{"--list-codes"};
        QTest::newRow("help") << QStringList{"--help"};
    }

    void outputThatCannotBeWritten()
    {
        QFETCH(QStringList, arguments);
        const CheckDesk desk;
        VERIFY_TROUBLE(checker(arguments, {desk.folder.path(), {}, {}, "/dev/full"}), QByteArray());
    }
};

KORVEL_TEST(TestCheckFiles)

} // namespace tst_checkfiles

#include "tst_checkfiles.moc"

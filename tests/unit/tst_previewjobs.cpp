// Jobs that korvel-preview shows: rendered by which settings, what is said of them, what it leaves.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/schemajobs.h"
#include "support/streams.h"
#include "support/test.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <csignal>

namespace tst_previewjobs {

const QString top = KORVEL_SOURCE_DIR "/";
const QByteArray total = "<job><method name=\"printFullOrderReceipt\"/>"
                         "<receipe number=\"1\" name=\"Pizza\" price=\"9.00\" totalPrice=\"9.00\"/>"
                         "<total price=\"9.00\"/></job>\n";

/// A home without settings, and a folder for temporary files that nothing else writes to.
class Shop
{
public:
    Shop()
    {
        QDir(folder.path()).mkpath("home/.korvel/conf");
        QDir(folder.path()).mkpath("tmp");
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QString settings() const { return path("home/.korvel/conf/korvel.conf"); }
    [[nodiscard]] QStringList variables() const
    {
        return {"HOME=" + path("home"), "TMPDIR=" + path("tmp")};
    }
    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return preview(arguments, {folder.path(), variables(), input});
    }
    [[nodiscard]] QStringList leftBehind() const
    {
        return QDir(path("tmp")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const QTemporaryDir folder;
};

/// Settings of a receipt on paper of so many columns.
QByteArray settingsOf(const QByteArray &width)
{
    return "korvel:\n{\n    receiptdoc:\n    {\n        paperWidth = \"" + width
           + "\";\n        quantityFieldWidth = \"3\";\n        priceFieldWidth = \"6\";\n"
             "        totalPriceFieldWidth = \"7\";\n    };\n};\n";
}

class TestPreviewJobs : public QObject
{
    Q_OBJECT

private slots:
    /// A job of the sample shop is shown as its stream is, and neither is wrong.
    void aJobIsShownAsItsStreamIs_data() { addExampleJobs(); }

    void aJobIsShownAsItsStreamIs()
    {
        QFETCH(QString, path);
        const Shop shop;
        const QString conf = top + "examples/korvel.conf";
        const QString expected = examples + QFileInfo(path).completeBaseName() + ".out";
        const Run job = shop.run({"--settings", conf, path});
        const Run stream = shop.run({expected});
        VERIFY_ENDED(job, 0);
        VERIFY_ENDED(stream, 0);
        QCOMPARE(linesOf(job.standardOutput), linesOf(stream.standardOutput));
        QCOMPARE(job.standardError.count('\n'), stream.standardError.count('\n'));
        QCOMPARE(shop.leftBehind(), QStringList());

        // The guard of a script lets each through.
        const Run guard = runProgram("sh",
                                     {"-c", "\"$0\" -q \"$1\" > /dev/null && cat \"$1\" > printed",
                                      built::preview, expected},
                                     {shop.folder.path(), shop.variables(), {}});
        VERIFY_ENDED(guard, 0);
        QCOMPARE(bytesOf(shop.path("printed")), bytesOf(expected));
    }

    /// The settings are those that are named, or else the user's, or else the sample's.
    void theSettingsOfAJob()
    {
        const Shop shop;
        writeFile(shop.path("job.xml"), total);
        writeFile(shop.path("narrow.conf"), settingsOf("24"));
        const QByteArray sample = "│Num Description    Price  Amount│\n";
        const QByteArray note = "korvel-preview: shown by the sample shop's settings: there are no "
                                "settings in "
                                + shop.settings().toUtf8()
                                + "; this takes the sample shop's: install -Dm644 /";
        const QByteArray command = "/share/korvel-print/korvel.conf ~/.korvel/conf/korvel.conf\n";

        const Run bySample = shop.run({"job.xml"});
        VERIFY_ENDED(bySample, 0);
        QVERIFY2(bySample.standardOutput.contains(sample), bySample.standardOutput.constData());
        QVERIFY2(bySample.standardError.startsWith(note), bySample.standardError.constData());
        QVERIFY2(bySample.standardError.endsWith(command), bySample.standardError.constData());
        QCOMPARE(bySample.standardError.count('\n'), 1);
        QCOMPARE(linesOf(shop.run({"--quiet", "job.xml"}).standardError), QStringList());

        writeFile(shop.settings(), settingsOf("28"));
        const Run byUser = shop.run({"job.xml"});
        VERIFY_ENDED(byUser, 0);
        QVERIFY2(byUser.standardOutput.contains("│  1 x Pizza......9.00   9.00    │\n"),
                 byUser.standardOutput.constData());
        QCOMPARE(linesOf(byUser.standardError), QStringList());

        const Run byFile = shop.run({"--settings", "narrow.conf", "job.xml"});
        VERIFY_ENDED(byFile, 0);
        QVERIFY(byFile.standardOutput != byUser.standardOutput);
        QVERIFY2(byFile.standardOutput.contains("│  1 x Pizza..9.00   9.00        │\n"),
                 byFile.standardOutput.constData());
        QCOMPARE(bytesOf(shop.settings()), settingsOf("28"));
        QCOMPARE(shop.leftBehind(), QStringList());

        VERIFY_TROUBLE(shop.run({"--settings", "none.conf", "job.xml"}));
        VERIFY_TROUBLE(shop.run({"--settings", ".", "job.xml"}));
        VERIFY_TROUBLE(shop.run({"--settings", "-", "job.xml"}));
        QVERIFY(QFile::remove(shop.settings()));
        QVERIFY(QDir().mkdir(shop.settings()));
        VERIFY_TROUBLE(shop.run({"job.xml"}));
    }

    void whatIsAJob_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isJob");
        const auto row = [](const char *name, const QByteArray &bytes, bool isJob) {
            QTest::newRow(name) << bytes << isJob;
        };
        row("a job", total, true);
        row("a declaration before it", "<?xml version=\"1.0\"?>\n" + total, true);
        row("blanks before it", " \n\t" + total, true);
        row("a byte order mark before it", "\xEF\xBB\xBF" + total, true);
        row("UTF-16, little end first", QByteArray("\xFF\xFE<\0j\0", 6), true);
        row("UTF-16, big end first", QByteArray("\xFE\xFF\0<\0j", 6), true);
        row("a stream", documentOf("x"), false);
        row("an empty file", "", false);
        row("a text", "x<y", false);
    }

    void whatIsAJob()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isJob);
        const Shop shop;
        const Run byContent = shop.run({"--json", "-"}, bytes);
        const Run asJob = shop.run({"--json", "--job", "-"}, bytes);
        const Run asStream = shop.run({"--json", "--stream", "-"}, bytes);
        QVERIFY(asJob.standardError != asStream.standardError);
        QCOMPARE(linesOf(byContent.standardError),
                 linesOf((isJob ? asJob : asStream).standardError));
        QCOMPARE(linesOf(byContent.standardOutput),
                 linesOf((isJob ? asJob : asStream).standardOutput));
        QCOMPARE(byContent.status, (isJob ? asJob : asStream).status);
    }

    /// What the checker calls an error is said in its words, before what is wrong with the stream.
    void errorsOfTheChecker()
    {
        const Shop shop;
        writeFile(shop.settings(), settingsOf("24"));
        writeFile(shop.path("job.xml"), "<job><method name=\"printFullOrderReceipt\"/>"
                                        "<recipe/>\n<note/><total prise=\"1\"/>");
        const QStringList said = {
            "job.xml:1:44: error: no document knows <recipe>: nothing is printed; did you mean "
            "\"receipe\"? [unknown-element]\\n",
            "job.xml:2:1: error: no document knows <note>: nothing is printed [unknown-element]\\n",
        };
        const Run run = shop.run({"job.xml"});
        VERIFY_ENDED(run, 1);
        const QStringList lines = linesOf(run.standardError);
        QVERIFY2(lines.size() > 3, run.standardError.constData());
        QVERIFY(lines.first().startsWith("job.xml:1:1: error: <job> is never closed"));
        QCOMPARE(lines.mid(1, 2), said);
        QCOMPARE(lines.last(), QString("job.xml: byte 0 of its stream: error: the receipt section "
                                       "opened here is never closed [left-open]\\n"));
        const Run json = shop.run({"--json", "-q", "job.xml"});
        VERIFY_ENDED(json, 1);
        const QByteArray object = json.standardOutput.split('\n').value(1);
        QCOMPARE(QJsonDocument::fromJson(object).object().value("code"), "unknown-element");
        QCOMPARE(QJsonDocument::fromJson(object).object().value("file"), "job.xml");

        const Run ignored = shop.run({"--ignore", "unknown-element", "job.xml"});
        VERIFY_ENDED(ignored, 1);
        QVERIFY(!ignored.standardError.contains("recipe"));
        writeFile(
            shop.path("only.xml"),
            "<job><method name=\"printFullOrderReceipt\"/><note/><total price=\"1.00\"/></job>");
        VERIFY_ENDED(shop.run({"only.xml"}), 1);
        VERIFY_ENDED(shop.run({"--ignore=unknown-element", "only.xml"}), 0);
    }

    /// What the renderer says is said where the checker says nothing.
    void theRendererIsHeard()
    {
        const Shop shop;
        writeFile(shop.path("job.xml"), "<job><method name=\"printNothing\"/></job>");
        const QStringList arguments = {"--ignore", "unknown-method,empty-stream", "job.xml"};
        const Run run = shop.run(arguments);
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardError.contains("job.xml: " + QByteArray(built::print)
                                            + " says: File Format Not Supported\n"),
                 run.standardError.constData());

        const Run json = shop.run(QStringList{"--json", "-q"} + arguments);
        VERIFY_ENDED(json, 1);
        QCOMPARE(linesOf(json.standardOutput),
                 QStringList("{\"said\":\"" + QString(built::print)
                             + " says: File Format Not Supported\"}\\n"));
        const Run checked = shop.run({"--json", "-q", "job.xml"});
        VERIFY_ENDED(checked, 1);
        QVERIFY2(!checked.standardOutput.contains("\"said\""), checked.standardOutput.constData());
    }

    void linesOfThePaper()
    {
        const Shop shop;
        writeFile(shop.settings(), settingsOf("24"));
        writeFile(shop.path("job.xml"), "<job><method name=\"printFullOrderReceipt\"/>"
                                        "<receipe number=\"1\" name=\"A\" price=\"1\" "
                                        "totalPrice=\"12345678901234567890123\"/></job>");
        const Run run = shop.run({"job.xml"});
        VERIFY_ENDED(run, 0);
        QVERIFY2(run.standardError.contains("job.xml: line 2 of the paper: warning: a line of "),
                 run.standardError.constData());
        QVERIFY(
            run.standardError.endsWith(" characters is wider than the paper (32) [too-wide]\n"));
    }

    void noHome()
    {
        const Shop shop;
        writeFile(shop.path("job.xml"), total);
        const Run run =
            preview({"job.xml"}, {shop.folder.path(), {"HOME", "TMPDIR=" + shop.path("tmp")}, {}});
        VERIFY_ENDED(run, 0);
        QVERIFY(run.standardOutput.contains("Pizza"));
    }

    void noFolderForTheRun()
    {
        const Shop shop;
        writeFile(shop.path("job.xml"), total);
        VERIFY_TROUBLE(preview({"-q", "job.xml"}, {shop.folder.path(), {"TMPDIR=/proc"}, {}}));
    }

    /// A signal in the middle of the run leaves nothing behind.
    void aSignalInTheMiddle_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void aSignalInTheMiddle()
    {
        QFETCH(int, signal);
        // A copy of the program, beside it a renderer that hangs.
        const Shop shop;
        const QString program = shop.path("korvel-preview");
        QVERIFY(QFile::copy(built::preview, program));
        writeFile(shop.path("korvel-print"),
                  "#!/bin/sh\necho $$ > " + shop.path("pid").toUtf8() + "\nexec sleep 600\n");
        QFile::setPermissions(shop.path("korvel-print"), QFile::Permissions(0x7700));
        writeFile(shop.path("job.xml"), total);

        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", shop.path("home"));
        environment.insert("TMPDIR", shop.path("tmp"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(shop.folder.path());
        process.start(program, {"-q", "job.xml"});
        QTRY_VERIFY_WITH_TIMEOUT(bytesOf(shop.path("pid")).endsWith('\n'), 30000);
        QVERIFY(!shop.leftBehind().isEmpty());
        QCOMPARE(kill(pid_t(process.processId()), signal), 0);
        QVERIFY(process.waitForFinished(30000));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        QCOMPARE(process.exitCode(), signal);
        QCOMPARE(shop.leftBehind(), QStringList());
        QCOMPARE(kill(pid_t(bytesOf(shop.path("pid")).trimmed().toInt()), 0), -1);
    }
};

KORVEL_TEST(TestPreviewJobs)

} // namespace tst_previewjobs

#include "tst_previewjobs.moc"

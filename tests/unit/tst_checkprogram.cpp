// korvel-check as a user meets it: options, exit statuses, schemas.
#include "support/checkdesk.h"
#include "support/test.h"

#include <QMap>

namespace tst_checkprogram {

class TestCheckProgram : public QObject
{
    Q_OBJECT

private slots:
    void findingsAndStatus_data()
    {
        const auto row = addRuns();

        row("clean", {"clean.xml"}, 0, "");
        row("a warning", {"warning.xml"}, 0, "warning.xml" + warning);
        row("an error", {"error.xml"}, 1, "error.xml" + error);
        row("strict: clean", {"--strict", "clean.xml"}, 0, "");
        row("strict: a warning", {"--strict", "warning.xml"}, 1, "warning.xml" + warning);
        row("strict: an error", {"error.xml", "--strict"}, 1, "error.xml" + error);
        row("several jobs, in the order given", {"warning.xml", "error.xml", "clean.xml"}, 1,
            "warning.xml" + warning + "error.xml" + error);
        row("the same job twice", {"warning.xml", "warning.xml"}, 0,
            "warning.xml" + warning + "warning.xml" + warning);
        row("a name as it was given", {"./warning.xml"}, 0, "./warning.xml" + warning);
        row("a name behind --", {"--", "error.xml"}, 1, "error.xml" + error);
        row("a code page that has every character", {"--charset", "cp858", "accents.xml"}, 0, "");
        row("a code page that lacks one", {"--charset=ascii", "accents.xml"}, 0, inAscii);
        row("a code page that lacks one, strict", {"--charset", "ascii", "--strict", "accents.xml"},
            1, inAscii);
        row("UTF-8 lacks none", {"--charset", "UTF-8", "accents.xml"}, 0, "");
        row("settings alone", {"--settings", "korvel.conf"}, 0, settingsWarning);
        row("settings alone, strict", {"--settings=korvel.conf", "--strict"}, 1, settingsWarning);
        row("settings, then jobs", {"error.xml", "--settings", "korvel.conf"}, 1,
            settingsWarning + "error.xml" + error);
    }

    void findingsAndStatus()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, output);
        const Run run = CheckDesk().run(arguments);
        VERIFY_ENDED(run, status);
        QCOMPARE(linesOf(run.standardOutput), linesOf(output));
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("nothing") << QStringList();
        QTest::newRow("no job") << QStringList{"--strict"};
        QTest::newRow("an unknown option") << QStringList{"--fix", "error.xml"};
        QTest::newRow("an unknown short option") << QStringList{"-x", "error.xml"};
        QTest::newRow("settings without a file") << QStringList{"error.xml", "--settings"};
        QTest::newRow("a value for an option that has none")
            << QStringList{"--strict=yes", "error.xml"};
        QTest::newRow("a code page without a name") << QStringList{"error.xml", "--charset", ""};
        QTest::newRow("an unknown code page") << QStringList{"--charset", "cp999999", "error.xml"};
        QTest::newRow("a code page of several bytes a character")
            << QStringList{"--charset", "cp932", "error.xml"};
        QTest::newRow("a code page with a way to convert")
            << QStringList{"--charset", "cp858//TRANSLIT", "error.xml"};
        QTest::newRow("explain and a code page")
            << QStringList{"--explain", "limit", "--charset", "cp858"};
        QTest::newRow("schema and a job") << QStringList{"--schema", "error.xml"};
        QTest::newRow("schema in another language") << QStringList{"--schema", "dtd"};
        QTest::newRow("schema in no language") << QStringList{"--schema", ""};
        QTest::newRow("schema in two languages") << QStringList{"--schema", "rng", "xsd"};
        QTest::newRow("schema and a job beside it") << QStringList{"--schema", "rng", "error.xml"};
        QTest::newRow("schema and JSON") << QStringList{"--schema", "--json"};
        QTest::newRow("explain and schema") << QStringList{"--explain", "limit", "--schema"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        VERIFY_TROUBLE(CheckDesk().run(arguments), QByteArray());
    }

    void version()
    {
        for (const char *option : {"--version", "-v"}) {
            const Run run = checker({option});
            VERIFY_ENDED(run, 0);
            QCOMPARE(run.standardOutput, "korvel-check " KORVEL_VERSION "\n");
        }
    }

    void schemasForEditors_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("language");
        QTest::newRow("of itself") << QStringList{"--schema"} << "--relaxng";
        QTest::newRow("RELAX NG") << QStringList{"--schema", "rng"} << "--relaxng";
        QTest::newRow("XSD") << QStringList{"--schema", "xsd"} << "--schema";
    }

    void schemasForEditors()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, language);
        const Run run = checker(arguments);
        VERIFY_ENDED(run, 0);
        const CheckDesk desk;
        writeFile(desk.path("job.schema"), run.standardOutput);
        const QByteArray sound = "<printjob><method name=\"printSold\"/></printjob>";
        writeFile(desk.path("sound.xml"), sound);
        writeFile(desk.path("unsound.xml"), QByteArray(sound).replace("<method ", "<methods "));
        for (const auto &[job, valid] :
             QMap<QString, bool>{{"sound.xml", true}, {"unsound.xml", false}}.toStdMap())
            QCOMPARE(runProgram("xmllint", {"--noout", language, "job.schema", job},
                                {desk.folder.path(), {}, {}})
                             .status
                         == 0,
                     valid);
    }

    /// Who has no settings is told so, and how to take some; the findings are what they are.
    void withoutSettings()
    {
        const CheckDesk desk;
        const auto run = [&](const QStringList &arguments) {
            return checker(arguments, {desk.folder.path(), {"HOME=" + desk.path("nobody")}, {}});
        };
        const QByteArray remark = "korvel-check: there are no settings in "
                                  + desk.path("nobody/.korvel/conf/korvel.conf").toUtf8()
                                  + "; this takes the sample shop's: install -Dm644 /";
        const QByteArray command = "/share/korvel-print/korvel.conf ~/.korvel/conf/korvel.conf\n";
        const Run clean = run({"clean.xml"});
        QVERIFY2(clean.standardError.startsWith(remark), clean.standardError.constData());
        QVERIFY2(clean.standardError.endsWith(command), clean.standardError.constData());
        QCOMPARE(clean.standardError.count('\n'), 1);
        QCOMPARE(clean.status, 0);
        QCOMPARE(linesOf(clean.standardOutput), QStringList());
        const Run wrong = run({"--json", "error.xml"});
        QCOMPARE(wrong.standardError, clean.standardError);
        QCOMPARE(wrong.status, 1);
        QCOMPARE(wrong.standardOutput.count('\n'), 1);

        VERIFY_ENDED(run({"--settings", "korvel.conf", "clean.xml"}), 0);
        VERIFY_ENDED(run({"--list-codes"}), 0);
    }

    void outputIsUtf8InAnyLocale()
    {
        const CheckDesk desk;
        writeFile(desk.path("name.xml"), "<job><method name=\"Caff\xC3\xA8\"/></job>");
        const Run run = checker({"name.xml"}, {desk.folder.path(), {"LC_ALL=C"}, {}});
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardOutput.contains("\"Caff\xC3\xA8\""), run.standardOutput.constData());
    }
};

KORVEL_TEST(TestCheckProgram)

} // namespace tst_checkprogram

#include "tst_checkprogram.moc"

// korvel-check as a user meets it: options, exit statuses, and findings in one line each.
#include "companions/check/codes.h"
#include "support/checkdesk.h"

#include <QMap>
#include <QRegularExpression>
#include <QTest>

#include <algorithm>

namespace check = korvel::check;

class TestCheckProgram : public QObject
{
    Q_OBJECT

private slots:
    void findingsAndStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("output");
        const auto row = [](const char *what, const QStringList &arguments, int status,
                            const QByteArray &output) {
            QTest::newRow(what) << arguments << status << output;
        };

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
        const Run run = Desk().run(arguments);
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
        QTest::newRow("explain without a code") << QStringList{"--explain"};
        QTest::newRow("an unknown code") << QStringList{"--explain", "no-such-code"};
        QTest::newRow("an empty code") << QStringList{"--explain", ""};
        QTest::newRow("explain and a job") << QStringList{"--explain", "limit", "error.xml"};
        QTest::newRow("schema and a job") << QStringList{"--schema", "error.xml"};
        QTest::newRow("explain and settings")
            << QStringList{"--explain", "limit", "--settings", "korvel.conf"};
        QTest::newRow("schema and JSON") << QStringList{"--schema", "--json"};
        QTest::newRow("explain and schema") << QStringList{"--explain", "limit", "--schema"};
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        VERIFY_TROUBLE(Desk().run(arguments), QByteArray());
    }

    void version()
    {
        for (const char *option : {"--version", "-v"}) {
            const Run run = checker({option});
            VERIFY_ENDED(run, 0);
            QCOMPARE(run.standardOutput, "korvel-check " KORVEL_VERSION "\n");
        }
    }

    void explain_data()
    {
        QTest::addColumn<QByteArray>("explanation");
        for (const check::CodeInfo &row : check::codes())
            QTest::newRow(row.name.data())
                << QByteArray(row.name.data()) + " ("
                       + (row.level == check::Level::Error ? "error" : "warning") + ")\n"
                       + row.meaning.data() + '\n' + row.advice.data() + '\n';
    }

    void explain()
    {
        QFETCH(QByteArray, explanation);
        const Run run = checker({"--explain", QTest::currentDataTag()});
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(explanation));
    }

    void schemaForEditors()
    {
        const Run run = checker({"--schema"});
        VERIFY_ENDED(run, 0);
        const Desk desk;
        writeFile(desk.path("job.rng"), run.standardOutput);
        for (const auto &[job, status] :
             QMap<QString, int>{{"clean.xml", 0}, {"warning.xml", 3}, {"error.xml", 3}}.toStdMap())
            QCOMPARE(runProgram("xmllint", {"--noout", "--relaxng", "job.rng", job},
                                {desk.folder.path(), {}, {}})
                         .status,
                     status);
    }

    void outputIsUtf8InAnyLocale()
    {
        const Desk desk;
        writeFile(desk.path("name.xml"), "<job><method name=\"Caff\xC3\xA8\"/></job>");
        const Run run = checker({"name.xml"}, {desk.folder.path(), {"LC_ALL=C"}, {}});
        VERIFY_ENDED(run, 1);
        QVERIFY2(run.standardOutput.contains("\"Caff\xC3\xA8\""), run.standardOutput.constData());
    }

    /// What a job says is shown in one line, whatever it is.
    void oneLineAFinding()
    {
        static const QRegularExpression finding("^-:\\d+:\\d+: error: \\S.* \\[[a-z-]+\\]$");
        const Desk desk;
        for (const QByteArray &job : QByteArrayList{
                 "<job><method name=\"a&#10;b\"/></job>",
                 "<?xml version=\"1.0\" encoding=\"a\nb\"?><job/>",
                 "<job>\x01</job>",
                 "<job><method name=\"a&#x2028;b&#x2029;c\"/></job>",
                 "<job><method name=\"printPartialOrder\"/><receipe number=\"1\" name=\"x\" "
                 "\xE2\x80\xA8=\"\"/></job>",
             }) {
            const Run run = desk.run({"-"}, job);
            QVERIFY(run.exited);
            const QStringList lines = linesWithoutEnds(run.standardOutput);
            QVERIFY(!lines.isEmpty());
            for (const QString &line : lines) {
                QVERIFY2(finding.match(line).hasMatch(), qPrintable(line));
                QVERIFY2(std::all_of(line.begin(), line.end(),
                                     [](QChar c) {
                                         return (c.isPrint() || c.isSurrogate())
                                                && c.category() != QChar::Separator_Line
                                                && c.category() != QChar::Separator_Paragraph;
                                     }),
                         qPrintable(line));
            }
        }
    }

    /// So is what a settings file says.
    void oneLineAFindingOfSettings()
    {
        const Desk desk;
        writeFile(desk.path("shop.conf"),
                  "korvel:\n{\n  a\x1B[1m:\n  {\n    b\x1B[2m = \"1\";\n  };\n};\n");
        const Run run = desk.run({"--settings", "shop.conf"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput,
                 "shop.conf:5:5: warning: nothing reads korvel.a [1m.b [2m: no document reads the "
                 "group a [1m [unread-key]\n");
    }
};

QTEST_GUILESS_MAIN(TestCheckProgram)
#include "tst_checkprogram.moc"

// The codes on korvel-check's command line: listed, explained, ignored.
#include "companions/check/explain.h"
#include "support/checkdesk.h"
#include "support/test.h"

#include <QRegularExpression>

namespace tst_checkoptions {

namespace check = korvel::check;

class TestCheckOptions : public QObject
{
    Q_OBJECT

private slots:
    void ignore_data()
    {
        const auto row = addRuns();

        row("an error", {"--ignore", "unknown-element", "error.xml"}, 0, "");
        row("an error, strict", {"--strict", "--ignore=unknown-element", "error.xml"}, 0, "");
        row("a warning, strict", {"--strict", "--ignore", "ignored-element", "warning.xml"}, 0, "");
        row("of settings", {"--strict", "--ignore", "not-true", "--settings", "korvel.conf"}, 0,
            "");
        row("another code", {"--ignore", "limit", "error.xml"}, 1, "error.xml" + error);
        row("one of two",
            {"--strict", "--ignore", "ignored-element", "warning.xml", "error.xml", "--settings",
             "korvel.conf"},
            1, settingsWarning + "error.xml" + error);
        row("several in one list",
            {"--ignore", "ignored-element,unknown-element", "warning.xml", "error.xml"}, 0, "");
        row("several lists",
            {"--ignore", "ignored-element", "warning.xml", "--ignore", "limit,unknown-element",
             "error.xml"},
            0, "");
        row("the same code twice", {"--ignore", "unknown-element,unknown-element", "error.xml"}, 0,
            "");
        row("in JSON", {"--json", "--ignore", "unknown-element", "error.xml"}, 0, "");
    }

    void ignore()
    {
        QFETCH(QStringList, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, output);
        const Run run = CheckDesk().run(arguments);
        VERIFY_ENDED(run, status);
        QCOMPARE(linesOf(run.standardOutput), linesOf(output));
    }

    void everyCodeCanBeIgnored()
    {
        QStringList all;
        for (const check::CodeInfo &row : check::codes())
            all.append(row.name);
        const Run run = CheckDesk().run({"--strict", "--ignore", all.join(','), "--settings",
                                         "korvel.conf", "warning.xml", "error.xml"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(run.standardOutput, QByteArray());
    }

    void wrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("says"); // behind the program's name
        const auto row = [](const char *what, const QStringList &arguments,
                            const QByteArray &says) { QTest::newRow(what) << arguments << says; };
        const QByteArray alone = "--explain, --list-codes and --schema stand alone";

        row("explain without a code", {"--explain"}, "Missing value after '--explain'.");
        row("an unknown code", {"--explain", "no-such-code"},
            "there is no code \"no-such-code\"; --list-codes shows all");
        row("an empty code", {"--explain", ""}, "there is no code \"\"; --list-codes shows all");
        row("a misspelt code", {"--explain", "totle"},
            "there is no code \"totle\"; did you mean \"totale\"? --list-codes shows all");
        row("a code in capitals", {"--explain", "LIMIT"},
            "there is no code \"LIMIT\"; did you mean \"limit\"? --list-codes shows all");
        row("the beginning of a code", {"--explain", "malformed"},
            "there is no code \"malformed\"; did you mean \"malformed-xml\"? "
            "--list-codes shows all");
        row("ignore an unknown code", {"--ignore", "no-such-code", "error.xml"},
            "there is no code \"no-such-code\"; --list-codes shows all");
        row("ignore a misspelt code behind others", {"--ignore", "limit,adress", "error.xml"},
            "there is no code \"adress\"; did you mean \"address\"? --list-codes shows all");
        row("ignore nothing", {"--ignore", "", "error.xml"},
            "there is no code \"\"; --list-codes shows all");
        row("ignore with a comma too much", {"--ignore", "limit,", "error.xml"},
            "there is no code \"\"; --list-codes shows all");
        row("ignore without codes", {"error.xml", "--ignore"}, "Missing value after '--ignore'.");
        row("ignore without a job", {"--ignore", "limit"}, "a job is needed; see --help");
        row("explain and a job", {"--explain", "limit", "error.xml"}, alone);
        row("explain and settings", {"--explain", "limit", "--settings", "korvel.conf"}, alone);
        row("explain and ignore", {"--explain", "limit", "--ignore", "limit"}, alone);
        row("two explanations", {"--explain", "limit", "--explain", "address"}, alone);
        row("the list and a job", {"--list-codes", "error.xml"}, alone);
        row("the list and JSON", {"--list-codes", "--json"}, alone);
        row("the list and an explanation", {"--list-codes", "--explain", "limit"}, alone);
    }

    void wrongUsage()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, says);
        const Run run = CheckDesk().run(arguments);
        VERIFY_TROUBLE(run, QByteArray());
        QCOMPARE(run.standardError, "korvel-check: " + says + '\n');
    }

    void listCodes()
    {
        const Run run = checker({"--list-codes"});
        VERIFY_ENDED(run, 0);
        const QStringList lines = linesWithoutEnds(run.standardOutput);
        QCOMPARE(lines.size(), check::codes().size());
        static const QRegularExpression shape("^([a-z-]+) +(error|warning) +(\\S.*[^ ])$");
        for (const check::CodeInfo &row : check::codes()) {
            const QString &line = lines[qsizetype(row.code)];
            const auto match = shape.match(line);
            QVERIFY2(match.hasMatch(), qPrintable(line));
            QCOMPARE(match.captured(1), row.name);
            QCOMPARE(match.captured(2), row.level == check::Level::Error ? "error" : "warning");
            QVERIFY2(QString(row.meaning).startsWith(match.captured(3)), qPrintable(line));
            QVERIFY2(match.captured(3).count(". ") == 0 && line.endsWith('.'), qPrintable(line));
        }
        QCOMPARE(lines[qsizetype(check::Code::Totale)].section(' ', -11),
                 "printed as T0TALE, with a zero: the printer reserves the word.");
        QVERIFY(lines[qsizetype(check::Code::BeforeMethod)].endsWith(
            "  An element stands before the method."));
    }

    void explain_data()
    {
        QTest::addColumn<const check::CodeInfo *>("row");
        for (const check::CodeInfo &row : check::codes())
            QTest::newRow(row.name.data()) << &row;
    }

    void explain()
    {
        QFETCH(const check::CodeInfo *, row);
        const Run run = checker({"--explain", row->name});
        VERIFY_ENDED(run, 0);
        const QStringList parts = QString::fromUtf8(run.standardOutput).split("\n\n");
        QVERIFY(parts.size() > 3);
        QCOMPARE(parts[0],
                 row->name
                     + QString(row->level == check::Level::Error ? " (error)" : " (warning)"));
        QCOMPARE(parts[1], row->meaning);
        QCOMPARE(parts[2], row->advice);
        QCOMPARE(parts.last(), "--ignore " + row->name + " leaves such findings out.\n");
        QVERIFY(!run.standardOutput.contains(".md")); // what is not installed
    }

    void explanationOfAJob()
    {
        const Run run = checker({"--explain", "ignored-element"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput).section("\n\n", 3),
                 "For example, the job\n"
                 "\n"
                 "    <job>\n"
                 "      <method name=\"printAbstractOrderReceipt\"/>\n"
                 "      <customer name=\"Mario Rossi\"/>\n"
                 "    </job>\n"
                 "\n"
                 "mended by\n"
                 "\n"
                 "    <method name=\"printFullOrderReceipt\"/>\n"
                 "\n"
                 "--ignore ignored-element leaves such findings out.\n");
    }

    void explanationOfSettingsAndAJob()
    {
        const Run run = checker({"--explain", "switched-off"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput).section("\n\n", 3),
                 "For example, the settings\n"
                 "\n"
                 "    korvel:\n"
                 "    {\n"
                 "      receiptdoc:\n"
                 "      {\n"
                 "        paperWidth = \"32\";\n"
                 "        quantityFieldWidth = \"3\";\n"
                 "        priceFieldWidth = \"8\";\n"
                 "        totalPriceFieldWidth = \"8\";\n"
                 "        printCompany = \"false\";\n"
                 "      };\n"
                 "    };\n"
                 "\n"
                 "and the job\n"
                 "\n"
                 "    <job>\n"
                 "      <method name=\"printFullOrderReceipt\"/>\n"
                 "      <company name=\"Trattoria Da Nino\"/>\n"
                 "    </job>\n"
                 "\n"
                 "mended by\n"
                 "\n"
                 "    printCompany = \"true\";\n"
                 "\n"
                 "--ignore switched-off leaves such findings out.\n");
    }
};

KORVEL_TEST(TestCheckOptions)

} // namespace tst_checkoptions

#include "tst_checkoptions.moc"

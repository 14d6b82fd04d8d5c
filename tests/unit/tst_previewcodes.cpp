// The codes of findings in streams: each is explained, listed, ignored, and is no code of jobs.
#include "companions/check/codes.h"
#include "companions/preview/codes.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QSet>

namespace tst_previewcodes {

namespace check = korvel::check;
using korvel::preview::CodeInfo;
using korvel::shared::Level;

class TestPreviewCodes : public QObject
{
    Q_OBJECT

private slots:
    void everyCodeIsExplained()
    {
        QSet<QString> names;
        for (const CodeInfo &row : korvel::preview::codes()) {
            names.insert(row.name);
            QVERIFY2(!check::findCode(row.name), row.name.data());
            for (const auto &text : {QString(row.meaning), QString(row.advice)}) {
                QVERIFY2(text.endsWith('.') && text.front().isUpper(), qPrintable(text));
                QVERIFY2(!text.contains('\n') && !text.contains('|'), qPrintable(text));
            }
            const Run run = preview({"--explain", row.name});
            VERIFY_ENDED(run, 0);
            const QString level = row.level == Level::Error ? "error" : "warning";
            QCOMPARE(QString::fromUtf8(run.standardOutput),
                     row.name + " (" + level + ")\n\n" + row.meaning + "\n\n" + row.advice
                         + "\n\n--ignore " + row.name + " leaves such findings out.\n");
        }
        QCOMPARE(names.size(), korvel::preview::codes().size());
    }

    void codesOfJobsAreExplainedToo()
    {
        const Run run = preview({"--explain", "no-method"});
        VERIFY_ENDED(run, 0);
        QVERIFY(run.standardOutput.startsWith("no-method (error)\n\n"));
        QVERIFY(run.standardOutput.contains("mended by"));
    }

    void listCodes()
    {
        const Run run = preview({"--list-codes"});
        VERIFY_ENDED(run, 0);
        const QStringList lines = linesOf(run.standardOutput);
        QCOMPARE(lines.size(), korvel::preview::codes().size());
        for (const CodeInfo &row : korvel::preview::codes()) {
            const QStringList words = lines[qsizetype(row.code)].simplified().split(' ');
            QCOMPARE(words[0], QString(row.name));
            QCOMPARE(words[1], row.level == Level::Error ? "error" : "warning");
        }
    }

    void aMisspeltCode_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("says");
        QTest::newRow("of streams") << "toowide"
                                    << "\"toowide\"; did you mean \"too-wide\"?";
        QTest::newRow("of jobs") << "no-metod"
                                 << "\"no-metod\"; did you mean \"no-method\"?";
        QTest::newRow("its beginning") << "unterm"
                                       << "\"unterm\"; did you mean "
                                          "\"unterminated-command\"?";
        QTest::newRow("nothing like it") << "x"
                                         << "\"x\";";
        QTest::newRow("with a control character") << "x\033[2J"
                                                  << "\"x [2J\";";
    }

    void aMisspeltCode()
    {
        QFETCH(QString, name);
        QFETCH(QString, says);
        for (const QStringList &arguments :
             {QStringList{"--explain", name}, QStringList{"--ignore", name, "x.out"}}) {
            const Run run = preview(arguments);
            VERIFY_TROUBLE(run);
            QCOMPARE(QString::fromUtf8(run.standardError),
                     "korvel-preview: there is no code " + says + " --list-codes shows all\n");
        }
    }

    void ignoredAndStrict_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::addColumn<int>("status");
        QTest::addColumn<int>("lines");
        const auto row = [](const char *name, const QStringList &options, int status, int lines) {
            QTest::newRow(name) << options << status << lines;
        };
        row("an error and a warning", {}, 1, 2);
        row("without the warning", {"--ignore", "ends-text"}, 1, 1);
        row("without the error", {"--ignore", "unknown-command"}, 0, 1);
        row("without the error, strict", {"--strict", "--ignore=unknown-command"}, 1, 1);
        row("without both", {"--strict", "--ignore=unknown-command,ends-text"}, 0, 0);
        row("without both, in two lists",
            {"--ignore=unknown-command", "--ignore=no-method,ends-text"}, 0, 0);
    }

    void ignoredAndStrict()
    {
        QFETCH(QStringList, options);
        QFETCH(int, status);
        QFETCH(int, lines);
        const Desk desk(documentOf("a)") + "=x\n");
        const Run run = desk.run(options + QStringList("x.out"));
        VERIFY_ENDED(run, status);
        QCOMPARE(run.standardError.count('\n'), lines);
        const Run json = desk.run(QStringList("--json") + options + QStringList("x.out"));
        VERIFY_ENDED(json, status);
        QCOMPARE(json.standardOutput.count("\"level\""), lines);
    }
};

KORVEL_TEST(TestPreviewCodes)

} // namespace tst_previewcodes

#include "tst_previewcodes.moc"

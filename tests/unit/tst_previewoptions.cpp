// korvel-preview as a user starts it: the paper, its width, options that are none, help.
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

namespace tst_previewoptions {

class TestPreviewOptions : public QObject
{
    Q_OBJECT

private slots:
    void paperInATerminal_data()
    {
        QTest::addColumn<QString>("box");

        QTest::newRow("receipt") << "┌────────────────────────────────┐\n"
                                    "│Benvenuti!                      │\n"
                                    "│================================│\n"
                                    "│             CASSA              │\n"
                                    "│================================│\n"
                                    "│       Trattoria Da Nino        │\n"
                                    "│        Via Garibaldi 12        │\n"
                                    "│          10122 Torino          │\n"
                                    "│       P.IVA 01234567890        │\n"
                                    "│================================│\n"
                                    "│ Serial Number: 118             │\n"
                                    "│================================│\n"
                                    "│ Date: 12/05/2026               │\n"
                                    "│ Time: 22:20                    │\n"
                                    "│ Table: 7                       │\n"
                                    "│================================│\n"
                                    "│CUSTOMER                        │\n"
                                    "│ Mario Rossi                    │\n"
                                    "│================================│\n"
                                    "│Num Description    Price  Amount│\n"
                                    "│  3 x Coperto.......2.00    6.00│\n"
                                    "│  2 x Spaghetti a..14.00   28.00│\n"
                                    "│  1 x Tagliata di..18.50   18.50│\n"
                                    "│  1 x Pizza Margh...9.00    9.00│\n"
                                    "│  2 x Tiramisù......5.50   11.00│\n"
                                    "│  1 x Vino rosso ...6.00    6.00│\n"
                                    "│  2 x Caffè.........1.20    2.40│\n"
                                    "│                                │\n"
                                    "│    TOTAL...............   80.90│\n"
                                    "│                                │\n"
                                    "│    Amount not paid: 30.90      │\n"
                                    "└────────────────────────────────┘\n";
        // 2 x 7.00 + 2 x 4.50 - 3.00
        QTest::newRow("fiscal-receipt") << "┌────────────────────────────────┐\n"
                                           "│  2 x 7.00                      │\n"
                                           "│Pizza Margherita        14.00 R1│\n"
                                           "│  2 x 4.50                      │\n"
                                           "│Birra media alla spina   9.00 R2│\n"
                                           "│DEDUCTION                  -3.00│\n"
                                           "┊--------------------------------┊\n"
                                           "┊Sum (by the preview)       20.00┊\n"
                                           "└────────────────────────────────┘\n";
        QTest::newRow("order-summary") << "┌────────────────────────────────┐\n"
                                          "└────────────────────────────────┘\n";
    }

    void paperInATerminal()
    {
        QFETCH(QString, box);
        const QString path = examples + QTest::currentDataTag() + ".out";
        const Run run = preview({path});
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(box.toUtf8()));
        QCOMPARE(linesOf(run.standardError), QStringList());

        const Run fromStandardInput = preview({"-"}, {{}, {}, bytesOf(path)});
        VERIFY_ENDED(fromStandardInput, 0);
        QCOMPARE(linesOf(fromStandardInput.standardOutput), linesOf(box.toUtf8()));
        QCOMPARE(linesOf(fromStandardInput.standardError), QStringList());
    }

    void columns_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("box");
        QTest::addColumn<QString>("said");

        QTest::newRow("none given") << QStringList{}
                                    << "┌" + QString(32, u'─') + "┐\n│Ciao" + QString(28, ' ')
                                           + "│\n└" + QString(32, u'─') + "┘\n"
                                    << "";
        QTest::newRow("just wide enough")
            << QStringList{"--columns", "4"} << "┌────┐\n│Ciao│\n└────┘\n"
            << "";
        QTest::newRow("too narrow")
            << QStringList{"--columns=3"} << "┌───┐\n│Cia»o\n└───┘\n"
            << "x.out:2: byte 3: warning: a line of 4 characters is wider than the paper "
               "(3) [too-wide]\n";
        QTest::newRow("narrowest")
            << QStringList{"--columns", "1"} << "┌─┐\n│C»iao\n└─┘\n"
            << "x.out:2: byte 3: warning: a line of 4 characters is wider than the paper "
               "(1) [too-wide]\n";
        QTest::newRow("widest") << QStringList{"--columns", "255"}
                                << "┌" + QString(255, u'─') + "┐\n│Ciao" + QString(251, ' ')
                                       + "│\n└" + QString(255, u'─') + "┘\n"
                                << "";
    }

    void columns()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, box);
        QFETCH(QString, said);
        const Desk desk(documentOf("Ciao"));
        const Run run = desk.run(arguments + QStringList{"x.out"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput), box);
        QCOMPARE(QString::fromUtf8(run.standardError), said);
    }

    void trouble_data()
    {
        QTest::addColumn<QStringList>("arguments");

        QTest::newRow("no argument") << QStringList{};
        QTest::newRow("standard input twice") << QStringList{"-", "-"};
        QTest::newRow("an option alone") << QStringList{"--json"};
        QTest::newRow("an option that it does not know") << QStringList{"--colour", "x.out"};
        QTest::newRow("a letter that it does not know") << QStringList{"-z", "x.out"};
        // What the toolkit's own applications take is none of this program's.
        QTest::newRow("another platform") << QStringList{"-platform", "none", "x.out"};
        QTest::newRow("a style") << QStringList{"-style", "fusion", "x.out"};
        QTest::newRow("a missing file") << QStringList{"missing.out"};
        QTest::newRow("a missing file whose name has two lines") << QStringList{"missing\nfile"};
        QTest::newRow("a file in place of a folder") << QStringList{"x.out/y.out"};
        QTest::newRow("an empty name") << QStringList{""};
        QTest::newRow("an option behind --") << QStringList{"--", "--json"};

        QTest::newRow("columns: 0") << QStringList{"--columns", "0", "x.out"};
        QTest::newRow("columns: negative") << QStringList{"--columns=-1", "x.out"};
        QTest::newRow("columns: 256") << QStringList{"--columns", "256", "x.out"};
        QTest::newRow("columns: beyond an int") << QStringList{"--columns", "4294967328", "x.out"};
        QTest::newRow("columns: a word") << QStringList{"--columns", "wide", "x.out"};
        QTest::newRow("columns: a fraction") << QStringList{"--columns", "32.5", "x.out"};
        QTest::newRow("columns: empty") << QStringList{"--columns=", "x.out"};
        QTest::newRow("columns: no value") << QStringList{"x.out", "--columns"};

        QTest::newRow("output: another kind") << QStringList{"-o", "y.gif", "x.out"};
        QTest::newRow("output: no kind") << QStringList{"--output=png", "x.out"};
        QTest::newRow("output: empty") << QStringList{"--output=", "x.out"};
        QTest::newRow("format: another") << QStringList{"-o", "y.png", "--format", "gif", "x.out"};
        QTest::newRow("format: no output") << QStringList{"--format", "png", "x.out"};
        QTest::newRow("look: another") << QStringList{"-o", "y.png", "--look", "fancy", "x.out"};
        QTest::newRow("look: no output") << QStringList{"--look", "thermal", "x.out"};
        QTest::newRow("transparent: no output") << QStringList{"--transparent", "x.out"};
        QTest::newRow("transparent: PDF") << QStringList{"-o", "y.pdf", "--transparent", "x.out"};
        QTest::newRow("look: HTML") << QStringList{"-o", "y.html", "--look=plain", "x.out"};
        QTest::newRow("transparent: HTML") << QStringList{"-o", "y.html", "--transparent", "x.out"};
        QTest::newRow("PNG of two") << QStringList{"-o", "y.png", "x.out", "x.out"};
        QTest::newRow("SVG of two") << QStringList{"-o", "y.svg", "x.out", "x.out"};
        QTest::newRow("output: no value") << QStringList{"x.out", "-o"};

        QTest::newRow("output and JSON") << QStringList{"-o", "y.png", "--json", "x.out"};
        QTest::newRow("output and list") << QStringList{"-o", "y.png", "--list", "x.out"};
        QTest::newRow("stream and job") << QStringList{"--stream", "--job", "x.out"};
        QTest::newRow("settings: empty") << QStringList{"--settings=", "x.out"};
        QTest::newRow("ignore: no code") << QStringList{"--ignore", "none", "x.out"};
        QTest::newRow("ignore: a comma too much") << QStringList{"--ignore", "too-wide,", "x.out"};
        QTest::newRow("explain: no code") << QStringList{"--explain", "none"};
        QTest::newRow("explain and a stream") << QStringList{"--explain", "too-wide", "x.out"};
        QTest::newRow("codes and a stream") << QStringList{"--list-codes", "x.out"};
        QTest::newRow("schema and JSON") << QStringList{"--schema", "--json"};
        QTest::newRow("JSON and list") << QStringList{"--json", "--list", "x.out"};
    }

    void trouble()
    {
        QFETCH(QStringList, arguments);
        const Desk desk(documentOf("Ciao"));
        VERIFY_TROUBLE(desk.run(arguments));
        QCOMPARE(outputFiles(desk), QStringList());

        // A stream's findings may be left unsaid; trouble may not.
        if (!arguments.contains("--")) {
            VERIFY_TROUBLE(desk.run(QStringList("--quiet") + arguments));
            QCOMPARE(outputFiles(desk), QStringList());
        }
    }

    void aStreamCanBeNamedLikeAnOption()
    {
        const Desk desk(documentOf("Ciao"));
        QVERIFY(QFile::copy(desk.path("x.out"), desk.path("--json")));
        const Run run = desk.run({"--columns=4", "--", "--json"});
        VERIFY_ENDED(run, 0);
        QCOMPARE(QString::fromUtf8(run.standardOutput), "┌────┐\n│Ciao│\n└────┘\n");
    }

    void help()
    {
        for (const QString &option : QStringList{"--help", "-h", "--help-all"}) {
            const Run run = preview({option, "no stream is read"});
            VERIFY_ENDED(run, 0);
            QCOMPARE(linesOf(run.standardError), QStringList());
            const QString text = QString::fromUtf8(run.standardOutput);
            QVERIFY2(text.startsWith("Usage: "), qPrintable(text));
            for (const QString &name :
                 QStringList{"--columns", "-o, --output", "--json", "--list", "-q, --quiet",
                             "--help", "--version", "FILE", "--settings", "--job", "--stream",
                             "--ignore", "--strict", "--explain", "--list-codes", "--schema"})
                QVERIFY2(text.contains(name), qPrintable(text));
        }
    }

    void version()
    {
        for (const QString &option : QStringList{"--version", "-v"}) {
            const Run run = preview({option});
            VERIFY_ENDED(run, 0);
            QCOMPARE(linesOf(run.standardError), QStringList());
            QCOMPARE(linesOf(run.standardOutput),
                     QStringList("korvel-preview " KORVEL_VERSION "\\n"));
        }
    }
};

KORVEL_TEST(TestPreviewOptions)

} // namespace tst_previewoptions

#include "tst_previewoptions.moc"

// korvel-preview in terminals and other surroundings: colours, and nothing that a terminal would
// obey.
#include "support/built.h"
#include "support/previewdesk.h"
#include "support/streams.h"
#include "support/test.h"

#include <QRegularExpression>

namespace tst_previewterminal {

class TestPreviewTerminal : public QObject
{
    Q_OBJECT

private slots:
    /// Bytes of a stream that a terminal would obey come out as something that it shows.
    void aStreamDoesNotCommandTheTerminal()
    {
        const QByteArray text = "\x1b[2J\x1b]0;x\x07\x7f\r\t\b\xc2\x9b";
        const Desk desk("=K\n=C1\n=R" + text + "/$" + text + "/*" + text + "/(" + text
                        + ")\n=S\r\n=V/$" + text + "\n=T1\n" + documentOf(text) + text + "\n"
                        + QByteArray("=o\0\n", 4));
        for (const QString &option : QStringList{"--columns=32", "--list", "--json"}) {
            const Run run = desk.run({option, "x.out"});
            VERIFY_ENDED(run, 1);
            QVERIFY(!run.standardOutput.isEmpty());
            QVERIFY(!run.standardError.isEmpty());
            for (const QChar c :
                 QString::fromUtf8(run.standardOutput) + QString::fromUtf8(run.standardError)) {
                // In JSON, a character above these is itself.
                const bool obeyed = option == "--json" ? c < u' ' : !c.isPrint();
                QVERIFY2(c == u'\n' || !obeyed, qPrintable(QString::number(c.unicode(), 16)));
            }
        }
    }

    void coloursOnATerminalAlone_data()
    {
        QTest::addColumn<QStringList>("variables");
        QTest::addColumn<QString>("option");
        QTest::addColumn<bool>("coloured");
        const QString paper = "--columns=32";

        QTest::newRow("a terminal") << QStringList{"TERM=xterm", "NO_COLOR"} << paper << true;
        QTest::newRow("an unknown terminal") << QStringList{"TERM", "NO_COLOR"} << paper << true;
        QTest::newRow("NO_COLOR") << QStringList{"TERM=xterm", "NO_COLOR=1"} << paper << false;
        QTest::newRow("an empty NO_COLOR")
            << QStringList{"TERM=xterm", "NO_COLOR="} << paper << true;
        QTest::newRow("a dumb terminal") << QStringList{"TERM=dumb", "NO_COLOR"} << paper << false;
        QTest::newRow("list") << QStringList{"TERM=xterm", "NO_COLOR"} << "--list" << false;
        QTest::newRow("JSON") << QStringList{"TERM=xterm", "NO_COLOR"} << "--json" << false;
    }

    void coloursOnATerminalAlone()
    {
        QFETCH(QStringList, variables);
        QFETCH(QString, option);
        QFETCH(bool, coloured);
        const QString stream = examples + "fiscal-receipt.out";
        const Run inPipe = preview({option, stream}, {{}, variables, {}});
        VERIFY_ENDED(inPipe, 0);
        QVERIFY(!inPipe.standardOutput.contains('\033'));

        // script(1) runs a command in a terminal of its own.
        const QString command = QString(QString(built::preview) + " %1 '%2'").arg(option, stream);
        const Run onTerminal =
            runProgram("script", {"--quiet", "--return", "--command", command, "/dev/null"},
                       {{}, variables, {}});
        VERIFY_ENDED(onTerminal, 0);
        QString shown = QString::fromUtf8(onTerminal.standardOutput).remove('\r');
        QCOMPARE(shown.contains("│\033[31mDEDUCTION                  -3.00\033[0m│\n"), coloured);
        QCOMPARE(shown.contains("┊\033[2mSum (by the preview)       20.00\033[0m┊\n"), coloured);
        QCOMPARE(shown.contains('\033'), coloured);
        shown.remove(QRegularExpression("\033\\[[0-9;]*m"));
        QCOMPARE(linesOf(shown.toUtf8()), linesOf(inPipe.standardOutput));
    }

    /// The paper is the same wherever the program runs, and nothing is said of it.
    void surroundings_data()
    {
        QTest::addColumn<QStringList>("variables");

        QTest::newRow("another platform") << QStringList{"QT_QPA_PLATFORM=none"};
        QTest::newRow("no plug-ins") << QStringList{"QT_PLUGIN_PATH=/none"};
        QTest::newRow("a theme") << QStringList{"QT_QPA_PLATFORMTHEME=gtk3"};
        QTest::newRow("a screen scale") << QStringList{"QT_SCALE_FACTOR=2"};
        QTest::newRow("a font scale") << QStringList{"QT_FONT_DPI=192"};
        QTest::newRow("no display") << QStringList{"DISPLAY", "WAYLAND_DISPLAY"};
        QTest::newRow("a display that is not there") << QStringList{"DISPLAY=:99"};
        QTest::newRow("no home") << QStringList{"HOME", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"};
        QTest::newRow("no run-time folder") << QStringList{"XDG_RUNTIME_DIR=/none"};
        QTest::newRow("the toolkit's messages")
            << QStringList{"QT_LOGGING_RULES=*=true", "QT_DEBUG_PLUGINS=1"};
        QTest::newRow("the plain locale") << QStringList{"LC_ALL=C"};
        QTest::newRow("an unknown locale") << QStringList{"LC_ALL=none"};
    }

    void surroundings()
    {
        QFETCH(QStringList, variables);
        const Desk desk(bytesOf(examples + "full-order.out"));
        const Run usual = desk.run({"x.out"});
        const Run run = desk.run({"x.out"}, variables);
        VERIFY_ENDED(run, 0);
        QCOMPARE(linesOf(run.standardOutput), linesOf(usual.standardOutput));
        QCOMPARE(linesOf(run.standardError), QStringList());

        const Run picture = desk.run({"-o", "y.png", "x.out"}, variables);
        VERIFY_ENDED(picture, 0);
        QCOMPARE(linesOf(picture.standardOutput + picture.standardError), QStringList());
        QCOMPARE(sizeOfPng(bytesOf(desk.path("y.png"))), QSize(464, 24 + 25 * 24 + 24));
    }
};

KORVEL_TEST(TestPreviewTerminal)

} // namespace tst_previewterminal

#include "tst_previewterminal.moc"

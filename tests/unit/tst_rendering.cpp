// The renderer as a child process of the companions: what it wrote, and what fails.
#include "companions/shared/rendering.h"
#include "support/built.h"
#include "support/settingsfiles.h"
#include "support/settingstext.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QDir>
#include <QSignalSpy>

#include <csignal>

namespace tst_rendering {

using namespace korvel::shared;
using End = Rendered::End;

/// What came of the first run that a spy saw.
Rendered first(const QSignalSpy &ended) { return ended[0][0].value<Rendered>(); }

class TestRendering : public QObject
{
    Q_OBJECT

private slots:
    void theSampleShopIsRendered_data()
    {
        QTest::addColumn<QString>("name");
        const QDir jobs(KORVEL_SOURCE_DIR "/examples/jobs");
        const QStringList names = jobs.entryList({"*.xml"}, QDir::Files);
        QCOMPARE(names.size(), 13);
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << QFileInfo(name).baseName();
    }

    void theSampleShopIsRendered()
    {
        QFETCH(QString, name);
        const TemporaryHome home(settingsFile(documentGroup("receiptdoc", "paperWidth = 10;")));
        Rendering rendering(built::print);
        QSignalSpy ended(&rendering, &Rendering::ended);
        rendering.render(example("jobs/" + name + ".xml"), example("korvel.conf"));
        QVERIFY(ended.wait(longEnough));
        QCOMPARE(first(ended).end, End::Complete);
        QVERIFY(first(ended).isThere());
        QCOMPARE(linesOf(first(ended).stream), linesOf(example("expected/" + name + ".out")));
        QCOMPARE(first(ended).stream, example("expected/" + name + ".out"));
        QCOMPARE(first(ended).said, QString());
        QCOMPARE(first(ended).reason(), QString());
        // The user's home is not touched.
        QCOMPARE(
            QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({".korvel"}));

        const Rendered waited =
            rendered(example("jobs/" + name + ".xml"), example("korvel.conf"), built::print);
        QCOMPARE(waited.end, End::Complete);
        QCOMPARE(waited.stream, first(ended).stream);
    }

    void theRendererIsHeard()
    {
        const QByteArray job = "<printjob><method name=\"printNothing\"/></printjob>";
        const Rendered refused = rendered(job, {}, built::print);
        QCOMPARE(refused.end, End::Refused);
        QVERIFY(refused.isThere());
        QCOMPARE(refused.said, QString("File Format Not Supported"));
        QCOMPARE(refused.reason(),
                 QString(QString(built::print) + " says: File Format Not Supported"));
    }

    /// A catalogue that the settings name by a relative path lies in the folder of this process.
    void aRelativePathInTheSettingsIsKept()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir("labels"));
        QVERIFY(QFile::copy(built::path("/translations/korvel_it.qm"),
                            folder.filePath("labels/korvel_it.qm")));
        const QByteArray settings = "korvel:\n{\n    language:\n    {\n"
                                    "        basedir = \"labels\";\n"
                                    "        file = \"/korvel_it.qm\";\n    };\n};\n";
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const Rendered italian = rendered("<job><method name=\"printFullOrderReceipt\"/>"
                                          "<total price=\"1.00\"/></job>",
                                          settings, built::print);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(italian.end, End::Complete);
        QVERIFY2(italian.stream.contains("T0TALE"), italian.stream.constData());
    }

    void theLatestRequestWins()
    {
        Rendering rendering(built::print);
        QSignalSpy ended(&rendering, &Rendering::ended);
        for (const char *name : {"kitchen-order", "invoice", "statement", "sold-items"})
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(ended.wait(longEnough));
        QTest::qWait(100);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(first(ended).stream, example("expected/receipt.out"));
    }

    void oneRunAfterTheOther()
    {
        Rendering rendering(built::print);
        QSignalSpy ended(&rendering, &Rendering::ended);
        for (const char *name : {"receipt", "kitchen-order", "receipt"}) {
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
            QVERIFY(ended.wait(longEnough));
            QCOMPARE(first(ended).stream, example(QString("expected/%1.out").arg(name)));
            ended.clear();
        }
    }

    void whatFails_data()
    {
        QTest::addColumn<QByteArray>("lines"); // of the program; null: there is none
        QTest::addColumn<End>("end");
        QTest::addColumn<QString>("reason"); // behind the program
        const auto row = [](const char *name, const QByteArray &lines, End end,
                            const char *reason) { QTest::newRow(name) << lines << end << reason; };

        row("there is none", {}, End::NotStarted, " cannot be started: ");
        row("it ends with a status", "exit 3\n", End::Failed, " ended with status 3");
        row("it wrote, and ends with a status", "echo begun > \"$2\"\nexit 1\n", End::Failed,
            " ended with status 1");
        row("it is killed", "kill -9 $$\n", End::Killed, " was ended by the signal SIGKILL");
        row("it is killed by another", "kill -SEGV $$\n", End::Killed,
            " was ended by the signal SIGSEGV");
        row("it writes nothing", "exit 0\n", End::NoStream, " wrote nothing");
        row("it takes its output away", "rm -rf \"$HOME\"\n", End::NoStream, " wrote nothing");
    }

    void whatFails()
    {
        QFETCH(QByteArray, lines);
        QFETCH(End, end);
        QFETCH(QString, reason);
        const QTemporaryDir folder;
        const QString program =
            lines.isNull() ? folder.filePath("renderer") : script(folder, lines);
        Rendering rendering(program);
        QSignalSpy ended(&rendering, &Rendering::ended);
        for (int i = 0; i < 2; ++i) {
            rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
            QVERIFY(!ended.isEmpty() || ended.wait(longEnough));
            QCOMPARE(ended.size(), 1);
            QCOMPARE(first(ended).end, end);
            QVERIFY(!first(ended).isThere());
            const QString said = first(ended).reason();
            QVERIFY2(said.startsWith(program + reason) && !said.contains('\n'), qPrintable(said));
            ended.clear();
        }
    }

    // What is asked for while a run fails to start, or when it has, is not lost.
    void aRunThatFailsToStartGivesWayToTheNext()
    {
        const QTemporaryDir folder;
        Rendering rendering(folder.filePath("renderer"));
        QSignalSpy ended(&rendering, &Rendering::ended);
        rendering.render("<first/>", {});
        rendering.render("<second/>", {});
        QVERIFY(ended.wait(longEnough));
        QCOMPARE(ended.size(), 1);
        QCOMPARE(first(ended).end, End::NotStarted);
        ended.clear();

        connect(&rendering, &Rendering::ended, this, [&](const Rendered &outcome) {
            if (outcome.end == End::NotStarted) {
                script(folder, "cp \"$1\" \"$2\"\n");
                rendering.render("<fourth/>", {});
            }
        });
        rendering.render("<third/>", {});
        QTRY_COMPARE_WITH_TIMEOUT(ended.size(), 2, longEnough);
        QCOMPARE(first(ended).end, End::NotStarted);
        QCOMPARE(ended[1][0].value<Rendered>().stream, QByteArray("<fourth/>"));
    }

    void noRendererIsInstalled()
    {
        const Rendered none = rendered("<job/>", {}, "korvel-print-that-is-not-there");
        QCOMPARE(none.end, End::NotStarted);
        QCOMPARE(none.reason(), QString("korvel-print-that-is-not-there is not found: install it, "
                                        "or put it beside this program"));
    }

    void noTemporaryFolder()
    {
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", "/proc");
        const Rendered none = rendered("<job/>", {}, built::print);
        before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
        QCOMPARE(none.end, End::NoRoom);
        QCOMPARE(none.reason(), QString("the folder for temporary files cannot be written: /proc"));
    }

    // A stream of an earlier run is no answer to a later one.
    void anOldStreamIsNotShownAgain()
    {
        const QTemporaryDir folder;
        const QString once = folder.filePath("once");
        Rendering rendering(script(folder, "test -e " + once.toUtf8() + " && exit 0\ntouch "
                                               + once.toUtf8() + "\necho first > \"$2\"\n"));
        QSignalSpy ended(&rendering, &Rendering::ended);
        rendering.render({}, {});
        QVERIFY(ended.wait(longEnough));
        QCOMPARE(first(ended).stream, QByteArray("first\n"));
        ended.clear();
        rendering.render({}, {});
        QVERIFY(ended.wait(longEnough));
        QCOMPARE(first(ended).end, End::NoStream);
        QCOMPARE(first(ended).stream, QByteArray());
    }

    void aHangingRunGivesWayToTheNext()
    {
        const QTemporaryDir folder;
        Rendering rendering(script(folder, "grep -q hang \"$1\" && exec sleep 600\nexec "
                                               + QByteArray(built::print) + " \"$1\" \"$2\"\n"));
        QSignalSpy ended(&rendering, &Rendering::ended);
        rendering.render("<hang/>", example("korvel.conf"));
        QTest::qWait(200);
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(ended.wait(9000));
        QCOMPARE(ended.size(), 1);
        QCOMPARE(first(ended).stream, example("expected/receipt.out"));
    }

    void aHangingRunIsStopped()
    {
        const QTemporaryDir folder;
        const QString program = script(folder, "exec sleep 600\n");
        const Rendered slow = rendered(example("jobs/receipt.xml"), {}, program);
        QCOMPARE(slow.end, End::TooSlow);
        QCOMPARE(slow.reason(), program + " took too long and was stopped");
    }

    void aHangingRunEndsWithTheObject()
    {
        const QTemporaryDir folder;
        const QString note = folder.filePath("process");
        {
            Rendering rendering(
                script(folder, "echo $$ > " + note.toUtf8() + "\nexec sleep 600\n"));
            rendering.render({}, {});
            QTRY_VERIFY_WITH_TIMEOUT(bytesOf(note).endsWith('\n'), longEnough);
        }
        const auto process = pid_t(bytesOf(note).trimmed().toInt());
        QVERIFY(process > 0);
        QCOMPARE(kill(process, 0), -1);
    }

    void theRendererIsFoundBesideTheProgramOrInThePath()
    {
        const QByteArray before = qgetenv("PATH");
        const QTemporaryDir folder;
        const QString here = QCoreApplication::applicationDirPath() + "/korvel-print";
        QVERIFY2(!QFile::exists(here), "the test stands beside a renderer");
        qputenv("PATH", QFile::encodeName(folder.path()));
        const QString none = Rendering::findRenderer();
        QVERIFY(QFile::rename(script(folder, "exit 0\n"), folder.filePath("korvel-print")));
        const QString inPath = Rendering::findRenderer();
        QVERIFY(QFile::copy(inPath, here));
        const QString beside = Rendering::findRenderer();
        QVERIFY(QFile::remove(here));
        qputenv("PATH", before);
        QCOMPARE(none, QString("korvel-print"));
        QCOMPARE(inPath, folder.filePath("korvel-print"));
        QCOMPARE(beside, here);
    }
};

KORVEL_TEST(TestRendering)

} // namespace tst_rendering

#include "tst_rendering.moc"

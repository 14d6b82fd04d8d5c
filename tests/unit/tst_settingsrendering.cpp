// The renderer as a child process of the settings editor: what it wrote, and what fails.
#include "companions/settings/rendering.h"
#include "support/settingsfiles.h"
#include "support/settingstext.h"
#include "support/temporaryhome.h"
#include "support/test.h"

#include <QDir>
#include <QSignalSpy>

#include <csignal>

namespace tst_settingsrendering {

using namespace korvel::settings;

class TestSettingsRendering : public QObject
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
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render(example("jobs/" + name + ".xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(longEnough));
        QCOMPARE(linesOf(rendered[0][0].toByteArray()),
                 linesOf(example("expected/" + name + ".out")));
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/" + name + ".out"));
        QCOMPARE(rendered[0][1].toString(), QString());
        QCOMPARE(failed.size(), 0);
        // The user's home is not touched.
        QCOMPARE(
            QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({".korvel"}));
    }

    void theRendererIsHeard()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        rendering.render("<printjob><method name=\"printNothing\"/></printjob>", {});
        QVERIFY(rendered.wait(longEnough));
        QVERIFY2(rendered[0][1].toString().contains("File Format Not Supported"),
                 qPrintable(rendered[0][1].toString()));
    }

    void theLatestRequestWins()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        for (const char *name : {"kitchen-order", "invoice", "statement", "sold-items"})
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(longEnough));
        QTest::qWait(100);
        QCOMPARE(rendered.size(), 1);
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/receipt.out"));
        QCOMPARE(failed.size(), 0);
    }

    void oneRunAfterTheOther()
    {
        Rendering rendering(KORVEL_PRINT);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        for (const char *name : {"receipt", "kitchen-order", "receipt"}) {
            rendering.render(example(QString("jobs/%1.xml").arg(name)), example("korvel.conf"));
            QVERIFY(rendered.wait(longEnough));
            QCOMPARE(rendered.takeFirst()[0].toByteArray(),
                     example(QString("expected/%1.out").arg(name)));
        }
    }

    void whatFails_data()
    {
        QTest::addColumn<QByteArray>("lines"); // of the program; null: there is none
        QTest::newRow("there is none") << QByteArray();
        QTest::newRow("it ends with a status") << QByteArray("exit 3\n");
        QTest::newRow("it wrote, and ends with a status")
            << QByteArray("echo begun > \"$2\"\nexit 1\n");
        QTest::newRow("it is killed") << QByteArray("kill -9 $$\n");
        QTest::newRow("it writes nothing") << QByteArray("exit 0\n");
        QTest::newRow("it takes its output away") << QByteArray("rm -rf \"$HOME\"\n");
    }

    void whatFails()
    {
        QFETCH(QByteArray, lines);
        const QTemporaryDir folder;
        const QString program =
            lines.isNull() ? folder.filePath("renderer") : script(folder, lines);
        Rendering rendering(program);
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        for (int i = 0; i < 2; ++i) {
            rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
            QVERIFY(!failed.isEmpty() || failed.wait(longEnough));
            QCOMPARE(failed.size(), 1);
            const QString reason = failed.takeFirst()[0].toString();
            QVERIFY2(reason.contains(program) && !reason.contains('\n'), qPrintable(reason));
        }
        QCOMPARE(rendered.size(), 0);
    }

    // A stream of an earlier run is no answer to a later one.
    void anOldStreamIsNotShownAgain()
    {
        const QTemporaryDir folder;
        const QString once = folder.filePath("once");
        Rendering rendering(script(folder, "test -e " + once.toUtf8() + " && exit 0\ntouch "
                                               + once.toUtf8() + "\necho first > \"$2\"\n"));
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render({}, {});
        QVERIFY(rendered.wait(longEnough));
        QCOMPARE(rendered[0][0].toByteArray(), QByteArray("first\n"));
        rendering.render({}, {});
        QVERIFY(failed.wait(longEnough));
        QCOMPARE(rendered.size(), 1);
    }

    void aHangingRunGivesWayToTheNext()
    {
        const QTemporaryDir folder;
        Rendering rendering(script(folder,
                                   "grep -q hang \"$1\" && exec sleep 600\nexec " KORVEL_PRINT
                                   " \"$1\" \"$2\"\n"));
        QSignalSpy rendered(&rendering, &Rendering::rendered);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render("<hang/>", example("korvel.conf"));
        QTest::qWait(200);
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(rendered.wait(9000));
        QCOMPARE(rendered[0][0].toByteArray(), example("expected/receipt.out"));
        QCOMPARE(failed.size(), 0);
    }

    void aHangingRunIsStopped()
    {
        const QTemporaryDir folder;
        const QString program = script(folder, "exec sleep 600\n");
        Rendering rendering(program);
        QSignalSpy failed(&rendering, &Rendering::failed);
        rendering.render(example("jobs/receipt.xml"), example("korvel.conf"));
        QVERIFY(failed.wait(longEnough));
        QVERIFY(failed[0][0].toString().contains(program));
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

KORVEL_TEST(TestSettingsRendering)

} // namespace tst_settingsrendering

#include "tst_settingsrendering.moc"

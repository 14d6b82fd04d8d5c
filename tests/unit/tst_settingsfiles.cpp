// Files around the settings editor: saved under another name, opened again, exported, jobs that are
// dropped, temporary folders; and a task from its beginning to the file.
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QAction>
#include <QDir>
#include <QDragEnterEvent>
#include <QImage>
#include <QMimeData>
#include <QProcess>
#include <QSettings>

#include <csignal>

namespace tst_settingsfiles {

class TestSettingsFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void savingAs()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        answers.give({other});
        editor.shortcut(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(linesOf(bytesOf(other)), linesOf(sampleOf40()));
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
        QVERIFY(!editor.window.isWindowModified());
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
        // From now on it is the file that is saved.
        editor.edit("receiptdoc.paperWidth", "32");
        editor.save();
        QCOMPARE(linesOf(bytesOf(other)), linesOf(sampleAsWritten()));
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
    }

    // What cannot be saved elsewhere stays where it was.
    void savingAsWhereNothingCanBeWritten()
    {
        const TemporaryHome home(example("korvel.conf"));
        writeFile(home.path() + "/file", "no folder");
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "4\"0");
        answers.give({home.path() + "/other.conf", Answers::enter}); // a loss, and not to go on
        editor.shortcut(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(!QFile::exists(home.path() + "/other.conf"));
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
        QVERIFY(editor.window.isWindowModified());
    }

    void recentFiles()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        writeFile(other, sampleOf40());
        QSettings().setValue("recent", QStringList{other});
        Editor editor(home.settingsPath());
        QCOMPARE(editor.recentFiles().size(), 2); // the one that was opened at the start first
        editor.recentFiles()[1]->trigger();
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
    }

    void thePaperIsExported()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QString png = home.path() + "/paper.png";
        const QString pdf = home.path() + "/paper.pdf";
        answers.give({png});
        editor.shortcut(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        answers.give({pdf});
        editor.shortcut(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        // 30 rows of 24 dots, and 24 dots above and below.
        QCOMPARE(QImage(png).height(), 30 * 24 + 2 * 24);
        QVERIFY(bytesOf(pdf).startsWith("%PDF-"));
    }

    void aJobIsDropped()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        drop(editor, KORVEL_SOURCE_DIR "/examples/jobs/invoice.xml");
        TRY_STREAM(editor, example("expected/invoice.out"));
        QCOMPARE(editor.jobs()->currentText(), QString("invoice.xml"));
        QCOMPARE(editor.documents()->currentItem()->text(), QString("Invoice"));
    }

    void settingsAreDropped()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        writeFile(other, sampleOf40());
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "39");
        for (const char *answer : {"Cancel", "Discard"}) {
            QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("39"));
            answers.give({answer});
            drop(editor, other);
        }
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
        QCOMPARE(editor.jobs()->currentText(), QString("Sample of the shop"));
    }

    // What is open stays, with its edits.
    void aRecentFileThatIsGone()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString gone = home.path() + "/gone.conf";
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "39");
        QSettings().setValue("recent", QStringList{gone});
        answers.give({Answers::enter});
        editor.recentFiles()[0]->trigger();
        QCOMPARE(answers.seen.value(0).text, "There is no file " + gone + ".");
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("39"));
        QVERIFY(editor.window.isWindowModified());
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
    }

    void temporaryFoldersGoOnASignal_data()
    {
        QTest::addColumn<int>("signal");
        QTest::addColumn<bool>("hasSettings");
        QTest::newRow("SIGTERM") << SIGTERM << true;
        QTest::newRow("SIGINT") << SIGINT << true;
        QTest::newRow("SIGHUP") << SIGHUP << true;
        QTest::newRow("while it asks for the sample") << SIGTERM << false;
    }

    void temporaryFoldersGoOnASignal()
    {
        QFETCH(int, signal);
        QFETCH(bool, hasSettings);
        const TemporaryHome home(example("korvel.conf"));
        if (!hasSettings)
            QVERIFY(QFile::remove(home.settingsPath()));
        const QTemporaryDir folder;
        const QDir temporary(folder.path());
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("TMPDIR", folder.path());
        environment.insert("XDG_RUNTIME_DIR", home.path()); // the toolkit's, not the editor's
        QProcess editor;
        editor.setProcessEnvironment(environment);
        editor.start(built::settings, {});
        QTRY_VERIFY_WITH_TIMEOUT(!temporary.isEmpty(), longEnough);
        QTest::qWait(500); // until the window is there
        QCOMPARE(kill(pid_t(editor.processId()), signal), 0);
        QVERIFY(editor.waitForFinished(longEnough));
        QCOMPARE(editor.exitStatus(), QProcess::CrashExit);
        QCOMPARE(editor.exitCode(), signal);
        QCOMPARE(temporary.entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }

    // "Headers off for the kitchen order, amounts one column wider on the receipt, labels in
    // German, undo the last, save", in the form alone.
    void aTaskSheet()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.activate();
        editor.choose("Kitchen order");
        editor.check("doc.printHeader")->setFocus();
        Editor::press(Qt::Key_Space);
        editor.choose("Receipt");
        editor.number("receiptdoc.totalPriceFieldWidth")->setFocus();
        Editor::press(Qt::Key_Up);
        editor.choose("Language");
        auto *catalogues = editor.field<QComboBox>("language.file");
        catalogues->setFocus();
        catalogues->setCurrentIndex(catalogues->findText("Deutsch"));
        emit catalogues->activated(catalogues->currentIndex());
        QVERIFY(!editor.valueRow("language.file")->text(0).isEmpty());
        editor.shortcut(Qt::Key_Z);
        editor.save();

        QByteArray expected = sampleAsWritten();
        const auto replace = [&](const char *group, const QByteArray &before,
                                 const QByteArray &after) {
            const qsizetype at = expected.indexOf(before, expected.indexOf(group));
            QVERIFY(at >= 0);
            expected.replace(at, before.size(), after);
        };
        replace("    doc:", "printHeader = \"true\"", "printHeader = \"false\"");
        replace("receiptdoc:", "totalPriceFieldWidth = \"8\"", "totalPriceFieldWidth = \"9\"");
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(expected));
    }

private:
    static void drop(Editor &editor, const QString &path)
    {
        QMimeData files;
        files.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&editor.window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&editor.window, &event);
    }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsFiles)

} // namespace tst_settingsfiles

#include "tst_settingsfiles.moc"

// Saving in the settings editor: what would be lost, what others changed, what cannot be written.
#include "support/answers.h"
#include "support/renderer.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QDir>
#include <QStatusBar>

namespace tst_settingssaving {

class TestSettingsSaving : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void theModifiedMark()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QVERIFY2(editor.window.windowTitle().contains("korvel.conf[*]"),
                 qPrintable(editor.window.windowTitle()));
        QVERIFY(!editor.window.isWindowModified());
        // Neither moving about nor an editor that changes nothing is an edit.
        editor.begin("receiptdoc.paperWidth", "40");
        Editor::press(Qt::Key_Escape);
        editor.edit("receiptdoc.paperWidth", "32");
        QTest::qWait(100);
        QVERIFY(!editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "31");
        QVERIFY(editor.window.isWindowModified());
        editor.save();
        QVERIFY(!editor.window.isWindowModified());
        QCOMPARE(editor.window.statusBar()->currentMessage(), "Saved: " + home.settingsPath());
        // The marks in the tree are no edits either.
        QTest::qWait(200);
        QVERIFY(!editor.window.isWindowModified());
    }

    // What is saved then would be what the file has.
    void whatIsSetBackIsNoEdit()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        QVERIFY(editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "32");
        QVERIFY(!editor.window.isWindowModified());

        editor.showForm();
        editor.activate();
        auto *header = editor.check("receiptdoc.printHeader");
        header->setFocus();
        Editor::press(Qt::Key_Space);
        QVERIFY(editor.window.isWindowModified());
        editor.shortcut(Qt::Key_L); // as in the file
        QVERIFY(header->isChecked());
        QVERIFY(!editor.window.isWindowModified());
        QVERIFY(editor.window.close()); // asks nothing
    }

    void whatIsUndoneBehindASaveIsAnEdit()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        editor.save();
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("32"));
        QVERIFY(editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "40");
        QVERIFY(!editor.window.isWindowModified());
    }

    // A setting that was taken out stands behind the others when it is set again.
    void anotherOrderIsAnEdit()
    {
        const TemporaryHome home(settingsFile(documentGroup("doc", "style = a; paperWidth = 31;")));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.activate();
        editor.choose("Kitchen order");
        editor.field<QLineEdit>("doc.style")->setFocus();
        editor.shortcut(Qt::Key_N); // not set
        editor.shortcut(Qt::Key_L); // as in the file
        QVERIFY(editor.window.isWindowModified());
        editor.shortcut(Qt::Key_Z);
        QVERIFY(editor.window.isWindowModified());
        editor.shortcut(Qt::Key_Z);
        QVERIFY(!editor.window.isWindowModified());
    }

    // The paper is what the renderer makes of the file: nothing of it is read.
    void aFileInXml()
    {
        const TemporaryHome home(
            "<?xml version=\"1.0\"?>\n<korvel><receiptdoc printHeader=\"true\" "
            "paperWidth=\"40\"/></korvel>\n");
        const QString said = "The renderer reads nothing of this file: it is written as XML. "
                             "Save as, in the menu File, writes the settings as the renderer "
                             "reads them.";
        Editor editor(home.settingsPath());
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), rendered(home), longEnough);
        QCOMPARE(editor.findings().value(0), said);
        for (int row = 0; row < editor.documents()->count(); ++row)
            QCOMPARE(editor.documents()->item(row)->toolTip().section('\n', 0, 0), said);
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 40);
        QVERIFY(editor.check("receiptdoc.printHeader")->isChecked());

        const TemporaryHome other;
        answers.give({other.settingsPath()});
        QVERIFY(QDir().mkpath(QFileInfo(other.settingsPath()).path()));
        editor.shortcut(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(bytesOf(other.settingsPath()),
                 QByteArray("korvel: \n{\n    receiptdoc: \n    {\n"
                            "        printHeader = \"true\";\n        paperWidth = \"40\";\n"
                            "    };\n\n};\n\n"));
        QVERIFY(rendered(other) != rendered(home));
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), rendered(other), longEnough);
        QVERIFY(!editor.findings().contains(said));
    }

    // A value that is being typed counts as much as one behind Enter.
    void savingTakesTheOpenEditorAlong()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.begin("receiptdoc.paperWidth", "40");
        Editor::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        QVERIFY(!editor.window.isWindowModified());
    }

    void whatIsLostIsNamed_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("value"); // of doc.style
        QTest::addColumn<QString>("named");
        const QByteArray doc = settingsFile(documentGroup("doc", "style = a;"));
        QTest::newRow("a quote") << doc << "1\""
                                 << "korvel.doc.style";
        QTest::newRow("a semicolon") << doc << "a;b"
                                     << "korvel.doc.style";
        QTest::newRow("beyond Latin-1") << doc << QString::fromUtf8("5 €") << "korvel.doc.style";
        QTest::newRow("markup") << doc << "\"<b>bold</b>"
                                << "korvel.doc.style";
        QTest::newRow("a second group") << doc + "second: { a = 1; };"
                                        << "b"
                                        << "second";
        QTest::newRow("a group that would move")
            << settingsFile("doc: { style = a; }; receiptdoc: { deep: { a = 1; }; };") << "b"
            << "korvel.receiptdoc";
    }

    void whatIsLostIsNamed()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, value);
        QFETCH(QString, named);
        const TemporaryHome home(file);
        Editor editor(home.settingsPath());
        editor.edit("doc.style", value);
        for (const char *answer : {Answers::enter, Answers::escape}) {
            answers.give({answer});
            editor.save();
            QVERIFY2(!answers.seen.isEmpty(), "nothing was asked");
            const Dialog asked = answers.seen.takeFirst();
            QVERIFY2(asked.text.contains(named), qPrintable(asked.text));
            QCOMPARE(asked.defaultRole, QString("cancel"));
            QCOMPARE(bytesOf(home.settingsPath()), file);
            QVERIFY(!QFile::exists(home.settingsPath() + '~'));
            QVERIFY(editor.window.isWindowModified());
            QCOMPARE(editor.valueRow("doc.style")->text(0), value);
        }
        answers.give({"Save all the same"});
        editor.save();
        QVERIFY(bytesOf(home.settingsPath()) != file);
        QCOMPARE(bytesOf(home.settingsPath() + '~'), file);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aFileThatAnotherProgramChanged()
    {
        const QByteArray others = settingsFile(documentGroup("doc", "style = other;"));
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        writeFile(home.settingsPath(), others);
        for (const char *answer : {Answers::enter, Answers::escape}) {
            answers.give({answer});
            editor.save();
            QCOMPARE(answers.seen.size(), 1);
            QCOMPARE(answers.seen.takeFirst().defaultRole, QString("cancel"));
            QCOMPARE(bytesOf(home.settingsPath()), others);
            QVERIFY(editor.window.isWindowModified());
        }
        answers.give({"Save all the same"});
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        QCOMPARE(bytesOf(home.settingsPath() + '~'), others);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aFileThatIsGone()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        QVERIFY(QDir(home.path() + "/.korvel").removeRecursively());
        answers.give({"Save all the same"});
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
    }

    void whatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QStringList>("answersBefore");
        QTest::newRow("a folder in its place") << "folder" << QStringList{"Save all the same"};
        QTest::newRow("a file for its folder") << "file" << QStringList{"Save all the same"};
        QTest::newRow("no place for the previous file") << "backup" << QStringList();
    }

    void whatCannotBeWritten()
    {
        QFETCH(QString, obstacle);
        QFETCH(QStringList, answersBefore);
        const TemporaryHome home(example("korvel.conf"));
        const QString path = home.settingsPath();
        Editor editor(path);
        editor.edit("receiptdoc.paperWidth", "40");
        if (obstacle == "folder") {
            QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/inner"));
        } else if (obstacle == "file") {
            QVERIFY(QDir(home.path() + "/.korvel").removeRecursively());
            writeFile(home.path() + "/.korvel", "no folder");
        } else {
            QVERIFY(QDir().mkpath(path + "~/inner"));
        }
        answers.give(answersBefore + QStringList{Answers::enter});
        editor.save();
        QCOMPARE(answers.seen.size(), answersBefore.size() + 1);
        QVERIFY2(answers.seen.last().text.contains(home.path()),
                 qPrintable(answers.seen.last().text));
        QVERIFY(editor.window.isWindowModified());
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        if (obstacle == "backup")
            QCOMPARE(bytesOf(path), example("korvel.conf"));

        // Closing does not lose the edits either: the file cannot be saved, so the window stays.
        answers.seen.clear();
        answers.give(QStringList{"Save"} + answersBefore + QStringList{Answers::enter});
        QVERIFY(!editor.window.close());
        QVERIFY(editor.window.isVisible());
        QVERIFY(editor.window.isWindowModified());
    }

private:
    /// The sample receipt by the settings of a home.
    static QStringList rendered(const TemporaryHome &home)
    {
        const QTemporaryDir folder;
        const QString out = folder.filePath("stream.out");
        runRenderer({KORVEL_SOURCE_DIR "/examples/jobs/receipt.xml", out}, home.path(),
                    {"HOME=" + home.path()});
        return linesOf(bytesOf(out));
    }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsSaving)

} // namespace tst_settingssaving

#include "tst_settingssaving.moc"

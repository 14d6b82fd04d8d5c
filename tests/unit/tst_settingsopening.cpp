// The settings editor: the first start, closing, reverting, and opening another file.
#include "support/answers.h"
#include "support/renderer.h"
#include "support/settingseditor.h"
#include "support/test.h"

namespace tst_settingsopening {

class TestSettingsOpening : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void theFirstStart()
    {
        const TemporaryHome home;
        answers.give({"Yes"});
        Editor editor(home.settingsPath());
        QCOMPARE(answers.seen.size(), 1);
        QVERIFY2(answers.seen[0].text.contains(home.settingsPath()),
                 qPrintable(answers.seen[0].text));
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
        TRY_STREAM(editor, example("expected/receipt.out"));
        QVERIFY(!editor.window.isWindowModified());

        editor.edit("receiptdoc.paperWidth", "40");
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.isWindowModified());
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));

        editor.save();
        QVERIFY(!editor.window.isWindowModified());
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        QCOMPARE(bytesOf(home.settingsPath() + '~'), example("korvel.conf"));

        const QString out = home.path() + "/stream.out";
        const Run run =
            runRenderer({KORVEL_SOURCE_DIR "/examples/jobs/receipt.xml", out}, home.path());
        VERIFY_SOUND(run);
        QCOMPARE(linesOf(bytesOf(out)), receiptOf40());
        QCOMPARE(bytesOf(out), editor.window.shownStream());

        // Nothing is left to ask.
        QVERIFY(editor.window.close());
        Editor again(home.settingsPath());
        QTRY_COMPARE_WITH_TIMEOUT(again.stream(), receiptOf40(), longEnough);
        QCOMPARE(again.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
    }

    void withoutTheSample()
    {
        const TemporaryHome home;
        answers.give({"No"});
        Editor editor(home.settingsPath());
        QCOMPARE(editor.tree()->topLevelItemCount(), 0);
        QVERIFY(!QFile::exists(home.path() + "/.korvel"));
        QVERIFY(!editor.window.isWindowModified());
        // The paper shows a receipt by the defaults: nothing but what has no switch.
        QTRY_VERIFY_WITH_TIMEOUT(editor.stream().contains(shownLine("             CASSA")),
                                 longEnough);
        QVERIFY(!editor.stream().contains(shownLine("Benvenuti!")));
        QVERIFY(editor.window.close());
        QVERIFY(!QFile::exists(home.path() + "/.korvel"));
    }

    void theSampleWhereItCannotBeWritten()
    {
        const QTemporaryDir folder;
        writeFile(folder.filePath("file"), "no folder");
        const QString path = folder.filePath("file/conf/korvel.conf");
        answers.give({"Yes", Answers::enter});
        Editor editor(path);
        QCOMPARE(answers.seen.size(), 2);
        QVERIFY2(answers.seen[1].text.contains(folder.filePath("file")),
                 qPrintable(answers.seen[1].text));
        QVERIFY2(!answers.seen[1].text.contains("Unknown error"), qPrintable(answers.seen[1].text));
    }

    void theSampleOnlyWhereThereIsNone()
    {
        const TemporaryHome home(QByteArray(""));
        Editor editor(home.settingsPath());
        QCOMPARE(answers.seen.size(), 0);
        QCOMPARE(editor.tree()->topLevelItemCount(), 0);
    }

    void whatCannotBeReadIsSaid()
    {
        const QTemporaryDir folder;
        answers.give({Answers::enter});
        Editor editor(folder.path());
        QCOMPARE(answers.seen.size(), 1);
        QVERIFY(answers.seen[0].text.contains(folder.path()));
    }

    void closing_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<bool>("saved");
        QTest::newRow("the default stays") << Answers::enter << false << false;
        QTest::newRow("Escape stays") << Answers::escape << false << false;
        QTest::newRow("Cancel stays") << "Cancel" << false << false;
        QTest::newRow("Discard closes") << "Discard" << true << false;
        QTest::newRow("Save saves and closes") << "Save" << true << true;
    }

    void closing()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closed);
        QFETCH(bool, saved);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        answers.give({answer});
        QCOMPARE(editor.window.close(), closed);
        QCOMPARE(answers.seen.size(), 1);
        QCOMPARE(answers.seen[0].defaultRole, QString("cancel"));
        QCOMPARE(editor.window.isVisible(), !closed);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())),
                 linesOf(saved ? sampleOf40() : example("korvel.conf")));
        if (!closed)
            QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
    }

    void closingWithoutEdits()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QVERIFY(editor.window.close());
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
    }

    void closingAsksForTheOpenEditor()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.begin("receiptdoc.paperWidth", "40");
        answers.give({"Save"});
        QVERIFY(editor.window.close());
        QCOMPARE(answers.seen.size(), 1);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
    }

    void closingWithAQuestionBehindTheQuestion()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "4\"0");
        answers.give({"Save", Answers::enter});
        QVERIFY(!editor.window.close());
        QCOMPARE(answers.seen.size(), 2);
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
        QVERIFY(editor.window.isWindowModified());
    }

    void reverting()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.printCompany", "false");
        answers.give({Answers::enter});
        editor.shortcut(Qt::Key_F5, Qt::NoModifier);
        QCOMPARE(answers.seen.size(), 1);
        QCOMPARE(answers.seen[0].defaultRole, QString("cancel"));
        QCOMPARE(editor.valueRow("receiptdoc.printCompany")->text(0), QString("false"));

        writeFile(home.settingsPath(), sampleOf40());
        answers.give({"Discard"});
        editor.shortcut(Qt::Key_F5, Qt::NoModifier);
        QCOMPARE(editor.valueRow("receiptdoc.printCompany")->text(0), QString("true"));
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
        QVERIFY(!editor.window.isWindowModified());
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QCOMPARE(bytesOf(home.settingsPath()), sampleOf40());

        // What was read is no longer a change of another program.
        editor.edit("receiptdoc.paperWidth", "41");
        editor.save();
        QVERIFY(!editor.window.isWindowModified());
    }

    void revertingReadsWhatAnotherProgramWrote()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        writeFile(home.settingsPath(), sampleOf40());
        editor.shortcut(Qt::Key_F5, Qt::NoModifier);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), 5000);
        QCOMPARE(answers.seen.size(), 0);
    }

    void openingAnotherFile()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        writeFile(other, sampleOf40());
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "39");

        for (const QStringList &giveUp : {QStringList{Answers::escape}, {other, Answers::enter}}) {
            answers.give(giveUp);
            editor.shortcut(Qt::Key_O);
            QCOMPARE(answers.prepared, QStringList());
            QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("39"));
            QVERIFY(editor.window.isWindowModified());
        }
        QCOMPARE(answers.seen.last().defaultRole, QString("cancel"));

        answers.give({other, "Discard"});
        editor.shortcut(Qt::Key_O);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().contains("other.conf"));
        QVERIFY(!editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "32");
        editor.save();
        QVERIFY(bytesOf(other) != sampleOf40());
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
    }

private:
    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsOpening)

} // namespace tst_settingsopening

#include "tst_settingsopening.moc"

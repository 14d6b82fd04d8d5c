// Settings and jobs in the settings editor, told apart wherever a file is opened; jobs that are
// gone.
#include "companions/settings/jobs.h"
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QSettings>

namespace tst_settingsjobs {

using korvel::settings::FileKind;

class TestSettingsJobs : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        answers.clear();
        QSettings().remove("recent");
    }

    void cleanup() { answers.verifyUsedUp(); }

    void kinds_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("kind");
        const auto row = [](const char *name, const QByteArray &bytes, FileKind kind) {
            QTest::newRow(name) << bytes << static_cast<int>(kind);
        };
        row("the sample settings", example("korvel.conf"), FileKind::Settings);
        row("a sample job", example("jobs/receipt.xml"), FileKind::Job);
        row("nothing", "", FileKind::Settings);
        row("all of it a comment", "# korvel: { doc: { style = a; }; };\n", FileKind::Settings);
        row("settings in XML", "<korvel><doc style=\"a\"/></korvel>", FileKind::Settings);
        row("settings in XML behind a declaration",
            "<?xml version=\"1.0\"?>\n<korvel><doc style=\"a\"/></korvel>", FileKind::Settings);
        row("a job whose root is called otherwise", "<order><method name=\"printSold\"/></order>",
            FileKind::Job);
        row("a job that asks for nothing known", "<printjob><metod/></printjob>", FileKind::Job);
        row("a job without a method", "<job><total price=\"1.00\"/></job>", FileKind::Job);
        row("a job that ends early", "<printjob><method name=\"printSold\"/>", FileKind::Job);
        row("a job behind an empty line", "\n<?xml version=\"1.0\"?><printjob/>", FileKind::Job);
        row("a page for browsers", "<html><body><p>Total</p></body></html>", FileKind::Other);
        row("another program's settings", "{\"paperWidth\": 32}", FileKind::Other);
        row("a text", "Dear shop,\nwe thank you.\n", FileKind::Other);
        row("a picture", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), FileKind::Other);
    }

    void kinds()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, kind);
        QCOMPARE(static_cast<int>(korvel::settings::kindOf(bytes)), kind);
    }

    // The settings stay open, with their edits, and nothing is asked.
    void aJobIsOpened_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"File > Open", "File > Open a job file", "a recent file"})
            QTest::newRow(way) << way;
    }

    void aJobIsOpened()
    {
        QFETCH(QString, way);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.printCompany", "false");
        openBy(way, editor, invoice);
        TRY_STREAM(editor, example("expected/invoice.out"));
        QCOMPARE(editor.jobs()->currentText(), QString("invoice.xml"));
        QCOMPARE(editor.documents()->currentItem()->text(), QString("Invoice"));
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
        QCOMPARE(editor.valueRow("receiptdoc.printCompany")->text(0), QString("false"));
        QVERIFY(editor.window.isWindowModified());
        // What is opened often is settings: a job is among them only if it was before.
        QCOMPARE(QSettings().value("recent").toStringList().contains(invoice),
                 way == "a recent file");
    }

    void aJobIsNamed()
    {
        const TemporaryHome home(example("korvel.conf"));
        const Editor editor(home.settingsPath(), built::print, invoice);
        TRY_STREAM(editor, example("expected/invoice.out"));
        QCOMPARE(editor.jobs()->currentText(), QString("invoice.xml"));
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
        QCOMPARE(editor.documents()->count(), 14); // documents, language, and nothing unread
    }

    void settingsAreNamed()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        writeFile(other, sampleOf40());
        const Editor editor(home.settingsPath(), built::print, other);
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
    }

    void aFileToBeMadeIsNamed()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        answers.give({"Yes"});
        const Editor editor(home.settingsPath(), built::print, other);
        QVERIFY2(answers.seen[0].text.contains(other), qPrintable(answers.seen[0].text));
        QCOMPARE(bytesOf(other), example("korvel.conf"));
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
    }

    void aFileThatIsNeitherIsRefused_data()
    {
        QTest::addColumn<QString>("way");
        for (const char *way : {"File > Open", "File > Open a job file", "a recent file"})
            QTest::newRow(way) << way;
    }

    void aFileThatIsNeitherIsRefused()
    {
        QFETCH(QString, way);
        const TemporaryHome home(example("korvel.conf"));
        const QString letter = home.path() + "/letter.txt";
        writeFile(letter, "Dear shop,\n");
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        answers.clear();
        openBy(way, editor, letter, {Answers::enter});
        QCOMPARE(answers.seen.last().text,
                 letter
                     + " is neither settings nor a job. Choose a settings file such as "
                       "korvel.conf, or a job in XML.");
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
        QCOMPARE(editor.jobs()->currentText(), QString("Sample of the shop"));
        QVERIFY(editor.window.isWindowModified());
    }

    // The user's own settings are open.
    void aFileThatIsNeitherIsNamed()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString letter = home.path() + "/letter.txt";
        writeFile(letter, "Dear shop,\n");
        answers.give({Answers::enter});
        const Editor editor(home.settingsPath(), built::print, letter);
        QVERIFY(answers.seen[0].text.startsWith(letter + " is neither settings nor a job."));
        QVERIFY(editor.window.windowTitle().startsWith("korvel.conf"));
        TRY_STREAM(editor, example("expected/receipt.out"));
    }

    void settingsFromTheListOfJobs()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString other = home.path() + "/other.conf";
        writeFile(other, sampleOf40());
        Editor editor(home.settingsPath());
        openBy("File > Open a job file", editor, other);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().startsWith("other.conf"));
        QCOMPARE(editor.jobs()->currentText(), QString("Sample of the shop"));
    }

    // Of two jobs the one that is not shown is gone: the paper stays.
    void aRememberedJobIsGone()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString gone = home.path() + "/gone.xml";
        writeFile(gone, example("jobs/sold-items.xml"));
        Editor editor(home.settingsPath());
        openBy("File > Open", editor, gone);
        openBy("File > Open", editor, invoice);
        QVERIFY(QFile::remove(gone));
        chooseGone(editor, gone);
        QCOMPARE(editor.jobs()->currentText(), QString("invoice.xml"));
        TRY_STREAM(editor, example("expected/invoice.out"));
    }

    // The paper of the job that is gone is shown: the sample takes its place.
    void theShownJobIsGone()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString gone = home.path() + "/gone.xml";
        writeFile(gone, "<printjob><method name=\"printFullOrderInvoice\"/></printjob>");
        Editor editor(home.settingsPath());
        openBy("File > Open", editor, gone);
        QVERIFY(QFile::remove(gone));
        chooseGone(editor, gone);
        QCOMPARE(editor.jobs()->currentText(), QString("Sample of the shop"));
        TRY_STREAM(editor, example("expected/invoice.out"));
    }

private:
    void openBy(const QString &way, Editor &editor, const QString &path,
                const QStringList &answersThen = {})
    {
        if (way == "a recent file") {
            QSettings().setValue("recent", QStringList{path});
            answers.give(answersThen);
            editor.recentFiles()[0]->trigger();
            return;
        }
        answers.give(QStringList{path} + answersThen);
        editor.shortcut(way == "File > Open" ? Qt::Key_O : Qt::Key_J);
    }

    void chooseGone(Editor &editor, const QString &gone)
    {
        const int entry = editor.jobs()->findData(gone);
        QVERIFY(entry > 0);
        answers.seen.clear();
        answers.give({Answers::enter});
        editor.jobs()->setCurrentIndex(entry);
        emit editor.jobs()->activated(entry);
        QCOMPARE(answers.seen.value(0).text, "There is no file " + gone + ".");
        QCOMPARE(editor.jobs()->findData(gone), -1);
    }

    const QString invoice = KORVEL_SOURCE_DIR "/examples/jobs/invoice.xml";
    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsJobs)

} // namespace tst_settingsjobs

#include "tst_settingsjobs.moc"

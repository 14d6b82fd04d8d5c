// What the settings editor says: empty and not set, names of languages, buttons, messages; and what
// it does not list or light.
#include "companions/settings/adddialog.h"
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QTranslator>

namespace tst_settingswords {

using namespace korvel::settings;

/// Chooses the filter of pictures in the next file dialog, and gives a name.
class PngDialog : public QObject
{
public:
    explicit PngDialog(const QString &path)
    {
        connect(&timer, &QTimer::timeout, this, [this, path] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            if (!dialog || !dialog->isVisible())
                return;
            timer.stop();
            auto *filters = dialog->findChild<QComboBox *>("fileTypeCombo");
            filters->setFocus();
            QTest::keyClick(filters, Qt::Key_Down);
            dialog->findChild<QLineEdit *>("fileNameEdit")->setText(path);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        timer.start(5);
    }

private:
    QTimer timer;
};

class TestSettingsWords : public QObject
{
    Q_OBJECT

private slots:
    void emptyIsNotNotSet()
    {
        const TemporaryHome home(settingsFile(documentGroup("language", "file = \"\";")
                                              + documentGroup("receiptdoc", "style = \"\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        auto *style = editor.field<QLineEdit>("receiptdoc.style");
        QCOMPARE(style->placeholderText(), QString("empty"));
        QVERIFY(style->accessibleDescription().endsWith(". empty"));
        editor.choose("Language");
        auto *catalogue = editor.field<QComboBox>("language.file");
        QCOMPARE(catalogue->currentText(), QString("empty: labels in English"));
        QVERIFY(catalogue->accessibleDescription().endsWith(". empty"));
        auto *folder = editor.field<QLineEdit>("language.basedir");
        QCOMPARE(folder->placeholderText(), QString("not set"));
        editor.activate();
        catalogue->setFocus();
        Editor::press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(catalogue->currentText(), QString("not set: labels in English"));
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(catalogue->currentText(), QString("empty: labels in English"));
    }

    void languagesByTheirOwnNames()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("language", "basedir = \"/nowhere\"; file = \"/\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.choose("Language");
        const auto *box = editor.field<QComboBox>("language.file");
        for (const char *name : {"Deutsch", "Español", "Français", "Italiano"})
            QVERIFY2(box->findText(QString::fromUtf8(name), Qt::MatchExactly) > 0, name);
        QCOMPARE(box->currentText(), QString("the language of the system"));
    }

    void aLossNamesTheField()
    {
        const TemporaryHome home(settingsFile(documentGroup("language", "basedir = \"/a\";")
                                              + documentGroup("custom", "b = \"1\";")));
        Editor editor(home.settingsPath());
        editor.edit("language.basedir", "/\"a");
        editor.edit("custom.b", "\"");
        Answers answers;
        answers.give({Answers::enter});
        editor.save();
        answers.verifyUsedUp();
        const QString text = answers.seen.value(0).text;
        QVERIFY2(text.contains("\nFolder of the catalogues (korvel.language.basedir) would be"),
                 qPrintable(text));
        QVERIFY2(text.contains("\nkorvel.custom.b would be"), qPrintable(text));
    }

    // The toolkit's catalogue may not be installed; none is loaded here.
    void buttonsInGerman()
    {
        QTranslator german;
        QVERIFY(german.load("korvel-settings_de", built::path("/companions/settings")));
        QCoreApplication::installTranslator(&german);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        Answers answers;
        editor.edit("receiptdoc.paperWidth", "\"");
        answers.give({"Abbrechen"});
        editor.save();
        answers.give({"Verwerfen"});
        editor.shortcut(Qt::Key_F5, Qt::NoModifier);
        answers.verifyUsedUp();
        QVERIFY(!editor.window.isWindowModified());

        QStringList texts;
        const AddDialog dialog(AddDialog::What::Setting, {}, {}, {}, nullptr);
        for (const QAbstractButton *button : dialog.findChild<QDialogButtonBox *>()->buttons())
            texts.append(button->text().remove('&'));
        texts.sort();
        QCOMPARE(texts, (QStringList{"Abbrechen", "OK"}));
    }

    void anExportIsSaid()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        Answers answers;
        answers.give({home.path() + "/paper"}); // the filter is that of PDFs
        editor.shortcut(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        answers.verifyUsedUp();
        QVERIFY(bytesOf(home.path() + "/paper.pdf").startsWith("%PDF-"));
        QCOMPARE(editor.window.statusBar()->currentMessage(),
                 "Exported: " + home.path() + "/paper.pdf");
    }

    void aPictureByItsFilter()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const PngDialog dialog(home.path() + "/paper");
        editor.shortcut(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(bytesOf(home.path() + "/paper.png").startsWith("\x89PNG"));
    }

    void aFailedExportSaysWhy()
    {
        const TemporaryHome home(example("korvel.conf"));
        writeFile(home.path() + "/file", "no folder");
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QString path = home.path() + "/file/paper.pdf";
        Answers answers;
        answers.give({path, Answers::enter});
        editor.shortcut(Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
        answers.verifyUsedUp();
        QVERIFY2(answers.seen.value(1).text.startsWith(path + " cannot be written: "),
                 qPrintable(answers.seen.value(1).text));
        QCOMPARE(editor.window.statusBar()->currentMessage(), QString());
    }

    void redoByBothKeys()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        for (const auto &[key, modifiers] :
             {std::pair(Qt::Key_Y, Qt::KeyboardModifiers(Qt::ControlModifier)),
              std::pair(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier)}) {
            editor.shortcut(Qt::Key_Z);
            QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("32"));
            editor.shortcut(key, modifiers);
            QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
        }
        for (const QAction *action : editor.window.findChildren<QAction *>())
            if (action->text().startsWith("&Redo"))
                QCOMPARE(action->shortcut(), QKeySequence("Ctrl+Shift+Z")); // what the menu shows
    }

    // A screen reader would find a hidden row.
    void whatNothingReadsHasARowWhileThereIsAny()
    {
        const TemporaryHome home(settingsFile(documentGroup("doc", "paperwith = \"31\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        QCOMPARE(editor.documents()->count(), 13 + 2);
        editor.choose("Read by nothing (1)");
        editor.child<QListWidget>("unread")->setCurrentRow(0);
        editor.child<QPushButton>("removeUnread")->click();
        QTRY_VERIFY_WITH_TIMEOUT(editor.hasRow("Read by nothing (0)"), longEnough);
        editor.choose("Receipt");
        QTRY_COMPARE_WITH_TIMEOUT(editor.documents()->count(), 13 + 1, longEnough);
        editor.shortcut(Qt::Key_Z);
        QTRY_VERIFY_WITH_TIMEOUT(editor.hasRow("Read by nothing (1)"), longEnough);
    }

    // Row 11 of the sample receipt is its date.
    void theLightGoesWithTheField_data()
    {
        QTest::addColumn<bool>("toExpert"); // or to the language
        QTest::newRow("to the language") << false;
        QTest::newRow("to the tab Expert") << true;
    }

    void theLightGoesWithTheField()
    {
        QFETCH(bool, toExpert);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        editor.check("receiptdoc.printDate")->setFocus();
        QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit(), QList<int>{11}, longEnough);
        editor.documents()->setFocus();
        if (toExpert)
            editor.showExpert();
        else
            editor.choose("Language");
        QCOMPARE(editor.paper()->lit(), QList<int>());
        QTest::qWait(500); // it does not come back
        QCOMPARE(editor.paper()->lit(), QList<int>());
    }
};

KORVEL_TEST_BY(runWindowTest, TestSettingsWords)

} // namespace tst_settingswords

#include "tst_settingswords.moc"

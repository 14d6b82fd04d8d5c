// The form of the settings editor: fields for all that is read, not set and restored, both tabs one
// state.
#include "companions/check/vocabulary.h"
#include "support/answers.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QAccessible>
#include <QPushButton>
#include <QSet>
#include <QWheelEvent>

namespace tst_settingsform {

class TestSettingsForm : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    // Set or not: the sample's kitchen order sets nine of them.
    void everySettingOfADocumentHasAField()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        for (const vocabulary::Method &method : vocabulary::methods()) {
            editor.documents()->setCurrentRow(int(&method - vocabulary::methods().begin()));
            for (const vocabulary::Setting &setting : vocabulary::settings()) {
                const QString name = QString(method.group) + '.' + setting.key;
                auto *field = editor.window.findChild<QWidget *>(name);
                const bool reads =
                    setting.documents == 0 || (setting.documents & method.document) != 0;
                QVERIFY2((field != nullptr) == reads, qPrintable(method.name + ' ' + name));
                if (!field)
                    continue;
                QVERIFY(!field->accessibleName().isEmpty());
                QVERIFY(!field->accessibleDescription().isEmpty());
                QVERIFY2(field->toolTip().endsWith(name), qPrintable(field->toolTip()));
            }
        }
        editor.choose("Language");
        QVERIFY(editor.field<QComboBox>("language.file"));
        QVERIFY(editor.field<QLineEdit>("language.basedir"));
    }

    // Every known key in every group. Of documents' keys the kitchen order and the delivery note
    // leave 3 unread, the full order, receipts and invoices 1 each, the fiscal receipts 20, report
    // and statement 9, sold items 7: 45. With the 2 of the language in 8 groups, and 25 in its own.
    void everySettingStandsInOnePlace()
    {
        QByteArray keys;
        for (const vocabulary::Setting &setting : vocabulary::settings())
            keys += setting.key.data() + QByteArray(" = \"1\"; ");
        for (const vocabulary::LanguageSetting &setting : vocabulary::languageSettings())
            keys += setting.key.data() + QByteArray(" = \"1\"; ");
        QByteArray groups;
        for (const QString &group : vocabulary::groupNames())
            groups += documentGroup(group.toLatin1(), keys);
        const TemporaryHome home(settingsFile(groups));
        Editor editor(home.settingsPath());
        editor.showForm();
        QSet<QString> inForm;
        for (int row = 0; row <= vocabulary::methods().size(); ++row) { // the language's is last
            editor.documents()->setCurrentRow(row);
            for (const QWidget *field : editor.child<QWidget>("form")->findChildren<QWidget *>())
                if (field->toolTip().startsWith("korvel."))
                    inForm.insert(field->toolTip());
        }
        QStringList unread;
        const auto *list = editor.child<QListWidget>("unread");
        for (int i = 0; i < list->count(); ++i)
            unread.append(list->item(i)->text().remove(" = 1"));
        QCOMPARE(unread.size(), 86);
        QVERIFY(unread.contains("korvel.fiscaldoc.paperWidth"));
        QVERIFY(unread.contains("korvel.language.paperWidth"));
        QVERIFY(unread.contains("korvel.doc.file"));
        QCOMPARE(inForm.size(), 9 * 27 - 86);
        for (const QString &path : std::as_const(unread))
            QVERIFY2(!inForm.contains(path), qPrintable(path));
        QVERIFY(editor.hasRow("Read by nothing (86)"));
    }

    // It is the key of other documents; in the tree it is marked as what nothing reads.
    void whatOnlyOtherDocumentsReadIsRemovedAndComesBack()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("fiscaldoc", "descriptionWidth = 9; paperWidth = 30;")));
        Editor editor(home.settingsPath());
        editor.showForm();
        QVERIFY(!editor.valueRow("fiscaldoc.paperWidth")->icon(0).isNull());
        QVERIFY(editor.valueRow("fiscaldoc.descriptionWidth")->icon(0).isNull());
        editor.choose("Read by nothing (1)");
        auto *list = editor.child<QListWidget>("unread");
        QCOMPARE(list->item(0)->text(), QString("korvel.fiscaldoc.paperWidth = 30"));
        list->setCurrentRow(0);
        editor.child<QPushButton>("removeUnread")->click();
        QCOMPARE(list->count(), 0);
        undo(editor);
        QCOMPARE(list->count(), 1);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aNumberIsSetAndUndone()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        typeNumber(editor, "receiptdoc.paperWidth", "40");
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
        QVERIFY(editor.hasAction("Undo paper width 40"));
        QTRY_VERIFY(editor.number("receiptdoc.paperWidth")
                        ->accessibleDescription()
                        .contains("Too wide for the paper"));
        Editor::press(Qt::Key_Z, Qt::ControlModifier); // in the field
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 32);
        QVERIFY(!editor.window.isWindowModified());
        // What is only typed is the field's own matter.
        Editor::type("7");
        Editor::press(Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!editor.window.isWindowModified());
        TRY_STREAM(editor, example("expected/receipt.out"));
    }

    void escapeGivesUpWhatIsTyped()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.activate();
        QSpinBox *width = editor.number("receiptdoc.paperWidth");
        width->setFocus();
        width->selectAll();
        Editor::type("4");
        Editor::press(Qt::Key_Escape);
        QCOMPARE(width->text(), QString("32"));
        auto *style = editor.field<QLineEdit>("receiptdoc.style");
        style->setFocus();
        Editor::type("bold");
        Editor::press(Qt::Key_Escape);
        QCOMPARE(style->text(), QString());
        Editor::press(Qt::Key_Tab);
        QVERIFY(!editor.window.isWindowModified());
    }

    void savingTakesWhatIsBeingTyped()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.activate();
        editor.number("receiptdoc.paperWidth")->setFocus();
        editor.number("receiptdoc.paperWidth")->selectAll();
        Editor::type("40");
        Editor::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
    }

    void aSwitchIsOnOffAndNotSet()
    {
        const TemporaryHome home(settingsFile(documentGroup("receiptdoc", "printTime = \"yes\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        QCheckBox *date = editor.check("receiptdoc.printDate");
        QCOMPARE(date->checkState(), Qt::PartiallyChecked);
        QCOMPARE(date->text(), QString("not set"));
        QCOMPARE(editor.check("receiptdoc.printTime")->checkState(), Qt::Unchecked);
        QCOMPARE(editor.check("receiptdoc.printTime")->text(), QString("off (\"yes\")"));
        editor.activate();
        date->setFocus();
        Editor::press(Qt::Key_Space);
        QCOMPARE(date->checkState(), Qt::Checked);
        QCOMPARE(editor.valueRow("receiptdoc.printDate")->text(0), QString("true"));
        Editor::press(Qt::Key_Space);
        QCOMPARE(date->checkState(), Qt::Unchecked);
        QCOMPARE(date->text(), QString("off"));
        QCOMPARE(editor.valueRow("receiptdoc.printDate")->text(0), QString("false"));
        Editor::press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(date->checkState(), Qt::PartiallyChecked);
        QVERIFY(editor.hasAction("Undo date not set"));
        for (int i = 0; i < 3; ++i)
            undo(editor);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aNumberThatIsNotSet()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("receiptdoc", "priceFieldWidth = \"wide\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        QSpinBox *paper = editor.number("receiptdoc.paperWidth");
        QCOMPARE(paper->text(), QString("not set"));
        QCOMPARE(editor.number("receiptdoc.priceFieldWidth")->text(), QString("\"wide\""));
        editor.activate();
        paper->setFocus();
        Editor::press(Qt::Key_Up);
        QCOMPARE(paper->text(), QString("32"));
        Editor::press(Qt::Key_Down);
        QCOMPARE(paper->text(), QString("31"));
        paper->setFocus();
        paper->selectAll();
        Editor::type("0");
        Editor::press(Qt::Key_Return);
        QCOMPARE(paper->text(), QString("0"));
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("0"));
        Editor::press(Qt::Key_Down);
        QCOMPARE(paper->text(), QString("not set"));
    }

    void restoring()
    {
        const TemporaryHome home(sampleOf40());
        Editor editor(home.settingsPath());
        editor.showForm();
        typeNumber(editor, "receiptdoc.paperWidth", "39");
        Editor::press(Qt::Key_M, Qt::ControlModifier); // the sample's
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 32);
        Editor::press(Qt::Key_L, Qt::ControlModifier); // the file's
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 40);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
    }

    void bothTabsShowOneState()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 40);
        editor.edit("receiptdoc.printDate", "false");
        QCOMPARE(editor.check("receiptdoc.printDate")->checkState(), Qt::Unchecked);
        undo(editor);
        QCOMPARE(editor.check("receiptdoc.printDate")->checkState(), Qt::Checked);
    }

    // The file was empty: the groups come with the first setting.
    void declinedSampleGivesAUsableForm()
    {
        const TemporaryHome home;
        answers.give({"No"});
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.choose("Kitchen order");
        typeNumber(editor, "doc.paperWidth", "30");
        editor.save();
        QCOMPARE(bytesOf(home.settingsPath()),
                 QByteArray("korvel: \n{\n    doc: \n    {\n        paperWidth = \"30\";\n    };\n"
                            "\n};\n\n"));
    }

    void whatNothingReadsIsListedKeptAndRemoved()
    {
        const TemporaryHome home(
            settingsFile(documentGroup("doc", "paperWidth = \"30\"; paperwith = \"31\";")
                         + documentGroup("custom", "a = \"1\";")));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.choose("Read by nothing (2)");
        auto *list = editor.child<QListWidget>("unread");
        QCOMPARE(list->count(), 2);
        QCOMPARE(list->item(0)->text(), QString("korvel.doc.paperwith = 31"));
        editor.save();
        QVERIFY(bytesOf(home.settingsPath()).contains("paperwith"));
        list->setCurrentRow(0);
        editor.child<QPushButton>("removeUnread")->click();
        QTRY_COMPARE_WITH_TIMEOUT(list->count(), 1, longEnough);
        editor.save();
        QVERIFY(!bytesOf(home.settingsPath()).contains("paperwith"));
        QVERIFY(bytesOf(home.settingsPath()).contains("custom"));
        undo(editor);
        QTRY_COMPARE_WITH_TIMEOUT(list->count(), 2, longEnough);
    }

    void documentsWithSomethingWrongAreMarked()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        const auto isMarked = [&](const char *title) {
            return !editor.documents()
                        ->findItems(title, Qt::MatchExactly)
                        .value(0)
                        ->icon()
                        .isNull();
        };
        QTRY_VERIFY_WITH_TIMEOUT(isMarked("Receipt"), longEnough);
        QVERIFY(isMarked("Summary receipt"));
        QVERIFY(!isMarked("Invoice"));
    }

    // As a screen reader asks for it: whatever takes the focus has a name, and a sensible place in
    // the order of the Tab key.
    void allThatTakesTheFocusHasAName()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        editor.documents()->setFocus();
        QStringList names;
        for (int i = 0; i < 60; ++i) {
            QWidget *focus = QApplication::focusWidget();
            QAccessibleInterface *face = QAccessible::queryAccessibleInterface(focus);
            QVERIFY(face);
            const QString name = face->text(QAccessible::Name);
            QVERIFY2(!name.isEmpty(), focus->metaObject()->className());
            if (name == names.value(0))
                break;
            names.append(name);
            Editor::press(Qt::Key_Tab);
        }
        const QStringList expected = {
            "Documents",    "Settings",      "Paper width", "Quantity column",
            "Price column", "Amount column", "Top margin",  "Lines of the top margin",
            "Header lines", "Company",       "Date",        "Time",
            "Table",        "Credit",        "Waiter",      "Note"};
        QCOMPARE(names.first(3), expected.first(3));
        for (const QString &name : expected)
            QVERIFY2(names.contains(name), qPrintable(name));
        QVERIFY(names.indexOf("Company") < names.indexOf("Date"));
        QVERIFY2(names.indexOf("Cash drawer") < names.indexOf("Sample of the shop"),
                 qPrintable(names.join(", ")));
        // And all over again.
        QVERIFY2(names.size() < 40, qPrintable(names.join(", ")));
        QVERIFY(names.indexOf("Sample of the shop") < names.indexOf("Paper"));
    }

    void labelsInGerman()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.choose("Language");
        auto *box = editor.field<QComboBox>("language.file");
        const int german = box->findText("Deutsch");
        QVERIFY2(german > 0, "there is no German catalogue in the list");
        box->setCurrentIndex(german);
        emit box->activated(german);
        QTRY_VERIFY_WITH_TIMEOUT(editor.stream().join("").contains("SUMME"), longEnough);
        undo(editor);
        TRY_STREAM(editor, example("expected/receipt.out"));
        QVERIFY(!editor.window.isWindowModified());
    }

    /// Whoever scrolls the form has the focus somewhere, and the pointer anywhere.
    void theWheelChangesNothing()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        const auto turn = [](QWidget &field, int angle) {
            QWheelEvent event(QPointF(5, 5), field.mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(&field, &event);
        };
        QSpinBox *width = editor.number("receiptdoc.totalPriceFieldWidth");
        width->setFocus();
        turn(*width, 120);
        QCOMPARE(width->value(), 8);
        editor.choose("Language");
        auto *file = editor.field<QComboBox>("language.file");
        const int before = file->currentIndex();
        file->setFocus();
        for (const int angle : {120, -120}) { // one of them leads to another entry
            turn(*file, angle);
            QCOMPARE(file->currentIndex(), before);
        }
        QVERIFY(!editor.window.isWindowModified());
    }

private:
    static void typeNumber(Editor &editor, const QString &setting, const QString &number)
    {
        editor.activate();
        editor.number(setting)->setFocus();
        editor.number(setting)->selectAll();
        Editor::type(number);
        Editor::press(Qt::Key_Return);
        QCOMPARE(editor.number(setting)->text(), number);
    }

    static void undo(Editor &editor) { editor.shortcut(Qt::Key_Z); }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsForm)

} // namespace tst_settingsform

#include "tst_settingsform.moc"

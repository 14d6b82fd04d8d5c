// The expert's view of the settings editor: what begins an edit, rows added and removed, undo.
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/settingsview.h"
#include "support/test.h"

#include <QPushButton>
#include <QTimer>

namespace tst_settingsexpert {

/// Fills in the next dialog that adds something, and presses Enter; looks until it is there.
class NextDialog : public QObject
{
public:
    explicit NextDialog(const QStringList &fields) // object name, text, object name ...
    {
        connect(&timer, &QTimer::timeout, this, [this, fields] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (!dialog || !dialog->isVisible())
                return;
            timer.stop();
            for (qsizetype i = 0; i + 1 < fields.size(); i += 2) {
                auto *box = dialog->findChild<QComboBox *>(fields[i]);
                auto *line = box ? box->lineEdit() : dialog->findChild<QLineEdit *>(fields[i]);
                line->setText(fields[i + 1]);
            }
            QTest::keyClick(dialog, Qt::Key_Return);
            if (dialog->isVisible()) { // refused
                refused = true;
                QTest::keyClick(dialog, Qt::Key_Escape);
            }
        });
        timer.start(5);
    }

    bool refused = false;

private:
    QTimer timer;
};

class TestSettingsExpert : public QObject
{
    Q_OBJECT

private slots:
    // A field that nobody sees is not changed: these entries are the form's.
    void theKeysOfFieldsLeaveTheTreeAlone()
    {
        const TemporaryHome home(sampleOf40());
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.activate();
        editor.number("receiptdoc.paperWidth")->setFocus();
        editor.showExpert();
        editor.tree()->setFocus();
        editor.tree()->setCurrentItem(editor.valueRow("receiptdoc.printDate"));
        Editor::press(Qt::Key_N, Qt::ControlModifier);
        Editor::press(Qt::Key_M, Qt::ControlModifier);
        QVERIFY(!editor.window.isWindowModified());
        editor.showForm();
        editor.shortcut(Qt::Key_M);
        QCOMPARE(editor.number("receiptdoc.paperWidth")->value(), 32);
    }

    void theButtonsFollowTheTree()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.activate();
        editor.tree()->setFocus();
        editor.tree()->setCurrentItem(editor.valueRow("receiptdoc.printDate"));
        for (const char *name : {"addSetting", "addGroup", "remove", "jobs"}) {
            Editor::press(Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget()->objectName(), QString(name));
        }
    }

    // A key's row is no value, and letters are no search for another row.
    void typingOnAKeyChangesNothing_data()
    {
        QTest::addColumn<bool>("onValue");
        QTest::newRow("on a key") << false;
        QTest::newRow("on a value") << true;
    }

    void typingOnAKeyChangesNothing()
    {
        QFETCH(bool, onValue);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QStringList before = rowsOf(*editor.tree());
        QTreeWidgetItem *value = editor.valueRow("receiptdoc.quantityFieldWidth");
        QTreeWidgetItem *row = onValue ? value : value->parent();
        editor.activate();
        editor.tree()->scrollToItem(row);
        QTest::mouseClick(editor.tree()->viewport(), Qt::LeftButton, {},
                          editor.tree()->visualItemRect(row).center());
        QCOMPARE(editor.tree()->currentItem(), row);
        for (const char letter : {'t', 'r', 'u', 'e'}) {
            QTest::keyClick(QApplication::focusWidget(), letter);
            QCOMPARE(editor.tree()->currentItem(), row);
            QVERIFY(!qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        }
        Editor::press(Qt::Key_Return);
        // Enter alone begins to edit, with what is there.
        QCOMPARE(editor.tree()->currentItem(), value);
        auto *line = qobject_cast<QLineEdit *>(QApplication::focusWidget());
        QVERIFY(line);
        QCOMPARE(line->text(), QString("3"));
        Editor::press(Qt::Key_Escape);
        QCOMPARE(rowsOf(*editor.tree()), before);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aDoubleClickEdits()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QTreeWidgetItem *value = editor.valueRow("receiptdoc.quantityFieldWidth");
        editor.tree()->scrollToItem(value);
        const QPoint place = editor.tree()->visualItemRect(value).center();
        QTest::mouseClick(editor.tree()->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(!qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::mouseDClick(editor.tree()->viewport(), Qt::LeftButton, {}, place);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        Editor::type("4");
        Editor::press(Qt::Key_Return);
        QTRY_COMPARE(value->text(0), QString("4"));
    }

    void undoIsNamed()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        editor.edit("receiptdoc.printDate", "false");
        QVERIFY2(editor.hasAction("Undo date off"), "no action names the edit");
        editor.shortcut(Qt::Key_Z);
        QVERIFY(editor.hasAction("Undo paper width 40"));
        QVERIFY(editor.hasAction("Redo date off"));
        QCOMPARE(editor.valueRow("receiptdoc.printDate")->text(0), QString("true"));
        QVERIFY(editor.window.isWindowModified());
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("32"));
        QVERIFY(!editor.window.isWindowModified());
        editor.shortcut(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        // What was saved can be undone, too.
        editor.shortcut(Qt::Key_Z);
        QVERIFY(editor.window.isWindowModified());
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("32"));
    }

    void aSettingIsAdded()
    {
        const QByteArray before = settingsFile(documentGroup("doc", "paperWidth = \"31\";"));
        const TemporaryHome home(before);
        Editor editor(home.settingsPath());
        const QStringList rows = rowsOf(*editor.tree());
        editor.tree()->setCurrentItem(editor.valueRow("doc.paperWidth"));
        const NextDialog dialog({"newSetting", "printDate", "newValue", "true"});
        button(editor, "addSetting")->click();
        QVERIFY(!dialog.refused);
        QCOMPARE(editor.valueRow("doc.printDate")->text(0), QString("true"));
        QCOMPARE(editor.tree()->currentItem(), editor.valueRow("doc.printDate"));
        editor.save();
        QVERIFY(bytesOf(home.settingsPath()).contains("        printDate = \"true\";\n"));
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(rowsOf(*editor.tree()), rows);
    }

    void whatIsThereOrNoNameIsNotAdded_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("there") << "paperWidth";
        QTest::newRow("empty") << "";
        QTest::newRow("a brace") << "a{";
        QTest::newRow("a blank") << "a b";
        QTest::newRow("a point") << "a.b";
        QTest::newRow("a digit first") << "1a";
        QTest::newRow("beyond ASCII") << QString::fromUtf8("größe");
    }

    void whatIsThereOrNoNameIsNotAdded()
    {
        QFETCH(QString, name);
        const TemporaryHome home(settingsFile(documentGroup("doc", "paperWidth = \"31\";")));
        Editor editor(home.settingsPath());
        editor.tree()->setCurrentItem(editor.valueRow("doc.paperWidth"));
        const NextDialog dialog({"newSetting", name});
        button(editor, "addSetting")->click();
        QVERIFY(dialog.refused);
        QVERIFY(!editor.window.isWindowModified());
    }

    void groupsAreAddedToAnEmptyFile()
    {
        const TemporaryHome home(QByteArray(""));
        Editor editor(home.settingsPath());
        {
            const NextDialog dialog({"newGroup", "korvel", "newSetting", "a", "newValue", "1"});
            button(editor, "addGroup")->click();
            QVERIFY(!dialog.refused);
        }
        {
            const NextDialog dialog({"newGroup", "doc", "newSetting", "style", "newValue", "b"});
            button(editor, "addGroup")->click();
            QVERIFY(!dialog.refused);
        }
        editor.save();
        QCOMPARE(bytesOf(home.settingsPath()),
                 QByteArray("korvel: \n{\n    a = \"1\";\n    doc: \n    {\n"
                            "        style = \"b\";\n    };\n\n};\n\n"));
        editor.shortcut(Qt::Key_Z);
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(editor.tree()->topLevelItemCount(), 0);
    }

    // A group in which nothing is left would not be read back, and goes with its last setting.
    void whatIsRemovedComesBack()
    {
        const QByteArray before =
            settingsFile(documentGroup("doc", "paperWidth = \"31\"; style = \"a\";")
                         + documentGroup("solddoc", "style = \"b\";"));
        const TemporaryHome home(before);
        Editor editor(home.settingsPath());
        const QStringList rows = rowsOf(*editor.tree());
        editor.activate();
        editor.tree()->setFocus();
        editor.tree()->setCurrentItem(editor.valueRow("doc.style"));
        Editor::press(Qt::Key_Delete);
        QVERIFY(!rowAt(*editor.tree(), "korvel.doc.style"));
        QVERIFY(rowAt(*editor.tree(), "korvel.doc.paperWidth"));
        editor.tree()->setCurrentItem(editor.valueRow("solddoc.style"));
        button(editor, "remove")->click();
        QVERIFY(!rowAt(*editor.tree(), "korvel.solddoc"));
        QVERIFY(editor.hasAction("Undo style not set"));
        editor.save();
        QVERIFY(!bytesOf(home.settingsPath()).contains("style"));
        editor.shortcut(Qt::Key_Z);
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(rowsOf(*editor.tree()), rows);
        editor.tree()->setCurrentItem(rowAt(*editor.tree(), "korvel.doc"));
        Editor::press(Qt::Key_Delete);
        QVERIFY(editor.hasAction("Undo removal of doc"));
        QVERIFY(rowAt(*editor.tree(), "korvel.solddoc.style"));
    }

    void theFileItselfIsNotRemoved()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QStringList rows = rowsOf(*editor.tree());
        editor.tree()->setFocus();
        editor.tree()->setCurrentItem(editor.tree()->topLevelItem(0));
        QVERIFY(!button(editor, "remove")->isEnabled());
        Editor::press(Qt::Key_Delete);
        QCOMPARE(rowsOf(*editor.tree()), rows);
    }

private:
    static QPushButton *button(const Editor &editor, const QString &name)
    {
        auto *found = editor.window.findChild<QPushButton *>(name);
        if (!found)
            qFatal("there is no button %s", qPrintable(name));
        return found;
    }
};

KORVEL_TEST_BY(runWindowTest, TestSettingsExpert)

} // namespace tst_settingsexpert

#include "tst_settingsexpert.moc"

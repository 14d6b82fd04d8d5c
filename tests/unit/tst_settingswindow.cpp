// The settings editor as a technician uses it: its help, its keys, its size.
#include "support/answers.h"
#include "support/settingseditor.h"
#include "support/test.h"

#include <QDir>
#include <QSettings>
#include <QSplitter>

namespace tst_settingswindow {

class TestSettingsWindow : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void helpFollowsTheEdit()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QTreeWidgetItem *value = editor.valueRow("receiptdoc.printDate");
        QVERIFY(value->icon(0).isNull());
        editor.edit("receiptdoc.printDate", "yes");
        QTRY_VERIFY_WITH_TIMEOUT(!value->icon(0).isNull(), longEnough);
        QVERIFY(!value->parent()->icon(0).isNull());
        QVERIFY2(value->toolTip(0).contains("true"), qPrintable(value->toolTip(0)));
        QVERIFY2(editor.meaning()->text().contains("printDate"),
                 qPrintable(editor.meaning()->text()));
        QVERIFY2(editor.meaning()->text().contains(value->toolTip(0).toHtmlEscaped()),
                 qPrintable(editor.meaning()->text()));
        editor.edit("receiptdoc.printDate", "true");
        QTRY_VERIFY_WITH_TIMEOUT(value->icon(0).isNull(), longEnough);
        QVERIFY(!editor.meaning()->text().contains("off"));
    }

    void theMeaningFollowsTheRow()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.tree()->setCurrentItem(editor.valueRow("receiptdoc.paperWidth"));
        QVERIFY(editor.meaning()->text().contains("paperWidth"));
        // To the setting, which closes, and to its group.
        editor.tree()->setFocus();
        for (int i = 0; i < 5 && editor.tree()->currentItem()->text(0) != "receiptdoc"; ++i)
            Editor::press(Qt::Key_Left);
        QCOMPARE(editor.tree()->currentItem()->text(0), QString("receiptdoc"));
        QVERIFY(editor.meaning()->text().contains("receipt, summary receipt"));
    }

    void theKeyboardAlone()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.tree()->setFocus();
        const auto current = [&] {
            const QTreeWidgetItem *row = editor.tree()->currentItem();
            return row ? row->text(0) : QString();
        };
        const auto downTo = [&](const QString &text) {
            for (int i = 0; i < 30 && current() != text; ++i)
                Editor::press(Qt::Key_Down);
            return current() == text;
        };
        QVERIFY(downTo("receiptdoc"));
        Editor::press(Qt::Key_Right);
        QVERIFY(downTo("paperWidth"));
        Editor::press(Qt::Key_Right);
        QVERIFY(downTo("32"));
        Editor::press(Qt::Key_F2);
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        Editor::type("40");
        Editor::press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QCOMPARE(QApplication::focusWidget(), editor.tree());

        Editor::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));

        for (int i = 0; i < 20 && QApplication::focusWidget() != editor.documents(); ++i)
            Editor::press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), editor.documents());
        Editor::press(Qt::Key_Home);
        TRY_STREAM(editor, example("expected/kitchen-order.out"));
        editor.tree()->setFocus();
        Editor::press(Qt::Key_J, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), editor.jobs());

        Editor::press(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(!editor.window.isVisible());
    }

    void theSizeIsKept()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString kept =
            qEnvironmentVariable("XDG_CONFIG_HOME") + "/korvel/korvel-settings.conf";
        QList<int> sizes;
        QSize size;
        {
            Editor editor(home.settingsPath());
            editor.window.resize(760, 470);
            auto *panes = editor.window.findChild<QSplitter *>();
            panes->setSizes({130, 300, 270});
            QTest::qWait(50);
            sizes = panes->sizes();
            size = editor.window.size();
            QVERIFY(editor.window.close());
            QVERIFY(QFile::exists(kept));
        }
        Editor editor(home.settingsPath());
        QCOMPARE(editor.window.size(), size);
        QCOMPARE(editor.window.findChild<QSplitter *>()->sizes(), sizes);
        // The user's home has the settings alone.
        QCOMPARE(
            QDir(home.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList({".korvel"}));
    }

    void aSpoiltSizeDoesNoHarm()
    {
        QSettings settings;
        settings.setValue("window/geometry", QByteArray("no size"));
        settings.setValue("window/columns", QByteArray("none"));
        settings.sync();
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QVERIFY(editor.window.width() > 300 && editor.window.height() > 200);
        TRY_STREAM(editor, example("expected/receipt.out"));
    }

private:
    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsWindow)

} // namespace tst_settingswindow

#include "tst_settingswindow.moc"

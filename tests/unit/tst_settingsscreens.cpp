// The window of the settings editor on screens from the smallest on.
#include "companions/settings/panes.h"
#include "support/answers.h"
#include "support/settingseditor.h"
#include "support/test.h"

#include <QScreen>
#include <QSettings>
#include <QStatusBar>

namespace tst_settingsscreens {

using korvel::settings::Panes;

class TestSettingsScreens : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        answers.clear();
        QSettings().clear();
    }

    void cleanup() { answers.verifyUsedUp(); }

    /// A screen of 800 x 480 at a scale of 3 has 266 x 160.
    void theSmallestScreenIsLargeEnough()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QSize least = editor.window.minimumSizeHint();
        QVERIFY2(least.width() <= 266 && least.height() <= 160,
                 qPrintable(QString("%1 x %2").arg(least.width()).arg(least.height())));
        for (const QSize size : {QSize(800, 480), QSize(400, 240), QSize(266, 160)}) {
            editor.window.resize(size);
            QCOMPARE(editor.window.size(), size);
        }
    }

    void aNarrowWindowHasTabs()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.showForm();
        auto *panes = editor.window.findChild<Panes *>();
        QCOMPARE(titlesOf(editor), QStringList({"Settings", "Expert"}));
        panes->setSizes({160, 330, 300});
        QTest::qWait(50);
        const QSize size = editor.window.size();
        const QList<int> sizes = panes->sizes();

        editor.window.resize(400, 240);
        QVERIFY(panes->isNarrow());
        QCOMPARE(titlesOf(editor), QStringList({"Documents", "Settings", "Expert", "Paper"}));
        QVERIFY(editor.number("receiptdoc.paperWidth")->isVisible());
        QVERIFY(!editor.documents()->isVisible());
        QVERIFY(!editor.paper()->isVisible());

        editor.window.resize(size);
        QVERIFY(!panes->isNarrow());
        QCOMPARE(titlesOf(editor), QStringList({"Settings", "Expert"}));
        QVERIFY(editor.number("receiptdoc.paperWidth")->isVisible());
        QVERIFY(editor.documents()->isVisible());
        QVERIFY(editor.paper()->isVisible());
        QTRY_COMPARE(panes->sizes(), sizes);
        QCOMPARE(panes->widget(0), editor.documents());
    }

    void theWayThroughTheTabs()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.window.resize(400, 240);
        editor.showTab("Documents");
        editor.documents()->setFocus();
        Editor::press(Qt::Key_Home);
        Editor::press(Qt::Key_Return);
        QVERIFY(editor.number("doc.paperWidth")->isVisible());
        TRY_STREAM(editor, example("expected/kitchen-order.out"));

        // Enter on the first line of the paper goes to the switch that prints it.
        editor.showTab("Paper");
        editor.activate();
        editor.paper()->setFocus();
        Editor::press(Qt::Key_Down);
        Editor::press(Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(editor.child<QTabWidget>("tabs")->currentIndex() == 1, longEnough);
        QVERIFY(QApplication::focusWidget()->objectName().startsWith("doc."));
        QVERIFY(QApplication::focusWidget()->isVisible());
    }

    /// What the field lights is there, and in sight, when the paper comes to the front.
    void theLightBehindTheTab()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.showForm();
        editor.window.resize(400, 240);
        editor.activate();
        editor.number("receiptdoc.totalPriceFieldWidth")->setFocus();
        // The titles of the columns, seven items and the total, counted from 0.
        const QList<int> rows = {18, 19, 20, 21, 22, 23, 24, 25, 27};
        QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit(), rows, longEnough);
        editor.showTab("Paper");
        QTRY_VERIFY(editor.paper()->visibleRegion().contains(editor.paper()->placeOf(18)));
        QCOMPARE(editor.paper()->lit(), rows);
    }

    void aJobComesToTheFront()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob><method name=\"printFullOrderReceipt\"/></printjob>");
        editor.window.resize(400, 240);
        answers.give({job});
        editor.shortcut(Qt::Key_J);
        QTRY_VERIFY(editor.paper()->isVisible());
    }

    /// On the smallest screen nothing lies over something else.
    void thePaperOfTheSmallestScreen()
    {
        const TemporaryHome home(sampleOf40());
        Editor editor(home.settingsPath());
        editor.window.resize(266, 160);
        editor.showTab("Paper");
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings().size(), 2, longEnough);
        const auto *list = editor.child<QListWidget>("findings");
        const auto placeOf = [&](const QWidget *widget) {
            return QRect(widget->mapTo(&editor.window, QPoint()), widget->size());
        };
        const QRect window = editor.window.rect();
        QTRY_VERIFY(list->isVisible() && window.contains(placeOf(list)));
        const QWidget *view = editor.paper()->parentWidget();
        QVERIFY(!placeOf(view).intersects(placeOf(list)));
        QVERIFY(!placeOf(view).intersects(placeOf(editor.jobs())));
        QVERIFY(view->height() > 10);
    }

    /// All words of what is wrong are seen where there is room, and some of them where there is
    /// not.
    void theRoomOfFindings_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("isWhole");
        QTest::newRow("800 x 480") << QSize(800, 480) << true;
        QTest::newRow("400 x 240") << QSize(400, 240) << false;
    }

    void theRoomOfFindings()
    {
        QFETCH(QSize, size);
        QFETCH(bool, isWhole);
        const TemporaryHome home(sampleOf40());
        Editor editor(home.settingsPath());
        editor.window.resize(size);
        if (editor.window.findChild<Panes *>()->isNarrow())
            editor.showTab("Paper");
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings().size(), 2, longEnough);
        const auto *list = editor.child<QListWidget>("findings");
        const auto shows = [&](int row) {
            return list->viewport()->rect().contains(list->visualItemRect(list->item(row)));
        };
        QTRY_COMPARE(shows(1), isWhole);
        QTRY_VERIFY(list->height() > 2 * list->fontMetrics().lineSpacing());
        QVERIFY(editor.paper()->visibleRegion().boundingRect().height() > 20);
        // The words are broken, not cut.
        QVERIFY(list->visualItemRect(list->item(0)).width() <= list->viewport()->width());
        QVERIFY(list->visualItemRect(list->item(0)).height()
                > 2 * list->fontMetrics().height() - 4);
    }

    void aLowWindowHasNoEmptyLine()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QStatusBar *bar = editor.window.statusBar();
        QVERIFY(bar->isVisible());
        editor.window.resize(400, 160);
        QVERIFY(!bar->isVisible());
        bar->showMessage("Saved");
        QVERIFY(bar->isVisible());
        bar->clearMessage();
        QVERIFY(!bar->isVisible());
    }

    void thePlaceOnAScreenThatHasBecomeSmaller()
    {
        const TemporaryHome home(example("korvel.conf"));
        QWidget large;
        large.setGeometry(2600, 1500, 2400, 1300);
        QSettings().setValue("window/geometry", large.saveGeometry());
        Editor editor(home.settingsPath());
        const QRect room = editor.window.screen()->availableGeometry();
        const QRect place(editor.window.pos(), editor.window.size());
        QVERIFY2(room.contains(place), qPrintable(QString("%1,%2 %3 x %4")
                                                      .arg(place.x())
                                                      .arg(place.y())
                                                      .arg(place.width())
                                                      .arg(place.height())));
        QVERIFY(place.height() < room.height()); // for the title bar
    }

    void theWidthsOutliveANarrowWindow()
    {
        const TemporaryHome home(example("korvel.conf"));
        QByteArray kept;
        {
            Editor editor(home.settingsPath());
            auto *panes = editor.window.findChild<Panes *>();
            panes->setSizes({150, 400, 230});
            QTest::qWait(50);
            kept = panes->saveState();
            editor.window.resize(400, 240);
            QVERIFY(editor.window.close());
        }
        QCOMPARE(QSettings().value("window/columns").toByteArray(), kept);
    }

private:
    /// The titles of the tabs, without the marks of their keys.
    static QStringList titlesOf(const Editor &editor)
    {
        const auto *tabs = editor.child<QTabWidget>("tabs");
        QStringList titles;
        for (int i = 0; i < tabs->count(); ++i)
            titles.append(tabs->tabText(i).remove('&'));
        return titles;
    }

    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsScreens)

} // namespace tst_settingsscreens

#include "tst_settingsscreens.moc"

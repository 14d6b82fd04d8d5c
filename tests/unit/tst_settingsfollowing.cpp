// The paper of the settings editor follows the fields, and leads to them: lines, columns, ruler,
// findings, jobs.
#include "companions/settings/origins.h"
#include "companions/settings/ruler.h"
#include "support/answers.h"
#include "support/settingseditor.h"
#include "support/settingstext.h"
#include "support/test.h"

#include <QAccessible>

namespace tst_settingsfollowing {

using namespace korvel::settings;
using korvel::preview::PaperRow;

/// A paper of a row for each letter.
QList<PaperRow> paperOf(const QString &letters)
{
    QList<PaperRow> rows;
    for (const QChar letter : letters)
        rows.append({PaperRow::Kind::Printed, letter});
    return rows;
}

class TestSettingsFollowing : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void rowsThatDiffer_data()
    {
        QTest::addColumn<QString>("paper");
        QTest::addColumn<QString>("other");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("the same") << "abc"
                                  << "abc" << QList<int>{};
        QTest::newRow("one is gone") << "abc"
                                     << "ac" << QList<int>{1};
        QTest::newRow("one more is no row of the paper") << "ac"
                                                         << "abc" << QList<int>{};
        QTest::newRow("one is another") << "abc"
                                        << "axc" << QList<int>{1};
        QTest::newRow("all are others") << "abc"
                                        << "xyz" << QList<int>{0, 1, 2};
        QTest::newRow("a block with its separator") << "a-b-c"
                                                    << "a-c" << QList<int>{2, 3};
        QTest::newRow("two places") << "abcbd"
                                    << "acd" << QList<int>{1, 3};
        QTest::newRow("none is left") << "ab"
                                      << "" << QList<int>{0, 1};
    }

    void rowsThatDiffer()
    {
        QFETCH(QString, paper);
        QFETCH(QString, other);
        QTEST(korvel::settings::rowsThatDiffer(paperOf(paper), paperOf(other)), "rows");
    }

    // Rows of the sample receipt, counted from 0: see receiptOf40().
    void aFieldLightsItsLines_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QList<int>>("rows");
        QTest::newRow("the date") << "printDate" << QList<int>{11};
        QTest::newRow("the header and its separator") << "printHeader" << QList<int>{0, 1};
        QTest::newRow("the company") << "printCompany" << QList<int>{4, 5, 6, 7, 8};
        QTest::newRow("the customer") << "printCustomer" << QList<int>{15, 16, 17};
    }

    void aFieldLightsItsLines()
    {
        QFETCH(QString, setting);
        QFETCH(QList<int>, rows);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        editor.check("receiptdoc." + setting)->setFocus();
        QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit(), rows, longEnough);
    }

    /// What is lit comes in sight, and what is in sight stays where it is.
    void theLightIsSeen()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        editor.window.resize(800, 400);
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        const auto seen = [&](int row) {
            return editor.paper()->visibleRegion().contains(editor.paper()->placeOf(row));
        };
        QVERIFY(seen(0));
        QVERIFY(!seen(19));
        // The rows of items end far below; the header is the first line.
        editor.number("receiptdoc.totalPriceFieldWidth")->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(seen(18), longEnough);
        const int place = editor.paper()->y();
        editor.number("receiptdoc.priceFieldWidth")->setFocus();
        QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit().value(0), 18, longEnough);
        QTest::qWait(50);
        QCOMPARE(editor.paper()->y(), place);
        editor.check("receiptdoc.printHeader")->setFocus();
        QTRY_VERIFY_WITH_TIMEOUT(seen(0), longEnough);
    }

    void aLineLeadsToItsSetting_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("setting"); // none: no setting makes the line
        QTest::newRow("the date") << 11 << 3 << "receiptdoc.printDate";
        QTest::newRow("the company's second line") << 5 << 8 << "receiptdoc.printCompany";
        QTest::newRow("the customer") << 16 << 3 << "receiptdoc.printCustomer";
        QTest::newRow("a quantity") << 19 << 1 << "receiptdoc.quantityFieldWidth";
        // Columns of 7 and 8 at the right of 32.
        QTest::newRow("a price") << 19 << 20 << "receiptdoc.priceFieldWidth";
        QTest::newRow("an amount") << 19 << 30 << "receiptdoc.totalPriceFieldWidth";
        QTest::newRow("a separator") << 10 << 5 << "receiptdoc.paperWidth";
        QTest::newRow("the receipt's number") << 9 << 5 << QString();
    }

    void aLineLeadsToItsSetting()
    {
        QFETCH(int, row);
        QFETCH(int, column);
        QFETCH(QString, setting);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        QTest::mouseClick(editor.paper(), Qt::LeftButton, {}, editor.paper()->placeOf(row, column));
        if (setting.isEmpty()) {
            QTRY_COMPARE_WITH_TIMEOUT(editor.paper()->lit(), QList<int>{row}, longEnough);
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::focusWidget()
                                     && QApplication::focusWidget()->objectName() == setting,
                                 longEnough);
    }

    void theKeyboardLeadsThereToo()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        editor.paper()->setFocus();
        for (int i = 0; i <= 11; ++i)
            Editor::press(Qt::Key_Down);
        QCOMPARE(editor.paper()->currentRow(), 11);
        QVERIFY(editor.paper()->accessibleDescription().startsWith("Line 12: Date: 12/05/2026"));
        Editor::press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(QApplication::focusWidget()->objectName(),
                                  QString("receiptdoc.printDate"), longEnough);
    }

    void thePaperIsReadAloud()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        QAccessibleTextInterface *text =
            QAccessible::queryAccessibleInterface(editor.paper())->textInterface();
        QVERIFY(text);
        const QString all = text->text(0, text->characterCount());
        QVERIFY(all.startsWith("Benvenuti!\n================================\n"));
        const auto line = [&](int offset) {
            int from = 0;
            int to = 0;
            return text->textAtOffset(offset, QAccessible::LineBoundary, &from, &to).trimmed();
        };
        QCOMPARE(line(static_cast<int>(all.indexOf("118"))), QString("Serial Number: 118"));
        text->setCursorPosition(static_cast<int>(all.indexOf("118")));
        QCOMPARE(editor.paper()->currentRow(), 9);
        QCOMPARE(line(text->cursorPosition()), QString("Serial Number: 118"));
        const QPoint number = text->characterRect(static_cast<int>(all.indexOf("118"))).center();
        QCOMPARE(text->offsetAtPoint(number), static_cast<int>(all.indexOf("118")));
    }

    void theRulerIsDragged()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        auto *ruler = editor.child<Ruler>("ruler");
        QCOMPARE(ruler->edges().size(), 4);
        // The edge between price and amount stands at 32 - 8; two columns to the left of it the
        // amount has 10.
        const ColumnEdge edge = ruler->edges()[2];
        QCOMPARE(edge.setting.constLast(), QString("totalPriceFieldWidth"));
        QCOMPARE(edge.at(), 24);
        QTest::qWait(50);
        const int from = ruler->placeOf(edge);
        const int cell = qRound(editor.paper()->leftOf(1) - editor.paper()->leftOf(0));
        QTest::mousePress(ruler, Qt::LeftButton, {}, {from, 5});
        for (const int x : {from - cell, from - 2 * cell}) {
            QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), QPointF(x, 5), Qt::LeftButton,
                             Qt::LeftButton, {});
            QApplication::sendEvent(ruler, &move);
        }
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, {from - 2 * cell, 5});
        QCOMPARE(editor.number("receiptdoc.totalPriceFieldWidth")->value(), 10);
        // A move is undone as one.
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(editor.number("receiptdoc.totalPriceFieldWidth")->value(), 8);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aFindingLeadsToItsSetting()
    {
        const TemporaryHome home(sampleOf40());
        Editor editor(home.settingsPath());
        editor.showForm();
        QTRY_VERIFY_WITH_TIMEOUT(!editor.findings().isEmpty(), longEnough);
        auto *list = editor.child<QListWidget>("findings");
        emit list->itemActivated(list->item(0));
        QCOMPARE(QApplication::focusWidget()->objectName(), QString("receiptdoc.paperWidth"));
    }

    /// What a document has wrong is said in the list of documents, whether it is the settings or
    /// the paper.
    void aDocumentIsMarked()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const auto noteOf = [&](const QString &title) {
            const auto found = editor.documents()->findItems(title, Qt::MatchExactly);
            return found.constFirst()->icon().isNull() ? QString() : found.constFirst()->toolTip();
        };
        QCOMPARE(noteOf("Receipt"), QString());
        // A ")" in a name is a matter of the job and of the paper alone.
        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob><method name=\"printFullOrderReceipt\"/>"
                       "<receipe number=\"1\" name=\"Tea )\" price=\"2.00\" totalPrice=\"2.00\"/>"
                       "</printjob>");
        answers.give({job});
        editor.shortcut(Qt::Key_J);
        QTRY_VERIFY_WITH_TIMEOUT(noteOf("Receipt").contains("a \")\" inside a text ends it early"),
                                 longEnough);
        QCOMPARE(noteOf("Summary receipt"), QString());
        // The sample has nothing wrong.
        emit editor.jobs()->activated(0);
        QTRY_COMPARE_WITH_TIMEOUT(noteOf("Receipt"), QString(), longEnough);
    }

    /// Another document's settings say nothing about a paper, and a job that is left says nothing
    /// about settings: 32 + 2 characters are wider than the paper of the summary receipt.
    void aMarkStaysAsLongAsItIsTrue()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const auto isMarked = [&](const QString &title) {
            const auto found = editor.documents()->findItems(title, Qt::MatchExactly);
            return !found.constFirst()->icon().isNull();
        };
        editor.choose("Summary receipt");
        QTRY_VERIFY_WITH_TIMEOUT(isMarked("Summary receipt"), longEnough);
        editor.choose("Kitchen order");
        TRY_STREAM(editor, example("expected/kitchen-order.out"));
        QVERIFY(isMarked("Summary receipt"));
        editor.edit("doc.paperWidth", "31");
        QTRY_VERIFY_WITH_TIMEOUT(editor.stream().join('\n').contains('(' + QString(31, '=') + ' '),
                                 longEnough);
        QVERIFY(isMarked("Summary receipt"));

        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob><method name=\"printOrder\"/><nonsense/></printjob>");
        answers.give({job});
        editor.shortcut(Qt::Key_J);
        QTRY_VERIFY_WITH_TIMEOUT(isMarked("Kitchen order"), longEnough);
        editor.choose("Full order");
        QTRY_VERIFY_WITH_TIMEOUT(!isMarked("Kitchen order"), longEnough);
        QVERIFY(isMarked("Summary receipt"));
    }

    void whatTheCheckerSaysOfAJob()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob>\n<method name=\"printFullOrderReceipt\"/>\n"
                       "<recipe number=\"1\"/>\n</printjob>\n");
        answers.give({job});
        editor.shortcut(Qt::Key_J);
        QTRY_VERIFY_WITH_TIMEOUT(editor.findings().join('\n').contains("Job, line 3: "),
                                 longEnough);
        QVERIFY2(editor.findings().join('\n').contains("recipe"),
                 qPrintable(editor.findings().join('\n')));
    }

private:
    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsFollowing)

} // namespace tst_settingsfollowing

#include "tst_settingsfollowing.moc"

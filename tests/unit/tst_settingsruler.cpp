// The ruler of the settings editor, and the light on a column, also where the columns are wider
// than the paper.
#include "companions/settings/ruler.h"
#include "support/settingseditor.h"
#include "support/test.h"

#include <QImage>
#include <QMouseEvent>
#include <QSignalSpy>

namespace tst_settingsruler {

using namespace korvel::settings;

class TestSettingsRuler : public QObject
{
    Q_OBJECT

private slots:
    // Columns of 3, 7 and 8 characters, as in the sample shop, unless a row says otherwise.
    void theEdges_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("setting"); // that is changed
        QTest::addColumn<int>("value");
        QTest::addColumn<QStringList>("edges");
        const auto row = [](const char *name, const QString &document, const QString &setting,
                            int value, const QStringList &edges) {
            QTest::newRow(name) << document << setting << value << edges;
        };
        row("a receipt, from the right", "Receipt", "receiptdoc.paperWidth", 32,
            {"quantity 3", "price 17", "totalPrice 24", "paper 32"});
        row("a full order", "Full order", "prefiscaldoc.paperWidth", 32,
            {"quantity 3", "price 17", "totalPrice 24", "paper 32"});
        row("a quantity alone", "Kitchen order", "doc.paperWidth", 32, {"quantity 3", "paper 32"});
        // A statement's rows leave three characters of the line.
        row("a statement", "Statement", "reportdoc.paperWidth", 32, {"price 22", "paper 32"});
        row("no description at all", "Receipt", "receiptdoc.totalPriceFieldWidth", 19,
            {"quantity 3", "price 6", "totalPrice 13", "paper 32"});
        // 3, then " x ", 7 and 40: each column pushes the next.
        row("an amount over the edge", "Receipt", "receiptdoc.totalPriceFieldWidth", 40,
            {"quantity 3", "price 13", "totalPrice 53", "paper 32"});
        // One blank behind the quantity.
        row("a price over the edge", "Full order", "prefiscaldoc.priceFieldWidth", 40,
            {"quantity 3", "price 44", "totalPrice 52", "paper 32"});
        row("a quantity over the edge", "Receipt", "receiptdoc.quantityFieldWidth", 30,
            {"quantity 30", "price 40", "totalPrice 48", "paper 32"});
        row("a narrow paper", "Receipt", "receiptdoc.paperWidth", 20,
            {"quantity 3", "price 13", "totalPrice 21", "paper 20"});
    }

    void theEdges()
    {
        QFETCH(QString, document);
        QFETCH(QString, setting);
        QFETCH(int, value);
        QFETCH(QStringList, edges);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.choose(document);
        editor.showForm();
        editor.number(setting)->setValue(value);
        const auto *ruler = editor.child<Ruler>("ruler");
        const auto shown = [&] {
            QStringList found;
            for (const ColumnEdge &edge : ruler->edges())
                found.append(QString(edge.setting.constLast()).remove("FieldWidth").remove("Width")
                             + ' ' + QString::number(edge.at()));
            return found;
        };
        QTRY_COMPARE_WITH_TIMEOUT(shown(), edges, longEnough);
    }

    void theLightLiesOnTheColumn()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.window.resize(800, 700);
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.activate();
        QSpinBox *field = editor.number("receiptdoc.totalPriceFieldWidth");
        field->setFocus();
        field->setValue(40);
        // The title of the column is on line 19, behind it are seven items.
        QTRY_VERIFY_WITH_TIMEOUT(editor.paper()->lit().contains(19), longEnough);
        const QImage look = editor.paper()->grab().toImage();
        const auto isLit = [&](int column) {
            const QColor colour = look.pixelColor(editor.paper()->placeOf(19, column));
            return colour.blue() < colour.red() - 40;
        };
        // "  3 x ...2.00", then 40 characters of the amount, the last on the 53rd column.
        for (const int column : {0, 1, 3, 5})
            QVERIFY2(!isLit(column), qPrintable(QString::number(column)));
        for (const int column : {14, 31, 32, 40})
            QVERIFY2(isLit(column), qPrintable(QString::number(column)));
        QVERIFY(!isLit(53));
    }

    void aClickBehindTheEdgeMeetsTheColumn()
    {
        const TemporaryHome home(
            QByteArray(example("korvel.conf"))
                .replace("totalPriceFieldWidth = \"8\"", "totalPriceFieldWidth = \"40\""));
        Editor editor(home.settingsPath());
        editor.showForm();
        QTRY_VERIFY_WITH_TIMEOUT(editor.paper()->text().contains("6.00"), longEnough);
        QSignalSpy chosen(editor.paper(), &PaperView::rowChosen);
        for (const int column : {31, 32, 50}) {
            QTest::mouseClick(editor.paper(), Qt::LeftButton, {},
                              editor.paper()->placeOf(19, column));
            QCOMPARE(chosen.takeLast(), QVariantList({19, column}));
        }
    }

    void thePaperFitsItsPaneWhateverRunsOverTheEdge()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        QTest::qWait(50);
        const double zoom = editor.paper()->zoom();
        const int height = editor.paper()->height();
        editor.number("receiptdoc.totalPriceFieldWidth")->setValue(409);
        QTRY_VERIFY_WITH_TIMEOUT(editor.paper()->text().contains(QString(300, ' ')), longEnough);
        QTest::qWait(50);
        QCOMPARE(editor.paper()->zoom(), zoom);
        QCOMPARE(editor.paper()->height(), height);
    }

    void anArrowLeadsToAnEdgeOutOfSight()
    {
        const TemporaryHome home(
            QByteArray(example("korvel.conf"))
                .replace("totalPriceFieldWidth = \"8\"", "totalPriceFieldWidth = \"120\""));
        Editor editor(home.settingsPath());
        editor.choose("Receipt");
        auto *ruler = editor.child<Ruler>("ruler");
        QTRY_VERIFY_WITH_TIMEOUT(editor.paper()->text().contains("6.00"), longEnough);
        const auto amount = [&] { return ruler->placeOf(ruler->edges()[2]); };
        QTRY_VERIFY(amount() > ruler->width());
        QTest::mouseClick(ruler, Qt::LeftButton, {}, {ruler->width() - 3, 8});
        QTRY_VERIFY(amount() > 0 && amount() < ruler->width());
        // And back to the paper's own edge.
        const auto paper = [&] { return ruler->placeOf(ruler->edges().constLast()); };
        QVERIFY(paper() < 0);
        QTest::mouseClick(ruler, Qt::LeftButton, {}, {3, 8});
        QTRY_VERIFY(paper() > 0 && paper() < ruler->width());
        QVERIFY(!editor.window.isWindowModified());
    }

    void edgesAreDragged_data()
    {
        QTest::addColumn<int>("amount"); // width of its column
        QTest::addColumn<int>("edge");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("setting");
        QTest::addColumn<int>("value");
        // At the right of 32 an amount of 8 is moved by its left edge.
        QTest::newRow("from the right") << 8 << 2 << 20 << "totalPriceFieldWidth" << 12;
        // What begins on column 13 is moved by its right edge where it is too wide.
        QTest::newRow("too wide") << 25 << 2 << 30 << "totalPriceFieldWidth" << 17;
        QTest::newRow("the column before it") << 25 << 1 << 15 << "priceFieldWidth" << 9;
    }

    void edgesAreDragged()
    {
        QFETCH(int, amount);
        QFETCH(int, edge);
        QFETCH(int, to);
        QFETCH(QString, setting);
        QFETCH(int, value);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.number("receiptdoc.totalPriceFieldWidth")->setValue(amount);
        editor.shortcut(Qt::Key_Minus); // until all edges are in sight
        editor.shortcut(Qt::Key_Minus);
        QTest::qWait(200);
        drag(editor, edge, to);
        QCOMPARE(editor.number("receiptdoc." + setting)->value(), value);
        editor.shortcut(Qt::Key_Z);
        QCOMPARE(editor.number("receiptdoc." + setting)->value(),
                 setting == "priceFieldWidth" ? 7 : amount);
    }

    void aColumnOfNoWidthIsDraggedOut()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.showForm();
        TRY_STREAM(editor, example("expected/receipt.out"));
        editor.number("receiptdoc.quantityFieldWidth")->setValue(0);
        QTest::qWait(200);
        drag(editor, 0, 4);
        QCOMPARE(editor.number("receiptdoc.quantityFieldWidth")->value(), 4);
    }

private:
    /// Moves an edge to a column of the paper.
    static void drag(const Editor &editor, int edge, int column)
    {
        auto *ruler = editor.child<Ruler>("ruler");
        const int from = ruler->placeOf(ruler->edges()[edge]);
        const int to = ruler
                           ->mapFromGlobal(editor.paper()->mapToGlobal(
                               QPoint(qRound(editor.paper()->leftOf(column)), 0)))
                           .x();
        QTest::mousePress(ruler, Qt::LeftButton, {}, {from, 5});
        QMouseEvent move(QEvent::MouseMove, QPointF(to, 5), QPointF(to, 5), Qt::LeftButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(ruler, &move);
        QTest::mouseRelease(ruler, Qt::LeftButton, {}, {to, 5});
    }
};

KORVEL_TEST_BY(runWindowTest, TestSettingsRuler)

} // namespace tst_settingsruler

#include "tst_settingsruler.moc"

// The paper of the settings editor: jobs, edits, and renderers that fail.
#include "companions/preview/picture.h"
#include "printer/company/commands.h"
#include "support/answers.h"
#include "support/built.h"
#include "support/settingseditor.h"
#include "support/test.h"

#include <QImage>

namespace tst_settingspaper {

namespace commands = korvel::commands;
namespace preview = korvel::preview;
using korvel::settings::PaperView;

/// Counts how often a widget is painted.
class Paintings : public QObject
{
public:
    explicit Paintings(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject * /*object*/, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            ++count;
        return false;
    }

    int count = 0;
};

/// The rows of the paper as they look on the screen, without its torn edges.
QImage lookOf(PaperView &paper)
{
    const double zoom = paper.zoom();
    paper.setZoom(1);
    const QPixmap picture = paper.grab();
    paper.setZoom(zoom);
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

/// The same, of a stream.
QImage lookOf(const QByteArray &stream)
{
    PaperView paper;
    paper.showPaper(preview::paperOf(stream, commands::lineWidth));
    return lookOf(paper);
}

/// Compares the part of two looks where rows are printed.
bool sameRows(const QImage &one, const QImage &other)
{
    constexpr int border = 16 + 24;
    const QRect rows(border, border, commands::lineWidth * 12, other.height() - 2 * border);
    return one.size() == other.size() && one.copy(rows) == other.copy(rows);
}

class TestSettingsPaper : public QObject
{
    Q_OBJECT

private slots:
    void init() { answers.clear(); }

    void cleanup() { answers.verifyUsedUp(); }

    void allDocuments()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QStringList titles = {
            "Kitchen order",
            "Full order",
            "Receipt",
            "Invoice",
            "Delivery note",
            "Fiscal receipt",
            "Summary order",
            "Summary receipt",
            "Summary invoice",
            "Summary fiscal receipt",
            "Period report",
            "Sold items",
            "Statement of account",
        };
        const QStringList files = {
            "kitchen-order",   "full-order",
            "receipt",         "invoice",
            "delivery-note",   "fiscal-receipt",
            "order-summary",   "receipt-summary",
            "invoice-summary", "fiscal-receipt-summary",
            "period-report",   "sold-items",
            "statement",
        };
        editor.activate();
        editor.documents()->setFocus();
        for (int i = 0; i < titles.size(); ++i) {
            Editor::press(i == 0 ? Qt::Key_Home : Qt::Key_Down);
            QCOMPARE(editor.documents()->currentItem()->text(), titles[i]);
            TRY_STREAM(editor, example("expected/" + files[i] + ".out"));
            QVERIFY(sameRows(lookOf(*editor.paper()),
                             lookOf(example("expected/" + files[i] + ".out"))));
        }
        QVERIFY(!editor.window.isWindowModified());
    }

    void theJobsOfTheUser()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        const QString job = home.path() + "/own.xml";
        writeFile(job, "<printjob><method name=\"printFullOrderReceipt\"/>"
                       "<receipt serialnumber=\"7\"/></printjob>");
        // A line each for the section, the number, the separator and the section's end.
        const QByteArray expected =
            "=o/*1\n=\"/( Serial Number: 7 )\n=\"/(" + QByteArray(32, '=') + " )\n=o\n";
        answers.give({job});
        editor.activate();
        editor.jobs()->setFocus();
        Editor::press(Qt::Key_End);
        TRY_STREAM(editor, expected);
        QCOMPARE(editor.jobs()->currentText(), QString("own.xml"));

        // Choosing another one and giving up changes nothing.
        answers.give({Answers::escape});
        emit editor.jobs()->activated(editor.jobs()->count() - 1);
        QCOMPARE(answers.seen.size(), 2);
        QCOMPARE(editor.jobs()->currentText(), QString("own.xml"));
        QTest::qWait(100);
        QCOMPARE(editor.stream(), linesOf(expected));

        // A document's sample comes with the document; the own job is remembered.
        editor.choose("Kitchen order");
        TRY_STREAM(editor, example("expected/kitchen-order.out"));
        QCOMPARE(editor.jobs()->currentIndex(), 0);
        answers.give({Answers::escape});
        emit editor.jobs()->activated(editor.jobs()->count() - 1);
        QCOMPARE(editor.jobs()->currentIndex(), 0);
        QCOMPARE(editor.stream(), linesOf(example("expected/kitchen-order.out")));
        const int remembered = editor.jobs()->findText("own.xml");
        QVERIFY(remembered > 0);
        emit editor.jobs()->activated(remembered);
        TRY_STREAM(editor, expected);
        QCOMPARE(editor.documents()->currentItem()->text(), QString("Receipt"));
    }

    void theLookFollowsTheEdit()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QByteArray before = editor.window.shownStream();
        QVERIFY(sameRows(lookOf(*editor.paper()), lookOf(before)));
        editor.edit("receiptdoc.printDate", "false");
        QTRY_VERIFY_WITH_TIMEOUT(editor.window.shownStream() != before, longEnough);
        QStringList expected = linesOf(before);
        QCOMPARE(expected.removeAll(shownLine(" Date: 12/05/2026")), 1);
        QCOMPARE(editor.stream(), expected);
        QVERIFY(!sameRows(lookOf(*editor.paper()), lookOf(before)));
        QVERIFY(sameRows(lookOf(*editor.paper()), lookOf(editor.window.shownStream())));
        QVERIFY(editor.paper()->message().isEmpty());
    }

    void everyEditIsPainted()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const Paintings paintings(editor.paper());
        for (int i = 0; i < 21; ++i) {
            editor.begin("receiptdoc.paperWidth", QString::number(33 + i));
            const QByteArray before = editor.window.shownStream();
            const int painted = paintings.count;
            Editor::press(Qt::Key_Return);
            QTRY_VERIFY_WITH_TIMEOUT(editor.window.shownStream() != before, longEnough);
            QTRY_VERIFY_WITH_TIMEOUT(paintings.count > painted, longEnough);
        }
    }

    void edgeValuesAreRendered_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<QString>("value");
        QTest::newRow("the widest paper") << "receiptdoc.paperWidth"
                                          << "2147483647";
        QTest::newRow("a wide paper") << "receiptdoc.paperWidth"
                                      << "65536";
        QTest::newRow("a paper of no width") << "receiptdoc.paperWidth"
                                             << "-2147483648";
        QTest::newRow("the widest quantity") << "receiptdoc.quantityFieldWidth"
                                             << "2147483647";
    }

    void edgeValuesAreRendered()
    {
        QFETCH(QString, setting);
        QFETCH(QString, value);
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QByteArray before = editor.window.shownStream();
        editor.edit(setting, value);
        QTRY_VERIFY_WITH_TIMEOUT(editor.window.shownStream() != before, longEnough);
        QCOMPARE(editor.paper()->message(), QString());
        QCOMPARE(editor.stream().constFirst(), QString("=o/*1\\n"));
        QCOMPARE(editor.stream().constLast(), QString("=o\\n"));
    }

    void theLastOfManyEditsIsShown()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        for (int width = 33; width <= 40; ++width) {
            editor.edit("receiptdoc.paperWidth", QString::number(width));
            QTest::qWait(width % 3 * 40);
        }
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QTest::qWait(300);
        QCOMPARE(editor.stream(), receiptOf40());
    }

    void wideLinesAreNamedBelowThePaper()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        TRY_STREAM(editor, example("expected/receipt.out"));
        QCOMPARE(editor.findings(), QStringList());
        editor.edit("receiptdoc.paperWidth", "40");
        // Its four separators of 40 characters, the titles, seven items and the total: see
        // receiptOf40(), whose second line is the paper's first.
        const QStringList expected = {
            "Paper width: Too wide for the paper: lines of more than 32 characters, or no room for "
            "the description.",
            "Lines 2, 4, 9, 11, 15, 18–26, 28 are wider than the paper: up to 40 characters, of "
            "32. Quantity column 3, Price column 7, Amount column 8, Paper width 40.",
        };
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings(), expected, longEnough);
        editor.edit("receiptdoc.paperWidth", "32");
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings(), QStringList(), longEnough);
    }

    void aMissingRenderer()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath(), home.path() + "/nowhere");
        QTRY_VERIFY_WITH_TIMEOUT(!editor.paper()->message().isEmpty(), longEnough);
        QVERIFY2(editor.paper()->message().contains(home.path() + "/nowhere"),
                 qPrintable(editor.paper()->message()));
        QCOMPARE(editor.stream(), QStringList());
        // Editing and saving go on.
        editor.edit("receiptdoc.paperWidth", "40");
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
    }

    void aFailingRendererAndAWorkingOneAgain()
    {
        const QTemporaryDir folder;
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath(),
                      script(folder, "grep -q 'paperWidth = \"13\"' ~/.korvel/conf/korvel.conf"
                                     " && exit 1\nexec "
                                         + QByteArray(built::print) + " \"$1\" \"$2\"\n"));
        TRY_STREAM(editor, example("expected/receipt.out"));
        const QImage before = lookOf(*editor.paper());
        editor.edit("receiptdoc.paperWidth", "13");
        QTRY_VERIFY_WITH_TIMEOUT(editor.paper()->message().contains("renderer"), longEnough);
        QCOMPARE(editor.stream(), QStringList());
        QVERIFY(lookOf(*editor.paper()) != before);
        editor.edit("receiptdoc.paperWidth", "32");
        TRY_STREAM(editor, example("expected/receipt.out"));
        QVERIFY(sameRows(lookOf(*editor.paper()), before));
    }

    void aHangingRendererDoesNotBlock()
    {
        const QTemporaryDir folder;
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath(),
                      script(folder, "grep -q 'paperWidth = \"40\"' ~/.korvel/conf/korvel.conf"
                                     " || exec sleep 600\nexec "
                                         + QByteArray(built::print) + " \"$1\" \"$2\"\n"));
        QTest::qWait(200);
        editor.edit("receiptdoc.printCompany", "false");
        QTest::qWait(200);
        editor.edit("receiptdoc.printCompany", "true");
        QTest::qWait(200);
        editor.edit("receiptdoc.paperWidth", "40");
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), 9000);
        editor.edit("receiptdoc.paperWidth", "39");
        QTest::qWait(200);
        answers.give({"Discard"});
        QVERIFY(editor.window.close());
    }

private:
    Answers answers;
};

KORVEL_TEST_BY(runWindowTest, TestSettingsPaper)

} // namespace tst_settingspaper

#include "tst_settingspaper.moc"

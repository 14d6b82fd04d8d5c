// The settings editor as a technician uses it: the window, its keys, its questions.
#include "companions/preview/picture.h"
#include "companions/settings/paperview.h"
#include "companions/settings/window.h"
#include "printer/company/commands.h"
#include "support/settingstext.h"
#include "support/shop.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

using namespace korvel::settings;

namespace commands = korvel::commands;
namespace preview = korvel::preview;

namespace {

constexpr auto longEnough = 30000; // milliseconds, for a run of the renderer on a busy machine

QByteArray example(const QString &name)
{
    return bytesOf(QString(KORVEL_SOURCE_DIR "/examples/") + name);
}

/// A line as the printer gets it.
QString line(const QString &content) { return "=\"/(" + content + " )\\n"; }

/// The sample receipt on a paper of 40 characters: 19 for the name of an item, 21 in titles.
QStringList receiptOf40()
{
    const QString separator = line(QString(40, '='));
    const auto utf8 = [](const char *text) { return line(QString::fromUtf8(text)); };
    return {
        "=o/*1\\n",
        line("Benvenuti!"),
        separator,
        line("             CASSA"),
        separator,
        line("       Trattoria Da Nino"),
        line("        Via Garibaldi 12"),
        line("          10122 Torino"),
        line("       P.IVA 01234567890"),
        separator,
        line(" Serial Number: 118"),
        separator,
        line(" Date: 12/05/2026"),
        line(" Time: 22:20"),
        line(" Table: 7"),
        separator,
        line("CUSTOMER"),
        line(" Mario Rossi"),
        separator,
        line("Num Description            Price  Amount"),
        line("  3 x Coperto...............2.00    6.00"),
        line("  2 x Spaghetti alle vong..14.00   28.00"),
        line("  1 x Tagliata di manzo....18.50   18.50"),
        line("  1 x Pizza Margherita co...9.00    9.00"),
        utf8("  2 x Tiramisù..............5.50   11.00"),
        line("  1 x Vino rosso della ca...6.00    6.00"),
        utf8("  2 x Caffè.................1.20    2.40"),
        line(""),
        line("    TOTAL.......................   80.90"),
        line(""),
        line("    Amount not paid: 30.90"),
        "=o\\n",
    };
}

/// A question or a message as it stood on the screen.
struct Dialog
{
    QString text;
    QString defaultButton; // without the mark of its key
    QString defaultRole;   // "cancel", or nothing
};

/// Answers the dialogs, which wait for it: one answer each, in their order.
class Answers : public QObject
{
public:
    /// A key, or the text of a button.
    static constexpr auto enter = "<Enter>";
    static constexpr auto escape = "<Escape>";

    Answers()
    {
        connect(&timer, &QTimer::timeout, this, [this] { look(); });
        timer.start(5);
    }

    /// Of file dialogs the answer is a path, or escape.
    void give(const QStringList &answers) { prepared += answers; }

    void clear()
    {
        prepared.clear();
        seen.clear();
        unexpected.clear();
    }

    QStringList prepared;
    QList<Dialog> seen;
    QStringList unexpected; // dialogs without an answer, which were given up

private:
    void look()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        auto *box = qobject_cast<QMessageBox *>(dialog);
        auto *files = qobject_cast<QFileDialog *>(dialog);
        const bool known = !prepared.isEmpty();
        const QString answer = known ? prepared.takeFirst() : escape;
        if (!known)
            unexpected.append(box ? box->text() : dialog->windowTitle());
        if (box) {
            const auto *standard = qobject_cast<QPushButton *>(box->focusWidget());
            const QString label = standard ? standard->text().remove('&') : QString();
            const bool cancels =
                standard && box->button(QMessageBox::Cancel) == static_cast<const void *>(standard);
            seen.append({box->text(), label, cancels ? "cancel" : ""});
            checkMarkup(*box);
        } else {
            seen.append({dialog->windowTitle(), {}, {}});
        }
        if (answer == enter)
            QTest::keyClick(dialog, Qt::Key_Return);
        else if (answer == escape)
            QTest::keyClick(dialog, Qt::Key_Escape);
        else if (box)
            press(*box, answer);
        else if (files)
            choose(*files, answer);
    }

    void press(QMessageBox &box, const QString &label)
    {
        for (QAbstractButton *button : box.buttons()) {
            if (button->text().remove('&') == label) {
                button->setFocus();
                QTest::keyClick(button, Qt::Key_Space);
                return;
            }
        }
        unexpected.append("no button \"" + label + "\": " + box.text());
        box.reject();
    }

    static void choose(QFileDialog &dialog, const QString &path)
    {
        auto *name = dialog.findChild<QLineEdit *>("fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
    }

    /// What stands in the settings must not be taken for markup.
    void checkMarkup(const QMessageBox &box)
    {
        for (const QLabel *label : box.findChildren<QLabel *>()) {
            const bool rich =
                label->textFormat() == Qt::RichText
                || (label->textFormat() == Qt::AutoText && Qt::mightBeRichText(label->text()));
            if (rich && label->text().contains("<b>bold"))
                unexpected.append("taken for markup: " + label->text());
        }
    }

    QTimer timer;
};

/// The window on a settings file, and the keys that are pressed in it.
class Editor
{
public:
    explicit Editor(const QString &file, const QString &renderer = KORVEL_PRINT)
        : window(file, renderer)
    {
        window.show();
        activate();
        window.begin();
        activate();
        if (!QTest::qWaitFor([this] { return tree()->isVisible(); }))
            qFatal("the settings do not come up");
    }

    /// Without a window manager nobody else does it when a dialog is gone.
    void activate()
    {
        window.activateWindow();
        if (!QTest::qWaitForWindowActive(&window))
            qFatal("the window does not come up");
    }

    [[nodiscard]] QTreeWidget *tree() const { return child<QTreeWidget>("settings"); }
    [[nodiscard]] QComboBox *jobs() const { return child<QComboBox>("jobs"); }
    [[nodiscard]] PaperView *paper() const { return child<PaperView>("paper"); }
    [[nodiscard]] QLabel *meaning() const { return child<QLabel>("meaning"); }
    [[nodiscard]] QLabel *findings() const { return child<QLabel>("findings"); }
    [[nodiscard]] QStringList stream() const { return linesOf(window.shownStream()); }

    /// The row of a setting's value: "receiptdoc.paperWidth".
    [[nodiscard]] QTreeWidgetItem *valueRow(const QString &setting) const
    {
        QTreeWidgetItem *row = tree()->topLevelItem(0);
        for (const QString &name : ("korvel." + setting).split('.')) {
            QTreeWidgetItem *found = nullptr;
            for (int i = 0; row && i < row->childCount() && !found; ++i)
                if (row->child(i)->text(0) == name)
                    found = row->child(i);
            row = found;
        }
        if (!row || row->childCount() != 1)
            qFatal("there is no setting %s", qPrintable(setting));
        return row->child(0);
    }

    /// A key where the focus is.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *focus = QApplication::focusWidget();
        if (!focus)
            qFatal("nothing has the focus");
        QTest::keyClick(focus, key, modifiers);
    }

    static void type(const QString &text)
    {
        for (const QChar c : text) {
            QKeyEvent down(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
            QApplication::sendEvent(QApplication::focusWidget(), &down);
        }
    }

    /// Opens the editor of a value and types over it.
    void begin(const QString &setting, const QString &value)
    {
        activate();
        tree()->setFocus();
        tree()->setCurrentItem(valueRow(setting));
        press(Qt::Key_F2);
        if (!qobject_cast<QLineEdit *>(QApplication::focusWidget()))
            qFatal("the value cannot be edited");
        if (value.isEmpty())
            press(Qt::Key_Delete);
        else
            type(value);
    }

    void edit(const QString &setting, const QString &value)
    {
        begin(setting, value);
        press(Qt::Key_Return);
        if (!QTest::qWaitFor([this] { return QApplication::focusWidget() == tree(); }))
            qFatal("the editor stays open");
    }

    /// A key of the menu.
    void shortcut(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        activate();
        QTest::keyClick(tree(), key, modifiers);
    }

    void save() { shortcut(Qt::Key_S); }

    SettingsWindow window;

private:
    template<typename Widget>
    [[nodiscard]] Widget *child(const char *name) const
    {
        auto *widget = window.findChild<Widget *>(name);
        if (!widget)
            qFatal("the window has no %s", name);
        return widget;
    }
};

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
    const QPixmap picture = paper.grab();
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

/// The same, of a stream.
QImage lookOf(const QByteArray &stream)
{
    PaperView paper;
    paper.showPaper(
        preview::Picture(preview::paperOf(stream, commands::lineWidth), commands::lineWidth));
    return lookOf(paper);
}

/// Compares the part of two looks where rows are printed.
bool sameRows(const QImage &one, const QImage &other)
{
    constexpr int border = 16 + 24;
    const QRect rows(border, border, commands::lineWidth * 12, other.height() - 2 * border);
    return one.size() == other.size() && one.copy(rows) == other.copy(rows);
}

QString script(const QTemporaryDir &folder, const QByteArray &lines)
{
    const QString path = folder.filePath("renderer");
    writeFile(path, "#!/bin/sh\n" + lines);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

QByteArray sampleOf40()
{
    QByteArray sample = example("korvel.conf").trimmed() + "\n\n";
    const qsizetype group = sample.indexOf("receiptdoc:");
    const qsizetype width = sample.indexOf("\"32\"", group);
    return sample.replace(width, 4, "\"40\"");
}

#define TRY_STREAM(editor, expected)                                                               \
    QTRY_COMPARE_WITH_TIMEOUT((editor).stream(), linesOf(expected), longEnough)

} // namespace

class TestSettingsWindow : public QObject
{
    Q_OBJECT

private:
    Answers answers;

private slots:
    void init() { answers.clear(); }

    void cleanup()
    {
        QCOMPARE(answers.unexpected, QStringList());
        QCOMPARE(answers.prepared, QStringList());
    }

    // From nothing to a receipt on wider paper.

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
        QTRY_VERIFY_WITH_TIMEOUT(editor.stream().contains(line("             CASSA")), longEnough);
        QVERIFY(!editor.stream().contains(line("Benvenuti!")));
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

    // The paper.

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
        editor.jobs()->setFocus();
        for (int i = 0; i < titles.size(); ++i) {
            Editor::press(i == 0 ? Qt::Key_Home : Qt::Key_Down);
            QCOMPARE(editor.jobs()->currentText(), titles[i]);
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
        const int own = editor.jobs()->currentIndex();
        QCOMPARE(own, editor.jobs()->count() - 1);

        // Choosing another one and giving up changes nothing.
        answers.give({Answers::escape});
        emit editor.jobs()->activated(own);
        QCOMPARE(answers.seen.size(), 2);
        QCOMPARE(editor.jobs()->currentIndex(), own);
        QTest::qWait(100);
        QCOMPARE(editor.stream(), linesOf(expected));

        // So it does where a sample was shown.
        editor.activate();
        editor.jobs()->setFocus();
        Editor::press(Qt::Key_Home);
        TRY_STREAM(editor, example("expected/kitchen-order.out"));
        answers.give({Answers::escape});
        Editor::press(Qt::Key_End);
        QCOMPARE(editor.jobs()->currentText(), QString("Kitchen order"));
        QCOMPARE(editor.stream(), linesOf(example("expected/kitchen-order.out")));
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
        QCOMPARE(expected.removeAll(line(" Date: 12/05/2026")), 1);
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
        QCOMPARE(editor.findings()->text(), QString());
        editor.edit("receiptdoc.paperWidth", "40");
        QTRY_VERIFY_WITH_TIMEOUT(editor.findings()->text().contains("40"), longEnough);
        QVERIFY(editor.findings()->text().count('\n') < 5);
        editor.edit("receiptdoc.paperWidth", "32");
        QTRY_COMPARE_WITH_TIMEOUT(editor.findings()->text(), QString(), longEnough);
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
                      script(folder, "grep -q 'paperWidth = \"13\"' .korvel/conf/korvel.conf"
                                     " && exit 1\nexec " KORVEL_PRINT " \"$1\" \"$2\"\n"));
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
                      script(folder, "grep -q 'paperWidth = \"40\"' .korvel/conf/korvel.conf"
                                     " || exec sleep 600\nexec " KORVEL_PRINT " \"$1\" \"$2\"\n"));
        QTest::qWait(200);
        editor.edit("receiptdoc.printCompany", "false");
        QTest::qWait(200);
        editor.edit("receiptdoc.printCompany", "true");
        QTest::qWait(200);
        editor.edit("receiptdoc.paperWidth", "40");
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), 9000);
        editor.edit("receiptdoc.paperWidth", "32");
        QTest::qWait(200);
        answers.give({"Discard"});
        QVERIFY(editor.window.close());
    }

    // Saving.

    void theModifiedMark()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QVERIFY2(editor.window.windowTitle().contains("korvel.conf[*]"),
                 qPrintable(editor.window.windowTitle()));
        QVERIFY(!editor.window.isWindowModified());
        // Neither moving about nor an editor that changes nothing is an edit.
        editor.begin("receiptdoc.paperWidth", "40");
        Editor::press(Qt::Key_Escape);
        editor.edit("receiptdoc.paperWidth", "32");
        QTest::qWait(100);
        QVERIFY(!editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "31");
        QVERIFY(editor.window.isWindowModified());
        editor.save();
        QVERIFY(!editor.window.isWindowModified());
        // The marks in the tree are no edits either.
        QTest::qWait(200);
        QVERIFY(!editor.window.isWindowModified());
    }

    // A value that is being typed counts as much as one behind Enter.
    void savingTakesTheOpenEditorAlong()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.begin("receiptdoc.paperWidth", "40");
        Editor::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        QVERIFY(!editor.window.isWindowModified());
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

    void whatIsLostIsNamed_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("value"); // of doc.style
        QTest::addColumn<QString>("named");
        const QByteArray doc = settingsFile(documentGroup("doc", "style = a;"));
        QTest::newRow("a quote") << doc << "1\""
                                 << "korvel.doc.style";
        QTest::newRow("a semicolon") << doc << "a;b"
                                     << "korvel.doc.style";
        QTest::newRow("beyond Latin-1") << doc << QString::fromUtf8("5 €") << "korvel.doc.style";
        QTest::newRow("markup") << doc << "\"<b>bold</b>"
                                << "korvel.doc.style";
        QTest::newRow("a second group") << doc + "second: { a = 1; };"
                                        << "b"
                                        << "second";
        QTest::newRow("a group that would move")
            << settingsFile("doc: { style = a; }; receiptdoc: { deep: { a = 1; }; };") << "b"
            << "korvel.receiptdoc";
    }

    void whatIsLostIsNamed()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, value);
        QFETCH(QString, named);
        const TemporaryHome home(file);
        Editor editor(home.settingsPath());
        editor.edit("doc.style", value);
        for (const char *answer : {Answers::enter, Answers::escape}) {
            answers.give({answer});
            editor.save();
            QVERIFY2(!answers.seen.isEmpty(), "nothing was asked");
            const Dialog asked = answers.seen.takeFirst();
            QVERIFY2(asked.text.contains(named), qPrintable(asked.text));
            QCOMPARE(asked.defaultRole, QString("cancel"));
            QCOMPARE(bytesOf(home.settingsPath()), file);
            QVERIFY(!QFile::exists(home.settingsPath() + '~'));
            QVERIFY(editor.window.isWindowModified());
            QCOMPARE(editor.valueRow("doc.style")->text(0), value);
        }
        answers.give({"Save the rest"});
        editor.save();
        QVERIFY(bytesOf(home.settingsPath()) != file);
        QCOMPARE(bytesOf(home.settingsPath() + '~'), file);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aFileThatAnotherProgramChanged()
    {
        const QByteArray others = settingsFile(documentGroup("doc", "style = other;"));
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        writeFile(home.settingsPath(), others);
        for (const char *answer : {Answers::enter, Answers::escape}) {
            answers.give({answer});
            editor.save();
            QCOMPARE(answers.seen.size(), 1);
            QCOMPARE(answers.seen.takeFirst().defaultRole, QString("cancel"));
            QCOMPARE(bytesOf(home.settingsPath()), others);
            QVERIFY(editor.window.isWindowModified());
        }
        answers.give({"Save all the same"});
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
        QCOMPARE(bytesOf(home.settingsPath() + '~'), others);
        QVERIFY(!editor.window.isWindowModified());
    }

    void aFileThatIsGone()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        editor.edit("receiptdoc.paperWidth", "40");
        QVERIFY(QDir(home.path() + "/.korvel").removeRecursively());
        answers.give({"Save all the same"});
        editor.save();
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));
    }

    void whatCannotBeWritten_data()
    {
        QTest::addColumn<QString>("obstacle");
        QTest::addColumn<QStringList>("answersBefore");
        QTest::newRow("a folder in its place") << "folder" << QStringList{"Save all the same"};
        QTest::newRow("a file for its folder") << "file" << QStringList{"Save all the same"};
        QTest::newRow("no place for the previous file") << "backup" << QStringList();
    }

    void whatCannotBeWritten()
    {
        QFETCH(QString, obstacle);
        QFETCH(QStringList, answersBefore);
        const TemporaryHome home(example("korvel.conf"));
        const QString path = home.settingsPath();
        Editor editor(path);
        editor.edit("receiptdoc.paperWidth", "40");
        if (obstacle == "folder") {
            QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/inner"));
        } else if (obstacle == "file") {
            QVERIFY(QDir(home.path() + "/.korvel").removeRecursively());
            writeFile(home.path() + "/.korvel", "no folder");
        } else {
            QVERIFY(QDir().mkpath(path + "~/inner"));
        }
        answers.give(answersBefore + QStringList{Answers::enter});
        editor.save();
        QCOMPARE(answers.seen.size(), answersBefore.size() + 1);
        QVERIFY2(answers.seen.last().text.contains(home.path()),
                 qPrintable(answers.seen.last().text));
        QVERIFY(editor.window.isWindowModified());
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("40"));
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        if (obstacle == "backup")
            QCOMPARE(bytesOf(path), example("korvel.conf"));

        // Closing does not lose the edits either: the file cannot be saved, so the window stays.
        answers.seen.clear();
        answers.give(QStringList{"Save"} + answersBefore + QStringList{Answers::enter});
        QVERIFY(!editor.window.close());
        QVERIFY(editor.window.isVisible());
        QVERIFY(editor.window.isWindowModified());
    }

    // Closing, reverting, opening.

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

        answers.give({Answers::enter}); // no file dialog follows
        editor.shortcut(Qt::Key_O);
        QCOMPARE(answers.seen.takeFirst().defaultRole, QString("cancel"));

        answers.give({"Discard", Answers::escape}); // giving up the choice keeps the edits
        editor.shortcut(Qt::Key_O);
        QCOMPARE(editor.valueRow("receiptdoc.paperWidth")->text(0), QString("39"));
        QVERIFY(editor.window.isWindowModified());

        answers.give({"Discard", other});
        editor.shortcut(Qt::Key_O);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QVERIFY(editor.window.windowTitle().contains("other.conf"));
        QVERIFY(!editor.window.isWindowModified());
        editor.edit("receiptdoc.paperWidth", "32");
        editor.save();
        QVERIFY(bytesOf(other) != sampleOf40());
        QCOMPARE(bytesOf(home.settingsPath()), example("korvel.conf"));
    }

    // Help.

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
        for (int i = 0; i < 5 && editor.tree()->currentItem()->text(0) != "receiptdoc"; ++i)
            Editor::press(Qt::Key_Left);
        QCOMPARE(editor.tree()->currentItem()->text(0), QString("receiptdoc"));
        QVERIFY(editor.meaning()->text().contains("receipt, summary receipt"));
    }

    // Without a mouse.

    void theKeyboardAlone()
    {
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QCOMPARE(QApplication::focusWidget(), editor.tree());
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
        QTest::keyClick(QApplication::focusWidget(), '4'); // typing is editing
        QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), '0');
        Editor::press(Qt::Key_Return);
        QTRY_COMPARE_WITH_TIMEOUT(editor.stream(), receiptOf40(), longEnough);
        QCOMPARE(QApplication::focusWidget(), editor.tree());

        Editor::press(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(linesOf(bytesOf(home.settingsPath())), linesOf(sampleOf40()));

        Editor::press(Qt::Key_Tab);
        for (int i = 0; i < 5 && QApplication::focusWidget() != editor.jobs(); ++i)
            Editor::press(Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), editor.jobs());
        Editor::press(Qt::Key_Home);
        TRY_STREAM(editor, example("expected/kitchen-order.out"));
        editor.tree()->setFocus();
        Editor::press(Qt::Key_D, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), editor.jobs());

        Editor::press(Qt::Key_Q, Qt::ControlModifier);
        QVERIFY(!editor.window.isVisible());
    }

    // The window.

    void theSizeIsKept()
    {
        const TemporaryHome home(example("korvel.conf"));
        const QString kept =
            qEnvironmentVariable("XDG_CONFIG_HOME") + "/korvel/korvel-settings.conf";
        QList<int> sizes;
        QSize size;
        {
            Editor editor(home.settingsPath());
            editor.window.resize(700, 520);
            auto *panes = editor.window.findChild<QSplitter *>();
            const int all = panes->sizes()[0] + panes->sizes()[1];
            panes->setSizes({all / 3, all - all / 3});
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
        settings.setValue("window/panes", QByteArray("none"));
        settings.sync();
        const TemporaryHome home(example("korvel.conf"));
        Editor editor(home.settingsPath());
        QVERIFY(editor.window.width() > 300 && editor.window.height() > 200);
        TRY_STREAM(editor, example("expected/receipt.out"));
    }
};

int main(int argc, char *argv[])
{
    const QTemporaryDir configuration; // where the window keeps its size
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configuration.path()));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("korvel");
    QApplication::setApplicationName("korvel-settings");
    TestSettingsWindow test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingswindow.moc"

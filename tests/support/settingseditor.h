// The window of the settings editor and the keys that are pressed in it.
#pragma once

#include "companions/settings/paperview.h"
#include "companions/settings/window.h"
#include "support/built.h"
#include "support/settingsfiles.h"
#include "support/streams.h"
#include "support/temporaryhome.h"

#include <QAction>
#include <QApplication>
#include <QByteArrayList>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QSpinBox>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>

/// The sample receipt on a paper of 40 characters: 19 for the name of an item, 21 in titles.
inline QStringList receiptOf40()
{
    const QByteArray separator = line(QByteArray(40, '='));
    const QByteArrayList stream = {
        "=o/*1\n",
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
        line("  2 x Tiramisù..............5.50   11.00"),
        line("  1 x Vino rosso della ca...6.00    6.00"),
        line("  2 x Caffè.................1.20    2.40"),
        line(""),
        line("    TOTAL.......................   80.90"),
        line(""),
        line("    Amount not paid: 30.90"),
        "=o\n",
    };
    return linesOf(stream.join());
}

/// The sample settings with that paper, as the editor writes them.
inline QByteArray sampleOf40()
{
    QByteArray sample = sampleAsWritten();
    const qsizetype group = sample.indexOf("receiptdoc:");
    const qsizetype width = sample.indexOf("\"32\"", group);
    return sample.replace(width, 4, "\"40\"");
}

/// The window on a settings file, and the keys that are pressed in it.
class Editor
{
public:
    /// @param named on the command line
    explicit Editor(const QString &file, const QString &renderer = built::print,
                    const QString &named = {})
        : window(file, renderer)
    {
        window.show();
        activate();
        window.begin(named);
        showExpert();
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

    void showExpert() const { child<QTabWidget>("tabs")->setCurrentIndex(1); }
    void showForm() const { child<QTabWidget>("tabs")->setCurrentIndex(0); }

    /// Brings a tab to the front by its title, without the mark of its key.
    void showTab(const QString &title) const
    {
        auto *tabs = child<QTabWidget>("tabs");
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->tabText(i).remove('&') == title)
                return tabs->setCurrentIndex(i);
        }
        qFatal("there is no tab %s", qPrintable(title));
    }

    /// Chooses a document by its title, or another row of the list.
    void choose(const QString &title) const
    {
        const auto found = documents()->findItems(title, Qt::MatchStartsWith);
        if (found.size() != 1)
            qFatal("there is not one row %s", qPrintable(title));
        documents()->setCurrentItem(found.constFirst());
    }

    /// Whether the list of documents shows a row of this text.
    [[nodiscard]] bool hasRow(const QString &text) const
    {
        const auto found = documents()->findItems(text, Qt::MatchExactly);
        return found.size() == 1 && !found.constFirst()->isHidden();
    }

    /// A field of the form: "receiptdoc.paperWidth".
    template<typename Widget>
    [[nodiscard]] Widget *field(const QString &setting) const
    {
        return child<Widget>(setting.toUtf8());
    }
    [[nodiscard]] QSpinBox *number(const QString &setting) const
    {
        return field<QSpinBox>(setting);
    }
    [[nodiscard]] QCheckBox *check(const QString &setting) const
    {
        return field<QCheckBox>(setting);
    }

    [[nodiscard]] QListWidget *documents() const { return child<QListWidget>("documents"); }
    [[nodiscard]] QTreeWidget *tree() const { return child<QTreeWidget>("settings"); }
    [[nodiscard]] QComboBox *jobs() const { return child<QComboBox>("jobs"); }
    [[nodiscard]] korvel::settings::PaperView *paper() const
    {
        return child<korvel::settings::PaperView>("paper");
    }
    [[nodiscard]] QLabel *meaning() const { return child<QLabel>("meaning"); }
    /// What is wrong, a line each.
    [[nodiscard]] QStringList findings() const
    {
        QStringList lines;
        const auto *list = child<QListWidget>("findings");
        for (int i = 0; i < list->count(); ++i)
            lines.append(list->item(i)->text());
        return lines;
    }
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

    /// The entries of the menu of recent files, as they are when it is opened.
    [[nodiscard]] QList<QAction *> recentFiles() const
    {
        for (QMenu *menu : window.findChildren<QMenu *>()) {
            if (menu->title() == "Open &recent") {
                emit menu->aboutToShow();
                return menu->actions();
            }
        }
        qFatal("there is no menu of recent files");
    }

    /// Whether a menu has an entry of this text, without the mark of its key.
    [[nodiscard]] bool hasAction(const QString &text) const
    {
        const auto actions = window.findChildren<QAction *>();
        return std::any_of(actions.begin(), actions.end(), [&](const QAction *action) {
            return action->text().remove('&') == text;
        });
    }

    /// A key of the menu.
    void shortcut(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        activate();
        QTest::keyClick(&window, key, modifiers);
    }

    void save() { shortcut(Qt::Key_S); }

    korvel::settings::SettingsWindow window;

    template<typename Widget>
    [[nodiscard]] Widget *child(const QByteArray &name) const
    {
        auto *widget = window.findChild<Widget *>(QString(name));
        if (!widget)
            qFatal("the window has no %s", name.constData());
        return widget;
    }
};

/// Waits for the stream that a file of the sample shop, or a test, expects.
#define TRY_STREAM(editor, expected)                                                               \
    QTRY_COMPARE_WITH_TIMEOUT((editor).stream(), linesOf(expected), longEnough)

/// Runs a test of windows: they keep their size in a folder that goes with the program.
template<typename Test>
int runWindowTest(int argc, char *argv[])
{
    const QTemporaryDir configuration;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(configuration.path()));
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QApplication application(argc, argv);
    QApplication::setOrganizationName("korvel");
    QApplication::setApplicationName("korvel-settings");
    Test test;
    return QTest::qExec(&test, argc, argv);
}

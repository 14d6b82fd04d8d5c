// The menus of the window.
#include "companions/settings/fieldrow.h"
#include "companions/settings/formpane.h"
#include "companions/settings/helppage.h"
#include "companions/settings/paperpane.h"
#include "companions/settings/window.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

void SettingsWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildViewMenu();
    QMenu *menu = menuBar()->addMenu(tr("&Help"));
    QAction *page = menu->addAction(tr("&The settings file"), this, &SettingsWindow::help);
    page->setShortcut(QKeySequence::HelpContents);
}

void SettingsWindow::buildFileMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add(tr("&Open …"), QKeySequence::Open, &SettingsWindow::open);
    QMenu *recent = menu->addMenu(tr("Open &recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecent(*recent); });
    add(tr("&Save"), QKeySequence::Save, &SettingsWindow::save);
    add(tr("Save &as …"), Qt::CTRL | Qt::SHIFT | Qt::Key_S, &SettingsWindow::saveAs);
    add(tr("Re&vert"), QKeySequence::Refresh, &SettingsWindow::revert);
    menu->addSeparator();
    add(tr("Open a &job file …"), Qt::CTRL | Qt::Key_J, [this] { paper->chooseJobFile(); });
    // Ctrl+E alone goes to the end of the line in a field.
    add(tr("&Export the paper …"), Qt::CTRL | Qt::SHIFT | Qt::Key_E, &SettingsWindow::exportPaper);
    menu->addSeparator();
    add(tr("&Quit"), Qt::CTRL | Qt::Key_Q, [this] { close(); });
}

void SettingsWindow::buildEditMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = state.history().createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = state.history().createRedoAction(this, tr("&Redo"));
    redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    menu->addActions({undo, redo});
    menu->addSeparator();
    const auto add = [&](const QString &text, const QKeySequence &shortcut,
                         void (FieldRow::*change)()) {
        QAction *action = menu->addAction(text);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, [this, change] {
            if (FieldRow *row = form->current(); row && form->isVisible())
                (row->*change)();
        });
    };
    add(tr("Field: &not set"), Qt::CTRL | Qt::Key_N, &FieldRow::unset);
    add(tr("Field: as in the &file"), Qt::CTRL | Qt::Key_L, &FieldRow::restoreFile);
    add(tr("Field: as in the &sample"), Qt::CTRL | Qt::Key_M, &FieldRow::restoreSample);
}

void SettingsWindow::buildViewMenu()
{
    QMenu *menu = menuBar()->addMenu(tr("&View"));
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = menu->addAction(text);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, slot);
    };
    add(tr("Paper &larger"), QKeySequence::ZoomIn, [this] { paper->zoomBy(1.25); });
    add(tr("Paper &smaller"), QKeySequence::ZoomOut, [this] { paper->zoomBy(0.8); });
    add(tr("Paper in its &own size"), Qt::CTRL | Qt::Key_0, [this] { paper->zoomToActualSize(); });
    add(tr("Paper as &wide as its pane"), Qt::CTRL | Qt::Key_9,
        [this] { paper->setFitsWidth(true); });
}

void SettingsWindow::fillRecent(QMenu &menu)
{
    menu.clear();
    const QStringList paths = QSettings().value(u"recent"_s).toStringList();
    for (const QString &path : paths)
        menu.addAction(QString(path).replace(u'&', "&&"_L1), this,
                       [this, path] { openPath(path); });
    if (paths.isEmpty())
        menu.addAction(tr("None"))->setEnabled(false);
}

void SettingsWindow::help()
{
    auto *page = new HelpPage(this);
    page->setObjectName(u"help"_s);
    page->setWindowFlag(Qt::Window);
    page->setAttribute(Qt::WA_DeleteOnClose);
    page->resize(size().boundedTo({720, 640}));
    connect(page, &HelpPage::failed, this, &SettingsWindow::tell);
    page->show();
}

} // namespace korvel::settings

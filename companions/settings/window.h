// The window: documents at the left, their settings in the middle, the paper at the right.
#pragma once

#include "companions/settings/document.h"
#include "companions/settings/hints.h"
#include "companions/settings/state.h"

#include <QHash>
#include <QMainWindow>
#include <QTimer>

#include <memory>

class QListWidget;
class QMenu;
class QStackedWidget;
class QTabWidget;

namespace korvel::vocabulary {
struct Method;
}

namespace korvel::settings {

class ExpertPane;
class FormPane;
class PaperPane;
class Panes;
class UnreadPane;

/**
 * Edits one settings file, and shows what the renderer makes of it before anything is saved.
 *
 * The form and the tree of the tab Expert show one state. Each edit can be undone, and starts the
 * renderer on the chosen job, and the paper follows.
 *
 * The bodies: window.cpp what is on the screen, menus.cpp the menus, files.cpp what is done to
 * files.
 */
class SettingsWindow : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * @param file     path of the user's settings file; one that does not exist is made when saved
     * @param renderer path of korvel-print
     */
    SettingsWindow(const QString &file, const QString &renderer);
    ~SettingsWindow() override;

    /**
     * Reads the file. Where there is none, offers the sample settings.
     *
     * @param named another file to begin with. Settings, or a file that does not exist, are opened
     *              in the place of the user's; a job is shown by these.
     */
    void begin(const QString &named = {});

    /// The command stream of the paper; empty while a message stands in its place.
    [[nodiscard]] QByteArray shownStream() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void buildPanes(const QString &renderer);
    void connectPanes();

    // menus.cpp
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildViewMenu();
    void fillRecent(QMenu &menu);
    void help();

    // files.cpp
    void open();
    void openPath(const QString &path);
    void noteRecent();
    void load();
    bool save();
    void saveAs();
    void revert();
    bool mayDiscardEdits();
    void exportPaper();
    QString exportPath();
    void say(const QString &text);
    void tell(const QString &text);
    bool ask(const QString &question, const QStringList &details, const QString &goOn);
    void offerSample();

    void finishEditing();
    [[nodiscard]] const korvel::vocabulary::Method *methodAt(int row) const;
    void chooseDocument(int row);
    void chooseSetting(const QStringList &setting);
    void edited();
    void refresh();
    void noteOfPaper(const QStringList &texts);
    void forgetPapers();
    void markDocuments();
    void showUnreadRow();
    void updateTitle();
    void showStatusBar();
    void restoreSize();

    State state; // outlives the panes
    std::unique_ptr<SettingsDocument> document;
    QList<hints::Hint> found; // hints of the settings as they are
    QHash<QString, QStringList>
        ofPaper;      // what else is wrong, by documents that were shown with them
    Values ofPaperBy; // the settings that it was found with
    QTimer pause;     // gathers the edits of a moment into one run

    Panes *panes = nullptr;
    QListWidget *documents = nullptr;
    QTabWidget *tabs = nullptr;
    QStackedWidget *pages = nullptr; // of the first tab
    FormPane *form = nullptr;
    UnreadPane *unread = nullptr;
    ExpertPane *expert = nullptr;
    PaperPane *paper = nullptr;
};

} // namespace korvel::settings

// The window: the settings at the left, the paper at the right.
#pragma once

#include "companions/settings/document.h"
#include "companions/settings/state.h"
#include "companions/shared/rendering.h"

#include <QMainWindow>
#include <QTimer>

#include <memory>

class QAction;
class QComboBox;
class QLabel;
class QSplitter;

namespace korvel::vocabulary {
struct Method;
}

namespace korvel::settings {

class ExpertPane;
class PaperView;

/**
 * Edits one settings file, and shows what the renderer makes of it before anything is saved.
 *
 * The tree is the view that the settings store gives, values edited in place. Each edit can be
 * undone, and starts the renderer on the chosen job, and the paper follows.
 */
class SettingsWindow : public QMainWindow
{
    Q_OBJECT

public:
    /**
     * @param file     path of the settings file; one that does not exist is made when saved
     * @param renderer path of korvel-print
     */
    SettingsWindow(const QString &file, const QString &renderer);
    ~SettingsWindow() override;

    /// Reads the file. Where there is none, offers the sample settings.
    void begin();

    /// The command stream of the paper; empty while a message stands in its place.
    [[nodiscard]] QByteArray shownStream() const { return shown; }

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void buildPanes();
    void open();
    void load();
    bool save();
    void revert();
    bool mayDiscardEdits();
    void tell(const QString &text);
    bool ask(const QString &question, const QStringList &details, const QString &goOn);
    void offerSample();
    [[nodiscard]] const korvel::vocabulary::Method *methodAt(int row) const;
    void openGroup();
    void edited();
    void refresh();
    void chooseJob(int index);
    void chooseJobFile();
    void showRendered(const shared::Rendered &rendered);
    void updateTitle();
    void restoreSize();

    State state; // outlives the panes
    std::unique_ptr<SettingsDocument> document;
    shared::Rendering rendering;
    QTimer pause; // gathers the edits of a moment into one run
    QByteArray job;
    QByteArray shown; // the stream of the paper

    QSplitter *panes = nullptr;
    ExpertPane *expert = nullptr;
    QComboBox *jobs = nullptr;
    PaperView *paper = nullptr;
    QLabel *findings = nullptr;
    QAction *saveAction = nullptr;
    int lastJob = 0; // row of the chooser
};

} // namespace korvel::settings

// The right side of the window: the job, the ruler, the paper, and what is wrong with it.
#pragma once

#include "companions/settings/hints.h"
#include "companions/settings/origins.h"
#include "companions/shared/rendering.h"
#include "vocabulary/methods.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QScrollArea;
class QSplitter;

namespace korvel::settings {

class FindingsList;
class PaperView;
class Ruler;
class State;

/**
 * Shows what the renderer makes of a job by the settings as they are. Jobs of the user's own are
 * remembered as long as the pane is there.
 */
class PaperPane : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param settings outlive the pane
     * @param renderer path of korvel-print
     */
    PaperPane(State &settings, const QString &renderer, QWidget *parent = nullptr);

    /// Shows the sample job of a document.
    void showDocument(const vocabulary::Method &method);

    /// Asks for a job file; see fileChosen().
    void chooseJobFile();

    /// Shows a job file; why it cannot be read, in one line, empty when it can.
    QString openJob(const QString &path);

    /// Renders the job by these settings. @param found hints of them
    void refresh(const QByteArray &newSettings, const QList<hints::Hint> &found);

    /// Lights what a setting makes on the paper; nothing for an empty path.
    void lightSetting(const QStringList &setting);

    /// Puts the pane behind a widget in the order of the Tab key.
    void followInTabOrder(QWidget *widget);

    // Zoom.
    void zoomBy(double factor);
    void zoomToActualSize();
    void setFitsWidth(bool fits);
    [[nodiscard]] bool fitsWidth() const { return fitting; }

    /// The command stream of the paper; empty while a message stands in its place.
    [[nodiscard]] const QByteArray &stream() const { return shown; }

    /// The rows of the paper; none while a message stands in its place.
    [[nodiscard]] const QList<preview::PaperRow> &paperRows() const { return rows; }

    /// The document that the shown job is of; null when it is of none.
    [[nodiscard]] const vocabulary::Method *method() const { return shownMethod; }

    bool eventFilter(QObject *watched, QEvent *event) override;

signals:
    /// A setting was chosen on the paper or in the list of findings.
    void settingChosen(const QStringList &setting);

    /// The user opened a job of another document.
    void documentChosen(const QString &method);

    /// A job of the user's own is shown.
    void jobOpened();

    /// The user chose a file, to be shown if it is a job.
    void fileChosen(const QString &path);

    void failed(const QString &text);

    /// What is wrong with the shown job and its paper, beside its settings; nothing for none.
    void found(const QStringList &texts);

    /// A line for the status bar.
    void said(const QString &text);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void chooseJob(int index);
    void reopenJob(int index);
    [[nodiscard]] int shownJob() const;
    void render();
    void showRendered(const shared::Rendered &rendered);
    void listFindings(const QString &byRenderer);
    void partRoom();
    void showLit();
    void chooseRow(int row, int column);
    void showMakers(int row, const QList<QStringList> &makers);
    void updateScale();

    State &state;
    shared::Rendering rendering;
    Origins origins;
    QTimer pause; // until what is lit is looked for anew
    QByteArray settings;
    QList<hints::Hint> hintsFound;
    QByteArray job;
    QString jobPath; // of the user's own; empty for a sample
    QByteArray shown;
    QList<preview::PaperRow> rows;
    const vocabulary::Method *sampleMethod = nullptr; // whose sample was chosen last
    const vocabulary::Method *shownMethod = nullptr;
    QStringList litSetting;
    int clickedColumn = 0;
    bool fitting = true;
    bool isParted = false; // by the user: paper and findings

    QComboBox *jobs;
    Ruler *ruler;
    PaperView *paper;
    QScrollArea *scroll;
    QSplitter *parts; // paper and findings
    FindingsList *findings;
};

} // namespace korvel::settings

// The paper follows the settings, and leads to them.
#include "companions/settings/paperpane.h"

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/preview/findings.h"
#include "companions/settings/fields.h"
#include "companions/settings/jobs.h"
#include "companions/settings/paperview.h"
#include "companions/settings/ruler.h"
#include "companions/settings/state.h"
#include "vocabulary/paper.h"

#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::settings {

namespace {

constexpr int settingRole = Qt::UserRole;
constexpr int rowRole = Qt::UserRole + 1;
constexpr int mostFindings = 20;

/// A finding in words, by its line of the paper: nobody who looks at paper counts bytes.
QString wordsOf(const preview::Finding &finding, const QList<preview::PaperRow> &rows)
{
    if (finding.code == preview::Code::TooWide && finding.row > 0)
        return PaperPane::tr("Line %1 is wider than the paper: %2 characters, of %3.")
            .arg(finding.row)
            .arg(rows.value(finding.row - 1).text.size())
            .arg(vocabulary::lineWidth);
    static const QRegularExpression bytes(
        u" ((that begins |opened )?at byte \\d+|\\((byte|octet) \\d+\\))"_s,
        QRegularExpression::CaseInsensitiveOption);
    const QString text = QString(finding.text).remove(bytes);
    return finding.row > 0 ? PaperPane::tr("Line %1: %2").arg(finding.row).arg(text) : text;
}

} // namespace

PaperPane::PaperPane(State &theSettings, const QString &renderer, QWidget *parent)
    : QWidget(parent)
    , state(theSettings)
    , rendering(renderer)
    , origins(renderer)
    , jobs(new QComboBox)
    , ruler(new Ruler)
    , paper(new PaperView)
    , scroll(new QScrollArea)
    , findings(new QListWidget)
{
    build();
    pause.setSingleShot(true);
    pause.setInterval(150ms);
    connect(&pause, &QTimer::timeout, this, [this] {
        if (!litSetting.isEmpty())
            origins.findRows(litSetting);
    });
    connect(&rendering, &shared::Rendering::ended, this, &PaperPane::showRendered);
    connect(&origins, &Origins::makersFound, this, &PaperPane::showMakers);
    connect(&origins, &Origins::rowsFound, this,
            [this](const QStringList &setting, const QList<int> &found) {
                if (setting != litSetting) // the light went elsewhere meanwhile
                    return;
                std::optional<Span> span;
                for (const ColumnEdge &edge : ruler->edges()) {
                    if (edge.setting == setting)
                        span = edge.span;
                }
                paper->light(found, span);
            });
    connect(paper, &PaperView::rowChosen, this, &PaperPane::chooseRow);
    connect(ruler, &Ruler::dragged, this, [this](const auto &setting, int value, int move) {
        state.set(setting, QString::number(value), move);
    });
}

void PaperPane::build()
{
    auto *layout = new QVBoxLayout(this);
    auto *label = new QLabel(tr("&Job:"));
    jobs->setObjectName(u"jobs"_s);
    jobs->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    jobs->setMinimumContentsLength(12);
    jobs->addItem(tr("Sample of the shop"));
    jobs->insertSeparator(1);
    jobs->addItem(tr("Open a job file …"));
    label->setBuddy(jobs);
    auto *chooser = new QHBoxLayout;
    chooser->addWidget(label);
    chooser->addWidget(jobs, 1);
    layout->addLayout(chooser);
    connect(jobs, &QComboBox::activated, this, &PaperPane::chooseJob);

    paper->setObjectName(u"paper"_s);
    ruler->setObjectName(u"ruler"_s);
    scroll->setWidget(paper);
    scroll->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    scroll->setBackgroundRole(QPalette::Mid);
    QPalette table = scroll->palette(); // what runs over the edge is red, whatever the theme is
    table.setColor(QPalette::Mid, QColor(0xb8, 0xb8, 0xb8));
    scroll->setPalette(table);
    scroll->setFocusPolicy(Qt::NoFocus);
    paper->installEventFilter(this);
    connect(scroll->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &PaperPane::updateScale);
    layout->addWidget(ruler);
    layout->addWidget(scroll, 1);

    findings->setObjectName(u"findings"_s);
    findings->setAccessibleName(tr("What is wrong"));
    findings->setWordWrap(true);
    findings->setMaximumHeight(4 * findings->fontMetrics().lineSpacing() + 8);
    connect(findings, &QListWidget::itemActivated, this, &PaperPane::chooseFinding);
    connect(findings, &QListWidget::itemClicked, this, &PaperPane::chooseFinding);
    layout->addWidget(findings);
    layout->setContentsMargins(4, 4, 4, 4);
}

void PaperPane::chooseFinding(const QListWidgetItem *item)
{
    if (const QStringList setting = item->data(settingRole).toStringList(); !setting.isEmpty())
        emit settingChosen(setting);
    else if (const int row = item->data(rowRole).toInt(); row >= 0)
        chooseRow(row, 0);
}

void PaperPane::showDocument(const vocabulary::Method &method)
{
    sampleMethod = shownMethod = &method;
    jobs->setCurrentIndex(0);
    jobPath.clear();
    job = resource(u":/examples/jobs/"_s + method.sample + u".xml"_s);
    litSetting.clear();
    render();
}

void PaperPane::chooseJob(int index)
{
    const QString path = jobs->itemData(index).toString();
    if (index == jobs->count() - 1)
        chooseJobFile();
    else if (!path.isEmpty())
        reopenJob(index);
    else if (sampleMethod)
        showDocument(*sampleMethod);
}

/// Shows a job that was opened before. One that cannot be read any more is listed no longer; where
/// its paper is the one that is shown, the sample takes its place.
void PaperPane::reopenJob(int index)
{
    const QString path = jobs->itemData(index).toString();
    const QString error = openJob(path);
    if (error.isEmpty())
        return;
    jobs->removeItem(index);
    if (path == jobPath && sampleMethod)
        showDocument(*sampleMethod);
    else
        jobs->setCurrentIndex(shownJob());
    emit failed(error);
}

/// The entry of the job that is shown.
int PaperPane::shownJob() const { return jobPath.isEmpty() ? 0 : jobs->findData(jobPath); }

void PaperPane::chooseJobFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Choose a job"), QString(),
                                                      tr("Jobs (*.xml);;All files (*)"));
    jobs->setCurrentIndex(shownJob());
    if (!path.isEmpty())
        emit fileChosen(path);
}

QString PaperPane::openJob(const QString &path)
{
    QString error;
    const auto bytes = fileBytes(path, error);
    if (!bytes)
        return error;
    int index = jobs->findData(path);
    if (index < 0) {
        index = 1;
        jobs->insertItem(index, QFileInfo(path).fileName(), path);
        jobs->setItemData(index, path, Qt::ToolTipRole);
    }
    if (const vocabulary::Method *found = methodOf(*bytes)) {
        shownMethod = found;
        emit documentChosen(QString(found->name)); // which shows its sample
    }
    jobs->setCurrentIndex(index);
    jobPath = path;
    job = *bytes;
    render();
    return {};
}

void PaperPane::refresh(const QByteArray &newSettings, const QList<hints::Hint> &found)
{
    settings = newSettings;
    hintsFound = found;
    render();
}

void PaperPane::render()
{
    ruler->setEdges(shownMethod ? edgesOf(state, *shownMethod) : QList<ColumnEdge>());
    rendering.render(job, settings);
}

void PaperPane::showRendered(const shared::Rendered &rendered)
{
    shown = rendered.stream;
    rows.clear();
    if (rendered.isThere()) {
        rows = preview::paperOf(shown, vocabulary::lineWidth);
        paper->showPaper(rows);
    } else {
        paper->showFailure(rendered);
    }
    origins.begin(job, settings, rows);
    if (!litSetting.isEmpty() && rendered.isThere())
        pause.start();
    listFindings(rendered.isThere() ? rendered.said : QString());
    updateScale();
}

void PaperPane::addFinding(const QString &text, const QStringList &setting, int row)
{
    if (findings->count() > mostFindings)
        return;
    auto *item = new QListWidgetItem(findings->count() == mostFindings ? u"…"_s : text, findings);
    item->setData(settingRole, setting);
    item->setData(rowRole, row);
}

/// What the settings of the shown document have, then what the checker says of the user's job, then
/// the paper.
void PaperPane::listFindings(const QString &byRenderer)
{
    findings->clear();
    if (!byRenderer.isEmpty())
        addFinding(byRenderer, {});
    for (const hints::Hint &hint : std::as_const(hintsFound)) {
        const QString group = hint.setting.value(1);
        if (hint.isUnread
            || (!hint.isOfAll && shownMethod && group != shownMethod->group
                && group != vocabulary::group::language))
            continue;
        const QString key = hint.setting.value(2);
        addFinding(key.isEmpty() ? hint.text : fields::titleOf(key) + u": "_s + hint.text,
                   hint.setting);
    }
    if (!jobPath.isEmpty()) {
        const check::SettingsFile file(settings);
        for (const check::Finding &finding : check::checkJob(job, &file))
            addFinding(tr("Job, line %1: %2").arg(finding.place.line).arg(finding.text), {});
    }
    if (!rows.isEmpty()) {
        for (const preview::Finding &finding : preview::findings(shown, vocabulary::lineWidth))
            addFinding(wordsOf(finding, rows), {}, static_cast<int>(finding.row) - 1);
    }
    findings->setVisible(findings->count() > 0);
}

void PaperPane::lightSetting(const QStringList &setting)
{
    litSetting = setting;
    paper->light({});
    if (!setting.isEmpty() && !rows.isEmpty())
        pause.start();
}

void PaperPane::chooseRow(int row, int column)
{
    if (!shownMethod)
        return;
    QList<QStringList> asked;
    for (const vocabulary::Setting &setting : vocabulary::settings()) {
        if ((setting.documents & shownMethod->document) != 0)
            asked.append(fields::pathOf(shownMethod->group, setting.key));
    }
    asked.append(fields::pathOf(vocabulary::group::language, vocabulary::language::file));
    clickedColumn = column;
    pause.stop();
    origins.findMakers(row, asked);
}

/// Goes to the setting that made a line: of several columns, to the one that was clicked.
void PaperPane::showMakers(int row, const QList<QStringList> &makers)
{
    if (makers.isEmpty()) {
        paper->light({row});
        emit said(tr("Line %1 of the paper is made by no setting.").arg(row + 1));
        return;
    }
    QStringList best = makers.constFirst();
    const fields::Field *field = fields::find(best.constLast());
    if (field && field->section == fields::Section::Columns) {
        for (const ColumnEdge &edge : ruler->edges()) {
            if (makers.contains(edge.setting) && clickedColumn >= edge.span.from
                && clickedColumn < edge.span.to) {
                best = edge.setting;
                break;
            }
        }
    }
    litSetting.clear();
    emit settingChosen(best);
}

void PaperPane::followInTabOrder(QWidget *widget)
{
    if (!widget)
        return;
    setTabOrder(widget, jobs);
    setTabOrder(jobs, paper);
    setTabOrder(paper, findings);
}

void PaperPane::zoomBy(double factor)
{
    fitting = false;
    paper->setZoom(paper->zoom() * factor);
    updateScale();
}

void PaperPane::zoomToActualSize()
{
    fitting = false;
    paper->setZoom(1);
    updateScale();
}

void PaperPane::setFitsWidth(bool fits)
{
    fitting = fits;
    updateScale();
}

/// Brings zoom and ruler in line with the paper's place on the screen.
void PaperPane::updateScale()
{
    if (fitting) {
        const int bar = scroll->verticalScrollBar()->sizeHint().width();
        const double fit = paper->zoomForWidth(scroll->width() - bar - 4);
        if (std::abs(fit - paper->zoom()) > 0.005)
            paper->setZoom(std::min(fit, 2.0));
    }
    const int left = paper->mapTo(this, QPoint()).x() - ruler->x();
    ruler->setScale([this, left](int column) { return left + paper->leftOf(column); });
}

bool PaperPane::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == paper && (event->type() == QEvent::Move || event->type() == QEvent::Resize))
        QTimer::singleShot(0, this, &PaperPane::updateScale);
    return false;
}

void PaperPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QTimer::singleShot(0, this, &PaperPane::updateScale);
}

} // namespace korvel::settings

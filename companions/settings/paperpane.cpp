// The paper follows the settings, and leads to them.
#include "companions/settings/paperpane.h"

#include "companions/check/checks.h"
#include "companions/check/settingsfile.h"
#include "companions/settings/fields.h"
#include "companions/settings/findingslist.h"
#include "companions/settings/paperview.h"
#include "companions/settings/ruler.h"
#include "companions/settings/state.h"
#include "vocabulary/paper.h"

#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::settings {

namespace {

/// What the columns take, where they are wider than the paper: their fields and widths.
QString widthsOf(const QList<ColumnEdge> &edges)
{
    bool isWide = false;
    QStringList widths;
    for (const ColumnEdge &edge : edges) {
        const QString &key = edge.setting.constLast();
        isWide = isWide || edge.span.to > vocabulary::lineWidth;
        if (key != vocabulary::key::paperWidth || edge.span.to > vocabulary::lineWidth)
            widths.append(fields::titleOf(key) + u' '
                          + QString::number(edge.span.to - edge.span.from));
    }
    return isWide ? widths.join(u", "_s) + u'.' : QString();
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
    , parts(new QSplitter(Qt::Vertical))
    , findings(new FindingsList)
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
                showLit();
            });
    connect(paper, &PaperView::rowChosen, this, &PaperPane::chooseRow);
    connect(ruler, &Ruler::dragged, this, [this](const auto &setting, int value, int move) {
        state.set(setting, QString::number(value), move);
    });
    connect(ruler, &Ruler::asked, this, [this](int column) {
        const int row = scroll->verticalScrollBar()->value() + 1;
        scroll->ensureVisible(qRound(paper->leftOf(column)), row, scroll->width() / 4, 0);
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

    scroll->setMinimumHeight(2 * fontMetrics().lineSpacing());
    findings->setObjectName(u"findings"_s);
    connect(findings, &FindingsList::settingChosen, this, &PaperPane::settingChosen);
    connect(findings, &FindingsList::rowChosen, this, [this](int row) { chooseRow(row, 0); });
    parts->addWidget(scroll);
    parts->addWidget(findings);
    parts->setStretchFactor(0, 1);
    parts->setChildrenCollapsible(false);
    connect(parts, &QSplitter::splitterMoved, this, [this] { isParted = true; });
    layout->addWidget(parts, 1);
    layout->setContentsMargins(4, 4, 4, 4);
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
    QTimer::singleShot(0, this, &PaperPane::partRoom); // the list has its width then
}

/// What the settings of the shown document have, then what the checker says of the user's job, then
/// the paper.
void PaperPane::listFindings(const QString &byRenderer)
{
    findings->clear();
    for (const hints::Hint &hint : std::as_const(hintsFound)) {
        const QString group = hint.setting.value(1);
        if (hint.isUnread
            || (!hint.isOfAll && shownMethod && group != shownMethod->group
                && group != vocabulary::group::language))
            continue;
        const QString key = hint.setting.value(2);
        findings->add(key.isEmpty() ? hint.text : fields::titleOf(key) + u": "_s + hint.text,
                      hint.setting);
    }
    const int ofSettings = findings->count();
    if (!byRenderer.isEmpty())
        findings->add(byRenderer);
    if (!jobPath.isEmpty()) {
        const check::SettingsFile file(settings);
        for (const check::Finding &finding : check::checkJob(job, &file))
            findings->add(tr("Job, line %1: %2").arg(finding.place.line).arg(finding.text));
    }
    if (!rows.isEmpty())
        findings->addOfPaper(shown, rows, widthsOf(ruler->edges()));
    findings->setVisible(findings->count() > 0);
    emit found(findings->textsFrom(ofSettings));
}

/// Gives the findings the room that they need, up to a part of the pane, unless the user did.
void PaperPane::partRoom()
{
    if (isParted || !findings->isVisible())
        return;
    const int room = parts->height() - parts->handleWidth();
    const int below = std::min(findings->wholeHeight(), room * 2 / 5);
    parts->setSizes({room - below, below});
}

void PaperPane::lightSetting(const QStringList &setting)
{
    litSetting = setting;
    paper->light({});
    if (!setting.isEmpty() && !rows.isEmpty())
        pause.start();
}

/// Scrolls to what is lit, unless some of it is in sight.
void PaperPane::showLit()
{
    const QRect sight = paper->visibleRegion().boundingRect();
    const QList<int> &lit = paper->lit();
    const bool isSeen = std::any_of(lit.begin(), lit.end(), [&](int row) {
        const int middle = paper->placeOf(row).y();
        return sight.top() < middle && middle < sight.bottom();
    });
    if (!lit.isEmpty() && !sight.isEmpty() && !isSeen)
        scroll->ensureVisible(sight.center().x(), paper->placeOf(lit.constFirst()).y(), 0,
                              scroll->height() / 3);
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
    partRoom();
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
    if (watched == paper && event->type() == QEvent::Show)
        QTimer::singleShot(0, this, &PaperPane::showLit);
    return false;
}

void PaperPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    // What it does, the fields do too: in the lowest windows its line is the paper's.
    ruler->setVisible(height() > 9 * fontMetrics().lineSpacing());
    QTimer::singleShot(0, this, &PaperPane::updateScale);
}

} // namespace korvel::settings

// What the window shows, and how its parts follow one another.
#include "companions/settings/window.h"

#include "companions/check/vocabulary.h"
#include "companions/settings/expertpane.h"
#include "companions/settings/fields.h"
#include "companions/settings/formpane.h"
#include "companions/settings/hints.h"
#include "companions/settings/jobs.h"
#include "companions/settings/panes.h"
#include "companions/settings/paperpane.h"
#include "companions/settings/unreadpane.h"

#include <QApplication>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QListWidget>
#include <QMimeData>
#include <QScreen>
#include <QSet>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QTreeWidget>

#include <algorithm>
#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::settings {

namespace {

constexpr int methodRole = Qt::UserRole;

/// Rows of the list behind those of the documents.
int languageRow() { return static_cast<int>(vocabulary::methods().size()); }
int unreadRow() { return languageRow() + 1; }

/// Where catalogues may be: as installed, and as built.
QStringList catalogueFolders(const QString &renderer)
{
    QStringList folders;
    const QDir here = QFileInfo(renderer).absoluteDir();
    for (const QString &place : {u"../share/korvel-print/translations"_s, u"../translations"_s}) {
        const QString folder = QDir::cleanPath(here.filePath(place));
        if (QFileInfo(folder).isDir())
            folders.append(folder);
    }
    return folders;
}

/// Whether a hint is about what a document reads; without one, about the language of the labels.
bool concerns(const hints::Hint &hint, const vocabulary::Method *method)
{
    if (hint.isOfAll)
        return true;
    const QString group = method ? method->group : vocabulary::group::language;
    if (hint.isUnread || hint.setting.value(1) != group)
        return false;
    if (!method)
        return true;
    const vocabulary::Setting *setting = vocabulary::findSetting(hint.setting.value(2));
    return !setting || vocabulary::isRead(*setting, method->document);
}

} // namespace

SettingsWindow::SettingsWindow(const QString &file, const QString &renderer)
    : document(std::make_unique<SettingsDocument>(file))
{
    buildPanes(renderer);
    buildMenus();
    connectPanes();
    restoreSize();
    setAcceptDrops(true);
    statusBar()->setSizeGripEnabled(false);
    pause.setSingleShot(true);
    pause.setInterval(50ms);
    connect(&pause, &QTimer::timeout, this, &SettingsWindow::refresh);
    connect(&state, &State::changed, this, &SettingsWindow::edited);
}

SettingsWindow::~SettingsWindow()
{
    state.disconnect(this);
    delete takeCentralWidget(); // before the state that it shows
}

void SettingsWindow::begin(const QString &named)
{
    QString error;
    const auto bytes = fileBytes(named, error);
    const bool isSettings =
        bytes ? kindOf(*bytes) == FileKind::Settings : !QFileInfo::exists(named);
    if (!named.isEmpty() && isSettings)
        document = std::make_unique<SettingsDocument>(named);
    if (!document->exists())
        offerSample();
    load();
    if (document->exists())
        noteRecent();
    if (!named.isEmpty() && !isSettings)
        openPath(named);
}

QByteArray SettingsWindow::shownStream() const { return paper->stream(); }

void SettingsWindow::buildPanes(const QString &renderer)
{
    documents = new QListWidget;
    documents->setObjectName(u"documents"_s);
    documents->setAccessibleName(tr("Documents"));
    for (const vocabulary::Method &method : vocabulary::methods()) {
        auto *item =
            new QListWidgetItem(fields::capitalised(vocabulary::titleOf(method)), documents);
        item->setData(methodRole, QString(method.name));
    }
    documents->addItem(tr("Language"));
    const int mark = documents->fontMetrics().height();
    documents->setIconSize({mark, mark});
    documents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    documents->setMinimumWidth(std::min(documents->sizeHintForColumn(0) + 2 * mark, 12 * mark));

    form = new FormPane(state, catalogueFolders(renderer));
    form->setObjectName(u"form"_s);
    unread = new UnreadPane(state);
    pages = new QStackedWidget;
    pages->addWidget(form);
    pages->addWidget(unread);
    expert = new ExpertPane(state);
    tabs = new QTabWidget;
    tabs->setObjectName(u"tabs"_s);
    tabs->addTab(pages, tr("&Settings"));
    tabs->addTab(expert, tr("E&xpert"));
    paper = new PaperPane(state, renderer);

    panes = new Panes(documents, tabs, paper);
    setCentralWidget(panes);
}

void SettingsWindow::connectPanes()
{
    connect(documents, &QListWidget::currentRowChanged, this, &SettingsWindow::chooseDocument);
    // Who has no keyboard but the accessibility bus selects, which makes no row the current one.
    connect(documents, &QListWidget::itemSelectionChanged, this, [this] {
        const QList<QListWidgetItem *> selected = documents->selectedItems();
        if (selected.size() == 1 && selected.constFirst() != documents->currentItem())
            documents->setCurrentItem(selected.constFirst());
    });
    connect(tabs, &QTabWidget::currentChanged, paper, [this] {
        if (tabs->currentWidget() != paper) // which may be a tab itself
            paper->lightSetting({});
    });
    // In a narrow window a chosen document's settings are behind the list.
    connect(documents, &QListWidget::itemActivated, this, [this] {
        if (panes->isNarrow())
            panes->bringToFront(pages);
    });
    connect(form, &FormPane::entered, paper, &PaperPane::lightSetting);
    connect(expert, &ExpertPane::entered, paper, &PaperPane::lightSetting);
    connect(paper, &PaperPane::settingChosen, this, &SettingsWindow::chooseSetting);
    connect(paper, &PaperPane::documentChosen, this, [this](const QString &name) {
        for (int row = 0; row < languageRow(); ++row) {
            if (documents->item(row)->data(methodRole) == name)
                documents->setCurrentRow(row);
        }
    });
    connect(paper, &PaperPane::found, this, &SettingsWindow::noteOfPaper);
    connect(paper, &PaperPane::jobOpened, this, [this] { panes->bringToFront(paper); });
    connect(paper, &PaperPane::fileChosen, this, &SettingsWindow::openPath);
    connect(paper, &PaperPane::failed, this, &SettingsWindow::tell);
    connect(paper, &PaperPane::said, this, &SettingsWindow::say);
    connect(statusBar(), &QStatusBar::messageChanged, this, &SettingsWindow::showStatusBar);
}

/// The document in a row of the list; null for the other rows.
const vocabulary::Method *SettingsWindow::methodAt(int row) const
{
    const QListWidgetItem *item = documents->item(row);
    return item ? vocabulary::findMethod(item->data(methodRole).toString()) : nullptr;
}

void SettingsWindow::chooseDocument(int row)
{
    if (!state.view() || row < 0)
        return;
    const vocabulary::Method *method = methodAt(row);
    pages->setCurrentWidget(row == unreadRow() ? static_cast<QWidget *>(unread) : form);
    if (row != unreadRow()) {
        form->showDocument(method);
        paper->followInTabOrder(form->lastField());
        form->refresh(found);
    }
    if (method) {
        expert->openGroup(method->group);
        paper->showDocument(*method);
    } else {
        paper->lightSetting({});
    }
    QTimer::singleShot(0, this, &SettingsWindow::showUnreadRow); // not while the list is clicked
}

/// Goes to the field of a setting, or to its row where the tree is shown.
void SettingsWindow::chooseSetting(const QStringList &setting)
{
    if (tabs->currentWidget() == expert) {
        if (QTreeWidgetItem *row = state.rowOf(setting)) {
            state.view()->setCurrentItem(row->childCount() == 1 ? row->child(0) : row);
            state.view()->setFocus();
            return;
        }
    }
    panes->bringToFront(pages);
    if (form->choose(setting))
        return;
    if (setting.value(1) == vocabulary::group::language) {
        documents->setCurrentRow(languageRow());
        form->choose(setting);
    } else if (const vocabulary::Method *method = paper->method()) {
        documents->setCurrentRow(static_cast<int>(method - vocabulary::methods().begin()));
        form->choose(setting);
    }
}

/// Takes over what stands in a field that is still being edited.
void SettingsWindow::finishEditing()
{
    expert->closeEditor();
    if (QWidget *field = QApplication::focusWidget(); field && form->isAncestorOf(field)) {
        field->clearFocus();
        field->setFocus();
    }
}

void SettingsWindow::edited()
{
    setWindowModified(state.isModified());
    form->refresh(found);
    unread->refresh();
    pause.start();
}

/// Brings the marks and the paper in line with the settings.
void SettingsWindow::refresh()
{
    const QByteArray settings = document->written(*state.view());
    const QTreeWidgetItem *first = State::firstGroup(*state.view());
    if (document->isXml())
        found = {hints::ofXml()};
    else if (first && first->text(0) != vocabulary::group::korvel)
        found = {hints::ofFirstGroup(first->text(0))};
    else
        found = hints::find(settings);
    hints::mark(*state.view(), found);
    form->refresh(found);
    unread->refresh();
    expert->showCurrent();
    forgetPapers();
    markDocuments();
    paper->refresh(settings, found);
}

void SettingsWindow::noteOfPaper(const QStringList &texts)
{
    if (const vocabulary::Method *method = paper->method())
        ofPaper[method->name] = texts;
    markDocuments();
}

/// Forgets what was wrong with papers that may be others now: of the documents whose settings have
/// changed, or all with the language. That of the shown document is looked at anew.
void SettingsWindow::forgetPapers()
{
    const Values now = valuesOf(*state.view());
    QSet<QString> changed; // groups
    const auto noteChanges = [&](const Values &values, const Values &others) {
        for (auto value = values.begin(); value != values.end(); ++value) {
            const auto other = others.find(value.key());
            if (other == others.end() || *other != *value)
                changed.insert(value.key().value(1));
        }
    };
    noteChanges(now, ofPaperBy);
    noteChanges(ofPaperBy, now);
    ofPaperBy = now;
    const bool isOfAll = changed.contains(vocabulary::group::language);
    for (const vocabulary::Method &method : vocabulary::methods()) {
        if (&method != paper->method() && (isOfAll || changed.contains(method.group)))
            ofPaper.remove(method.name);
    }
}

void SettingsWindow::markDocuments()
{
    const QIcon icon = style()->standardIcon(QStyle::SP_MessageBoxWarning);
    for (int row = 0; row < documents->count(); ++row) {
        const vocabulary::Method *method = methodAt(row);
        QStringList texts;
        for (const hints::Hint &hint : std::as_const(found)) {
            if (row != unreadRow() && concerns(hint, method))
                texts.append(hint.text);
        }
        if (method)
            texts += ofPaper.value(method->name);
        if (method && method == paper->method())
            panes->markPaper(texts.isEmpty() ? QIcon() : icon);
        QListWidgetItem *item = documents->item(row);
        item->setIcon(texts.isEmpty() ? QIcon() : icon);
        item->setToolTip(texts.join(u'\n'));
        item->setData(Qt::AccessibleDescriptionRole, texts.join(u". "_s));
    }
    showUnreadRow();
}

/// Lists what nothing reads while there is any, or while it is shown. A hidden row would not do:
/// screen readers find it.
void SettingsWindow::showUnreadRow()
{
    const bool isWanted = unread->count() > 0 || documents->currentRow() == unreadRow();
    if (isWanted && !documents->item(unreadRow()))
        documents->addItem(QString());
    else if (!isWanted)
        delete documents->takeItem(unreadRow());
    if (isWanted)
        documents->item(unreadRow())->setText(tr("Read by nothing (%1)").arg(unread->count()));
}

void SettingsWindow::updateTitle()
{
    setWindowTitle(tr("%1[*] – Korvel settings").arg(QFileInfo(document->path()).fileName()));
    setWindowFilePath(document->path());
}

/// In a low window its line is the fields', unless there is something to say.
void SettingsWindow::showStatusBar()
{
    const bool isLow = height() < 20 * fontMetrics().height();
    statusBar()->setVisible(!isLow || !statusBar()->currentMessage().isEmpty());
}

void SettingsWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    showStatusBar();
}

/// As the window was, as far as the screen has room for it.
void SettingsWindow::restoreSize()
{
    resize(QSize(1180, 760).boundedTo(screen()->availableSize()));
    panes->setSizes({width() * 17 / 100, width() * 40 / 100, width() * 43 / 100});
    const QSettings settings;
    const bool isPlaced = restoreGeometry(settings.value(u"window/geometry"_s).toByteArray());
    panes->loadState(settings.value(u"window/columns"_s).toByteArray());
    const QRect room = screen()->availableGeometry();
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    if (width() > room.width() || height() > room.height())
        resize(size().boundedTo(room.size() - QSize(0, title)));
    if (isPlaced)
        move(std::max(room.left(), std::min(x(), room.right() + 1 - width())),
             std::max(room.top(), std::min(y(), room.bottom() + 1 - height() - title)));
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    if (!mayDiscardEdits()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(u"window/geometry"_s, saveGeometry());
    settings.setValue(u"window/columns"_s, panes->savedState());
    event->accept();
}

void SettingsWindow::dragEnterEvent(QDragEnterEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.size() == 1 && urls.constFirst().isLocalFile())
        event->acceptProposedAction();
}

void SettingsWindow::dropEvent(QDropEvent *event)
{
    const QList<QUrl> urls = event->mimeData()->urls();
    if (urls.isEmpty())
        return;
    event->acceptProposedAction();
    openPath(urls.constFirst().toLocalFile());
}

} // namespace korvel::settings

// The window's panes, menus and questions.
#include "companions/settings/window.h"

#include "companions/check/vocabulary.h"
#include "companions/paper/paper.h"
#include "companions/preview/findings.h"
#include "companions/settings/expertpane.h"
#include "companions/settings/hints.h"
#include "companions/settings/paperview.h"
#include "printer/company/commands.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::settings {

namespace {

/// A document's title as the chooser shows it.
QString titleOf(const vocabulary::Method &method)
{
    QString title = QCoreApplication::translate("documents", method.title.data());
    title[0] = title[0].toUpper();
    return title;
}

QByteArray resource(const QString &name)
{
    QFile file(u":/examples/"_s + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

SettingsWindow::SettingsWindow(const QString &file, const QString &renderer)
    : document(std::make_unique<SettingsDocument>(file))
    , rendering(renderer)
{
    buildPanes();
    buildMenus();
    restoreSize();
    pause.setSingleShot(true);
    pause.setInterval(50ms);
    connect(&pause, &QTimer::timeout, this, &SettingsWindow::refresh);
    connect(&rendering, &shared::Rendering::ended, this, &SettingsWindow::showRendered);
    connect(&state, &State::changed, this, &SettingsWindow::edited);
    connect(&state.history(), &QUndoStack::cleanChanged, this,
            [this](bool clean) { setWindowModified(!clean); });
}

SettingsWindow::~SettingsWindow()
{
    state.disconnect(this);
    state.history().disconnect(this);
    delete takeCentralWidget(); // before the state that it shows
}

void SettingsWindow::begin()
{
    if (!document->exists())
        offerSample();
    load();
}

void SettingsWindow::buildPanes()
{
    expert = new ExpertPane(state);
    auto *right = new QWidget;
    auto *paperPane = new QVBoxLayout(right);
    auto *label = new QLabel(tr("&Document:"));
    jobs = new QComboBox;
    jobs->setObjectName(u"jobs"_s);
    for (const vocabulary::Method &method : vocabulary::methods())
        jobs->addItem(titleOf(method), QString(method.name));
    jobs->insertSeparator(jobs->count());
    jobs->addItem(tr("Job file …"));
    label->setBuddy(jobs);
    auto *chooser = new QHBoxLayout;
    chooser->addWidget(label);
    chooser->addWidget(jobs, 1);
    paperPane->addLayout(chooser);

    paper = new PaperView;
    paper->setObjectName(u"paper"_s);
    auto *scroll = new QScrollArea;
    scroll->setWidget(paper);
    scroll->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    scroll->setBackgroundRole(QPalette::Mid);
    paperPane->addWidget(scroll, 1);
    findings = new QLabel;
    findings->setObjectName(u"findings"_s);
    findings->setWordWrap(true);
    findings->setTextFormat(Qt::PlainText);
    paperPane->addWidget(findings);

    panes = new QSplitter;
    panes->addWidget(expert);
    panes->addWidget(right);
    panes->setStretchFactor(0, 2);
    panes->setStretchFactor(1, 3);
    panes->setSizes({400, 600});
    panes->setChildrenCollapsible(false);
    setCentralWidget(panes);

    lastJob = jobs->findData(QString(vocabulary::method::printFullOrderReceipt));
    jobs->setCurrentIndex(lastJob);
    job = resource(u"jobs/"_s + methodAt(lastJob)->sample + u".xml"_s);
    connect(jobs, &QComboBox::activated, this, &SettingsWindow::chooseJob);
}

void SettingsWindow::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    const auto add = [&](const QString &text, const QKeySequence &shortcut, auto slot) {
        QAction *action = file->addAction(text);
        action->setShortcut(shortcut);
        connect(action, &QAction::triggered, this, slot);
        return action;
    };
    add(tr("&Open …"), QKeySequence::Open, &SettingsWindow::open);
    saveAction = add(tr("&Save"), QKeySequence::Save, &SettingsWindow::save);
    add(tr("&Revert"), QKeySequence::Refresh, &SettingsWindow::revert);
    file->addSeparator();
    add(tr("&Quit"), Qt::CTRL | Qt::Key_Q, [this] { close(); });

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = state.history().createUndoAction(this, tr("&Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = state.history().createRedoAction(this, tr("&Redo"));
    redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    edit->addActions({undo, redo});
}

void SettingsWindow::open()
{
    if (!mayDiscardEdits())
        return;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open settings"),
                                                      QFileInfo(document->path()).absolutePath(),
                                                      tr("Settings (*.conf *.cfg);;All files (*)"));
    if (path.isEmpty())
        return;
    document = std::make_unique<SettingsDocument>(path);
    load();
}

void SettingsWindow::load()
{
    if (const QString error = document->readError(); !error.isEmpty())
        tell(error);
    state.begin(document->read(), document->path());
    expert->showView();
    openGroup();
    state.view()->setFocus();
    setWindowModified(false);
    updateTitle();
    refresh();
}

bool SettingsWindow::save()
{
    expert->closeEditor();
    if (document->hasChanged()
        && !ask(tr("The file was changed by another program since it was opened."), {},
                tr("Save all the same")))
        return false;
    const QStringList losses = document->losses(*state.view());
    if (!losses.isEmpty() && !ask(tr("Not everything can be saved."), losses, tr("Save the rest")))
        return false;
    if (const QString error = document->save(*state.view()); !error.isEmpty()) {
        tell(error);
        return false;
    }
    state.markSaved();
    updateTitle();
    if (!losses.isEmpty())
        load(); // so that the tree shows what was kept
    return true;
}

void SettingsWindow::revert()
{
    if (mayDiscardEdits())
        load();
}

/// Whether unsaved edits may go: there are none, they were saved, or the user gave them up.
bool SettingsWindow::mayDiscardEdits()
{
    expert->closeEditor();
    if (!isWindowModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Settings"),
                    tr("There are edits that are not saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setDefaultButton(QMessageBox::Cancel);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

/// Says what went wrong. Names and values may hold what looks like markup.
void SettingsWindow::tell(const QString &text)
{
    QMessageBox box(QMessageBox::Warning, tr("Settings"), text, QMessageBox::Ok, this);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

/// Asks whether to go on; not to is the default.
bool SettingsWindow::ask(const QString &question, const QStringList &details, const QString &goOn)
{
    const QString text = (QStringList(question) + details).join(u"\n\n"_s);
    QMessageBox box(QMessageBox::Warning, tr("Settings"), text, QMessageBox::Cancel, this);
    box.setTextFormat(Qt::PlainText);
    const QPushButton *yes = box.addButton(goOn, QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == yes;
}

void SettingsWindow::offerSample()
{
    QMessageBox box(QMessageBox::Question, tr("Settings"),
                    tr("There are no settings yet in %1.\nBegin with the sample settings?")
                        .arg(document->path()),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return;
    const QString folder = QFileInfo(document->path()).path();
    if (!QDir().mkpath(folder)) {
        tell(tr("The folder %1 cannot be made.").arg(folder));
        return;
    }
    QFile file(document->path());
    const QByteArray sample = resource(u"korvel.conf"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write(sample) != sample.size() || !file.flush())
        tell(tr("%1 cannot be written: %2").arg(document->path(), file.errorString()));
}

void SettingsWindow::edited() { pause.start(); }

/// The method whose sample stands in a row of the chooser; null for the row of job files.
const vocabulary::Method *SettingsWindow::methodAt(int row) const
{
    return vocabulary::findMethod(jobs->itemData(row).toString());
}

/// Opens the group that the shown document reads.
void SettingsWindow::openGroup()
{
    const vocabulary::Method *method = methodAt(lastJob);
    if (!method)
        return; // the user's own job
    expert->openGroup(method->group);
}

/// Brings the marks and the paper in line with the tree.
void SettingsWindow::refresh()
{
    const QByteArray settings = SettingsDocument::writtenBy(*state.view());
    hints::mark(*state.view(), settings);
    expert->showCurrent();
    rendering.render(job, settings);
}

void SettingsWindow::chooseJob(int index)
{
    const vocabulary::Method *method = methodAt(index);
    if (!method) {
        chooseJobFile();
        return;
    }
    lastJob = index;
    job = resource(u"jobs/"_s + method->sample + u".xml"_s);
    openGroup();
    refresh();
}

void SettingsWindow::chooseJobFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Choose a job"), QString(),
                                                      tr("Jobs (*.xml);;All files (*)"));
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        if (!path.isEmpty())
            tell(tr("%1 cannot be read: %2").arg(path, file.errorString()));
        jobs->setCurrentIndex(lastJob);
        return;
    }
    job = file.readAll();
    lastJob = jobs->currentIndex();
    refresh();
}

void SettingsWindow::showRendered(const shared::Rendered &rendered)
{
    shown = rendered.stream;
    if (!rendered.isThere()) {
        paper->showFailure(rendered);
        findings->clear();
        return;
    }
    paper->showPaper(
        preview::Picture(preview::paperOf(shown, commands::lineWidth), commands::lineWidth));
    QStringList lines;
    if (!rendered.said.isEmpty())
        lines.append(rendered.said);
    for (const preview::Finding &finding : preview::findings(shown, commands::lineWidth)) {
        if (lines.size() == 4) {
            lines.append(u"…"_s);
            break;
        }
        lines.append(finding.text);
    }
    findings->setText(lines.join(u'\n'));
}

void SettingsWindow::updateTitle()
{
    setWindowTitle(tr("%1[*] – Korvel settings").arg(QFileInfo(document->path()).fileName()));
    setWindowFilePath(document->path());
    saveAction->setEnabled(state.view() != nullptr);
}

void SettingsWindow::restoreSize()
{
    resize(1000, 720);
    const QSettings settings;
    restoreGeometry(settings.value(u"window/geometry"_s).toByteArray());
    panes->restoreState(settings.value(u"window/panes"_s).toByteArray());
}

void SettingsWindow::closeEvent(QCloseEvent *event)
{
    if (!mayDiscardEdits()) {
        event->ignore();
        return;
    }
    QSettings settings;
    settings.setValue(u"window/geometry"_s, saveGeometry());
    settings.setValue(u"window/panes"_s, panes->saveState());
    event->accept();
}

} // namespace korvel::settings

// What the window does to files: the settings, and the paper as a picture.
#include "companions/preview/picture.h"
#include "companions/preview/rollpdf.h"
#include "companions/settings/buttons.h"
#include "companions/settings/expertpane.h"
#include "companions/settings/jobs.h"
#include "companions/settings/paperpane.h"
#include "companions/settings/window.h"
#include "vocabulary/paper.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSaveFile>
#include <QSettings>
#include <QStatusBar>
#include <QTreeWidget>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

constexpr qsizetype mostRecent = 8;
constexpr int messageTime = 8000; // milliseconds
constexpr int receiptRow = 2;     // what most shops print most comes first

/// The paper as a file's bytes, by the end of its name; why there are none.
QByteArray pictureOf(const QList<preview::PaperRow> &rows, const QString &path, QString &error)
{
    if (!path.endsWith(".png"_L1, Qt::CaseInsensitive)) {
        preview::RollPdf pdf(vocabulary::lineWidth, preview::Look::plain(),
                             QFileInfo(path).completeBaseName());
        pdf.add([&](const preview::Roll::TakeRow &take) {
            for (const preview::PaperRow &row : rows)
                take(row);
        });
        return pdf.end();
    }
    const preview::Picture picture(rows, vocabulary::lineWidth);
    if (!picture.fitsImage()) {
        error = SettingsWindow::tr("The paper is too large for a picture; a PDF can hold it.");
        return {};
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.toImage().save(&buffer, "PNG");
    return bytes;
}

} // namespace

void SettingsWindow::open()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open settings"),
                                                      QFileInfo(document->path()).absolutePath(),
                                                      tr("Settings (*.conf *.cfg);;All files (*)"));
    if (!path.isEmpty())
        openPath(path);
}

/// Opens settings, and shows a job. What was open stays where a file is neither or cannot be read.
void SettingsWindow::openPath(const QString &path)
{
    QString error;
    const auto bytes = fileBytes(path, error);
    const FileKind kind = bytes ? kindOf(*bytes) : FileKind::Other;
    if (bytes && kind == FileKind::Other)
        error = tr("%1 is neither settings nor a job. Choose a settings file such as korvel.conf, "
                   "or a job in XML.")
                    .arg(path);
    else if (kind == FileKind::Job)
        error = paper->openJob(path);
    tell(error);
    if (kind != FileKind::Settings || !mayDiscardEdits())
        return;
    document = std::make_unique<SettingsDocument>(path);
    load();
    noteRecent();
}

void SettingsWindow::noteRecent()
{
    QSettings settings;
    QStringList paths = settings.value(u"recent"_s).toStringList();
    const QString path = QFileInfo(document->path()).absoluteFilePath();
    paths.removeAll(path);
    paths.prepend(path);
    settings.setValue(u"recent"_s, paths.first(std::min(paths.size(), mostRecent)));
}

void SettingsWindow::load()
{
    if (const QString error = document->readError(); !error.isEmpty())
        tell(error);
    state.begin(document->read(), document->path());
    expert->showView();
    setWindowModified(false);
    updateTitle();
    found.clear();
    if (paper->method())
        chooseDocument(documents->currentRow());
    else
        documents->setCurrentRow(receiptRow);
    refresh();
}

bool SettingsWindow::save()
{
    finishEditing();
    if (document->hasChanged()
        && !ask(tr("The file was changed by another program since it was opened."), {},
                tr("Save all the same")))
        return false;
    const QStringList losses = document->losses(*state.view());
    if (!losses.isEmpty()
        && !ask(tr("Not everything can be saved."), losses, tr("Save all the same")))
        return false;
    if (const QString error = document->save(*state.view()); !error.isEmpty()) {
        tell(error);
        return false;
    }
    state.markSaved();
    setWindowModified(false);
    updateTitle();
    if (!losses.isEmpty())
        load(); // so that the tree shows what was kept
    say(tr("Saved: %1").arg(document->path()));
    return true;
}

void SettingsWindow::saveAs()
{
    finishEditing();
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the settings as"), document->path(),
                                     tr("Settings (*.conf *.cfg);;All files (*)"));
    if (path.isEmpty())
        return;
    const SettingsDocument before = *document;
    document->moveTo(path);
    if (save())
        noteRecent();
    else
        *document = before;
    updateTitle();
    refresh(); // the renderer may read another notation now
}

void SettingsWindow::revert()
{
    if (mayDiscardEdits())
        load();
}

/// Whether unsaved edits may go: there are none, they were saved, or the user gave them up.
bool SettingsWindow::mayDiscardEdits()
{
    finishEditing();
    if (!isWindowModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Settings"),
                    tr("There are edits that are not saved."),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    nameButtons(box);
    box.setDefaultButton(QMessageBox::Cancel);
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void SettingsWindow::exportPaper()
{
    const QList<preview::PaperRow> &rows = paper->paperRows();
    if (rows.isEmpty()) {
        tell(tr("There is no paper."));
        return;
    }
    const QString path = exportPath();
    if (path.isEmpty())
        return;
    QString error;
    const QByteArray bytes = pictureOf(rows, path, error);
    QSaveFile file(path);
    if (error.isEmpty()
        && (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()
            || !file.commit()))
        error = tr("%1 cannot be written: %2").arg(path, file.errorString());
    tell(error);
    if (error.isEmpty())
        say(tr("Exported: %1").arg(path));
}

/// Where the paper is to go, a PDF or a picture by the end of the name; empty for nowhere.
QString SettingsWindow::exportPath()
{
    QFileDialog dialog(this, tr("Export the paper"), QString(), tr("PDF (*.pdf);;PNG (*.png)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(u"pdf"_s);
    connect(&dialog, &QFileDialog::filterSelected, &dialog, [&dialog](const QString &filter) {
        dialog.setDefaultSuffix(filter.contains(".png"_L1) ? u"png"_s : u"pdf"_s);
    });
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

/// Says what was done, as long as it takes to read it.
void SettingsWindow::say(const QString &text) { statusBar()->showMessage(text, messageTime); }

/// Says what went wrong, if anything did. Names and values may hold what looks like markup.
void SettingsWindow::tell(const QString &text)
{
    if (text.isEmpty())
        return;
    QMessageBox box(QMessageBox::Warning, tr("Settings"), text, QMessageBox::Ok, this);
    nameButtons(box);
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
    nameButtons(box);
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
    nameButtons(box);
    box.setDefaultButton(QMessageBox::Yes);
    if (box.exec() != QMessageBox::Yes)
        return;
    const QString folder = QFileInfo(document->path()).path();
    if (!QDir().mkpath(folder)) {
        tell(tr("The folder %1 cannot be made.").arg(folder));
        return;
    }
    QFile file(document->path());
    const QByteArray sample = resource(u":/examples/korvel.conf"_s);
    if (!file.open(QIODevice::WriteOnly) || file.write(sample) != sample.size() || !file.flush())
        tell(tr("%1 cannot be written: %2").arg(document->path(), file.errorString()));
}

} // namespace korvel::settings

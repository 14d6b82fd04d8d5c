// Which job is shown: the sample of a document, or one of the user's own.
#include "companions/settings/jobs.h"
#include "companions/settings/paperpane.h"

#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

void PaperPane::showDocument(const vocabulary::Method &method)
{
    if (!jobPath.isEmpty()) // what is wrong with that job stays with no document
        emit found({});
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
    emit jobOpened();
    return {};
}

} // namespace korvel::settings

// One run of the renderer after the other, the latest request first.
#include "companions/settings/rendering.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <chrono>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::settings {

namespace {

const auto settingsName = u".korvel/conf/korvel.conf"_s;
const auto jobName = u"job.xml"_s;
const auto streamName = u"stream.out"_s;

} // namespace

Rendering::Rendering(QString program, QObject *parent)
    : QObject(parent)
    , renderer(std::move(program))
{
    patience.setSingleShot(true);
    patience.setInterval(10s);
    connect(&patience, &QTimer::timeout, &process, &QProcess::kill);
    connect(&process, &QProcess::finished, this, &Rendering::finish);
    connect(&process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            giveUp(tr("The renderer %1 cannot be started.").arg(renderer));
    });
}

Rendering::~Rendering()
{
    process.disconnect(this);
    process.kill();
    process.waitForFinished();
}

QString Rendering::findRenderer()
{
    const QString name = u"korvel-print"_s;
    const QDir here(QCoreApplication::applicationDirPath());
    for (const QString &folder : {here.path(), here.filePath(u"../../app"_s)}) {
        const QFileInfo program(folder + u'/' + name);
        if (program.isFile() && program.isExecutable())
            return program.canonicalFilePath();
    }
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? name : found;
}

void Rendering::render(const QByteArray &job, const QByteArray &settings)
{
    next = Request{job, settings};
    if (process.state() == QProcess::NotRunning)
        start(*std::exchange(next, std::nullopt));
    else
        process.kill();
}

void Rendering::start(const Request &request)
{
    if (!home.isValid() || !QDir(home.path()).mkpath(QFileInfo(settingsName).path())
        || !write(settingsName, request.settings) || !write(jobName, request.job)) {
        giveUp(tr("The temporary folder cannot be written."));
        return;
    }
    QFile::remove(home.filePath(streamName));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, home.path());
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home.path());
    process.setStandardInputFile(QProcess::nullDevice());
    patience.start();
    process.start(renderer, {jobName, streamName});
}

void Rendering::finish(int status, QProcess::ExitStatus exit)
{
    patience.stop();
    if (next) {
        start(*std::exchange(next, std::nullopt));
        return;
    }
    QFile stream(home.filePath(streamName));
    if (exit != QProcess::NormalExit || status != 0)
        giveUp(tr("The renderer %1 ended with an error.").arg(renderer));
    else if (!stream.open(QIODevice::ReadOnly))
        giveUp(tr("The renderer %1 wrote nothing.").arg(renderer));
    else
        emit rendered(stream.readAll(),
                      QString::fromUtf8(process.readAllStandardOutput()).trimmed());
}

void Rendering::giveUp(const QString &reason)
{
    patience.stop();
    if (next) {
        start(*std::exchange(next, std::nullopt));
        return;
    }
    emit failed(reason);
}

bool Rendering::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(home.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

} // namespace korvel::settings

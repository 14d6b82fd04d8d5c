// One run of the renderer after the other, the latest request first.
#include "companions/shared/rendering.h"

#include "companions/shared/oneline.h"
#include "companions/shared/stopsignals.h"
#include "config/path.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QProcessEnvironment>
#include <QStandardPaths>

#include <chrono>
#include <cstring>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace korvel::shared {

namespace {

using End = Rendered::End;

const QString settingsName = korvel::path::settingsInHome.sliced(1); // without its slash
const auto jobName = u"job.xml"_s;
const auto streamName = u"stream.out"_s;

} // namespace

QString Rendered::reason() const
{
    switch (end) {
    case End::Complete:
        return {};
    case End::Refused:
        return inOneLine(program + u" says: "_s + said, u' ');
    case End::NoRoom:
        return u"the folder for temporary files cannot be written: "_s + inOneLine(said);
    case End::NotStarted:
        if (!program.contains(u'/'))
            return program + u" is not found: install it, or put it beside this program"_s;
        return inOneLine(program) + u" cannot be started: "_s + inOneLine(said);
    case End::Failed:
        return inOneLine(program) + u" ended with status "_s + QString::number(number);
    case End::Killed: {
        const char *const name = ::sigabbrev_np(number);
        return inOneLine(program) + u" was ended by the signal "_s
               + (name ? u"SIG"_s + QLatin1StringView(name) : QString::number(number));
    }
    case End::TooSlow:
        return inOneLine(program) + u" took too long and was stopped"_s;
    case End::NoStream:
        break;
    }
    return inOneLine(program) + u" wrote nothing"_s;
}

Rendering::Rendering(QString program, QObject *parent)
    : QObject(parent)
    , renderer(std::move(program))
{
    // The toolkit's first warning looks for files, and so loses why there was one.
    static_cast<void>(QLoggingCategory::defaultCategory()->isWarningEnabled());
    patience.setSingleShot(true);
    patience.setInterval(10s);
    connect(&patience, &QTimer::timeout, &process, &QProcess::kill);
    connect(&process, &QProcess::finished, this, &Rendering::finish);
    // Queued: what the process does behind this signal would end the next run before it began.
    const auto noteError = [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end({End::NotStarted, {}, process.errorString()});
    };
    connect(&process, &QProcess::errorOccurred, this, noteError, Qt::QueuedConnection);
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
    if (runs)
        process.kill();
    else
        start(*std::exchange(next, std::nullopt));
}

void Rendering::start(const Request &request)
{
    runs = true;
    if (!home.isValid() || !QDir(home.path()).mkpath(QFileInfo(settingsName).path())
        || !write(settingsName, request.settings) || !write(jobName, request.job)) {
        end({End::NoRoom, {}, QDir::tempPath()});
        return;
    }
    QFile::remove(inHome(streamName));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"HOME"_s, inHome({}));
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    patience.start();
    process.start(renderer, {inHome(jobName), inHome(streamName)});
}

void Rendering::finish(int status, QProcess::ExitStatus exit)
{
    const bool tooSlow = !patience.isActive();
    QFile stream(inHome(streamName));
    if (exit == QProcess::CrashExit) {
        end({tooSlow ? End::TooSlow : End::Killed, {}, {}, {}, status}); // the signal
    } else if (status != 0) {
        end({End::Failed, {}, {}, {}, status});
    } else if (!stream.open(QIODevice::ReadOnly)) {
        end({End::NoStream});
    } else {
        const QString said = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
        end({said.isEmpty() ? End::Complete : End::Refused, stream.readAll(), said});
    }
}

/// Goes on with the next request, or gives this one's end.
void Rendering::end(Rendered rendered)
{
    runs = false;
    patience.stop();
    rendered.program = renderer;
    if (next)
        start(*std::exchange(next, std::nullopt));
    else
        emit ended(rendered);
}

QString Rendering::inHome(const QString &name) const
{
    const QDir folder(QDir(home.path()).absolutePath());
    return name.isEmpty() ? folder.path() : folder.filePath(name);
}

bool Rendering::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(inHome(name));
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

Rendered rendered(const QByteArray &job, const QByteArray &settings, const QString &program)
{
    Rendered outcome;
    QEventLoop loop;
    StopSignals stop;
    QObject::connect(&stop, &StopSignals::stopped, &loop, &QEventLoop::quit);
    {
        Rendering rendering(program);
        QObject::connect(&rendering, &Rendering::ended, &loop, [&](const Rendered &ended) {
            outcome = ended;
            loop.quit();
        });
        QTimer::singleShot(0, &rendering, [&] { rendering.render(job, settings); });
        loop.exec();
    }
    stop.obey();
    return outcome;
}

} // namespace korvel::shared

// Runs the renderer in surroundings that no shell would give it, and measures the run.
#pragma once

#include "support/built.h"
#include "support/renderer.h"

#include <QByteArrayList>
#include <QDeadlineTimer>
#include <QFile>

#include <csignal>
#include <functional>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// What a run left behind, and what it took.
struct MeasuredRun : Run
{
    long peakKilobytes = 0; // of memory; a sanitizer's own included
};

/// How the renderer is to be started.
struct Launch
{
    QStringList arguments;
    QString folder;                // working directory
    QStringList variables;         // as runRenderer() takes them
    std::function<void()> prepare; // called in the new process: only what is safe after a fork
    int patience = 60;             // seconds until it is stopped
    static constexpr int notStarted = 127; // exit status when the program could not be started
};

namespace launching {

/// The environment of the test with the variables given changed, as "NAME=value".
inline QByteArrayList environmentWith(const QStringList &variables)
{
    QByteArrayList entries;
    for (char **entry = environ; *entry; ++entry)
        entries.append(*entry);
    for (const QString &variable : variables) {
        const QByteArray bytes = variable.toUtf8();
        const qsizetype equals = bytes.indexOf('=');
        const QByteArray prefix = (equals < 0 ? bytes : bytes.first(equals)) + '=';
        entries.removeIf([&](const QByteArray &entry) { return entry.startsWith(prefix); });
        if (equals >= 0)
            entries.append(bytes);
    }
    return entries;
}

/// Pointers to texts, as the system takes them; valid as long as the texts are.
inline std::vector<char *> pointersTo(QByteArrayList &texts)
{
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

inline QByteArray contentOf(int descriptor)
{
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return {};
    file.seek(0);
    return file.readAll();
}

} // namespace launching

/// Starts the renderer and waits for its end. Standard input is empty; standard output and error
/// are kept unless `prepare` redirects them.
inline MeasuredRun launch(const Launch &how)
{
    QByteArrayList environment = launching::environmentWith(how.variables);
    QByteArrayList arguments{built::print};
    for (const QString &argument : how.arguments)
        arguments.append(QFile::encodeName(argument));
    const auto environmentPointers = launching::pointersTo(environment);
    const auto argumentPointers = launching::pointersTo(arguments);
    const QByteArray folder = QFile::encodeName(how.folder);
    const int out = memfd_create("standard-output", MFD_CLOEXEC);
    const int err = memfd_create("standard-error", MFD_CLOEXEC);
    const int in = open("/dev/null", O_RDONLY | O_CLOEXEC);
    const int program = open(built::print, O_PATH | O_CLOEXEC);

    const pid_t child = fork();
    if (child == 0) {
        // The usual reaction to these signals, whatever the test's own is.
        std::signal(SIGPIPE, SIG_DFL);
        std::signal(SIGXFSZ, SIG_DFL);
        dup2(in, STDIN_FILENO);
        dup2(out, STDOUT_FILENO);
        dup2(err, STDERR_FILENO);
        if (!folder.isEmpty() && chdir(folder.constData()) != 0)
            _exit(Launch::notStarted);
        if (how.prepare)
            how.prepare();
        fexecve(program, argumentPointers.data(), environmentPointers.data());
        _exit(Launch::notStarted);
    }

    MeasuredRun run;
    int status = 0;
    rusage used{};
    pid_t ended = 0;
    for (const QDeadlineTimer deadline(qint64(how.patience) * 1000);
         child > 0 && (ended = wait4(child, &status, WNOHANG, &used)) == 0;) {
        if (deadline.hasExpired()) {
            kill(child, SIGKILL);
            ended = wait4(child, &status, 0, &used);
            break;
        }
        usleep(1000);
    }
    run.exited = ended == child && WIFEXITED(status);
    run.status = run.exited ? WEXITSTATUS(status) : -1;
    run.peakKilobytes = used.ru_maxrss;
    run.standardOutput = launching::contentOf(out);
    run.standardError = launching::contentOf(err);
    close(in);
    close(program);
    return run;
}

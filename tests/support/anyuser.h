// Works as a user whom permissions stop, whoever runs the test.
#pragma once

#include <QByteArray>
#include <QFile>

#include <sys/wait.h>
#include <unistd.h>

/// What a work says that is done in another process, which is no administrator's.
template<typename Work>
QByteArray asAnyUser(const Work &work)
{
    int ends[2] = {-1, -1};
    if (::pipe(ends) != 0)
        return "no pipe";
    const pid_t child = ::fork();
    if (child == 0) {
        constexpr unsigned nobody = 65534;
        QByteArray said = "cannot become another user";
        if (::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0))
            said = QByteArray(work());
        static_cast<void>(!::write(ends[1], said.constData(), size_t(said.size())));
        ::_exit(0);
    }
    ::close(ends[1]);
    QFile out;
    QByteArray said;
    if (out.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        said = out.readAll();
    int status = 0;
    ::waitpid(child, &status, 0);
    return said;
}

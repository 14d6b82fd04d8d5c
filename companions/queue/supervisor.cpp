// A parent that does nothing but wait.
#include "companions/queue/supervisor.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace korvel::queue {

namespace {

volatile std::sig_atomic_t toldToEnd = 0;
volatile std::sig_atomic_t child = 0;

void handle(int signal, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(signal, &action, nullptr);
}

void handOn(int signal)
{
    const int error = errno;
    ::kill(child, signal);
    errno = error;
}

/// From now on the end of the process that started this one is told as a SIGTERM is: whoever would
/// take the job away no longer can.
void endWithParent(pid_t parent)
{
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (::getppid() != parent)
        ::raise(SIGTERM);
}

} // namespace

bool isToldToEnd() { return toldToEnd != 0; }

void noteEnd()
{
    handle(SIGTERM, [](int) { toldToEnd = 1; });
}

int supervised(pid_t caller, const std::function<int()> &work, const std::function<int()> &lost)
{
    // Until each process has its own answer to it, the signal waits.
    sigset_t end;
    sigset_t before;
    sigemptyset(&end);
    sigaddset(&end, SIGTERM);
    ::sigprocmask(SIG_BLOCK, &end, &before);
    const pid_t worker = ::fork();
    if (worker == 0) {
        noteEnd();
        ::sigprocmask(SIG_UNBLOCK, &end, nullptr);
        std::exit(work());
    }
    if (worker < 0)
        return lost();
    child = worker;
    handle(SIGTERM, handOn);
    endWithParent(caller);
    ::sigprocmask(SIG_UNBLOCK, &end, nullptr);
    int status = 0;
    while (::waitpid(worker, &status, 0) < 0 && errno == EINTR) { }
    handle(SIGTERM, SIG_IGN);
    return WIFEXITED(status) ? WEXITSTATUS(status) : lost();
}

} // namespace korvel::queue

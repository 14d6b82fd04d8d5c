// A pipe from the signal handler to the event loop.
#include "companions/shared/stopsignals.h"

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace korvel::shared {

namespace {

constexpr std::array stopping = {SIGHUP, SIGINT, SIGQUIT, SIGTERM};

volatile std::sig_atomic_t came = 0; // the signal
int pipeEnds[2] = {-1, -1};
std::array<struct sigaction, stopping.size()> before;

void note(int signal)
{
    const int error = errno;
    came = signal;
    static_cast<void>(::write(pipeEnds[1], "", 1)); // a full pipe has told it before
    errno = error;
}

} // namespace

StopSignals::StopSignals()
{
    came = 0;
    if (::pipe2(pipeEnds, O_CLOEXEC | O_NONBLOCK) == 0) {
        notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
        connect(notifier.get(), &QSocketNotifier::activated, this, [this] {
            notifier->setEnabled(false);
            emit stopped();
        });
    }
    struct sigaction action = {};
    action.sa_handler = note;
    for (std::size_t i = 0; i < stopping.size(); ++i) {
        ::sigaction(stopping[i], nullptr, &before[i]);
        if (notifier && before[i].sa_handler != SIG_IGN)
            ::sigaction(stopping[i], &action, nullptr);
    }
}

StopSignals::~StopSignals()
{
    for (std::size_t i = 0; i < stopping.size(); ++i)
        ::sigaction(stopping[i], &before[i], nullptr);
    notifier.reset();
    for (int &end : pipeEnds) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void StopSignals::obey()
{
    const int signal = came;
    if (signal == 0)
        return;
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

} // namespace korvel::shared

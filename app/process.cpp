// The process around a run: signals, standard streams, environment.
#include "app/process.h"

#include <csignal>
#include <cstdlib>
#include <exception>
#include <initializer_list>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace korvel::app {

namespace {

void limitMemory()
{
#ifndef __SANITIZE_ADDRESS__ // whose own memory is far beyond
    constexpr rlim_t most = 268'435'456;
    rlimit data{};
    if (getrlimit(RLIMIT_DATA, &data) == 0 && data.rlim_cur > most) {
        data.rlim_cur = most;
        setrlimit(RLIMIT_DATA, &data);
    }
#endif
}

/// Ends the run at once. What was written so far stands.
[[noreturn]] void end() { _exit(0); }

[[maybe_unused, noreturn]] void endOnSignal(int /*signal*/) { end(); }

/// Lets the process end quietly where no exception can: memory runs out in a destructor, or where
/// the toolkit does not look whether it got any; the stack runs out.
void endQuietly()
{
    std::set_terminate(end);
#ifndef __SANITIZE_ADDRESS__ // which has a word to say then
    static char stackOfHandler[16'384];
    stack_t stack{};
    stack.ss_sp = stackOfHandler;
    stack.ss_size = sizeof stackOfHandler;
    sigaltstack(&stack, nullptr);

    struct sigaction action = {};
    action.sa_handler = endOnSignal;
    action.sa_flags = SA_ONSTACK;
    for (const int signal : {SIGABRT, SIGBUS, SIGSEGV})
        sigaction(signal, &action, nullptr);
#endif
}

/// The toolkit has an event loop of another library for a desktop's sake, which ends the process
/// with a message when memory runs out. A run waits for nothing.
void doWithoutEventLoop()
{
    static char variable[] = "QT_NO_GLIB=1";
    putenv(variable); // and where there is no memory for it, there is none for a run
}

void openStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            static_cast<void>(open("/dev/null", O_RDWR)); // takes the lowest number that is free
}

/// Takes the toolkit's variables out of the environment. The toolkit reads some before main, so
/// this comes before main and before any library, sanitizers included, is set up.
__attribute__((no_sanitize("address", "undefined"))) void
forgetToolkitVariables(int /*argc*/, char ** /*argv*/, char **variables)
{
    char **kept = variables;
    for (; *variables; ++variables) {
        const char *name = *variables;
        if (name[0] != 'Q' || name[1] != 'T' || name[2] != '_')
            *kept++ = *variables;
    }
    *kept = nullptr;
}

[[gnu::section(".preinit_array"),
  gnu::used]] void (*const beforeTheLibraries)(int, char **, char **) = forgetToolkitVariables;

} // namespace

void prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    endQuietly();
    openStandardStreams();
    limitMemory();
    doWithoutEventLoop();
}

} // namespace korvel::app

// The process around a run: signals, standard streams, environment.
#include "app/process.h"

#include <csignal>
#include <initializer_list>

#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

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
    openStandardStreams();
    limitMemory();
}

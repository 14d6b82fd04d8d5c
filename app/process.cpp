// The process around a run: signals, standard streams, environment.
#include "app/process.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

void openStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        if (fcntl(stream, F_GETFD) == -1)
            static_cast<void>(open("/dev/null", O_RDWR)); // takes the lowest number that is free
}

void forgetToolkitVariables()
{
    constexpr auto prefix = "QT_";
    std::vector<std::string> names;
    for (char **variable = environ; variable && *variable; ++variable)
        if (std::strncmp(*variable, prefix, std::strlen(prefix)) == 0)
            names.emplace_back(*variable, std::strcspn(*variable, "="));
    for (const std::string &name : names)
        unsetenv(name.c_str());
}

} // namespace

void prepareProcess()
{
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    openStandardStreams();
    forgetToolkitVariables();
}

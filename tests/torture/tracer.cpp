// Following a run and its children by ptrace.
#include "torture/tracer.h"

#include "torture/calls.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <set>

#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#ifndef __x86_64__
#error "registers are changed as x86-64 has them"
#endif

namespace torture {

namespace {

constexpr unsigned patience = 20; // seconds for a run; one that hangs is ended

constexpr long options = PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK
                         | PTRACE_O_TRACECLONE | PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL;

void *asPointer(std::size_t number) { return reinterpret_cast<void *>(number); }

/// What a call means by its arguments is in the program's memory.
template<typename Value>
Value readFrom(pid_t task, unsigned long long address)
{
    Value value = {};
    const iovec here{&value, sizeof value};
    const iovec there{asPointer(address), sizeof value};
    static_cast<void>(::process_vm_readv(task, &here, 1, &there, 1, 0));
    return value;
}

std::string bytesFrom(pid_t task, unsigned long long address, unsigned long long count)
{
    std::string bytes(count, '\0');
    const iovec here{bytes.data(), bytes.size()};
    const iovec there{asPointer(address), bytes.size()};
    return ::process_vm_readv(task, &here, 1, &there, 1, 0) < 0 ? std::string() : bytes;
}

pid_t processOf(pid_t task)
{
    std::ifstream status("/proc/" + std::to_string(task) + "/status");
    for (std::string word; status >> word;) {
        pid_t process = 0;
        if (word == "Tgid:" && status >> process)
            return process;
    }
    return task;
}

std::string pathOf(pid_t task, unsigned long long descriptor)
{
    std::array<char, 4096> path{};
    const std::string link =
        "/proc/" + std::to_string(task) + "/fd/" + std::to_string(int(descriptor));
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    return length > 0 ? std::string(path.data(), std::size_t(length)) : std::string();
}

bool takesDescriptor(long number)
{
    switch (number) {
    case SYS_write:
    case SYS_writev:
    case SYS_pwrite64:
    case SYS_sendto:
    case SYS_fsync:
    case SYS_fdatasync:
    case SYS_ftruncate:
    case SYS_fallocate:
    case SYS_close:
    case SYS_shutdown:
    case SYS_ioctl:
    case SYS_connect:
        return true;
    default:
        return false;
    }
}

/// A run while it is followed.
class Run
{
public:
    Run(const Harm &whatIsDone, const std::function<void(const Call &)> &done)
        : harm(whatIsDone)
        , callBack(done)
    {
    }

    Traced follow(const std::vector<std::string> &command)
    {
        const pid_t program = start(command);
        tasks.insert(program);
        struct sigaction interrupt = {};
        interrupt.sa_handler = [](int) {};
        ::sigaction(SIGALRM, &interrupt, nullptr);
        ::alarm(patience);
        while (!tasks.empty()) {
            int status = 0;
            const pid_t task = ::waitpid(-1, &status, __WALL);
            if (task < 0 && errno == EINTR) {
                traced.hangs = true;
                killAll();
                continue;
            }
            if (task < 0)
                break;
            if (WIFSTOPPED(status)) {
                stopped(task, status);
                continue;
            }
            tasks.erase(task);
            if (task != program)
                continue;
            traced.exited = WIFEXITED(status);
            traced.status = traced.exited ? WEXITSTATUS(status) : -1;
        }
        ::alarm(0);
        return traced;
    }

private:
    void killAll()
    {
        isKilled = true;
        for (const pid_t each : tasks)
            ::kill(processOf(each), SIGKILL);
    }

    static pid_t start(const std::vector<std::string> &command)
    {
        const pid_t program = ::fork();
        if (program == 0) {
            std::vector<char *> arguments;
            for (const std::string &argument : command)
                arguments.push_back(const_cast<char *>(argument.c_str()));
            arguments.push_back(nullptr);
            const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
            ::dup2(nowhere, STDOUT_FILENO);
            ::dup2(nowhere, STDERR_FILENO);
            ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
            ::raise(SIGSTOP);
            ::execv(arguments.front(), arguments.data());
            ::_exit(127);
        }
        int status = 0;
        ::waitpid(program, &status, 0);
        ::ptrace(PTRACE_SETOPTIONS, program, nullptr, options);
        ::ptrace(PTRACE_SYSCALL, program, nullptr, nullptr);
        return program;
    }

    void stopped(pid_t task, int status)
    {
        const int signal = WSTOPSIG(status);
        const bool isNew = tasks.insert(task).second; // which begins with a stop of its own
        int passed = 0;
        if (isKilled) // just made by one that is gone
            ::kill(processOf(task), SIGKILL);
        if (signal == (SIGTRAP | 0x80))
            atCall(task);
        else if (signal != SIGTRAP && !(isNew && signal == SIGSTOP))
            passed = signal == SIGSTOP ? 0 : signal;
        ::ptrace(PTRACE_SYSCALL, task, nullptr, passed);
    }

    void atCall(pid_t task)
    {
        __ptrace_syscall_info info = {};
        if (::ptrace(PTRACE_GET_SYSCALL_INFO, task, sizeof info, &info) <= 0)
            return;
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY)
            before(task, info);
        else if (info.op == PTRACE_SYSCALL_INFO_EXIT)
            behind(task, info);
    }

    void before(pid_t task, const __ptrace_syscall_info &info)
    {
        Call &call = calls[task];
        call = Call();
        call.number = long(info.entry.nr);
        for (int i = 0; i < 6; ++i)
            call.arguments[i] = info.entry.args[i];
        if (takesDescriptor(call.number))
            call.path = pathOf(task, call.arguments[0]);
        call.process = task;
        const char *const name = nameOfChange(call);
        call.isChange = name != nullptr;
        if (!hasBegun) { // up to the call that makes it the program
            hasBegun = call.number == SYS_execve;
            return;
        }
        if (!name || ++traced.changes != harm.before || harm.kind == Harm::Kind::None)
            return;
        traced.isHarmed = true;
        traced.harmed = name + (call.path.empty() ? "" : " " + call.path);
        switch (harm.kind) {
        case Harm::Kind::KillAlone:
            ::kill(processOf(task), SIGKILL);
            break;
        case Harm::Kind::KillAll:
            killAll();
            break;
        case Harm::Kind::Fail:
            if (call.number == SYS_exit_group) // which cannot fail
                break;
            failing = task;
            if (call.number == SYS_close) // closes, whatever it says
                break;
            ::ptrace(PTRACE_POKEUSER, task, asPointer(offsetof(user_regs_struct, orig_rax)), -1L);
            break;
        case Harm::Kind::None:
            break;
        }
    }

    void behind(pid_t task, const __ptrace_syscall_info &info)
    {
        Call &call = calls[task];
        call.result = info.exit.rval;
        if (failing == task) {
            failing = 0;
            call.result = -harm.error;
            ::ptrace(PTRACE_POKEUSER, task, asPointer(offsetof(user_regs_struct, rax)),
                     static_cast<long>(-harm.error));
        }
        if (!callBack)
            return;
        if (asksForBytes(call))
            call.value = readFrom<int>(task, call.arguments[2]);
        if (call.number == SYS_pwrite64)
            call.bytes = bytesFrom(task, call.arguments[1], call.arguments[2]);
        if (call.number == SYS_connect) {
            const auto family = readFrom<sa_family_t>(task, call.arguments[1]);
            call.toNetwork = family == AF_INET || family == AF_INET6;
        }
        if (call.number == SYS_openat)
            call.path = call.result >= 0 ? pathOf(task, std::size_t(call.result)) : "";
        callBack(call);
    }

    const Harm harm;
    const std::function<void(const Call &)> &callBack;
    Traced traced;
    std::set<pid_t> tasks;
    std::map<pid_t, Call> calls; // that each task is in, or was last
    bool hasBegun = false;
    bool isKilled = false; // with all that come
    pid_t failing = 0;     // whose call is to fail
};

} // namespace

Traced trace(const std::vector<std::string> &command, const Harm &harm,
             const std::function<void(const Call &)> &done)
{
    return Run(harm, done).follow(command);
}

} // namespace torture

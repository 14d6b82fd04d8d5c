// Preloaded into a program, lets one of its writes fail.
//
// KORVEL_FAULT_CALL  which call of write() or writev() fails, counted from 1
// KORVEL_FAULT_KIND  "ENOSPC" or "EIO": that call fails and all later ones; with "-once" behind it
//                    that call alone; "EINTR": that call alone; "short": it writes one byte

#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

enum class Fault { None, Error, Short };

/// What is to become of the next call; for an error, errno is set.
Fault nextFault()
{
    static const char *const chosen = std::getenv("KORVEL_FAULT_CALL");
    static const char *const kind = std::getenv("KORVEL_FAULT_KIND");
    static std::atomic<long> calls = 0;
    if (!chosen || !kind)
        return Fault::None;

    const long call = ++calls;
    const long failing = std::atol(chosen);
    const auto is = [](const char *name) { return std::strcmp(kind, name) == 0; };
    const bool goesOn = is("ENOSPC") || is("EIO");
    if (goesOn ? call < failing : call != failing)
        return Fault::None;
    if (is("short"))
        return Fault::Short;
    if (is("EINTR"))
        errno = EINTR;
    else
        errno = is("EIO") || is("EIO-once") ? EIO : ENOSPC;
    return Fault::Error;
}

} // namespace

extern "C" ssize_t write(int descriptor, const void *bytes, size_t count)
{
    switch (nextFault()) {
    case Fault::Error:
        return -1;
    case Fault::Short:
        return syscall(SYS_write, descriptor, bytes, count > 0 ? size_t(1) : size_t(0));
    case Fault::None:
        break;
    }
    return syscall(SYS_write, descriptor, bytes, count);
}

extern "C" ssize_t writev(int descriptor, const iovec *parts, int count)
{
    switch (nextFault()) {
    case Fault::Error:
        return -1;
    case Fault::Short:
        return syscall(SYS_write, descriptor, parts[0].iov_base,
                       parts[0].iov_len > 0 ? size_t(1) : size_t(0));
    case Fault::None:
        break;
    }
    return syscall(SYS_writev, descriptor, parts, count);
}

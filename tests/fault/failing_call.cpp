// Preloaded into a program, lets calls to the system or for memory fail, from main on to the end.
//
// KORVEL_FAULT_FUNCTION  what fails: "write" (the default), "read", "open", "close", "stat" or
//                        "alloc"; "data" limits the memory for data instead, see below
// KORVEL_FAULT_CALL      which of these calls fails, counted from 1; for "data" the KiB that main
//                        may use beyond what is used when it begins
// KORVEL_FAULT_KIND      the name of an error, such as "EIO": that call fails and all later ones;
//                        with "-once" behind it, or for "EINTR", that call alone. "short": it
//                        writes one byte, once
// KORVEL_FAULT_REPORT    a file that is made when a call fails

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#ifndef KORVEL_SANITIZED
extern "C" {
void *libcMalloc(std::size_t) asm("__libc_malloc");
void *libcCalloc(std::size_t, std::size_t) asm("__libc_calloc");
void *libcRealloc(void *, std::size_t) asm("__libc_realloc");
void *libcMemalign(std::size_t, std::size_t) asm("__libc_memalign");
}
#endif

namespace {

struct Error
{
    const char *name;
    int number;
};

// clang-format off
constexpr Error errors[] = {
    {"EACCES", EACCES},
    {"EINTR",  EINTR },
    {"EIO",    EIO   },
    {"EMFILE", EMFILE},
    {"ENOMEM", ENOMEM},
    {"ENOSPC", ENOSPC},
};
// clang-format on

enum class Fault { None, Error, Short };

// What is to fail. Read before main; nothing is asked for memory later on.
const char *function = "write";
const char *report = nullptr;
long failing = 0;
int error = 0;
bool once = false;
bool isShort = false;
std::atomic<long> calls = 0;
std::atomic<bool> isRunning = false; // main has begun

void readEnvironment()
{
    const char *const call = std::getenv("KORVEL_FAULT_CALL");
    const char *const kind = std::getenv("KORVEL_FAULT_KIND");
    if (const char *name = std::getenv("KORVEL_FAULT_FUNCTION"))
        function = name;
    report = std::getenv("KORVEL_FAULT_REPORT");
    failing = call ? std::atol(call) : 0;
    if (!kind)
        return;
    isShort = std::strcmp(kind, "short") == 0;
    const std::size_t length = std::strcspn(kind, "-");
    for (const Error &row : errors) {
        if (std::strlen(row.name) == length && std::strncmp(kind, row.name, length) == 0)
            error = row.number;
    }
    once = isShort || error == EINTR || std::strcmp(kind + length, "-once") == 0;
}

/// What is to become of a call to one of the functions; for an error, errno is set.
Fault nextFault(const char *called)
{
    if (!isRunning || failing == 0 || (error == 0 && !isShort)
        || std::strcmp(called, function) != 0)
        return Fault::None;
    const long call = ++calls;
    if (once ? call != failing : call < failing)
        return Fault::None;
    if (report) {
        const long made = syscall(SYS_openat, AT_FDCWD, report, O_CREAT | O_WRONLY, 0600);
        syscall(SYS_close, made);
    }
    errno = error;
    return isShort ? Fault::Short : Fault::Error;
}

bool fails(const char *called) { return nextFault(called) == Fault::Error; }

/// The function that the program would have called.
template<typename Function>
Function *next(Function * /*like*/, const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

/// Lets main use a number of KiB for data beyond what is used so far.
void limitData(long kilobytes)
{
    char status[4096] = {};
    const long file = syscall(SYS_openat, AT_FDCWD, "/proc/self/status", O_RDONLY);
    static_cast<void>(syscall(SYS_read, file, status, sizeof status - 1));
    syscall(SYS_close, file);
    const char *const used = std::strstr(status, "VmData:");
    if (!used)
        std::abort();
    const auto most = static_cast<rlim_t>(std::atol(used + std::strlen("VmData:")) + kilobytes);
    const rlimit data{most * 1024, most * 1024};
    setrlimit(RLIMIT_DATA, &data);
}

int (*programMain)(int, char **, char **) = nullptr;

int countedMain(int argc, char **argv, char **environment)
{
    if (std::strcmp(function, "data") == 0)
        limitData(failing);
    isRunning = true;
    return programMain(argc, argv, environment);
}

} // namespace

extern "C" {

int startMain(int (*main)(int, char **, char **), int argc, char **argv, void (*init)(),
              void (*fini)(), void (*loaderFini)(), void *stackEnd) asm("__libc_start_main");

int startMain(int (*main)(int, char **, char **), int argc, char **argv, void (*init)(),
              void (*fini)(), void (*loaderFini)(), void *stackEnd)
{
    readEnvironment();
    programMain = main;
    return next(&startMain, "__libc_start_main")(countedMain, argc, argv, init, fini, loaderFini,
                                                 stackEnd);
}

ssize_t write(int descriptor, const void *bytes, size_t count)
{
    switch (nextFault("write")) {
    case Fault::Error:
        return -1;
    case Fault::Short:
        return syscall(SYS_write, descriptor, bytes, count > 0 ? size_t(1) : size_t(0));
    case Fault::None:
        break;
    }
    return syscall(SYS_write, descriptor, bytes, count);
}

ssize_t writev(int descriptor, const iovec *parts, int count)
{
    switch (nextFault("write")) {
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

ssize_t read(int descriptor, void *bytes, size_t count)
{
    return fails("read") ? -1 : syscall(SYS_read, descriptor, bytes, count);
}

int open(const char *path, int flags, ...)
{
    std::va_list more;
    va_start(more, flags);
    const unsigned mode = flags & O_CREAT ? va_arg(more, unsigned) : 0;
    va_end(more);
    return fails("open") ? -1 : static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

int open64(const char *path, int flags, ...)
{
    std::va_list more;
    va_start(more, flags);
    const unsigned mode = flags & O_CREAT ? va_arg(more, unsigned) : 0;
    va_end(more);
    return fails("open") ? -1 : static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}

FILE *fopen64(const char *path, const char *mode)
{
    return fails("open") ? nullptr : next(&fopen64, "fopen64")(path, mode);
}

int close(int descriptor)
{
    const int result = static_cast<int>(syscall(SYS_close, descriptor));
    return fails("close") ? -1 : result;
}

int fclose(FILE *file)
{
    const int result = next(&fclose, "fclose")(file);
    return fails("close") ? EOF : result;
}

int stat64(const char *path, struct stat64 *status)
{
    return fails("stat") ? -1 : next(&stat64, "stat64")(path, status);
}

int fstat64(int descriptor, struct stat64 *status)
{
    return fails("stat") ? -1 : next(&fstat64, "fstat64")(descriptor, status);
}

int lstat64(const char *path, struct stat64 *status)
{
    return fails("stat") ? -1 : next(&lstat64, "lstat64")(path, status);
}

int statx(int folder, const char *path, int flags, unsigned mask, struct statx *status)
{
    return fails("stat") ? -1
                         : static_cast<int>(syscall(SYS_statx, folder, path, flags, mask, status));
}

#ifndef KORVEL_SANITIZED // whose memory a sanitizer gives out
void *malloc(size_t size) { return fails("alloc") ? nullptr : libcMalloc(size); }

void *calloc(size_t count, size_t size)
{
    return fails("alloc") ? nullptr : libcCalloc(count, size);
}

void *realloc(void *block, size_t size)
{
    return fails("alloc") ? nullptr : libcRealloc(block, size);
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return fails("alloc") ? nullptr : libcMemalign(alignment, size);
}

int posix_memalign(void **block, size_t alignment, size_t size)
{
    if (fails("alloc"))
        return ENOMEM;
    *block = libcMemalign(alignment, size);
    return *block ? 0 : ENOMEM;
}
#endif
}

// Which calls of the system change something outside a program's memory.
#pragma once

#include "torture/tracer.h"

#include <fcntl.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <termios.h>

namespace torture {

/// A call that changes something, whatever its arguments.
struct Change
{
    long number;
    const char *name;
};

// clang-format off
inline constexpr Change changes[] = {
    {SYS_write,      "write"     }, {SYS_writev,     "writev"    }, {SYS_pwrite64,  "pwrite"   },
    {SYS_sendto,     "send"      }, {SYS_sendmsg,    "sendmsg"   }, {SYS_connect,   "connect"  },
    {SYS_shutdown,   "shutdown"  }, {SYS_setsockopt, "setsockopt"}, {SYS_socket,    "socket"   },
    {SYS_fsync,      "fsync"     }, {SYS_fdatasync,  "fdatasync" }, {SYS_ftruncate, "ftruncate"},
    {SYS_truncate,   "truncate"  }, {SYS_fallocate,  "fallocate" }, {SYS_flock,     "flock"    },
    {SYS_rename,     "rename"    }, {SYS_renameat,   "renameat"  }, {SYS_renameat2, "renameat2"},
    {SYS_unlink,     "unlink"    }, {SYS_unlinkat,   "unlinkat"  }, {SYS_rmdir,     "rmdir"    },
    {SYS_mkdir,      "mkdir"     }, {SYS_mkdirat,    "mkdirat"   }, {SYS_link,      "link"     },
    {SYS_linkat,     "linkat"    }, {SYS_symlink,    "symlink"   }, {SYS_chmod,     "chmod"    },
    {SYS_fchmod,     "fchmod"    }, {SYS_fchmodat,   "fchmodat"  }, {SYS_fchown,    "fchown"   },
    {SYS_utimensat,  "utimensat" }, {SYS_kill,       "kill"      }, {SYS_tgkill,    "tgkill"   },
    {SYS_clone,      "clone"     }, {SYS_clone3,     "clone3"    }, {SYS_fork,      "fork"     },
    {SYS_vfork,      "vfork"     }, {SYS_execve,     "execve"    }, {SYS_creat,     "creat"    },
    {SYS_exit_group, "exit"      },
};
// clang-format on

/// The name of a call that changes something; null for any other.
inline const char *nameOfChange(const Call &call)
{
    const auto argument = [&](int i) { return call.arguments[i]; };
    const auto opensToWrite = [](unsigned long long how) {
        return (how & (O_WRONLY | O_RDWR | O_CREAT | O_TRUNC)) != 0;
    };
    for (const Change &change : changes) {
        if (change.number == call.number)
            return change.name;
    }
    switch (call.number) {
    case SYS_open:
        return opensToWrite(argument(1)) ? "open" : nullptr;
    case SYS_openat:
        return opensToWrite(argument(2)) ? "openat" : nullptr;
    case SYS_fcntl:
        return argument(1) == F_SETLK || argument(1) == F_SETLKW || argument(1) == F_OFD_SETLK
                       || argument(1) == F_SETFL
                   ? "fcntl"
                   : nullptr;
    case SYS_ioctl:
        return argument(1) == TCSETS || argument(1) == TCSETSW || argument(1) == TCSBRK
                       || argument(1) == TCFLSH
                   ? "ioctl"
                   : nullptr;
    case SYS_close: // of what others see: a library that was read is no change
        return call.path.rfind("/usr/", 0) == 0 || call.path.rfind("/lib", 0) == 0
                       || call.path.rfind("/etc/", 0) == 0 || call.path.rfind("/proc/", 0) == 0
                       || call.path.rfind("/opt/", 0) == 0
                   ? nullptr
                   : "close";
    default:
        return nullptr;
    }
}

/// Whether a call asks how many bytes are still under way.
inline bool asksForBytes(const Call &call)
{
    return call.number == SYS_ioctl
           && (call.arguments[1] == SIOCOUTQ || call.arguments[1] == FIONREAD);
}

} // namespace torture

// Permissions do not bind the superuser: where a test is his, it gives up the rights to pass them
// by.
#pragma once

#include <QtGlobal>

#include <linux/capability.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace rights {

/// The rights to read and write whatever the permissions are.
constexpr unsigned passingBy[] = {CAP_DAC_OVERRIDE, CAP_DAC_READ_SEARCH};

/// The rights of this thread, as the kernel has them.
struct Set
{
    __user_cap_data_struct words[_LINUX_CAPABILITY_U32S_3] = {};

    [[nodiscard]] bool read() { return call(SYS_capget); }
    [[nodiscard]] bool write() { return call(SYS_capset); }

private:
    bool call(long number)
    {
        __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
        return syscall(number, &header, words) == 0;
    }
};

} // namespace rights

/// Permissions bind this thread until this object goes.
class OrdinaryUser
{
public:
    OrdinaryUser()
    {
        bool done = before.read();
        rights::Set bound = before;
        for (const unsigned right : rights::passingBy)
            bound.words[0].effective &= ~(1U << right);
        done = done && bound.write();
        if (!done)
            qFatal("the test cannot give up the rights of the superuser");
    }
    ~OrdinaryUser()
    {
        if (!before.write())
            qFatal("the test cannot take back the rights of the superuser");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    rights::Set before;
};

/// Permissions bind this process, and what it becomes, from now on; safe after a fork. False where
/// they may not.
inline bool becomeOrdinaryUser()
{
    rights::Set bound;
    bool done = bound.read();
    for (const unsigned right : rights::passingBy) {
        const bool isHeld = (bound.words[0].permitted & (1U << right)) != 0;
        done = done && (!isHeld || prctl(PR_CAPBSET_DROP, right, 0, 0, 0) == 0);
        bound.words[0].effective &= ~(1U << right);
        bound.words[0].permitted &= ~(1U << right);
        bound.words[0].inheritable &= ~(1U << right);
    }
    return done && bound.write();
}

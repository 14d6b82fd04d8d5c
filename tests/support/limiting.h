// Limits of the system, for a process that is about to start the renderer.
#pragma once

#include <sys/resource.h>

/// Lets the process have no more of a resource, such as RLIMIT_STACK.
inline void limit(int resource, rlim_t most)
{
    const rlimit value{most, most};
    setrlimit(static_cast<__rlimit_resource>(resource), &value);
}

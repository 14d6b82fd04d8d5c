// What a fuzz target asserts.
#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the process, which a fuzzer and the replay both count as a failure, unless what must hold
/// does. The text says what that is: scripts/fuzz names the kept input after it.
inline void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

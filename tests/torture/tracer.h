// Runs a program call by call: counts what changes something, and kills it or lets a call fail.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace torture {

/// A call of the system by any process or thread of a run.
struct Call
{
    long number = 0; // SYS_...
    unsigned long long arguments[6] = {};
    std::string path = {}; // that its first argument is open on; empty where it is no descriptor
    pid_t process = 0;
    bool isChange = false;  // it may change something outside the program's memory
    long long result = 0;   // once it is over; below 0 the error
    std::string bytes = {}; // pwrite: what it writes
    int value = 0;          // ioctl: the number that it answered, where it asked for one
    bool toNetwork = false; // connect: to an address of the network
};

/// What is done to a run.
struct Harm
{
    enum class Kind { None, KillAlone, KillAll, Fail };

    Kind kind = Kind::None;
    long before = 0; // which of the calls that change something, counted from 1 over all processes
    int error = 0;   // Fail: what the call gives instead of being made
};

/// How a run went.
struct Traced
{
    long changes = 0;        // calls that change something
    bool isHarmed = false;   // the call was reached
    bool hangs = false;      // it did not end by itself
    bool exited = false;     // the program itself, by itself
    int status = -1;         // then
    std::string harmed = {}; // the name of the call, for people
};

/**
 * Runs a program under ptrace(2) until all of its processes have ended.
 *
 * @param done gets each call when it is over; may be empty
 */
Traced trace(const std::vector<std::string> &command, const Harm &harm,
             const std::function<void(const Call &)> &done = {});

} // namespace torture

// The delivery as a child process: what becomes of it is known, whatever becomes of it.
#pragma once

#include <functional>

#include <sys/types.h>

namespace korvel::queue {

/**
 * Runs something in a child process and waits for its end. A SIGTERM is handed on to it, and so is
 * the end of who called this process: a job that waits is then nobody's to take away, and is left
 * to who runs it next.
 *
 * @param caller getppid() at the start of the process
 * @param work gives the status to end with; called in the child alone
 * @param lost the status where the child did not end by itself
 */
int supervised(pid_t caller, const std::function<int()> &work, const std::function<int()> &lost);

/// Whether a SIGTERM has asked this process to end; from noteEnd() on.
bool isToldToEnd();

/// From now on a SIGTERM is only noted.
void noteEnd();

} // namespace korvel::queue

// The process around a run, made proof against its surroundings.
#pragma once

namespace korvel::app {

/**
 * Prepares the process, before the toolkit wakes up:
 *
 * - a printer that goes away or a full quota is a failed write, not the end of the process;
 * - standard streams that came closed are opened on /dev/null, so that the job's output file does
 *   not take the place of one and receive the diagnostics;
 * - what would take more memory than any sane job fails, and ends the run with what was printed;
 *   so does whatever else ends it, wherever it stands.
 *
 * The toolkit's own environment variables are taken out even before main: some make it write to
 * standard error, abort on a warning or read files.
 */
void prepareProcess();

} // namespace korvel::app

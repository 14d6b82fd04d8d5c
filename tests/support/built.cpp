// Defines what of the tests differs from build to build; all else of them is compiled alike.
#include "support/built.h"

const char *const built::folder = KORVEL_BINARY_DIR;
const bool built::sanitized = KORVEL_SANITIZED;

const char *const built::backend = KORVEL_BACKEND;
const char *const built::check = KORVEL_CHECK;
const char *const built::deliver = KORVEL_DELIVER;
const char *const built::failingCall = KORVEL_FAILING_CALL;
const char *const built::filter = JOBTOKORVEL;
const char *const built::journal = KORVEL_JOURNAL;
const char *const built::preview = KORVEL_PREVIEW;
const char *const built::print = KORVEL_PRINT;
const char *const built::printerSim = KORVEL_PRINTER_SIM;
const char *const built::recode = KORVEL_RECODE;
const char *const built::settings = KORVEL_SETTINGS;

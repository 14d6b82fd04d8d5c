// Documents as the subcommands look at them.
#pragma once

#include "delivery/journal.h"

namespace korvel::journal {

/// Whether a document is being sent, and no process is there that sends it: how it ended is not
/// known.
bool isAbandoned(const delivery::Document &document);

/// Says in one line that there is no document of that id; gives the status to end with.
int noDocument(const QString &id);

} // namespace korvel::journal

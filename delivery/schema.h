// The journal's file: made, opened, and brought to the present schema.
#pragma once

#include "delivery/journal.h"
#include "delivery/sqlite.h"

namespace korvel::delivery {

/// Opens the journal in a file, as the constructor of Journal says. A file that is empty and may
/// only be read gives an empty journal in memory.
std::unique_ptr<sqlite::Database> openJournal(const QString &path, Journal::Access access);

} // namespace korvel::delivery

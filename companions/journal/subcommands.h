// What korvel-journal does: a function for each subcommand.
#pragma once

#include "delivery/journal.h"

namespace korvel::journal {

/// What of a document's contents is asked for.
enum class Part { Job, Settings, Stream, Sent };

/// A subcommand with all that was given with it.
struct Call
{
    QString journal; // path of the file
    QString id;      // empty: all documents
    std::optional<delivery::State> state;
    QDateTime since; // invalid: all
    QDate day;       // invalid: all
    QDateTime before;
    bool json = false;
    std::optional<Part> part;
    std::optional<delivery::Head> head;
    delivery::State resolution = delivery::State::Printed;
};

// Each does its work and gives the status to end with; JournalError where the journal cannot be
// read or written.
int list(const Call &call);
int show(const Call &call);
int resolve(const Call &call);
int verify(const Call &call);
int replay(const Call &call);
int sum(const Call &call);
int exportEvents(const Call &call);
int forget(const Call &call);
int head(const Call &call);

} // namespace korvel::journal

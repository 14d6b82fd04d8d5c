// What korvel-deliver says of a document, and the status that it ends with.
#pragma once

#include "delivery/delivery.h"

namespace korvel::deliver {

/// How the program ends; callers rely on these numbers.
enum Status {
    Delivered = 0,   // sent, now or before
    Wrong = 1,       // the job, the settings or the stream; nothing was sent
    NotPossible = 2, // wrong usage, or no journal; nothing was sent
    Undelivered = 3, // the printer was off or busy, or a child was ended; nothing was sent
    Doubtful = 4,    // a person has to look at the paper
};

/// A document as it is spoken of.
struct Subject
{
    QString file;
    QString id;      // empty where there is none yet
    QString device;  // its name
    QString journal; // its file, for commands to type; empty for the usual one
};

/// Says in one line what became of a document, on standard output when it was sent, else on
/// standard error with what to do; gives the status.
Status report(const Subject &subject, const delivery::Outcome &outcome);

/// Says on standard output that a document would be sent.
Status reportReady(const Subject &subject);

} // namespace korvel::deliver

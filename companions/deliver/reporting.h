// What korvel-deliver says of a document, and the status that it ends with.
#pragma once

#include "delivery/delivery.h"

#include <QElapsedTimer>

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
    QString journal; // the option that names it, for commands to type; empty for the usual one
};

/// Says in one line what became of a document, on standard output when it was sent, else on
/// standard error with what to do; gives the status.
Status report(const Subject &subject, const delivery::Outcome &outcome);

/// Says on standard output that a document would be sent.
Status reportReady(const Subject &subject);

/// One line of a terminal on standard error, written over as long as something is waited for.
class Progress
{
public:
    Progress() { since.start(); }
    ~Progress() { clear(); }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void show(const QString &reason);
    void clear();

private:
    QElapsedTimer since;
    bool isShown = false;
};

} // namespace korvel::deliver

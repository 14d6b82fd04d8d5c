// The delivery of a document: from the journal to the device, each step on disk before the next.
#pragma once

#include "delivery/devicename.h"
#include "delivery/journal.h"

#include <chrono>
#include <functional>

namespace korvel::delivery {

/// How a delivery ended. A new kind of end needs an exit status of its own.
enum class End {
    Sent,        // the printer's side took all bytes
    AlreadySent, // before: nothing was sent now
    Refused,     // the id is another document's: nothing was sent
    Unrecorded,  // the journal cannot be read or written: nothing was sent
    NotSent,     // the printer could not be reached, or was busy: nothing was sent
    InDoubt,     // at least one byte may have left, and the end is not known
};

struct Outcome
{
    End end = End::NotSent;
    QString reason = {}; // one line; empty where it was sent
};

/// A document that is to be delivered.
struct Order
{
    QString id;
    QString origin; // who asks: user, queue, title; for the journal
    QString remark; // what is odd about it, in one line; for the journal
    DeviceName device;
    Contents contents;                                       // see deliver()
    std::chrono::seconds timeout{30};                        // for each byte
    std::chrono::seconds wait{0};                            // for a printer that is off or busy
    std::function<void(const QString &reason)> waiting = {}; // called again and again meanwhile
    std::function<bool()> isCalledOff = {};    // asked meanwhile, and last before a byte is sent
    std::chrono::seconds connecting = timeout; // how long that may take
};

/// Whether a document was made of the same job, settings and code page, or of the same stream.
bool isMadeOf(const Document &document, const Contents &contents);

/**
 * Delivers a document: takes it in if the journal has none of that id, and else goes on where it
 * stands. What is sent is what the journal has. Works while others deliver to the same device,
 * and the same document.
 *
 * @param order its contents are those that a new document has; of one that was accepted before,
 *              job, settings and code page, or the stream as rendered, are held against it
 */
Outcome deliver(Journal &journal, const Order &order);

} // namespace korvel::delivery

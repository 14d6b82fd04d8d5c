// What the simulator has registered since it was started.
#pragma once

#include "companions/paper/amounts.h"
#include "companions/simulator/documents.h"

namespace korvel::simulator {

/// The sums of a day. A day is a run of the program.
struct Day
{
    qint64 documents = 0; // whole ones
    qint64 others = 0;    // parts of documents, and bytes outside any
    qint64 fiscal = 0;    // whole documents that are fiscal receipts
    qint64 uncounted = 0; // rows of those that are not in the sum
    preview::Amount registered;

    /**
     * Adds a document. Only the rows of a whole fiscal receipt are registered: one that is not
     * closed stays open on a printer.
     */
    void add(const Document &document);
};

} // namespace korvel::simulator

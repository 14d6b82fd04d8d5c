// The paper: what the printer would make of the commands, row by row.
#pragma once

#include "companions/preview/decoder.h"

#include <QList>
#include <QString>

namespace preview {

/// A row of the paper.
struct PaperRow
{
    /**
     * Printed stands on the paper as sent. Registered is how a fiscal printer shows a sale row, and
     * Deducted a deduction; each may take several rows. Computed is the preview's own: the sum of
     * what was registered. Unknown are bytes that are no command. Cut is the end of a document that
     * another one follows.
     */
    enum class Kind { Printed, Registered, Deducted, Computed, Unknown, Cut };

    Kind kind = Kind::Printed;
    QString text; // without control characters; wider than the paper where what was sent is
};

/**
 * The rows of the paper, in the order of the commands.
 *
 * A sale row shows its description, amount (times its quantity, which stands above where it is not
 * 1, or cannot be counted) and department; a deduction is marked as one. Where a fiscal section
 * closes stands the sum of what was registered in it, and how many rows could not be counted: those
 * with an amount or a quantity that is no plain number. In a section that is never closed the sum
 * stands at its end, and says so. A row outside a fiscal section is in no sum.
 *
 * @param columns characters in a line of the paper; nothing is cut to it
 */
QList<PaperRow> paperOf(const QList<Command> &commands, int columns);

} // namespace preview

// The paper: what the printer would make of the commands, row by row.
#pragma once

#include "companions/paper/decoder.h"
#include "companions/paper/ledger.h"

#include <QList>
#include <QString>

#include <functional>

namespace korvel::preview {

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
 * Puts commands on the paper, one after the other.
 *
 * A sale row shows its description, amount (times its quantity, which stands above where it is not
 * 1, or cannot be counted) and department; a deduction is marked as one. Where a fiscal section
 * closes stands the sum of what was registered in it, and how many rows could not be counted: those
 * with an amount or a quantity that is no plain number. In a section that is never closed the sum
 * stands at its end, and says so. A row outside a fiscal section is in no sum. What is said of
 * these is English, or where a translator is installed in the language of its user.
 */
class Roll
{
public:
    /// What becomes of a row.
    using TakeRow = std::function<void(const PaperRow &)>;

    /**
     * @param columns characters in a line of the paper; nothing is cut to it
     * @param take    gets each row as soon as it is printed
     */
    Roll(int columns, TakeRow take);

    void print(const Command &command);

    /// Prints what stands behind the last command: the sum of a section that is never closed.
    void end();

private:
    void printSaleRow(const Command &row);
    void printSum(const Sum &sum);
    void append(PaperRow::Kind kind, const QString &text);
    void appendSpread(PaperRow::Kind kind, const QString &left, const QString &right);

    const int columns;
    const TakeRow take;
    Ledger ledger;
    bool cutNext = false;
};

/// All rows of a stream's paper; see Roll.
QList<PaperRow> paperOf(const QByteArray &stream, int columns,
                        const recode::CodePage &page = recode::CodePage::utf8());

/**
 * The widest row of the paper that a command takes, a line as it was sent: what is held against the
 * width of the paper. Empty for a command that is no line, sale row or deduction.
 */
QString widestRow(const Command &command, int columns);

} // namespace korvel::preview

// What the file keeps of the documents beside the chain, so that they are found: made of the
// events.
#pragma once

#include "delivery/chain.h"
#include "delivery/states.h"

#include <optional>

namespace korvel::delivery {

/// A row of documents: numbers of a document's events, see schema.cpp.
struct Row
{
    QByteArray id;
    QByteArray state;     // as it is spelt
    qint64 first = 0;     // event of the document
    qint64 taken = 0;     // event with the contents that it has now
    qint64 last = 0;      // event that brought a state
    qint64 forgotten = 0; // last event by which its contents went; 0: none

    bool operator==(const Row &other) const
    {
        return id == other.id && state == other.state && first == other.first
               && taken == other.taken && last == other.last && forgotten == other.forgotten;
    }
    bool operator!=(const Row &other) const { return !(*this == other); }
};

/// The last event of all; its number is 0 where there is none.
Head lastEvent(sqlite::Database &database);

/// The row in which a statement is, its columns those of the table.
Row rowAt(const sqlite::Statement &statement);

std::optional<Row> rowOf(sqlite::Database &database, const QByteArray &id);

/// The state of a row.
State stateOf(sqlite::Database &database, const Row &row);

/// What an event makes of its document's row, if it may follow what was there; see mayFollow().
std::optional<Row> after(const std::optional<Row> &row, const Record &record);

/// The contents that an event brought: their hashes, each once.
QList<QByteArray> contentsIn(const Record &record);

/**
 * Appends an event to the chain, with the next number, the present time and its hashes, and to what
 * is made of the chain. Needs a transaction that writes, and an event that may follow.
 */
void append(sqlite::Database &database, Record record);

} // namespace korvel::delivery

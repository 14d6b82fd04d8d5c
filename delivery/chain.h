// The chain of events: an event as the file has it, byte by byte, and its hash.
#pragma once

#include "delivery/journal.h"
#include "delivery/sqlite.h"

#include <QByteArray>

namespace korvel::delivery {

/// The name of the event by which a document's contents are forgotten; all others are states.
inline constexpr char forgottenName[] = "forgotten";

/// An event as the file has it. Hashes are SHA-256 in lower-case hex, or empty where there is none.
struct Record
{
    qint64 number = 0;
    QByteArray time, document, name, device, detail;
    QByteArray job, settings, catalogue, rendered, sent; // hashes of contents
    QByteArray charset, origin, lease;
    QByteArray previous; // hash of the event before; empty for the first
    QByteArray hash;
};

/// The event in the row that a statement is at, its columns those of the table.
Record recordAt(const sqlite::Statement &statement);

/// What the event's hash is, by all that it has but the hash: each field behind its length.
QByteArray hashOf(const Record &record);

/// SHA-256 of bytes in lower-case hex.
QByteArray hashOf(const QByteArray &bytes);

/// The event as programs use it.
Event eventOf(const Record &record);

/// A time as the journal writes it, and back.
QByteArray textOf(const QDateTime &time);
QDateTime timeOf(const QByteArray &text);

} // namespace korvel::delivery

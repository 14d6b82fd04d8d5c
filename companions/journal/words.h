// Times as people write them, here and now, and heads.
#pragma once

#include "delivery/journal.h"

namespace korvel::journal {

/// A time for people: that of this place, to the second.
QString placeTime(const QDateTime &time);

/// A time for programs: UTC, to the millisecond.
QString exactTime(const QDateTime &time);

/// The day that a text names: 2026-05-12.
std::optional<QDate> dayNamed(const QString &text);

/// The time that a text names: a day, which is its beginning in this place, or a day and a time.
std::optional<QDateTime> timeNamed(const QString &text);

/// An event's number and hash as "number:hash", and back.
QString textOf(const delivery::Head &head);
std::optional<delivery::Head> headNamed(const QString &text);

/// What is to be known of a document that is being sent by nobody.
QString abandonedText();

} // namespace korvel::journal

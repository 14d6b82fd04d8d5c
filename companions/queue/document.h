// What the filter and the backend agree on: which document a job is, and what is none.
#pragma once

#include "companions/queue/request.h"
#include "companions/recode/codepage.h"
#include "delivery/devicename.h"
#include "delivery/journal.h"

#include <QByteArrayView>

#include <optional>

namespace korvel::queue {

/// What the filter writes for each file of a job behind the first: the backend gets all files as
/// one stream, and refuses one that ends so.
inline constexpr QByteArrayView furtherFile = "=another file of the same job\n";

/**
 * The device that a URI names: korvel://HOST[:PORT], korvel:/dev/usb/lp0 or
 * korvel:/dev/ttyS0?baud=9600.
 *
 * @param error when it names none: why, and what to write, in one line
 */
std::optional<delivery::DeviceName> deviceOf(const QString &uri, QString &error);

/// Whether a stream registers anything with the printer.
bool isFiscal(const QByteArray &stream);

/// How many sections a stream opens.
int documentsIn(const QByteArray &stream);

/// What nobody may ask for with a stream: why, in one line; empty where all is well.
QString misuseOf(const Request &request, const QByteArray &stream);

/**
 * What the journal has of a document that was taken in and not refused.
 *
 * @param given the same job, or the same stream; nothing is found for another one
 */
std::optional<delivery::Contents> takenIn(delivery::Journal &journal, const QString &id,
                                          const delivery::Contents &given);

/// Writes down that a document is refused, unless it is on its way or past it, or was taken in for
/// another job.
void refuse(delivery::Journal &journal, const Request &request, const delivery::Contents &contents,
            const QString &reason);

/// How CUPS is told of a refusal.
QString refusal(const QString &reason);

} // namespace korvel::queue

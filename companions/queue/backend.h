// The delivery of a job of CUPS, and how CUPS is told of its end.
#pragma once

#include "companions/queue/request.h"

namespace korvel::queue {

/// Delivers the stream of a job; the status that tells CUPS what to do with it. To be called where
/// noteEnd() was.
int deliverJob(const Request &request);

/// The same of a delivery that did not come back: held, for a person to look, unless the journal
/// says that all was sent.
int deliveryLost(const Request &request);

/// Writes the devices that a queue may have, as CUPS asks for them.
int listDevices();

} // namespace korvel::queue

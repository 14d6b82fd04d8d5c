// A job's bytes as text.
#pragma once

#include "companions/check/job.h"

namespace korvel::check {

/// The text of a job, without a byte order mark; empty when it cannot be read. What the encoding
/// has wrong is added to the faults.
QString decoded(const QByteArray &bytes, QList<Fault> &faults);

} // namespace korvel::check

// The columns of a document's rows, as settings give them.
#pragma once

#include "companions/check/findings.h"
#include "companions/check/settingsfile.h"

#include <QSet>

namespace korvel::check {

/**
 * Whether the columns of the documents leave room for their descriptions.
 *
 * @param groups   those of documents whose settings are read
 * @param findings gets what is wrong, at the setting that is
 */
void checkColumns(const SettingsFile &settings, const QSet<QString> &groups,
                  QList<Finding> &findings);

} // namespace korvel::check

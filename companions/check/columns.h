// The columns of a document's rows, as settings give them.
#pragma once

#include "companions/check/findings.h"
#include "companions/check/settingsfile.h"

#include <QHash>

namespace korvel::check {

/**
 * Whether the columns of the documents leave room for their descriptions.
 *
 * @param groups   the documents' groups in the settings, and where their first setting stands
 * @param findings gets what is wrong, at those places
 */
void checkColumns(const SettingsFile &settings, const QHash<QString, Place> &groups,
                  QList<Finding> &findings);

} // namespace korvel::check

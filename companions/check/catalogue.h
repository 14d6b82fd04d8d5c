// Whether the catalogue of labels that settings name is there.
#pragma once

#include "companions/check/settingsfile.h"

namespace korvel::check {

/// The name of the catalogue that settings name, as the toolkit takes it; empty for none.
QString catalogueOf(const SettingsFile &settings);

/// Notes a catalogue that cannot be loaded, at the setting that names it.
void checkCatalogue(const SettingsFile &settings, QList<Finding> &findings);

} // namespace korvel::check

// What elements and attributes mean, as schemas say it to editors.
#pragma once

#include "companions/check/vocabulary.h"

#include <QString>

namespace korvel::check {

using namespace Qt::Literals::StringLiterals;

/// What an element prints, in plain text, and by which setting it is switched on.
QString documentationOf(const vocabulary::Element &row);

/// What an attribute is, likewise.
QString documentationOf(const vocabulary::Attribute &row);

// Of what stands in no table.
inline constexpr auto rootDocumentation = "a job: the method, then the lines of its document"_L1;
inline constexpr auto methodDocumentation =
    "the document that the job prints, by its name; before all other elements"_L1;

} // namespace korvel::check

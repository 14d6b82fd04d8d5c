// The paper that documents are laid out for.
#pragma once

#include <QLatin1StringView>

namespace korvel::vocabulary {

/// Characters in a line of the printer's paper.
inline constexpr int lineWidth = 32;

/// A word that the printer keeps for itself: it is printed with a zero in place of its O.
inline constexpr QLatin1StringView reservedWord{"TOTALE"};

} // namespace korvel::vocabulary

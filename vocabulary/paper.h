// The paper that documents are laid out for.
#pragma once

namespace korvel::vocabulary {

/// Characters in a line of the printer's paper.
inline constexpr int lineWidth = 32;

} // namespace korvel::vocabulary

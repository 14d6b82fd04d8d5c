// The paper as screen readers find it: a text that they read line by line.
#pragma once

namespace korvel::settings {

/// Lets the accessibility bus ask each PaperView for its text. To be called before the first one is
/// asked; more often does no harm.
void makePaperReadable();

} // namespace korvel::settings

// The codes of findings, explained to people.
#pragma once

#include "companions/check/codes.h"

namespace korvel::check {

/// All that there is to say of a code, in lines: its level, what it means, what to do, an example
/// of what causes it, the same mended, and how to leave it out.
QString explained(const CodeInfo &row);

/// All codes, one a line: name, level, and the first sentence of what it means.
QString codeList();

} // namespace korvel::check

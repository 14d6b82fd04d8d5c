// The order of findings.
#include "companions/check/findings.h"

#include <algorithm>

namespace korvel::check {

void sortByPlace(QList<Finding> &findings)
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
        return std::pair(a.place.line, a.place.column) < std::pair(b.place.line, b.place.column);
    });
}

} // namespace korvel::check

// How the table of codes is searched.
#include "companions/check/codes.h"

#include <algorithm>

namespace korvel::check {

const QList<CodeInfo> &codes()
{
    static const QList<CodeInfo> all(std::begin(codeTable), std::end(codeTable));
    return all;
}

const CodeInfo &infoOf(Code code) { return codeTable[std::size_t(code)]; }

const CodeInfo *findCode(QAnyStringView name)
{
    const auto found = std::find_if(std::begin(codeTable), std::end(codeTable),
                                    [&](const CodeInfo &row) { return row.name == name; });
    return found == std::end(codeTable) ? nullptr : found;
}

QLatin1StringView levelName(Level level)
{
    return level == Level::Error ? "error"_L1 : "warning"_L1;
}

} // namespace korvel::check

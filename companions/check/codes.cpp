// The rows of all codes, and how they are searched.
#include "companions/check/codes.h"

#include "companions/check/jobcodes.h"
#include "companions/check/settingscodes.h"

#include <algorithm>
#include <iterator>

namespace korvel::check {

namespace {

constexpr const CodeInfo &rowAt(std::size_t i)
{
    return i < std::size(jobCodes) ? jobCodes[i] : settingsCodes[i - std::size(jobCodes)];
}

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < std::size_t(Code::Count); ++i) {
        if (rowAt(i).code != Code(i))
            return false;
    }
    return true;
}
static_assert(std::size(jobCodes) + std::size(settingsCodes) == std::size_t(Code::Count)
                  && isInOrder(),
              "each code has its row, in the order of the codes");

} // namespace

const QList<CodeInfo> &codes()
{
    static const QList<CodeInfo> all = [] {
        QList<CodeInfo> rows(std::begin(jobCodes), std::end(jobCodes));
        std::copy(std::begin(settingsCodes), std::end(settingsCodes), std::back_inserter(rows));
        return rows;
    }();
    return all;
}

const CodeInfo &infoOf(Code code) { return rowAt(std::size_t(code)); }

const CodeInfo *findCode(QAnyStringView name) { return shared::findCode(codes(), name); }

} // namespace korvel::check

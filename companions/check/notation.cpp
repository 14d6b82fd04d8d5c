// How a settings file is written: another notation, a byte order mark, or slips in this one.
#include "companions/check/notation.h"

#include "companions/check/proofreader.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// What another notation begins with.
constexpr std::pair<char, QLatin1StringView> otherNotations[] = {
    {'{', "JSON"_L1},
    {'<', "XML"_L1},
    {'[', "INI"_L1},
};

Notation lost(Code code, const QString &why)
{
    return {{{code, 0, worded(code, why), {}}}, {}, false, true};
}

} // namespace

Notation readNotation(const QByteArray &bytes)
{
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF"))
        return lost(Code::ByteOrderMark, phrase::wideCharacters);
    const QByteArrayView mark = "\xEF\xBB\xBF";
    const qint64 start = bytes.startsWith(mark) ? mark.size() : 0;
    const Scan scan(bytes);
    const qint64 first = scan.behindSpaceAndComments(start);
    if (scan.behindSpace(start) == bytes.size())
        return lost(Code::NoSettings, phrase::emptyFile);
    if (first == bytes.size())
        return lost(Code::NoSettings, phrase::noSetting);
    for (const auto &[sign, notation] : otherNotations) {
        if (bytes[first] == sign)
            return lost(Code::NoSettings, filled(phrase::otherNotation, notation));
    }
    if (!bytes.contains('{'))
        return lost(Code::NoSettings, phrase::noGroup);

    Notation notation = Proofreader(bytes).read(start);
    if (start > 0) {
        notation.slips.prepend(
            {Code::ByteOrderMark, 0, worded(Code::ByteOrderMark, phrase::markInFront), {}});
        notation.edits.prepend({0, start, {}});
    }
    return notation;
}

} // namespace korvel::check

// The table of like characters, and letters without their accents.
#include "companions/recode/substitutes.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <iterator>

namespace korvel::recode {

namespace {

struct Substitute
{
    char16_t lost;
    char16_t like;
};

// In the order of the code points. Only what has no decomposition stands here, or another one than
// people would write.
// clang-format off
constexpr Substitute substitutes[] = {
    {u'\u00A0', u' ' }, // no-break space
    {u'¡',      u'!' }, {u'¢', u'c' }, {u'£', u'L'}, {u'¥', u'Y'}, {u'¦', u'|'}, {u'¨', u'"'},
    {u'©',      u'c' }, {u'ª', u'a' }, {u'«', u'"'},
    {u'\u00AD', u'-' }, // soft hyphen
    {u'®',      u'r' }, {u'¯', u'-' }, {u'°', u'o'}, {u'²', u'2'}, {u'³', u'3'}, {u'´', u'\''},
    {u'µ',      u'u' }, {u'·', u'.' }, {u'¸', u','}, {u'¹', u'1'}, {u'º', u'o'}, {u'»', u'"'},
    {u'Æ',      u'A' }, {u'Ð', u'D' }, {u'×', u'x'}, {u'Ø', u'O'}, {u'Þ', u'T'}, {u'ß', u's'},
    {u'æ',      u'a' }, {u'ð', u'd' }, {u'÷', u':'}, {u'ø', u'o'}, {u'þ', u't'},
    {u'Đ',      u'D' }, {u'đ', u'd' }, {u'Ħ', u'H'}, {u'ħ', u'h'}, {u'ı', u'i'}, {u'Ĳ', u'I'},
    {u'ĳ',      u'i' }, {u'ĸ', u'k' }, {u'Ŀ', u'L'}, {u'ŀ', u'l'}, {u'Ł', u'L'}, {u'ł', u'l'},
    {u'ŉ',      u'n' }, {u'Ŋ', u'N' }, {u'ŋ', u'n'}, {u'Œ', u'O'}, {u'œ', u'o'}, {u'Ŧ', u'T'},
    {u'ŧ',      u't' }, {u'ſ', u's' }, {u'ƒ', u'f'}, {u'ǆ', u'd'}, {u'ǉ', u'l'}, {u'ǌ', u'n'},
    {u'ˆ',      u'^' }, {u'˜', u'~' },
    {u'\u0300', u'`' }, {u'\u0301', u'\''}, // accents that stand behind their letter
    {u'\u0302', u'^' }, {u'\u0303', u'~' }, {u'\u0308', u'"'},
    {u'ẞ',      u'S' },
    {u'\u2000', u' ' }, {u'\u2001', u' ' }, {u'\u2002', u' '}, // spaces
    {u'\u2003', u' ' }, {u'\u2004', u' ' }, {u'\u2005', u' '},
    {u'\u2006', u' ' }, {u'\u2007', u' ' }, {u'\u2008', u' '},
    {u'\u2009', u' ' }, {u'\u200A', u' ' },
    {u'\u2010', u'-' }, {u'\u2011', u'-' }, // hyphens
    {u'‒',      u'-' }, {u'–', u'-' }, {u'—', u'-'}, {u'―', u'-'},
    {u'‘',      u'\''}, {u'’', u'\''}, {u'‚', u','}, {u'‛', u'\''},
    {u'“',      u'"' }, {u'”', u'"' }, {u'„', u'"'}, {u'‟', u'"'},
    {u'†',      u'+' }, {u'•', u'*' }, {u'…', u'.'},
    {u'\u202F', u' ' }, // narrow no-break space
    {u'‰',      u'%' }, {u'′', u'\''}, {u'″', u'"'}, {u'‹', u'<'}, {u'›', u'>'},
    {u'\u205F', u' ' }, // mathematical space
    {u'€',      u'E' }, {u'™', u't' }, {u'−', u'-'}, {u'∙', u'.'},
    {u'\u3000', u' ' }, // ideographic space
    {u'\uFB00', u'f' }, {u'\uFB01', u'f' }, {u'\uFB02', u'f'}, // ligatures of f
    {u'\uFB03', u'f' }, {u'\uFB04', u'f' },
};
// clang-format on

constexpr bool isHarmless()
{
    for (std::size_t i = 0; i < std::size(substitutes); ++i) {
        const char16_t like = substitutes[i].like;
        if (like < u' ' || like > u'~' || like == u')' || like == u'(' || like == u'/'
            || like == u'=' || (i > 0 && substitutes[i - 1].lost >= substitutes[i].lost))
            return false;
    }
    return true;
}
static_assert(isHarmless(), "in order, and nothing that the printer's language is made of");

} // namespace

char16_t likeCharacter(char32_t character)
{
    const auto *const row =
        std::lower_bound(std::begin(substitutes), std::end(substitutes), character,
                         [](const Substitute &a, char32_t lost) { return a.lost < lost; });
    if (row != std::end(substitutes) && row->lost == character)
        return row->like;

    // Signs are taken apart too, "≠" into "=" and a stroke: that is another sign.
    if (!QChar::isLetter(character) || QChar::decompositionTag(character) != QChar::Canonical)
        return 0;
    const QString parts = QChar::decomposition(character);
    return QChar::isLetter(parts.front().unicode()) ? parts.front().unicode() : u'\0';
}

} // namespace korvel::recode

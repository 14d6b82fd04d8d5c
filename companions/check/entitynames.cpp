// Letters by their accents, and a table of signs.
#include "companions/check/entitynames.h"

#include <QString>

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

struct Named
{
    QLatin1StringView name;
    char16_t character;
};

// The endings of a letter's name, and the accents that they are.
constexpr Named accents[] = {
    {"grave"_L1, u'\u0300'}, {"acute"_L1, u'\u0301'}, {"circ"_L1, u'\u0302'},
    {"tilde"_L1, u'\u0303'}, {"uml"_L1, u'\u0308'},   {"ring"_L1, u'\u030A'},
    {"caron"_L1, u'\u030C'}, {"cedil"_L1, u'\u0327'},
};

// clang-format off
constexpr Named signs[] = {
    {"nbsp"_L1,   u'\u00A0'}, {"iexcl"_L1,  u'¡'}, {"cent"_L1,   u'¢'}, {"pound"_L1,  u'£'},
    {"yen"_L1,    u'¥'},      {"sect"_L1,   u'§'}, {"copy"_L1,   u'©'}, {"ordf"_L1,   u'ª'},
    {"laquo"_L1,  u'«'},      {"reg"_L1,    u'®'}, {"deg"_L1,    u'°'}, {"plusmn"_L1, u'±'},
    {"sup2"_L1,   u'²'},      {"sup3"_L1,   u'³'}, {"micro"_L1,  u'µ'}, {"middot"_L1, u'·'},
    {"ordm"_L1,   u'º'},      {"raquo"_L1,  u'»'}, {"frac14"_L1, u'¼'}, {"frac12"_L1, u'½'},
    {"frac34"_L1, u'¾'},      {"iquest"_L1, u'¿'}, {"times"_L1,  u'×'}, {"divide"_L1, u'÷'},
    {"AElig"_L1,  u'Æ'},      {"aelig"_L1,  u'æ'}, {"OElig"_L1,  u'Œ'}, {"oelig"_L1,  u'œ'},
    {"Oslash"_L1, u'Ø'},      {"oslash"_L1, u'ø'}, {"szlig"_L1,  u'ß'}, {"ETH"_L1,    u'Ð'},
    {"eth"_L1,    u'ð'},      {"THORN"_L1,  u'Þ'}, {"thorn"_L1,  u'þ'}, {"ndash"_L1,  u'–'},
    {"mdash"_L1,  u'—'},      {"lsquo"_L1,  u'‘'}, {"rsquo"_L1,  u'’'}, {"sbquo"_L1,  u'‚'},
    {"ldquo"_L1,  u'“'},      {"rdquo"_L1,  u'”'}, {"bdquo"_L1,  u'„'}, {"bull"_L1,   u'•'},
    {"hellip"_L1, u'…'},      {"permil"_L1, u'‰'}, {"lsaquo"_L1, u'‹'}, {"rsaquo"_L1, u'›'},
    {"euro"_L1,   u'€'},      {"trade"_L1,  u'™'},
};
// clang-format on

template<std::size_t size>
char16_t find(const Named (&table)[size], QStringView name)
{
    const auto *const row = std::find_if(std::begin(table), std::end(table),
                                         [&](const Named &named) { return named.name == name; });
    return row == std::end(table) ? u'\0' : row->character;
}

} // namespace

char16_t namedCharacter(QStringView name)
{
    if (name.isEmpty())
        return 0;
    const char16_t accent = find(accents, name.sliced(1));
    const char16_t letter = name.front().unicode();
    const bool isLatin = (letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z');
    if (accent == 0 || !isLatin)
        return find(signs, name);
    const std::array parts = {QChar(letter), QChar(accent)};
    const QString composed =
        QString(parts.data(), parts.size()).normalized(QString::NormalizationForm_C);
    return composed.size() == 1 ? composed.front().unicode() : u'\0';
}

} // namespace korvel::check

// Tables that iconv() fills, tried byte by byte and in pairs.
#include "companions/recode/codepage.h"

#include "companions/recode/substitutes.h"

#include <QStringDecoder>

#include <iconv.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <memory>
#include <type_traits>

using namespace Qt::Literals::StringLiterals;

namespace korvel::recode {

namespace {

constexpr std::size_t asciiEnd = 0x80;

// Bytes that are no character are halves of pairs while a stream is text: no text has these alone.
constexpr char32_t firstUnread = 0xDC80;
constexpr char32_t lastUnread = 0xDCFF;
constexpr char32_t unreadBase = 0xDC00; // the byte is what is added to it

struct Close
{
    void operator()(iconv_t open) const { iconv_close(open); }
};
using Converter = std::unique_ptr<std::remove_pointer_t<iconv_t>, Close>;

/// What iconv() makes of bytes from its initial state on.
struct Converted
{
    QByteArray utf8;
    bool whole;      // every byte is a character
    bool incomplete; // the bytes begin one
};

Converted convert(iconv_t converter, QByteArray bytes)
{
    constexpr qsizetype longest = 8; // of a byte in UTF-8, with room for what was kept back
    QByteArray utf8(bytes.size() * longest + longest, Qt::Uninitialized);
    char *in = bytes.data();
    char *out = utf8.data();
    auto inLeft = static_cast<std::size_t>(bytes.size());
    auto outLeft = static_cast<std::size_t>(utf8.size());
    iconv(converter, nullptr, nullptr, nullptr, nullptr);
    const bool done = iconv(converter, &in, &inLeft, &out, &outLeft) != std::size_t(-1);
    const bool incomplete = !done && errno == EINVAL;
    iconv(converter, nullptr, nullptr, &out, &outLeft); // a letter that waited for an accent
    utf8.truncate(out - utf8.data());
    return {utf8, done, incomplete};
}

Converter opened(const QByteArray &name)
{
    constexpr std::intptr_t failed = -1; // as a descriptor
    iconv_t converter = iconv_open("UTF-8", name.constData());
    return Converter(reinterpret_cast<std::intptr_t>(converter) == failed ? nullptr : converter);
}

/// Names that iconv() takes for something else: the user's own encoding, and ways to convert.
bool isPlain(QByteArrayView name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](char c) {
        return c > ' ' && c <= '~' && c != '/' && c != ',';
    });
}

/// A substitute for a character, to stand for each UTF-16 unit of it.
template<typename Has>
char16_t substituteFor(char32_t character, Has has)
{
    for (char16_t like = likeCharacter(character); like != 0; like = likeCharacter(like)) {
        if (has(like))
            return like;
    }
    return u'?';
}

} // namespace

CodePage::CodePage(QByteArrayView asked, bool unicode)
    : givenName(QString::fromLatin1(asked))
    , isUtf8(unicode)
{
}

std::optional<CodePage> CodePage::named(QByteArrayView name)
{
    if (!isPlain(name))
        return {};
    const Converter converter = opened(name.toByteArray());
    if (!converter)
        return {};
    const QByteArray unicode = "=\"/( \xC3\xA8 \xE2\x82\xAC \xF0\x9F\x8D\x95 )\n";
    if (const Converted same = convert(converter.get(), unicode);
        same.whole && same.utf8 == unicode)
        return CodePage(name, true);
    CodePage page(name, false);
    if (!page.fill(converter.get()))
        return {};
    return page;
}

const CodePage &CodePage::utf8()
{
    static const CodePage page("UTF-8", true);
    return page;
}

/// Fills the tables; false when this is not one byte a character with ASCII below 128.
bool CodePage::fill(void *converter)
{
    QByteArray known;
    for (std::size_t i = 0; i < characters.size(); ++i) {
        const char byte = static_cast<char>(i);
        const Converted one = convert(converter, QByteArray(1, byte));
        if (one.incomplete)
            return false;
        const QString character = QString::fromUtf8(one.utf8);
        if (i < asciiEnd ? character != QLatin1Char(byte) : one.whole && character.size() != 1)
            return false;
        if (!one.whole)
            continue;
        known += byte;
        characters.at(i) = character.front().unicode();
        if (i >= asciiEnd && !bytesOf.contains(characters.at(i)))
            bytesOf.insert(characters.at(i), byte);
    }
    QByteArray pairs;
    for (const char first : known) {
        for (const char second : known) {
            pairs += first;
            pairs += second;
        }
    }
    const Converted all = convert(converter, pairs);
    return all.whole && QString::fromUtf8(all.utf8) == decode(pairs);
}

bool CodePage::has(char32_t character) const
{
    if (isUtf8)
        return !QChar::isSurrogate(character);
    return character < asciiEnd
           || (!QChar::requiresSurrogates(character)
               && bytesOf.contains(static_cast<char16_t>(character)));
}

QByteArray CodePage::encode(QStringView text, const TakeLoss &take) const
{
    QByteArray bytes;
    bytes.reserve(text.size());
    qsizetype line = 1;
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < text.size();) {
        const bool pair =
            text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        const qsizetype units = pair ? 2 : 1;
        const char32_t character =
            pair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        QStringView written = text.sliced(i, units);
        QString substitute;
        if (!has(character)) {
            const QChar like = substituteFor(character, [&](char16_t other) { return has(other); });
            substitute = QString(units, like);
            written = substitute;
            if (take)
                take({line, i - lineStart + 1, character, substitute});
        }
        if (isUtf8)
            bytes += written.toUtf8();
        else
            for (const QChar unit : written)
                bytes += unit.unicode() < asciiEnd ? unit.toLatin1() : bytesOf[unit.unicode()];
        i += units;
        if (character == U'\n') {
            ++line;
            lineStart = i;
        }
    }
    return bytes;
}

QString CodePage::decode(QByteArrayView bytes) const
{
    if (isUtf8) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless
                                                         | QStringDecoder::Flag::ConvertInitialBom);
        return decoder(bytes);
    }
    QString text(bytes.size(), QChar::ReplacementCharacter);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto byte = static_cast<unsigned char>(bytes[i]);
        if (byte == 0 || characters.at(byte) != 0)
            text[i] = QChar(characters.at(byte));
    }
    return text;
}

qsizetype CodePage::characterLength(QByteArrayView text) const
{
    if (text.isEmpty())
        return 0;
    const auto lead = static_cast<unsigned char>(text.front());
    if (lead < asciiEnd)
        return 1;
    if (!isUtf8)
        return characters.at(lead) != 0 ? 1 : 0;
    qsizetype length = 1;
    if (lead >= 0xF0)
        length = 4;
    else if (lead >= 0xE0)
        length = 3;
    else if (lead >= 0xC0)
        length = 2;
    return length <= text.size() && text.first(length).isValidUtf8() ? length : 0;
}

std::optional<unsigned char> Loss::unreadByte() const
{
    if (character < firstUnread || character > lastUnread)
        return {};
    return static_cast<unsigned char>(character - unreadBase);
}

QString noCodePage(const QString &name)
{
    return u"there is no code page \""_s + name
           + u"\"; take UTF-8, or one that iconv knows of one byte a character, with ASCII below "
             "128, such as cp858"_s;
}

QByteArray recoded(QByteArrayView stream, const CodePage &from, const CodePage &to,
                   const TakeLoss &take)
{
    QString text;
    text.reserve(stream.size());
    for (qsizetype at = 0; at < stream.size();) {
        const QByteArrayView rest = stream.sliced(at);
        const qsizetype length = from.characterLength(rest);
        const auto byte = static_cast<unsigned char>(rest.front());
        if (byte < asciiEnd)
            text += QLatin1Char(rest.front());
        else if (length > 0)
            text += from.decode(rest.first(length));
        else
            text += QChar(static_cast<char16_t>(unreadBase + byte));
        at += std::max<qsizetype>(length, 1);
    }
    return to.encode(text, take);
}

} // namespace korvel::recode

// Words taken back to the bytes that they were read from, and those read as UTF-8.
#include "companions/check/mojibake.h"

#include "companions/check/phrases.h"
#include "companions/recode/codepage.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

constexpr auto firstOfTilde = u'\u00C3'; // stands for most letters: "Ã" and another character

// What Windows-1252 has at 0x80 to 0x9F; 0 where it has nothing, and Latin-1 a control character.
constexpr char16_t windows[] = {
    u'€', 0,    u'‚', u'ƒ', u'„', u'…', u'†', u'‡', u'ˆ', u'‰', u'Š', u'‹', u'Œ', 0, u'Ž', 0,
    0,    u'‘', u'’', u'“', u'”', u'•', u'–', u'—', u'˜', u'™', u'š', u'›', u'œ', 0, u'ž', u'Ÿ',
};

/// The byte that a character was read from; 0 for one that was read from none.
char byteOf(QChar character)
{
    if (character.unicode() <= 0xFF)
        return character.toLatin1();
    const auto *const found =
        std::find(std::begin(windows), std::end(windows), character.unicode());
    return found == std::end(windows) ? '\0' : static_cast<char>(0x80 + (found - windows));
}

/// Whether a byte goes on with a character of UTF-8.
bool goesOn(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

/// Characters that shops write; others come by chance when sound text is read as UTF-8.
bool isLikely(char32_t c)
{
    return c <= 0x17F || (c >= 0x2010 && c <= 0x203A) || (c >= 0x20A0 && c <= 0x20BF) || c == 0x2122
           || c == 0x2212 || (c >= 0xFB00 && c <= 0xFB04) || c == 0xFEFF
           || (c >= 0x1F300 && c <= 0x1FAFF)
           || std::find(std::begin(windows), std::end(windows), c) != std::end(windows);
}

/// Whether two characters may be sound, though they could be one of UTF-8: a capital at the end of
/// a word in capitals, and a mark behind it, as in "MAÇÃ…" and "“LÔ.
bool mayBeSound(const QString &text, qsizetype at)
{
    if (at == 0 || !text[at - 1].isUpper())
        return false;
    const QChar mark = text[at + 1];
    if (mark == u'—')
        return true; // "×" is in no word
    if (at + 2 < text.size() && text[at + 2].isLetter())
        return false;
    if (u"‘’“”›"_s.contains(mark)) {
        const auto opens = [](QChar c) { return u"‘‚“„‹"_s.contains(c); };
        return std::any_of(text.begin(), text.begin() + at, opens);
    }
    return u"…–«»ªº°·®\u00A0"_s.contains(mark);
}

/// The bytes that a word was read from; empty where one character was read from none.
QByteArray bytesOf(const QString &text, qsizetype start, qsizetype end)
{
    QByteArray bytes;
    for (qsizetype i = start; i < end; ++i) {
        const char byte = byteOf(text[i]);
        if (byte == 0)
            return {};
        bytes += byte;
        // "à" ends in a no-break space, which is often trimmed, or made a blank.
        const bool cut =
            text[i] == firstOfTilde && i > start && text[i - 1].isLower()
            && (i + 1 == end || (!goesOn(byteOf(text[i + 1])) && !text[i + 1].isLetter()));
        if (cut)
            bytes += '\xA0';
    }
    return bytes;
}

/// A word of a text read as it was meant; empty where it is sound.
QString meantBy(const QString &text, qsizetype start, qsizetype end)
{
    const QByteArray bytes = bytesOf(text, start, end);
    const bool ascii = std::all_of(bytes.begin(), bytes.end(),
                                   [](char byte) { return static_cast<signed char>(byte) >= 0; });
    if (ascii || !bytes.isValidUtf8())
        return {};
    for (qsizetype i = start; i < end; ++i) {
        const auto lead = static_cast<unsigned char>(byteOf(text[i]));
        if (lead >= 0xC2U && lead < 0xE0U && i + 1 < end && mayBeSound(text, i))
            return {};
    }
    const QString word = QString::fromUtf8(bytes);
    const QList<uint> characters = word.toUcs4();
    return std::all_of(characters.begin(), characters.end(), isLikely) ? word : QString();
}

/// A text with each word as it was meant; the same where all are sound.
QString meantOnce(const QString &text)
{
    QString meant;
    for (qsizetype start = 0; start <= text.size();) {
        const qsizetype blank = text.indexOf(u' ', start);
        const qsizetype end = blank < 0 ? text.size() : blank;
        const QString word = meantBy(text, start, end);
        meant += word.isEmpty() ? text.mid(start, end - start) : word;
        if (blank >= 0)
            meant += u' ';
        start = end + 1;
    }
    return meant;
}

/// A text as it was meant, if it was read as a code page of DOS: these have lines of tables where
/// UTF-8 has the first byte of most letters, and "Ô" or "Γ" where it has that of most signs.
Mojibake meantInDos(const QString &text)
{
    static const QRegularExpression first(u"[├┬]|[ÔΓ][^\\x00-\\x7F]{2}"_s);
    if (!text.contains(first))
        return {};
    for (const char *name : {"cp850", "cp437"}) {
        static QHash<QByteArray, std::optional<recode::CodePage>> pages;
        if (!pages.contains(name))
            pages.insert(name, recode::CodePage::named(name));
        const auto &page = pages[name];
        bool lost = false;
        const auto take = [&](const recode::Loss & /*loss*/) { lost = true; };
        const QByteArray bytes = page ? page->encode(text, take) : QByteArray();
        if (bytes.isEmpty() || lost || !bytes.isValidUtf8())
            continue;
        const QString meant = QString::fromUtf8(bytes);
        const QList<uint> characters = meant.toUcs4();
        if (std::all_of(characters.begin(), characters.end(), isLikely))
            return {meant, QString::fromLatin1(name)};
    }
    return {};
}

} // namespace

Mojibake beforeMojibake(const QString &text)
{
    const bool ascii =
        std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
    if (ascii)
        return {};
    QString meant = meantOnce(text);
    if (meant == text)
        return meantInDos(text);
    for (QString before = meantOnce(meant); before != meant; before = meantOnce(meant))
        meant = before;
    const bool spoilt = std::any_of(meant.begin(), meant.end(), [](QChar c) {
        return c.unicode() >= 0x7F && c.unicode() < 0xA0; // control characters
    });
    return spoilt ? Mojibake() : Mojibake{meant, phrase::latin1};
}

} // namespace korvel::check

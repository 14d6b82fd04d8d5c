// Code pages of one byte a character: texts of the command stream as a printer reads them.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QStringView>

#include <array>
#include <functional>
#include <optional>

namespace korvel::recode {

/// A character that a code page lacks, in a text of one line or of many.
struct Loss
{
    qsizetype line = 1;   // of the text, counted in line feeds from 1
    qsizetype column = 1; // in that line, in UTF-16 units from 1
    char32_t character;   // half a surrogate pair, where a text has one alone
    QString substitute;   // that stands in its place: as many units as the character has

    /// In a stream, the byte that is no character of the code page that it comes in.
    [[nodiscard]] std::optional<unsigned char> unreadByte() const;
};

/// What becomes of a loss.
using TakeLoss = std::function<void(const Loss &)>;

/**
 * What a printer takes the bytes of a text for: a table of one byte a character with ASCII below
 * 128, or UTF-8.
 *
 * A text keeps its columns: each UTF-16 unit of it becomes one byte of a table. The commands of the
 * printer's language are ASCII and go through unchanged, so that whole streams can be given, too.
 */
class CodePage
{
public:
    /**
     * The code page that iconv() knows by a name, in capitals or small letters.
     *
     * @param name such as "cp858", "ISO-8859-15" or "UTF-8"
     * @return nothing where iconv() knows no such name (see noCodePage()), it has a "/", or it
     * stands for something else: several bytes a character, a character that depends on the one
     * before it, or other characters than ASCII's below 128
     */
    static std::optional<CodePage> named(QByteArrayView name);

    /// UTF-8, under that name.
    static const CodePage &utf8();

    /// The name that the code page was asked for by.
    [[nodiscard]] QString name() const { return givenName; }

    /// Whether it is UTF-8, and no table.
    [[nodiscard]] bool isUnicode() const { return isUtf8; }

    /**
     * A text in bytes of this code page.
     *
     * What the code page lacks is replaced, a byte for each UTF-16 unit: by a like character that
     * the code page has (see substitutes.h), else by "?". UTF-8 lacks half surrogate pairs alone.
     *
     * @param take gets each character that was replaced, in the order of the text
     */
    QByteArray encode(QStringView text, const TakeLoss &take = {}) const;

    /**
     * The text that bytes of this code page are. Bytes that are no character of it become
     * replacement characters, one for each byte of a table. A byte order mark stays a character.
     */
    [[nodiscard]] QString decode(QByteArrayView bytes) const;

    /// Bytes of the character that a text begins with; 0 when it begins with none, or is empty.
    [[nodiscard]] qsizetype characterLength(QByteArrayView text) const;

private:
    CodePage(QByteArrayView asked, bool unicode);

    bool fill(void *converter);
    [[nodiscard]] bool has(char32_t character) const;

    QString givenName;
    bool isUtf8;
    std::array<char16_t, 256> characters{}; // of each byte; 0 for none, but for the byte 0
    QHash<char16_t, char> bytesOf;          // the first byte of each character beyond ASCII
};

/// What to say of a name that is none of a code page: what may be given, in one line.
QString noCodePage(const QString &name);

/**
 * A command stream in another code page: its texts change, its commands stay.
 *
 * @param take gets what "to" lacks, and each byte that is no character of "from", by the line and
 *             the column of the stream
 */
QByteArray recoded(QByteArrayView stream, const CodePage &from, const CodePage &to,
                   const TakeLoss &take = {});

} // namespace korvel::recode

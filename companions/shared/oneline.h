// Texts in one line that a terminal can show.
#pragma once

#include <QString>

namespace korvel::shared {

/// Whether a character shows as something, or as a blank of the line.
bool isPrintable(char32_t character);

/**
 * A text with every character that does not print replaced, unit by unit, so that it keeps its
 * width, stays in one line, and a terminal obeys nothing in it. Half of a surrogate pair becomes a
 * replacement character.
 *
 * @param substitute what stands for such a character
 */
QString inOneLine(const QString &text, QChar substitute = QChar::ReplacementCharacter);

/// A value in quotes, cut when it is long, with blanks for what does not print.
QString quoted(const QString &value);

/// A text as a string of JSON, in its quotes, as UTF-8; what does not print as escapes.
QByteArray jsonText(const QString &text);

/// A character in quotes and by its number, "è" (U+00E8), or by that alone where it does not print.
QString characterName(char32_t character);

/// "1 document", "2 documents".
QString counted(qint64 number, const QString &thing);

} // namespace korvel::shared

// The bytes of a stream, character by character, and shown in one line.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace korvel::preview {

/// A text of the stream. A byte order mark stays a character of it; bytes that are not UTF-8 become
/// replacement characters.
QString decoded(QByteArrayView text);

/// Bytes of the character that a text begins with; 0 when it does not begin with UTF-8, or is
/// empty.
qsizetype characterLength(QByteArrayView text);

/// Whether a character is a control character, such as a line feed. The bytes are one character.
bool isControl(QByteArrayView character);

/// Bytes as printable text in one line: "\n", "\r", "\t" and "\\" spelt so, all else that does not
/// print as the bytes "\x1b".
QString escaped(QByteArrayView bytes);

} // namespace korvel::preview

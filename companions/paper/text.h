// The bytes of a stream, character by character, and shown in one line.
#pragma once

#include "companions/recode/codepage.h"

#include <QByteArrayView>
#include <QString>

namespace korvel::preview {

using recode::CodePage;

// A stream is UTF-8, or what an 8-bit printer gets in its code page.

/// A text of the stream. A byte order mark stays a character of it; bytes that are no character
/// become replacement characters.
QString decoded(QByteArrayView text, const CodePage &page = CodePage::utf8());

/// Bytes of the character that a text begins with; 0 when it begins with none, or is empty.
qsizetype characterLength(QByteArrayView text, const CodePage &page = CodePage::utf8());

/// Whether all bytes of a text are characters.
bool isReadable(QByteArrayView text, const CodePage &page = CodePage::utf8());

/// Whether a character is a control character, such as a line feed. The bytes are one character.
bool isControl(QByteArrayView character, const CodePage &page = CodePage::utf8());

/// Bytes as printable text in one line: "\n", "\r", "\t" and "\\" spelt so, all else that does not
/// print as the bytes "\x1b".
QString escaped(QByteArrayView bytes, const CodePage &page = CodePage::utf8());

} // namespace korvel::preview

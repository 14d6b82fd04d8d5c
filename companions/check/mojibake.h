// Texts whose UTF-8 was taken for a code page of one byte a character.
#pragma once

#include <QString>

namespace korvel::check {

/**
 * What a text was before its UTF-8 was read as Windows-1252 or Latin-1 and saved again, once or
 * more often: "Caffè" of "CaffÃ¨".
 *
 * @return empty where the text is sound. One that may be either counts as sound.
 */
QString beforeMojibake(const QString &text);

} // namespace korvel::check

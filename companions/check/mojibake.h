// Texts whose UTF-8 was taken for a code page of one byte a character.
#pragma once

#include <QString>

namespace korvel::check {

/// A text that was read in another encoding than it was written in.
struct Mojibake
{
    QString meant;  // what it was; empty where it is sound
    QString readAs; // the encoding that it was taken for
};

/**
 * What a text was before its UTF-8 was read as Windows-1252 or Latin-1 and saved again, once or
 * more often, "Caffè" of "CaffÃ¨", or once as one of DOS, "Caff├¿". A text that may be either
 * counts as sound.
 */
Mojibake beforeMojibake(const QString &text);

} // namespace korvel::check

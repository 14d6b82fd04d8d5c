// Files of the sample shop.
#pragma once

#include "support/bytes.h"

inline QString sample(const QString &name) { return KORVEL_SOURCE_DIR "/examples/jobs/" + name; }
inline QString expected(const QString &name)
{
    return KORVEL_SOURCE_DIR "/examples/expected/" + name;
}

/// What its receipt is to the printer.
inline QByteArray receipt() { return bytesOf(expected("receipt.out")); }

/// What a sample's stream is in the code page 858.
inline QByteArray inCp858(QByteArray stream)
{
    return stream.replace("\xC3\xB9", "\x97").replace("\xC3\xA8", "\x8A");
}

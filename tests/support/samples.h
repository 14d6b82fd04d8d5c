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

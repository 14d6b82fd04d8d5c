// All commands of a stream at once.
#pragma once

#include "companions/preview/decoder.h"

#include <QList>

/// The commands of a stream, in its order.
inline QList<preview::Command> decode(const QByteArray &stream)
{
    QList<preview::Command> commands;
    preview::Decoder decoder(stream);
    while (const auto command = decoder.next())
        commands.append(*command);
    return commands;
}

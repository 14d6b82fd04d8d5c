// All commands of a stream at once.
#pragma once

#include "companions/preview/decoder.h"

#include <QList>

/// The commands of a stream, in its order.
inline QList<korvel::preview::Command> decode(const QByteArray &stream)
{
    QList<korvel::preview::Command> commands;
    korvel::preview::Decoder decoder(stream);
    while (const auto command = decoder.next())
        commands.append(*command);
    return commands;
}

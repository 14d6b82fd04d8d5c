// Commands of a stream: all at once, and put together.
#pragma once

#include "companions/paper/decoder.h"

#include <QList>

namespace korvel::preview {

/// The commands of a stream, in its order.
inline QList<Command> decode(const QByteArray &stream)
{
    QList<Command> commands;
    Decoder decoder(stream);
    while (const auto command = decoder.next())
        commands.append(*command);
    return commands;
}

inline Command commandOf(Command::Kind kind, Section section = Section::Document)
{
    Command command;
    command.kind = kind;
    command.section = section;
    return command;
}

inline Command lineOf(int spaces, const QByteArray &content)
{
    Command command = commandOf(Command::Kind::Line);
    command.spaces = spaces;
    command.content = content;
    return command;
}

inline Command saleRowOf(const QByteArray &department, const QByteArray &amount,
                         const QByteArray &quantity, const QByteArray &description)
{
    Command command = commandOf(Command::Kind::SaleRow);
    command.department = department;
    command.amount = amount;
    command.quantity = quantity;
    command.description = description;
    return command;
}

inline Command deductionOf(const QByteArray &amount)
{
    Command command = commandOf(Command::Kind::Deduction);
    command.amount = amount;
    return command;
}

inline Command unknownOf(const QByteArray &content)
{
    Command command;
    command.content = content;
    return command;
}

} // namespace korvel::preview

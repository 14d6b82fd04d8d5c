// Commands of a stream, and bytes, as lines of text for tests to compare.
#pragma once

#include "support/commands.h"

#include <QString>
#include <QStringList>
#include <QTest>

namespace korvel::preview {

/// Bytes between bars, with those that do not print as text spelt out.
inline QString spelt(const QByteArray &bytes)
{
    const bool text = bytes.isValidUtf8();
    QByteArray result = "|";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        if (byte == '\n')
            result += "\\n";
        else if (byte == '\r')
            result += "\\r";
        else if (value < 0x20 || value == 0x7F || (value >= 0x80 && !text))
            result += "\\x" + QByteArray(1, byte).toHex();
        else
            result += byte;
    }
    return QString::fromUtf8(result + "|");
}

inline QString nameOf(Command::Kind kind)
{
    switch (kind) {
    case Command::Kind::Line:
        return "line";
    case Command::Kind::SectionOpened:
        return "opens";
    case Command::Kind::SectionClosed:
        return "closes";
    case Command::Kind::SaleRow:
        return "sale";
    case Command::Kind::Deduction:
        return "deduction";
    case Command::Kind::Unknown:
        break;
    }
    return "unknown";
}

inline QString nameOf(Section section)
{
    switch (section) {
    case Section::Fiscal:
        return "fiscal";
    case Section::Receipt:
        return "receipt";
    case Section::Document:
        break;
    }
    return "document";
}

/// A command as one line: offset and line of the stream, kind, and the fields of that kind. A
/// line shows its centring blanks as a number.
inline QString shown(const Command &command)
{
    const QString start = QString::number(command.offset) + ':' + QString::number(command.line)
                          + ' ' + nameOf(command.kind) + ' ';
    switch (command.kind) {
    case Command::Kind::Line:
        return start + QString::number(command.spaces) + ' ' + spelt(command.content);
    case Command::Kind::SectionOpened:
    case Command::Kind::SectionClosed:
        return start + nameOf(command.section);
    case Command::Kind::SaleRow:
        return start + spelt(command.department) + spelt(command.amount) + spelt(command.quantity)
               + spelt(command.description);
    case Command::Kind::Deduction:
        return start + spelt(command.amount);
    case Command::Kind::Unknown:
        break;
    }
    return start + spelt(command.content) + " bad " + QString::number(command.badByte)
           + (command.begunAs ? " like " + nameOf(*command.begunAs) : QString());
}

inline QStringList shown(const QList<Command> &commands)
{
    QStringList lines;
    for (const Command &command : commands)
        lines.append(shown(command));
    return lines;
}

/// What is wrong with how commands cover their stream, each written back at its offset; empty when
/// nothing is.
inline QString gapIn(const QByteArray &stream, const QList<Command> &commands)
{
    qsizetype end = 0;
    qsizetype line = 1;
    for (const Command &command : commands) {
        const QByteArray bytes = encode(command);
        if (command.offset != end || command.line != line)
            return QString("not at byte %1, line %2: ").arg(end).arg(line) + shown(command);
        if (bytes.isEmpty() || stream.mid(end, bytes.size()) != bytes)
            return "written back as " + spelt(bytes) + ": " + shown(command);
        end += bytes.size();
        line += bytes.count('\n');
    }
    return end == stream.size() ? QString() : QString("nothing covers byte %1").arg(end);
}

/// The columns of a table of streams and the commands in them, each as a line of text.
inline void addStreamColumns()
{
    QTest::addColumn<QByteArray>("stream");
    QTest::addColumn<QStringList>("expected");
}

/// A row of such a table.
inline void streamRow(const char *name, const QByteArray &stream, const QStringList &expected)
{
    QTest::newRow(name) << stream << expected;
}

/// Takes the stream of a row apart, and holds its commands against what is expected.
inline void compareCommands()
{
    QFETCH(QByteArray, stream);
    QFETCH(QStringList, expected);
    const QList<Command> decoded = decode(stream);
    QCOMPARE(shown(decoded), expected);
    QCOMPARE(gapIn(stream, decoded), QString());
}

} // namespace korvel::preview

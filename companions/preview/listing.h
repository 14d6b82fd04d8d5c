// Commands in words and as JSON.
#pragma once

#include "companions/preview/decoder.h"

#include <QJsonObject>
#include <QString>

namespace korvel::preview {

/// "fiscal section", "receipt section" or "document section".
QString sectionName(Section section);

/// "text line", "section opening", "section closing", "sale row", "deduction" or "unknown command".
QString kindName(Command::Kind kind);

/// A command in one line: offset, line of the stream, meaning.
QString listed(const Command &command);

/**
 * A command as a JSON object, in keys that stay as they are; docs/preview.schema.json has them all.
 * An unknown command, and one with bytes that are no characters, which are replaced in its texts,
 * also has its exact "bytes", in hexadecimal.
 */
QJsonObject toJson(const Command &command);

} // namespace korvel::preview

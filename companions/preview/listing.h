// Commands, findings and sums in words and as JSON.
#pragma once

#include "companions/paper/ledger.h"
#include "companions/preview/findings.h"

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
 * A command as a JSON object without its closing brace, in keys that stay as they are;
 * docs/preview.schema.json has them all. An unknown command, and one with bytes that are no
 * characters, which are replaced in its texts, also has its exact "bytes", in hexadecimal.
 */
QByteArray jsonOf(const Command &command);

/// A finding in the keys of the same schema.
QJsonObject toJson(const Finding &finding);

/// The sum of a fiscal section in the keys of the same schema.
QJsonObject toJson(const Sum &sum);

/**
 * A finding in one line, with the line's end: where it is, its level, what it says, its code. Of a
 * job, whose stream nobody sees, it says the line of the paper.
 */
QString lineOf(const QString &file, bool isJob, const Finding &finding);

} // namespace korvel::preview

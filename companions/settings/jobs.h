// Files that are opened: what travels in the program, and the user's, by what they hold.
#pragma once

#include "vocabulary/methods.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvel::settings {

/// A file that travels in the program; empty when there is none of that name.
QByteArray resource(const QString &name);

/// A file of the user's. @param error why it cannot be read, in one line
std::optional<QByteArray> fileBytes(const QString &name, QString &error);

/// What a file of the user's is taken for.
enum class FileKind { Settings, Job, Other };

/**
 * What bytes of any kind are: settings in either notation of the store, or without anything in
 * them; a job, well-formed or not; or neither.
 */
FileKind kindOf(const QByteArray &bytes);

/// The document that a job asks for first; null when it asks for none that is known.
const vocabulary::Method *methodOf(const QByteArray &job);

} // namespace korvel::settings

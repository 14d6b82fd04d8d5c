// Jobs: those of the sample shop, which travel in the program, and files of the user's.
#pragma once

#include "vocabulary/methods.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvel::settings {

/// A file that travels in the program; empty when there is none of that name.
QByteArray resource(const QString &name);

/// A job file of the user's. @param error why it cannot be read, in one line
std::optional<QByteArray> jobFile(const QString &path, QString &error);

/// The document that a job asks for first; null when it asks for none that is known.
const vocabulary::Method *methodOf(const QByteArray &job);

} // namespace korvel::settings

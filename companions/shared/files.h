// Files read and replaced whole.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvel::shared {

/// Bytes of a command stream, or of a job to make one of, that a companion takes at most: 4 MiB.
inline constexpr qint64 largestStream = 4'194'304;

/**
 * All bytes of a file, or of standard input for "-".
 *
 * @param limit bytes that are read at most
 * @param error why nothing is given, as one line without the file's name
 */
std::optional<QByteArray> readWhole(const QString &path, qint64 limit, QString &error);

/// The same, without an error for what has more: then one byte more than the limit.
std::optional<QByteArray> readUpTo(const QString &path, qint64 limit, QString &error);

/// Bytes of a settings file that a companion takes at most, unless it says otherwise: 64 MiB.
inline constexpr qint64 largestSettings = 67'108'864;

/**
 * All bytes of a settings file. It is a regular file: the renderer reads its settings from nothing
 * else, and not from standard input.
 *
 * @param error why nothing is given, as one line without the file's name
 * @param limit a larger file is an error
 */
std::optional<QByteArray> readSettings(const QString &path, QString &error,
                                       qint64 limit = largestSettings);

/**
 * What a user without settings is told: that there are none, and the command that takes those of
 * the sample shop, in one line; empty for who has some, whatever is in them.
 */
QString remarkOnMissingSettings();

/**
 * Replaces a file by these bytes, or makes a new one: whole, or not at all. What a link leads to is
 * replaced, a link that leads nowhere is itself.
 *
 * @param error why it is not, as one line without the file's name
 */
bool writeWhole(const QString &path, const QByteArray &bytes, QString &error);

} // namespace korvel::shared

// Commands that a person is told to type.
#pragma once

#include <QString>

namespace korvel::deliver {

/// A text as one word of a command of the shell.
QString typed(const QString &text);

/**
 * The command that answers what is in doubt, but for its answer, which comes behind it.
 *
 * @param id      of the document
 * @param journal its file; empty for the usual one
 */
QString toResolve(const QString &id, const QString &journal);

} // namespace korvel::deliver

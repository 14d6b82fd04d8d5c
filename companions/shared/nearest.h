// What a misspelt name may be meant to be.
#pragma once

#include <QStringList>

namespace korvel::shared {

/**
 * The name of a list that is most like a misspelt one: a swapped, missing, extra or wrong letter or
 * two, or the same letters in other case. Of several as near the first; nothing when none is near.
 */
QString nearest(QStringView misspelt, const QStringList &names);

/// The first name of a list that a name is the beginning of, or the other way round: "receipe" and
/// "receipe_type"; nothing when there is none.
QString longerOrShorter(const QString &name, const QStringList &names);

} // namespace korvel::shared

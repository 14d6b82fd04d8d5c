// Words of a job or a settings file, as findings show them.
#pragma once

#include "companions/shared/oneline.h"

#include <QStringList>

namespace korvel::check {

using shared::quoted;

/// Several names in quotes, parted by commas.
QString quoted(const QStringList &names);

/// The name of a list that a misspelt one is most like, or that means the same; empty for none.
QString nearestName(const QString &name, const QStringList &names);

/// A question for a name; empty for none.
QString orName(const QString &name);

/// A question for the name of a list that nearestName() gives; empty when none is near.
QString orNearest(const QString &name, const QStringList &names);

/// A question for the name of a list that a name is the beginning of, or the other way round:
/// "receipe" and "receipe_type".
QString orLonger(const QString &name, const QStringList &names);

/**
 * A question for what a misspelt element may be in a document: the name that it is most like of
 * all, if the document knows it, or a longer or shorter form of that.
 *
 * @param own    elements of the document, but for those that most documents share
 * @param shared elements of the document that most documents share
 */
QString orSimilar(const QString &name, const QStringList &own, const QStringList &shared);

} // namespace korvel::check

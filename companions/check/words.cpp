// Quotes, and what a misspelt name may be.
#include "companions/check/words.h"

#include "companions/check/codes.h"
#include "companions/check/synonyms.h"
#include "companions/check/vocabulary.h"
#include "companions/shared/nearest.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

QString quoted(const QStringList &names) { return u'"' + names.join("\", \""_L1) + u'"'; }

QString nearestName(const QString &name, const QStringList &names)
{
    const QString nearest = shared::nearest(name, names);
    return nearest.isEmpty() ? synonymOf(name, names) : nearest;
}

QString orName(const QString &name)
{
    return name.isEmpty() ? QString() : filled(phrase::didYouMean, name);
}

QString orNearest(const QString &name, const QStringList &names)
{
    return orName(nearestName(name, names));
}

QString orLonger(const QString &name, const QStringList &names)
{
    return orName(shared::longerOrShorter(name, names));
}

QString orSimilar(const QString &name, const QStringList &own, const QStringList &shared)
{
    QStringList all = own;
    for (const vocabulary::Element &row : vocabulary::elements())
        all.append(row.name);
    const QString nearest = shared::nearest(name, all);
    if (nearest.isEmpty())
        return orName(synonymOf(name, own + shared));
    if (own.contains(nearest) || shared.contains(nearest))
        return orName(nearest);
    return orLonger(nearest, own);
}

} // namespace korvel::check

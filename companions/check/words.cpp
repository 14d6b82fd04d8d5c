// Quotes, and what a misspelt name may be.
#include "companions/check/words.h"

#include "companions/check/codes.h"
#include "companions/check/synonyms.h"
#include "companions/check/vocabulary.h"
#include "companions/shared/oneline.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

QString quoted(const QString &value)
{
    constexpr qsizetype longest = 40;
    const QString cut = value.size() > longest ? value.first(longest - 1) + u'…' : value;
    return u'"' + shared::inOneLine(cut, u' ') + u'"';
}

QString quoted(const QStringList &names) { return u'"' + names.join("\", \""_L1) + u'"'; }

QString nearestName(const QString &name, const QStringList &names)
{
    const QString nearest = vocabulary::nearest(name, names);
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
    for (const QString &other : names) {
        if (other.startsWith(name) || name.startsWith(other))
            return orName(other);
    }
    return {};
}

QString orSimilar(const QString &name, const QStringList &own, const QStringList &shared)
{
    QStringList all = own;
    for (const vocabulary::Element &row : vocabulary::elements())
        all.append(row.name);
    const QString nearest = vocabulary::nearest(name, all);
    if (nearest.isEmpty())
        return orName(synonymOf(name, own + shared));
    if (own.contains(nearest) || shared.contains(nearest))
        return orName(nearest);
    return orLonger(nearest, own);
}

} // namespace korvel::check

// What the entities of a job's DTD may expand to: counted, never expanded.
#include "app/entities.h"

#include "vocabulary/limits.h"

#include <algorithm>

namespace limit = korvel::vocabulary::limit;

namespace korvel::app {

bool Entities::declare(const QString &name, const QString &text)
{
    declaredText += text.size();
    if (texts.size() >= limit::mostEntities || declaredText > limit::longestEntities)
        return false;
    texts.insert(name, text);

    // Earlier texts may refer to this one.
    expansions.clear();
    qint64 total = 0;
    qint64 references = 0;
    for (auto it = texts.cbegin(); it != texts.cend(); ++it) {
        const Expansion expansion = expand(it.key(), expansions);
        total += expansion.text;
        references += expansion.references;
    }
    return total <= limit::longestEntities && references <= limit::longestEntities;
}

bool Entities::refer(const QString &name)
{
    const Expansion expansion = expansions.value(name);
    referred += expansion.text + expansion.references;
    return referred <= limit::longestReferences;
}

Entities::Expansion Entities::expand(const QString &name, QHash<QString, Expansion> &known) const
{
    constexpr qint64 tooMuch = limit::longestEntities + 1;

    if (const auto found = known.constFind(name); found != known.cend())
        return *found;
    known.insert(name, {tooMuch, tooMuch}); // as long as this goes on: what it is to itself

    Expansion result;
    const QString text = texts.value(name);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype end = text[i] == u'&' || text[i] == u'%' ? text.indexOf(u';', i) : -1;
        if (end < 0) {
            ++result.text;
            continue;
        }
        const qsizetype start = text[i] == u'&' ? i + 1 : i;
        const Expansion inner = expand(text.mid(start, end - start), known);
        result.text = std::min(result.text + inner.text, tooMuch);
        result.references = std::min(result.references + 1 + inner.references, tooMuch);
        i = end;
    }
    known.insert(name, result);
    return result;
}

} // namespace korvel::app

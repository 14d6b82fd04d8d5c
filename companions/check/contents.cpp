// Texts between tags, which documents do not print: in an element, or spelt as elements in it.
#include "companions/check/context.h"
#include "companions/check/words.h"

#include <algorithm>

namespace korvel::check {

namespace {

/// Whether a tag has what an attribute has: a text, or nothing.
bool isPlain(const Tag &tag)
{
    return !tag.text.isEmpty() || (tag.attributes.isEmpty() && !tag.holdsOthers);
}

} // namespace

bool isAttributeOf(const QString &element, const QString &name)
{
    return std::any_of(vocabulary::attributes().begin(), vocabulary::attributes().end(),
                       [&](const vocabulary::Attribute &row) {
                           return row.element == element && row.name == name;
                       });
}

bool standsForAttribute(const Context &context, const Tag &tag)
{
    return context.forAttributes.contains(&tag);
}

void gatherContents(Context &context)
{
    constexpr qsizetype mostNames = 12; // that a finding shows
    for (const Tag &tag : context.job.tags) {
        if (!isPlain(tag) || tag.parent <= 0) // in the root stand elements
            continue;
        const Tag &parent = context.job.tags[tag.parent];
        if (!isAttributeOf(parent.name, tag.name)
            && (tag.text.isEmpty() || vocabulary::isElement(tag.name)))
            continue;
        context.forAttributes.insert(&tag);
        SpelledOut &spelled = context.spelledOut[&parent];
        if (!spelled.first)
            spelled.first = &tag;
        if (spelled.names.size() < mostNames && !spelled.names.contains(tag.name))
            spelled.names.append(tag.name);
    }
}

bool noteContents(Context &context, const Tag &tag)
{
    const SpelledOut spelled = context.spelledOut.value(&tag);
    if (spelled.first) {
        context.note(spelled.first->place, Code::TextContent,
                     filled(phrase::childElements, tag.name, quoted(spelled.names)));
        return true;
    }
    if (tag.text.isEmpty())
        return false;
    context.note(tag.textPlace, Code::TextContent,
                 filled(phrase::strayText, quoted(tag.text.simplified()), tag.name));
    return true;
}

} // namespace korvel::check

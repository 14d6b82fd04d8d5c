// Texts between tags, which documents do not print: in an element, or spelt as elements in it.
#include "companions/check/context.h"
#include "companions/check/words.h"

#include <algorithm>

namespace korvel::check {

namespace {

/// Whether an element has an attribute of that name in any document.
bool isAttributeOf(const QString &element, const QString &name)
{
    return std::any_of(vocabulary::attributes().begin(), vocabulary::attributes().end(),
                       [&](const vocabulary::Attribute &row) {
                           return row.element == element && row.name == name;
                       });
}

/// Whether a tag has what an attribute has: a text, or nothing.
bool isPlain(const Tag &tag)
{
    return !tag.text.isEmpty() || (tag.attributes.isEmpty() && !tag.holdsOthers);
}

qsizetype indexOf(const Context &context, const Tag &tag)
{
    return &tag - context.job.tags.constData();
}

} // namespace

bool standsForAttribute(const Context &context, const Tag &tag)
{
    return context.spelledOut.value(tag.parent).contains(tag.name) && isPlain(tag);
}

void gatherContents(Context &context)
{
    for (const Tag &tag : context.job.tags) {
        if (!isPlain(tag) || tag.parent <= 0) // in the root stand elements
            continue;
        const Tag &parent = context.job.tags[tag.parent];
        if (!isAttributeOf(parent.name, tag.name)
            && (tag.text.isEmpty() || vocabulary::isElement(tag.name)))
            continue;
        QStringList &names = context.spelledOut[tag.parent];
        if (!names.contains(tag.name))
            names.append(tag.name);
    }
}

bool noteContents(Context &context, const Tag &tag)
{
    const QStringList elements = context.spelledOut.value(indexOf(context, tag));
    if (!elements.isEmpty()) {
        const auto first = std::find_if(
            &tag + 1, context.job.tags.constData() + context.job.tags.size(),
            [&](const Tag &child) {
                return child.parent == indexOf(context, tag) && standsForAttribute(context, child);
            });
        context.note(first->place, Code::TextContent,
                     filled(phrase::childElements, tag.name, quoted(elements)));
        return true;
    }
    if (tag.text.isEmpty())
        return false;
    context.note(tag.textPlace, Code::TextContent,
                 filled(phrase::strayText, quoted(tag.text.simplified()), tag.name));
    return true;
}

} // namespace korvel::check

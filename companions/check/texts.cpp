// Texts that are printed in lines.
#include "companions/check/context.h"
#include "vocabulary/paper.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

void checkText(Context &context, const Tag &tag, const JobAttribute &attribute)
{
    if (attribute.lineBreak)
        context.note(attribute.place, Code::LineBreak, attribute.name, tag.name);
    if (attribute.value.contains(u')'))
        context.note(attribute.place, Code::Parenthesis, attribute.name, tag.name);
    checkCharacters(context, attribute, filled(phrase::attributeHas, attribute.name, tag.name));
    if (attribute.value.contains(vocabulary::reservedWord))
        context.note(attribute.place, Code::Totale, attribute.name, tag.name);
}

void checkAddress(Context &context, const JobAttribute &attribute)
{
    const QStringList parts = attribute.value.split(u',');
    const qsizetype empty = parts.indexOf(QString());
    if (empty < 0)
        return;
    const bool lost = std::any_of(parts.begin() + empty, parts.end(),
                                  [](const QString &part) { return !part.trimmed().isEmpty(); });
    if (lost)
        context.note(attribute.place, Code::Address, attribute.name);
}

} // namespace korvel::check

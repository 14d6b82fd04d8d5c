// The characters of texts: what no printer, or not this one, prints as it is meant.
#include "companions/check/context.h"
#include "companions/check/mojibake.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"

#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// What the printer's code page lacks, in the order of the text, each character once.
void checkCharset(Context &context, const JobAttribute &attribute)
{
    constexpr qsizetype mostNamed = 5;
    QStringList replaced;
    QSet<char32_t> seen;
    const auto take = [&](const recode::Loss &loss) {
        if (seen.contains(loss.character))
            return;
        seen.insert(loss.character);
        if (replaced.size() < mostNamed)
            replaced.append(filled(phrase::replacedCharacter, shared::characterName(loss.character),
                                   u'"' + loss.substitute + u'"'));
    };
    context.charset->encode(attribute.value, take);
    if (replaced.isEmpty())
        return;
    const QString more = seen.size() > mostNamed ? filled(phrase::moreCharacters,
                                                          QString::number(seen.size() - mostNamed))
                                                 : QString();
    context.note(attribute.place, Code::NotInCharset, attribute.name, context.charset->name(),
                 replaced.join(", "_L1) + more);
}

} // namespace

bool hasControl(const JobAttribute &attribute)
{
    return attribute.tab
           || std::any_of(attribute.value.begin(), attribute.value.end(), [](QChar c) {
                  return c.category() == QChar::Other_Control && c != u'\n' && c != u'\r'
                         && c != u'\t';
              });
}

void checkCharacters(Context &context, const JobAttribute &attribute, const QString &bearer)
{
    if (const QString meant = beforeMojibake(attribute.value); !meant.isEmpty()) {
        context.note(attribute.place, Code::Mojibake, attribute.name, quoted(attribute.value),
                     quoted(meant));
        return; // what else is odd about its characters comes of that
    }
    if (hasControl(attribute))
        context.note(attribute.place, Code::ControlCharacter, bearer);
    if (context.charset)
        checkCharset(context, attribute);
}

} // namespace korvel::check

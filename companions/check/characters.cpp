// The characters of texts: what no printer, or not this one, prints as it is meant.
#include "companions/check/context.h"
#include "companions/check/entitynames.h"
#include "companions/check/mojibake.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"

#include <QRegularExpression>
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

/// A character that has neither shape nor width and belongs to no other one; 0 for none.
char32_t shapeless(const QString &text)
{
    constexpr char32_t joiner = 0x200D; // which emojis are made with
    for (const char32_t c : text.toUcs4()) {
        if (c != joiner && QChar::category(c) == QChar::Other_Format)
            return c;
    }
    return 0;
}

/// A reference to a character in a text that should have none left; empty for none.
QString reference(const QString &text)
{
    static const QRegularExpression written(u"&(?:([A-Za-z]+[0-9]*)|#[0-9]+|#x[0-9A-Fa-f]+);"_s);
    static const QStringList ofXml = {u"amp"_s, u"apos"_s, u"gt"_s, u"lt"_s, u"quot"_s};
    if (!text.contains(u'&'))
        return {};
    for (const auto &match : written.globalMatch(text)) {
        const QString name = match.captured(1);
        if (name.isEmpty() || ofXml.contains(name) || namedCharacter(name) != 0)
            return match.captured();
    }
    return {};
}

/// What is odd about a text's characters, whatever the printer.
bool noteOdd(Context &context, const JobAttribute &attribute, const QString &bearer)
{
    const auto isFault = [](const Fault &fault) { return fault.code == Code::Encoding; };
    const QList<Fault> &faults = context.job.faults; // which put replacement characters themselves
    if (attribute.value.contains(QChar::ReplacementCharacter)
        && std::none_of(faults.begin(), faults.end(), isFault)) {
        context.note(attribute.place, Code::OddCharacter, bearer, phrase::replacement);
        return true;
    }
    if (const QString written = reference(attribute.value); !written.isEmpty()) {
        context.note(attribute.place, Code::EscapedTwice, bearer, quoted(written));
        return true;
    }
    const char32_t odd = shapeless(attribute.value);
    if (odd != 0)
        context.note(attribute.place, Code::OddCharacter, bearer,
                     filled(phrase::shapeless, shared::characterName(odd)));
    return odd != 0;
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
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
    if (const Mojibake found = beforeMojibake(attribute.value); !found.meant.isEmpty()) {
        context.note(attribute.place, Code::Mojibake, attribute.name, quoted(attribute.value),
                     quoted(found.meant), found.readAs);
        return; // what else is odd about its characters comes of that
    }
    const bool plain = isAscii(attribute.value) && !attribute.value.contains(u'&');
    if (!plain && noteOdd(context, attribute, bearer))
        return;
    if (hasControl(attribute))
        context.note(attribute.place, Code::ControlCharacter, bearer);
    if (context.charset)
        checkCharset(context, attribute);
}

} // namespace korvel::check

// The words for each error of the XML parser.
#include "companions/check/xmlerrors.h"

#include "companions/check/entitynames.h"
#include "companions/check/phrases.h"
#include "companions/check/xmlsurroundings.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using At = const XmlSurroundings &;

// An error, where it is this one, how far in front of it the fault begins, and the words for it:
// {name} is the name at the error, {character} the character, {written} how the character of that
// name is written; {open} is the innermost open element and {line} its line. Of several rows for an
// error the first that fits counts.
struct Wording
{
    XML_Error error;
    bool (*fits)(At at);
    qsizetype lead;
    const char *words; // of a Phrase
};

bool always(At /*at*/) { return true; }

/// How the character of a reference can be written: "è" or &#232;.
QString writtenFor(QStringView name)
{
    const QChar character = namedCharacter(name);
    const QString number = u"&#"_s + QString::number(character.unicode()) + u';';
    return character.isSpace() ? number : filled(phrase::characterOrNumber, character, number);
}

// clang-format off
constexpr Wording wordings[] = {
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isAtForbidden(); }, 0,
     QT_TRANSLATE_NOOP("findings", "XML forbids the character {character}")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith('&'); }, 1,
     QT_TRANSLATE_NOOP("findings", "\"&\" begins no reference; write &amp;")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inReference(); }, toReference,
     QT_TRANSLATE_NOOP("findings",
                       "\"&\" begins a reference without its \";\"; write &amp;, or end the "
                       "reference")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.inValue && at.behind.startsWith('<') && at.leavesLine(); }, toQuote,
     QT_TRANSLATE_NOOP("findings",
                       "the value that begins here has no closing quote, or a \"<\"; for that "
                       "write &lt;")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inValue && at.behind.startsWith('<'); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "\"<\" in a value; write &lt;, or end the value with its quote")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("--"); }, 2,
     QT_TRANSLATE_NOOP("findings", "\"--\" in a comment; write a single -")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("<!-"); }, 3,
     QT_TRANSLATE_NOOP("findings", "a comment begins with <!--")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("]]") && !at.inTag; }, 2,
     QT_TRANSLATE_NOOP("findings", "\"]]>\" in a text; write ]]&gt;")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("</") && at.inTag; }, 2,
     QT_TRANSLATE_NOOP("findings", "\"</\" without a name")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return !at.inRoot && at.before.endsWith('<') && at.behind.startsWith('/'); }, 1,
     QT_TRANSLATE_NOOP("findings", "an end tag where no element is open")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.before.endsWith("<?XML") || at.before.endsWith("<?Xml"); }, toTag,
     QT_TRANSLATE_NOOP("findings", "an XML declaration begins with <?xml, in small letters")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("<?"); }, 2,
     QT_TRANSLATE_NOOP("findings", "\"<?\" without a name")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.before.endsWith("<!"); }, 2,
     QT_TRANSLATE_NOOP("findings", "\"<!\" begins no comment and no CDATA section")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.beginsTagWithBlank(); }, 1,
     QT_TRANSLATE_NOOP("findings",
                       "a blank behind \"<\"; the name of a tag stands right behind it")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith('<'); }, 1,
     QT_TRANSLATE_NOOP("findings", "\"<\" begins no tag; write &lt;")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isUnquoted() && at.isAtOtherQuote(); }, 0,
     QT_TRANSLATE_NOOP("findings", "{character} is no quote to XML; write \" or '")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isUnquoted(); }, 0,
     QT_TRANSLATE_NOOP("findings", "a value without quotes; write {value}")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.behind.startsWith('<'); }, toTag,
     QT_TRANSLATE_NOOP("findings", "the tag that begins here has no \">\"")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindEndName() && !at.isAtForbidden(); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "{character} behind the name of an end tag, which has nothing else")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.before.endsWith('/'); }, 1,
     QT_TRANSLATE_NOOP("findings", "\"/\" in a tag without a \">\" behind it")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isBehindValue() && at.tookNext(); }, toQuote,
     QT_TRANSLATE_NOOP("findings", "the value that begins here has no closing quote")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindValue() && at.hasAttributeBehind(); }, 0,
     QT_TRANSLATE_NOOP("findings", "no blank between a value and the next attribute")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindValue() && at.behind.startsWith("\\>"); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "{character} cannot stand behind a value; a tag without content ends "
                       "with />")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindValue() && (at.behind[0] == ',' || at.behind[0] == ';'); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "{character} cannot stand behind a value; blanks alone part attributes")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindValue() && at.before.endsWith('\''); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "{character} cannot stand behind a value; for a ' in a value write &apos;")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isBehindValue(); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "{character} cannot stand behind a value; for a quote in a value write "
                       "&quot;")},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.inTag && (at.behind.startsWith('"') || at.behind.startsWith('\'')); }, 0,
     QT_TRANSLATE_NOOP("findings", "a value without a \"=\" before it")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.lacksValue(); }, 0,
     QT_TRANSLATE_NOOP("findings", "an attribute without a value")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.isBehindBlank(); }, 0,
     QT_TRANSLATE_NOOP("findings", "{character} cannot begin a name")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag; }, 0,
     QT_TRANSLATE_NOOP("findings", "{character} cannot stand in a name")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isOutside(); }, 0,
     QT_TRANSLATE_NOOP("findings", "a text outside the root")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.behind.startsWith('&'); }, 0,
     QT_TRANSLATE_NOOP("findings", "&{name}; stands for what is not well-formed")},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.behind.startsWith('<'); }, 0,
     QT_TRANSLATE_NOOP("findings", "an entity in this tag stands for what is not well-formed")},
    {XML_ERROR_INVALID_TOKEN, always, 0,
     QT_TRANSLATE_NOOP("findings", "{character} cannot stand here")},

    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith("<!--"); }, 0,
     QT_TRANSLATE_NOOP("findings", "a comment without its \"-->\"")},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith("<?xml "); }, 0,
     QT_TRANSLATE_NOOP("findings", "an XML declaration without its \"?>\"")},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith("<?"); }, 0,
     QT_TRANSLATE_NOOP("findings", "an instruction without its \"?>\"")},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith('<'); }, 0,
     QT_TRANSLATE_NOOP("findings", "a tag without its \">\", or with a quote too few")},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith('&'); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "\"&\" begins a reference without its \";\"; write &amp;, or end the "
                       "reference")},
    {XML_ERROR_UNCLOSED_TOKEN, always, 0,
     QT_TRANSLATE_NOOP("findings", "what begins here does not end")},
    {XML_ERROR_UNCLOSED_CDATA_SECTION, always, toSection,
     QT_TRANSLATE_NOOP("findings", "a CDATA section without its \"]]>\"")},

    {XML_ERROR_NO_ELEMENTS, [](At at) { return at.inRoot; }, toOpen,
     QT_TRANSLATE_NOOP("findings",
                       "<{open}> is never closed; write </{open}> where it ends, or /> in place "
                       "of its >")},
    {XML_ERROR_NO_ELEMENTS, always, 0, QT_TRANSLATE_NOOP("findings", "there is no element")},
    {XML_ERROR_TAG_MISMATCH, [](At at) { return at.isLeft; }, toOpen,
     QT_TRANSLATE_NOOP("findings",
                       "<{open}> is never closed; write </{open}> where it ends, or /> in place "
                       "of its >")},
    {XML_ERROR_TAG_MISMATCH, [](At at) { return at.inRoot && at.before.endsWith("</"); }, 2,
     QT_TRANSLATE_NOOP("findings", "</{name}> where <{open}> of line {line} must be closed")},
    {XML_ERROR_TAG_MISMATCH, always, 0,
     QT_TRANSLATE_NOOP("findings", "an end tag of an entity closes another element")},
    {XML_ERROR_ASYNC_ENTITY, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity with a start tag or an end tag alone")},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT,
     [](At at) { return at.behind.startsWith('<') && !at.behind.startsWith("<!"); }, 0,
     QT_TRANSLATE_NOOP("findings", "a second root; one element must hold all others")},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, [](At at) { return at.behind.startsWith('<'); }, 0,
     QT_TRANSLATE_NOOP("findings", "a declaration or a section behind the end of the root")},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, always, 0,
     QT_TRANSLATE_NOOP("findings", "a text outside the root")},
    {XML_ERROR_SYNTAX, [](At at) { return at.isOutside(); }, 0,
     QT_TRANSLATE_NOOP("findings", "a text outside the root")},
    {XML_ERROR_SYNTAX, always, 0, QT_TRANSLATE_NOOP("findings", "{character} cannot stand here")},
    {XML_ERROR_MISPLACED_XML_PI, always, 0,
     QT_TRANSLATE_NOOP("findings",
                       "the XML declaration is not the first in the file; nothing may stand "
                       "before it, no blank either")},
    {XML_ERROR_XML_DECL, always, 0,
     QT_TRANSLATE_NOOP("findings",
                       "this is no XML declaration; write <?xml version=\"1.0\" "
                       "encoding=\"UTF-8\"?>")},

    {XML_ERROR_DUPLICATE_ATTRIBUTE, [](At at) { return !at.behind.startsWith('&'); }, 0,
     QT_TRANSLATE_NOOP("findings", "an attribute stands twice: \"{name}\"")},
    {XML_ERROR_DUPLICATE_ATTRIBUTE, always, 0,
     QT_TRANSLATE_NOOP("findings", "an attribute stands twice, in an entity")},
    {XML_ERROR_UNDEFINED_ENTITY,
     [](At at) { return at.behind.startsWith('&') && at.before.contains("<!ENTITY"); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "&{name}; leads to no entity that is declared; write the character itself")},
    {XML_ERROR_UNDEFINED_ENTITY,
     [](At at) { return at.behind.startsWith('&') && namedCharacter(at.name()) != 0; }, 0,
     QT_TRANSLATE_NOOP("findings", "XML does not know &{name};; write {written}")},
    {XML_ERROR_UNDEFINED_ENTITY, [](At at) { return at.behind.startsWith('&'); }, 0,
     QT_TRANSLATE_NOOP("findings",
                       "XML does not know &{name};, only &amp; &lt; &gt; &quot; &apos;; write "
                       "&amp; for a plain \"&\"")},
    {XML_ERROR_UNDEFINED_ENTITY, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity that is not declared")},
    {XML_ERROR_BAD_CHAR_REF, [](At at) { return at.behind.startsWith('&'); }, 0,
     QT_TRANSLATE_NOOP("findings", "&{name}; is no character that XML allows")},
    {XML_ERROR_BAD_CHAR_REF, always, 0,
     QT_TRANSLATE_NOOP("findings", "a reference to what is no character")},
    {XML_ERROR_RECURSIVE_ENTITY_REF, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity that refers to itself")},
    {XML_ERROR_BINARY_ENTITY_REF, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity that is no text")},
    {XML_ERROR_ATTRIBUTE_EXTERNAL_ENTITY_REF, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity of another file in a value")},
    {XML_ERROR_PARAM_ENTITY_REF, always, 0,
     QT_TRANSLATE_NOOP("findings", "a parameter entity cannot stand here")},
    {XML_ERROR_INCOMPLETE_PE, always, 0,
     QT_TRANSLATE_NOOP("findings", "a parameter entity that is no whole declaration")},
    {XML_ERROR_ENTITY_DECLARED_IN_PE, always, 0,
     QT_TRANSLATE_NOOP("findings", "an entity that a parameter entity declares")},
    {XML_ERROR_PUBLICID, always, 0,
     QT_TRANSLATE_NOOP("findings", "a public identifier with a character that it cannot have")},
    {XML_ERROR_AMPLIFICATION_LIMIT_BREACH, always, 0,
     QT_TRANSLATE_NOOP("findings", "entities that make too much text")},
    {XML_ERROR_NO_MEMORY, always, 0,
     QT_TRANSLATE_NOOP("findings", "more than the memory can hold")},
};
// clang-format on

} // namespace

XmlFault faultIn(const QByteArray &document, XML_Error error, qsizetype offset, const Tag *open,
                 bool isLeft)
{
    const XmlSurroundings at(document, std::min(offset, document.size()), open, isLeft);
    const auto row =
        std::find_if(std::begin(wordings), std::end(wordings), [&](const Wording &candidate) {
            return candidate.error == error && candidate.fits(at);
        });
    if (row == std::end(wordings))
        return {offset, phrase::notWellFormed, false};
    QString words = shared::Phrase{row->words};
    words.replace("{written}"_L1, writtenFor(at.name()));
    words.replace("{name}"_L1, at.name());
    words.replace("{character}"_L1, at.character());
    words.replace("{value}"_L1, at.value());
    if (open) {
        words.replace("{open}"_L1, open->name);
        words.replace("{line}"_L1, QString::number(open->place.line));
    }
    return {at.startOf(row->lead), words, row->lead == toOpen};
}

} // namespace korvel::check

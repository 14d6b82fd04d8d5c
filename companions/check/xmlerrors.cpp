// The words for each error of the XML parser.
#include "companions/check/xmlerrors.h"

#include "companions/check/entitynames.h"
#include "companions/shared/oneline.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

/// Whether a character may stand in a name: all beyond ASCII count, the parser has told them apart.
bool isOfName(char c)
{
    const auto code = static_cast<unsigned char>(c);
    return code >= 0x80U || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z')
           || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || c == '-' || c == '.';
}

/// The first character of a text, 0 when it has none.
char32_t firstOf(QByteArrayView text)
{
    return QString::fromUtf8(text.first(std::min<qsizetype>(text.size(), 4))).toUcs4().value(0);
}

/// The name that a text begins with, behind the mark of a reference.
QString nameIn(QByteArrayView text)
{
    const qsizetype start = text.startsWith('&') ? 1 : 0;
    const auto end = std::find_if_not(text.begin() + start, text.end(),
                                      [](char c) { return isOfName(c) || c == '#'; });
    return QString::fromUtf8(text.sliced(start, end - text.begin() - start));
}

/// The character that a text begins with: "x", or U+0001 where it has no shape.
QString characterIn(QByteArrayView text)
{
    const char32_t code = firstOf(text);
    if (code == U' ' || (shared::isPrintable(code) && !QChar::isSpace(code)))
        return u'"' + QString::fromUcs4(&code, 1) + u'"';
    return u"U+"_s + QString::number(code, 16).toUpper().rightJustified(4, u'0');
}

/// The value that a text begins with, which has no quotes: up to a blank or the end of its tag.
QString unquotedIn(QByteArrayView text)
{
    constexpr qsizetype longest = 40;
    const auto end = std::find_if(text.begin(), text.end(),
                                  [](char c) { return isBlank(c) || c == '>' || c == '<'; });
    QByteArrayView value = text.first(end - text.begin());
    if (end != text.end() && *end == '>' && value.endsWith('/'))
        value.chop(1);
    const QString shown = QString::fromUtf8(value);
    return shown.size() > longest ? shown.first(longest - 1) + u'…' : shown;
}

bool isForbidden(QByteArrayView text)
{
    const auto code = static_cast<unsigned char>(text.isEmpty() ? ' ' : text.front());
    return (code < 0x20U && !isBlank(text.front())) || text.startsWith("\xEF\xBF\xBE")
           || text.startsWith("\xEF\xBF\xBF");
}

/// Whether a text begins with a quote that people write, and XML does not know.
bool beginsWithOtherQuote(QByteArrayView text)
{
    const char32_t first = firstOf(text);
    constexpr char32_t quotes[] = {U'‘', U'’', U'“', U'”', U'„', U'«', U'»'};
    return std::find(std::begin(quotes), std::end(quotes), first) != std::end(quotes);
}

/// How the character of a reference can be written: "è" or &#232;.
QString writtenFor(QStringView name)
{
    const QChar character = namedCharacter(name);
    QString number = u"&#"_s + QString::number(character.unicode()) + u';';
    if (character.isSpace())
        return number;
    return u'"' + QString(character) + u"\" or "_s + number;
}

// In place of a number of bytes: the fault begins at the reference, the tag or the quote that
// stands last in front of the error.
constexpr qsizetype toReference = -1;
constexpr qsizetype toTag = -2;
constexpr qsizetype toQuote = -3;
constexpr qsizetype toOpen = -4; // at the element that is open

/// What stands around an error.
struct Surroundings
{
    QByteArrayView before;
    QByteArrayView behind;
    bool inRoot;
    bool isLeft;          // see faultIn()
    bool inTag = false;   // behind the "<" of one and before its ">", in no value
    bool inValue = false; // of an attribute
    qsizetype tag = 0;    // where the last tag begins
    qsizetype quote = 0;  // and the last value of it, with its quote

    Surroundings(QByteArrayView document, qsizetype offset, bool isInRoot, bool isLeftOpen)
        : before(document.first(offset))
        , behind(document.sliced(offset))
        , inRoot(isInRoot)
        , isLeft(isLeftOpen)
    {
        const qsizetype start = before.lastIndexOf('<');
        if (start < 0 || before.sliced(start).startsWith("<!"))
            return;
        tag = start;
        char open = 0;
        for (qsizetype i = start + 1; i < offset; ++i) {
            const char c = before[i];
            if (open == 0 && c == '>')
                return;
            if (open == c) {
                open = 0;
            } else if (open == 0 && (c == '"' || c == '\'')) {
                open = c;
                quote = i;
            }
        }
        inTag = open == 0;
        inValue = open != 0;
    }

    /// Where a fault begins that is so far in front of the error.
    [[nodiscard]] qsizetype startOf(qsizetype lead) const
    {
        if (lead == toReference)
            return before.lastIndexOf('&');
        if (lead == toTag)
            return tag;
        if (lead == toOpen)
            return before.size();
        return lead == toQuote ? quote : before.size() - lead;
    }

    [[nodiscard]] bool inReference() const
    {
        const auto start = std::find_if_not(before.rbegin(), before.rend(),
                                            [](char c) { return isOfName(c) || c == '#'; });
        return start != before.rend() && *start == '&';
    }

    /// Whether the value goes on beyond its line.
    [[nodiscard]] bool leavesLine() const { return before.sliced(quote).contains('\n'); }

    /// Behind a value, which its quote ends.
    [[nodiscard]] bool isBehindValue() const
    {
        return inTag && (before.endsWith('"') || before.endsWith('\''));
    }

    /// Behind a value that took in the name of the next: number="1 name="
    [[nodiscard]] bool tookNext() const { return before.chopped(1).endsWith('='); }

    [[nodiscard]] bool hasAttributeBehind() const
    {
        const auto end = std::find_if_not(behind.begin(), behind.end(), isOfName);
        return end != behind.begin() && end != behind.end() && (*end == '=' || isBlank(*end));
    }

    /// "< receipe", where a tag may stand: behind another one.
    [[nodiscard]] bool beginsTagWithBlank() const
    {
        const QByteArrayView next = behind.trimmed();
        return before.endsWith('<') && before.chopped(1).trimmed().endsWith('>')
               && !behind.startsWith(next) && QChar::isLetter(firstOf(next));
    }

    [[nodiscard]] bool isUnquoted() const { return inTag && before.trimmed().endsWith('='); }

    [[nodiscard]] bool lacksValue() const
    {
        const char32_t next = firstOf(behind);
        const bool beginsName = QChar::isLetter(next) || next == U'_' || next == U':';
        return inTag && (next == U'/' || next == U'>' || (isBlank(before.back()) && beginsName));
    }

    /// Neither in an element nor in the document type.
    [[nodiscard]] bool isOutside() const { return !inRoot && !before.contains("<!DOCTYPE"); }
};

using At = const Surroundings &;

// An error, where it is this one, how far in front of it the fault begins, and the words for it:
// {name} is the name at the error, {character} the character, {written} how the character of that
// name is written; {open} is the innermost open element and {line} its line. Of several rows for an
// error the first that fits counts.
struct Wording
{
    XML_Error error;
    bool (*fits)(At at);
    qsizetype lead;
    QLatin1StringView words;
};

bool always(At /*at*/) { return true; }

// clang-format off
constexpr Wording wordings[] = {
    {XML_ERROR_INVALID_TOKEN, [](At at) { return isForbidden(at.behind); }, 0,
     "XML forbids the character {character}"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith('&'); }, 1,
     "\"&\" begins no reference; write &amp;"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inReference(); }, toReference,
     "\"&\" begins a reference without its \";\"; write &amp;, or end the reference"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.inValue && at.behind.startsWith('<') && at.leavesLine(); }, toQuote,
     "the value that begins here has no closing quote, or a \"<\"; for that write &lt;"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inValue && at.behind.startsWith('<'); }, 0,
     "\"<\" in a value; write &lt;, or end the value with its quote"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("--"); }, 2,
     "\"--\" in a comment; write a single -"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("]]") && !at.inTag; }, 2,
     "\"]]>\" in a text; write ]]&gt;"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("</") && at.inTag; }, 2,
     "\"</\" without a name"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return !at.inRoot && at.before.endsWith('<') && at.behind.startsWith('/'); }, 1,
     "an end tag where no element is open"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.before.endsWith("<?XML") || at.before.endsWith("<?Xml"); }, toTag,
     "an XML declaration begins with <?xml, in small letters"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("<?"); }, 2,
     "\"<?\" without a name"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.before.endsWith("<!"); }, 2,
     "\"<!\" begins no comment and no CDATA section"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.beginsTagWithBlank(); }, 1,
     "a blank behind \"<\"; the name of a tag stands right behind it"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith('<'); }, 1,
     "\"<\" begins no tag; write &lt;"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isUnquoted() && beginsWithOtherQuote(at.behind); }, 0,
     "{character} is no quote to XML; write \" or '"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isUnquoted(); }, 0,
     "a value without quotes; write \"{value}\""_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.behind.startsWith('<'); }, toTag,
     "the tag that begins here has no \">\""_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.before.endsWith('/'); }, 1,
     "\"/\" in a tag without a \">\" behind it"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isBehindValue() && at.tookNext(); }, toQuote,
     "the value that begins here has no closing quote"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.isBehindValue() && at.hasAttributeBehind(); }, 0,
     "no blank between a value and the next attribute"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isBehindValue(); }, 0,
     "{character} cannot stand behind a value; for a quote in a value write &quot;"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.inTag && (at.behind.startsWith('"') || at.behind.startsWith('\'')); }, 0,
     "a value without a \"=\" before it"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.lacksValue(); }, 0,
     "an attribute without a value"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && isBlank(at.before.back()); }, 0,
     "{character} cannot begin a name"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag; }, 0,
     "{character} cannot stand in a name"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isOutside(); }, 0,
     "a text outside the root"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.behind.startsWith('&'); }, 0,
     "&{name}; stands for what is not well-formed"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.behind.startsWith('<'); }, 0,
     "an entity in this tag stands for what is not well-formed"_L1},
    {XML_ERROR_INVALID_TOKEN, always, 0, "{character} cannot stand here"_L1},

    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith("<!--"); }, 0,
     "a comment without its \"-->\""_L1},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith("<?"); }, 0,
     "an instruction without its \"?>\""_L1},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith('<'); }, 0,
     "a tag without its \">\", or with a quote too few"_L1},
    {XML_ERROR_UNCLOSED_TOKEN, [](At at) { return at.behind.startsWith('&'); }, 0,
     "\"&\" begins a reference without its \";\"; write &amp;, or end the reference"_L1},
    {XML_ERROR_UNCLOSED_TOKEN, always, 0, "what begins here does not end"_L1},
    {XML_ERROR_UNCLOSED_CDATA_SECTION, always, 0, "a CDATA section without its \"]]>\""_L1},

    {XML_ERROR_NO_ELEMENTS, [](At at) { return at.inRoot; }, toOpen,
     "<{open}> is never closed; write </{open}> where it ends, or /> in place of its >"_L1},
    {XML_ERROR_NO_ELEMENTS, always, 0, "there is no element"_L1},
    {XML_ERROR_TAG_MISMATCH, [](At at) { return at.isLeft; }, toOpen,
     "<{open}> is never closed; write </{open}> where it ends, or /> in place of its >"_L1},
    {XML_ERROR_TAG_MISMATCH, [](At at) { return at.inRoot && at.before.endsWith("</"); }, 2,
     "</{name}> where <{open}> of line {line} must be closed"_L1},
    {XML_ERROR_TAG_MISMATCH, always, 0, "an end tag of an entity closes another element"_L1},
    {XML_ERROR_ASYNC_ENTITY, always, 0,
     "an entity with a start tag or an end tag alone"_L1},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT,
     [](At at) { return at.behind.startsWith('<') && !at.behind.startsWith("<!"); }, 0,
     "a second root; one element must hold all others"_L1},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, [](At at) { return at.behind.startsWith('<'); }, 0,
     "a declaration or a section behind the end of the root"_L1},
    {XML_ERROR_JUNK_AFTER_DOC_ELEMENT, always, 0, "a text outside the root"_L1},
    {XML_ERROR_SYNTAX, [](At at) { return at.isOutside(); }, 0, "a text outside the root"_L1},
    {XML_ERROR_SYNTAX, always, 0, "{character} cannot stand here"_L1},
    {XML_ERROR_MISPLACED_XML_PI, always, 0,
     "the XML declaration is not the first in the file; nothing may stand before it, no blank "
     "either"_L1},
    {XML_ERROR_XML_DECL, always, 0,
     "this is no XML declaration; write <?xml version=\"1.0\" encoding=\"UTF-8\"?>"_L1},

    {XML_ERROR_DUPLICATE_ATTRIBUTE, [](At at) { return !at.behind.startsWith('&'); }, 0,
     "an attribute stands twice: \"{name}\""_L1},
    {XML_ERROR_DUPLICATE_ATTRIBUTE, always, 0, "an attribute stands twice, in an entity"_L1},
    {XML_ERROR_UNDEFINED_ENTITY,
     [](At at) { return at.behind.startsWith('&') && at.before.contains("<!ENTITY"); }, 0,
     "&{name}; leads to no entity that is declared; write the character itself"_L1},
    {XML_ERROR_UNDEFINED_ENTITY,
     [](At at) { return at.behind.startsWith('&') && namedCharacter(nameIn(at.behind)) != 0; }, 0,
     "XML does not know &{name};; write {written}"_L1},
    {XML_ERROR_UNDEFINED_ENTITY, [](At at) { return at.behind.startsWith('&'); }, 0,
     "XML does not know &{name};, only &amp; &lt; &gt; &quot; &apos;; write &amp; for a plain "
     "\"&\""_L1},
    {XML_ERROR_UNDEFINED_ENTITY, always, 0, "an entity that is not declared"_L1},
    {XML_ERROR_BAD_CHAR_REF, [](At at) { return at.behind.startsWith('&'); }, 0,
     "&{name}; is no character that XML allows"_L1},
    {XML_ERROR_BAD_CHAR_REF, always, 0, "a reference to what is no character"_L1},
    {XML_ERROR_RECURSIVE_ENTITY_REF, always, 0, "an entity that refers to itself"_L1},
    {XML_ERROR_BINARY_ENTITY_REF, always, 0, "an entity that is no text"_L1},
    {XML_ERROR_ATTRIBUTE_EXTERNAL_ENTITY_REF, always, 0,
     "an entity of another file in a value"_L1},
    {XML_ERROR_PARAM_ENTITY_REF, always, 0, "a parameter entity cannot stand here"_L1},
    {XML_ERROR_INCOMPLETE_PE, always, 0, "a parameter entity that is no whole declaration"_L1},
    {XML_ERROR_ENTITY_DECLARED_IN_PE, always, 0, "an entity that a parameter entity declares"_L1},
    {XML_ERROR_PUBLICID, always, 0, "a public identifier with a character that it cannot have"_L1},
    {XML_ERROR_AMPLIFICATION_LIMIT_BREACH, always, 0, "entities that make too much text"_L1},
    {XML_ERROR_NO_MEMORY, always, 0, "more than the memory can hold"_L1},
};
// clang-format on

} // namespace

XmlFault faultIn(const QByteArray &document, XML_Error error, qsizetype offset, const Tag *open,
                 bool isLeft)
{
    const Surroundings at(document, std::min(offset, document.size()), open, isLeft);
    const auto row =
        std::find_if(std::begin(wordings), std::end(wordings), [&](const Wording &candidate) {
            return candidate.error == error && candidate.fits(at);
        });
    if (row == std::end(wordings))
        return {offset, u"this is not well-formed"_s, false};
    QString words = row->words;
    words.replace("{written}"_L1, writtenFor(nameIn(at.behind)));
    words.replace("{name}"_L1, nameIn(at.behind));
    words.replace("{character}"_L1, characterIn(at.behind));
    words.replace("{value}"_L1, unquotedIn(at.behind));
    if (open) {
        words.replace("{open}"_L1, open->name);
        words.replace("{line}"_L1, QString::number(open->place.line));
    }
    return {at.startOf(row->lead), words, row->lead == toOpen};
}

} // namespace korvel::check

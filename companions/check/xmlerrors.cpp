// The words for each error of the XML parser.
#include "companions/check/xmlerrors.h"

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

bool isForbidden(QByteArrayView text)
{
    const auto code = static_cast<unsigned char>(text.isEmpty() ? ' ' : text.front());
    return (code < 0x20U && !isBlank(text.front())) || text.startsWith("\xEF\xBF\xBE")
           || text.startsWith("\xEF\xBF\xBF");
}

/// What stands around an error.
struct Surroundings
{
    QByteArrayView before;
    QByteArrayView behind;
    bool inRoot;
    bool inTag = false;   // behind the "<" of one and before its ">", in no value
    bool inValue = false; // of an attribute

    Surroundings(QByteArrayView document, qsizetype offset, bool isInRoot)
        : before(document.first(offset))
        , behind(document.sliced(offset))
        , inRoot(isInRoot)
    {
        const qsizetype start = before.lastIndexOf('<');
        if (start < 0 || before.sliced(start).startsWith("<!"))
            return;
        char quote = 0;
        for (const char c : before.sliced(start + 1)) {
            if (quote == 0 && c == '>')
                return;
            if (quote == c)
                quote = 0;
            else if (quote == 0 && (c == '"' || c == '\''))
                quote = c;
        }
        inTag = quote == 0;
        inValue = quote != 0;
    }

    [[nodiscard]] bool inReference() const
    {
        const auto start = std::find_if_not(before.rbegin(), before.rend(),
                                            [](char c) { return isOfName(c) || c == '#'; });
        return start != before.rend() && *start == '&';
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
// {name} is the name at the fault, {character} the character; {open} is the innermost open
// element and {line} its line. Of several rows for an error the first that fits counts.
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
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inReference(); }, 0,
     "the reference does not end in \";\"; end it, or write &amp; for its \"&\""_L1},
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
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith("<?"); }, 2,
     "\"<?\" without a name"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inRoot && at.before.endsWith("<!"); }, 2,
     "\"<!\" begins no comment and no CDATA section"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.before.endsWith('<'); }, 1,
     "\"<\" begins no tag; write &lt;"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.isUnquoted(); }, 0,
     "a value without quotes"_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.behind.startsWith('<'); }, 0,
     "the tag before this one has no \">\""_L1},
    {XML_ERROR_INVALID_TOKEN, [](At at) { return at.inTag && at.before.endsWith('/'); }, 1,
     "\"/\" in a tag without a \">\" behind it"_L1},
    {XML_ERROR_INVALID_TOKEN,
     [](At at) { return at.inTag && (at.before.endsWith('"') || at.before.endsWith('\'')); }, 0,
     "no blank between a value and what follows"_L1},
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
     "the reference does not end in \";\"; end it, or write &amp; for its \"&\""_L1},
    {XML_ERROR_UNCLOSED_TOKEN, always, 0, "what begins here does not end"_L1},
    {XML_ERROR_UNCLOSED_CDATA_SECTION, always, 0, "a CDATA section without its \"]]>\""_L1},

    {XML_ERROR_NO_ELEMENTS, [](At at) { return at.inRoot; }, 0,
     "<{open}> of line {line} is not closed"_L1},
    {XML_ERROR_NO_ELEMENTS, always, 0, "there is no element"_L1},
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
     "the XML declaration has something in front of it"_L1},
    {XML_ERROR_XML_DECL, always, 0, "this is no XML declaration"_L1},

    {XML_ERROR_DUPLICATE_ATTRIBUTE, [](At at) { return !at.behind.startsWith('&'); }, 0,
     "an attribute stands twice: \"{name}\""_L1},
    {XML_ERROR_DUPLICATE_ATTRIBUTE, always, 0, "an attribute stands twice, in an entity"_L1},
    {XML_ERROR_UNDEFINED_ENTITY, [](At at) { return at.behind.startsWith('&'); }, 0,
     "&{name}; leads to no entity that is declared; write the character itself"_L1},
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

XmlFault faultIn(const QByteArray &document, XML_Error error, qsizetype offset,
                 const Tag *innermost)
{
    const Surroundings at(document, std::min(offset, document.size()), innermost);
    const auto row =
        std::find_if(std::begin(wordings), std::end(wordings), [&](const Wording &candidate) {
            return candidate.error == error && candidate.fits(at);
        });
    if (row == std::end(wordings))
        return {offset, u"this is not well-formed"_s};
    QString words = row->words;
    words.replace("{name}"_L1, nameIn(at.behind));
    words.replace("{character}"_L1, characterIn(at.behind));
    if (innermost) {
        words.replace("{open}"_L1, innermost->name);
        words.replace("{line}"_L1, QString::number(innermost->place.line));
    }
    return {offset - row->lead, words};
}

} // namespace korvel::check

// What stands around an error of the XML parser.
#include "companions/check/xmlsurroundings.h"

#include "companions/check/words.h"
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

} // namespace

XmlSurroundings::XmlSurroundings(QByteArrayView document, qsizetype offset, bool isInRoot,
                                 bool isLeftOpen)
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

qsizetype XmlSurroundings::startOf(qsizetype lead) const
{
    if (lead == toReference)
        return before.lastIndexOf('&');
    if (lead == toTag)
        return tag;
    if (lead == toOpen)
        return before.size();
    if (lead == toSection)
        return before.lastIndexOf("<![CDATA[");
    return lead == toQuote ? quote : before.size() - lead;
}

QString XmlSurroundings::name() const
{
    const qsizetype start = behind.startsWith('&') ? 1 : 0;
    const auto end = std::find_if_not(behind.begin() + start, behind.end(),
                                      [](char c) { return isOfName(c) || c == '#'; });
    return QString::fromUtf8(behind.sliced(start, end - behind.begin() - start));
}

QString XmlSurroundings::character() const
{
    const char32_t code = firstOf(behind);
    if (code == U' ' || (shared::isPrintable(code) && !QChar::isSpace(code)))
        return u'"' + QString::fromUcs4(&code, 1) + u'"';
    return u"U+"_s + QString::number(code, 16).toUpper().rightJustified(4, u'0');
}

QString XmlSurroundings::value() const
{
    const auto end = std::find_if(behind.begin(), behind.end(),
                                  [](char c) { return isBlank(c) || c == '>' || c == '<'; });
    QByteArrayView text = behind.first(end - behind.begin());
    if (end != behind.end() && *end == '>' && text.endsWith('/'))
        text.chop(1);
    return shared::quoted(QString::fromUtf8(text));
}

bool XmlSurroundings::isAtForbidden() const
{
    const auto code = static_cast<unsigned char>(behind.isEmpty() ? ' ' : behind.front());
    return (code < 0x20U && !isBlank(behind.front())) || behind.startsWith("\xEF\xBF\xBE")
           || behind.startsWith("\xEF\xBF\xBF");
}

bool XmlSurroundings::isAtOtherQuote() const
{
    const char32_t first = firstOf(behind);
    return std::any_of(otherQuotes.begin(), otherQuotes.end(),
                       [&](QChar other) { return other.unicode() == first; });
}

bool XmlSurroundings::isBehindBlank() const { return isBlank(before.back()); }

bool XmlSurroundings::inReference() const
{
    const auto start = std::find_if_not(before.rbegin(), before.rend(),
                                        [](char c) { return isOfName(c) || c == '#'; });
    return start != before.rend() && *start == '&';
}

bool XmlSurroundings::leavesLine() const { return before.sliced(quote).contains('\n'); }

bool XmlSurroundings::isBehindValue() const
{
    return inTag && (before.endsWith('"') || before.endsWith('\''));
}

bool XmlSurroundings::isBehindEndName() const
{
    return inTag && before.sliced(tag).startsWith("</")
           && (isBehindBlank() || isOfName(before.back()));
}

bool XmlSurroundings::tookNext() const { return before.chopped(1).endsWith('='); }

bool XmlSurroundings::hasAttributeBehind() const
{
    const auto end = std::find_if_not(behind.begin(), behind.end(), isOfName);
    return end != behind.begin() && end != behind.end() && (*end == '=' || isBlank(*end));
}

bool XmlSurroundings::beginsTagWithBlank() const
{
    const QByteArrayView next = behind.trimmed();
    return before.endsWith('<') && before.chopped(1).trimmed().endsWith('>')
           && !behind.startsWith(next) && QChar::isLetter(firstOf(next));
}

bool XmlSurroundings::isUnquoted() const { return inTag && before.trimmed().endsWith('='); }

bool XmlSurroundings::lacksValue() const
{
    const char32_t next = firstOf(behind);
    const bool beginsName = QChar::isLetter(next) || next == U'_' || next == U':';
    return inTag && (next == U'/' || next == U'>' || (isBehindBlank() && beginsName));
}

bool XmlSurroundings::isOutside() const { return !inRoot && !before.contains("<!DOCTYPE"); }

} // namespace korvel::check

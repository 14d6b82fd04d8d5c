// The bytes of a settings file, looked into.
#include "companions/check/scan.h"

#include <QChar>

#include <algorithm>
#include <cstring>

namespace korvel::check {

namespace {

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

bool isOfAName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
           || c == '-';
}

} // namespace

bool Scan::isSpace(qint64 at) const { return QChar(QLatin1Char(bytes[at])).isSpace(); }

qint64 Scan::behindSpace(qint64 from) const
{
    while (from < size() && isSpace(from))
        ++from;
    return from;
}

qint64 Scan::trimmedEnd(qint64 limit, qint64 end) const
{
    while (end > limit && isSpace(end - 1))
        --end;
    return end;
}

qint64 Scan::lineEnd(qint64 from, qint64 limit) const
{
    while (from < limit && !isLineEnd(bytes[from]))
        ++from;
    return from;
}

bool Scan::endsLine(qint64 at) const
{
    while (at < size() && isSpace(at) && !isLineEnd(bytes[at]))
        ++at;
    return at == size() || isLineEnd(bytes[at]);
}

bool Scan::beginsLine(qint64 at) const { return indentOf(at) >= 0; }

qint64 Scan::indentOf(qint64 at) const
{
    qint64 before = at;
    while (before > 0 && !isLineEnd(bytes[before - 1])) {
        if (!isSpace(--before))
            return -1;
    }
    return at - before;
}

qint64 Scan::nextOf(QByteArrayView marks, qint64 from) const
{
    while (from < size() && !isOneOf(marks, from))
        ++from;
    return from;
}

qint64 Scan::next(char c, qint64 from) const
{
    const qint64 found = bytes.indexOf(c, from);
    return found < 0 ? size() : found;
}

/// Behind the next such mark; the end of the line when there is none near.
qint64 Scan::behind(const char *mark, qint64 from) const
{
    constexpr qint64 longest = 4096; // comment, so that not all of a file is searched for each
    from = std::min(from, size());
    const qint64 length = std::min(longest, size() - from);
    const qint64 found = QByteArrayView(bytes).sliced(from, length).indexOf(mark);
    return found < 0 ? lineEnd(from) : from + found + qint64(std::strlen(mark));
}

bool Scan::beginsComment(qint64 at) const
{
    const QByteArrayView rest = QByteArrayView(bytes).sliced(at);
    return rest.startsWith('#') || rest.startsWith("//") || rest.startsWith("--")
           || rest.startsWith("/*") || rest.startsWith("<!--") || rest.startsWith(';');
}

/// Behind a comment up to the end of its line. When it has the head of a group, and what is in the
/// group is not commented out, only the mark is one.
qint64 Scan::behindLineComment(qint64 at, qint64 text) const
{
    const qint64 end = lineEnd(at);
    const qint64 name = behindSpace(text);
    if (name < end && isNameBefore(":", name)) {
        const qint64 brace = behindSpace(behindSpace(wordEnd(name)) + 1);
        const qint64 inner = brace < size() ? behindSpace(brace + 1) : brace;
        if (inner < size() && bytes[brace] == '{' && endsLine(brace + 1) && !beginsComment(inner))
            return name;
    }
    return end;
}

/// Whether the line before that of a place begins with a semicolon.
bool Scan::isBehindSemicolon(qint64 at) const
{
    const qint64 end = std::max<qint64>(at - indentOf(at) - 1, 0);
    qint64 begin = end;
    while (begin > 0 && !isLineEnd(bytes[begin - 1]))
        --begin;
    const qint64 text = behindSpace(begin);
    return text < end && bytes[text] == ';';
}

qint64 Scan::behindComment(qint64 at) const
{
    const QByteArrayView rest = QByteArrayView(bytes).sliced(at);
    if (rest.startsWith("/*"))
        return behind("*/", at + 2);
    if (rest.startsWith("<!--"))
        return behind("-->", at + 4);
    if (rest.startsWith('#'))
        return behindLineComment(at, at + 1);
    if (rest.startsWith("//") || rest.startsWith("--"))
        return behindLineComment(at, at + 2);
    // A semicolon alone in its line, or before a } if no comment precedes, rather ends something.
    if (rest.startsWith(';') && beginsLine(at)) {
        const qint64 text = behindSpace(at + 1);
        if (text < lineEnd(at + 1) && (bytes[text] != '}' || isBehindSemicolon(at)))
            return behindLineComment(at, at + 1);
    }
    return at;
}

qint64 Scan::behindSpaceAndComments(qint64 from) const
{
    for (qint64 at = behindSpace(from);; from = at) {
        at = at < size() ? behindSpace(behindComment(at)) : at;
        if (at == from)
            return at;
    }
}

qint64 Scan::wordEnd(qint64 at) const
{
    while (at < size() && isOfAName(bytes[at]))
        ++at;
    return at;
}

bool Scan::isNameBefore(QByteArrayView marks, qint64 at) const
{
    const qint64 end = wordEnd(at);
    const qint64 mark = behindSpace(end);
    return end > at && isOneOf(marks, mark);
}

bool Scan::isSwallowing(qint64 from, qint64 to, bool nameFollows) const
{
    enum { Name, Value, ToBrace, ToSemicolon } reads = Name;
    bool hasText = false; // in a name
    qint64 depth = 0;
    for (qint64 at = from; at < to; ++at) {
        const char c = bytes[at];
        const auto before = reads;
        if (reads == Name) {
            reads = c == ':' ? ToBrace : c == '=' ? Value : c == '}' ? ToSemicolon : Name;
            hasText = hasText || !isSpace(at);
            depth -= c == '}' ? 1 : 0;
            if (depth < 0)
                // Followed by the } that it seems to be, it makes one of both.
                return nameFollows || next(';', at) < to;
        } else if (c == (reads == ToBrace ? '{' : ';')) {
            depth += reads == ToBrace ? 1 : 0;
            reads = Name;
        }
        if (reads != before)
            hasText = false;
    }
    return reads != Name || depth != 0 || (nameFollows && hasText);
}

} // namespace korvel::check

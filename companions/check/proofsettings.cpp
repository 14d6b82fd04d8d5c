// The settings of a settings file: marks around a value that are missing or other ones.
#include "companions/check/proofreader.h"

#include "companions/check/settingwords.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

struct Quote
{
    QByteArrayView bytes;
    const char *shown;
};

// In UTF-8, then in Windows-1252, where they must not be bytes of UTF-8.
constexpr Quote quoteMarks[] = {
    {"\xE2\x80\x9C", "\u201C"},
    {"\xE2\x80\x9D", "\u201D"},
    {"\xE2\x80\x9E", "\u201E"},
    {"\xE2\x80\x9F", "\u201F"},
    {"\xE2\x80\x98", "\u2018"},
    {"\xE2\x80\x99", "\u2019"},
    {"\xE2\x80\x9A", "\u201A"},
    {"\xE2\x80\xB2", "\u2032"},
    {"\xE2\x80\xB3", "\u2033"},
    {"\xC2\xAB", "\u00AB"},
    {"\xC2\xBB", "\u00BB"},
    {"'", "'"},
    {"`", "`"},
    {"\x93", "\u201C"},
    {"\x94", "\u201D"},
    {"\x84", "\u201E"},
    {"\x91", "\u2018"},
    {"\x92", "\u2019"},
    {"\x82", "\u201A"},
    {"\xAB", "\u00AB"},
    {"\xBB", "\u00BB"},
};

bool isBeyondAscii(char c) { return static_cast<unsigned char>(c) >= 0x80U; }

/// The quote of another kind that a text begins with; null when it begins with none.
const Quote *quoteAtBegin(QByteArrayView text)
{
    for (const Quote &quote : quoteMarks) {
        const bool isAlone = quote.bytes.size() > 1 || text.size() < 2 || !isBeyondAscii(text[1]);
        if (text.startsWith(quote.bytes) && isAlone)
            return &quote;
    }
    return nullptr;
}

/// Likewise, that it ends with.
const Quote *quoteAtEnd(QByteArrayView text)
{
    for (const Quote &quote : quoteMarks) {
        const bool isAlone =
            quote.bytes.size() > 1 || text.size() < 2 || !isBeyondAscii(text[text.size() - 2]);
        if (text.endsWith(quote.bytes) && isAlone)
            return &quote;
    }
    return nullptr;
}

bool isSwitch(const QString &name)
{
    const vocabulary::Setting *setting =
        vocabulary::findSetting(meantKey(vocabulary::group::doc, name));
    return setting && setting->kind == vocabulary::Kind::Switch;
}

} // namespace

/// Reads settings without an equals sign, each a line; where what stands behind them begins.
qint64 Proofreader::addEquals(qint64 from, qint64 end)
{
    while (from < end) {
        const qint64 nameEnd = scan.wordEnd(from);
        const QString name = latin1(from, nameEnd);
        if (!isSetting(name) || scan.behindComment(from) > from)
            break;
        const qint64 lineEnd = scan.trimmedEnd(from, scan.lineEnd(from, end));
        const auto text = QByteArrayView(bytes).first(lineEnd);
        const qint64 found = text.indexOf(';', nameEnd);
        const qint64 mark = found < 0 ? lineEnd : found;
        note(Code::Unterminated, from,
             filled(phrase::noEquals, excerpt(from, std::min(mark + 1, lineEnd))), pathOf(name));
        const bool hasValue = scan.behindSpace(nameEnd) < mark;
        if (!hasValue && !isSwitch(name)) {
            change(from, std::min(mark + 1, lineEnd) - from, {});
        } else {
            change(nameEnd, 0, hasValue ? "=" : "=true");
            if (mark == lineEnd)
                change(lineEnd, 0, ";");
        }
        from = scan.behindSpace(std::min(mark + 1, end));
    }
    return from;
}

/// @param isSaid whether something is found wrong with it already
void Proofreader::readSetting(const Name &name, bool isSaid)
{
    const qint64 begin = scan.behindSpace(name.mark + 1);
    if (isAt(begin, '{') && (isTop(name.text) || isGroup(name.text) || scan.endsLine(begin + 1))) {
        noteOtherMark(name.mark, u"="_s, ':', name.text);
        change(name.mark, 1, ":");
        open(name, begin + 1);
        return;
    }
    if (!groups.isEmpty())
        groups.back().hasSettings = true;
    if (groups.size() == 1 && lastClosed && !lastInner && isSetting(name.text))
        lastInner = lastClosed;
    const qint64 value = readEquals(name, isSaid);
    const qint64 last = nextSemicolon(value);
    if (name.text.isEmpty()) {
        note(Code::Unterminated, name.mark,
             filled(phrase::noSettingName, excerpt(value, std::min(last, scan.lineEnd(value)))));
        isSaid = true;
    }
    const qint64 missing = missingSemicolon(value, last);
    const qint64 end = missing < 0 ? last : endValue(name, value, missing, isSaid);
    mendQuotes(name, scan.behindSpace(value), scan.trimmedEnd(value, end), isSaid || missing >= 0);
    position = lastEnd = missing < 0 ? std::min(last + 1, bytes.size()) : missing;
}

/// Reads what stands for an equals sign; where the value begins.
qint64 Proofreader::readEquals(const Name &name, bool &isSaid)
{
    const qint64 second = name.mark + 1;
    if (!scan.isOneOf("=>:", second))
        return second;
    if (!isSaid)
        noteOtherMark(name.mark, latin1(name.mark, second + 1), '=', name.text);
    isSaid = true;
    change(second, 1, {});
    return second + 1;
}

/// Puts a semicolon where a value lacks it, or has another mark in its place; where the value ends.
qint64 Proofreader::endValue(const Name &name, qint64 value, qint64 missing, bool isSaid)
{
    const bool hasOther = missing > value + 1
                          && (scan.isOneOf(",:", missing - 1)
                              || (scan.isOneOf(".!", missing - 1) && isAt(missing - 2, '"')));
    const qint64 end = hasOther ? missing - 1 : missing;
    if (!isSaid) {
        const QString path = shownPathOf(name.text);
        const QString read = excerpt(value, nextSemicolon(value));
        const QString other = filled(phrase::otherMark, latin1(end, missing), u";", path);
        note(Code::Unterminated, missing,
             hasOther ? filled(phrase::readAs, other, read)
                      : filled(phrase::noSemicolon, path, read),
             pathOf(name.text));
    }
    change(end, missing - end, ";");
    return end;
}

/// Takes quotes of another kind around a value out.
void Proofreader::mendQuotes(const Name &name, qint64 begin, qint64 end, bool isSaid)
{
    if (begin >= end)
        return;
    const auto text = QByteArrayView(bytes).sliced(begin, end - begin);
    const Quote *first = quoteAtBegin(text);
    const Quote *last = quoteAtEnd(text);
    if (!first && !last)
        return;
    if (!isSaid)
        note(Code::Unterminated, name.begin,
             filled(phrase::otherQuote, QString::fromUtf8((first ? first : last)->shown),
                    shownPathOf(name.text)),
             pathOf(name.text));
    if (first)
        change(begin, first->bytes.size(), "\"");
    if (last && end - last->bytes.size() > begin)
        change(end - last->bytes.size(), last->bytes.size(), "\"");
}

/// Where a value lacks its ';' when another statement begins before the next one; -1 when none
/// does.
qint64 Proofreader::missingSemicolon(qint64 from, qint64 to) const
{
    const qint64 firstEnd = scan.lineEnd(from, to);
    bool isQuoted = false;
    for (qint64 at = from; at < firstEnd; ++at) {
        if (bytes[at] == '"') {
            isQuoted = !isQuoted;
            continue;
        }
        if (isQuoted || scan.isSpace(at))
            continue;
        const bool closes = bytes[at] == '}' && scan.behindSpace(at + 1) >= firstEnd;
        if (closes
            || ((scan.isSpace(at - 1) || bytes[at - 1] == '"') && scan.isNameBefore("=:", at)
                && isKnown(latin1(at, scan.wordEnd(at)))))
            return scan.trimmedEnd(from, at);
    }
    qint64 lastEndOfText = scan.trimmedEnd(from, firstEnd);
    for (qint64 line = firstEnd; line < to; line = scan.lineEnd(line, to)) {
        line = scan.behindSpace(line);
        if (line >= to)
            break;
        if (closesGroup(line) || scan.behindComment(line) > line || scan.isNameBefore("=:", line))
            return lastEndOfText;
        lastEndOfText = scan.trimmedEnd(line, scan.lineEnd(line, to));
    }
    return -1;
}

} // namespace korvel::check

// The statements of a settings file: names, and what is stray before them.
#include "companions/check/proofreader.h"

#include "companions/check/settingwords.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

bool isTop(const QString &name) { return isNear(name, {vocabulary::group::korvel}); }
bool isGroup(const QString &name) { return isNear(name, vocabulary::groupNames()); }

bool isSetting(const QString &name)
{
    static const QStringList names =
        keysOf(vocabulary::group::doc) + keysOf(vocabulary::group::language);
    return isNear(name, names);
}

bool isKnown(const QString &name) { return isSetting(name) || isGroup(name) || isTop(name); }

QString Proofreader::latin1(qint64 from, qint64 to) const
{
    return QString::fromLatin1(QByteArrayView(bytes).sliced(from, to - from));
}

/// A text in quotes, as its author sees it, or the beginning of it.
QString Proofreader::excerpt(qint64 from, qint64 to) const
{
    constexpr qint64 enough = 200;
    to = std::min(to, from + enough);
    // All bytes of a character of UTF-8.
    const auto byteAt = [&](qint64 at) { return static_cast<unsigned char>(bytes[at]); };
    while (to > from && to < bytes.size() && byteAt(to - 1) >= 0x80U
           && (byteAt(to) & 0xC0U) == 0x80U)
        ++to;
    return quoted(asSeen(latin1(from, to)).remove(u'"').simplified());
}

QStringList Proofreader::pathOf(const QString &name) const
{
    constexpr qsizetype deepest = 8; // of what could be meant
    QStringList path;
    for (qsizetype i = 0; i < std::min(deepest, groups.size()); ++i)
        path.append(groups[i].name);
    return path + QStringList(name);
}

QString Proofreader::shownPathOf(const QString &name) const
{
    return shared::inOneLine(asSeen(pathOf(name).join(u'.')), u' ');
}

QString Proofreader::innermost() const { return shownPathOf({}).chopped(1); }

qint64 Proofreader::nextSemicolon(qint64 from)
{
    if (semicolon < from)
        semicolon = scan.next(';', from);
    return semicolon;
}

void Proofreader::note(Code code, qint64 offset, const QString &text, const QStringList &setting)
{
    notation.slips.append({code, offset, text, setting});
}

/// @param name of a setting for an = or a ;, else of a group
void Proofreader::noteOtherMark(qint64 offset, const QString &mark, char meant, const QString &name)
{
    const QString path = shownPathOf(name);
    const QString owner = meant == '=' ? path : filled(phrase::theGroup, path);
    note(Code::Unterminated, offset,
         filled(phrase::otherMark, mark, QChar::fromLatin1(meant), owner), pathOf(name));
}

void Proofreader::change(qint64 offset, qint64 length, const QByteArray &text)
{
    notation.edits.append({offset, length, text});
}

Notation Proofreader::read(qint64 from)
{
    lastEnd = from;
    for (position = from; position < bytes.size();) {
        const Name name = nextName();
        if (name.mark == bytes.size())
            break;
        readStatement(name);
    }
    end();
    std::stable_sort(notation.edits.begin(), notation.edits.end(),
                     [](const Edit &a, const Edit &b) { return a.offset < b.offset; });
    return notation;
}

/// The name is what stands behind the last line end, ';' or comment before the mark; of several
/// words before an equals sign the last one alone if it is known.
Proofreader::Name Proofreader::nextName() const
{
    Name name{scan.behindSpace(lastEnd), -1, -1, 0, {}};
    qint64 word = 0;
    bool isNew = true; // what comes next begins a name
    qint64 at = position;
    while (at < bytes.size() && !scan.isOneOf(":={", at) && !closesGroup(at)) {
        const bool beginsWord = at == position || scan.isSpace(at - 1) || bytes[at - 1] == ';';
        const bool endsName = bytes[at] == ';' || bytes[at] == '\n' || bytes[at] == '\r';
        if (const qint64 behind = beginsWord ? scan.behindComment(at) : at; behind > at) {
            at = behind;
            isNew = true;
            continue;
        }
        if (bytes[at] == ';' && at == name.stray && scan.beginsLine(at))
            break;
        if (!endsName && !scan.isSpace(at)) {
            if (isNew)
                name.begin = at;
            if (isNew || beginsWord)
                word = at;
            name.end = at + 1;
        }
        isNew = endsName || (isNew && scan.isSpace(at));
        ++at;
    }
    name.mark = at;
    if (name.begin < 0 || name.begin < name.stray)
        name.begin = name.end = at;
    else if (isAt(at, '=') && word > name.begin && isKnown(latin1(word, name.end)))
        name.begin = word;
    name.text = latin1(name.begin, name.end);
    return name;
}

/// Whether a } stands there, or another bracket in its place.
bool Proofreader::closesGroup(qint64 at) const
{
    if (!scan.isOneOf("}])>", at) || bytes[at] == '}')
        return isAt(at, '}');
    return !groups.isEmpty() && (groups.back().closing == bytes[at] || scan.beginsLine(at))
           && (scan.endsLine(at + 1) || isAt(scan.behindSpace(at + 1), ';'));
}

void Proofreader::readStatement(const Name &name)
{
    switch (const char mark = bytes[name.mark]; mark) {
    case ':':
        readColon(name);
        break;
    case '=':
        takeStrayOut(name, name.begin);
        readSetting(name);
        break;
    case '{':
        if (name.text.isEmpty()) {
            readBraceAlone(name);
            break;
        }
        takeStrayOut(name, name.begin);
        readHeadWithoutColon(name);
        break;
    case ';': // alone
        if (!groups.isEmpty()) {
            note(Code::Unterminated, name.mark, filled(phrase::groupOpen, innermost()));
            change(name.mark, 0, "}");
            groups.removeLast();
            lastEnd = name.mark + 1;
        }
        position = name.mark + 1;
        break;
    default: // of brackets
        takeStrayOut(name, name.mark);
        if (mark != '}') {
            if (groups.back().closing != mark)
                note(Code::Unterminated, name.mark,
                     filled(phrase::otherMark, QChar::fromLatin1(mark), u"}",
                            filled(phrase::theGroup, innermost())));
            change(name.mark, 1, "}");
        }
        close(name.mark);
    }
}

/// What stands before a statement, up to there, and is no statement.
void Proofreader::takeStrayOut(const Name &name, qint64 end)
{
    end = scan.trimmedEnd(name.stray, end);
    const qint64 stray = addEquals(name.stray, end);
    if (end <= stray)
        return;
    const bool closes = closesGroup(name.mark);
    // What is swallowed before the end, or is not, is nothing that could be lost.
    if (!scan.isSwallowing(stray, end, !closes) || (closes && lastEquals < end))
        return;
    const QString path = shownPathOf(name.text);
    const QString lost = closes                 ? QString(phrase::whatFollows)
                         : isAt(name.mark, '=') ? path
                         : name.text.isEmpty()  ? QString(phrase::whatFollows)
                                                : filled(phrase::theGroup, path);
    note(Code::Comment, stray,
         worded(Code::Comment, excerpt(stray, scan.lineEnd(stray, end)), lost),
         pathOf(latin1(stray, name.end)));
    change(stray, end - stray, {});
}

} // namespace korvel::check

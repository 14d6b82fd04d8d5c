// The statements of a settings file: names, what is stray before them, and values.
#include "companions/check/proofreader.h"

#include "companions/check/vocabulary.h"
#include "companions/check/words.h"
#include "companions/shared/nearest.h"
#include "companions/shared/oneline.h"

#include <algorithm>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// Whether a name is one of these, or misspelt so that it can be told which.
bool isNear(const QString &name, const QStringList &names)
{
    return names.contains(name) || !shared::nearest(name, names).isEmpty();
}

const QStringList &settingNames()
{
    static const QStringList names = [] {
        QStringList all;
        for (const vocabulary::Setting &row : vocabulary::settings())
            all.append(row.key);
        for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
            all.append(row.key);
        return all;
    }();
    return names;
}

} // namespace

bool isTop(const QString &name) { return isNear(name, {vocabulary::group::korvel}); }
bool isGroup(const QString &name) { return isNear(name, vocabulary::groupNames()); }
bool isSetting(const QString &name) { return isNear(name, settingNames()); }

namespace {

bool isKnown(const QString &name) { return isSetting(name) || isGroup(name) || isTop(name); }

} // namespace

QString Proofreader::latin1(qint64 from, qint64 to) const
{
    return QString::fromLatin1(QByteArrayView(bytes).sliced(from, to - from));
}

/// A text in quotes, as the store reads it, or the beginning of it.
QString Proofreader::excerpt(qint64 from, qint64 to) const
{
    constexpr qint64 enough = 100;
    return quoted(latin1(from, std::min(to, from + enough)).remove(u'"').simplified());
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
    return shared::inOneLine(pathOf(name).join(u'.'), u' ');
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
/// words there the last one alone if it is known.
Proofreader::Name Proofreader::nextName() const
{
    Name name{scan.behindSpace(lastEnd), -1, -1, 0, {}};
    qint64 word = 0;
    bool isNew = true; // what comes next begins a name
    qint64 at = position;
    while (at < bytes.size() && !std::strchr(":={}", bytes[at])) {
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
    else if (word > name.begin && isKnown(latin1(word, name.end)))
        name.begin = word;
    name.text = latin1(name.begin, name.end);
    return name;
}

void Proofreader::readStatement(const Name &name)
{
    switch (bytes[name.mark]) {
    case ':':
        readColon(name);
        break;
    case '=':
        takeStrayOut(name, name.begin);
        readSetting(name);
        break;
    case '}':
        takeStrayOut(name, name.mark);
        close(name.mark);
        break;
    case '{':
        if (name.text.isEmpty()) {
            position = name.mark + 1; // it becomes part of the next name
            break;
        }
        takeStrayOut(name, name.begin);
        note(Code::Unterminated, name.end, filled(phrase::noColon, shownPathOf(name.text)),
             pathOf(name.text));
        change(name.end, 0, ":");
        open(name, name.mark + 1);
        break;
    default: // a ';' alone
        if (!groups.isEmpty()) {
            note(Code::Unterminated, name.mark, filled(phrase::groupOpen, innermost()));
            change(name.mark, 0, "}");
            groups.removeLast();
            lastEnd = name.mark + 1;
        }
        position = name.mark + 1;
    }
}

/// What stands before a statement, up to there, and is no statement.
void Proofreader::takeStrayOut(const Name &name, qint64 end)
{
    end = scan.trimmedEnd(name.stray, end);
    if (end <= name.stray)
        return;
    const qint64 line = scan.lineEnd(name.stray, end);
    const bool noEquals = isSetting(latin1(name.stray, scan.wordEnd(name.stray)));
    if (noEquals) {
        note(Code::Unterminated, name.stray, filled(phrase::noEquals, excerpt(name.stray, line)),
             pathOf(latin1(name.stray, end)));
    } else if (!scan.isSwallowing(name.stray, end, bytes[name.mark] != '}')
               || (bytes[name.mark] == '}' && lastEquals < end)) { // nothing that could be lost
        return;
    } else {
        const QString path = shownPathOf(name.text);
        const QString lost = bytes[name.mark] == '}'   ? QString(phrase::whatFollows)
                             : bytes[name.mark] == '=' ? path
                                                       : filled(phrase::theGroup, path);
        note(Code::Comment, name.stray, worded(Code::Comment, excerpt(name.stray, line), lost),
             pathOf(latin1(name.stray, name.end)));
    }
    change(name.stray, end - name.stray, {});
}

void Proofreader::readSetting(const Name &name)
{
    const qint64 value = name.mark + 1;
    const qint64 begin = scan.behindSpace(value);
    const qint64 last = nextSemicolon(value);
    if (isAt(begin, '{') && (isTop(name.text) || isGroup(name.text))) {
        note(Code::Unterminated, name.begin,
             filled(phrase::equalsBefore, shared::inOneLine(name.text, u' ')), pathOf(name.text));
        change(name.mark, 1, ":");
        open(name, begin + 1);
        return;
    }
    if (groups.size() == 1 && lastClosed && !lastInner && isSetting(name.text))
        lastInner = lastClosed;
    const qint64 missing = missingSemicolon(value, last);
    if (missing < 0) {
        position = lastEnd = std::min(last + 1, bytes.size());
        return;
    }
    note(Code::Unterminated, missing,
         filled(phrase::noSemicolon, shownPathOf(name.text), excerpt(value, last)),
         pathOf(name.text));
    const bool isComma = missing > value && bytes[missing - 1] == ',';
    change(isComma ? missing - 1 : missing, isComma ? 1 : 0, ";");
    position = lastEnd = missing;
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
        if (bytes[line] == '}' || scan.behindComment(line) > line || scan.isNameBefore("=:", line))
            return lastEndOfText;
        lastEndOfText = scan.trimmedEnd(line, scan.lineEnd(line, to));
    }
    return -1;
}

} // namespace korvel::check

// The groups of a settings file: what begins and ends them, or does not.
#include "companions/check/proofreader.h"

#include "companions/check/settingsgroups.h"
#include "companions/check/settingwords.h"
#include "companions/check/words.h"
#include "companions/shared/oneline.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// What closes what this opens; nothing for no bracket.
char closingOf(char bracket)
{
    return bracket == '[' ? ']' : bracket == '(' ? ')' : bracket == '<' ? '>' : '\0';
}

} // namespace

/// A group, or a setting with the wrong mark, or a text that has a colon in it.
void Proofreader::readColon(const Name &name)
{
    const qint64 behind = behindColons(name.mark);
    const qint64 mark = scan.nextOf(":={};", behind); // that comes next
    const bool hasText = !scan.endsLine(behind);
    if (isAt(behind, '=')) {
        takeStrayOut(name, name.begin);
        readColonEquals(name, behind);
        return;
    }
    if (!isAt(mark, '{') && hasText && !isTop(name.text) && !isGroup(name.text)
        && !isSetting(name.text)) {
        position = scan.lineEnd(behind);
        return;
    }
    takeStrayOut(name, name.begin);
    if (!isAt(mark, '{') && hasText && isSetting(name.text)) {
        noteOtherMark(name.mark, u":"_s, '=', name.text);
        change(name.mark, 1, "=");
        readSetting(name, true);
        return;
    }
    readGroup(name);
}

/// A setting, or a group, with := behind its name.
void Proofreader::readColonEquals(Name name, qint64 equals)
{
    const qint64 brace = scan.behindSpace(equals + 1);
    if (isAt(brace, '{')) {
        noteOtherMark(name.mark, u":="_s, ':', name.text);
        change(equals, 1, {});
        open(name, brace + 1);
        return;
    }
    noteOtherMark(name.mark, u":="_s, '=', name.text);
    change(name.mark, equals - name.mark, {});
    name.mark = equals;
    readSetting(name, true);
}

qint64 Proofreader::behindColons(qint64 colon) const
{
    while (isAt(colon, ':'))
        ++colon;
    return colon;
}

void Proofreader::readGroup(const Name &name)
{
    const qint64 behind = behindColons(name.mark);
    const qint64 meant = scan.behindSpaceAndComments(behind);
    const qint64 found = std::min(scan.next('{', behind), meant);
    if (isAt(meant, '{') && found < meant) {
        const qint64 comment = scan.behindSpace(behind);
        note(Code::Comment, comment,
             worded(Code::Comment, excerpt(comment, scan.lineEnd(comment)), phrase::whatFollows));
        change(behind, meant - behind, {});
    }
    // The renderer passes over other text before it.
    const qint64 mark = isAt(meant, '{') ? meant : scan.nextOf(":={};", meant);
    if (isAt(mark, '{')) {
        if (name.text.isEmpty())
            change(name.mark, 0, namelessGroup);
        open(name, mark + 1);
        return;
    }
    if (readOtherBrace(name, meant))
        return;
    // It belongs into an empty line, if there is one.
    const qint64 line = std::min(scan.lineEnd(behind) + 1, bytes.size());
    const bool isEmpty = scan.behindSpace(line) > scan.lineEnd(line);
    note(Code::Unterminated, isEmpty ? line : behind,
         filled(phrase::noBrace, shownPathOf(name.text)), pathOf(name.text));
    // Another word may stand in its place.
    const qint64 end = mark < scan.lineEnd(behind) ? behind : scan.lineEnd(behind);
    change(behind, end - behind, "{");
    open(name, end);
}

/// A group that begins with another bracket; false when it does not.
bool Proofreader::readOtherBrace(const Name &name, qint64 brace)
{
    const char closing = brace < bytes.size() ? closingOf(bytes[brace]) : '\0';
    if (closing == '\0' || !scan.isNameBefore("=:", scan.behindSpaceAndComments(brace + 1)))
        return false;
    noteOtherMark(brace, QChar::fromLatin1(bytes[brace]), '{', name.text);
    change(brace, 1, "{");
    open(name, brace + 1);
    groups.back().closing = closing;
    return true;
}

/// A name with a { behind it.
void Proofreader::readHeadWithoutColon(const Name &name)
{
    const QString meant = meantGroup(name.text);
    const bool isOther = meant != name.text && !isTop(name.text);
    note(Code::Unterminated, name.end,
         filled(phrase::noColon, shownPathOf(name.text), isOther ? orName(meant) : QString()),
         pathOf(name.text));
    change(name.end, 0, ":");
    open(name, name.mark + 1);
}

/// A { without a name before it.
void Proofreader::readBraceAlone(const Name &name)
{
    takeStrayOut(name, name.mark);
    // Settings in the outermost group rather lack the name of theirs.
    const qint64 inner = scan.behindSpaceAndComments(name.mark + 1);
    const bool hasSettings = groups.size() == 1 && scan.isNameBefore("=", inner);
    const bool isSecond = lastEnd > 0 && bytes[lastEnd - 1] == '{';
    if (isSecond && !hasSettings && scan.behindSpace(lastEnd) == name.mark) {
        note(Code::Unterminated, name.mark, filled(phrase::braceTwice, innermost()));
        change(name.mark, 1, {});
        position = lastEnd = name.mark + 1;
        return;
    }
    change(name.mark, 0, QByteArray(namelessGroup) + ':');
    open(name, name.mark + 1);
}

void Proofreader::open(const Name &name, qint64 behind)
{
    if (isGroup(name.text) && !isTop(name.text)) {
        if (groups.isEmpty() && lastTop && isTop(lastTop->name))
            reopen();
        else if (groups.size() > 1 && isTop(groups.front().name)
                 && (groups.back().hasSettings
                     || vocabulary::groupNames().contains(groups.back().name)))
            closeForgotten();
    }
    notation.hasTop = notation.hasTop || (groups.isEmpty() && isTop(name.text));
    groups.append({name.text, scan.indentOf(name.begin)});
    lastClosed.reset();
    position = lastEnd = behind;
}

/// Closes a document's group when the next one begins.
void Proofreader::closeForgotten()
{
    note(Code::Unterminated, lastEnd, filled(phrase::groupOpen, innermost()));
    change(lastEnd, 0, QByteArray("};").repeated(groups.size() - 1));
    groups.resize(1);
}

/// Takes back what has closed the top-level group, or a document's before it.
void Proofreader::reopen()
{
    const Group early = lastInner.value_or(*lastTop);
    note(Code::Unterminated, early.brace,
         filled(phrase::braceTooMany, shared::inOneLine(asSeen(early.name), u' ')));
    change(early.brace, early.behind - early.brace, {});
    groups.append({lastTop->name, lastTop->indent});
    lastTop.reset();
    lastInner.reset();
}

void Proofreader::close(qint64 brace)
{
    if (groups.isEmpty() && lastEquals < brace) {
        position = lastEnd = bytes.size(); // nothing that could be lost
        return;
    }
    qint64 last = brace; // of several, which the renderer takes for one
    while (isAt(last + 1, '}'))
        ++last;
    const qint64 next = scan.behindSpace((isAt(last + 1, ';') ? last : brace) + 1);
    const qint64 behindComments = scan.behindSpaceAndComments(next);
    qint64 behind = next < bytes.size() ? brace + 1 : next;
    if (isAt(next, ';') || isAt(behindComments, ';')) {
        behind = (isAt(next, ';') ? next : behindComments) + 1;
    } else if (next < bytes.size() && !groups.isEmpty()) {
        const QString skipped = excerpt(next, std::min(nextSemicolon(next) + 1, bytes.size()));
        note(Code::Unterminated, brace + 1, filled(phrase::braceAlone, skipped));
        const bool isComma = scan.isOneOf(",:.", next); // or a mark like it
        const qint64 comment = next < scan.lineEnd(brace) ? scan.behindComment(next) : next;
        behind = isComma ? next + 1 : std::max(behind, comment > next ? comment : behind);
        change(brace + 1, behind - brace - 1, ";");
    }
    if (groups.isEmpty()) {
        note(Code::Unterminated, brace, phrase::closesFile);
        change(brace, behind - brace, {});
        position = lastEnd = behind;
        return;
    }
    const qint64 indent = scan.indentOf(brace);
    const auto fits = [&](const Group &group) { return group.indent == indent; };
    if (!misfit && indent >= 0 && groups.back().indent >= 0 && !fits(groups.back())
        && std::any_of(groups.begin(), groups.end(), fits))
        misfit = Slip{Code::Unterminated, lastEnd, filled(phrase::groupOpen, innermost()), {}};
    Group closed = groups.takeLast();
    closed.brace = brace;
    closed.behind = behind;
    (groups.isEmpty() ? lastTop : lastClosed) = closed;
    position = lastEnd = behind;
}

void Proofreader::end()
{
    if (groups.isEmpty())
        return;
    notation.slips.append(misfit.value_or(
        Slip{Code::Unterminated, lastEnd, filled(phrase::fileEnds, innermost()), {}}));
}

} // namespace korvel::check

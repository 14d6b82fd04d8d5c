// The groups of a settings file: what begins and ends them, or does not.
#include "companions/check/proofreader.h"

#include "companions/check/words.h"
#include "companions/shared/oneline.h"

#include <algorithm>
#include <cstring>

namespace korvel::check {

/// A group, or a setting with the wrong mark, or a text that has a colon in it.
void Proofreader::readColon(const Name &name)
{
    const qint64 behind = behindColons(name.mark);
    qint64 mark = behind; // that comes next
    while (mark < bytes.size() && !std::strchr(":={};", bytes[mark]))
        ++mark;
    const bool hasText = !scan.endsLine(behind);
    if (!isAt(mark, '{') && hasText && !isTop(name.text) && !isGroup(name.text)
        && !isSetting(name.text)) {
        position = scan.lineEnd(behind);
        return;
    }
    takeStrayOut(name, name.begin);
    if (!isAt(mark, '{') && hasText && isSetting(name.text)) {
        note(Code::Unterminated, name.begin,
             filled(phrase::colonBefore, shared::inOneLine(name.text, u' ')), pathOf(name.text));
        change(name.mark, 1, "=");
        readSetting(name);
        return;
    }
    readGroup(name);
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
    if (isAt(meant, '{')) {
        open(name, meant + 1);
        return;
    }
    qint64 mark = meant;
    while (mark < bytes.size() && !std::strchr(":={};", bytes[mark]))
        ++mark;
    if (isAt(mark, '{')) {
        open(name, mark + 1); // the renderer passes over the text before it
        return;
    }
    // It belongs into an empty line, if there is one.
    const qint64 line = std::min(scan.lineEnd(behind) + 1, bytes.size());
    const bool isEmpty = scan.behindSpace(line) > scan.lineEnd(line);
    note(Code::Unterminated, isEmpty ? line : behind,
         filled(phrase::noBrace, shownPathOf(name.text)), pathOf(name.text));
    change(behind, 0, "{");
    open(name, behind);
}

void Proofreader::open(const Name &name, qint64 behind)
{
    if (isGroup(name.text) && !isTop(name.text)) {
        if (groups.isEmpty() && lastTop && isTop(lastTop->name))
            reopen();
        else if (groups.size() > 1 && isTop(groups.front().name))
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
         filled(phrase::braceTooMany, shared::inOneLine(early.name, u' ')));
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
        const bool isComma = bytes[next] == ',';
        change(isComma ? next : brace + 1, isComma ? 1 : 0, ";");
        behind = isComma ? next + 1 : behind;
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

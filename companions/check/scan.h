// The bytes of a settings file, as a person sees them: words, lines, what looks like a comment.
#pragma once

#include <QByteArray>

namespace korvel::check {

/// Looks into the bytes of a file, which belong to the caller. Offsets lie in the file or at its
/// end.
class Scan
{
public:
    explicit Scan(const QByteArray &file)
        : bytes(file)
    {
    }

    [[nodiscard]] qint64 size() const { return bytes.size(); }

    /// White space as the store has it.
    [[nodiscard]] bool isSpace(qint64 at) const;
    /// The first byte from there on that is no white space.
    [[nodiscard]] qint64 behindSpace(qint64 from) const;
    /// The end of what stands before there, without white space, but not before a limit.
    [[nodiscard]] qint64 trimmedEnd(qint64 limit, qint64 end) const;
    /// Where the line ends, or a limit before that.
    [[nodiscard]] qint64 lineEnd(qint64 from, qint64 limit) const;
    [[nodiscard]] qint64 lineEnd(qint64 from) const { return lineEnd(from, size()); }
    /// Whether one of these marks stands there.
    [[nodiscard]] bool isOneOf(QByteArrayView marks, qint64 at) const
    {
        return at < size() && marks.contains(bytes[at]);
    }
    /// The next of such marks, or the end of the file.
    [[nodiscard]] qint64 nextOf(QByteArrayView marks, qint64 from) const;
    /// Whether nothing but blanks stands there up to the end of the line.
    [[nodiscard]] bool endsLine(qint64 at) const;
    /// Whether nothing but blanks stands before it in its line.
    [[nodiscard]] bool beginsLine(qint64 at) const;
    /// How many blanks stand before what begins its line; -1 for what does not.
    [[nodiscard]] qint64 indentOf(qint64 at) const;
    /// The next of such a byte, or the end of the file.
    [[nodiscard]] qint64 next(char c, qint64 from) const;

    /// Behind the comment of any language that begins there; the same place when there is none. Of
    /// one that takes out the head of a group alone, behind its mark.
    [[nodiscard]] qint64 behindComment(qint64 at) const;
    [[nodiscard]] qint64 behindSpaceAndComments(qint64 from) const;

    /// The end of the word that begins there.
    [[nodiscard]] qint64 wordEnd(qint64 at) const;
    /// Whether a name and one of these marks stand there.
    [[nodiscard]] bool isNameBefore(QByteArrayView marks, qint64 at) const;

    /// Whether the renderer, which finds a text between two statements, reads what follows it as
    /// something else than it does without it.
    [[nodiscard]] bool isSwallowing(qint64 from, qint64 to, bool nameFollows) const;

private:
    [[nodiscard]] qint64 behind(const char *mark, qint64 from) const;
    [[nodiscard]] qint64 behindLineComment(qint64 at, qint64 text) const;
    [[nodiscard]] bool beginsComment(qint64 at) const;
    [[nodiscard]] bool isBehindSemicolon(qint64 at) const;

    const QByteArray &bytes;
};

} // namespace korvel::check

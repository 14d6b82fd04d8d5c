// A settings file taken apart into the statements that are meant, whatever marks are missing.
#pragma once

#include "companions/check/notation.h"
#include "companions/check/scan.h"

#include <optional>

namespace korvel::check {

/// Takes a file apart into the statements that are meant.
class Proofreader
{
public:
    explicit Proofreader(const QByteArray &file)
        : bytes(file)
        , scan(file)
        , lastEquals(file.lastIndexOf('='))
    {
    }

    Notation read(qint64 from);

private:
    /// What stands between two marks: stray text, and a name.
    struct Name
    {
        qint64 stray; // where the first of it that is not blank begins
        qint64 begin;
        qint64 end;
        qint64 mark; // ':', '=', '{', what closes a group, or ';' alone in its line; or the end of
                     // the file
        QString text;
    };
    /// A group that is open, or has been.
    struct Group
    {
        QString name;
        qint64 indent;            // as of Scan
        char closing = '}';       // or what goes with another bracket
        bool hasSettings = false; // of its own
        qint64 brace = 0;         // that closes it
        qint64 behind = 0;        // the ; of that
    };

    [[nodiscard]] Name nextName() const;
    [[nodiscard]] bool closesGroup(qint64 at) const;
    [[nodiscard]] QString latin1(qint64 from, qint64 to) const;
    [[nodiscard]] QString excerpt(qint64 from, qint64 to) const;
    [[nodiscard]] QStringList pathOf(const QString &name) const;
    [[nodiscard]] QString shownPathOf(const QString &name) const;
    [[nodiscard]] QString innermost() const;
    [[nodiscard]] bool isAt(qint64 at, char c) const { return at < bytes.size() && bytes[at] == c; }
    qint64 nextSemicolon(qint64 from);

    void noteOtherMark(qint64 offset, const QString &mark, char meant, const QString &name);
    void note(Code code, qint64 offset, const QString &text, const QStringList &setting = {});
    void change(qint64 offset, qint64 length, const QByteArray &text);

    void readStatement(const Name &name);
    void takeStrayOut(const Name &name, qint64 end);

    // Settings.
    qint64 addEquals(qint64 from, qint64 end);
    void readSetting(const Name &name, bool isSaid = false);
    qint64 readEquals(const Name &name, bool &isSaid);
    qint64 endValue(const Name &name, qint64 value, qint64 missing, bool isSaid);
    void mendQuotes(const Name &name, qint64 begin, qint64 end, bool isSaid);
    [[nodiscard]] qint64 missingSemicolon(qint64 from, qint64 to) const;

    // Groups.
    [[nodiscard]] qint64 behindColons(qint64 colon) const;
    void readColon(const Name &name);
    void readColonEquals(Name name, qint64 equals);
    void readGroup(const Name &name);
    bool readOtherBrace(const Name &name, qint64 brace);
    void readHeadWithoutColon(const Name &name);
    void readBraceAlone(const Name &name);
    void open(const Name &name, qint64 behind);
    void closeForgotten();
    void reopen();
    void close(qint64 brace);
    void end();

    const QByteArray &bytes;
    const Scan scan;
    const qint64 lastEquals;
    Notation notation;
    qint64 position = 0;
    qint64 lastEnd = 0;    // of the last statement
    qint64 semicolon = -1; // the next one, once it is found
    QList<Group> groups;
    std::optional<Group> lastClosed; // when no group was opened since
    std::optional<Group> lastTop;    // the top-level group that was closed last
    std::optional<Group> lastInner;  // a group that a document's setting follows, below no document
    std::optional<Slip> misfit;      // a } that by its indent closes an outer group
};

// Names, as they are meant: also one that is misspelt so that it can be told which.

bool isTop(const QString &name);
bool isGroup(const QString &name);
bool isSetting(const QString &name);
bool isKnown(const QString &name);

} // namespace korvel::check

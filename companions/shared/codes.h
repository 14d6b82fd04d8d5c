// The kinds of findings of a program: a code for each, and what it says of it.
#pragma once

#include "companions/shared/oneline.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <cstddef>
#include <type_traits>

namespace korvel::shared {

/// An error makes the program end with Findings, a warning only where it is told to be strict.
enum class Level { Error, Warning };

/// "error" or "warning".
QLatin1StringView levelName(Level level);

/**
 * A text of findings. Programs have it as it is, in English, for logs and for those who search
 * them; one with a translator installed has it in the language of its user.
 */
struct Phrase
{
    const char *text; // QT_TRANSLATE_NOOP("findings", ...)

    operator QString() const; // not explicit: it stands where texts stand
};

/// All that is said of a kind of findings.
struct CodeWords
{
    Level level;
    QLatin1StringView name;    // as findings show it; stable: programs may rely on it
    Phrase wording;            // of a finding, in one line; words of what is wrong at %1, %2 ...
    QLatin1StringView meaning; // what is wrong, in a sentence or two
    QLatin1StringView advice;  // what to do
};

/// A row of a program's table of codes.
template<typename Code>
struct CodeRow : CodeWords
{
    Code code;

    constexpr CodeRow(Code kind, Level levelOfAll, QLatin1StringView shownName,
                      const char *shownWording, QLatin1StringView whatItMeans,
                      QLatin1StringView whatToDo)
        : CodeWords{levelOfAll, shownName, {shownWording}, whatItMeans, whatToDo}
        , code(kind)
    {
    }
};

/// Whether these are the rows of as many codes, in their order.
template<typename Code, std::size_t count>
constexpr bool areInOrder(const CodeRow<Code> (&rows)[count], std::size_t firstCode = 0)
{
    for (std::size_t i = 0; i < count; ++i) {
        if (rows[i].code != Code(firstCode + i))
            return false;
    }
    return true;
}

/// The row of the code that is shown by that name; null when there is none.
template<typename Code>
const CodeRow<Code> *findCode(const QList<CodeRow<Code>> &rows, QAnyStringView name)
{
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const CodeRow<Code> &row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

template<typename Code>
QStringList codeNames(const QList<CodeRow<Code>> &rows)
{
    QStringList names;
    for (const CodeRow<Code> &row : rows)
        names.append(row.name);
    return names;
}

/// A text with words at its places, the first at %1. A place within a word is no place.
template<typename... Words>
QString filled(const Phrase &text, const Words &...words)
{
    const auto asText = [](const auto &word) {
        if constexpr (std::is_same_v<std::decay_t<decltype(word)>, Phrase>)
            return QString(word);
        else
            return QAnyStringView(word).toString();
    };
    if constexpr (sizeof...(words) == 0)
        return text;
    else
        return QString(text).arg(asText(words)...);
}

/// What a finding says: the wording of its code with words at its places, in one line.
template<typename... Words>
QString worded(const CodeWords &row, const Words &...words)
{
    return inOneLine(filled(row.wording, words...), u' ');
}

/// What people are told of a code, in lines: its level, what it means, what to do, an example if
/// there is one, and how to leave it out.
QString explained(const CodeWords &row, const QString &example);

/// Codes, one a line: name, level, and the first sentence of what it means.
QString codeList(const QList<CodeWords> &rows);

/// Says in one line that no code has this name, and which one may be meant.
QString noSuchCode(const QString &name, const QStringList &names);

/// The end of the line of a finding: its level, what it says, its code, and the line's end.
QString toldFinding(const CodeWords &row, const QString &text);

} // namespace korvel::shared

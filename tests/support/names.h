// Sets of names that texts hold.
#pragma once

#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

using Names = QSet<QString>;

/// What the first group of a pattern matches, everywhere in a text.
inline Names matches(const QString &text, const char *pattern)
{
    Names names;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        names.insert(match.captured(1));
    return names;
}

inline QStringList sorted(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list;
}

// The tables of the reference pages, as the vocabulary and the table of codes have them.
#pragma once

#include <QStringList>

/**
 * The lines of a table in Markdown, titles first; none when there is no table of that name.
 *
 * @param name methods, groups, settings, language settings or codes; elements shared; elements and
 *        the name of a method, for those that are not shared; attributes and the name of an
 *        element, one whose attributes have switches of their own
 */
QStringList tableOf(const QString &name);

// How a settings file is written: what is missing or stray, and the file as it is meant.
#pragma once

#include "companions/check/codes.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

namespace korvel::check {

/// A change to a file.
struct Edit
{
    qint64 offset;
    qint64 length;   // of what is taken out there
    QByteArray text; // put in its place
};

/// What is wrong with how a file is written: something that makes the renderer misread what
/// follows.
struct Slip
{
    Code code;
    qint64 offset; // bytes before its place
    QString text;
    QStringList setting; // groups and name as the renderer reads them; may be empty
};

/// How a file is written.
struct Notation
{
    QList<Slip> slips;   // in no order; one for each mistake, whatever follows from it
    QList<Edit> edits;   // which make the file what it is meant to be; in the order of the file
    bool hasTop = false; // the group that holds all others is there
    bool isLost = false; // nothing is read of it, and what it means cannot be told
};

/**
 * Reads a settings file in the brace notation as people write it: in lines, with a name they know
 * before each mark. Where the renderer reads the same, there is neither a slip nor an edit.
 *
 * @param bytes of any kind; it takes time in proportion to them
 */
Notation readNotation(const QByteArray &bytes);

} // namespace korvel::check

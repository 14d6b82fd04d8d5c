// A job read for the checker: its start tags with where they stand.
#pragma once

#include "companions/check/codes.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace korvel::check {

/// A place in a file: both count from 1, a column being a UTF-16 unit.
struct Place
{
    qsizetype line = 1;
    qsizetype column = 1;

    friend bool operator==(const Place &a, const Place &b)
    {
        return a.line == b.line && a.column == b.column;
    }
};

struct JobAttribute
{
    QString name;
    QString value; // with references resolved
    Place place;
    // XML makes blanks of these in a value, but the renderer prints them as they stand.
    bool lineBreak = false;
    bool tab = false;
};

/// A start tag.
struct Tag
{
    QString name; // with its prefix, as the renderer reads it
    QList<JobAttribute> attributes;
    Place place;
    bool holdsOthers = false;
    qsizetype parent = -1; // which tag of the job it stands in; -1 for the root
    QString text;          // in it, from the first character that is no blank; its beginning
    Place textPlace;       // of that character

    /// The attribute of that name; null when there is none.
    [[nodiscard]] const JobAttribute *find(QAnyStringView attribute) const;
};

/// What cannot be read, or not by the renderer.
struct Fault
{
    Code code; // of the finding that it is
    Place place;
    QString text;
};

/// A job, as far as it can be read.
struct Job
{
    QList<Tag> tags; // in the order of the file
    QList<Fault> faults;
};

/// Reads a job. Bytes of any kind can be given, up to half a gigabyte.
Job readJob(const QByteArray &bytes);

} // namespace korvel::check

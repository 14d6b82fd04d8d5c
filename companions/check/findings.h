// A finding: what is wrong, and where, in a list and in words.
#pragma once

#include "companions/check/codes.h"
#include "companions/check/job.h"

#include <QJsonObject>
#include <QStringList>

namespace korvel::check {

struct Finding
{
    Place place;
    Code code;
    QString text;        // one line: what is wrong here, and what that does
    QStringList setting; // of settings: groups and key, or the group alone that it is about
    int occurrence = 0;  // of settings: which of several of that name, counted from 0
};

/// Brings findings in the order of their file; those of one place stay as they are.
void sortByPlace(QList<Finding> &findings);

/// A finding in one line, with the line's end: its file and place, and what it says.
QString lineOf(const QString &file, const Finding &finding);

/// A finding in the keys of docs/check.schema.json.
QJsonObject toJson(const QString &file, const Finding &finding);

} // namespace korvel::check

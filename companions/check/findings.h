// A finding: what is wrong, and where.
#pragma once

#include "companions/check/codes.h"
#include "companions/check/job.h"

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

} // namespace korvel::check

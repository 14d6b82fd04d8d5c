// The findings: what is wrong with a job, and with the settings that it is printed by.
#pragma once

#include "companions/check/codes.h"
#include "companions/check/job.h"

namespace korvel::check {

class SettingsFile;

struct Finding
{
    Place place;
    Code code;
    QString text;        // one line: what is wrong here, and what that does
    QStringList setting; // of settings: groups and key, or the group alone that it is about
    int occurrence = 0;  // of settings: which of several of that name, counted from 0
};

/**
 * What is wrong with a job, in the order of the file.
 *
 * @param settings when given, also what the settings switch off, and figures wider than their
 *                 columns
 */
QList<Finding> checkJob(const QByteArray &job, const SettingsFile *settings);

/// What is wrong with a settings file, in its order.
QList<Finding> checkSettings(const SettingsFile &settings);

} // namespace korvel::check

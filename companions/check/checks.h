// The checker's door: what is wrong with a job, and with the settings that it is printed by.
#pragma once

#include "companions/check/findings.h"

namespace korvel::recode {
class CodePage;
}

namespace korvel::check {

class SettingsFile;

/**
 * What is wrong with a job, in the order of the file.
 *
 * @param job      bytes of any kind
 * @param settings when given, also what the settings switch off, and lines wider than the paper
 * @param charset  when given, also what this code page of the printer lacks
 */
QList<Finding> checkJob(const QByteArray &job, const SettingsFile *settings,
                        const recode::CodePage *charset = nullptr);

/// Whether a file that should be a job has the settings of documents instead.
bool isSettings(const QByteArray &bytes);

/// What is wrong with a settings file, in its order.
QList<Finding> checkSettings(const SettingsFile &settings);

} // namespace korvel::check

// What is shown: a stream as it was given, or one that a job is rendered to.
#pragma once

#include "companions/check/findings.h"
#include "companions/recode/codepage.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace korvel::preview {

/// How what is given is to be read.
enum class InputKind { ByContent, Stream, Job };

/// What was given, and what became of it.
struct Input
{
    /// An error of the checker's, and the file that it is in.
    struct CheckError
    {
        QString file;
        check::Finding finding;
    };

    QString path; // "-" for standard input
    bool isJob = false;
    QByteArray stream = {};
    QList<CheckError> errors = {}; // of a job and its settings
    QString note = {};             // what stands in for what is missing, in one line

    /// What the renderer said that refused the job, in one line, where the checker has not said it
    /// better: an error too.
    std::optional<QString> said = {};
};

/// Whether bytes are a job: XML, in whatever encoding. All else counts as a stream.
bool isJob(QByteArrayView bytes);

/// Whether bytes begin as every command of a stream does.
bool isStream(QByteArrayView bytes);

/**
 * Reads a stream or a job. A job is checked, and rendered by the settings of this file; of this
 * user, when the path is empty; or by those of the sample shop when there are none.
 *
 * @param page    of a stream; a job is refused where it is not UTF-8
 * @param ignored errors of the checker that are left out
 * @param error   why nothing is given, in one line
 */
std::optional<Input> readInput(const QString &path, InputKind kind, const recode::CodePage &page,
                               const QString &settings, const QList<check::Code> &ignored,
                               QString &error);

} // namespace korvel::preview

// Lines of JSON validated by a schema.
#pragma once

#include "support/bytes.h"
#include "support/program.h"

/// The schema of what korvel-check writes.
inline const QString checkSchema = KORVEL_SOURCE_DIR "/docs/check.schema.json";

/// Lines that a schema refuses, as their numbers, counted from 1; anything else that the validator
/// says is added, so that it is not taken for a refusal.
inline QStringList refusedBy(const QString &schema, const QByteArray &lines)
{
    // The machine's own interpreter is the one that sees the machine's packages.
    const Run run =
        runProgram("/usr/bin/python3", {KORVEL_SOURCE_DIR "/tests/support/validate.py", schema},
                   {{}, {}, lines});
    QStringList numbers;
    for (const QString &line : linesOf(run.standardOutput))
        numbers.append(line.section(':', 0, 0));
    if (!run.exited || run.status != 0 || !run.standardError.isEmpty())
        numbers.append(QString::fromUtf8(run.standardError));
    return numbers;
}

// Runs the renderer as a point of sale does.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/program.h"

/// Runs the renderer with these arguments in a folder, in the environment of the test but for the
/// variables given ("NAME=value", or "NAME" for one taken out).
inline Run runRenderer(const QStringList &arguments, const QString &folder,
                       const QStringList &variables = {})
{
    return runProgram(built::print, arguments, {folder, variables, {}});
}

/// Fails the test unless the run ended as every run does: by itself, with status 0 and nothing on
/// standard error.
#define VERIFY_SOUND(run)                                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 0);                                                                 \
        QCOMPARE(linesOf((run).standardError), QStringList());                                     \
    } while (false)

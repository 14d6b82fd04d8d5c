// Runs the renderer as a point of sale does.
#pragma once

#include "support/bytes.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

/// What a run of the renderer left behind.
struct Run
{
    bool exited = false; // by itself, in time
    int status = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// Runs the renderer with these arguments in a folder, in the environment of the test but for the
/// variables given ("NAME=value", or "NAME" for one taken out).
inline Run runRenderer(const QStringList &arguments, const QString &folder,
                       const QStringList &variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : variables) {
        const qsizetype equals = variable.indexOf('=');
        if (equals < 0)
            environment.remove(variable);
        else
            environment.insert(variable.first(equals), variable.sliced(equals + 1));
    }

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(KORVEL_PRINT, arguments);
    Run run;
    run.exited = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    run.status = process.exitCode();
    run.standardOutput = process.readAllStandardOutput();
    run.standardError = process.readAllStandardError();
    return run;
}

/// Fails the test unless the run ended as every run does: by itself, with status 0 and nothing on
/// standard error.
#define VERIFY_SOUND(run)                                                                          \
    do {                                                                                           \
        QVERIFY((run).exited);                                                                     \
        QCOMPARE((run).status, 0);                                                                 \
        QCOMPARE(linesOf((run).standardError), QStringList());                                     \
    } while (false)

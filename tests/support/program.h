// Runs a program as a user does, and keeps what it left behind.
#pragma once

#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

/// What a run of a program left behind.
struct Run
{
    bool exited = false; // by itself, in time
    int status = -1;
    QByteArray standardOutput;
    QByteArray standardError;
};

/// How a program is to be run.
struct Surroundings
{
    QString folder;              // working directory
    QStringList variables;       // "NAME=value", or "NAME" for one that is taken out
    QByteArray standardInput;    // what it can read there
    QString standardOutput = {}; // a file that takes it, which is then not kept
};

/// Runs a program in the environment of the test, but for the variables given.
inline Run runProgram(const QString &program, const QStringList &arguments,
                      const Surroundings &surroundings)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : surroundings.variables) {
        const qsizetype equals = variable.indexOf('=');
        if (equals < 0)
            environment.remove(variable);
        else
            environment.insert(variable.first(equals), variable.sliced(equals + 1));
    }

    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(surroundings.folder);
    if (!surroundings.standardOutput.isEmpty())
        process.setStandardOutputFile(surroundings.standardOutput);
    process.start(program, arguments);
    process.write(surroundings.standardInput);
    process.closeWriteChannel();
    Run run;
    run.exited = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    run.status = process.exitCode();
    run.standardOutput = process.readAllStandardOutput();
    run.standardError = process.readAllStandardError();
    return run;
}

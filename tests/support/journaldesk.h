// A desk at which korvel-journal runs on a journal of its own.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/journals.h"
#include "support/program.h"

namespace korvel::delivery {

inline const QString examplesFolder = KORVEL_SOURCE_DIR "/examples/";

/// A job of the sample shop, its settings, and what they give.
inline Contents sampleContents(const QString &name)
{
    const QByteArray stream = bytesOf(examplesFolder + "expected/" + name + ".out");
    return {bytesOf(examplesFolder + "jobs/" + name + ".xml"),
            bytesOf(examplesFolder + "korvel.conf"),
            {},
            stream,
            stream,
            "utf-8"};
}

struct JournalDesk : JournalFolder
{
    [[nodiscard]] Run run(const QStringList &arguments, const QStringList &variables = {}) const
    {
        return runProgram(built::journal, QStringList{"--journal", path()} + arguments,
                          {filePath(""), QStringList{"TZ=UTC0"} + variables, {}});
    }
};

/// What a program wrote, as lines, with times, hashes and this desk's folder as names.
inline QStringList shownLines(const QByteArray &output)
{
    static const QRegularExpression time(
        "\\d{4}-\\d\\d-\\d\\d[ T]\\d\\d:\\d\\d:\\d\\d(\\.\\d{3}Z)?");
    static const QRegularExpression hash("\\b[0-9a-f]{64}\\b");
    QStringList lines =
        QString::fromUtf8(output).replace(time, "TIME").replace(hash, "HASH").split('\n');
    if (lines.constLast().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace korvel::delivery

/// Fails the test unless the program ended by itself with that status and said only so much.
#define VERIFY_SAID(run, itsStatus, output, error)                                                 \
    do {                                                                                           \
        const Run &it = (run);                                                                     \
        QVERIFY(it.exited);                                                                        \
        QCOMPARE(shownLines(it.standardError), QStringList(error));                                \
        QCOMPARE(shownLines(it.standardOutput), QStringList(output));                              \
        QCOMPARE(it.status, itsStatus);                                                            \
    } while (false)

// A shop in which the renderer runs: a HOME with settings, a job, and what came of it.
#pragma once

#include "support/files.h"
#include "support/launch.h"
#include "support/temporaryhome.h"

#include <algorithm>

/// Where two streams part, for a test to show; empty when they are the same. Unlike a comparison
/// of whole streams it stays short for long ones.
inline QString difference(const QByteArray &actual, const QByteArray &expected)
{
    if (actual == expected)
        return {};
    const auto pair = std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const qsizetype at = pair.first - actual.begin();
    const auto around = [at](const QByteArray &stream) {
        return linesOf(stream.mid(std::max<qsizetype>(0, at - 40), 100)).join(QString());
    };
    return QString("at byte %1 of %2: %3\ninstead of, of %4: %5")
        .arg(QString::number(at), QString::number(actual.size()), around(actual),
             QString::number(expected.size()), around(expected));
}

/// A HOME whose folder is the working directory of runs; the job is "job.xml" there, the output
/// "stream.out".
class Shop
{
public:
    explicit Shop(const QByteArray &settings)
        : home(settings)
    {
    }

    [[nodiscard]] QString path(const QString &name) const { return home.path() + '/' + name; }

    /// Renders a job, as far as `how` does not say otherwise.
    [[nodiscard]] MeasuredRun render(const QByteArray &job, Launch how = {}) const
    {
        writeFile(path("job.xml"), job);
        if (how.arguments.isEmpty())
            how.arguments = {"job.xml", "stream.out"};
        if (how.folder.isEmpty())
            how.folder = home.path();
        return launch(how);
    }

    [[nodiscard]] QByteArray output() const { return bytesOf(path("stream.out")); }

    const TemporaryHome home;
};

/// Fails the test unless the run was sound, said nothing and used no more memory than a till has.
#define VERIFY_QUIET(run)                                                                          \
    do {                                                                                           \
        VERIFY_SOUND(run);                                                                         \
        QCOMPARE(linesOf((run).standardOutput), QStringList());                                    \
        if (!built::sanitized)                                                                     \
            QVERIFY2((run).peakKilobytes < 300 * 1024,                                             \
                     qPrintable(QString::number((run).peakKilobytes) + " KB"));                    \
    } while (false)

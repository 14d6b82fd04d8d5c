// The sample shop, and settings files and renderers in folders of their own, for tests of the
// editor.
#pragma once

#include "support/bytes.h"
#include "support/files.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

constexpr auto longEnough = 30000; // milliseconds, for a run of the renderer on a busy machine

inline const QString sampleFile = KORVEL_SOURCE_DIR "/examples/korvel.conf";

/// A file of the sample shop; a test of one that is not there ends.
inline QByteArray example(const QString &name)
{
    const QString path = QString(KORVEL_SOURCE_DIR "/examples/") + name;
    if (!QFile::exists(path))
        qFatal("there is no %s", qPrintable(path));
    return bytesOf(path);
}

/// The sample settings as the store writes them, with an empty line behind every group.
inline QByteArray sampleAsWritten() { return example("korvel.conf").trimmed() + "\n\n"; }

/// A settings file in a folder of its own.
class File
{
public:
    explicit File(const QByteArray &bytes) { writeFile(path(), bytes); }

    [[nodiscard]] QString path() const { return folder.filePath("korvel.conf"); }
    [[nodiscard]] QString backup() const { return path() + '~'; }
    [[nodiscard]] QByteArray bytes() const { return bytesOf(path()); }

    const QTemporaryDir folder;
};

/// A program that a shell runs, in the place of the renderer.
inline QString script(const QTemporaryDir &folder, const QByteArray &lines)
{
    const QString path = folder.filePath("renderer");
    writeFile(path, "#!/bin/sh\n" + lines);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

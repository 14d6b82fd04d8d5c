// Files written for a test, and files found.
#pragma once

#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <QString>
#include <QStringList>

/// Writes a file; a test that cannot do so ends.
inline void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// Paths of all files in a folder and below whose name matches, sorted; a test of a folder without
/// any ends.
inline QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    if (files.isEmpty())
        qFatal("no %s below %s", qPrintable(pattern), qPrintable(folder));
    files.sort();
    return files;
}

// The files of a folder and of the folders in it.
#pragma once

#include <QDirIterator>
#include <QStringList>

/// Paths of all files in a folder and below whose name matches a wildcard, sorted.
inline QStringList filesBelow(const QString &folder, const QString &pattern)
{
    QStringList files;
    for (QDirIterator it(folder, {pattern}, QDir::Files, QDirIterator::Subdirectories);
         it.hasNext();)
        files.append(it.next());
    files.sort();
    return files;
}

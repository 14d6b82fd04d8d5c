// Folders of jobs and streams.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace korvel::preview {

/// What is to be shown.
struct Files
{
    QStringList paths;       // "-" for standard input
    QStringList passedOver;  // in folders, what is neither a job nor a stream
    bool isOneOfOne = false; // one file was given, and no folder
    QString title;           // of them all: the folder, the file, or how many there are
};

/**
 * Puts in the place of each folder the jobs and streams that lie in it, in the order of their
 * names; not of folders inside, nor what is hidden. An empty file is a stream with nothing in it.
 *
 * @param error why nothing is given, in one line: a folder cannot be read, or has none of them
 */
std::optional<Files> filesOf(const QStringList &given, QString &error);

} // namespace korvel::preview

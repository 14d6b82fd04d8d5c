// Files read whole, and streams shown with their line ends.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

/// All bytes of a file; none when it cannot be read.
inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A command stream as lines, each with its line end spelt out: what a failing test shows.
inline QStringList linesOf(const QByteArray &stream)
{
    QStringList lines;
    for (qsizetype start = 0; start < stream.size();) {
        const qsizetype feed = stream.indexOf('\n', start);
        const qsizetype end = feed < 0 ? stream.size() : feed + 1;
        lines.append(QString::fromUtf8(stream.mid(start, end - start))
                         .replace(u'\r', "\\r")
                         .replace(u'\n', "\\n"));
        start = end;
    }
    return lines;
}

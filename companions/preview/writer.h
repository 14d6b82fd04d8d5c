// What is shown, as text on standard output.
#pragma once

#include "companions/preview/shown.h"
#include "companions/shared/output.h"

#include <QJsonObject>
#include <QSet>

namespace korvel::preview {

/// Writes one file after the other: the paper in a box, a list of commands, or JSON.
class Writer
{
public:
    enum class Format { Paper, List, Json };

    /**
     * @param isNamed    each file's name is written too: above it, or as "file" of each object
     * @param isColoured as a terminal shows it
     */
    Writer(Format outputFormat, const Reading &howToRead, bool isNamed, bool isColoured);

    void write(const Shown &shown);

    /// The status to end with; see Output::end().
    int end(int status) { return out.end(status); }

private:
    void writePaper(const Shown &shown);
    void writeList(const Shown &shown);
    void writeJson(const Shown &shown);
    void writeObject(QJsonObject object, const Shown &shown);

    const Format format;
    const Reading reading;
    const bool named;
    const bool coloured;
    bool first = true;
    QSet<QString> errors; // of settings that several jobs have
    shared::Output out;
};

} // namespace korvel::preview

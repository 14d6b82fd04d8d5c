// What is shown of a file: its stream, and all that was found.
#pragma once

#include "companions/paper/paper.h"
#include "companions/preview/findings.h"
#include "companions/preview/input.h"

namespace korvel::preview {

/// How streams are read.
struct Reading
{
    int columns = 0; // characters in a line of the paper
    const recode::CodePage *page = &recode::CodePage::utf8();
};

struct Shown
{
    Input input;
    QList<Finding> found;
};

/// Whether there is an error, or with `strict` a warning in the stream.
bool isWrong(const Shown &shown, bool strict);

/// What people call it: its path, in one line.
QString nameOf(const Shown &shown);

/// What was found, a line each: the job's errors first, and what the renderer said.
QStringList told(const Shown &shown);

/// Prints all rows of its paper.
void printRows(const Shown &shown, const Reading &reading, const Roll::TakeRow &take);

} // namespace korvel::preview

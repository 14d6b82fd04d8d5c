// What is wrong with a command stream.
#pragma once

#include "companions/paper/decoder.h"
#include "companions/preview/codes.h"

#include <QList>
#include <QString>

namespace korvel::preview {

/// Something that a printer would refuse, misread or cut.
struct Finding
{
    Code code;
    qsizetype offset = 0; // of the byte it is about, in the stream
    QString text;         // one line
    qsizetype line = 1;   // of the stream, counted in line feeds from 1
    qsizetype row = 0;    // of the paper, sums and marks counted too, from 1; 0 where none prints
};

/// No more findings than these are listed; one that says so is the last.
inline constexpr qsizetype mostFindings = 1000;

/**
 * What is wrong with a stream, in the order of its bytes; codes() has the kinds.
 *
 * @param columns characters in a line of the paper
 * @param ignored findings of these codes are left out, and do not count
 */
QList<Finding> findings(const QByteArray &stream, int columns, const QList<Code> &ignored = {},
                        const recode::CodePage &page = recode::CodePage::utf8());

} // namespace korvel::preview

// What is wrong with a command stream.
#pragma once

#include "companions/preview/decoder.h"

#include <QList>
#include <QString>

namespace korvel::preview {

/// Something that a printer would refuse, misread or cut.
struct Finding
{
    qsizetype offset = 0; // of the byte it is about, in the stream
    qsizetype line = 1;   // of the stream, counted in line feeds from 1
    QString text;         // one line, the offset included
};

/// No more findings than these are listed; one that says so is the last.
inline constexpr qsizetype mostFindings = 1000;

/**
 * What is wrong with a stream, in the order of its bytes.
 *
 * An empty stream, lines and rows wider than the paper, unknown and broken commands, sections left
 * open or closed twice, sale rows and deductions outside a fiscal section, amounts that are no
 * whole hundredths, quantities that are no number, and bytes in a text that a printer would
 * misread: a closing parenthesis, which ends the text, a slash in a field of a sale row, control
 * characters, and what is no character of the code page. Rows too large to be added up are said
 * too.
 *
 * @param columns characters in a line of the paper
 */
QList<Finding> findings(const QByteArray &stream, int columns,
                        const recode::CodePage &page = recode::CodePage::utf8());

/**
 * The widest row of the paper that a command takes, a line as it was sent: what is held against the
 * width of the paper. Empty for a command that is no line, sale row or deduction.
 */
QString widestRow(const Command &command, int columns);

} // namespace korvel::preview

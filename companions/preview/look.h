// How a picture of the paper looks: measures and colours.
#pragma once

#include <QColor>
#include <QSize>

namespace korvel::preview {

/// What a picture is painted by. All measures are dots of a print head of 203 dpi.
struct Look
{
    /**
     * Black on white for manuals and screens: a cell of 12 by 24 dots for each character, smooth
     * letters.
     */
    static Look plain();

    /**
     * As a thermal printer leaves it on paper of 80 mm, of which 72 mm are printed on: 8 dots a
     * millimetre, each black or not. A character is as wide as fits and twice as high, 18 dots wide
     * at most and 9 at least: more than 64 columns take wider paper.
     *
     * @param columns characters in a line of the paper
     */
    static Look thermal(int columns);

    QSize cell;       // of a character
    int printing = 0; // the least width of paper between the margins
    int margin = 0;   // paper on either side of that
    int space = 0;    // paper above the first row and below the last
    int tooth = 0;    // of a torn edge
    int dotsPerMetre = 0;
    bool dots = false; // nothing but whole dots, and what the printer prints alone
    QColor paper;
    QColor edge; // around the paper
    QColor ink;
};

} // namespace korvel::preview

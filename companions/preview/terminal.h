// The paper in a terminal.
#pragma once

#include "companions/paper/paper.h"

namespace korvel::preview {

/// Whether standard output is a terminal that wants colours: NO_COLOR is not set, or empty, and
/// TERM is not "dumb".
bool wantsColours();
/// Where a text crosses the paper's edge; its size when it does not. No character is taken apart.
qsizetype crossing(const QString &text, int columns);

/**
 * The paper as a box of text, line by line; each ends in a line feed. What is wider than the paper
 * goes on behind its edge, which is then marked with "»"; what is not on the paper, but said by the
 * preview, has a dotted edge.
 */
class Box
{
public:
    /**
     * @param columns  characters in a line of the paper
     * @param coloured with escape sequences that a terminal shows as colours
     */
    Box(int columns, bool coloured);

    [[nodiscard]] QString top() const;
    [[nodiscard]] QString line(const PaperRow &row) const;
    [[nodiscard]] QString bottom() const;

private:
    void paint(QString &line, QStringView text, QLatin1StringView colour) const;

    const int columns;
    const bool coloured;
};

} // namespace korvel::preview

// The paper in a terminal.
#pragma once

#include "companions/preview/paper.h"

namespace preview {

/**
 * The paper as a box of text, each line ended by a line feed. What is wider than the paper goes on
 * behind its edge, which is then marked with "»"; what is not on the paper, but said by the
 * preview, has a dotted edge.
 *
 * @param columns  characters in a line of the paper
 * @param coloured with escape sequences that a terminal shows as colours
 */
QString boxed(const QList<PaperRow> &rows, int columns, bool coloured);

} // namespace preview

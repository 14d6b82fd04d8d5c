// The paper as a picture. Needs a QGuiApplication.
#pragma once

#include "companions/paper/paper.h"

#include <QByteArray>
#include <QSize>

class QImage;
class QPainter;

namespace korvel::preview {

/**
 * Paints a roll of paper: black on white in a fixed cell for each character, 12 by 24 dots as on a
 * printer of 203 dpi, with torn edges. What is wider than the paper goes on in red behind its edge.
 * All measures are dots.
 */
class Picture
{
public:
    /// @param columns characters in a line of the paper
    Picture(const QList<PaperRow> &paperRows, int columns);

    /// Whether the machine has a font to write with.
    static bool hasFont();

    /// Rows that an image can hold; what is longer fits a PDF only.
    static constexpr int mostRows = 1300;

    [[nodiscard]] qsizetype rowCount() const { return rows.size(); }

    /// Whether an image can hold it: not more than mostRows rows, nor too many very wide ones.
    [[nodiscard]] bool fitsImage() const;

    /// Size of the picture: the paper, and beside it what is wider.
    [[nodiscard]] QSize size() const;

    /// Paints all of it, from the point (0, 0) on; what is beside the paper stays as it is.
    void paint(QPainter &painter) const;

    /// At 203 dpi, with nothing around the paper. The paper must fit.
    [[nodiscard]] QImage toImage() const;

    /// A PDF in the paper's own size, on as many pages as a long roll needs.
    [[nodiscard]] QByteArray toPdf() const;

private:
    [[nodiscard]] int paperWidth() const; // without what is beside it
    [[nodiscard]] Picture part(qsizetype first, qsizetype count) const;
    void paintPaper(QPainter &painter) const;
    void paintRow(QPainter &painter, const PaperRow &row, int top) const;

    QList<PaperRow> rows;
    int columns;
    qsizetype widest; // characters of the widest row, or of the paper
};

} // namespace korvel::preview

// The paper as a picture. Needs a QGuiApplication.
#pragma once

#include "companions/paper/paper.h"
#include "companions/preview/look.h"

#include <QByteArray>
#include <QSize>

#include <functional>

class QImage;
class QPainter;
class QPolygon;

namespace korvel::preview {

class DotPdf;
class Ink;

/**
 * Paints a roll of paper with torn edges, in a fixed cell for each character; see look.h. What is
 * wider than the paper goes on in red behind its edge. All measures are dots.
 */
class Picture
{
public:
    /**
     * @param columns characters in a line of the paper
     * @param look    one of whole dots shows what the printer prints, and not what the preview adds
     * @param widest  characters of a row that the picture is at least as wide as
     */
    Picture(const QList<PaperRow> &paperRows, int columns, const Look &look = Look::plain(),
            qsizetype widest = 0);

    /// Whether a look shows a row, and the characters that one takes at most.
    static bool shows(const Look &look, const PaperRow &row);
    static qsizetype widthOf(const PaperRow &row, int columns);

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

    /// In the look's dots a metre, with nothing around the paper but this colour. The paper must
    /// fit.
    [[nodiscard]] QImage toImage(const QColor &around = Qt::white) const;

    /// An SVG of the same size and colours: of texts, or of whole dots as an image. The paper must
    /// fit an image.
    [[nodiscard]] QByteArray toSvg(const QString &title, const QColor &around = Qt::white) const;

    /// Adds it as a page, dot by dot; the look must be one of whole dots.
    void addTo(DotPdf &pdf) const;

private:
    [[nodiscard]] int paperWidth() const; // without what is beside it
    [[nodiscard]] QPolygon outline() const;
    void paintPaper(QPainter &painter) const;
    void printRows(Ink &ink, const std::function<void(int middle)> &cut) const;
    void printRow(Ink &ink, const PaperRow &row, int top) const;

    Look look;
    QList<PaperRow> rows;
    int columns;
    qsizetype widest; // characters of the widest row, or of the paper
};

} // namespace korvel::preview

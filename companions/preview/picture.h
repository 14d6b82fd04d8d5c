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
     */
    Picture(const QList<PaperRow> &paperRows, int columns, const Look &look = Look::plain());

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

    /// At 203 dpi, with nothing around the paper but this colour. The paper must fit.
    [[nodiscard]] QImage toImage(const QColor &around = Qt::white) const;

    /// An SVG of the same size and colours: of texts, or of whole dots as an image. The paper must
    /// fit an image.
    [[nodiscard]] QByteArray toSvg(const QString &title, const QColor &around = Qt::white) const;

    /// A PDF in the paper's own size, on as many pages as a long roll needs.
    [[nodiscard]] QByteArray toPdf(const QString &title = {}) const;

private:
    [[nodiscard]] int paperWidth() const; // without what is beside it
    [[nodiscard]] QPolygon outline() const;
    [[nodiscard]] QByteArray toDotPdf(const QString &title) const;
    [[nodiscard]] QByteArray toTextPdf(const QString &title) const;
    void forEachPage(const std::function<void(const Picture &)> &take) const;
    void paintPaper(QPainter &painter) const;
    void printRows(Ink &ink, const std::function<void(int middle)> &cut) const;
    void printRow(Ink &ink, const PaperRow &row, int top) const;

    Look look;
    QList<PaperRow> rows;
    int columns;
    qsizetype widest; // characters of the widest row, or of the paper
};

} // namespace korvel::preview

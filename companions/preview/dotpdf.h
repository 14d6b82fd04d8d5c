// Pictures of whole dots as a PDF.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QPolygon>
#include <QSize>
#include <QString>

namespace korvel::preview {

/**
 * Writes a PDF whose dots are stencils, one bit each. The toolkit's writer has none: it makes
 * colour photographs of them, a hundred times as large. All measures are dots, from the top left
 * corner of a page on.
 */
class DotPdf
{
public:
    DotPdf(const QString &title, int dotsPerMetre);

    void beginPage(QSize size);
    void addPaper(const QPolygon &outline, const QColor &paper, const QColor &edge);

    /// A dashed line from the left edge of the paper to the right one.
    void addCut(int y, int width, const QColor &colour);

    /// The dots of a bitmap, over all of the page's width.
    void addDots(const QImage &dots, int top, const QColor &colour);
    void endPage();

    QByteArray end();

private:
    int begin(int object);
    int addStream(const QByteArray &dictionary, const QByteArray &bytes);

    const double pointsOfDot;
    QByteArray file;
    QList<qsizetype> offsets; // of the objects, the first of which has the number 1
    QList<int> pages;         // their objects
    QSize page;
    QByteArray content;  // of the page
    QByteArray stencils; // that it has
};

} // namespace korvel::preview

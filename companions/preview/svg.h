// A picture as SVG.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>

#include <memory>

class QImage;
class QPolygon;

namespace korvel::preview {

class Ink;

/**
 * Writes one SVG, which refers to nothing elsewhere. All measures are dots; it is as large as the
 * paper. Texts are texts, each as long as its cells, in a font of fixed width that the viewer has.
 */
class Svg
{
public:
    /**
     * @param cell   of each character of its texts
     * @param around what is behind all of it; nothing where it is transparent
     */
    Svg(QSize size, QSize cell, int dotsPerMetre, const QString &title, const QColor &around);

    void addPaper(const QPolygon &outline, const QColor &paper, const QColor &edge);

    /// A dashed line from the left edge of the paper to the right one.
    void addCut(int y, int width, const QColor &colour);

    /// An image whose dots stay square, whatever the size.
    void addDots(const QImage &image);

    /// What prints rows of texts. Is used while this is there.
    std::unique_ptr<Ink> ink();

    QByteArray end();

private:
    const QSize cell;
    QString text;
};

} // namespace korvel::preview

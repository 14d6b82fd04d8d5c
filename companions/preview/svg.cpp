// Elements of an SVG, as text.
#include "companions/preview/svg.h"

#include "companions/preview/ink.h"

#include <QBuffer>
#include <QFont>
#include <QImage>
#include <QImageWriter>
#include <QPolygon>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

QString numbered(double number) { return QString::number(number, 'g', 6); }

/// Runs of letters as one text each; what is drawn together stands in the middle of its cells.
class SvgInk : public Ink
{
public:
    SvgInk(QString &svgText, QSize cellSize)
        : svg(svgText)
        , cell(cellSize)
        , baseline(baselineOf(cellFont(cellSize), cellSize))
    {
    }

    void print(const QString &cluster, QPoint cellAt, const QColor &colour) override
    {
        const bool isLetter = cluster.size() == 1 && isPlain(cluster.front());
        const bool follows = isLetter && colour == pen && cellAt == next && !run.isEmpty();
        if (!follows)
            endRow();
        if (run.isEmpty())
            start = cellAt;
        run += cluster;
        pen = colour;
        next = cellAt + QPoint(static_cast<int>(cluster.size()) * cell.width(), 0);
        if (!isLetter)
            endCluster();
    }

    void endRow() override
    {
        if (!run.isEmpty())
            add(QString::number(start.x()), u"textLength=\""_s
                                                + QString::number(next.x() - start.x())
                                                + u"\" lengthAdjust=\"spacingAndGlyphs\""_s);
    }

    void end() override { endRow(); }

private:
    void endCluster() { add(numbered((start.x() + next.x()) / 2.0), u"text-anchor=\"middle\""_s); }

    void add(const QString &x, const QString &attributes)
    {
        svg += u"<text x=\""_s + x + u"\" y=\""_s + numbered(start.y() + baseline) + u"\" fill=\""_s
               + pen.name() + u"\" "_s + attributes + u'>' + run.toHtmlEscaped() + u"</text>\n"_s;
        run.clear();
    }

    QString &svg;
    const QSize cell;
    const qreal baseline;
    QString run;
    QColor pen;
    QPoint start;
    QPoint next;
};

} // namespace

Svg::Svg(QSize size, QSize cellSize, int dotsPerMetre, const QString &title, const QColor &around)
    : cell(cellSize)
{
    const auto millimetres = [&](int dots) { return numbered(dots * 1000.0 / dotsPerMetre); };
    text = u"<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1mm\" height=\"%2mm\" "
           "viewBox=\"0 0 %3 %4\" font-size=\"%5\" "
           "font-family=\"DejaVu Sans Mono, Liberation Mono, monospace\">\n"_s
               .arg(millimetres(size.width()), millimetres(size.height()))
               .arg(size.width())
               .arg(size.height())
               .arg(cellFont(cell).pixelSize());
    text += u"<title>"_s + title.toHtmlEscaped() + u"</title>\n"_s;
    if (around.alpha() > 0)
        text += u"<rect width=\"100%\" height=\"100%\" fill=\""_s + around.name() + u"\"/>\n"_s;
}

void Svg::addPaper(const QPolygon &outline, const QColor &paper, const QColor &edge)
{
    text +=
        u"<polygon fill=\""_s + paper.name() + u"\" stroke=\""_s + edge.name() + u"\" points=\""_s;
    for (const QPoint &point : outline)
        text += QString::number(point.x()) + u',' + QString::number(point.y()) + u' ';
    text.chop(1);
    text += u"\"/>\n"_s;
}

void Svg::addCut(int y, int width, const QColor &colour)
{
    text += u"<path d=\"M0 %1H%2\" stroke=\"%3\" stroke-width=\"2\" stroke-dasharray=\"8 4\"/>\n"_s
                .arg(y)
                .arg(width)
                .arg(colour.name());
}

void Svg::addDots(const QImage &image)
{
    QBuffer png;
    QImageWriter(&png, "png").write(image);
    text += u"<image width=\"%1\" height=\"%2\" style=\"image-rendering:pixelated\" "
            "href=\"data:image/png;base64,"_s.arg(image.width())
                .arg(image.height())
            + QString::fromLatin1(png.data().toBase64()) + u"\"/>\n"_s;
}

std::unique_ptr<Ink> Svg::ink() { return std::make_unique<SvgInk>(text, cell); }

QByteArray Svg::end() { return (text + u"</svg>\n"_s).toUtf8(); }

} // namespace korvel::preview

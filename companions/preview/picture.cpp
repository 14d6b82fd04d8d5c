// Paper, rows and torn edges, on an image or a page.
#include "companions/preview/picture.h"

#include "companions/preview/dotpdf.h"
#include "companions/preview/ink.h"
#include "companions/preview/svg.h"

#include <QBitmap>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QPolygon>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Row = PaperRow::Kind;

constexpr qsizetype mostColumns = 2600; // of a row; what is further out is a single "…"

const QColor red(0xc0, 0x20, 0x20); // what is beyond the paper or unknown

QColor colourOf(Row kind, const Look &look)
{
    switch (kind) {
    case Row::Computed:
    case Row::Cut:
        return {0x80, 0x80, 0x80};
    case Row::Unknown:
        return red;
    case Row::Printed:
    case Row::Registered:
    case Row::Deducted:
        break;
    }
    return look.ink;
}

/// How far a torn edge reaches into the paper, tooth by tooth: evenly, or as a tear does.
int depthOfTear(int tooth, const Look &look)
{
    constexpr std::array tear = {7, 2, 8, 3, 6, 1, 9, 2, 7, 4, 8, 1, 6, 3}; // tenths
    const auto count = static_cast<int>(tear.size());
    if (look.dots)
        return look.tooth * tear.at(static_cast<std::size_t>(tooth % count)) / 10;
    return tooth % 2 == 0 ? look.tooth : 0;
}

} // namespace

Picture::Picture(const QList<PaperRow> &paperRows, int paperColumns, const Look &paperLook,
                 qsizetype widestRow)
    : look(paperLook)
    , rows(paperRows)
    , columns(paperColumns)
    , widest(std::max<qsizetype>(paperColumns, widestRow))
{
    rows.removeIf([&](const PaperRow &row) { return !shows(look, row); });
    for (const PaperRow &row : std::as_const(rows))
        widest = std::max(widest, widthOf(row, columns));
}

bool Picture::shows(const Look &look, const PaperRow &row)
{
    return !look.dots || row.kind != Row::Computed;
}

qsizetype Picture::widthOf(const PaperRow &row, int columns)
{
    return std::min(row.text.size(), std::max<qsizetype>(mostColumns, columns));
}

bool Picture::fitsImage() const
{
    constexpr qint64 mostDots = 128'000'000;
    return rows.size() <= mostRows && qint64(size().width()) * size().height() <= mostDots;
}

bool Picture::hasFont() { return !QFontInfo(cellFont(Look::plain().cell)).family().isEmpty(); }

QSize Picture::size() const
{
    const auto beyond = static_cast<int>(widest - columns);
    return {paperWidth() + (beyond > 0 ? beyond * look.cell.width() + look.margin : 0),
            static_cast<int>(qsizetype(2) * look.space + rows.size() * look.cell.height())};
}

int Picture::paperWidth() const
{
    return 2 * look.margin + std::max(look.printing, columns * look.cell.width());
}

void Picture::paint(QPainter &painter) const
{
    painter.save();
    paintPaper(painter);
    const auto takeDots = [&](const QImage &dots, int top, const QColor &colour) {
        painter.setPen(colour);
        painter.drawPixmap(0, top, QBitmap::fromImage(dots));
    };
    const auto ink =
        look.dots ? dotInk(takeDots, look.cell, size().width()) : smoothInk(painter, look.cell);
    printRows(*ink, [&](int middle) {
        painter.setPen(QPen(colourOf(Row::Cut, look), 2, Qt::DashLine));
        painter.drawLine(0, middle, paperWidth(), middle);
    });
    painter.restore();
}

QPolygon Picture::outline() const
{
    const int width = paperWidth();
    const int height = size().height();
    const int tooth = look.tooth;
    QPolygon points;
    for (int x = 0; x <= width; x += tooth)
        points << QPoint(x, depthOfTear(x / tooth, look));
    points << QPoint(width, tooth) << QPoint(width, height - tooth);
    for (int x = width - width % tooth; x >= 0; x -= tooth)
        points << QPoint(x, height - depthOfTear(x / tooth, look));
    return points;
}

void Picture::paintPaper(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing, !look.dots);
    painter.setPen(QPen(look.edge, 1));
    painter.setBrush(look.paper);
    painter.drawPolygon(outline());
}

void Picture::printRows(Ink &ink, const std::function<void(int middle)> &cut) const
{
    int top = look.space;
    for (const PaperRow &row : rows) {
        if (row.kind == Row::Cut)
            cut(top + look.cell.height() / 2);
        else
            printRow(ink, row, top);
        ink.endRow();
        top += look.cell.height();
    }
    ink.end();
}

void Picture::printRow(Ink &ink, const PaperRow &row, int top) const
{
    QString text = row.text;
    if (text.size() > widest)
        text = text.first(widest - 1) + u'…';
    const int cell = look.cell.width();
    for (qsizetype at = 0, length = 0; at < text.size(); at += length) {
        length = clusterLength(text, at);
        if (length == 1 && text.at(at) == u' ')
            continue;
        // Behind the paper's edge rather than on its margin, so that nobody takes it for printed.
        const bool beyond = at + length > columns;
        const auto left = static_cast<int>(beyond ? paperWidth() + (at + 1 - columns) * cell
                                                  : look.margin + at * cell);
        ink.print(text.sliced(at, length), {left, top}, beyond ? red : colourOf(row.kind, look));
    }
}

QImage Picture::toImage(const QColor &around) const
{
    QImage image(size(), around.alpha() == 255 ? QImage::Format_RGB32
                                               : QImage::Format_ARGB32_Premultiplied);
    image.fill(around);
    image.setDotsPerMeterX(look.dotsPerMetre);
    image.setDotsPerMeterY(look.dotsPerMetre);
    QPainter painter(&image);
    paint(painter);
    return image;
}

QByteArray Picture::toSvg(const QString &title, const QColor &around) const
{
    Svg svg(size(), look.cell, look.dotsPerMetre, title, around);
    if (look.dots) {
        svg.addDots(toImage(around));
        return svg.end();
    }
    svg.addPaper(outline(), look.paper, look.edge);
    printRows(*svg.ink(),
              [&](int middle) { svg.addCut(middle, paperWidth(), colourOf(Row::Cut, look)); });
    return svg.end();
}

void Picture::addTo(DotPdf &pdf) const
{
    pdf.beginPage(size());
    pdf.addPaper(outline(), look.paper, look.edge);
    const auto takeDots = [&](const QImage &dots, int top, const QColor &colour) {
        pdf.addDots(dots, top, colour);
    };
    printRows(*dotInk(takeDots, look.cell, size().width()),
              [&](int middle) { pdf.addCut(middle, paperWidth(), colourOf(Row::Cut, look)); });
    pdf.endPage();
}

} // namespace korvel::preview

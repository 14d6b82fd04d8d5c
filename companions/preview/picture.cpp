// Cells, ink and torn edges, on an image or on the pages of a PDF.
#include "companions/preview/picture.h"

#include <QBuffer>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPolygon>
#include <QRawFont>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

using Row = PaperRow::Kind;

constexpr int dotsPerInch = 203;
constexpr int dotsPerMetre = 7992;
constexpr QSize cell(12, 24);
constexpr qsizetype margin = 40;        // 5 mm, on either side of the text
constexpr int tooth = 8;                // of a torn edge
constexpr qsizetype space = 24;         // above the first row and below the last
constexpr qsizetype mostColumns = 2600; // of a row; what is further out is a single "…"
constexpr qsizetype rowsOfPage = 1300;  // a PDF page has at most 200 inches

const QColor paper(Qt::white);
const QColor ink(Qt::black);
const QColor grey(0x80, 0x80, 0x80); // what the preview says, and the edges
const QColor red(0xc0, 0x20, 0x20);  // what is beyond the paper or unknown

QColor colourOf(Row kind)
{
    switch (kind) {
    case Row::Computed:
    case Row::Cut:
        return grey;
    case Row::Unknown:
        return red;
    case Row::Printed:
    case Row::Registered:
    case Row::Deducted:
        break;
    }
    return ink;
}

/// The machine's font of fixed width, as large as a cell takes.
QFont cellFont()
{
    QFont font;
    font.setFamilies({u"DejaVu Sans Mono"_s, u"Liberation Mono"_s, u"monospace"_s});
    font.setStyleHint(QFont::Monospace);
    font.setFixedPitch(true);
    for (int size = cell.height(); size > 1; --size) {
        font.setPixelSize(size);
        const QFontMetricsF metrics(font);
        if (metrics.horizontalAdvance(u'0') <= cell.width() + 0.1
            && metrics.height() <= cell.height())
            break;
    }
    return font;
}

/// Characters that are drawn together in the cells of their units: a letter with its accents, an
/// emoji.
qsizetype clusterLength(const QString &text, qsizetype at)
{
    qsizetype end = at + (text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1);
    while (end < text.size() && text.at(end).isMark())
        ++end;
    return end - at;
}

/// Whether a character looks alone as it does in a text: its script joins and moves no letters.
bool isPlain(QChar character)
{
    switch (character.script()) {
    case QChar::Script_Common:
    case QChar::Script_Latin:
    case QChar::Script_Greek:
    case QChar::Script_Cyrillic:
        return true;
    default:
        return false;
    }
}

/// Letters painted all at once: a painter takes long for each text, however short.
class Letters
{
public:
    explicit Letters(QPainter &rowPainter)
        : painter(rowPainter)
        , font(QRawFont::fromFont(rowPainter.font()))
        , baseline((cell.height() - font.ascent() - font.descent()) / 2 + font.ascent())
    {
    }

    /**
     * Takes a letter, for the middle of its cell; false, and nothing done, for what is not plain
     * and what the font does not have.
     */
    bool add(QChar letter, QPoint cellAt, const QColor &colour)
    {
        quint32 glyph = 0;
        int count = 1;
        if (!isPlain(letter) || !font.glyphIndexesForChars(&letter, 1, &glyph, &count)
            || glyph == 0)
            return false;
        QPointF advance;
        if (!font.advancesForGlyphIndexes(&glyph, &advance, 1))
            return false;
        if (colour != pen)
            paint();
        pen = colour;
        glyphs.append(glyph);
        positions.append(cellAt + QPointF((cell.width() - advance.x()) / 2, baseline));
        return true;
    }

    void paint()
    {
        if (glyphs.isEmpty())
            return;
        QGlyphRun run;
        run.setRawFont(font);
        run.setGlyphIndexes(glyphs);
        run.setPositions(positions);
        painter.setPen(pen);
        painter.drawGlyphRun({}, run);
        glyphs.clear();
        positions.clear();
    }

private:
    QPainter &painter;
    const QRawFont font;
    const qreal baseline;
    QColor pen;
    QList<quint32> glyphs;
    QList<QPointF> positions;
};

} // namespace

Picture::Picture(const QList<PaperRow> &paperRows, int paperColumns)
    : rows(paperRows)
    , columns(paperColumns)
    , widest(paperColumns)
{
    for (const PaperRow &row : rows)
        widest =
            std::max(widest, std::min(row.text.size(), std::max<qsizetype>(mostColumns, columns)));
}

bool Picture::fitsImage() const
{
    constexpr qint64 mostDots = 128'000'000;
    return rows.size() <= mostRows && qint64(size().width()) * size().height() <= mostDots;
}

bool Picture::hasFont() { return !QFontInfo(cellFont()).family().isEmpty(); }

QSize Picture::size() const
{
    const qsizetype beyond = widest > columns ? margin : 0;
    const auto width = static_cast<int>(2 * margin + widest * cell.width() + beyond);
    return {width, static_cast<int>(2 * space + rows.size() * cell.height())};
}

int Picture::paperWidth() const { return static_cast<int>(2 * margin) + columns * cell.width(); }

void Picture::paint(QPainter &painter) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(cellFont());
    paintPaper(painter);
    int top = static_cast<int>(space);
    for (const PaperRow &row : rows) {
        paintRow(painter, row, top);
        top += cell.height();
    }
    painter.restore();
}

void Picture::paintPaper(QPainter &painter) const
{
    const int width = paperWidth();
    const int height = size().height();
    QPolygon outline;
    for (int x = 0; x <= width; x += tooth)
        outline << QPoint(x, x / tooth % 2 == 0 ? tooth : 0);
    outline << QPoint(width, tooth) << QPoint(width, height - tooth);
    for (int x = width - width % tooth; x >= 0; x -= tooth)
        outline << QPoint(x, height - (x / tooth % 2 == 0 ? tooth : 0));
    painter.setPen(QPen(grey, 1));
    painter.setBrush(paper);
    painter.drawPolygon(outline);
}

void Picture::paintRow(QPainter &painter, const PaperRow &row, int top) const
{
    if (row.kind == Row::Cut) {
        painter.setPen(QPen(grey, 2, Qt::DashLine));
        const int middle = top + cell.height() / 2;
        painter.drawLine(0, middle, paperWidth(), middle);
        return;
    }
    QString text = row.text;
    if (text.size() > widest)
        text = text.first(widest - 1) + u'…';
    Letters letters(painter);
    for (qsizetype at = 0, length = 0; at < text.size(); at += length) {
        length = clusterLength(text, at);
        const bool beyond = at + length > columns;
        const QColor colour = beyond ? red : colourOf(row.kind);
        // Behind the paper's edge rather than on its margin, so that nobody takes it for printed.
        const auto left =
            static_cast<int>(margin + (beyond ? margin + cell.width() : 0) + at * cell.width());
        if (length == 1 && (text.at(at) == u' ' || letters.add(text.at(at), {left, top}, colour)))
            continue;
        letters.paint(); // what overlaps does so from left to right
        painter.setPen(colour);
        painter.drawText(QRect(left, top, static_cast<int>(length) * cell.width(), cell.height()),
                         Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine,
                         text.sliced(at, length));
    }
    letters.paint();
}

QImage Picture::toImage() const
{
    QImage image(size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    QPainter painter(&image);
    paint(painter);
    return image;
}

Picture Picture::part(qsizetype first, qsizetype count) const
{
    Picture page(rows.sliced(first, std::min(count, rows.size() - first)), columns);
    page.widest = widest;
    return page;
}

QByteArray Picture::toPdf() const
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(dotsPerInch);
    writer.setPageMargins(QMarginsF());
    writer.setCreator(u"korvel-preview"_s);
    QPainter painter;
    qsizetype first = 0;
    do {
        const Picture page = part(first, rowsOfPage);
        const QSizeF inches = QSizeF(page.size()) / dotsPerInch;
        writer.setPageSize(QPageSize(inches, QPageSize::Inch, {}, QPageSize::ExactMatch));
        if (first == 0)
            painter.begin(&writer);
        else
            writer.newPage();
        page.paint(painter);
        first += rowsOfPage;
    } while (first < rows.size());
    painter.end();
    return buffer.data();
}

} // namespace korvel::preview

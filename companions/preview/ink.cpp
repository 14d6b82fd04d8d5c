// Letters drawn as outlines, or dot by dot.
#include "companions/preview/ink.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QList>
#include <QMap>
#include <QPainter>
#include <QRawFont>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

/// Letters painted all at once: a painter takes long for each text, however short.
class SmoothInk : public Ink
{
public:
    SmoothInk(QPainter &rowPainter, QSize cellSize)
        : painter(rowPainter)
        , cell(cellSize)
        , cellText(cellFont(cellSize))
        , font(QRawFont::fromFont(cellText))
        , baseline(baselineOf(cellText, cellSize))
    {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setFont(cellText);
    }

    void print(const QString &cluster, QPoint cellAt, const QColor &colour) override
    {
        if (cluster.size() == 1 && add(cluster.front(), cellAt, colour))
            return;
        endRow(); // what overlaps does so from left to right
        painter.setPen(colour);
        painter.drawText(
            QRect(cellAt, QSize(static_cast<int>(cluster.size()) * cell.width(), cell.height())),
            Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine, cluster);
    }

    void endRow() override
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

    void end() override { endRow(); }

private:
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
            endRow();
        pen = colour;
        glyphs.append(glyph);
        positions.append(cellAt + QPointF((cell.width() - advance.x()) / 2, baseline));
        return true;
    }

    QPainter &painter;
    const QSize cell;
    const QFont cellText;
    const QRawFont font;
    const qreal baseline;
    QColor pen;
    QList<quint32> glyphs;
    QList<QPointF> positions;
};

/// Black dots of one image onto another, which is as high at least below "top".
void stamp(QImage &paper, const QImage &letter, QPoint at)
{
    const int first = at.x() / 8;
    const int shift = at.x() % 8;
    const auto bytes = std::min<qsizetype>((letter.width() + 7) / 8, paper.bytesPerLine() - first);
    for (int y = 0; y < letter.height(); ++y) {
        const uchar *from = letter.constScanLine(y);
        uchar *to = paper.scanLine(at.y() + y) + first;
        for (qsizetype i = 0; i < bytes; ++i) {
            to[i] = static_cast<uchar>(to[i] | (from[i] >> shift));
            if (shift > 0 && first + i + 1 < paper.bytesPerLine())
                to[i + 1] = static_cast<uchar>(to[i + 1] | (from[i] << (8 - shift)));
        }
    }
}

/// Each letter is drawn once and stamped from then on, into a plane for each colour.
class DotInk : public Ink
{
public:
    DotInk(TakeDots takeDots, QSize cellSize, int paperWidth)
        : take(std::move(takeDots))
        , cell(cellSize)
        , width(paperWidth)
        , font(cellFont(cellSize))
    {
        font.setStyleStrategy(QFont::NoAntialias);
        font.setHintingPreference(QFont::PreferFullHinting);
    }

    void print(const QString &cluster, QPoint cellAt, const QColor &colour) override
    {
        if (planes.isEmpty())
            top = cellAt.y();
        if (cellAt.x() < width)
            stamp(planeOf(colour), dotsOf(cluster), {cellAt.x(), cellAt.y() - top});
    }

    void endRow() override
    {
        if (!planes.isEmpty() && ++rows == rowsOfPlane)
            end();
    }

    void end() override
    {
        for (auto plane = planes.cbegin(); plane != planes.cend(); ++plane) {
            take(plane.value(), top, QColor::fromRgba(plane.key()));
        }
        planes.clear();
        rows = 0;
    }

private:
    // Whatever is printed, this takes little memory.
    static constexpr int rowsOfPlane = 32;
    static constexpr qsizetype mostKept = 8192;

    /// A bitmap without dots.
    static QImage blank(int width, int height)
    {
        QImage image(width, height, QImage::Format_Mono);
        image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)}); // a bitmap's
        image.fill(0);
        return image;
    }

    QImage &planeOf(const QColor &colour)
    {
        QImage &plane = planes[colour.rgba()];
        if (plane.isNull())
            plane = blank(width, rowsOfPlane * cell.height());
        return plane;
    }

    const QImage &dotsOf(const QString &cluster)
    {
        if (const auto known = letters.constFind(cluster); known != letters.cend())
            return *known;
        kept += cluster.size();
        if (kept > mostKept) {
            letters.clear();
            kept = cluster.size();
        }
        QImage &dots = letters[cluster];
        dots = blank(static_cast<int>(cluster.size()) * cell.width(), cell.height());
        QPainter letter(&dots);
        letter.setFont(font);
        letter.setPen(Qt::black);
        letter.drawText(dots.rect(), Qt::AlignCenter | Qt::TextSingleLine, cluster);
        return dots;
    }

    const TakeDots take;
    const QSize cell;
    const int width;
    QFont font;
    QHash<QString, QImage> letters;
    qsizetype kept = 0;        // units of these
    QMap<QRgb, QImage> planes; // of the rows from "top" on
    int top = 0;
    int rows = 0; // ended since then
};

} // namespace

QFont cellFont(QSize cell)
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

qreal baselineOf(const QFont &font, QSize cell)
{
    const QRawFont raw = QRawFont::fromFont(font);
    return (cell.height() - raw.ascent() - raw.descent()) / 2 + raw.ascent();
}

qsizetype clusterLength(const QString &text, qsizetype at)
{
    qsizetype end = at + (text.at(at).isHighSurrogate() && at + 1 < text.size() ? 2 : 1);
    while (end < text.size() && text.at(end).isMark())
        ++end;
    return end - at;
}

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

std::unique_ptr<Ink> smoothInk(QPainter &painter, QSize cell)
{
    return std::make_unique<SmoothInk>(painter, cell);
}

std::unique_ptr<Ink> dotInk(TakeDots take, QSize cell, int width)
{
    return std::make_unique<DotInk>(std::move(take), cell, width);
}

} // namespace korvel::preview

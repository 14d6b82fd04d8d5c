// Characters on the paper of a picture, in cells of one width.
#pragma once

#include <QColor>
#include <QFont>
#include <QPoint>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

class QImage;
class QPainter;

namespace korvel::preview {

/// The machine's font of fixed width, as large as a cell takes.
QFont cellFont(QSize cell);

/// From the top of a cell to the line that its letters stand on.
qreal baselineOf(const QFont &font, QSize cell);

/// Units from a place in a text on that are drawn together, in their cells: a letter with its
/// accents, an emoji.
qsizetype clusterLength(const QString &text, qsizetype at);

/// Whether a character looks alone as it does in a text: its script joins and moves no letters.
bool isPlain(QChar character);

/// Prints characters. What overlaps does so in the order of the calls.
class Ink
{
public:
    Ink() = default;
    Ink(const Ink &) = delete;
    Ink &operator=(const Ink &) = delete;
    virtual ~Ink() = default;

    /// Prints what is drawn together in the cells of its units, the first of which is here.
    virtual void print(const QString &cluster, QPoint cellAt, const QColor &colour) = 0;

    /// Nothing more comes into the present row.
    virtual void endRow() = 0;

    /// Nothing more comes.
    virtual void end() = 0;
};

/// Letters as the painter draws them, smooth where it can.
std::unique_ptr<Ink> smoothInk(QPainter &painter, QSize cell);

/// What becomes of dots of a colour: a bitmap, and its place from the top.
using TakeDots = std::function<void(const QImage &dots, int top, const QColor &colour)>;

/**
 * Letters of whole dots, as a print head has them, in bitmaps of several rows each.
 *
 * @param width of a row, in dots; what is further out is not printed
 */
std::unique_ptr<Ink> dotInk(TakeDots take, QSize cell, int width);

} // namespace korvel::preview

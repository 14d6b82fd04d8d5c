// Painting and dragging the edges of columns.
#include "companions/settings/ruler.h"

#include "companions/settings/fields.h"
#include "vocabulary/paper.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

constexpr int mostColumns = 256; // that a drag reaches, or where the edge is
constexpr int reach = 6;         // pixels beside an edge at which the mouse takes it
constexpr int arrow = 10;        // pixels of an arrow at an end

} // namespace

Ruler::Ruler(QWidget *parent)
    : QWidget(parent)
    , place([](int column) { return column; })
{
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setAccessibleName(tr("Ruler of the columns"));
    setToolTip(tr("Drag the edge of a column to make it wider or narrower."));
}

void Ruler::setEdges(const QList<ColumnEdge> &newEdges)
{
    columnEdges = newEdges;
    update();
}

void Ruler::setScale(std::function<double(int)> newPlace)
{
    place = std::move(newPlace);
    update();
}

QSize Ruler::sizeHint() const { return {100, fontMetrics().height() + 8}; }

int Ruler::placeOf(const ColumnEdge &edge) const { return qRound(place(edge.at())); }

void Ruler::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const int bottom = height() - 1;
    painter.setPen(palette().color(QPalette::WindowText));
    int last = vocabulary::lineWidth;
    for (const ColumnEdge &edge : columnEdges)
        last = std::max(last, edge.at());
    const int begin = beyond(End::Left) ? arrow : 0;
    const int end = width() - (beyond(End::Right) ? arrow : 0);
    for (int column = 0; column <= last && place(column) < end; ++column) {
        const int x = qRound(place(column));
        if (x < begin)
            continue;
        painter.drawLine(x, bottom, x, bottom - (column % 10 == 0 ? 6 : column % 5 == 0 ? 4 : 2));
        if (column % 10 == 0 && column > 0)
            painter.drawText(QRect(x - 20, 0, 40, bottom - 5), Qt::AlignCenter,
                             QString::number(column));
    }
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    for (const ColumnEdge &edge : columnEdges)
        painter.drawLine(placeOf(edge), 2, placeOf(edge), bottom);
    for (const End side : {End::Left, End::Right})
        paintArrow(painter, side);
}

void Ruler::paintArrow(QPainter &painter, End end) const
{
    if (!beyond(end))
        return;
    const int base = end == End::Left ? arrow : width() - arrow;
    const int point = end == End::Left ? 0 : width();
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.drawPolygon(
        QPolygon({QPoint(base, 2), QPoint(point, height() / 2), QPoint(base, height() - 2)}));
}

/// The nearest of the edges that are out of sight at an end; null for none.
const ColumnEdge *Ruler::beyond(End end) const
{
    const ColumnEdge *nearest = nullptr;
    for (const ColumnEdge &edge : columnEdges) {
        const int x = placeOf(edge);
        const bool isBeyond = end == End::Left ? x < 0 : x >= width();
        const bool isNearer = !nearest || (end == End::Left) == (edge.at() > nearest->at());
        if (isBeyond && isNearer)
            nearest = &edge;
    }
    return nearest;
}

/// The edge that an arrow there stands for; null where there is none.
const ColumnEdge *Ruler::arrowAt(double x) const
{
    if (x < arrow)
        return beyond(End::Left);
    return x >= width() - arrow ? beyond(End::Right) : nullptr;
}

/// The edge that the mouse takes there, -1 for none.
int Ruler::edgeAt(double x) const
{
    int found = -1;
    double nearest = reach + 1;
    for (int i = 0; i < columnEdges.size(); ++i) {
        const double distance = std::abs(x - placeOf(columnEdges[i]));
        if (distance < nearest) {
            nearest = distance;
            found = i;
        }
    }
    return found;
}

/// The column whose beginning is nearest.
int Ruler::columnAt(double x) const
{
    const int most = std::max(mostColumns, held ? held->at() : 0);
    int column = 0;
    while (column < most && (place(column) + place(column + 1)) / 2 < x)
        ++column;
    return column;
}

void Ruler::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (const ColumnEdge *edge = arrowAt(event->position().x())) {
        emit asked(edge->at());
        return;
    }
    const int found = edgeAt(event->position().x());
    if (found < 0)
        return;
    held = columnEdges[found];
    ++moves;
}

void Ruler::mouseMoveEvent(QMouseEvent *event)
{
    if (held) {
        emit dragged(held->setting, held->valueAt(columnAt(event->position().x())), moves);
        return;
    }
    if (const ColumnEdge *edge = arrowAt(event->position().x())) {
        setCursor(Qt::PointingHandCursor);
        setToolTip(fields::titleOf(edge->setting.constLast()) + u" → "_s
                   + QString::number(edge->at()));
        return;
    }
    const int found = edgeAt(event->position().x());
    setCursor(found < 0 ? Qt::ArrowCursor : Qt::SplitHCursor);
    setToolTip(found < 0 ? tr("Drag the edge of a column to make it wider or narrower.")
                         : fields::titleOf(columnEdges[found].setting.constLast()));
}

void Ruler::mouseReleaseEvent(QMouseEvent * /*event*/) { held.reset(); }

} // namespace korvel::settings

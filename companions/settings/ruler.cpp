// Painting and dragging the edges of columns.
#include "companions/settings/ruler.h"

#include "companions/settings/fields.h"
#include "vocabulary/paper.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace korvel::settings {

namespace {

constexpr int mostColumns = 256; // that a drag reaches
constexpr int reach = 6;         // pixels beside an edge at which the mouse takes it

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

int Ruler::placeOf(const ColumnEdge &edge) const { return qRound(place(edge.at)); }

void Ruler::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const int bottom = height() - 1;
    painter.setPen(palette().color(QPalette::WindowText));
    for (int column = 0; column <= vocabulary::lineWidth; ++column) {
        const int x = qRound(place(column));
        painter.drawLine(x, bottom, x, bottom - (column % 10 == 0 ? 6 : column % 5 == 0 ? 4 : 2));
        if (column % 10 == 0 && column > 0)
            painter.drawText(QRect(x - 20, 0, 40, bottom - 5), Qt::AlignCenter,
                             QString::number(column));
    }
    painter.setPen(QPen(palette().color(QPalette::Highlight), 3));
    for (const ColumnEdge &edge : columnEdges)
        painter.drawLine(placeOf(edge), 2, placeOf(edge), bottom);
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
    int column = 0;
    while (column < mostColumns && (place(column) + place(column + 1)) / 2 < x)
        ++column;
    return column;
}

void Ruler::mousePressEvent(QMouseEvent *event)
{
    const int found = edgeAt(event->position().x());
    if (found < 0 || event->button() != Qt::LeftButton)
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
    const int found = edgeAt(event->position().x());
    setCursor(found < 0 ? Qt::ArrowCursor : Qt::SplitHCursor);
    setToolTip(found < 0 ? tr("Drag the edge of a column to make it wider or narrower.")
                         : fields::titleOf(columnEdges[found].setting.constLast()));
}

void Ruler::mouseReleaseEvent(QMouseEvent * /*event*/) { held.reset(); }

} // namespace korvel::settings

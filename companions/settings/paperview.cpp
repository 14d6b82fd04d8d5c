// Painting the paper or the message.
#include "companions/settings/paperview.h"

#include "companions/preview/look.h"
#include "companions/settings/paperaccess.h"
#include "vocabulary/paper.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace korvel::settings {

namespace {

constexpr int border = 16; // around the paper, in pixels

} // namespace

PaperView::PaperView(QWidget *parent)
    : QWidget(parent)
{
    makePaperReadable(); // before anything is told of it
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Paper"));
}

void PaperView::showPaper(const QList<preview::PaperRow> &paperRows)
{
    rows = paperRows;
    picture.emplace(rows, vocabulary::lineWidth);
    note.clear();
    current = std::min(current, static_cast<int>(rows.size()) - 1);
    showContent();
}

void PaperView::showMessage(const QString &text)
{
    rows.clear();
    picture.reset();
    note = text;
    current = -1;
    showContent();
}

void PaperView::showContent()
{
    litRows.clear();
    setAccessibleDescription({});
    resize(sizeHint());
    updateGeometry();
    update();
}

void PaperView::showFailure(const shared::Rendered &rendered)
{
    using End = shared::Rendered::End;
    if (rendered.end == End::NoRoom)
        showMessage(tr("The temporary folder cannot be written."));
    else if (rendered.end == End::NotStarted)
        showMessage(tr("The renderer %1 cannot be started.").arg(rendered.program));
    else if (rendered.end == End::NoStream)
        showMessage(tr("The renderer %1 wrote nothing.").arg(rendered.program));
    else
        showMessage(tr("The renderer %1 ended with an error.").arg(rendered.program));
}

QString PaperView::text() const
{
    if (!picture)
        return note;
    QStringList lines;
    for (const preview::PaperRow &row : rows)
        lines.append(row.text);
    return lines.join(u'\n');
}

int PaperView::startOf(int row) const
{
    qsizetype start = 0;
    for (const preview::PaperRow &before : rows.first(std::min<qsizetype>(row, rows.size())))
        start += before.text.size() + 1;
    return static_cast<int>(start);
}

void PaperView::light(const QList<int> &newRows, const std::optional<Span> &columns)
{
    litRows = newRows;
    litColumns = columns;
    update();
}

void PaperView::setZoom(double newFactor)
{
    factor = std::clamp(newFactor, 0.25, 4.0);
    resize(sizeHint());
    updateGeometry();
    update();
}

double PaperView::zoomForWidth(int width) const
{
    const preview::Look look = preview::Look::plain();
    const int paper = 2 * look.margin + vocabulary::lineWidth * look.cell.width();
    return picture ? static_cast<double>(width - 2 * border) / paper : factor;
}

double PaperView::leftOf(int column) const
{
    const preview::Look look = preview::Look::plain();
    // What is wider than the paper goes on behind its edge.
    const int beyond = column > vocabulary::lineWidth ? look.margin + look.cell.width() : 0;
    return border + factor * (look.margin + beyond + column * look.cell.width());
}

QRectF PaperView::rectOf(int row, const Span &columns) const
{
    const preview::Look look = preview::Look::plain();
    const int height = look.cell.height();
    // The paper's edge is the left one of what goes on behind it, and the right one of the rest.
    const double left = columns.from < vocabulary::lineWidth
                            ? leftOf(columns.from)
                            : leftOf(columns.from + 1) - factor * look.cell.width();
    return {left, border + factor * (look.space + row * height),
            std::max(0.0, leftOf(columns.to) - left), factor * height};
}

QPoint PaperView::placeOf(int row, int column) const
{
    return rectOf(row, {column, column + 1}).center().toPoint();
}

QSize PaperView::sizeHint() const
{
    const QSize content = picture ? picture->size() * factor : QSize(320, 160);
    return content + QSize(2 * border, 2 * border);
}

void PaperView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    if (!picture) {
        painter.setPen(Qt::black);
        painter.drawText(rect().adjusted(border, border, -border, -border),
                         Qt::AlignCenter | Qt::TextWordWrap, note);
        return;
    }
    painter.save();
    painter.translate(border, border);
    painter.scale(factor, factor);
    picture->paint(painter);
    painter.restore();
    // The paper is white, whatever the colours of the desktop are.
    const Span span = litColumns.value_or(Span{0, vocabulary::lineWidth});
    for (const int row : litRows)
        painter.fillRect(rectOf(row, span), QColor(0xff, 0xc1, 0x07, 0x60));
    if (hasFocus() && current >= 0) {
        painter.setPen(QPen(QColor(0x15, 0x65, 0xc0), 2));
        painter.drawRect(rectOf(current, {0, vocabulary::lineWidth}));
    }
}

void PaperView::mousePressEvent(QMouseEvent *event)
{
    const preview::Look look = preview::Look::plain();
    const double x = (event->position().x() - border) / factor - look.margin;
    const double y = (event->position().y() - border) / factor - look.space;
    const int row = static_cast<int>(y) / look.cell.height();
    if (y < 0 || row >= rows.size())
        return;
    current = row;
    update();
    const int cell = look.cell.width();
    const int column = static_cast<int>(std::floor(x / cell));
    const int behind = static_cast<int>(std::floor((x - look.margin) / cell)) - 1;
    emit rowChosen(row, column < vocabulary::lineWidth ? column
                                                       : std::max(behind, vocabulary::lineWidth));
}

void PaperView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Down:
        setCurrentRow(current + 1);
        break;
    case Qt::Key_Up:
        setCurrentRow(current - 1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (current >= 0)
            emit rowChosen(current, 0);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

void PaperView::setCurrentRow(int row)
{
    current = std::min(std::max(row, 0), static_cast<int>(rows.size()) - 1);
    if (current >= 0) {
        setAccessibleDescription(
            tr("Line %1: %2").arg(current + 1).arg(rows[current].text.trimmed()));
        QAccessibleTextCursorEvent moved(this, startOf(current));
        QAccessible::updateAccessibility(&moved);
    }
    update();
}

} // namespace korvel::settings

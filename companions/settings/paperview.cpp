// Painting the paper or the message.
#include "companions/settings/paperview.h"

#include <QPainter>

namespace korvel::settings {

namespace {

constexpr int border = 16; // around the paper, in pixels

} // namespace

void PaperView::showPaper(const preview::Picture &paper)
{
    picture = paper;
    note.clear();
    resize(sizeHint());
    updateGeometry();
    update();
}

void PaperView::showMessage(const QString &text)
{
    picture.reset();
    note = text;
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

QSize PaperView::sizeHint() const
{
    const QSize content = picture ? picture->size() : QSize(320, 160);
    return content + QSize(2 * border, 2 * border);
}

void PaperView::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    if (picture) {
        painter.translate(border, border);
        picture->paint(painter);
        return;
    }
    painter.drawText(rect().adjusted(border, border, -border, -border),
                     Qt::AlignCenter | Qt::TextWordWrap, note);
}

} // namespace korvel::settings

// The pages of rolls: cut to what a page holds, and painted one after the other.
#include "companions/preview/rollpdf.h"

#include "companions/preview/picture.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::preview {

namespace {

constexpr int dotsPerInch = 203;
constexpr int dotsOfPage = 31'200; // of rows; a page has at most 200 inches

} // namespace

RollPdf::RollPdf(int paperColumns, const Look &paperLook, const QString &title)
    : columns(paperColumns)
    , look(paperLook)
    , dots(title, look.dotsPerMetre)
    , writer(&text)
{
    text.open(QIODevice::WriteOnly);
    writer.setResolution(dotsPerInch);
    writer.setPageMargins(QMarginsF());
    writer.setCreator(u"korvel-preview"_s);
    writer.setTitle(title);
}

void RollPdf::add(const PrintRows &print)
{
    qsizetype widest = 0; // of all pages
    print([&](const PaperRow &row) {
        if (Picture::shows(look, row))
            widest = std::max(widest, Picture::widthOf(row, columns));
    });
    const qsizetype rowsOfPage = dotsOfPage / look.cell.height();
    QList<PaperRow> rows;
    bool isBegun = false;
    const auto endPage = [&] {
        addPage(Picture(rows, columns, look, widest));
        rows.clear();
        isBegun = true;
    };
    print([&](const PaperRow &row) {
        if (!Picture::shows(look, row))
            return;
        if (rows.size() == rowsOfPage)
            endPage();
        rows.append(row);
    });
    if (!rows.isEmpty() || !isBegun)
        endPage();
}

void RollPdf::addPage(const Picture &page)
{
    if (look.dots)
        return page.addTo(dots);
    const QSizeF inches = QSizeF(page.size()) / dotsPerInch;
    writer.setPageSize(QPageSize(inches, QPageSize::Inch, {}, QPageSize::ExactMatch));
    if (painter.isActive())
        writer.newPage();
    else
        painter.begin(&writer);
    page.paint(painter);
}

QByteArray RollPdf::end()
{
    if (look.dots)
        return dots.end();
    painter.end();
    return text.data();
}

} // namespace korvel::preview

// Rows laid out in columns, column titles and the separator line.
#include "printer/printerdriver.h"

#include "printer/columns.h"
#include "vocabulary/columns.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace vocabulary = korvel::vocabulary;
namespace style = vocabulary::style;
using vocabulary::RowStyle;

namespace {

using korvel::columns::cut;
using korvel::columns::left;
using korvel::columns::right;

// A row and the widths that it is laid out in: q, d, p and t of its columns.
struct Row
{
    const QString &quantity, &description, &price, &total;
    QChar fill;
    qint64 q, d, p, t;
};

struct RowLayout
{
    RowStyle style;
    QString (*lay)(const Row &);
};

constexpr RowLayout rowLayouts[] = {
    {style::qdpt,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + u' ' + cut(r.description, r.d, r.fill)
                + right(r.price, r.p, r.fill) + right(r.total, r.t);
     }},
    {style::qxdpt,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + " x "_L1 + cut(r.description, r.d, r.fill)
                + right(r.price, r.p, r.fill) + right(r.total, r.t);
     }},
    {style::qxdtDoubleLine,
     [](const Row &r) -> QString {
         return r.quantity + " x "_L1 + r.price + u'\n' + cut(r.description, r.d, r.fill)
                + right(r.total, r.t, r.fill);
     }},
    {style::qxd,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + " x "_L1 + cut(r.description, r.d, r.fill);
     }},
    {style::qd,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + u' ' + cut(r.description, r.d);
     }},
    {style::dateAmountType,
     [](const Row &r) -> QString {
         return left(r.quantity, vocabulary::dateWidth) + cut(r.description, r.d, r.fill)
                + right(r.price, r.p, r.fill);
     }},
};

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantity, const QString &description,
                                      const QString &price, const QString &total, const QChar &fill,
                                      const QString &style) const
{
    const auto *const found =
        std::find_if(std::begin(rowLayouts), std::end(rowLayouts),
                     [&](const RowLayout &row) { return row.style.name == style; });
    if (found == std::end(rowLayouts))
        return {};
    const qint64 q = layout.quantityFieldWidth;
    const qint64 p = layout.priceFieldWidth;
    const qint64 t = layout.totalPriceFieldWidth;
    const qint64 rest = found->style.descriptionWidth(layout.paperWidth, q, p, t);
    return found->lay({quantity, description, price, total, fill, q, rest, p, t});
}

/// Asked for with every item, printed with the first.
const PrinterDriver::Titles &PrinterDriver::titles()
{
    if (!translatedTitles)
        translatedTitles = {tr("Num"), tr("Description"), tr("Price"), tr("Amount")};
    return *translatedTitles;
}

void PrinterDriver::printColumnsHeader(const QString &quantity, const QString &description,
                                       const QString &price, const QString &total)
{
    if (!oneTime())
        return;
    setBold();
    println(descriptionRow(quantity, description, price, total, u' ', style::qdpt));
    setCharSize();
}

void PrinterDriver::printSeparatorLine()
{
    println(QString(korvel::columns::padWidth(layout.paperWidth), u'='));
}

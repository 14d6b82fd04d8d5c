// Rows laid out in columns, column titles and the separator line.
#include "printer/printerdriver.h"

#include "printer/columns.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using columns::cut;
using columns::left;
using columns::right;

// A row and the widths it is laid out in: q, p and t of the columns, W of the line.
struct Row
{
    QString quantity, description, price, total;
    QChar fill;
    qint64 q, p, t, W;
};

struct RowStyle
{
    QLatin1StringView name;
    QString (*lay)(const Row &);
};

// "qd" is two characters short of the line, "date-amount-type" three.
constexpr RowStyle rowStyles[] = {
    {"qdpt"_L1,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + u' '
                + cut(r.description, r.W - r.q - r.p - r.t - 1, r.fill)
                + right(r.price, r.p, r.fill) + right(r.total, r.t);
     }},
    {"qxdpt"_L1,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + " x "_L1
                + cut(r.description, r.W - r.q - r.p - r.t - 3, r.fill)
                + right(r.price, r.p, r.fill) + right(r.total, r.t);
     }},
    {"qxdtDoubleLine"_L1,
     [](const Row &r) -> QString {
         return r.quantity + " x "_L1 + r.price + u'\n' + cut(r.description, r.W - r.t, r.fill)
                + right(r.total, r.t, r.fill);
     }},
    {"qxd"_L1,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + " x "_L1 + cut(r.description, r.W - r.q - 3, r.fill);
     }},
    {"qd"_L1,
     [](const Row &r) -> QString {
         return right(r.quantity, r.q) + u' ' + cut(r.description, r.W - r.q - 3);
     }},
    {"date-amount-type"_L1,
     [](const Row &r) -> QString {
         return left(r.quantity, 15) + cut(r.description, r.W - 15 - r.p - 3, r.fill)
                + right(r.price, r.p, r.fill);
     }},
};

} // namespace

QString PrinterDriver::descriptionRow(const QString &quantity, const QString &description,
                                      const QString &price, const QString &total, const QChar &fill,
                                      const QString &style) const
{
    const auto *const found = std::find_if(std::begin(rowStyles), std::end(rowStyles),
                                           [&](const RowStyle &row) { return row.name == style; });
    if (found == std::end(rowStyles))
        return {};
    return found->lay({quantity, description, price, total, fill, layout.quantityFieldWidth,
                       layout.priceFieldWidth, layout.totalPriceFieldWidth, layout.paperWidth});
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
    println(descriptionRow(quantity, description, price, total, u' ', u"qdpt"_s));
    setCharSize();
}

void PrinterDriver::printSeparatorLine()
{
    println(QString(columns::padWidth(layout.paperWidth), u'='));
}

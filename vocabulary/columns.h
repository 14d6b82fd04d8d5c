// The rows of documents: the columns that a style of row has, and the documents that print it.
#pragma once

#include "vocabulary/settings.h"

namespace korvel::vocabulary {

/// The columns beside the description, one bit each. Settings say how wide they are.
enum Column : unsigned {
    NoColumn = 0,
    Quantity = 1U << 0U,
    Price = 1U << 1U,
    Total = 1U << 2U,
};

/// Any number of columns.
using Columns = unsigned;

struct ColumnWidth
{
    Column column;
    QLatin1StringView setting; // that says it
};

// clang-format off
inline constexpr ColumnWidth columnWidths[] = {
    {Quantity, key::quantityFieldWidth  },
    {Price,    key::priceFieldWidth     },
    {Total,    key::totalPriceFieldWidth},
};
// clang-format on

struct RowStyle
{
    QStringView name;
    Columns columns;
    int beside; // characters of the line that neither these nor the description have

    /// Characters that a line of `paper` has left for the description, below 0 for none. The
    /// widths are those of the columns, whether the style has them or not.
    [[nodiscard]] constexpr qint64 descriptionWidth(qint64 paper, qint64 quantity, qint64 price,
                                                    qint64 total) const
    {
        return paper - beside - ((columns & Quantity) != 0 ? quantity : 0)
               - ((columns & Price) != 0 ? price : 0) - ((columns & Total) != 0 ? total : 0);
    }

    /// The name, to ask the driver for a row of the style.
    operator QString() const { return QString::fromRawData(name.data(), name.size()); }
};

/// Characters of a movement's date in a statement.
inline constexpr int dateWidth = 15;

namespace style {

// "qd" is two characters short of the line, "date-amount-type" three.
// clang-format off
inline constexpr RowStyle qdpt          {u"qdpt",             Quantity | Price | Total, 1};
inline constexpr RowStyle qxdpt         {u"qxdpt",            Quantity | Price | Total, 3};
inline constexpr RowStyle qxdtDoubleLine{u"qxdtDoubleLine",   Total,                    0};
inline constexpr RowStyle qxd           {u"qxd",              Quantity,                 3};
inline constexpr RowStyle qd            {u"qd",               Quantity,                 1 + 2};
inline constexpr RowStyle dateAmountType{u"date-amount-type", Price,
                                         dateWidth + 3};
// clang-format on

} // namespace style

/// The style of a document's items. Other documents have no rows in columns.
struct ItemRows
{
    Documents documents;
    RowStyle style;
};

// clang-format off
inline constexpr ItemRows itemRows[] = {
    {quantitiesOnly,                  style::qd            },
    {FullOrder | Invoice,             style::qdpt          },
    {Receipt | summaries | SoldItems, style::qxdpt         },
    {Statement,                       style::dateAmountType},
};
// clang-format on

} // namespace korvel::vocabulary

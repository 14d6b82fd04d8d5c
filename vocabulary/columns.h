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

inline constexpr ColumnWidth columnWidths[] = {
    {Quantity, key::quantityFieldWidth  },
    {Price,    key::priceFieldWidth     },
    {Total,    key::totalPriceFieldWidth},
};

struct RowStyle
{
    QLatin1StringView name;
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
};

namespace style {

// "qd" is two characters short of the line, "date-amount-type" three.
// clang-format off
inline constexpr RowStyle qdpt          {"qdpt"_L1,             Quantity | Price | Total, 1};
inline constexpr RowStyle qxdpt         {"qxdpt"_L1,            Quantity | Price | Total, 3};
inline constexpr RowStyle qxdtDoubleLine{"qxdtDoubleLine"_L1,   Total,                    0};
inline constexpr RowStyle qxd           {"qxd"_L1,              Quantity,                 3};
inline constexpr RowStyle qd            {"qd"_L1,               Quantity,                 3};
inline constexpr RowStyle dateAmountType{"date-amount-type"_L1, Price,                    18};
// clang-format on

} // namespace style

/// The style of a document's items. Other documents have no rows in columns.
struct ItemRows
{
    Documents documents;
    RowStyle style;
};

inline constexpr ItemRows itemRows[] = {
    {quantitiesOnly,                  style::qd            },
    {FullOrder | Invoice,             style::qdpt          },
    {Receipt | summaries | SoldItems, style::qxdpt         },
    {Statement,                       style::dateAmountType},
};

} // namespace korvel::vocabulary

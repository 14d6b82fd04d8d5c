// Which figure stands in which column, and what the columns leave of a line.
#include "companions/check/columns.h"

#include "companions/check/context.h"
#include "companions/check/words.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Documents;
using vocabulary::Method;

// A figure of a row and the setting that is its column's width.
struct Figure
{
    QLatin1StringView element;
    Documents documents;
    QLatin1StringView attribute;
    QLatin1StringView column;
};

constexpr auto q = "quantityFieldWidth"_L1;
constexpr auto p = "priceFieldWidth"_L1;
constexpr auto t = "totalPriceFieldWidth"_L1;
constexpr Documents everywhere = ~0U;
constexpr Documents priced = vocabulary::FullOrder | vocabulary::Receipt | vocabulary::Invoice;

// What a summary calls a price stands in the last column.
constexpr Figure figures[] = {
    {"receipe"_L1,      everywhere, "number"_L1,     q},
    {"receipe"_L1,      everywhere, "quantity"_L1,   q},
    {"receipe"_L1,      priced,     "price"_L1,      p},
    {"receipe"_L1,      priced,     "totalPrice"_L1, t},
    {"receipe"_L1,      everywhere, "amount"_L1,     t},
    {"otherreceipe"_L1, everywhere, "number"_L1,     q},
    {"variant"_L1,      everywhere, "number"_L1,     q},
    {"variant"_L1,      everywhere, "price"_L1,      p},
    {"variant"_L1,      everywhere, "totalPrice"_L1, t},
    {"receipe_type"_L1, everywhere, "number"_L1,     q},
    {"receipe_type"_L1, everywhere, "price"_L1,      t},
    {"total"_L1,        everywhere, "price"_L1,      t},
    {"totals"_L1,       everywhere, "taxable"_L1,    t},
    {"totals"_L1,       everywhere, "taxrate"_L1,    t},
    {"totals"_L1,       everywhere, "tax"_L1,        t},
    {"totals"_L1,       everywhere, "total"_L1,      t},
    {"statement"_L1,    everywhere, "amount"_L1,     p},
};

// The rows of a document: its columns, and the characters beside them and the description.
struct RowWidths
{
    Documents documents;
    bool hasQuantity, hasPrice, hasTotal;
    int beside;
};

constexpr Documents quantitiesOnly = vocabulary::KitchenOrder | vocabulary::DeliveryNote;
constexpr Documents closeColumns = vocabulary::FullOrder | vocabulary::Invoice;
constexpr Documents crossed = vocabulary::Receipt | vocabulary::SummaryReceipt
                              | vocabulary::SummaryInvoice | vocabulary::SoldItems;

constexpr RowWidths rowWidths[] = {
    {quantitiesOnly,        true,  false, false, 3 },
    {closeColumns,          true,  true,  true,  1 },
    {crossed,               true,  true,  true,  3 },
    {vocabulary::Statement, false, true,  false, 18},
};

/// Whether the columns of a document leave room for its description.
void checkRow(const SettingsFile &settings, const Method &method, const RowWidths &row, Place place,
              QList<Finding> &findings)
{
    const auto column = [&](bool has, QLatin1StringView key) {
        return has ? qint64(settings.number(method.group, key)) : 0;
    };
    const int paper = settings.number(method.group, "paperWidth"_L1);
    const qint64 width = paper == 0 ? printerWidth : paper;
    const qint64 taken =
        row.beside + column(row.hasQuantity, q) + column(row.hasPrice, p) + column(row.hasTotal, t);
    if (taken < width)
        return;
    const QString text =
        worded(Code::Columns, filled(phrase::noRoom, method.title, QString::number(taken),
                                     QString::number(width)));
    findings.append({
        place, Code::Columns, text, {u"korvel"_s, method.group},
           0
    });
}

} // namespace

void checkWidth(Context &context, const Tag &tag, const JobAttribute &attribute)
{
    for (const Figure &figure : figures) {
        if (figure.element != tag.name || figure.attribute != attribute.name
            || (figure.documents & context.method->document) == 0)
            continue;
        const QLatin1StringView group = context.method->group;
        const qsizetype width = std::max(context.settings->number(group, figure.column), 0);
        const qsizetype beyond = attribute.value.size() - width;
        if (beyond > 0)
            context.note(attribute.place, Code::WideFigure, attribute.name, quoted(attribute.value),
                         QString::number(width), figure.column, group, QString::number(beyond));
    }
}

void checkColumns(const SettingsFile &settings, const QHash<QString, Place> &groups,
                  QList<Finding> &findings)
{
    for (const Method &method : vocabulary::methods()) {
        for (const RowWidths &row : rowWidths) {
            if ((row.documents & method.document) != 0 && groups.contains(method.group))
                checkRow(settings, method, row, groups.value(method.group), findings);
        }
    }
}

} // namespace korvel::check

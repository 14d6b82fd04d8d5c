// The columns computed as the engine lays them out.
#include "companions/settings/columns.h"

#include "companions/settings/fields.h"
#include "companions/settings/state.h"
#include "vocabulary/columns.h"
#include "vocabulary/limits.h"
#include "vocabulary/paper.h"

#include <algorithm>

namespace korvel::settings {

namespace {

constexpr int widest = vocabulary::limit::widestPad;

/// The style of a document's items; null for one without columns.
const vocabulary::RowStyle *styleOf(vocabulary::Document document)
{
    for (const vocabulary::ItemRows &row : vocabulary::itemRows) {
        if ((row.documents & document) != 0)
            return &row.style;
    }
    return nullptr;
}

} // namespace

int ColumnEdge::valueAt(int column) const
{
    return std::clamp(isLeft ? span.to - column : column - span.from, 0, widest);
}

QList<ColumnEdge> edgesOf(const State &state, const vocabulary::Method &method)
{
    namespace key = vocabulary::key;
    if ((method.document & vocabulary::shared) == 0)
        return {};
    const auto path = [&](QLatin1StringView name) { return fields::pathOf(method.group, name); };
    const auto number = [&](QLatin1StringView name) {
        return std::clamp(state.value(path(name)).value_or(QString()).toInt(), 0, widest);
    };
    int paper = number(key::paperWidth);
    if (paper == 0)
        paper = vocabulary::lineWidth;
    QList<ColumnEdge> edges;
    if (const vocabulary::RowStyle *style = styleOf(method.document)) {
        const auto has = [&](vocabulary::Column column) { return (style->columns & column) != 0; };
        const int quantity = number(key::quantityFieldWidth);
        const int price = number(key::priceFieldWidth);
        const int total = number(key::totalPriceFieldWidth);
        if (has(vocabulary::Quantity))
            edges.append({path(key::quantityFieldWidth), {0, quantity}});
        // The description gives way until it has no room; then the columns push one another.
        const qint64 room = style->descriptionWidth(paper, quantity, price, total);
        const int left =
            has(vocabulary::Quantity) ? quantity + style->beside : vocabulary::dateWidth;
        const int first = left + static_cast<int>(std::max<qint64>(room, 0));
        const int behind = first + (has(vocabulary::Price) ? price : 0);
        if (has(vocabulary::Price))
            edges.append({path(key::priceFieldWidth), {first, behind}, room >= 0});
        if (has(vocabulary::Total))
            edges.append({path(key::totalPriceFieldWidth), {behind, behind + total}, room >= 0});
    }
    edges.append({path(key::paperWidth), {0, paper}});
    return edges;
}

} // namespace korvel::settings

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
    const bool isLeft = at == span.from && fixed == span.to;
    return std::clamp(isLeft ? fixed - column : column - fixed, 0, widest);
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
        if (const int width = number(key::quantityFieldWidth); has(vocabulary::Quantity))
            edges.append({path(key::quantityFieldWidth), width, 0, {0, width}});
        // A row of dates ends where these leave off.
        int right = has(vocabulary::Total) ? paper : paper - style->beside + vocabulary::dateWidth;
        const auto addFromRight = [&](QLatin1StringView name) {
            const int width = number(name);
            edges.append({path(name), right - width, right, {right - width, right}});
            right -= width;
        };
        if (has(vocabulary::Total))
            addFromRight(key::totalPriceFieldWidth);
        if (has(vocabulary::Price))
            addFromRight(key::priceFieldWidth);
    }
    edges.append({path(key::paperWidth), paper, 0, {0, paper}});
    return edges;
}

} // namespace korvel::settings

// Which figure stands in which column, and what the columns leave of a line.
#include "companions/check/columns.h"

#include "companions/check/context.h"
#include "companions/check/words.h"
#include "vocabulary/columns.h"
#include "vocabulary/paper.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// Whether the columns of a document leave room for its description.
void checkRow(const SettingsFile &settings, const vocabulary::Method &method,
              const vocabulary::RowStyle &style, Place place, QList<Finding> &findings)
{
    const auto number = [&](QLatin1StringView key) { return settings.number(method.group, key); };
    const int paper = number(vocabulary::key::paperWidth);
    const qint64 width = paper == 0 ? vocabulary::lineWidth : paper;
    const qint64 room = style.descriptionWidth(width, number(vocabulary::key::quantityFieldWidth),
                                               number(vocabulary::key::priceFieldWidth),
                                               number(vocabulary::key::totalPriceFieldWidth));
    if (room > 0)
        return;
    const QString text =
        worded(Code::Columns, filled(phrase::noRoom, method.title, QString::number(width - room),
                                     QString::number(width)));
    const QStringList group = {vocabulary::group::korvel, method.group};
    findings.append({place, Code::Columns, text, group, 0});
}

} // namespace

void checkWidth(Context &context, const vocabulary::Attribute &row, const JobAttribute &attribute)
{
    for (const auto &[column, setting] : vocabulary::columnWidths) {
        if (row.column != column)
            continue;
        const QLatin1StringView group = context.method->group;
        const qsizetype width = std::max(context.settings->number(group, setting), 0);
        const qsizetype beyond = attribute.value.size() - width;
        if (beyond > 0)
            context.note(attribute.place, Code::WideFigure, attribute.name, quoted(attribute.value),
                         QString::number(width), setting, group, QString::number(beyond));
    }
}

void checkColumns(const SettingsFile &settings, const QHash<QString, Place> &groups,
                  QList<Finding> &findings)
{
    for (const vocabulary::Method &method : vocabulary::methods()) {
        for (const vocabulary::ItemRows &rows : vocabulary::itemRows) {
            if ((rows.documents & method.document) != 0 && groups.contains(method.group))
                checkRow(settings, method, rows.style, groups.value(method.group), findings);
        }
    }
}

} // namespace korvel::check

// What the columns leave of a line.
#include "companions/check/columns.h"

#include "companions/check/vocabulary.h"
#include "vocabulary/columns.h"
#include "vocabulary/paper.h"

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// Whether the columns of a document leave room for its description, and no more than there is.
void checkRow(const SettingsFile &settings, const vocabulary::Method &method,
              const vocabulary::RowStyle &style, Place place, QList<Finding> &findings)
{
    const auto number = [&](QLatin1StringView key) { return settings.number(method.group, key); };
    const int paper = number(vocabulary::key::paperWidth);
    const qint64 width = paper == 0 ? vocabulary::lineWidth : paper;
    const qint64 room = style.descriptionWidth(width, number(vocabulary::key::quantityFieldWidth),
                                               number(vocabulary::key::priceFieldWidth),
                                               number(vocabulary::key::totalPriceFieldWidth));
    QString words;
    for (const auto &[column, setting] : vocabulary::columnWidths) {
        if ((style.columns & column) != 0 && number(setting) < 0)
            words = filled(phrase::negativeWidth, setting, QString::number(number(setting)),
                           method.title);
    }
    if (room <= 0)
        words = filled(phrase::noRoom, method.title, QString::number(width - room),
                       QString::number(width));
    if (words.isEmpty())
        return;
    const QString text = worded(Code::Columns, words);
    const QStringList group = {vocabulary::group::korvel, method.group};
    findings.append({place, Code::Columns, text, group, 0});
}

} // namespace

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

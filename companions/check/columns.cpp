// What the columns leave of a line.
#include "companions/check/columns.h"

#include "companions/check/vocabulary.h"
#include "vocabulary/columns.h"
#include "vocabulary/paper.h"

#include <QHash>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// The settings of a group, by their keys.
using GroupSettings = QHash<QString, const SettingsFile::Entry *>;

/// A row that has no room for its description.
struct NarrowRow
{
    vocabulary::Documents documents = 0; // that have such rows
    vocabulary::RowStyle style = {};     // of the one that lacks most
    qint64 width = 0;                    // of the line
    qint64 room = 1;
};

/// The setting that leaves a row no room: a narrow paper, else the widest column.
QLatin1StringView narrowest(const NarrowRow &row, const SettingsFile &settings,
                            QLatin1StringView group)
{
    if (row.room + vocabulary::lineWidth - row.width > 0)
        return vocabulary::key::paperWidth;
    QLatin1StringView widest = vocabulary::key::paperWidth;
    int most = 0;
    for (const auto &[column, setting] : vocabulary::columnWidths) {
        const int width = settings.number(group, setting);
        if ((row.style.columns & column) != 0 && width > most) {
            most = width;
            widest = setting;
        }
    }
    return widest;
}

/// Whether the columns of a group's documents leave room for the description, and no more than
/// there is.
void checkGroup(const SettingsFile &settings, QLatin1StringView group, const GroupSettings &entries,
                QList<Finding> &findings)
{
    const auto number = [&](QLatin1StringView key) { return settings.number(group, key); };
    const auto note = [&](QLatin1StringView key, const QString &words) {
        Finding finding{
            {}, Code::Columns, worded(Code::Columns, words), {vocabulary::group::korvel, group}};
        if (const SettingsFile::Entry *entry = entries.value(key)) {
            finding.place = entry->place;
            finding.setting = entry->groups + QStringList(entry->key);
            finding.occurrence = entry->occurrence;
        }
        findings.append(finding);
    };
    const int paper = number(vocabulary::key::paperWidth);
    const qint64 width = paper == 0 ? vocabulary::lineWidth : paper;
    NarrowRow narrow;
    QHash<QString, vocabulary::Documents> negative; // columns, and the documents that have them
    for (const vocabulary::ItemRows &rows : vocabulary::itemRows) {
        const vocabulary::Documents documents = rows.documents & vocabulary::documentsOf(group);
        const qint64 room =
            rows.style.descriptionWidth(width, number(vocabulary::key::quantityFieldWidth),
                                        number(vocabulary::key::priceFieldWidth),
                                        number(vocabulary::key::totalPriceFieldWidth));
        if (documents == 0)
            continue;
        if (room <= 0)
            narrow = {narrow.documents | documents, room < narrow.room ? rows.style : narrow.style,
                      width, std::min(room, narrow.room)};
        for (const auto &[column, setting] : vocabulary::columnWidths) {
            if ((rows.style.columns & column) != 0 && number(setting) < 0)
                negative[setting] |= documents;
        }
    }
    for (const auto &[column, setting] : vocabulary::columnWidths) {
        if (negative.contains(setting))
            note(setting, filled(phrase::negativeWidth, setting, QString::number(number(setting)),
                                 vocabulary::titlesOf(negative.value(setting))));
    }
    if (narrow.documents != 0)
        note(narrowest(narrow, settings, group),
             filled(phrase::noRoom, vocabulary::titlesOf(narrow.documents),
                    QString::number(width - narrow.room), QString::number(width)));
}

} // namespace

void checkColumns(const SettingsFile &settings, const QSet<QString> &groups,
                  QList<Finding> &findings)
{
    QHash<QString, GroupSettings> groupSettings;
    for (const SettingsFile::Entry &entry : settings.entries()) {
        if (!entry.meant.isEmpty())
            groupSettings[settings.groups()[entry.group].meant.constFirst()].insert(entry.meant,
                                                                                    &entry);
    }
    for (const vocabulary::DocumentType &type : vocabulary::documentTypes) {
        if (groups.contains(type.group))
            checkGroup(settings, type.group, groupSettings.value(type.group), findings);
    }
}

} // namespace korvel::check

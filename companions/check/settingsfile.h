// A settings file as the checker sees it: every setting with where it stands.
#pragma once

#include "companions/check/job.h"
#include "config/configuration.h"

namespace korvel::check {

/// The settings of a file in the brace notation, read as the renderer reads them.
class SettingsFile : private KVConfiguration
{
public:
    /// A setting of the file.
    struct Entry
    {
        QStringList groups; // from the top-level one on; none for a setting outside all
        QString key;
        QString value;
        int occurrence = 0;   // which of several of that name in such groups, counted from 0
        bool searched = true; // false in a top-level group that no look-up finds
        Place place;
    };

    /// @param bytes of the file
    explicit SettingsFile(const QByteArray &bytes);

    /// All settings, group by group in the order of the file. Of several of one name in one group
    /// there is the last, which counts.
    [[nodiscard]] QList<Entry> entries() const;

    /// How many groups and settings the renderer reads over because there are too many or too deep.
    [[nodiscard]] qsizetype leftOut() const;

    /// A document's setting, empty when it is missing.
    [[nodiscard]] QString value(QLatin1StringView group, QLatin1StringView key) const;

    /// Whether a switch of a document is on.
    [[nodiscard]] bool isOn(QLatin1StringView group, QLatin1StringView key) const;

    /// A number of a document, 0 when it is missing or none.
    [[nodiscard]] int number(QLatin1StringView group, QLatin1StringView key) const;

    /// The same settings as the engine takes them. It only asks them.
    [[nodiscard]] KVConfiguration &forEngine() const;

private:
    [[nodiscard]] Place placeOf(qint64 offset) const;

    QList<qint64> lineStarts; // offsets in the file
};

} // namespace korvel::check

// A settings file as the checker sees it: every setting with where it stands.
#pragma once

#include "companions/check/job.h"
#include "config/config.h"

namespace check {

/// Reads a settings file as the renderer does, and tells what is in it.
class SettingsFile : private libconfig::Config
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

    /// @param path a file in the brace notation that exists and can be read
    explicit SettingsFile(const QString &path);

    /// All settings, in the order of the file, but for settings that a later one of the same name
    /// in the same group replaced.
    [[nodiscard]] QList<Entry> entries() const;

    /// A document's setting, empty when it is missing.
    [[nodiscard]] QString value(QLatin1StringView group, QLatin1StringView key) const;

    /// Whether a switch of a document is on.
    [[nodiscard]] bool isOn(QLatin1StringView group, QLatin1StringView key) const;

    /// A number of a document, 0 when it is missing or none.
    [[nodiscard]] int number(QLatin1StringView group, QLatin1StringView key) const;

private:
    void addEntries(const QDomElement &group, const QStringList &names, bool searched,
                    QList<Entry> &entries) const;
    [[nodiscard]] Place placeOf(const QStringList &names) const;

    QString text; // of the file
};

} // namespace check

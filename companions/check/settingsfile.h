// A settings file as the checker sees it: every setting with where it stands.
#pragma once

#include "companions/check/findings.h"
#include "companions/check/notation.h"
#include "companions/check/settingsgroups.h"
#include "config/configuration.h"

#include <optional>

namespace korvel::check {

/**
 * The settings of a file in the brace notation. What is asked of them is answered as they are
 * meant: slips in how the file is written, misspelt names and values that are none of their kind
 * are corrected where it can be told how, so that what follows from them is in none of the answers.
 */
class SettingsFile : private KVConfiguration
{
public:
    /// A setting of the file, as the renderer reads it once the slips in how it is written are
    /// corrected.
    struct Entry
    {
        QStringList groups; // from the top-level one on; none for a setting outside all
        QString key;
        QString value;
        int occurrence = 0;   // which of several of that name in such groups, counted from 0
        qsizetype group = -1; // in the list of all groups; -1 for a setting outside all
        Place place;
        std::optional<Place> before; // where it stands in the same group and does not count
        QString meant;               // the key; empty when nothing reads such a one
    };

    /// @param bytes of the file
    explicit SettingsFile(const QByteArray &bytes);

    /// What is wrong with how the file is written, one finding for each slip.
    [[nodiscard]] const QList<Finding> &slips() const { return slipsFound; }

    /// What is wrong with its groups.
    [[nodiscard]] const QList<Finding> &groupFindings() const { return groupsFound; }

    /// Whether nothing is read of the file, and what it means cannot be told.
    [[nodiscard]] bool isLost() const { return nothingRead; }

    /// All groups, each before those in it.
    [[nodiscard]] const QList<SettingsGroup> &groups() const { return allGroups; }

    /// All settings, group by group in the order of the file. Of several of one name in one group
    /// there is the last, which counts.
    [[nodiscard]] const QList<Entry> &entries() const { return allEntries; }

    /// How many groups and settings the renderer reads over because there are too many or too deep.
    [[nodiscard]] qsizetype leftOut() const { return leftOutCount; }

    /// A document's setting, empty when it is missing.
    [[nodiscard]] QString value(QLatin1StringView group, QLatin1StringView key) const;

    /// Whether a switch of a document is on.
    [[nodiscard]] bool isOn(QLatin1StringView group, QLatin1StringView key) const;

    /// Whether a setting of a document has no name, so that it may be any of them.
    [[nodiscard]] bool hasNameless(QLatin1StringView group) const
    {
        return withNameless.contains(group);
    }

    /// A number of a document, 0 when it is missing or none.
    [[nodiscard]] int number(QLatin1StringView group, QLatin1StringView key) const;

    /// The same settings as the engine takes them. It only asks them.
    [[nodiscard]] KVConfiguration &forEngine() const;

private:
    /// Where the file with its slips corrected goes on after an edit, and where the file itself
    /// does.
    struct Behind
    {
        qint64 corrected;
        qint64 offset;
    };

    void readCorrected(const QByteArray &bytes, const QList<Edit> &edits);
    void checkFirstGroup(bool hasTop);
    void lose(Place place, const QString &text, const QStringList &group);
    void gather();
    void addMeanings();
    void readMeant();
    [[nodiscard]] Place placeOf(qint64 offset) const;
    [[nodiscard]] Place placeOfCorrected(qint64 corrected) const;

    QList<qint64> lineStarts; // offsets in the file
    QList<Behind> edited;
    QList<Finding> slipsFound;
    QList<Finding> groupsFound;
    QList<SettingsGroup> allGroups;
    QList<Entry> allEntries;
    QStringList withNameless; // groups
    qsizetype leftOutCount = 0;
    bool nothingRead = false;
};

} // namespace korvel::check

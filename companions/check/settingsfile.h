// A settings file as the checker sees it: every setting with where it stands.
#pragma once

#include "companions/check/findings.h"
#include "companions/check/notation.h"
#include "config/configuration.h"

namespace korvel::check {

/**
 * The settings of a file in the brace notation, read as the renderer reads them once the slips in
 * how it is written are corrected: what follows from a slip is in none of the answers.
 */
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

    /// What is wrong with how the file is written, one finding for each slip.
    [[nodiscard]] const QList<Finding> &slips() const { return slipsFound; }

    /// Whether nothing is read of the file, and what it means cannot be told.
    [[nodiscard]] bool isLost() const { return nothingRead; }

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
    /// Where the file as it is meant goes on after an edit, and where the file itself does.
    struct Behind
    {
        qint64 meant;
        qint64 offset;
    };

    void read(const QByteArray &bytes, const QList<Edit> &edits);
    void checkFirstGroup(const QByteArray &bytes, Notation &notation);
    void lose(Place place, const QString &text, const QStringList &group);
    [[nodiscard]] Place placeOf(qint64 offset) const;
    [[nodiscard]] Place placeOfMeant(qint64 meant) const;
    [[nodiscard]] qint64 offsetOfMeant(qint64 meant) const;

    QList<qint64> lineStarts; // offsets in the file
    QList<Behind> edited;
    QList<Finding> slipsFound;
    bool nothingRead = false;
};

} // namespace korvel::check

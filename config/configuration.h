// The settings of this user, as the whole program reads them.
#pragma once

#include "config/config.h"
#include "config/syncsingleton.h"

/**
 * The settings file of the user's home directory, ".korvel/conf/korvel.conf", in the brace
 * notation. The program reaches it through SyncSingleton<KVConfiguration>::instance(), which
 * reads the file once; later changes to the file are not seen.
 */
class KVConfiguration : public libconfig::Config
{
public:
    /// Reads the user's settings file. A missing one is reported on standard output and leaves
    /// every setting empty.
    KVConfiguration();

    /// Settings from these bytes instead, for a program that lays out by others than the user's. No
    /// file is touched, nothing reported. Here, because most programs link no reader of bytes.
    explicit KVConfiguration(const QByteArray &bytes)
    {
        readBytes(bytes, QString(), QStringLiteral("cfg"));
    }

    /**
     * The value of a setting, Latin-1, or the empty string when it is missing or empty.
     *
     * @param key dotted, beginning with "korvel."; a character beyond Latin-1 counts as '?'
     */
    [[nodiscard]] QString getStrValue(const QString &key) const;

    /// The settings in a list view; see libconfig::Config. Link to korvel::listview.
    [[nodiscard]] QTreeWidget *newConfigListView() const;
};

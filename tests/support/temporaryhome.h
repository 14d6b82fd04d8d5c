// A HOME with a settings file, for the time of a test.
#pragma once

#include "config/configuration.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/**
 * Sets HOME to a folder of its own that holds the given settings, and forgets the settings
 * singleton, so that the next driver reads them. Going, it restores HOME and forgets them again.
 */
class TemporaryHome
{
public:
    /// A HOME whose settings file holds these bytes.
    explicit TemporaryHome(const QByteArray &settings)
        : TemporaryHome()
    {
        QDir(path()).mkpath(".korvel/conf");
        QFile file(settingsPath());
        if (!file.open(QIODevice::WriteOnly) || file.write(settings) != settings.size())
            qFatal("cannot write %s", qPrintable(settingsPath()));
    }

    /// A HOME without a settings file.
    TemporaryHome()
        : homeBefore(qgetenv("HOME"))
    {
        if (!folder.isValid())
            qFatal("cannot make a folder for HOME");
        qputenv("HOME", QFile::encodeName(path()));
        forgetSettings();
    }

    ~TemporaryHome()
    {
        qputenv("HOME", homeBefore);
        forgetSettings();
    }

    Q_DISABLE_COPY_MOVE(TemporaryHome)

    [[nodiscard]] QString path() const { return folder.path(); }
    [[nodiscard]] QString settingsPath() const { return path() + "/.korvel/conf/korvel.conf"; }

private:
    static void forgetSettings()
    {
        using Settings = SyncSingleton<KVConfiguration>;
        delete Settings::instance_pointer.exchange(nullptr);
        Settings::instance_destroyer.pointer = nullptr;
    }

    QTemporaryDir folder;
    QByteArray homeBefore;
};

// Runs a till of the examples in a shop of its own, with the simulator as its printer.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"
#include "support/simulatordesk.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

/// A till: its file in examples/tills, and what runs it.
struct TillProgram
{
    QString file;
    QString interpreter;
};

inline const QList<TillProgram> tillPrograms = {
    {"till.mjs", "node"}, {"till.php", "php"}, {"till.py", "python3"}, {"till.sh", "sh"}};

/// Where an interpreter is; the system's own before others. A test without it ends.
inline QString interpreterNamed(const QString &name)
{
    const QString own = QStandardPaths::findExecutable(name, {"/usr/bin", "/bin"});
    const QString any = own.isEmpty() ? QStandardPaths::findExecutable(name) : own;
    if (any.isEmpty())
        qFatal("%s is not there: see scripts/setup", qPrintable(name));
    return any;
}

/// A shop with settings, a till and its sales, a journal, and a printer.
class TillDesk
{
public:
    /// @param fault options of the simulator
    explicit TillDesk(const TillProgram &program, const QStringList &fault = {})
        : till(program)
        , printer(QStringList{anyPort, "--paper", path("paper")} + fault)
    {
        QDir(path("home")).mkpath(".korvel/conf");
        QFile::copy(KORVEL_SOURCE_DIR "/examples/korvel.conf",
                    path("home/.korvel/conf/korvel.conf"));
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QStringList device() { return {"--to", "tcp://" + printer.place()}; }

    /// Closes a sale.
    [[nodiscard]] Run sell(const QString &id, const QByteArray &items, const QStringList &options)
    {
        return run(QStringList{"sell", "sales", id} + options, items);
    }

    /// Tries the sales that are open again.
    [[nodiscard]] Run again(const QStringList &options)
    {
        return run(QStringList{"again", "sales"} + options, {});
    }

    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &input)
    {
        return runProgram(interpreterNamed(till.interpreter),
                          QStringList{KORVEL_SOURCE_DIR "/examples/tills/" + till.file} + arguments,
                          {folder.path(), variables(), input});
    }

    [[nodiscard]] Run journal(const QStringList &arguments) const
    {
        return runProgram(built::journal, arguments, {folder.path(), variables(), {}});
    }

    /// Puts a script in the place of korvel-deliver, or with none takes it away; REAL is the real
    /// one.
    void replaceDelivery(const QByteArray &script)
    {
        for (const char *name : {"basename", "cat", "expr", "grep", "iconv", "ln", "mkdir", "mv",
                                 "rm", "sed", "sync"}) {
            QFile::link(interpreterNamed(name), replaced.filePath(name));
        }
        programs = replaced.path();
        if (script.isEmpty())
            return;
        const QString delivery = replaced.filePath("korvel-deliver");
        writeFile(delivery, "#!/bin/sh\n" + script);
        QFile::setPermissions(delivery, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void restoreDelivery() { programs.reset(); }

    /// The files of the sales, each with its folder, sorted.
    [[nodiscard]] QStringList sales() const
    {
        QStringList files;
        const QDir top(path("sales"));
        for (QDirIterator it(top.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            files.append(top.relativeFilePath(it.next()));
        files.sort();
        return files;
    }

    /// Switches the printer off; all that it took.
    [[nodiscard]] QByteArray paper()
    {
        QByteArray all;
        printer.end();
        const QDir taken(path("paper"));
        for (const QString &name : taken.entryList({"*.out"}, QDir::Files, QDir::Name))
            all += bytesOf(taken.filePath(name));
        return all;
    }

private:
    [[nodiscard]] QStringList variables() const
    {
        const QString own =
            QFileInfo(built::deliver).path() + ':' + QString::fromLocal8Bit(qgetenv("PATH"));
        return {"HOME=" + path("home"), "XDG_DATA_HOME", "PATH=" + programs.value_or(own),
                "REAL=" + QString(built::deliver)};
    }

    const TillProgram till;
    // In memory, where the machine has such a folder: each sale waits for the disk several times.
    const QTemporaryDir folder{(QFile::exists("/dev/shm") ? "/dev/shm" : QDir::tempPath())
                               + "/korvel-till-XXXXXX"};
    const QTemporaryDir replaced; // from where a program may be started
    Simulator printer;
    std::optional<QString> programs; // in the place of PATH
};

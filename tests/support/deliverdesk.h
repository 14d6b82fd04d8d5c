// Runs korvel-deliver as a till does, in a shop of its own.
#pragma once

#include "support/built.h"
#include "support/bytes.h"
#include "support/files.h"
#include "support/program.h"
#include "support/samples.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

/// A shop with settings, jobs, a journal and a file in the place of a printer.
class DeliverDesk
{
public:
    DeliverDesk()
    {
        QDir(folder.path()).mkpath("home/.korvel/conf");
        QFile::copy(KORVEL_SOURCE_DIR "/examples/korvel.conf",
                    path("home/.korvel/conf/korvel.conf"));
        QFile::copy(KORVEL_SOURCE_DIR "/examples/jobs/receipt.xml", path("receipt.xml"));
        QFile::copy(KORVEL_SOURCE_DIR "/examples/jobs/fiscal-receipt.xml", path("fiscal.xml"));
    }

    [[nodiscard]] QString path(const QString &name) const { return folder.filePath(name); }
    [[nodiscard]] QString device() const { return "file:" + path("paper"); }
    [[nodiscard]] QByteArray paper() const
    {
        return QFile::exists(path("paper")) ? bytesOf(path("paper")) : QByteArray();
    }
    [[nodiscard]] QStringList variables() const
    {
        return {"HOME=" + path("home"), "XDG_DATA_HOME"};
    }

    /// Runs it with arguments behind the device and the journal.
    [[nodiscard]] Run run(const QStringList &arguments, const QByteArray &input = {}) const
    {
        return runTo(device(), arguments, input);
    }
    [[nodiscard]] Run runTo(const QString &device, const QStringList &arguments,
                            const QByteArray &input = {}) const
    {
        return runProgram(built::deliver,
                          QStringList{"--to", device, "--journal", path("journal.db")} + arguments,
                          {folder.path(), variables(), input});
    }
    [[nodiscard]] Run journal(const QStringList &arguments) const
    {
        return runProgram(built::journal, QStringList{"--journal", path("journal.db")} + arguments,
                          {folder.path(), variables(), {}});
    }

private:
    const QTemporaryDir folder;
};

/// Fails the test unless a run ended with this status and said this in one line: on standard output
/// for 0, else on standard error.
#define VERIFY_DELIVERY(run, expectedStatus, expectedText)                                         \
    do {                                                                                           \
        const Run &its = (run);                                                                    \
        const QByteArray &said = (expectedStatus) == 0 ? its.standardOutput : its.standardError;   \
        const QByteArray &other = (expectedStatus) == 0 ? its.standardError : its.standardOutput;  \
        QVERIFY2(its.exited &&its.status == (expectedStatus),                                      \
                 (QByteArray::number(its.status) + ": " + its.standardOutput + its.standardError)  \
                     .constData());                                                                \
        QVERIFY2(said.contains(expectedText), said.constData());                                   \
        QVERIFY2(said.count('\n') == 1 && said.endsWith('\n'), said.constData());                  \
        QVERIFY2(other.isEmpty(), other.constData());                                              \
    } while (false)

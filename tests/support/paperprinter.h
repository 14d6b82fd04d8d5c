// korvel-printer-sim as the printer of a queue: switched on and off, at one address.
#pragma once

#include "support/bytes.h"
#include "support/cupsdesk.h"
#include "support/keptport.h"
#include "support/simulatordesk.h"

#include <QDir>
#include <QTemporaryDir>

#include <memory>

/// A printer without paper that keeps its address and its documents while it is off.
class PaperPrinter
{
public:
    [[nodiscard]] QString uri() const { return "korvel://" + port.address(); }

    /// Switches it on, with a fault or without.
    void on(const QStringList &fault = {})
    {
        off();
        simulator = std::make_unique<Simulator>(
            QStringList{"--listen", port.address(), "--paper", folder.path()} + fault);
    }

    void off() { simulator.reset(); }

    /// Waits until it has said something so many times.
    void waitFor(const QByteArray &text, int times = 1) const { simulator->waitFor(text, times); }

    /// The documents that it has, each as it came, in their order.
    [[nodiscard]] QList<QByteArray> documents() const
    {
        QList<QByteArray> all;
        const QDir paper(folder.path());
        for (const QString &name : paper.entryList({"*.out"}, QDir::Files, QDir::Name)) {
            if (paper.exists(name.chopped(4) + ".txt")) // which is written last
                all.append(bytesOf(paper.filePath(name)));
        }
        return all;
    }

    /// The same, once there are so many.
    [[nodiscard]] QList<QByteArray> documents(qsizetype atLeast) const
    {
        waitUntil([&] { return documents().size() >= atLeast; });
        return documents();
    }

private:
    const QTemporaryDir folder;
    const KeptPort port;
    std::unique_ptr<Simulator> simulator;
};

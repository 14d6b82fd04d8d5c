// A test with a print server for all of it, and a queue and a printer for each function.
#pragma once

#include "support/bytes.h"
#include "support/cupsdesk.h"
#include "support/paperprinter.h"
#include "support/samples.h"

#include <QObject>

#include <memory>

/// What such tests share; their slots open, begin, end and close it.
class QueueTest : public QObject
{
protected:
    void open()
    {
        desk = std::make_unique<CupsDesk>();
        desk->start();
    }
    void begin()
    {
        printer = std::make_unique<PaperPrinter>();
        printer->on();
        makeQueue();
    }
    void end() const
    {
        if (QTest::currentTestFailed() && desk)
            for (const QByteArray &line : desk->errorLog().split('\n'))
                if (line.contains("[Job "))
                    qWarning("%s", line.constData());
        // What still waits for this printer must not meet another one at its address.
        if (desk)
            static_cast<void>(desk->run("cancel", {"-a"}));
    }
    void close() { desk.reset(); }

    /// The queue of the function, and of the row of its table.
    [[nodiscard]] static QString queue()
    {
        static const QRegularExpression others("\\W+");
        QString name = QTest::currentTestFunction();
        if (const char *const row = QTest::currentDataTag())
            name += '_' + QString(row).replace(others, "_");
        return name;
    }

    /// Makes it, or changes it.
    void makeQueue(const QStringList &options = {}) const
    {
        desk->addQueue(queue(), printer->uri(), options);
    }

    /// Prints to it; the job.
    [[nodiscard]] QString lp(const QStringList &arguments) const
    {
        return desk->print(queue(), arguments);
    }

    /// Waits until the queue shows a text.
    [[nodiscard]] bool shows(const QString &text) const
    {
        return waitUntil([&] { return desk->shown(queue()).contains(text); });
    }

    std::unique_ptr<CupsDesk> desk;
    std::unique_ptr<PaperPrinter> printer;
};

/// The slots that QueueTest is for.
#define QUEUE_TEST_SLOTS                                                                           \
    void initTestCase()                                                                            \
    {                                                                                              \
        if (const QString missing = CupsDesk::missing(); !missing.isEmpty())                       \
            QSKIP(qPrintable(missing));                                                            \
        open();                                                                                    \
    }                                                                                              \
    void init() { begin(); }                                                                       \
    void cleanup() { end(); }                                                                      \
    void cleanupTestCase() { close(); }

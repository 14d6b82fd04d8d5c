// The driver's life cycle, its output file and the SAX hooks that frame a job.
#include "printer/printerdriver.h"

#include "config/configuration.h"
#include "config/path.h"

#include <QTextStream>

#include <iostream>
#include <utility>

using namespace Qt::Literals::StringLiterals;

PrinterDriver::PrinterDriver(const QString &outputPath, bool append)
    : settings(SyncSingleton<KVConfiguration>::instance())
    , outputFile(std::make_unique<QFile>())
    , justification(u"left"_s)
{
    QIODevice::OpenMode mode = QIODevice::WriteOnly; // empties an existing file
    if (append)
        mode |= QIODevice::Append;
    if (korvel::path::open(*outputFile, outputPath, mode))
        outputStream = std::make_unique<QTextStream>(outputFile.get());
    else
        std::cout << "PrintManager::printAbstractOrder(...): Unable To Open File" << std::endl;
}

PrinterDriver::PrinterDriver(KVConfiguration &ownSettings, QString &output)
    : settings(&ownSettings)
    , outputStream(std::make_unique<QTextStream>(&output))
    , justification(u"left"_s)
{
}

PrinterDriver::~PrinterDriver() = default;

bool PrinterDriver::oneTime() { return !std::exchange(oneTimeDone, true); }

bool PrinterDriver::startDocument()
{
    reset();
    return true;
}

bool PrinterDriver::endDocument()
{
    endSection();
    return true;
}

bool PrinterDriver::endElement(const QString & /*namespaceUri*/, const QString & /*localName*/,
                               const QString & /*qName*/)
{
    return true;
}

void PrinterDriver::reset() { }

void PrinterDriver::initPrinter() { }

bool PrinterDriver::printDuplicate() { return duplicate; }

void PrinterDriver::write(const QString &command)
{
    if (outputStream)
        *outputStream << command;
}

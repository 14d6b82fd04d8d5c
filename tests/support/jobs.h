// Jobs read as the renderer reads them, and settings files for them.
#pragma once

#include "printer/printerdriver.h"
#include "support/settingstext.h"

#include <QString>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

/// Gives a job to the driver; whether it was read to its end.
inline bool readJob(PrinterDriver &driver, const QString &job)
{
    QXmlInputSource source;
    source.setData(job);
    QXmlSimpleReader reader;
    reader.setContentHandler(&driver);
    return reader.parse(source);
}

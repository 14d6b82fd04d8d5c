// Jobs read as the renderer reads them, and settings files for them.
#pragma once

#include "printer/printerdriver.h"

#include <QByteArray>
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

/// One document's group of a settings file: "receiptdoc" and the like, and its settings as written.
inline QByteArray documentGroup(const QByteArray &name, const QByteArray &settings)
{
    return "    " + name + ":\n    {\n        " + settings + "\n    };\n";
}

/// A settings file of these groups.
inline QByteArray settingsFile(const QByteArray &groups)
{
    return "korvel:\n{\n" + groups + "};\n";
}

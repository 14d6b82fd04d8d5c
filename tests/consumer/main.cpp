// Renders a job as plain text: printtext JOB OUTPUT.
#include "textprinter.h"

#include <QCoreApplication>
#include <QFile>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;

    TextPrinter printer(arguments[2], false);
    QFile file(arguments[1]);
    QXmlInputSource job(&file);
    QXmlSimpleReader reader;
    reader.setContentHandler(&printer);
    return reader.parse(job) ? 0 : 1;
}

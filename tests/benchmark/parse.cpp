// A program that reads a job and does nothing with it: what the XML reader costs.
#include <QCoreApplication>
#include <QFile>
#include <QXmlDefaultHandler>
#include <QXmlInputSource>
#include <QXmlSimpleReader>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QFile job(QFile::decodeName(argv[1]));
    const QXmlInputSource source(&job);
    QXmlDefaultHandler handler;
    QXmlSimpleReader reader;
    reader.setContentHandler(&handler);
    return reader.parse(source) ? 0 : 1;
}

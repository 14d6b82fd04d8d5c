// The settings store: its life cycle, and the choice of the notation.
#include "config/config.h"

#include "config/statements.h"

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

Config::Config(const QString &name, const QString &notation) { constructor(name, notation); }

void Config::readFile(const QString &name, const QString &notation) { constructor(name, notation); }

void Config::constructor(const QString &name, const QString &notation)
{
    if (notation == "cfg"_L1)
        return readBraces(name);
    fileName = name;
    fileFormat = notation;
    document.clear();
    if (fileFormat == "xml"_L1)
        loadXmlFile();
}

void Config::readBytes(const QByteArray &bytes, const QString &name, const QString &notation)
{
    fileName = name;
    fileFormat = notation;
    document.clear();
    if (fileFormat == "cfg"_L1) {
        Memory memory(bytes);
        loadStatements(memory);
    } else if (fileFormat == "xml"_L1) {
        loadXml(bytes);
    }
}

} // namespace libconfig

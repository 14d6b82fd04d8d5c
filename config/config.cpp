// The settings store: a file in the brace notation, and look-up of dotted keys.
#include "config/config.h"

using namespace Qt::Literals::StringLiterals;

namespace libconfig {

void Config::readBraces(const QString &name)
{
    fileName = name;
    fileFormat = u"cfg"_s;
    document.clear();
    loadFile();
}

QString Config::lookup(const QString &key) const { return document.lookup(key); }

} // namespace libconfig

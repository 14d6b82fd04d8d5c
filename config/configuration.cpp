// The settings of this user: where their file is, and their values as Latin-1 texts.
#include "config/configuration.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

KVConfiguration::KVConfiguration()
{
    readFile(QDir::homePath() + "/.korvel/conf/korvel.conf"_L1, u"cfg"_s);
}

QString KVConfiguration::getStrValue(const QString &key) const
{
    const QString latin1Key = QString::fromLatin1(key.toLatin1());
    return QString::fromLatin1(lookup(latin1Key).toLatin1());
}

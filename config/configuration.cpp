// The settings of this user: where their file is, and their values as Latin-1 texts.
#include "config/configuration.h"

#include "config/path.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text with '?' for every character beyond Latin-1.
QString latin1(QString text)
{
    const auto isBeyond = [](QChar c) { return c.unicode() > 0xff; };
    if (std::any_of(text.cbegin(), text.cend(), isBeyond)) // changes few texts, and copies no other
        std::replace_if(text.begin(), text.end(), isBeyond, u'?');
    return text;
}

} // namespace

KVConfiguration::KVConfiguration()
{
    readBraces(korvel::path::home() + korvel::path::settingsInHome);
}

QString KVConfiguration::getStrValue(const QString &key) const
{
    return latin1(lookup(latin1(key)));
}

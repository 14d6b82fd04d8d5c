// How the meanings of the vocabulary become plain text.
#include "companions/check/schematexts.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// A meaning with quotes for its backticks, without the blanks inside them; the switch behind it.
QString plain(QLatin1StringView meaning, QLatin1StringView setting)
{
    static const QRegularExpression code(u"` *([^`]*?) *`"_s);
    QString text = QString(meaning).replace(code, u"\"\\1\""_s);
    if (!setting.isEmpty())
        text += u"; switched on by the setting "_s + setting;
    return text;
}

} // namespace

QString documentationOf(const vocabulary::Element &row) { return plain(row.meaning, row.setting); }

QString documentationOf(const vocabulary::Attribute &row)
{
    return plain(row.meaning, row.setting);
}

} // namespace korvel::check

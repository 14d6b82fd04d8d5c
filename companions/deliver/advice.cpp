// Words and commands as a shell takes them.
#include "companions/deliver/advice.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace korvel::deliver {

QString typed(const QString &text)
{
    static const QRegularExpression plain(u"^[A-Za-z0-9@%+:,./_][A-Za-z0-9@%+:,./_-]*$"_s);
    if (plain.match(text).hasMatch())
        return text;
    return u'\'' + QString(text).replace(u'\'', u"'\\''"_s) + u'\'';
}

QString toResolve(const QString &id, const QString &journal)
{
    const QString named = journal.isEmpty() ? QString() : u" --journal "_s + typed(journal);
    const QString end = id.startsWith(u'-') ? u" --"_s : QString();
    return u"korvel-journal"_s + named + u" resolve"_s + end + u' ' + typed(id);
}

} // namespace korvel::deliver

// Times and heads as texts.
#include "companions/journal/words.h"

#include "delivery/chain.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace korvel::journal {

QString placeTime(const QDateTime &time)
{
    return time.toLocalTime().toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

QString exactTime(const QDateTime &time) { return QString::fromLatin1(delivery::textOf(time)); }

std::optional<QDate> dayNamed(const QString &text)
{
    const QDate day = QDate::fromString(text, u"yyyy-MM-dd"_s);
    return day.isValid() ? std::optional(day) : std::nullopt;
}

std::optional<QDateTime> timeNamed(const QString &text)
{
    if (const auto day = dayNamed(text))
        return day->startOfDay();
    const QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    return time.isValid() && text.contains(u'T') ? std::optional(time) : std::nullopt;
}

QString textOf(const delivery::Head &head)
{
    return QString::number(head.number) + u':' + QString::fromLatin1(head.hash);
}

std::optional<delivery::Head> headNamed(const QString &text)
{
    static const QRegularExpression form(u"^(0:|([1-9][0-9]{0,17}):([0-9a-f]{64}))$"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {};
    return delivery::Head{match.captured(2).toLongLong(), match.captured(3).toLatin1()};
}

QString abandonedText() { return u"no process sends it any more: in doubt, look at the paper"_s; }

} // namespace korvel::journal

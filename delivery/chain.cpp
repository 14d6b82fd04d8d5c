// What an event's hash is made of.
#include "delivery/chain.h"

#include "config/path.h"

#include <QCryptographicHash>

using namespace Qt::Literals::StringLiterals;

namespace korvel::delivery {

Record recordAt(const sqlite::Statement &statement)
{
    int column = 0;
    Record record;
    record.number = statement.number(column);
    for (QByteArray *field :
         {&record.time, &record.document, &record.name, &record.device, &record.detail, &record.job,
          &record.settings, &record.catalogue, &record.rendered, &record.sent, &record.charset,
          &record.origin, &record.lease, &record.previous, &record.hash})
        *field = statement.bytes(++column);
    return record;
}

QByteArray hashOf(const Record &record)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    // The length in front makes it plain where a field ends, whatever is in it.
    const auto add = [&hash](const QByteArray &field) {
        hash.addData(QByteArray(QByteArray::number(field.size()) + ':'));
        hash.addData(field);
        hash.addData(",");
    };
    add(QByteArray::number(record.number));
    for (const QByteArray *field :
         {&record.time, &record.document, &record.name, &record.device, &record.detail, &record.job,
          &record.settings, &record.catalogue, &record.rendered, &record.sent, &record.charset,
          &record.origin, &record.lease, &record.previous})
        add(*field);
    return hash.result().toHex();
}

QByteArray hashOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

Event eventOf(const Record &record)
{
    using korvel::path::fromBytes;
    return {record.number,
            timeOf(record.time),
            fromBytes(record.document),
            fromBytes(record.name),
            fromBytes(record.device),
            fromBytes(record.detail),
            record.job,
            record.settings,
            record.catalogue,
            record.rendered,
            record.sent,
            fromBytes(record.charset),
            fromBytes(record.origin),
            record.lease,
            record.previous,
            record.hash};
}

QByteArray textOf(const QDateTime &time)
{
    return time.toUTC().toString(u"yyyy-MM-ddTHH:mm:ss.zzzZ"_s).toUtf8();
}

QDateTime timeOf(const QByteArray &text)
{
    return QDateTime::fromString(QString::fromUtf8(text), Qt::ISODateWithMs);
}

} // namespace korvel::delivery

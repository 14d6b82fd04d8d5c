// Elements shown as text.
#pragma once

#include <QString>
#include <QXmlAttributes>

/// An element, or what was called with one, and its attributes in order: "total price=9.00".
inline QString shown(const QString &name, const QXmlAttributes &attributes)
{
    QString text = name;
    for (int i = 0; i < attributes.count(); ++i)
        text += " " + attributes.qName(i) + "=" + attributes.value(i);
    return text;
}

// Attributes of elements, made for a test.
#pragma once

#include <QStringList>
#include <QXmlAttributes>

/// Attributes from their names and values, in turn.
inline QXmlAttributes attributesOf(const QStringList &texts)
{
    QXmlAttributes attributes;
    for (qsizetype i = 0; i + 1 < texts.size(); i += 2)
        attributes.append(texts[i], "", texts[i], texts[i + 1]);
    return attributes;
}

// Jobs and texts of any size, for tests of what the renderer takes.
#pragma once

#include "support/shop.h"
#include "support/streams.h"

#include <QByteArray>

#include <limits>

// Sanitizers make long jobs slow.
const int slowness = built::sanitized ? 4 : 1;

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

inline QByteArray times(qsizetype count, const QByteArray &text) { return text.repeated(count); }

/// Texts made of their indexes, joined.
template<typename Make>
QByteArray each(int count, const Make &make)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += make(QByteArray::number(i));
    return all;
}

inline const QByteArray noSettings = "korvel:\n{\n};\n";

// Summary fiscal receipts print a name as it stands and depend on no setting.

inline QByteArray fiscalJob(const QByteArray &dtd, const QByteArray &elements)
{
    return dtd + "<job><method name=\"printAbstractOrderFiscal\"/>" + elements + "</job>";
}

inline QByteArray sale(const QByteArray &name)
{
    return "<receipe_type department=\"1\" name=\"" + name + "\" price=\"2\"/>";
}

inline QByteArray saleRow(const QByteArray &name) { return "=R1/$200/*1/(" + name + ")\n"; }

inline const QByteArray fiscalOpening = "=K\n=C1\n";
inline const QByteArray fiscalClosing = "=T1\n";

inline QByteArray declaring(const QByteArray &declarations)
{
    return "<!DOCTYPE job [" + declarations + "]>";
}

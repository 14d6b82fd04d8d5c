// The tables of the vocabulary as tests go through them: columns, and a data row for each row.
#pragma once

#include "companions/check/vocabulary.h"

#include <QStringList>
#include <QTest>

inline QStringList sorted(QStringList names)
{
    names.sort();
    names.removeDuplicates();
    return names;
}

/// A column of one of the tables.
template<typename Rows, typename Row>
inline QStringList column(const Rows &rows, QLatin1StringView Row::*member)
{
    QStringList cells;
    for (const Row &row : rows)
        cells.append(row.*member);
    return cells;
}

Q_DECLARE_METATYPE(const vocabulary::Method *)
Q_DECLARE_METATYPE(const vocabulary::Element *)
Q_DECLARE_METATYPE(const vocabulary::Attribute *)

inline void addMethods()
{
    QTest::addColumn<const vocabulary::Method *>("method");
    for (const vocabulary::Method &row : vocabulary::methods())
        QTest::newRow(row.name.data()) << &row;
}

/// A row for each element of each document.
inline void addElements()
{
    QTest::addColumn<const vocabulary::Method *>("method");
    QTest::addColumn<const vocabulary::Element *>("element");
    for (const vocabulary::Method &method : vocabulary::methods())
        for (const vocabulary::Element &row : vocabulary::elements())
            if ((row.documents & method.document) != 0)
                QTest::addRow("%s %s", method.name.data(), row.name.data()) << &method << &row;
}

/// A row for each attribute of each document.
inline void addAttributes()
{
    QTest::addColumn<const vocabulary::Method *>("method");
    QTest::addColumn<const vocabulary::Element *>("element");
    QTest::addColumn<const vocabulary::Attribute *>("row");
    for (const vocabulary::Attribute &row : vocabulary::attributes())
        for (const vocabulary::Method &method : vocabulary::methods())
            if ((row.documents & method.document) != 0)
                QTest::addRow("%s %s %s", method.name.data(), row.element.data(), row.name.data())
                    << &method << vocabulary::findElement(row.element, method.document) << &row;
}

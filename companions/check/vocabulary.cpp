// How the tables of the vocabulary are searched.
#include "companions/check/vocabulary.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::vocabulary {

namespace {

/// The first row that fits; null when none does.
template<typename Row, typename Fits>
const Row *find(Rows<Row> rows, Fits fits)
{
    const Row *found = std::find_if(rows.begin(), rows.end(), fits);
    return found == rows.end() ? nullptr : found;
}

} // namespace

const Method *findMethod(QAnyStringView name)
{
    return find(methods(), [&](const Method &row) { return row.name == name; });
}

const Element *findElement(QAnyStringView name, Document document)
{
    return find(elements(), [&](const Element &row) {
        return row.name == name && (row.documents & document) != 0;
    });
}

bool isElement(QAnyStringView name)
{
    return find(elements(), [&](const Element &row) { return row.name == name; }) != nullptr;
}

bool isShared(const Element &row) { return row.documents == shared; }

bool isOptional(const Attribute &row)
{
    return !row.setting.isEmpty() || row.value == Value::Kept || row.value == Value::Unread
           || row.element == element::printers;
}

bool isFigure(const Attribute &row)
{
    return row.value == Value::Amount || row.value == Value::RegisteredPrice
           || row.value == Value::RegisteredCount || row.value == Value::VariantQuantity
           || row.column != NoColumn;
}

QList<Attribute> attributesOf(QAnyStringView element, Document document)
{
    QList<Attribute> rows;
    for (const Attribute &row : attributes()) {
        if (row.element == element && (row.documents & document) != 0)
            rows.append(row);
    }
    return rows;
}

const Setting *findSetting(QAnyStringView key)
{
    return find(settings(), [&](const Setting &row) { return row.key == key; });
}

const QStringList &groupNames()
{
    static const QStringList names = [] {
        QStringList all = {group::language};
        for (const Method &method : methods()) {
            if (!all.contains(method.group))
                all.append(method.group);
        }
        return all;
    }();
    return names;
}

Documents documentsOf(QAnyStringView group)
{
    Documents documents = 0;
    for (const Method &method : methods()) {
        if (method.group == group)
            documents |= method.document;
    }
    return documents;
}

QString titlesOf(Documents documents)
{
    QStringList titles;
    for (const Method &method : methods()) {
        if ((documents & method.document) != 0)
            titles.append(method.title);
    }
    if (2 * titles.size() > methods().size())
        return u"other documents"_s;
    return titles.join(", "_L1);
}

} // namespace korvel::vocabulary

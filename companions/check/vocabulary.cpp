// How the tables of the vocabulary are searched.
#include "companions/check/vocabulary.h"

#include <QCoreApplication>

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

/// The attributes of an element in one document.
struct ElementAttributes
{
    QLatin1StringView element;
    Document document;
    QList<Attribute> rows;
};

QList<Attribute> rowsOf(QLatin1StringView element, Document document)
{
    QList<Attribute> rows;
    std::copy_if(attributes().begin(), attributes().end(), std::back_inserter(rows),
                 [&](const Attribute &row) {
                     return row.element == element && (row.documents & document) != 0;
                 });
    return rows;
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

bool isSharedName(QAnyStringView name)
{
    return find(elements(), [&](const Element &row) { return row.name == name && isShared(row); })
           != nullptr;
}

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

const QList<Attribute> &attributesOf(QAnyStringView element, Document document)
{
    static const auto tables = [] {
        QList<ElementAttributes> all;
        for (const Element &row : elements()) {
            for (const Method &method : methods()) {
                if ((row.documents & method.document) != 0)
                    all.append({row.name, method.document, rowsOf(row.name, method.document)});
            }
        }
        return all;
    }();
    static const QList<Attribute> none;
    const auto found =
        std::find_if(tables.begin(), tables.end(), [&](const ElementAttributes &candidate) {
            return candidate.document == document && candidate.element == element;
        });
    return found == tables.end() ? none : found->rows;
}

const Setting *findSetting(QAnyStringView key)
{
    return find(settings(), [&](const Setting &row) { return row.key == key; });
}

bool isRead(const Setting &row, Documents documents)
{
    return documents != 0 && (row.documents == 0 || (row.documents & documents) != 0);
}

bool isRead(QAnyStringView group, QAnyStringView key)
{
    if (group == group::language)
        return find(languageSettings(), [&](const LanguageSetting &row) { return row.key == key; })
               != nullptr;
    const Setting *setting = findSetting(key);
    return setting && isRead(*setting, documentsOf(group));
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
    constexpr qsizetype fewOthers = 3;
    QStringList titles;
    QStringList others;
    for (const Method &method : methods())
        ((documents & method.document) != 0 ? titles : others).append(titleOf(method));
    return others.size() <= fewOthers
               ? QCoreApplication::translate("findings", "all documents but %1")
                     .arg(others.join(", "_L1))
               : titles.join(", "_L1);
}

QString titleOf(const Method &method)
{
    return QCoreApplication::translate("documents", method.title.data());
}

} // namespace korvel::vocabulary

// How the tables of the vocabulary are searched.
#include "companions/check/vocabulary.h"

#include <algorithm>
#include <numeric>
#include <vector>

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

/// Steps from one name to another: a letter added, left out, replaced or swapped with the next.
qsizetype steps(QStringView from, QStringView to)
{
    const qsizetype columns = to.size() + 1;
    std::vector<qsizetype> before(static_cast<std::size_t>(columns));
    std::vector<qsizetype> last(before.size());
    std::vector<qsizetype> now(before.size());
    std::iota(last.begin(), last.end(), 0);
    const auto cell = [](std::vector<qsizetype> &row, qsizetype i) -> qsizetype & {
        return row[static_cast<std::size_t>(i)];
    };
    for (qsizetype i = 1; i <= from.size(); ++i) {
        cell(now, 0) = i;
        for (qsizetype j = 1; j < columns; ++j) {
            const bool same = from[i - 1] == to[j - 1];
            cell(now, j) = std::min(
                {cell(last, j) + 1, cell(now, j - 1) + 1, cell(last, j - 1) + (same ? 0 : 1)});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                cell(now, j) = std::min(cell(now, j), cell(before, j - 2) + 1);
        }
        before.swap(last);
        last.swap(now);
    }
    return last.back();
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
        ((documents & method.document) != 0 ? titles : others).append(method.title);
    return others.size() <= fewOthers ? u"all documents but "_s + others.join(", "_L1)
                                      : titles.join(", "_L1);
}

QString nearest(QStringView misspelt, const QStringList &names)
{
    QString best;
    // Two slips, but not so many that a short name becomes another one.
    qsizetype fewest = std::min<qsizetype>(2, (misspelt.size() - 1) / 2) + 1;
    for (const QString &name : names) {
        if (name.compare(misspelt, Qt::CaseInsensitive) == 0)
            return name;
        if (std::abs(name.size() - misspelt.size()) >= fewest)
            continue; // each step changes the length by one at most
        if (const qsizetype count = steps(misspelt, name); count < fewest) {
            fewest = count;
            best = name;
        }
    }
    return best;
}

} // namespace korvel::vocabulary

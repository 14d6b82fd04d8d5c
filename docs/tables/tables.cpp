// The tables of the reference pages: their names, their columns and what stands in the cells.
#include "docs/tables/tables.h"

#include "companions/check/codes.h"
#include "companions/check/vocabulary.h"
#include "companions/preview/codes.h"
#include "companions/shared/codes.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace check = korvel::check;

using vocabulary::Attribute;
using vocabulary::Documents;
using vocabulary::Element;
using vocabulary::Kind;
using vocabulary::Method;

namespace {

QString quoted(const QString &name) { return u'`' + name + u'`'; }

class Table
{
public:
    explicit Table(const QStringList &titles)
    {
        add(titles);
        lines.append(u'|' + u"---|"_s.repeated(titles.size()));
    }

    void add(const QStringList &cells)
    {
        QString line = u"|"_s;
        for (QString cell : cells)
            line += u' ' + cell.replace(u'|', "\\|"_L1) + " |"_L1;
        lines.append(line);
    }

    QStringList lines;
};

// Documents in words.

/// What the pages call several documents.
struct Phrase
{
    Documents documents;
    QLatin1StringView words;
};

// Said of all that read a setting, or not at all.
constexpr Phrase wholes[] = {
    {0, "all"_L1}, // read it, none prints by it
    {vocabulary::shared, "shared"_L1},
    {vocabulary::withCustomer, "with a customer"_L1},
};

// Said in a list, beside the titles of others.
constexpr Phrase parts[] = {
    {vocabulary::receipts, "receipts"_L1},
    {vocabulary::invoices, "invoices"_L1},
    {vocabulary::fiscal, "fiscal receipts"_L1},
};

QString inWords(Documents documents)
{
    for (const Phrase &whole : wholes) {
        if (whole.documents == documents)
            return whole.words;
    }
    QStringList words;
    for (const Method &method : vocabulary::methods()) {
        if ((documents & method.document) == 0)
            continue;
        const auto *const part =
            std::find_if(std::begin(parts), std::end(parts), [&](const Phrase &row) {
                return (row.documents & method.document) != 0 && (row.documents & ~documents) == 0;
            });
        const bool alone = part == std::end(parts);
        words.append(alone ? method.title : part->words);
        documents &= ~(alone ? method.document : part->documents);
    }
    return words.join(", "_L1);
}

// Jobs.

QStringList methodsTable()
{
    Table table({u"method"_s, u"document"_s, u"settings group"_s});
    for (const Method &row : vocabulary::methods())
        table.add({quoted(row.name), row.title, quoted(row.group)});
    return table.lines;
}

/// The attributes that the documents of an element read.
QList<Attribute> attributesOf(const Element &element)
{
    QList<Attribute> rows;
    for (const Attribute &row : vocabulary::attributes()) {
        if (row.element == element.name && (row.documents & element.documents) != 0
            && row.value != vocabulary::Value::Unread)
            rows.append(row);
    }
    return rows;
}

/// Whether an element's attributes have switches of their own, and a table that says which.
bool hasSwitches(const QList<Attribute> &attributes)
{
    return std::any_of(attributes.begin(), attributes.end(),
                       [](const Attribute &row) { return !row.setting.isEmpty(); });
}

QString attributesCell(const Element &element, Documents document)
{
    const QList<Attribute> attributes = attributesOf(element);
    if (hasSwitches(attributes))
        return vocabulary::isShared(element) ? u"the table below"_s : u"as above"_s;
    QStringList names;
    for (const Attribute &row : attributes) {
        if ((row.documents & document) != 0)
            names.append(quoted(row.name));
    }
    if (names.isEmpty())
        return element.anyAttribute ? u"every attribute, whatever its name"_s : u"none"_s;
    if (element.anyAttribute)
        names.append(u"then three attributes of any name for each document"_s);
    return names.join(", "_L1);
}

QString switchCell(const Element &element)
{
    if (!element.setting.isEmpty())
        return quoted(element.setting);
    return hasSwitches(attributesOf(element)) ? u"each line by its own"_s : u"always"_s;
}

QStringList sharedElementsTable()
{
    Table table({u"element"_s, u"attributes"_s, u"switched on by"_s, u"what is printed"_s});
    for (const Element &row : vocabulary::elements()) {
        if (vocabulary::isShared(row))
            table.add({quoted(row.name), attributesCell(row, vocabulary::shared), switchCell(row),
                       row.meaning});
    }
    return table.lines;
}

QStringList elementsTable(const QString &methodName)
{
    const Method *method = vocabulary::findMethod(methodName);
    if (!method)
        return {};
    const bool isFiscal = (method->document & vocabulary::fiscal) != 0;
    Table table(
        {u"element"_s, u"attributes"_s, isFiscal ? u"what is sent"_s : u"what is printed"_s});
    for (const Element &row : vocabulary::elements()) {
        if ((row.documents & method->document) != 0 && !vocabulary::isShared(row))
            table.add({quoted(row.name), attributesCell(row, method->document), row.meaning});
    }
    return table.lines;
}

QStringList attributesTable(const QString &elementName)
{
    Table table({u"attribute"_s, u"switched on by"_s, u"what is printed"_s});
    for (const Element &element : vocabulary::elements()) {
        const QList<Attribute> attributes = attributesOf(element);
        if (element.name != elementName || !hasSwitches(attributes))
            continue;
        for (const Attribute &row : attributes)
            table.add({quoted(row.name),
                       quoted(row.setting.isEmpty() ? element.setting : row.setting), row.meaning});
        return table.lines;
    }
    return {};
}

// Settings.

QStringList groupsTable()
{
    Table table({u"group"_s, u"prefix of its keys"_s, u"documents"_s});
    for (const vocabulary::DocumentType &type : vocabulary::documentTypes) {
        QStringList documents;
        for (const Method &method : vocabulary::methods()) {
            if (method.group == type.group)
                documents.append(method.title + u" ("_s + quoted(method.name) + u')');
        }
        table.add(
            {quoted(type.group), quoted(vocabulary::pathOf(type.group)), documents.join(", "_L1)});
    }
    return table.lines;
}

/// What a setting is where the file does not have it.
QString defaultOf(Kind kind)
{
    switch (kind) {
    case Kind::Number:
        return u"0"_s;
    case Kind::Switch:
        return u"off"_s;
    case Kind::Text:
        break;
    }
    return u"empty"_s;
}

const QStringList settingTitles = {u"key"_s, u"unit"_s, u"default"_s, u"read by"_s,
                                   u"what it does"_s};

QStringList settingsTable()
{
    Table table(settingTitles);
    for (const vocabulary::Setting &row : vocabulary::settings())
        table.add({quoted(row.key), row.unit, defaultOf(row.kind), inWords(row.documents),
                   QString::fromLatin1(row.meaning)});
    return table.lines;
}

QStringList languageSettingsTable()
{
    Table table(settingTitles);
    for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
        table.add({quoted(vocabulary::pathOf(vocabulary::group::language, row.key)), row.unit,
                   defaultOf(Kind::Text), inWords(0), QString::fromLatin1(row.meaning)});
    return table.lines;
}

// Findings.

template<typename Code>
QStringList codesTable(const QList<korvel::shared::CodeRow<Code>> &codes)
{
    Table table({u"code"_s, u"level"_s, u"what it means"_s, u"what to do"_s});
    for (const korvel::shared::CodeWords &row : codes)
        table.add({quoted(row.name), levelName(row.level), row.meaning, row.advice});
    return table.lines;
}

QStringList jobCodesTable() { return codesTable(check::codes()); }

QStringList streamCodesTable() { return codesTable(korvel::preview::codes()); }

struct NamedTable
{
    QLatin1StringView name;
    QStringList (*lines)();
};

constexpr NamedTable namedTables[] = {
    {"methods"_L1, methodsTable},
    {"elements shared"_L1, sharedElementsTable},
    {"groups"_L1, groupsTable},
    {"settings"_L1, settingsTable},
    {"language settings"_L1, languageSettingsTable},
    {"codes"_L1, jobCodesTable},
    {"stream codes"_L1, streamCodesTable},
};

} // namespace

QStringList tableOf(const QString &name)
{
    for (const NamedTable &table : namedTables) {
        if (table.name == name)
            return table.lines();
    }
    const QString what = name.section(u' ', 0, 0);
    const QString whose = name.section(u' ', 1);
    if (what == "elements"_L1)
        return elementsTable(whose);
    return what == "attributes"_L1 ? attributesTable(whose) : QStringList();
}

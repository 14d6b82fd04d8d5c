// The tables of the vocabulary, to be gone through and searched.
#pragma once

#include "vocabulary/attributes.h"
#include "vocabulary/methods.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <iterator>

namespace korvel::vocabulary {

/// The rows of a table.
template<typename Row>
class Rows
{
public:
    template<std::size_t count>
    constexpr explicit Rows(const Row (&table)[count])
        : first(std::begin(table))
        , last(std::end(table))
    {
    }

    [[nodiscard]] constexpr const Row *begin() const { return first; }
    [[nodiscard]] constexpr const Row *end() const { return last; }
    [[nodiscard]] constexpr qsizetype size() const { return last - first; }

private:
    const Row *first;
    const Row *last;
};

// Each table in the order of the reference pages.
constexpr Rows<Method> methods() { return Rows(method::rows); }
constexpr Rows<Element> elements() { return Rows(element::rows); }
constexpr Rows<Attribute> attributes() { return Rows(attribute::rows); }
constexpr Rows<Setting> settings() { return Rows(key::rows); }
constexpr Rows<LanguageSetting> languageSettings() { return Rows(language::rows); }

/// The method of that name; null when there is none.
const Method *findMethod(QAnyStringView name);

/// The row of an element in one document; null when the document ignores it.
const Element *findElement(QAnyStringView name, Document document);

/// Whether any document knows an element of that name.
bool isElement(QAnyStringView name);

/// Whether an element is one of those that all documents with text lines share.
bool isShared(const Element &row);

/// Whether an element of that name is.
bool isSharedName(QAnyStringView name);

/// Whether a job may do without an attribute: it has a switch, or no place of its own on the paper.
/// What `printers` names is printed with `headers`, if there are any.
bool isOptional(const Attribute &row);

/// Whether an attribute is a figure: a quantity, a price, an amount.
bool isFigure(const Attribute &row);

/// The attributes of an element in one document, those of anyAttribute not among them.
const QList<Attribute> &attributesOf(QAnyStringView element, Document document);

/// The setting of that key; null when there is none.
const Setting *findSetting(QAnyStringView key);

/// Whether one of these documents reads a setting: prints by it, or would if anything did.
bool isRead(const Setting &row, Documents documents);

/// Whether anything reads a setting that stands in that group.
bool isRead(QAnyStringView group, QAnyStringView key);

/// The groups that may have settings, in that of the file: "language" and those of documents.
const QStringList &groupNames();

/// The documents that read a group of the settings; none for a group that no document reads.
Documents documentsOf(QAnyStringView group);

/// The titles of documents, parted by commas: "receipt, summary receipt"; where only a few are not
/// among them, "all documents but" those.
QString titlesOf(Documents documents);

/// A document's title, in the user's language where a translator has it.
QString titleOf(const Method &method);

} // namespace korvel::vocabulary

namespace vocabulary = korvel::vocabulary;

// What jobs and settings files may say: methods, elements, attributes and settings, in tables.
#pragma once

#include <QList>
#include <QString>

/**
 * The one list of the names that jobs and settings use, with what each does. The checker judges by
 * it, the schema is written from it, the settings editor shows its help, and the reference pages
 * are compared with it. The engine does not use it; a test prints a job for each row instead.
 */
namespace vocabulary {

/// The documents, one bit each, in the order of the methods' table.
enum Document : unsigned {
    KitchenOrder = 1U << 0U,
    FullOrder = 1U << 1U,
    Receipt = 1U << 2U,
    Invoice = 1U << 3U,
    DeliveryNote = 1U << 4U,
    FiscalReceipt = 1U << 5U,
    SummaryOrder = 1U << 6U,
    SummaryReceipt = 1U << 7U,
    SummaryInvoice = 1U << 8U,
    SummaryFiscalReceipt = 1U << 9U,
    PeriodReport = 1U << 10U,
    SoldItems = 1U << 11U,
    Statement = 1U << 12U,
};

/// Any number of documents.
using Documents = unsigned;

struct Method
{
    QLatin1StringView name; // as jobs ask for it
    Document document;
    QLatin1StringView title; // of the document, to people: "kitchen order"
    QLatin1StringView group; // of the settings, below "korvel"
};

/// What an attribute's value is to the document that reads it.
enum class Value {
    Text,            // printed as it is
    Amount,          // printed as it is; people read it as an amount of money
    RegisteredPrice, // read as a number and sent in hundredths, to be registered
    RegisteredText,  // sent to be registered
    RegisteredCount, // likewise, a quantity
    VariantQuantity, // read as a number, printed as a sign
    Address,         // printed in lines, parted at commas
    Kept,            // read, not printed by this printer
    Unread,          // not read, though jobs often carry it
};

/// An element as some documents know it. Others have a row of their own or ignore it.
struct Element
{
    QLatin1StringView name;
    Documents documents;
    QLatin1StringView setting; // that switches it on; empty when nothing does
    bool anyAttribute;         // prints attributes of any name, in the order of the job
    QLatin1StringView meaning;
};

/// An attribute of an element, in some of the documents that know the element.
struct Attribute
{
    QLatin1StringView element;
    Documents documents;
    QLatin1StringView name;
    Value value;
    QLatin1StringView setting; // that switches it on, beside the element's; empty when nothing does
};

/// How the text of a setting is read.
enum class Kind {
    Number, // a whole number; anything else counts as 0
    Switch, // on when it is exactly "true"
    Text,
};

struct Setting
{
    QLatin1StringView key; // in its group
    Kind kind;
    QLatin1StringView unit;
    Documents documents; // that read it and print by it; none when nothing depends on it
    const char *meaning; // in ASCII; catalogues have it in the context "vocabulary"
};

/// The settings of the group "language", which are not a document's.
struct LanguageSetting
{
    QLatin1StringView key; // below "korvel.language."
    const char *meaning;   // as of a Setting
};

// All rows, each table in the order of the reference pages.
const QList<Method> &methods();
const QList<Element> &elements();
const QList<Attribute> &attributes();
const QList<Setting> &settings();
const QList<LanguageSetting> &languageSettings();

/// The method of that name; null when there is none.
const Method *findMethod(QAnyStringView name);

/// The method that prints a document.
const Method &methodOf(Document document);

/// The row of an element in one document; null when the document ignores it.
const Element *findElement(QAnyStringView name, Document document);

/// Whether an element is one of those that all documents with text lines share.
bool isShared(const Element &element);

/// Whether a job may do without an attribute: it has a switch, or no place of its own on the paper.
/// What `printers` names is printed with `headers`, if there are any.
bool isOptional(const Attribute &attribute);

/// The attributes of an element in one document, those of anyAttribute not among them.
QList<Attribute> attributesOf(QAnyStringView element, Document document);

/// The setting of that key; null when there is none.
const Setting *findSetting(QAnyStringView key);

/// The documents that read a group of the settings; none for a group that no document reads.
Documents documentsOf(QAnyStringView group);

/// The titles of documents, parted by commas: "receipt, summary receipt"; "other documents" for
/// more than half of them.
QString titlesOf(Documents documents);

/**
 * The name of a list that is most like a misspelt one: a swapped, missing, extra or wrong letter or
 * two, or the same letters in other case. Of several as near the first; nothing when none is near.
 */
QString nearest(QStringView misspelt, const QStringList &names);

} // namespace vocabulary

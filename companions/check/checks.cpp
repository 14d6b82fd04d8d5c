// The rules of jobs and settings, one function each.
#include "companions/check/checks.h"

#include "companions/check/settingsfile.h"
#include "companions/check/vocabulary.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Kind;
using vocabulary::Method;
using vocabulary::Setting;
using vocabulary::Value;

constexpr int printerWidth = 32; // characters of a line of the paper

// A figure of a row and the setting that is its column's width.
struct Figure
{
    QLatin1StringView element;
    vocabulary::Documents documents;
    QLatin1StringView attribute;
    QLatin1StringView column;
};

constexpr auto q = "quantityFieldWidth"_L1;
constexpr auto p = "priceFieldWidth"_L1;
constexpr auto t = "totalPriceFieldWidth"_L1;
constexpr vocabulary::Documents everywhere = ~0U;
constexpr vocabulary::Documents priced =
    vocabulary::FullOrder | vocabulary::Receipt | vocabulary::Invoice;

// What a summary calls a price stands in the last column.
constexpr Figure figures[] = {
    {"receipe"_L1,      everywhere, "number"_L1,     q},
    {"receipe"_L1,      everywhere, "quantity"_L1,   q},
    {"receipe"_L1,      priced,     "price"_L1,      p},
    {"receipe"_L1,      priced,     "totalPrice"_L1, t},
    {"receipe"_L1,      everywhere, "amount"_L1,     t},
    {"otherreceipe"_L1, everywhere, "number"_L1,     q},
    {"variant"_L1,      everywhere, "number"_L1,     q},
    {"variant"_L1,      everywhere, "price"_L1,      p},
    {"variant"_L1,      everywhere, "totalPrice"_L1, t},
    {"receipe_type"_L1, everywhere, "number"_L1,     q},
    {"receipe_type"_L1, everywhere, "price"_L1,      t},
    {"total"_L1,        everywhere, "price"_L1,      t},
    {"totals"_L1,       everywhere, "taxable"_L1,    t},
    {"totals"_L1,       everywhere, "taxrate"_L1,    t},
    {"totals"_L1,       everywhere, "tax"_L1,        t},
    {"totals"_L1,       everywhere, "total"_L1,      t},
    {"statement"_L1,    everywhere, "amount"_L1,     p},
};

// The rows of a document: its columns, and the characters beside them and the description.
struct RowWidths
{
    vocabulary::Documents documents;
    bool hasQuantity, hasPrice, hasTotal;
    int beside;
};

constexpr RowWidths rowWidths[] = {
    {vocabulary::KitchenOrder | vocabulary::DeliveryNote, true,  false, false, 3 },
    {vocabulary::FullOrder | vocabulary::Invoice,         true,  true,  true,  1 },
    {vocabulary::Receipt | vocabulary::SummaryReceipt | vocabulary::SummaryInvoice
         | vocabulary::SoldItems,
     true,                                                       true,  true,  3 },
    {vocabulary::Statement,                               false, true,  false, 18},
};

QString quoted(const QString &text)
{
    constexpr qsizetype longest = 40;
    QString shown;
    for (const QChar c : text.size() > longest ? text.first(longest - 1) + u'…' : text)
        shown += c.isPrint() || c.isSurrogate() ? c : QChar(u' ');
    return u'"' + shown + u'"';
}

QString orNearest(const QString &name, const QStringList &names)
{
    const QString nearest = vocabulary::nearest(name, names);
    return nearest.isEmpty() ? QString() : u"; did you mean \""_s + nearest + u"\"?"_s;
}

/// The name of a list that a name is the beginning of, or the other way round: "receipe" and
/// "receipe_type".
QString orLonger(const QString &name, const QStringList &names)
{
    for (const QString &other : names) {
        if (other.startsWith(name) || name.startsWith(other))
            return u"; did you mean \""_s + other + u"\"?"_s;
    }
    return {};
}

/// What a misspelt element may be in a document: the name that it is most like of all, if the
/// document knows it, or a longer or shorter form of that.
QString orSimilar(const QString &name, const QStringList &own, const QStringList &shared)
{
    QStringList all = own;
    for (const Element &row : vocabulary::elements())
        all.append(row.name);
    const QString nearest = vocabulary::nearest(name, all);
    if (nearest.isEmpty() || own.contains(nearest) || shared.contains(nearest))
        return nearest.isEmpty() ? QString() : u"; did you mean \""_s + nearest + u"\"?"_s;
    return orLonger(nearest, own);
}

/// An amount of a text document, taken apart.
struct AmountText
{
    bool isNumber = false;
    bool hasComma = false;
    bool hasParts = false; // of a hundredth
};

/// Digits with one mark, behind the last three digits' groups; a currency sign or code beside them.
AmountText amountIn(const QString &value)
{
    static const QRegularExpression amount(
        uR"(^\s*(?:\p{Sc}|[A-Z]{3})?\s*[+-]?\s*(?:\p{Sc}\s*)?)"
        uR"((?:\d+|(?=\.\d)|\d{1,3}(?:[.,'\x{2019}\x{a0}\x{202f} ]\d{3})+)(?:([.,])(\d*))?)"
        uR"(\s*-?\s*(?:\p{Sc}|[A-Z]{3})?\s*$)"_s);
    const auto match = amount.match(value);
    AmountText result;
    result.isNumber = match.hasMatch();
    result.hasComma = match.captured(1) == ","_L1;
    const QString behind = match.captured(2).mid(2);
    result.hasParts = std::any_of(behind.begin(), behind.end(), [](QChar c) { return c != u'0'; });
    return result;
}

/// A number of the job that the printer or the renderer reads: a sign, digits, a point or comma.
QRegularExpressionMatch plainNumber(const QString &value)
{
    static const QRegularExpression number(u"^\\s*([+-]?)0*([0-9]*)(?:[.,]([0-9]*?)0*)?\\s*$"_s);
    const auto match = number.match(value);
    const bool hasDigit =
        std::any_of(value.begin(), value.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    return hasDigit ? match : QRegularExpressionMatch();
}

/// Checks one job.
class JobChecker
{
public:
    explicit JobChecker(const SettingsFile *file)
        : settings(file)
    {
    }

    QList<Finding> check(const QByteArray &bytes)
    {
        const Job job = readJob(bytes);
        for (const Fault &fault : job.faults)
            note(fault.code, fault.place, fault.text);
        for (const Tag &tag : job.tags) {
            if (!checkTag(tag, &tag == &job.tags.constFirst()))
                break;
        }
        if (!method && !ended && job.faults.isEmpty()) {
            findings.clear(); // all of them are before the method that is missing
            note(Code::NoMethod, {},
                 u"no method: nothing is printed; begin with <method name=\"...\"/>"_s);
        }
        std::stable_sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
            return std::pair(a.place.line, a.place.column)
                   < std::pair(b.place.line, b.place.column);
        });
        return findings;
    }

private:
    void note(Code code, Place place, const QString &text)
    {
        findings.append({place, code, text, {}, 0});
    }

    QLatin1StringView group() const { return method->group; }
    bool isOn(QLatin1StringView key) const { return key.isEmpty() || settings->isOn(group(), key); }

    /// False when the job ends at this tag.
    bool checkTag(const Tag &tag, bool isRoot)
    {
        if (tag.name == "method"_L1)
            return checkMethod(tag);
        if (!method)
            checkBeforeMethod(tag, isRoot);
        else if (const Element *element = vocabulary::findElement(tag.name, method->document))
            checkElement(tag, *element);
        else
            checkIgnored(tag, isRoot);
        return true;
    }

    bool checkMethod(const Tag &tag)
    {
        const JobAttribute *name = tag.find(u"name");
        const Method *found = name ? vocabulary::findMethod(name->value) : nullptr;
        if (!found) {
            QStringList names;
            for (const Method &row : vocabulary::methods())
                names.append(row.name);
            note(Code::UnknownMethod, name ? name->place : tag.place,
                 name ? u"no document is called "_s + quoted(name->value) + u": the job ends here"_s
                            + orNearest(name->value, names)
                      : u"the method has no name: the job ends here"_s);
            ended = true;
            return false;
        }
        if (method)
            note(Code::SecondMethod, tag.place,
                 u"a second method: the section of the "_s + method->title + u" is not closed"_s);
        method = found;
        for (const JobAttribute &attribute : tag.attributes) {
            if (attribute.name != "name"_L1)
                noteUnknownAttribute(tag, attribute, {u"name"_s});
        }
        return true;
    }

    void checkBeforeMethod(const Tag &tag, bool isRoot)
    {
        const bool known = std::any_of(vocabulary::elements().begin(), vocabulary::elements().end(),
                                       [&](const Element &row) { return row.name == tag.name; });
        if (known ? !tag.holdsOthers || !tag.attributes.isEmpty() : !(isRoot || tag.holdsOthers))
            note(Code::BeforeMethod, tag.place,
                 u"<"_s + tag.name
                     + u"> stands before the method and is not printed; move it behind <method>"_s);
    }

    void checkIgnored(const Tag &tag, bool isRoot)
    {
        QStringList here; // elements of the document, without those that most share
        QStringList shared;
        vocabulary::Documents elsewhere = 0; // where it prints something
        bool known = false;
        for (const Element &row : vocabulary::elements()) {
            known = known || row.name == tag.name;
            if (row.name == tag.name)
                elsewhere |= row.meaning.startsWith("nothing"_L1) ? 0 : row.documents;
            if ((row.documents & method->document) == 0)
                continue;
            (vocabulary::isShared(row) ? shared : here).append(row.name);
        }
        if (known) {
            note(Code::IgnoredElement, tag.place,
                 u"<"_s + tag.name + u"> prints nothing in the document \""_s + method->title + u'"'
                     + (elsewhere == 0 ? QString()
                                       : u", only in "_s + vocabulary::titlesOf(elsewhere))
                     + orLonger(tag.name, here));
            return;
        }
        const QString nearest = orSimilar(tag.name, here, shared);
        const bool holder = isRoot || (tag.holdsOthers && tag.attributes.isEmpty());
        if (!holder)
            note(Code::UnknownElement, tag.place,
                 u"no document knows <"_s + tag.name + u">: nothing is printed"_s + nearest);
    }

    void checkElement(const Tag &tag, const Element &element)
    {
        if (method->document == vocabulary::FullOrder && tag.name == "receipe"_L1) {
            const JobAttribute *name = tag.find(u"name");
            if (name && name->value.startsWith(u'='))
                return; // left out on purpose
        }
        if (settings && !isOn(element.setting)
            && !(tag.name == "headers"_L1 && tag.attributes.isEmpty())) {
            note(Code::SwitchedOff, tag.place,
                 (tag.name == "headers"_L1 ? u"of <headers> only the printer's name is printed: "_s
                                           : u"<"_s + tag.name + u"> is not printed: "_s)
                     + element.setting + u" is off in "_s + group());
            return;
        }
        const QList<Attribute> known = vocabulary::attributesOf(tag.name, method->document);
        const bool deduction = isDeduction(tag, known);
        QStringList missing;
        for (const Attribute &row : known) {
            if (isMissing(tag, row))
                missing.append(u'"' + row.name + u'"');
            else
                checkKnownAttribute(tag, row, deduction);
        }
        if (const QStringList lacking = lackingOf(tag, known, deduction); !lacking.isEmpty())
            note(Code::FiscalIncomplete, tag.place,
                 u"the sale row has no "_s + lacking.join(", "_L1)
                     + (lacking.constLast() == "\"price\""_L1 ? u": 0 is registered"_s
                                                              : u": the printer may refuse it"_s));
        if (!missing.isEmpty())
            note(Code::MissingAttribute, tag.place,
                 u"<"_s + tag.name + u"> has no "_s + missing.join(", "_L1)
                     + (tag.name == "variant"_L1 && missing == QStringList(u"\"quantity\""_s)
                            ? u": it prints as \"-\", something left out"_s
                        : missing.size() == 1 ? u": its place prints empty"_s
                                              : u": their places print empty"_s));
        for (const JobAttribute &attribute : tag.attributes) {
            const bool named = std::any_of(known.begin(), known.end(), [&](const Attribute &row) {
                return row.name == attribute.name;
            });
            if (named)
                continue;
            if (element.anyAttribute) {
                checkText(tag, attribute);
            } else {
                QStringList unused;
                for (const Attribute &row : known) {
                    if (!tag.find(row.name))
                        unused.append(row.name);
                }
                noteUnknownAttribute(tag, attribute, unused);
            }
        }
        if (tag.name == "cancelledsummary"_L1)
            checkCancelled(tag);
    }

    void noteUnknownAttribute(const Tag &tag, const JobAttribute &attribute,
                              const QStringList &unused)
    {
        note(Code::UnknownAttribute, attribute.place,
             u"nothing reads \""_s + attribute.name + u"\" of <"_s + tag.name
                 + u"> in this document"_s + orNearest(attribute.name, unused));
    }

    /// Whether a sale row is sent as a deduction, which carries its amount alone.
    static bool isDeduction(const Tag &tag, const QList<Attribute> &known)
    {
        return std::any_of(known.begin(), known.end(), [&](const Attribute &row) {
            const JobAttribute *price = tag.find(row.name);
            return row.value == Value::RegisteredPrice && price
                   && QString(price->value).replace(u',', u'.').toDouble() < 0;
        });
    }

    static bool isRegistered(const Attribute &row)
    {
        return row.value == Value::RegisteredText || row.value == Value::RegisteredCount
               || row.value == Value::RegisteredPrice;
    }

    /// Whether an attribute that is printed in a line is missing. Without settings, nobody knows
    /// whether what has a switch is printed.
    bool isMissing(const Tag &tag, const Attribute &row) const
    {
        const bool switchedOn = settings && !row.setting.isEmpty() && isOn(row.setting);
        return (switchedOn || !vocabulary::isOptional(row)) && !isRegistered(row)
               && row.value != Value::Address // which prints no line then
               && !tag.find(row.name);
    }

    /// What a sale row needs and has not, or has empty. A deduction needs its price alone.
    static QStringList lackingOf(const Tag &tag, const QList<Attribute> &known, bool deduction)
    {
        QStringList lacking;
        for (const Attribute &row : known) {
            const JobAttribute *attribute = tag.find(row.name);
            if (isRegistered(row) && !deduction && (!attribute || attribute->value.isEmpty()))
                lacking.append(u'"' + row.name + u'"');
        }
        return lacking;
    }

    void checkKnownAttribute(const Tag &tag, const Attribute &row, bool deduction)
    {
        const JobAttribute *attribute = tag.find(row.name);
        if (isRegistered(row)) {
            if (row.value == Value::RegisteredPrice || !deduction)
                checkRegistered(row, attribute);
            return;
        }
        if (row.value == Value::Kept || row.value == Value::Unread)
            return;
        if (settings && !isOn(row.setting)) {
            if (attribute)
                note(Code::SwitchedOff, attribute->place,
                     u"\""_s + row.name + u"\" is not printed: "_s + row.setting + u" is off in "_s
                         + group());
            return;
        }
        if (!attribute)
            return;
        checkText(tag, *attribute);
        if (row.value == Value::Amount)
            checkAmount(*attribute);
        else if (row.value == Value::Address)
            checkAddress(*attribute);
        else if (row.value == Value::VariantQuantity)
            checkVariantQuantity(*attribute);
        if (settings)
            checkWidth(tag, *attribute);
    }

    /// What is printed in a line.
    void checkText(const Tag &tag, const JobAttribute &attribute)
    {
        const QString what = u"\""_s + attribute.name + u"\" of <"_s + tag.name + u'>';
        if (attribute.lineBreak)
            note(Code::LineBreak, attribute.place,
                 what + u" has a line break, which breaks the printed line"_s);
        if (attribute.value.contains(u')'))
            note(Code::Parenthesis, attribute.place,
                 what + u" has a \")\", which some printers take for the end of the line"_s);
        if (hasControl(attribute))
            note(Code::ControlCharacter, attribute.place,
                 what + u" has a tab or another control character"_s);
        if (attribute.value.contains("TOTALE"_L1))
            note(Code::Totale, attribute.place, what + u" has TOTALE, which prints as T0TALE"_s);
    }

    static bool hasControl(const JobAttribute &attribute)
    {
        return attribute.tab
               || std::any_of(attribute.value.begin(), attribute.value.end(), [](QChar c) {
                      return c.category() == QChar::Other_Control && c != u'\n' && c != u'\r'
                             && c != u'\t';
                  });
    }

    void checkAmount(const JobAttribute &attribute)
    {
        if (attribute.value.isEmpty())
            return; // empty on purpose
        const QString what = u"\""_s + attribute.name + u"\" is "_s + quoted(attribute.value);
        const AmountText amount = amountIn(attribute.value);
        if (!amount.isNumber)
            note(Code::Amount, attribute.place, what + u", no number; it prints as it is"_s);
        else if (amount.hasParts)
            note(Code::Hundredths, attribute.place,
                 what + u", with parts of a hundredth; it prints as it is"_s);
        if (amount.isNumber && amount.hasComma)
            note(Code::DecimalComma, attribute.place, what + u" and prints with its comma"_s);
    }

    void checkAddress(const JobAttribute &attribute)
    {
        const QStringList parts = attribute.value.split(u',');
        const qsizetype empty = parts.indexOf(QString());
        if (empty < 0)
            return;
        const bool lost = std::any_of(parts.begin() + empty, parts.end(), [](const QString &part) {
            return !part.trimmed().isEmpty();
        });
        if (lost)
            note(Code::Address, attribute.place,
                 u"\""_s + attribute.name + u"\" has an empty part: what follows is not printed"_s);
    }

    void checkVariantQuantity(const JobAttribute &attribute)
    {
        bool isNumber = false;
        attribute.value.toDouble(&isNumber);
        if (!isNumber)
            note(Code::VariantQuantity, attribute.place,
                 u"the quantity "_s + quoted(attribute.value)
                     + u" is no number and prints as \"-\", something left out"_s);
    }

    void checkRegistered(const Attribute &row, const JobAttribute *attribute)
    {
        if (!attribute || attribute->value.isEmpty())
            return;
        const QString what =
            u"\""_s + row.name + u"\" of a sale row is "_s + quoted(attribute->value);
        if (row.value == Value::RegisteredPrice) {
            checkPrice(*attribute, what);
            return;
        }
        const bool description = row.name == "name"_L1;
        if (attribute->lineBreak || attribute->value.contains(u')')
            || (!description && attribute->value.contains(u'/')))
            note(Code::EndsCommand, attribute->place,
                 what + u": a "_s
                     + (attribute->lineBreak              ? u"line break"_s
                        : attribute->value.contains(u')') ? u"\")\""_s
                                                          : u"\"/\""_s)
                     + u" in it breaks the printer's command"_s);
        if (hasControl(*attribute))
            note(Code::ControlCharacter, attribute->place,
                 what + u", with a tab or another control character"_s);
        if (row.value == Value::RegisteredCount && !plainNumber(attribute->value).hasMatch())
            note(Code::FiscalQuantity, attribute->place, what + u", no plain number"_s);
    }

    void checkPrice(const JobAttribute &attribute, const QString &what)
    {
        const auto number = plainNumber(attribute.value);
        bool isNumber = false;
        QString(attribute.value).replace(u',', u'.').toDouble(&isNumber);
        if (!isNumber)
            note(Code::FiscalAmount, attribute.place, what + u", no number: 0 is registered"_s);
        else if (!number.hasMatch())
            note(Code::FiscalAmount, attribute.place, what + u", no plain number"_s);
        else if (number.captured(2).size() > 13)
            note(Code::FiscalAmount, attribute.place, what + u", more than the printer takes"_s);
        else if (number.captured(3).size() > 2)
            note(Code::FiscalHundredths, attribute.place,
                 what + u", with parts of a hundredth, which are sent"_s);
    }

    void checkWidth(const Tag &tag, const JobAttribute &attribute)
    {
        for (const Figure &figure : figures) {
            if (figure.element != tag.name || figure.attribute != attribute.name
                || (figure.documents & method->document) == 0)
                continue;
            const qsizetype width = std::max(settings->number(group(), figure.column), 0);
            const qsizetype beyond = attribute.value.size() - width;
            if (beyond > 0)
                note(Code::WideFigure, attribute.place,
                     u"\""_s + attribute.name + u"\" is "_s + quoted(attribute.value)
                         + u" in a column of "_s + QString::number(width) + u" ("_s + figure.column
                         + u" in "_s + group() + u"): the line grows by "_s
                         + QString::number(beyond));
        }
    }

    /// The count and the total by name, then three attributes for each document, by place.
    void checkCancelled(const Tag &tag)
    {
        const auto nameAt = [&](qsizetype i) {
            return i < tag.attributes.size() ? tag.attributes[i].name : QString();
        };
        const bool headed = (nameAt(0) == "number"_L1 && nameAt(1) == "totals"_L1)
                            || (nameAt(0) == "totals"_L1 && nameAt(1) == "number"_L1);
        if (!headed) {
            note(
                Code::CancelledList, tag.place,
                u"\"number\" and \"totals\" are not the first two attributes: the list of documents begins at the wrong place"_s);
            return;
        }
        const qsizetype listed = tag.attributes.size() - 2;
        if (listed % 3 != 0) {
            note(Code::CancelledList, tag.place,
                 u"each cancelled document takes three attributes, and there are "_s
                     + QString::number(listed));
            return;
        }
        bool isNumber = false;
        const int count = tag.find(u"number")->value.toInt(&isNumber);
        if (isNumber && count != listed / 3)
            note(Code::CancelledList, tag.find(u"number")->place,
                 u"\"number\" says "_s + QString::number(count) + u" cancelled documents, and "_s
                     + QString::number(listed / 3) + u" are listed"_s);
    }

    const SettingsFile *settings;
    const Method *method = nullptr; // selected last
    bool ended = false;             // at an unknown method
    QList<Finding> findings;
};

} // namespace

QList<Finding> checkJob(const QByteArray &job, const SettingsFile *settings)
{
    return JobChecker(settings).check(job);
}

namespace {

/// Why no document reads a setting; empty when one does, or when it is a known one that nothing
/// depends on.
QString whyUnread(const SettingsFile::Entry &entry)
{
    if (!entry.searched || entry.groups.value(0) != "korvel"_L1)
        return entry.groups.isEmpty()
                   ? u"it stands outside the group korvel"_s
                   : u"only the first group of the file is read, and it must be korvel"_s;
    QStringList groups = {u"language"_s};
    for (const Method &method : vocabulary::methods())
        groups.append(method.group);
    QString places = u"settings stand in a document's group or in language, in korvel"_s;
    if (entry.groups.size() > 2)
        return places + u"; does a } lack its ;?"_s;
    if (entry.groups.size() < 2)
        return places;
    const QString group = entry.groups.constLast();
    if (!groups.contains(group))
        return u"no document reads the group "_s + group + orNearest(group, groups);

    QStringList keys;
    if (group == "language"_L1) {
        for (const vocabulary::LanguageSetting &row : vocabulary::languageSettings())
            keys.append(row.key);
    } else {
        for (const Setting &row : vocabulary::settings())
            keys.append(row.key);
    }
    return keys.contains(entry.key) ? QString()
                                    : u"there is no such setting"_s + orNearest(entry.key, keys);
}

/// How the value of a setting is read, where that is hardly meant.
void checkValue(const SettingsFile::Entry &entry, QList<Finding> &findings)
{
    const Setting *setting = vocabulary::findSetting(entry.key);
    if (!setting || entry.value.isEmpty())
        return;
    const QString what = entry.key + u" is "_s + quoted(entry.value);
    const QStringList path = entry.groups + QStringList(entry.key);
    bool isNumber = false;
    entry.value.toInt(&isNumber);
    if (setting->kind == Kind::Switch && entry.value != "true"_L1 && entry.value != "false"_L1)
        findings.append({entry.place, Code::NotTrue,
                         what + u" and counts as off; only true switches it on"_s, path,
                         entry.occurrence});
    if (setting->kind == Kind::Number && !isNumber)
        findings.append({entry.place, Code::NotANumber,
                         what + u", no whole number, and counts as 0"_s, path, entry.occurrence});
}

/// Whether the columns of a document leave room for its description.
void checkColumns(const SettingsFile &settings, const Method &method, const RowWidths &row,
                  Place place, QList<Finding> &findings)
{
    const auto column = [&](bool has, QLatin1StringView key) {
        return has ? qint64(settings.number(method.group, key)) : 0;
    };
    const int paper = settings.number(method.group, "paperWidth"_L1);
    const qint64 width = paper == 0 ? printerWidth : paper;
    const qint64 room = width - row.beside - column(row.hasQuantity, q) - column(row.hasPrice, p)
                        - column(row.hasTotal, t);
    if (room < 1)
        findings.append({
            place,
            Code::Columns,
            u"the columns of the "_s + method.title
                + u" leave no room for the description: the others and the blanks take "_s
                + QString::number(width - room) + u" of "_s + QString::number(width)
                + u" characters"_s,
            {u"korvel"_s, QString(method.group)}
        });
}

} // namespace

QList<Finding> checkSettings(const SettingsFile &settings)
{
    QList<Finding> findings;
    QHash<QString, Place> groups; // of documents, where their first setting stands
    for (const SettingsFile::Entry &entry : settings.entries()) {
        const QStringList path = entry.groups + QStringList(entry.key);
        if (const QString why = whyUnread(entry); !why.isEmpty()) {
            findings.append({entry.place, Code::UnreadKey,
                             u"nothing reads "_s + path.join(u'.').simplified() + u": "_s + why,
                             path, entry.occurrence});
            continue;
        }
        checkValue(entry, findings);
        const QString group = entry.groups.constLast();
        if (!groups.contains(group))
            groups.insert(group, entry.place);
        const Setting *setting = vocabulary::findSetting(entry.key);
        const bool hasLines = setting && (setting->documents & vocabulary::documentsOf(group)) != 0;
        if (entry.key == "paperWidth"_L1 && hasLines && entry.value.toInt() > printerWidth)
            findings.append({entry.place, Code::Columns,
                             u"paperWidth is "_s + entry.value
                                 + u": lines are wider than the printer's "_s
                                 + QString::number(printerWidth) + u" characters"_s,
                             path, entry.occurrence});
    }
    for (const Method &method : vocabulary::methods()) {
        for (const RowWidths &row : rowWidths) {
            if ((row.documents & method.document) != 0 && groups.contains(method.group))
                checkColumns(settings, method, row, groups.value(method.group), findings);
        }
    }
    std::stable_sort(findings.begin(), findings.end(), [](const Finding &a, const Finding &b) {
        return std::pair(a.place.line, a.place.column) < std::pair(b.place.line, b.place.column);
    });
    return findings;
}

} // namespace korvel::check

// The attributes of an element: missing, unread, and each by what it is to the document.
#include "companions/check/context.h"
#include "companions/check/mojibake.h"
#include "companions/check/synonyms.h"
#include "companions/check/words.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Element;
using vocabulary::Value;
namespace element = vocabulary::element;
namespace name = vocabulary::attribute;

/// What an element lacks, and what stands in it that the document does not read.
struct Gaps
{
    QStringList figures; // and names and serial numbers, whose places print empty
    QStringList texts;   // that are switched on
    QStringList registered;
    QStringList unused;               // what the document would read
    QList<const JobAttribute *> read; // what it reads
    QList<const JobAttribute *> unread;
};

/// Whether an attribute that is printed in a line is missing. Without settings, nobody knows
/// whether what has a switch is printed.
bool isMissing(const Context &context, const Tag &tag, const Attribute &row)
{
    return (context.isOn(row.setting) || !vocabulary::isOptional(row)) && !isRegistered(row)
           && row.value != Value::Address // which prints no line then
           && !tag.find(row.name);
}

void noteMissing(Context &context, const Tag &tag, Code code, const QStringList &missing)
{
    if (missing.isEmpty())
        return;
    const bool isMark = tag.name == element::variant && missing == QStringList(name::quantity);
    context.note(tag.place, code, tag.name, quoted(missing),
                 isMark                ? phrase::leftOut
                 : missing.size() == 1 ? phrase::emptyPlace
                                       : phrase::emptyPlaces);
}

void checkPrinted(Context &context, const Tag &tag, const Attribute &row,
                  const JobAttribute &attribute)
{
    checkText(context, tag, attribute);
    const bool mojibake = !beforeMojibake(attribute.value).meant.isEmpty(); // and so no number
    if (row.value == Value::Amount && !mojibake)
        checkAmount(context, attribute);
    else if (row.column == vocabulary::Quantity || row.name == name::number)
        checkQuantity(context, attribute);
    else if (row.name == name::taxrate)
        checkRate(context, tag, attribute);
    else if (row.value == Value::Address)
        checkAddress(context, attribute);
    else if (row.value == Value::VariantQuantity)
        checkVariantQuantity(context, attribute);
}

/// An attribute that the document knows.
void checkKnown(Context &context, const Tag &tag, const Attribute &row, bool deduction)
{
    const JobAttribute *attribute = tag.find(row.name);
    if (!attribute || row.value == Value::Kept || row.value == Value::Unread)
        return;
    if (isRegistered(row)) {
        if (row.value == Value::RegisteredPrice || !deduction)
            checkRegistered(context, row.value, *attribute);
    } else if (context.isOff(row.setting)) {
        context.note(attribute->place, Code::SwitchedOff,
                     filled(phrase::attributeNotPrinted, row.name), row.setting,
                     context.method->group);
    } else {
        checkPrinted(context, tag, row, *attribute);
    }
}

/// What an element lacks and what it has too much.
Gaps gapsOf(const Context &context, const Tag &tag, const Element &element,
            const QList<Attribute> &known)
{
    const bool deduction = isDeduction(tag, known);
    Gaps gaps;
    QStringList names;
    for (const Attribute &row : known) {
        names.append(row.name);
        const JobAttribute *attribute = tag.find(row.name);
        if (attribute)
            gaps.read.append(attribute);
        else
            gaps.unused.append(row.name);
        if (isMissing(context, tag, row))
            (row.setting.isEmpty() ? gaps.figures : gaps.texts).append(row.name);
        else if (isRegistered(row) && !deduction && (!attribute || attribute->value.isEmpty()))
            gaps.registered.append(row.name);
    }
    for (const JobAttribute &attribute : tag.attributes) {
        if (!element.anyAttribute && !names.contains(attribute.name))
            gaps.unread.append(&attribute);
    }
    return gaps;
}

/// Whether an attribute's name is one of another element's or document's, or means such a one.
bool isNameElsewhere(const QString &name)
{
    static const QStringList names = [] {
        QStringList all;
        for (const Attribute &row : vocabulary::attributes())
            all.append(row.name);
        return all;
    }();
    return names.contains(name, Qt::CaseInsensitive) || !synonymOf(name, names).isEmpty();
}

/// Whether what an attribute says stands on the paper all the same, or nowhere on purpose: under
/// the right name beside it, or one that the document keeps for itself.
bool isSaidOtherwise(const JobAttribute &attribute, const QList<Attribute> &known,
                     const QList<const JobAttribute *> &read)
{
    QStringList names;
    for (const Attribute &row : known)
        names.append(row.name);
    const QString meant = nearestName(attribute.name, names);
    const auto isKept = [&](const Attribute &row) {
        return row.name == meant && (row.value == Value::Unread || row.value == Value::Kept);
    };
    const auto isSame = [&](const JobAttribute *beside) {
        return beside->name == meant && beside->value == attribute.value;
    };
    return std::any_of(known.begin(), known.end(), isKept)
           || std::any_of(read.begin(), read.end(), isSame);
}

/// Whether "headers" stands in the job, which prints the printer's name.
bool printsPrinterName(const Context &context)
{
    return std::any_of(context.job.tags.begin(), context.job.tags.end(),
                       [](const Tag &tag) { return tag.name == element::headers; });
}

/// Notes figures that nothing reads, and for which nothing is missing.
void noteLost(Context &context, const Tag &tag, const QList<const JobAttribute *> &figures,
              const QStringList &unused)
{
    if (figures.isEmpty())
        return;
    QStringList names;
    for (const JobAttribute *figure : figures.first(std::min(mostNames, figures.size())))
        names.append(figure->name);
    const bool one = figures.size() == 1;
    context.figureLost.insert(&tag);
    context.note(figures.constFirst()->place, Code::LostFigure, quoted(names), tag.name,
                 vocabulary::titleOf(*context.method),
                 one ? phrase::figureLost : phrase::figuresLost,
                 one ? orNearest(names.constFirst(), unused) : QString());
}

/// Notes what nothing reads, together with what is missing for it: takes that out of the gaps.
void noteUnread(Context &context, const Tag &tag, const Element &element,
                const QList<Attribute> &known, Gaps &gaps)
{
    QList<const JobAttribute *> lost;
    for (const JobAttribute *attribute : std::as_const(gaps.unread)) {
        QString meant = nearestName(attribute->name, gaps.unused);
        const bool isNear = !meant.isEmpty();
        const QStringList missing = gaps.figures + gaps.registered;
        const bool isOnly = gaps.unread.size() == 1 && missing.size() == 1;
        if (!isNear && isOnly && !isNameElsewhere(attribute->name))
            meant = missing.constFirst();
        const bool registered = gaps.registered.removeOne(meant);
        if (registered && meant == name::price && isDeduction(attribute->value))
            gaps.registered.clear(); // a deduction has nothing else
        const bool printer =
            tag.name == element::printers && meant == name::name && printsPrinterName(context);
        if (gaps.figures.removeOne(meant) || registered || printer)
            context.note(attribute->place, Code::MisspeltAttribute, attribute->name, tag.name,
                         filled(isNear ? phrase::meantMissing : phrase::otherMissing, meant));
        else if (element.prints && isFigure(tag, *attribute)
                 && !isSaidOtherwise(*attribute, known, gaps.read))
            lost.append(attribute);
        else
            context.note(attribute->place, Code::UnknownAttribute, attribute->name, tag.name,
                         orName(meant));
        gaps.unused.removeOne(meant);
        gaps.texts.removeOne(meant);
    }
    noteLost(context, tag, lost, gaps.unused);
}

/// Whether a finding says something of an element's figures, so that what they come to is not
/// known.
bool isOfFigures(const Finding &finding)
{
    return finding.code >= Code::LostFigure && finding.code <= Code::FiscalDepartment
           && finding.code != Code::MissingText && finding.code != Code::DecimalComma;
}

/// The cancelled documents: their count and total by name, then three attributes for each, by
/// place.
void checkCancelled(Context &context, const Tag &tag)
{
    const auto nameAt = [&](qsizetype i) {
        return i < tag.attributes.size() ? tag.attributes[i].name : QString();
    };
    const bool headed = (nameAt(0) == name::number && nameAt(1) == name::totals)
                        || (nameAt(0) == name::totals && nameAt(1) == name::number);
    if (!headed) {
        context.note(tag.place, Code::CancelledList, phrase::listBeginsWrong);
        return;
    }
    const qsizetype listed = tag.attributes.size() - 2;
    if (listed % 3 != 0) {
        context.note(tag.place, Code::CancelledList,
                     filled(phrase::listNotInThrees, QString::number(listed)));
        return;
    }
    const JobAttribute *number = tag.find(name::number);
    bool isNumber = false;
    const int count = number->value.toInt(&isNumber);
    if (isNumber && count != listed / 3)
        context.note(
            number->place, Code::CancelledList,
            filled(phrase::listMiscounted, QString::number(count), QString::number(listed / 3)));
}

} // namespace

void checkAttributes(Context &context, const Tag &tag, const Element &element)
{
    const QList<Attribute> &known = vocabulary::attributesOf(tag.name, context.method->document);
    const qsizetype before = context.findings.size();
    const bool deduction = isDeduction(tag, known);
    Gaps gaps = gapsOf(context, tag, element, known);
    for (const Attribute &row : known)
        checkKnown(context, tag, row, deduction);
    noteUnread(context, tag, element, known, gaps);
    if (tag.name == element::cancelledsummary)
        gaps.figures.clear(); // the list begins at the wrong place then, which is said of it
    if (!noteContents(context, tag)) {
        noteIncomplete(context, tag, gaps.registered);
        noteMissing(context, tag, Code::MissingAttribute, gaps.figures);
        noteMissing(context, tag, Code::MissingText, gaps.texts);
    }
    if (element.anyAttribute) {
        for (const JobAttribute &attribute : tag.attributes) {
            if (!std::any_of(known.begin(), known.end(),
                             [&](const Attribute &row) { return row.name == attribute.name; }))
                checkText(context, tag, attribute);
        }
    }
    if (tag.name == element::cancelledsummary)
        checkCancelled(context, tag);
    if (std::any_of(context.findings.cbegin() + before, context.findings.cend(), isOfFigures))
        context.doubtful.insert(&tag);
}

void noteUnread(Context &context, const Tag &tag, const JobAttribute &attribute,
                const QStringList &unused)
{
    context.note(attribute.place, Code::UnknownAttribute, attribute.name, tag.name,
                 orName(nearestName(attribute.name, unused)));
}

} // namespace korvel::check

// The attributes of an element: missing, unread, and each by what it is to the document.
#include "companions/check/context.h"
#include "companions/check/mojibake.h"
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
    QStringList unused; // what the document would read
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
    const bool mojibake = !beforeMojibake(attribute.value).isEmpty(); // and so no number
    if (row.value == Value::Amount && !mojibake)
        checkAmount(context, attribute);
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
        if (!attribute)
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

/// Notes what nothing reads, together with what is missing for it: takes that out of the gaps.
void noteUnread(Context &context, const Tag &tag, Gaps &gaps)
{
    for (const JobAttribute *attribute : std::as_const(gaps.unread)) {
        QString meant = nearestName(attribute->name, gaps.unused);
        const QString question = orName(meant);
        const bool isNear = !meant.isEmpty();
        const QStringList missing = gaps.figures + gaps.registered;
        if (!isNear && gaps.unread.size() == 1 && missing.size() == 1)
            meant = missing.constFirst();
        gaps.unused.removeOne(meant);
        gaps.texts.removeOne(meant);
        const bool registered = gaps.registered.removeOne(meant);
        if (registered && meant == name::price && isDeduction(attribute->value))
            gaps.registered.clear(); // a deduction has nothing else
        if (gaps.figures.removeOne(meant) || registered)
            context.note(attribute->place, Code::MisspeltAttribute, attribute->name, tag.name,
                         filled(isNear ? phrase::meantMissing : phrase::otherMissing, meant));
        else
            context.note(attribute->place, Code::UnknownAttribute, attribute->name, tag.name,
                         question);
    }
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
    const QList<Attribute> known = vocabulary::attributesOf(tag.name, context.method->document);
    const bool deduction = isDeduction(tag, known);
    Gaps gaps = gapsOf(context, tag, element, known);
    for (const Attribute &row : known)
        checkKnown(context, tag, row, deduction);
    noteUnread(context, tag, gaps);
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
}

void noteUnread(Context &context, const Tag &tag, const JobAttribute &attribute,
                const QStringList &unused)
{
    context.note(attribute.place, Code::UnknownAttribute, attribute.name, tag.name,
                 orName(nearestName(attribute.name, unused)));
}

} // namespace korvel::check

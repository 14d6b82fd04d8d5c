// A job's elements: its method, their order, and which of them the document prints.
#include "companions/check/checks.h"
#include "companions/check/context.h"
#include "companions/check/words.h"

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Documents;
using vocabulary::Element;
namespace attribute = vocabulary::attribute;
namespace element = vocabulary::element;

/// The documents that print something for an element.
Documents printedIn(const QString &element)
{
    Documents documents = 0;
    for (const Element &row : vocabulary::elements()) {
        if (row.name == element && row.prints)
            documents |= row.documents;
    }
    return documents;
}

void checkBeforeMethod(Context &context, const Tag &tag, bool isRoot)
{
    const bool holder = vocabulary::isElement(tag.name)
                            ? tag.holdsOthers && tag.attributes.isEmpty()
                            : tag.holdsOthers || isRoot;
    if (!holder) {
        context.note(tag.place, Code::BeforeMethod, tag.name);
        context.lost.insert(&tag);
    } else if (isRoot) {
        noteContents(context, tag);
    }
}

/// Whether a tag carries a figure.
bool carriesFigure(const Tag &tag)
{
    return hundredthsOf(tag.text).has_value()
           || std::any_of(tag.attributes.begin(), tag.attributes.end(),
                          [&](const JobAttribute &own) { return isFigure(tag, own); });
}

/// An element that the document does not know.
void checkIgnored(Context &context, const Tag &tag, bool isRoot)
{
    QStringList own; // elements of the document, without those that most share
    QStringList shared;
    for (const Element &row : vocabulary::elements()) {
        if ((row.documents & context.method->document) != 0)
            (vocabulary::isShared(row) ? shared : own).append(row.name);
    }
    if (vocabulary::isElement(tag.name)) {
        const Documents elsewhere = printedIn(tag.name);
        const Code code = carriesFigure(tag) ? Code::LostElement : Code::IgnoredElement;
        if (code == Code::LostElement)
            context.lost.insert(&tag);
        context.note(tag.place, code, tag.name, vocabulary::titleOf(*context.method),
                     elsewhere == 0 ? QString()
                                    : filled(phrase::printedIn, vocabulary::titlesOf(elsewhere)),
                     orLonger(tag.name, own));
        return;
    }
    const bool holder = isRoot || (tag.holdsOthers && tag.attributes.isEmpty());
    if (holder && !context.spelledOut.contains(&tag)) {
        noteContents(context, tag);
        return;
    }
    const bool isFault = std::any_of(context.job.faults.begin(), context.job.faults.end(),
                                     [&](const Fault &fault) { return fault.place == tag.place; });
    context.lost.insert(&tag);
    if (isFault)
        return; // a tag that is never closed may be meant to close another one
    context.note(tag.place, Code::UnknownElement, tag.name, orSimilar(tag.name, own, shared));
}

/// An element that the document knows.
void checkElement(Context &context, const Tag &tag, const Element &element)
{
    if (context.method->document == vocabulary::FullOrder && tag.name == element::receipe) {
        const JobAttribute *name = tag.find(attribute::name);
        if (name && name->value.startsWith(u'='))
            return; // left out on purpose
    }
    const bool headers = tag.name == element::headers;
    if (context.isOff(element.setting) && !(headers && tag.attributes.isEmpty())) {
        context.note(tag.place, Code::SwitchedOff,
                     headers ? QString(phrase::onlyPrinterName)
                             : filled(phrase::elementNotPrinted, tag.name),
                     element.setting, context.method->group);
        return;
    }
    checkAttributes(context, tag, element);
}

/// False when the job ends at this tag.
bool checkTag(Context &context, const Tag &tag, bool isRoot)
{
    if (context.selections.contains(&tag))
        return checkMethod(context, tag);
    if (context.method && standsForAttribute(context, tag))
        return true;
    if (!context.method)
        checkBeforeMethod(context, tag, isRoot);
    else if (const Element *row = vocabulary::findElement(tag.name, context.method->document))
        checkElement(context, tag, *row);
    else
        checkIgnored(context, tag, isRoot);
    return true;
}

} // namespace

QList<Finding> checkJob(const QByteArray &job, const SettingsFile *settings,
                        const recode::CodePage *charset)
{
    const Job read = readJob(job);
    // All would be switched off when nothing is read of the settings: that is said of them alone.
    const SettingsFile *usable = settings && settings->isLost() ? nullptr : settings;
    Context context{read, usable, charset};
    gatherContents(context);
    gatherMethods(context);
    for (const Fault &fault : read.faults)
        context.findings.append({fault.place, fault.code, fault.text, {}, 0});
    const bool goesOn = std::all_of(read.tags.begin(), read.tags.end(), [&](const Tag &tag) {
        return checkTag(context, tag, &tag == &read.tags.constFirst());
    });
    if (!context.method && goesOn && read.faults.isEmpty()) {
        context.findings.clear(); // all of them are before the method that is missing
        context.note({}, Code::NoMethod, phrase::beginWithMethod);
    }
    checkSums(context);
    // The engine lays out what the job says, which need not be the document that is meant.
    const bool asSaid =
        std::all_of(context.selections.begin(), context.selections.end(),
                    [](const Selection &selection) { return selection.said == selection.read; });
    if (usable && asSaid)
        checkLines(context, read.tags);
    sortByPlace(context.findings);
    return context.findings;
}

} // namespace korvel::check

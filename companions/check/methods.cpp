// The method of a job: what selects the document, what is meant to, and what the elements fit.
#include "companions/check/context.h"
#include "companions/check/words.h"
#include "companions/shared/nearest.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

using vocabulary::Attribute;
using vocabulary::Document;
using vocabulary::Documents;
using vocabulary::Element;
using vocabulary::Method;
namespace attribute = vocabulary::attribute;
namespace element = vocabulary::element;

using Part = QList<const Tag *>; // the elements from a method to the next

/// How the elements of a part fit a document, those apart that most documents share.
struct Fit
{
    qsizetype ignored = 0;
    qsizetype odd = 0; // known, with attributes of other documents, or without several of its own
    qsizetype lacking = 0; // known, without one attribute
};

void addTo(Fit &fit, const Tag &tag, Document document)
{
    const Element *element = vocabulary::findElement(tag.name, document);
    if (!element) {
        ++fit.ignored;
        return;
    }
    const auto &known = vocabulary::attributesOf(tag.name, document);
    const bool deduction = isDeduction(tag, known);
    const auto lacking = std::count_if(known.begin(), known.end(), [&](const Attribute &row) {
        return !vocabulary::isOptional(row) && !tag.find(row.name)
               && !(deduction && isRegistered(row));
    });
    const bool foreign = std::any_of(
        tag.attributes.begin(), tag.attributes.end(), [&](const JobAttribute &candidate) {
            return !element->anyAttribute
                   && std::none_of(known.begin(), known.end(),
                                   [&](const Attribute &row) { return row.name == candidate.name; })
                   && isAttributeOf(tag.name, candidate.name);
        });
    if (foreign || lacking > 1)
        ++fit.odd;
    else if (lacking == 1)
        ++fit.lacking;
}

Fit fitOf(const Part &own, Document document)
{
    Fit fit;
    for (const Tag *tag : own)
        addTo(fit, *tag, document);
    return fit;
}

bool printsTotal(Document document)
{
    return std::any_of(vocabulary::elements().begin(), vocabulary::elements().end(),
                       [&](const Element &row) {
                           return row.name.startsWith(element::total) && row.prints
                                  && (row.documents & document) != 0;
                       });
}

bool has(const Part &part, QLatin1StringView name)
{
    return std::any_of(part.begin(), part.end(), [&](const Tag *tag) { return tag->name == name; });
}

/// The documents that an element with a serial number speaks of; none without one.
Documents spokenOf(const Part &part)
{
    return has(part, element::receipt)    ? vocabulary::receipts | vocabulary::fiscal
           : has(part, element::invoice)  ? vocabulary::invoices
           : has(part, element::delivery) ? Documents(vocabulary::DeliveryNote)
                                          : 0;
}

/// Another method, whose document knows all elements of a part, where most are not as the selected
/// one has them; null when there is none.
const Method *betterFor(const Part &part, const Method &selected)
{
    Part own;
    std::copy_if(part.begin(), part.end(), std::back_inserter(own), [](const Tag *tag) {
        return vocabulary::isElement(tag->name) && !vocabulary::isSharedName(tag->name);
    });
    const Documents spoken = spokenOf(part);
    const Fit here = fitOf(own, selected.document);
    const bool textsIgnored = (selected.document & vocabulary::shared) == 0
                              && own.size() < part.size(); // which no fiscal receipt prints
    const qsizetype wrong = here.ignored + here.odd + (textsIgnored ? here.lacking : 0);
    const auto rows = std::count_if(own.begin(), own.end(), [](const Tag *tag) {
        return !tag->name.startsWith(element::total) && tag->name != element::notPaid;
    });
    const bool most = 2 * wrong > rows;
    if (wrong < 2 || (!most && (spoken == 0 || (spoken & selected.document) != 0)))
        return nullptr;

    const bool hasTotal = has(own, element::total) || has(own, element::totals);
    const Method *best = nullptr;
    qsizetype fewest = wrong / 4 + 1;
    for (const Method &method : vocabulary::methods()) {
        const Fit fit = fitOf(own, method.document);
        const qsizetype odd = fit.odd + fit.lacking;
        const bool speaks = (spoken & method.document) != 0;
        const bool better =
            odd < fewest || (odd == fewest && best && speaks && (spoken & best->document) == 0);
        if (method.document == selected.document || fit.ignored > 0 || !better
            || (printsTotal(method.document) && !hasTotal) || (!most && !speaks))
            continue;
        fewest = odd;
        best = &method;
    }
    return best;
}

/// Which of two documents fits a part better; the first when both do alike.
const Method *closer(const Part &part, const Method *first, const Method *second)
{
    Part known;
    std::copy_if(part.begin(), part.end(), std::back_inserter(known),
                 [](const Tag *tag) { return vocabulary::isElement(tag->name); });
    const Fit a = fitOf(known, first->document);
    const Fit b = fitOf(known, second->document);
    return a.ignored + a.odd + a.lacking <= b.ignored + b.odd + b.lacking ? first : second;
}

/// What names a method in an element: its "name", or what is meant for it.
struct Naming
{
    const Method *method = nullptr; // null when no document is called so
    const JobAttribute *attribute = nullptr;
    const Tag *tag = nullptr; // whose text it is
};

Naming namingOf(const Context &context, const Tag &tag)
{
    if (const JobAttribute *name = tag.find(attribute::name))
        return {vocabulary::findMethod(name->value), name};
    for (const JobAttribute &other : tag.attributes) {
        const Method *method = vocabulary::findMethod(other.value);
        if (method || !shared::nearest(other.name, {attribute::name}).isEmpty())
            return {method, &other};
    }
    const Tag *inside = context.spelledOut.value(&tag).first;
    const Tag *bearer = inside ? inside : &tag;
    if (!bearer->text.isEmpty())
        return {vocabulary::findMethod(bearer->text.trimmed()), nullptr, bearer};
    return {};
}

/// Whether an element is called almost like the method, whatever its prefix.
bool isLikeMethod(const Tag &tag)
{
    const QString name = tag.name.mid(tag.name.indexOf(u':') + 1);
    return !shared::nearest(name, {element::method}).isEmpty();
}

/// What stands for the method of a job that has none: an element of almost that name, or one with
/// the name of a document in it.
Selection standIn(const Context &context, const Tag &tag)
{
    const Method *said = vocabulary::findMethod(tag.name);
    if (!said)
        said = namingOf(context, tag).method;
    for (const JobAttribute &candidate : tag.attributes)
        said = said ? said : vocabulary::findMethod(candidate.value);
    const bool alone = !tag.holdsOthers || context.spelledOut.contains(&tag);
    return {said, said, said || (isLikeMethod(tag) && alone)};
}

/// The method that a name may stand for.
QString orMethod(const QString &name)
{
    QStringList names;
    for (const Method &row : vocabulary::methods())
        names.append(row.name);
    const QString near = orNearest(name, names);
    return near.isEmpty() ? orName(shared::nearest(QString(u"print"_s + name), names)) : near;
}

/// Notes a method whose name is not where it is read; false when the job ends there.
bool noteUnnamed(Context &context, const Tag &tag, const Naming &naming)
{
    Place place = tag.place;
    QString words;
    if (naming.attribute) {
        place = naming.attribute->place;
        words = orName(attribute::name);
    } else if (naming.tag) {
        const QString text = naming.tag->text.trimmed();
        place = naming.tag->textPlace;
        words = naming.method ? filled(phrase::writeMethod, text) : orMethod(text);
    }
    context.note(place, Code::UnknownMethod, phrase::noMethodName, words);
    return naming.method != nullptr;
}

} // namespace

void gatherMethods(Context &context)
{
    const QList<Tag> &tags = context.job.tags;
    const bool hasMethod = std::any_of(tags.begin(), tags.end(),
                                       [](const Tag &tag) { return tag.name == element::method; });
    QList<std::pair<const Tag *, Part>> parts;
    for (const Tag &tag : tags) {
        Selection selection;
        if (hasMethod && tag.name == element::method) {
            const Method *said = namingOf(context, tag).method;
            selection = {said, said, true};
        } else if (!hasMethod && parts.isEmpty()) {
            selection = standIn(context, tag);
        }
        if (selection.selects) {
            context.selections.insert(&tag, selection);
            parts.append(std::pair(&tag, Part()));
        } else if (!parts.isEmpty() && !standsForAttribute(context, tag)) {
            parts.last().second.append(&tag);
        }
    }
    const Method *before = nullptr;
    for (const auto &[tag, part] : std::as_const(parts)) {
        Selection &selection = context.selections[tag];
        if (!selection.said)
            return; // the job ends here
        if (before)
            selection.read = closer(part, selection.said, before);
        else if (const Method *better = betterFor(part, *selection.said))
            selection.read = better;
        before = selection.read;
    }
}

bool checkMethod(Context &context, const Tag &tag)
{
    const Selection selection = context.selections.value(&tag);
    const Naming naming = namingOf(context, tag);
    const JobAttribute *name = tag.find(attribute::name);
    if (tag.name != element::method) {
        context.note(tag.place, Code::NoMethod,
                     selection.said && !isLikeMethod(tag)
                         ? filled(phrase::writeMethodFirst, selection.said->name)
                         : filled(phrase::misspeltMethod, tag.name));
        context.method = selection.read;
        return context.method != nullptr;
    }
    if (!name && !noteUnnamed(context, tag, naming))
        return false;
    if (name && !naming.method) {
        context.note(name->place, Code::UnknownMethod,
                     filled(phrase::noDocument, quoted(name->value)), orMethod(name->value));
        return false;
    }
    if (context.method)
        context.note(tag.place, Code::SecondMethod, vocabulary::titleOf(*context.method));
    else if (name && selection.read != selection.said)
        context.note(name->place, Code::WrongMethod, vocabulary::titleOf(*selection.read),
                     vocabulary::titleOf(*selection.said), selection.read->name);
    context.method = selection.read;
    for (const JobAttribute &other : tag.attributes) {
        if (other.name != attribute::name && &other != naming.attribute)
            noteUnread(context, tag, other, {attribute::name});
    }
    if (!naming.tag)
        noteContents(context, tag);
    return true;
}

} // namespace korvel::check

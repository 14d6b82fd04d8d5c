// The rows of a document beside each other: what they come to, the total, the tax.
#include "companions/check/context.h"
#include "companions/check/words.h"
#include "vocabulary/numbers.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

namespace element = vocabulary::element;
namespace name = vocabulary::attribute;
using vocabulary::Document;
using vocabulary::Documents;

// The documents that print a total. The printer makes that of a fiscal receipt itself, but jobs
// often carry it.
constexpr Documents withTotal = vocabulary::FullOrder | vocabulary::receipts;

/// A number with its decimals: 0.25 is 25 hundredths.
struct Scaled
{
    qint64 units = 0;
    qint64 one = 1; // units of a whole
};

/// A quantity or a rate of a few digits; nothing for another text.
std::optional<Scaled> scaled(QString text)
{
    constexpr qsizetype mostDigits = 6;
    text = text.trimmed().replace(u',', u'.');
    const qsizetype length = text.size();
    const qsizetype point = text.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : text.size() - point - 1;
    bool isNumber = false;
    Scaled number{text.remove(u'.').toLongLong(&isNumber)};
    if (!isNumber || text.size() > mostDigits || text.size() + 1 < length)
        return {}; // more than one mark are no decimals
    for (qsizetype i = 0; i < decimals; ++i)
        number.one *= 10;
    return number;
}

/// An attribute as an amount; nothing when there is none.
std::optional<qint64> amountOf(const Tag &tag, QLatin1StringView attribute)
{
    constexpr qint64 most = 10'000'000'000; // hundredths; a product with a scaled number fits
    const JobAttribute *found = tag.find(attribute);
    const auto amount = found ? hundredthsOf(found->value) : std::nullopt;
    return amount && std::abs(*amount) < most ? amount : std::nullopt;
}

QString shown(qint64 hundredths)
{
    const QString digits = QString::number(std::abs(hundredths)).rightJustified(3, u'0');
    return (hundredths < 0 ? u"-"_s : QString()) + digits.chopped(2) + u'.' + digits.right(2);
}

/// Whether an amount is the product, rounded up or down to a hundredth, maybe in several parts.
bool isProduct(qint64 amount, Scaled factor, qint64 hundredths, qint64 parts = 1)
{
    return std::abs(factor.units * hundredths - amount * factor.one) < factor.one * parts;
}

/// The rounded product.
qint64 product(Scaled factor, qint64 hundredths)
{
    const qint64 units = factor.units * hundredths;
    return (units + (units < 0 ? -factor.one : factor.one) / 2) / factor.one;
}

/// One document of a job: from its method to the next.
class Rows
{
public:
    explicit Rows(Context &selected)
        : context(selected)
        , document(selected.method->document)
    {
    }

    void add(const Tag &tag)
    {
        if (context.lost.contains(&tag)) {
            addLost(tag);
            return;
        }
        // A figure that nothing reads may be a discount, wherever it stands.
        const bool counts = isRow(tag) || tag.name.startsWith(element::total);
        known &= !(counts ? context.doubtful : context.figureLost).contains(&tag);
        if (isRow(tag))
            addRow(tag);
        else if (tag.name == element::total)
            setTotal(tag, total && !behind && rows > 0);
        else if (tag.name == element::totals && (document & vocabulary::invoices) != 0)
            addTaxLine(tag);
    }

    void close(const Tag &method)
    {
        const bool invoice = (document & vocabulary::invoices) != 0;
        const bool printed = invoice || (document & withTotal) != 0;
        if (rows == 0 || (!total && (!printed || maybeTotal)))
            return;
        if (!total)
            context.note(method.place, Code::NoTotal, vocabulary::titleOf(*context.method),
                         invoice ? element::totals : element::total);
        else if (behind && printed)
            context.note(behind->place, Code::BehindTotal, behind->name);
        else if (known)
            checkTotal(invoice ? name::total : name::price);
    }

private:
    [[nodiscard]] bool isRow(const Tag &tag) const
    {
        if ((document & (vocabulary::summaries | vocabulary::SummaryFiscalReceipt)) != 0)
            return tag.name == element::receipe_type;
        const Documents others = vocabulary::itemised | vocabulary::FiscalReceipt;
        return (tag.name == element::receipe && (document & others) != 0)
               || (document == vocabulary::FullOrder && tag.name == element::variant);
    }

    /// What is lost may be a row, or the total; it is said of it.
    void addLost(const Tag &tag)
    {
        known = false;
        maybeTotal |= !vocabulary::isElement(tag.name) || tag.name.startsWith(element::total);
    }

    /// The last one is the document's; those above it are of parts.
    void setTotal(const Tag &tag, bool again)
    {
        if (again && (document & withTotal) != 0)
            context.note(tag.place, Code::SecondTotal);
        total = &tag;
        behind = nullptr;
    }

    void addRow(const Tag &tag)
    {
        const JobAttribute *text = tag.find(name::name);
        if (document == vocabulary::FullOrder && text && text->value.startsWith(u'='))
            return; // left out on purpose
        ++rows;
        if (total && !behind)
            behind = &tag;
        const bool itemised = (document & vocabulary::itemised) != 0;
        const QLatin1StringView attribute = itemised ? name::totalPrice : name::price;
        auto amount = amountOf(tag, attribute);
        if (amount && *amount >= 0 && document == vocabulary::FiscalReceipt)
            amount = registered(tag, *amount);
        known &= (amount || isFree(tag)) && !isLeftOut(tag, amount.value_or(0));
        sum += amount.value_or(0);
        if (amount && itemised)
            checkRow(tag, *amount);
    }

    /// Whether a row has no amount on purpose.
    [[nodiscard]] bool isFree(const Tag &tag) const
    {
        const auto isEmpty = [&](QLatin1StringView attribute) {
            const JobAttribute *found = tag.find(attribute);
            return found && found->value.isEmpty();
        };
        return (document & vocabulary::fiscal) == 0 && isEmpty(name::price)
               && ((document & vocabulary::itemised) == 0 || isEmpty(name::totalPrice));
    }

    /// Whether a row is left out of an item at a price: that may be taken off, or not.
    static bool isLeftOut(const Tag &tag, qint64 amount)
    {
        const JobAttribute *quantity = tag.find(name::quantity);
        return tag.name == element::variant && amount > 0
               && !(quantity && vocabulary::numberIn(quantity->value).value_or(0) > 0);
    }

    /// What a sale row comes to; a deduction is its price, whatever its quantity.
    std::optional<qint64> registered(const Tag &tag, qint64 price)
    {
        const JobAttribute *number = tag.find(name::number);
        const auto quantity = number ? scaled(number->value) : std::nullopt;
        if (!quantity || quantity->units <= 0)
            return {};
        if (quantity->units * price % quantity->one != 0)
            ++rounded;
        return product(*quantity, price);
    }

    /// A row's quantity times its price. What is left out of an item counts either way.
    void checkRow(const Tag &tag, qint64 amount)
    {
        const JobAttribute *number = tag.find(name::number);
        const auto quantity = number ? scaled(number->value) : std::nullopt;
        const auto price = amountOf(tag, name::price);
        if (!quantity || !price || context.doubtful.contains(&tag)
            || isProduct(amount, *quantity, *price)
            || (tag.name == element::variant && isProduct(-amount, *quantity, *price)))
            return;
        known = false;
        context.doubtful.insert(&tag);
        context.note(tag.find(name::totalPrice)->place, Code::RowSum, quoted(number->value),
                     quoted(tag.find(name::price)->value), shown(product(*quantity, *price)),
                     name::totalPrice, quoted(tag.find(name::totalPrice)->value));
    }

    void addTaxLine(const Tag &tag)
    {
        setTotal(tag, false);
        ++taxLines;
        const auto whole = amountOf(tag, name::total);
        const auto net = amountOf(tag, name::taxable);
        const auto tax = amountOf(tag, name::tax);
        known &= whole && net;
        totals += whole.value_or(0);
        taxable += net.value_or(0);
        if (net && tax)
            checkTax(tag, *net, *tax, whole);
    }

    /// The tax may be rounded in each row.
    void checkTax(const Tag &tag, qint64 net, qint64 tax, std::optional<qint64> whole)
    {
        const auto value = [&](QLatin1StringView attribute) { return tag.find(attribute)->value; };
        const JobAttribute *spelt = tag.find(name::taxrate);
        auto rate = scaled(spelt ? spelt->value.trimmed().remove(u'%') : QString());
        if (rate)
            rate->one *= 100; // per cent
        const auto note = [&](const QString &factors, qint64 result, QLatin1StringView attribute) {
            known = false;
            context.doubtful.insert(&tag);
            context.note(tag.find(attribute)->place, Code::TaxSum, factors, shown(result),
                         attribute, quoted(value(attribute)));
        };
        if (rate && !isProduct(tax, *rate, net, std::max<qint64>(rows, 1)))
            note(filled(phrase::taxOfRate, quoted(spelt->value), quoted(value(name::taxable))),
                 product(*rate, net), name::tax);
        else if (whole && net + tax != *whole)
            note(filled(phrase::taxableAndTax, quoted(value(name::taxable)),
                        quoted(value(name::tax))),
                 net + tax, name::total);
    }

    /// The rows beside the total; those of an invoice have tax in them, or not.
    void checkTotal(QLatin1StringView attribute)
    {
        const bool invoice = (document & vocabulary::invoices) != 0;
        const auto amount = invoice ? std::optional(totals) : amountOf(*total, attribute);
        if (!amount || std::abs(sum - *amount) <= rounded || (invoice && sum == taxable))
            return;
        const JobAttribute &said = *total->find(attribute);
        context.doubtful.insert(total);
        context.note(said.place, Code::TotalSum, shown(sum),
                     taxLines > 1
                         ? filled(phrase::taxLinesCome, shown(*amount))
                         : filled(phrase::totalIs, attribute, total->name, quoted(said.value)));
    }

    Context &context;
    const Document document;
    const Tag *total = nullptr;  // or an invoice's last tax line
    const Tag *behind = nullptr; // the first row that stands behind it
    qsizetype rows = 0;
    qsizetype taxLines = 0;
    qint64 rounded = 0;      // sale rows that the printer may round up or down
    qint64 sum = 0;          // of the rows
    qint64 totals = 0;       // of an invoice's tax lines
    qint64 taxable = 0;      // likewise
    bool known = true;       // whether all of these are amounts, and nothing is said of one of them
    bool maybeTotal = false; // whether what is lost may be the total
};

} // namespace

void checkSums(Context &context)
{
    std::optional<Rows> document;
    const Tag *method = nullptr;
    QList<const Tag *> lost; // in front of the first method
    for (const Tag &tag : context.job.tags) {
        const vocabulary::Method *read = context.selections.value(&tag).read;
        if (!read && context.selections.contains(&tag))
            return; // the job ends here
        if (read) {
            context.method = read;
            method = &tag;
            document.emplace(context);
            for (const Tag *other : std::exchange(lost, {}))
                document->add(*other);
        } else if (document) {
            document->add(tag);
        } else if (context.lost.contains(&tag)) {
            lost.append(&tag);
        }
    }
    // Where a job selects several documents, nobody knows which row is of which.
    const bool isOnly = context.selections.size() == 1;
    if (document && isOnly && context.job.faults.isEmpty()) // else the rest is not known
        document->close(*method);
}

} // namespace korvel::check

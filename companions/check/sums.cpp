// The rows of a document beside each other: what they come to, the total, the tax.
#include "companions/check/context.h"
#include "companions/check/words.h"

#include <algorithm>

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
    constexpr qsizetype mostDigits = 9;
    text = text.trimmed().replace(u',', u'.');
    const qsizetype point = text.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : text.size() - point - 1;
    bool isNumber = false;
    Scaled number{text.remove(u'.').toLongLong(&isNumber)};
    if (!isNumber || text.size() > mostDigits)
        return {};
    for (qsizetype i = 0; i < decimals; ++i)
        number.one *= 10;
    return number;
}

/// An attribute as an amount; nothing when there is none.
std::optional<qint64> amountOf(const Tag &tag, QLatin1StringView attribute)
{
    constexpr qint64 most = 1'000'000'000'000; // hundredths; so many products fit
    const JobAttribute *found = tag.find(attribute);
    const auto amount = found ? hundredthsOf(found->value) : std::nullopt;
    return amount && std::abs(*amount) < most ? amount : std::nullopt;
}

QString shown(qint64 hundredths)
{
    const QString digits = QString::number(std::abs(hundredths)).rightJustified(3, u'0');
    return (hundredths < 0 ? u"-"_s : QString()) + digits.chopped(2) + u'.' + digits.right(2);
}

/// Whether an amount is the product, rounded up or down to a hundredth.
bool isProduct(qint64 amount, Scaled factor, qint64 hundredths)
{
    return std::abs(factor.units * hundredths - amount * factor.one) < factor.one;
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
        if (isRow(tag))
            addRow(tag);
        else if (tag.name == element::total && !total)
            total = &tag;
        else if (tag.name == element::totals && (document & vocabulary::invoices) != 0)
            addTaxLine(tag);
    }

    void close(const Tag &method)
    {
        const bool invoice = (document & vocabulary::invoices) != 0;
        const bool printed = invoice || (document & withTotal) != 0;
        if (rows == 0 || (!total && !printed))
            return;
        if (!total)
            context.note(method.place, Code::NoTotal, context.method->title,
                         invoice ? element::totals : element::total);
        else if (behind)
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
        const JobAttribute *found = tag.find(attribute);
        auto amount = amountOf(tag, attribute);
        if (amount && *amount >= 0 && document == vocabulary::FiscalReceipt)
            amount = registered(tag, *amount);
        known &= amount || (found && found->value.isEmpty());
        sum += amount.value_or(0);
        if (amount && itemised)
            checkRow(tag, *amount);
    }

    /// What a sale row comes to; a deduction is its price, whatever its quantity.
    static std::optional<qint64> registered(const Tag &tag, qint64 price)
    {
        const JobAttribute *number = tag.find(name::number);
        const auto quantity = number ? scaled(number->value) : std::nullopt;
        return quantity ? std::optional(product(*quantity, price)) : std::nullopt;
    }

    /// A row's quantity times its price. What is left out of an item counts either way.
    void checkRow(const Tag &tag, qint64 amount)
    {
        const JobAttribute *number = tag.find(name::number);
        const auto quantity = number ? scaled(number->value) : std::nullopt;
        const auto price = amountOf(tag, name::price);
        if (!quantity || !price || isProduct(amount, *quantity, *price)
            || (tag.name == element::variant && isProduct(-amount, *quantity, *price)))
            return;
        context.note(tag.find(name::totalPrice)->place, Code::RowSum, quoted(number->value),
                     quoted(tag.find(name::price)->value), shown(product(*quantity, *price)),
                     name::totalPrice, quoted(tag.find(name::totalPrice)->value));
    }

    void addTaxLine(const Tag &tag)
    {
        total = &tag;
        const auto whole = amountOf(tag, name::total);
        const auto net = amountOf(tag, name::taxable);
        const auto tax = amountOf(tag, name::tax);
        known &= whole && net;
        totals += whole.value_or(0);
        taxable += net.value_or(0);
        if (!net || !tax)
            return;
        const auto value = [&](QLatin1StringView attribute) { return tag.find(attribute)->value; };
        const JobAttribute *spelt = tag.find(name::taxrate);
        auto rate = scaled(spelt ? spelt->value.trimmed().remove(u'%') : QString());
        if (rate)
            rate->one *= 100; // per cent
        if (rate && !isProduct(*tax, *rate, *net))
            context.note(
                tag.find(name::tax)->place, Code::TaxSum,
                filled(phrase::taxOfRate, quoted(spelt->value), quoted(value(name::taxable))),
                shown(product(*rate, *net)), name::tax, quoted(value(name::tax)));
        else if (whole && *net + *tax != *whole)
            context.note(tag.find(name::total)->place, Code::TaxSum,
                         filled(phrase::taxableAndTax, quoted(value(name::taxable)),
                                quoted(value(name::tax))),
                         shown(*net + *tax), name::total, quoted(value(name::total)));
    }

    /// The rows beside the total; those of an invoice have tax in them, or not.
    void checkTotal(QLatin1StringView attribute)
    {
        const bool invoice = (document & vocabulary::invoices) != 0;
        const auto amount = invoice ? std::optional(totals) : amountOf(*total, attribute);
        if (amount && sum != *amount && !(invoice && sum == taxable))
            context.note(total->find(attribute)->place, Code::TotalSum, shown(sum), attribute,
                         quoted(shown(*amount)));
    }

    Context &context;
    const Document document;
    const Tag *total = nullptr;  // or an invoice's last tax line
    const Tag *behind = nullptr; // the first row that stands behind it
    qsizetype rows = 0;
    qint64 sum = 0;     // of the rows
    qint64 totals = 0;  // of an invoice's tax lines
    qint64 taxable = 0; // likewise
    bool known = true;  // whether all of these are amounts
};

} // namespace

void checkSums(Context &context)
{
    std::optional<Rows> document;
    const Tag *method = nullptr;
    const auto close = [&] {
        if (document)
            document->close(*method);
        document.reset();
    };
    for (const Tag &tag : context.job.tags) {
        if (tag.name != element::method) {
            if (document)
                document->add(tag);
            continue;
        }
        close();
        const JobAttribute *called = tag.find(name::name);
        context.method = called ? vocabulary::findMethod(called->value) : nullptr;
        if (!context.method)
            return;
        method = &tag;
        document.emplace(context);
    }
    close();
}

} // namespace korvel::check

// Numbers of documents that print them as they are.
#include "companions/check/context.h"
#include "companions/check/synonyms.h"
#include "companions/check/words.h"
#include "vocabulary/numbers.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// An amount of a text document, taken apart.
struct AmountText
{
    bool isNumber = false;
    QChar mark;            // of its decimals, if it has one
    bool hasParts = false; // of a hundredth
    bool isNegative = false;
    QString digits; // in front of the mark
    QString decimals;
};

/// Digits with one mark, behind the last three digits' groups, whose mark is another one; a
/// currency sign or code beside them. No part of the pattern gives back what it took, or long
/// values would be tried in every division.
AmountText amountIn(const QString &value)
{
    static const QRegularExpression amount(
        uR"(^\s*+(?:\p{Sc}|[A-Z]{3})?+\s*+([+-]?+)\s*+(?:\p{Sc}\s*+)?+)"
        uR"((\d++|(?=\.\d)|\d{1,3}([.,'\x{2019}\x{a0}\x{202f} ])\d{3}(?!\d)(?:\3\d{3}(?!\d))*+))"
        uR"((?:(?!\3)([.,])(\d*+))?+\s*+(-?+)\s*+(?:\p{Sc}|[A-Z]{3})?+\s*+$)"_s);
    const auto match = amount.match(value);
    AmountText result;
    result.isNumber = match.hasMatch();
    if (!result.isNumber)
        return result;
    result.isNegative = match.capturedView(1) == "-"_L1 || match.capturedView(6) == "-"_L1;
    result.digits = match.captured(2);
    result.digits.removeIf([](QChar c) { return !c.isDigit(); });
    if (!match.capturedView(4).isEmpty())
        result.mark = match.capturedView(4).front();
    result.decimals = match.captured(5);
    const QString behind = result.decimals.mid(2);
    result.hasParts = std::any_of(behind.begin(), behind.end(), [](QChar c) { return c != u'0'; });
    return result;
}

/// Whether a text has anything of a number: "2 x", "½".
bool hasDigit(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c.isNumber(); });
}

/// Whether an amount has decimals or a currency, which numbers of other things have not.
bool hasMark(const QString &amount)
{
    return std::any_of(amount.begin(), amount.end(), [](QChar c) {
        return c == u'.' || c == u',' || c.category() == QChar::Symbol_Currency;
    });
}

} // namespace

std::optional<qint64> hundredthsOf(const QString &value)
{
    constexpr qsizetype mostDigits = 13; // what the printer registers
    const AmountText amount = amountIn(value);
    if (!amount.isNumber || amount.hasParts || amount.digits.size() > mostDigits)
        return {};
    const QString digits = amount.digits + amount.decimals.leftJustified(2, u'0', true);
    const qint64 hundredths = digits.toLongLong();
    return amount.isNegative ? -hundredths : hundredths;
}

void checkAmount(Context &context, const JobAttribute &attribute)
{
    if (attribute.value.isEmpty())
        return; // empty on purpose
    const AmountText amount = amountIn(attribute.value);
    if (!amount.isNumber)
        context.note(attribute.place, Code::Amount, attribute.name, quoted(attribute.value));
    else if (amount.hasParts)
        context.note(attribute.place, Code::Hundredths, attribute.name, quoted(attribute.value));
    if (amount.mark.isNull() || amount.hasParts || context.mixesMarks)
        return; // parts of a hundredth may be thousands behind a mark
    if (context.decimalMark.isNull())
        context.decimalMark = amount.mark;
    context.mixesMarks = context.decimalMark != amount.mark;
    if (context.mixesMarks)
        context.note(attribute.place, Code::DecimalComma, attribute.name, quoted(attribute.value),
                     context.decimalMark == u',' ? phrase::comma : phrase::point);
}

bool isFigure(const Tag &tag, const JobAttribute &attribute)
{
    if (!hasDigit(attribute.value))
        return false;
    const bool shared = vocabulary::isSharedName(tag.name);
    const bool named = std::any_of(vocabulary::attributes().begin(), vocabulary::attributes().end(),
                                   [&](const vocabulary::Attribute &row) {
                                       return vocabulary::isFigure(row)
                                              && row.name == attribute.name
                                              && (row.element == tag.name || !shared);
                                   });
    return named || (!shared && meansFigure(attribute.name))
           || (hundredthsOf(attribute.value) && hasMark(attribute.value)
               && !meansTime(attribute.name));
}

void checkQuantity(Context &context, const JobAttribute &attribute)
{
    if (!attribute.value.isEmpty() && !hasDigit(attribute.value))
        context.note(attribute.place, Code::Amount, attribute.name, quoted(attribute.value));
}

void checkRate(Context &context, const Tag &tag, const JobAttribute &attribute)
{
    const JobAttribute *tax = tag.find(vocabulary::attribute::tax);
    if (tax && hundredthsOf(tax->value).value_or(0) != 0)
        checkQuantity(context, attribute);
}

void checkVariantQuantity(Context &context, const JobAttribute &attribute)
{
    if (!vocabulary::numberIn(attribute.value))
        context.note(attribute.place, Code::VariantQuantity, quoted(attribute.value));
}

} // namespace korvel::check

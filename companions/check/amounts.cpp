// Numbers of documents that print them as they are.
#include "companions/check/context.h"
#include "companions/check/words.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace korvel::check {

namespace {

/// An amount of a text document, taken apart.
struct AmountText
{
    bool isNumber = false;
    bool hasComma = false;
    bool hasParts = false; // of a hundredth
};

/// Digits with one mark, behind the last three digits' groups; a currency sign or code beside them.
/// No part of the pattern gives back what it took, or long values would be tried in every division.
AmountText amountIn(const QString &value)
{
    static const QRegularExpression amount(
        uR"(^\s*+(?:\p{Sc}|[A-Z]{3})?+\s*+[+-]?+\s*+(?:\p{Sc}\s*+)?+)"
        uR"((?:\d++|(?=\.\d)|\d{1,3}(?:[.,'\x{2019}\x{a0}\x{202f} ]\d{3}(?!\d))++))"
        uR"((?:([.,])(\d*+))?+\s*+-?+\s*+(?:\p{Sc}|[A-Z]{3})?+\s*+$)"_s);
    const auto match = amount.match(value);
    AmountText result;
    result.isNumber = match.hasMatch();
    result.hasComma = match.captured(1) == ","_L1;
    const QString behind = match.captured(2).mid(2);
    result.hasParts = std::any_of(behind.begin(), behind.end(), [](QChar c) { return c != u'0'; });
    return result;
}

} // namespace

void checkAmount(Context &context, const JobAttribute &attribute)
{
    if (attribute.value.isEmpty())
        return; // empty on purpose
    const AmountText amount = amountIn(attribute.value);
    const auto note = [&](Code code) {
        context.note(attribute.place, code, attribute.name, quoted(attribute.value));
    };
    if (!amount.isNumber)
        note(Code::Amount);
    else if (amount.hasParts)
        note(Code::Hundredths);
    if (amount.isNumber && amount.hasComma)
        note(Code::DecimalComma);
}

void checkVariantQuantity(Context &context, const JobAttribute &attribute)
{
    bool isNumber = false;
    attribute.value.toDouble(&isNumber);
    if (!isNumber)
        context.note(attribute.place, Code::VariantQuantity, quoted(attribute.value));
}

} // namespace korvel::check

// Decimals as whole numbers of a very small unit.
#include "companions/paper/amounts.h"

#include <algorithm>

namespace korvel::preview {

namespace {

constexpr int decimals = 9; // of a factor; a product has twice as many
constexpr int digits = 18;

// Of all 128-bit numbers the one without a counterpart of the other sign.
constexpr auto lowest = static_cast<__int128>(static_cast<unsigned __int128>(1) << 127U);

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The digits before and behind a decimal mark.
struct Decimal
{
    QByteArrayView whole;
    QByteArrayView fraction;
    bool marked;
};

Decimal split(QByteArrayView text)
{
    const auto *const mark =
        std::find_if(text.begin(), text.end(), [](char c) { return c == '.' || c == ','; });
    const bool marked = mark != text.end();
    return {{text.begin(), mark}, {marked ? mark + 1 : mark, text.end()}, marked};
}

/// A plain decimal, in units of 10 to the power of -9.
std::optional<__int128> fixedPoint(QByteArrayView text)
{
    const auto [whole, fraction, marked] = split(text);
    if (whole.isEmpty() || (marked && fraction.isEmpty()) || fraction.size() > decimals
        || whole.size() + fraction.size() > digits)
        return {};

    __int128 value = 0;
    for (const QByteArrayView part : {whole, fraction}) {
        for (const char c : part) {
            if (!isDigit(c))
                return {};
            value = value * 10 + (c - '0');
        }
    }
    for (qsizetype i = fraction.size(); i < decimals; ++i)
        value *= 10;
    return value;
}

} // namespace

std::optional<Amount> Amount::of(QByteArrayView hundredths, QByteArrayView quantity)
{
    const auto amount = hundredths.contains(',') ? std::nullopt : fixedPoint(hundredths);
    const auto times = fixedPoint(quantity);
    Units product = 0;
    if (!amount || !times || __builtin_mul_overflow(*amount, *times, &product))
        return {};
    return Amount(product);
}

bool Amount::add(Amount other)
{
    Units sum = 0;
    if (__builtin_add_overflow(units, other.units, &sum) || sum == lowest)
        return false;
    units = sum;
    return true;
}

QString Amount::toString() const
{
    // The digits from the last to the first, the point before the hundredths and what follows them.
    constexpr int behindPoint = 2 + 2 * decimals;
    QString text;
    auto rest = static_cast<unsigned __int128>(units);
    if (units < 0)
        rest = -rest;
    for (int i = 0; i <= behindPoint || rest > 0; ++i) {
        if (i == behindPoint)
            text += u'.';
        text += QChar(u'0' + static_cast<char16_t>(rest % 10));
        rest /= 10;
    }
    if (units < 0)
        text += u'-';
    std::reverse(text.begin(), text.end());
    while (text.endsWith(u'0') && text.size() - text.indexOf(u'.') > 3)
        text.chop(1);
    return text;
}

bool isWholeHundredths(QByteArrayView text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isDigit);
}

bool isQuantity(QByteArrayView text)
{
    const auto [whole, fraction, marked] = split(text);
    return !whole.isEmpty() && marked != fraction.isEmpty()
           && std::all_of(whole.begin(), whole.end(), isDigit)
           && std::all_of(fraction.begin(), fraction.end(), isDigit);
}

} // namespace korvel::preview

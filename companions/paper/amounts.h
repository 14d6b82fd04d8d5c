// The arithmetic of registered rows, exact: hundredths times quantities, and their sum.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace korvel::preview {

/**
 * An amount of money, exact to the digit. Parts of a hundredth are kept: nothing is rounded.
 */
class Amount
{
public:
    /// Zero.
    Amount() = default;

    /**
     * A number of hundredths as the printer takes it, a quantity of times.
     *
     * Both are plain decimals, at most 18 digits of which at most 9 behind the point; a quantity
     * may have a comma. Nothing for any other text, an empty one included, and for a product that
     * is too large.
     */
    static std::optional<Amount> of(QByteArrayView hundredths, QByteArrayView quantity = "1");

    /// Adds an amount; false, and no change, when the sum would be too large.
    bool add(Amount other);

    /// The same amount with the other sign.
    Amount operator-() const { return Amount(-units); }

    /// With a point and at least two decimals: "12.50", "-0.50", "1.005".
    [[nodiscard]] QString toString() const;

private:
    /// Units of which a hundredth has 10 to the power of 18.
    using Units = __int128;

    explicit Amount(Units value)
        : units(value)
    {
    }

    Units units = 0;
};

/// Whether a text is a whole number of hundredths: digits and nothing else.
bool isWholeHundredths(QByteArrayView text);

/// Whether a text is a quantity: a plain decimal of any size, with a point or a comma.
bool isQuantity(QByteArrayView text);

} // namespace korvel::preview

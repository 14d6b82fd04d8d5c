// Rows of any widths and texts: as wide as their columns, with no figure lost.
//
// An input is four widths (quantity, price, total, paper: four bytes each, the lowest first), the
// style (a byte), the fill character (two bytes), and four texts: quantity, price and total, each
// with a byte for its length before it, and as the last one the description. A character is two
// bytes.
#include "fuzz/expect.h"
#include "support/recordingdriver.h"
#include "support/temporaryhome.h"

#include <cstddef>
#include <cstdint>

namespace {

/// Takes an input apart; behind its end there are zeros.
class Input
{
public:
    Input(const std::uint8_t *bytes, std::size_t size)
        : next(bytes)
        , end(bytes + size)
    {
    }

    std::uint8_t byte() { return next == end ? std::uint8_t(0) : *next++; }
    QChar character()
    {
        const int low = byte();
        return QChar(static_cast<char16_t>(low + (byte() << 8)));
    }
    int number()
    {
        std::uint32_t bits = 0;
        for (int shift = 0; shift < 32; shift += 8)
            bits |= std::uint32_t(byte()) << shift;
        return static_cast<int>(bits);
    }
    QString text(qsizetype length)
    {
        QString characters;
        while (characters.size() < length && next != end)
            characters += character();
        return characters;
    }
    QString rest() { return text(end - next); }

private:
    const std::uint8_t *next;
    const std::uint8_t *end;
};

struct Style
{
    const char *name;
    qint64 shorter; // characters that its rows are short of the line
    bool quantity;  // whether it pads the column
    bool price;
    bool total;
    qint64 between; // characters beside the columns and the description
};

// clang-format off
constexpr Style styles[] = {
    {"qdpt",             0, true,  true,  true,  1 },
    {"qxdpt",            0, true,  true,  true,  3 },
    {"qxdtDoubleLine",   0, false, false, true,  0 },
    {"qxd",              0, true,  false, false, 3 },
    {"qd",               2, true,  false, false, 1 },
    {"date-amount-type", 3, false, true,  false, 15},
};
// clang-format on

constexpr qint64 widest = 65536; // no column is padded further

qint64 beyond(const QString &text, qint64 width)
{
    return std::max<qint64>(text.size() - width, 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const TemporaryHome home{""};
    static RecordingDriver driver;

    Input input(data, size);
    const qint64 q = driver.layout.quantityFieldWidth = input.number();
    const qint64 p = driver.layout.priceFieldWidth = input.number();
    const qint64 t = driver.layout.totalPriceFieldWidth = input.number();
    const qint64 W = driver.layout.paperWidth = input.number();
    const Style &style = styles[input.byte() % std::size(styles)];
    const bool doubleLine = style.name == QByteArray("qxdtDoubleLine");
    const bool statement = style.name == QByteArray("date-amount-type");
    const QChar fill = input.character();
    const QString quantity = input.text(input.byte());
    const QString price = input.text(input.byte());
    const QString total = input.text(input.byte());
    const QString description = input.rest();

    const QString row =
        driver.descriptionRow(quantity, description, price, total, fill, style.name);

    expect(row.size() <= 4 * widest + quantity.size() + price.size() + total.size() + 15 + 4,
           "a row has a limit");
    expect(driver.descriptionRow(quantity, description, price, total, fill, "none").isEmpty(),
           "an unknown style lays nothing out");

    // What a style shows of the quantity, the price and the total is there, in this order, and the
    // last of them ends the row.
    qsizetype at = row.indexOf(quantity);
    expect(at >= 0, "no quantity is lost");
    if (style.price || doubleLine) {
        at = row.indexOf(price, at + quantity.size());
        expect(at >= 0, "no price is lost");
    }
    if (style.total)
        expect(row.indexOf(total, at + (doubleLine ? price.size() : 0)) >= 0 && row.endsWith(total),
               "no total is lost");
    if (statement)
        expect(row.endsWith(price), "no amount is lost");

    // A line is as wide as the paper, but for what its style leaves out and for what does not fit
    // its column: that makes it wider.
    QString line = row;
    if (doubleLine) {
        const QString first = quantity + " x " + price + '\n';
        expect(row.startsWith(first), "the first of two lines is quantity and price");
        line = row.mid(first.size());
    }
    const qint64 columns = (style.quantity ? q : 0) + (style.price ? p : 0) + (style.total ? t : 0);
    const qint64 left = W - style.shorter - columns - style.between; // for the description
    if (q >= 0 && p >= 0 && t >= 0 && left >= 0 && W <= widest) {
        qint64 wider = 0;
        wider += style.quantity ? beyond(quantity, q) : 0;
        wider += statement ? beyond(quantity, 15) : 0;
        wider += style.price ? beyond(price, p) : 0;
        wider += style.total ? beyond(total, t) : 0;
        expect(line.size() == W - style.shorter + wider, "a row has its width");
        expect(line.contains(description.left(left)), "a description is cut to its column only");
    }
    return 0;
}

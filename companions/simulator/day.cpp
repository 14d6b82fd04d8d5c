// The rows of fiscal receipts, added up.
#include "companions/simulator/day.h"

namespace korvel::simulator {

namespace {

using preview::Amount;
using preview::Command;

/// What a row registers; nothing where that is no plain number.
std::optional<Amount> amountOf(const Command &row)
{
    if (row.kind == Command::Kind::SaleRow)
        return Amount::of(row.amount, row.quantity);
    const auto amount = Amount::of(row.amount);
    return amount ? std::optional(-*amount) : std::nullopt;
}

} // namespace

void Day::add(const Document &document, const QByteArray &stream)
{
    ++(document.isWhole() ? documents : others);
    if (!document.isWhole() || document.section != preview::Section::Fiscal)
        return;
    ++fiscal;
    preview::Decoder decoder(stream);
    while (const auto command = decoder.next()) {
        if (command->kind != Command::Kind::SaleRow && command->kind != Command::Kind::Deduction)
            continue;
        const auto amount = amountOf(*command);
        if (!amount || !registered.add(*amount))
            ++uncounted;
    }
}

} // namespace korvel::simulator

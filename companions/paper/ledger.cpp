// Which commands open and close a sum, and what each adds to it.
#include "companions/paper/ledger.h"

namespace korvel::preview {

using Kind = Command::Kind;

std::optional<Sum> Ledger::take(const Command &command)
{
    std::optional<Sum> ended;
    if (command.kind == Kind::SectionOpened) {
        ended = end();
        if (command.section == Section::Fiscal)
            open = Sum{command.offset, command.line, {}};
    } else if (command.kind == Kind::SectionClosed && command.section == Section::Fiscal) {
        if (open)
            open->closed = true;
        ended = end();
    } else if (command.kind == Kind::SaleRow) {
        count(Amount::of(command.amount, command.quantity));
    } else if (command.kind == Kind::Deduction) {
        const auto amount = Amount::of(command.amount);
        count(amount ? std::optional(-*amount) : std::nullopt);
    }
    return ended;
}

void Ledger::count(std::optional<Amount> amount)
{
    if (open)
        ++(amount && open->amount.add(*amount) ? open->counted : open->uncounted);
}

} // namespace korvel::preview

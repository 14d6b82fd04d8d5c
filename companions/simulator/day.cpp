// The rows of fiscal receipts, added up.
#include "companions/simulator/day.h"

#include "companions/paper/ledger.h"

namespace korvel::simulator {

void Day::add(const Document &document)
{
    ++(document.isWhole() ? documents : others);
    if (!document.isWhole() || document.section != preview::Section::Fiscal)
        return;
    ++fiscal;
    preview::Ledger ledger;
    preview::Decoder decoder(document.bytes);
    while (const auto command = decoder.next()) {
        if (const auto sum = ledger.take(*command)) {
            uncounted += sum->uncounted;
            if (!registered.add(sum->amount))
                uncounted += sum->counted;
        }
    }
}

} // namespace korvel::simulator

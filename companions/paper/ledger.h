// What fiscal sections register, and what it adds up to.
#pragma once

#include "companions/paper/amounts.h"
#include "companions/paper/decoder.h"

#include <optional>
#include <utility>

namespace korvel::preview {

/// The sum of a fiscal section: of each sale row amount times quantity, less its deductions.
struct Sum
{
    qsizetype offset = 0; // of the command that opens the section, in the stream
    qsizetype line = 1;   // of the stream, there
    Amount amount;
    qsizetype counted = 0;   // rows and deductions that are in it
    qsizetype uncounted = 0; // that are not, as they are no plain numbers, or too large
    bool closed = false;     // false where the stream ends, or another section is opened, before
};

/// Adds up what is registered, section by section. What stands outside a fiscal section is in no
/// sum.
class Ledger
{
public:
    /// Takes the next command; gives the sum of the section that is closed by it, or that it opens
    /// another one in.
    std::optional<Sum> take(const Command &command);

    /// The sum of the section that is open at the end of the stream.
    std::optional<Sum> end() { return std::exchange(open, {}); }

    /// The section that is open now.
    [[nodiscard]] const std::optional<Sum> &section() const { return open; }

private:
    void count(std::optional<Amount> amount);

    std::optional<Sum> open;
};

} // namespace korvel::preview

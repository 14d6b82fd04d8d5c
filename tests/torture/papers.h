// Printers for a test: whatever reaches them is on paper.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace torture {

/// A printer of one kind, from its beginning to its end. It reads all that it is sent.
class Paper
{
public:
    virtual ~Paper() = default;

    /// What korvel-deliver calls it.
    [[nodiscard]] virtual std::string device() const = 0;

    /// What a descriptor that leads to it is open on; empty for an address of the network.
    [[nodiscard]] virtual std::string path() const = 0;

    /// All that came, when nobody sends any more. A connection that ended begins a new page.
    virtual std::string all() = 0;
};

/// "tcp", "fifo", "file" or "line", a serial line; null for any other kind.
std::unique_ptr<Paper> paperOf(const std::string &kind, const std::string &folder);

/// How often the whole document is on the paper.
int copiesOn(const std::string &paper, const std::string &document);

} // namespace torture

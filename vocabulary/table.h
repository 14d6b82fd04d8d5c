// How a row of a table takes over what another table says.
#pragma once

#include <QLatin1StringView>

#include <cstddef>
#include <stdexcept>
#include <string_view>

namespace korvel::vocabulary {

/// The row of that name. Meant for constants: there, a name that no row has does not compile.
template<typename Row, std::size_t count>
constexpr const Row &rowOf(const Row (&rows)[count], QLatin1StringView name)
{
    const auto text = [](QLatin1StringView view) {
        return std::string_view(view.data(), static_cast<std::size_t>(view.size()));
    };
    for (const Row &row : rows) {
        if (text(row.name) == text(name))
            return row;
    }
    throw std::out_of_range("no row of that name");
}

} // namespace korvel::vocabulary

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace orvel {

/// The texts of an enumeration's cases, in the order of the cases (which count from 0). Specialised once per
/// enumeration.
template <typename Enum>
inline constexpr std::array<std::string_view, 0> rawValues {};

/// The text that stands for a case in files and on the bus.
template <typename Enum>
constexpr std::string_view rawValue(Enum value)
{
    return rawValues<Enum>[static_cast<std::size_t>(value)];
}

/// The case that a text stands for; absent for any other text, other capitals included.
template <typename Enum>
constexpr std::optional<Enum> fromRawValue(std::string_view text)
{
    const auto found = std::ranges::find(rawValues<Enum>, text);
    if (found == rawValues<Enum>.end())
        return std::nullopt;
    return static_cast<Enum>(found - rawValues<Enum>.begin());
}

/// Every case, in order.
template <typename Enum>
constexpr auto allCases()
{
    std::array<Enum, rawValues<Enum>.size()> cases {};
    for (std::size_t index = 0; index < cases.size(); ++index)
        cases[index] = static_cast<Enum>(index);
    return cases;
}

}

#include "WidgetHost/Desk/Families.h"

#include <algorithm>
#include <array>

namespace orvel {

namespace {

struct Family {
    std::string_view name;
    std::string_view size;
    Size card;
};

constexpr std::array<Family, 4> families { {
    { "systemSmall", "small", { 170, 170 } }, { "systemMedium", "medium", { 364, 170 } },
    { "systemLarge", "large", { 364, 382 } },
    { "systemExtraLarge", "extra-large", { 364, 382 } }, // drawn as the large one is
} };

}

Size cardSize(std::string_view family)
{
    const auto found = std::ranges::find(families, family, &Family::name);
    return (found == families.end() ? families.front() : *found).card;
}

std::optional<std::string> familyOfSize(std::string_view size)
{
    for (const auto& family : families) {
        if (size == family.size || size == family.name)
            return std::string(family.name);
    }
    return std::nullopt;
}

std::string sizeOfFamily(std::string_view family)
{
    const auto found = std::ranges::find(families, family, &Family::name);
    return std::string(found == families.end() ? family : found->size);
}

}

#include "OrvelCopy/Checks/Room.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "OrvelCopy/Checks/ValueFaults.h"
#include "OrvelPlatform/Base/TextColumns.h"

namespace orvel::Copy {

namespace {

constexpr std::array<std::string_view, 4> tightNamespaces { "Widgets", "Controls", "Popover", "Format" };
constexpr std::size_t longestLabel = 40; // columns; what is longer is broken into lines

bool isSpoken(std::string_view member) { return member.contains("poken") || member.contains("entence"); }

bool isSentence(std::string_view key)
{
    return key.ends_with('.') || key.ends_with('?') || key.contains(". ") || columns(key) > longestLabel;
}

std::size_t most(std::size_t length, Room room)
{
    switch (room) {
    case Room::tight:
        return length + std::max<std::size_t>(8, length * 40 / 100);
    case Room::menu:
        return length + std::max<std::size_t>(16, length);
    case Room::label:
        return length + std::max<std::size_t>(10, length * 60 / 100);
    case Room::sentence:
        return length + std::max<std::size_t>(10, length * 80 / 100);
    case Room::spoken:
        break;
    }
    return std::string_view::npos;
}

}

Room roomOf(const ListedText& text)
{
    if (isSpoken(text.member))
        return Room::spoken;
    if (isSentence(text.key))
        return Room::sentence;
    if (text.namespace_ == "Menus")
        return Room::menu;
    const auto isTight = std::ranges::find(tightNamespaces, text.namespace_) != tightNamespaces.end();
    return isTight ? Room::tight : Room::label;
}

std::optional<std::string> lengthFault(std::string_view key, std::string_view translation, Room room)
{
    const auto limit = most(columns(withoutValues(key)), room);
    const auto length = columns(withoutValues(translation));
    if (length <= limit)
        return std::nullopt;
    return fmt::format("is {} columns long, and there is room for {}", length, limit);
}

}

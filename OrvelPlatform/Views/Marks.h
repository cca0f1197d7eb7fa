#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>

#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Views/Geometry.h"

/// What a picture says besides its pixels: elements for assistive technology, and actions for a pointer or a key.
namespace orvel {

enum class ElementRole { text, button, image, group };

template <>
inline constexpr std::array<std::string_view, 4> rawValues<ElementRole> { "text", "button", "image", "group" };

/// One thing that is read aloud. In points of the whole picture.
struct ElementMark {
    ElementRole role;
    std::string label;
    Rect frame;
    bool operator==(const ElementMark&) const = default;
};

using ActionValue = std::variant<std::string, std::int64_t, bool>;
using ActionParameters = std::map<std::string, ActionValue, std::less<>>;

/// A part of the picture that does something: the intent that runs, and with what.
struct ActionMark {
    std::string label;
    Rect frame;
    std::string intent;
    ActionParameters parameters;
    bool operator==(const ActionMark&) const = default;
};

}

#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "WidgetHost/Windows/Part.h"
#include "WidgetHost/Windows/WindowGeometry.h"

namespace orvel {

/// A part of a window and where it is.
struct ListedPart {
    PartMeaning meaning {};
    Rect frame {}; // in the window's points
    bool opens = false; // the widget's link
    std::optional<std::size_t> action {}; // what it does instead

    bool doesTheSameAs(const ListedPart& other) const
    {
        return opens == other.opens && action == other.action && meaning.isFocusable == other.meaning.isFocusable;
    }
};

/// What a window says, in order: the whole, the elements as the picture lists them, the actions. The whole is described
/// by all that the elements say. An element that is an action's own button is left out: the action says it.
std::vector<ListedPart> partsOf(const WidgetFace& face, const WindowGeometry& geometry);

}

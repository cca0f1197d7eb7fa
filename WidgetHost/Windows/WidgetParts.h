#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

#include "WidgetHost/Windows/WindowGeometry.h"

namespace Gtk {
class Window;
}

namespace orvel {

/// What a window means besides its pixels: the widget as a whole, which opens; each element that is read aloud; and
/// each action as a button, at its place. They are seen by the keyboard and by assistive technology only.
class WidgetParts {
public:
    struct Doing {
        std::function<void()> open;
        std::function<void(std::size_t action)> act;
        std::function<void()> focusMoved;
    };

    WidgetParts(Gtk::Window& window, Doing doing);
    ~WidgetParts();

    void show(const WidgetFace& face, const WindowGeometry& geometry);

    /// The whole first, then the actions in their order, round and round.
    void moveFocus(bool isBackward);
    /// Opens or acts.
    void activate();

    /// The action that has the focus of the window; absent while the whole has it.
    std::optional<std::size_t> focusedAction() const;

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}

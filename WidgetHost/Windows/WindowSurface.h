#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Windows/Places.h"

struct _cairo;

namespace Gtk {
class Window;
}

namespace orvel {

/// Where a pointer is, in points.
struct PointerPlace {
    Point onWindow;
    Point onScreen; // means nothing where windows do not know where they are
    bool isHeld = true; // the main button
};

/// How a drag began.
struct Grip {
    PointerPlace at;
    std::uint32_t button;
    std::uint32_t time;
};

/// How a window becomes a part of the desktop: on X11 as a window that stays below all others on every workspace; with
/// the layer shell as a surface of the bottom layer; elsewhere it is a small window like any other, which neither knows
/// nor chooses where it is. Corners are the window's, its room for a shadow included, in points from an output's
/// corner.
class WindowSurface {
public:
    /// What paints the window on another one of its size.
    using Paint = std::function<void(_cairo* context)>;

    /// The best there is on this display. The window has not been shown yet, and outlives it.
    static std::unique_ptr<WindowSurface> of(Gtk::Window& window, Paint paint);

    WindowSurface() = default;
    WindowSurface(const WindowSurface&) = delete;
    WindowSurface& operator=(const WindowSurface&) = delete;
    virtual ~WindowSurface() = default;

    /// Whether windows are where they are put.
    virtual bool isPlaced() const = 0;
    virtual void put(std::size_t index, const Output& output, Point corner) = 0;

    /// From `put` on the window follows the pointer, until the drag ends: there its corner is then, from the corner of
    /// the output that it was put on. Absent where somebody else moves the window.
    virtual void beginDrag(const Grip& grip) = 0;
    virtual void drag(const PointerPlace& pointer) = 0;
    virtual std::optional<Point> endDrag() = 0;

    /// Whether something else shows the window's picture for now, and the window itself nothing.
    virtual bool isLifted() const { return false; }
    /// The window was painted, and not as one that is lifted.
    virtual void settled() { }
};

}

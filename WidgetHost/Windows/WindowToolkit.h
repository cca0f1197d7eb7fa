#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Windows/WindowSurface.h"

struct _cairo;
union _GdkEvent;

namespace Gtk {
class Menu;
class Window;
}

namespace orvel {

/// A key that was pressed, and what was held with it.
struct KeyPress {
    unsigned key; // the toolkit's value for it
    bool isAlt;
    bool isControl;
    bool isShift;
    std::uint32_t time;
};

/// What a window is told. Those that answer say whether it was of use to them.
struct WindowHandlers {
    std::function<void(_cairo* context)> paint;
    std::function<void(const Grip& grip)> pressed; // the main button
    std::function<void(const PointerPlace& pointer)> pointed;
    std::function<void(const PointerPlace& pointer, std::uint32_t time)> released;
    std::function<bool(const KeyPress& press)> keyPressed;
    std::function<void(const _GdkEvent* event)> menuWanted;
    std::function<void()> closed; // by somebody else
    std::function<void()> focusChanged;
    std::function<void()> surroundingsChanged; // another scale, or whether windows are mixed
};

/// A window without a frame that lets the desktop shine through, as the toolkit has it.
class WindowToolkit {
public:
    WindowToolkit();
    WindowToolkit(const WindowToolkit&) = delete;
    WindowToolkit& operator=(const WindowToolkit&) = delete;
    ~WindowToolkit();

    void listen(WindowHandlers handlers);

    Gtk::Window& window() const;
    double scale() const;
    bool isComposited() const;
    bool hasKeyboard() const;

    /// Only there is the window's; elsewhere a click goes to what lies below.
    void takePointerIn(const std::vector<Rect>& rows);
    /// How much of the window, on each side, is nothing but shadow.
    void saySurround(int room);
    void showHand(bool isOnButton);
    void repaint(const Rect& points);
    /// Whether a pointer went so far that it drags.
    bool isDrag(Point from, Point to) const;

    /// At the pointer, or without an event at the card.
    void popUp(std::unique_ptr<Gtk::Menu> menu, const _GdkEvent* event, const Rect& card);
    /// Runs when the loop has nothing else to do, once; a later call replaces it.
    void later(std::function<void()> what);
    /// Runs after a span, once, unless this is gone; a later call replaces it too.
    void after(std::chrono::milliseconds span, std::function<void()> what);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}

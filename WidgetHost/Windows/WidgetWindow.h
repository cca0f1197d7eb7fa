#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "WidgetHost/Face/WidgetFace.h"
#include "WidgetHost/Windows/DesktopWindows.h"

namespace orvel {

/// What happens at a widget's window. All are called on the program's loop; the window may be destroyed by any of them.
struct WidgetWindowEvents {
    /// A click beside the buttons, or Return or Space while the whole has the focus. The token lets an application come
    /// to the front; empty where the desktop has none.
    std::function<void(std::string activationToken)> opened;
    /// A button of the picture: the index of its action.
    std::function<void(std::size_t action, std::string activationToken)> acted;
    /// Somebody put the widget elsewhere, or it found its first place. Never called for a place that a desktop forced
    /// on it while its monitor is away.
    std::function<void(WidgetPlace place)> moved;
    /// Device pixels in a point, a whole number; 1 until this is called.
    std::function<void(double scale)> scaleChanged;
    std::function<void(std::string family)> familyChosen;
    std::function<void(ChosenLook look)> lookChosen;
    std::function<void()> removeChosen;
    std::function<void()> galleryChosen; // absent: the menu does not offer it
    std::function<void()> settingsChosen; // likewise
};

/// One widget on the desktop: a card with its shadow, without a frame, below all other windows.
///
/// With the pointer: a click opens or presses a button, a drag moves, the other button or a long touch opens the menu.
/// With the keyboard: Tab goes to the buttons, Return and Space open or press, Alt and an arrow move the widget by 24
/// points, Control and an arrow by 4, the Menu key or Shift and F10 open the menu. Nothing removes a widget but its
/// menu: a single key would lose its place.
///
/// Nothing happens between one face and the next: no timer, no animation. Of a new face only what differs is painted.
class WidgetWindow {
public:
    /// `place`: absent puts it into the next free one. The windows outlive it.
    WidgetWindow(DesktopWindows& windows, std::optional<WidgetPlace> place, WidgetWindowEvents events);
    ~WidgetWindow();

    /// Shows a face from now on; the first one shows the window.
    void show(WidgetFace face);

    /// Puts it elsewhere, without `moved`.
    void moveTo(const WidgetPlace& place);

    /// Gives it the keyboard.
    void focus();

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

}

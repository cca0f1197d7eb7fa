#pragma once

#include <memory>
#include <string>

namespace Gtk {
class Widget;
class Window;
}

namespace orvel {

/// The style of one window, for as long as both live. The first one gives the process our typefaces.
class WindowStyle {
public:
    /// `name` becomes the window's name, which its style sheet begins every rule with.
    WindowStyle(Gtk::Window& window, const std::string& name);
    WindowStyle(const WindowStyle&) = delete;
    WindowStyle& operator=(const WindowStyle&) = delete;
    ~WindowStyle();

    /// Puts a style sheet in the place of the one before. The same one again costs nothing.
    void use(const std::string& styleSheet);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

/// Lays out a widget and all that is in it from the right, or from the left.
void setDirection(Gtk::Widget& widget, bool isRightToLeft);

}

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "WidgetHost/Face/WidgetFace.h"
#include "WidgetHost/Windows/WindowWords.h"

namespace Gtk {
class Menu;
}

namespace orvel {

/// What can be chosen from a widget's menu. What nobody listens to is not offered.
struct MenuChoices {
    std::function<void(std::string family)> family;
    std::function<void(ChosenLook look)> look;
    std::function<void()> gallery;
    std::function<void()> settings;
    std::function<void()> remove;
};

/// A menu of one use: it is made when it is opened, in the direction of its words.
std::unique_ptr<Gtk::Menu> makeMenu(const WidgetFace& face, const WindowWords& words, const MenuChoices& choices);

}

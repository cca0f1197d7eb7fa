#pragma once

#include <functional>
#include <memory>
#include <string>

#include "OrvelPlatform/Views/Marks.h"

namespace Gtk {
class Widget;
}

namespace orvel {

/// A part of a window that is not seen: a place with a role and a label, and what it does.
struct PartMeaning {
    ElementRole role;
    std::string label;
    std::string description {};
    bool isFocusable = false;
    bool operator==(const PartMeaning&) const = default;
};

/// `act` is done when assistive technology asks for it; without one the part does nothing.
std::unique_ptr<Gtk::Widget> makePart(std::function<void()> act);

/// Tells a part what it is now.
void setMeaning(Gtk::Widget& part, const PartMeaning& meaning);

}

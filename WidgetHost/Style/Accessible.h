#pragma once

#include <string>

namespace Gtk {
class Widget;
}

namespace orvel {

/// What assistive technology says of a widget.
void setAccessibleName(Gtk::Widget& widget, const std::string& name);
void setAccessibleDescription(Gtk::Widget& widget, const std::string& description);

/// A widget that is more than its kind says.
enum class AccessibleRole { heading, image, notification };
void setAccessibleRole(Gtk::Widget& widget, AccessibleRole role);

}

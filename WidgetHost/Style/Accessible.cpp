#include "WidgetHost/Style/Accessible.h"

#include <gtkmm.h>

namespace orvel {

namespace {

AtkRole platformRole(AccessibleRole role)
{
    switch (role) {
    case AccessibleRole::heading:
        return ATK_ROLE_HEADING;
    case AccessibleRole::image:
        return ATK_ROLE_IMAGE;
    case AccessibleRole::notification:
        return ATK_ROLE_NOTIFICATION;
    }
    return ATK_ROLE_UNKNOWN;
}

}

void setAccessibleName(Gtk::Widget& widget, const std::string& name)
{
    widget.get_accessible()->set_name(name);
}

void setAccessibleDescription(Gtk::Widget& widget, const std::string& description)
{
    widget.get_accessible()->set_description(description);
}

void setAccessibleRole(Gtk::Widget& widget, AccessibleRole role)
{
    atk_object_set_role(widget.get_accessible()->gobj(), platformRole(role));
}

}

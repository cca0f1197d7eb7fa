#include "WidgetHost/Windows/Part.h"

#include <gtkmm.h>

#include <gtk/gtk-a11y.h>

namespace orvel {

namespace {

class Part final : public Gtk::Widget {
public:
    explicit Part(std::function<void()> itsAct);

    std::function<void()> act;
};

Part* partOf(AtkAction* accessible)
{
    auto* const widget = gtk_accessible_get_widget(GTK_ACCESSIBLE(accessible));
    return widget ? dynamic_cast<Part*>(Glib::wrap(widget)) : nullptr; // none: it went before its accessible
}

int actionCount(AtkAction* accessible)
{
    const auto* part = partOf(accessible);
    return part && part->act ? 1 : 0;
}

gboolean doAction(AtkAction* accessible, int index)
{
    if (index != 0 || actionCount(accessible) == 0)
        return FALSE;
    const auto act = partOf(accessible)->act; // the part may go while it acts
    act();
    return TRUE;
}

const char* actionName(AtkAction* accessible, int index)
{
    return index < actionCount(accessible) ? "click" : nullptr;
}

void fillActions(void* interface, void*)
{
    auto* const actions = static_cast<AtkActionIface*>(interface);
    actions->get_n_actions = &actionCount;
    actions->do_action = &doAction;
    actions->get_name = &actionName;
}

/// The type of the parts' accessibles: the toolkit's own, which can act.
GType accessibleType()
{
    static const GType type = [] {
        GTypeQuery parent;
        g_type_query(GTK_TYPE_WIDGET_ACCESSIBLE, &parent);
        const GType made = g_type_register_static_simple(GTK_TYPE_WIDGET_ACCESSIBLE, "OrvelPartAccessible",
            parent.class_size, nullptr, parent.instance_size, nullptr, GTypeFlags());
        const GInterfaceInfo actions {
            .interface_init = &fillActions, .interface_finalize = nullptr, .interface_data = nullptr
        };
        g_type_add_interface_static(made, ATK_TYPE_ACTION, &actions);
        return made;
    }();
    return type;
}

Part::Part(std::function<void()> itsAct) : Glib::ObjectBase("OrvelPart"), act(std::move(itsAct))
{
    gtk_widget_class_set_accessible_type(GTK_WIDGET_GET_CLASS(gobj()), accessibleType());
    set_has_window(false);
}

AtkRole atkRole(ElementRole role)
{
    switch (role) {
    case ElementRole::text:
        return ATK_ROLE_LABEL;
    case ElementRole::button:
        return ATK_ROLE_PUSH_BUTTON;
    case ElementRole::image:
        return ATK_ROLE_IMAGE;
    case ElementRole::group:
        return ATK_ROLE_PANEL;
    }
    return ATK_ROLE_PANEL;
}

}

std::unique_ptr<Gtk::Widget> makePart(std::function<void()> act)
{
    return std::make_unique<Part>(std::move(act));
}

void setMeaning(Gtk::Widget& part, const PartMeaning& meaning)
{
    auto* const accessible = gtk_widget_get_accessible(part.gobj());
    atk_object_set_role(accessible, atkRole(meaning.role));
    atk_object_set_name(accessible, meaning.label.c_str());
    atk_object_set_description(accessible, meaning.description.c_str());
    part.set_can_focus(meaning.isFocusable);
}

}

#include "WidgetHost/Windows/WindowToolkit.h"

#include <cmath>
#include <utility>

#include <gtkmm.h>

namespace orvel {

namespace {

/// Where an event of the pointer's was.
template <typename Event>
PointerPlace placeOf(const Event& event)
{
    return { { event.x, event.y }, { event.x_root, event.y_root }, (event.state & GDK_BUTTON1_MASK) != 0 };
}

const GdkEvent* anyEvent(const GdkEventButton* event)
{
    return reinterpret_cast<const GdkEvent*>(event); // every event begins as the union does
}

}

struct WindowToolkit::Parts {
    Gtk::Window window { Gtk::WINDOW_TOPLEVEL };
    WindowHandlers handlers {};
    std::unique_ptr<Gtk::Menu> menu {};
    Glib::RefPtr<Gtk::GestureLongPress> longTouch {};
    Cairo::RefPtr<Cairo::Region> region {};
    sigc::connection waiting {};
    sigc::connection patience {};
    int room = 0;
    bool isHandShown = false;

    bool buttonPressed(const GdkEventButton* event)
    {
        if (event->type != GDK_BUTTON_PRESS)
            return true; // the second press of a double click came as one of its own before
        if (gdk_event_triggers_context_menu(anyEvent(event)))
            handlers.menuWanted(anyEvent(event));
        else if (event->button == GDK_BUTTON_PRIMARY)
            handlers.pressed({ placeOf(*event), event->button, event->time });
        return true;
    }

    void applyShapes()
    {
        const auto surface = window.get_window();
        if (!surface)
            return;
        window.input_shape_combine_region(region);
        gdk_window_set_shadow_width(surface->gobj(), room, room, room, room);
    }
};

WindowToolkit::WindowToolkit() : m_parts(std::make_unique<Parts>())
{
    auto& window = m_parts->window;
    window.set_decorated(false);
    window.set_resizable(false);
    window.set_app_paintable(true);
    window.add_events(Gdk::BUTTON_PRESS_MASK | Gdk::BUTTON_RELEASE_MASK | Gdk::POINTER_MOTION_MASK);
    if (const auto visual = window.get_screen()->get_rgba_visual())
        gtk_widget_set_visual(GTK_WIDGET(window.gobj()), visual->gobj());
}

WindowToolkit::~WindowToolkit()
{
    m_parts->waiting.disconnect();
    m_parts->patience.disconnect();
}

void WindowToolkit::listen(WindowHandlers handlers)
{
    auto& parts = *m_parts;
    auto& window = parts.window;
    parts.handlers = std::move(handlers);
    const auto& told = parts.handlers;
    constexpr bool before = false;
    window.signal_draw().connect(
        [&told](const Cairo::RefPtr<Cairo::Context>& context) {
            told.paint(context->cobj());
            return true;
        },
        before);
    window.signal_button_press_event().connect(
        [&parts](GdkEventButton* event) { return parts.buttonPressed(event); }, before);
    window.signal_motion_notify_event().connect(
        [&told](GdkEventMotion* event) {
            told.pointed(placeOf(*event));
            return true;
        },
        before);
    window.signal_button_release_event().connect(
        [&told](GdkEventButton* event) {
            if (event->button == GDK_BUTTON_PRIMARY)
                told.released(placeOf(*event), event->time);
            return true;
        },
        before);
    window.signal_key_press_event().connect(
        [&told](GdkEventKey* event) {
            const auto isHeld = [event](unsigned modifier) { return (event->state & modifier) != 0; };
            return told.keyPressed({ event->keyval, isHeld(GDK_MOD1_MASK), isHeld(GDK_CONTROL_MASK),
                isHeld(GDK_SHIFT_MASK), event->time });
        },
        before);
    window.signal_delete_event().connect(
        [&told](GdkEventAny*) {
            told.closed();
            return true;
        },
        before);
    window.signal_realize().connect([&parts] { parts.applyShapes(); });
    window.property_is_active().signal_changed().connect([&told] { told.focusChanged(); });
    window.property_scale_factor().signal_changed().connect([&told] { told.surroundingsChanged(); });
    window.signal_composited_changed().connect([&told] { told.surroundingsChanged(); });
    parts.longTouch = Gtk::GestureLongPress::create(window);
    parts.longTouch->set_touch_only(true);
    parts.longTouch->signal_pressed().connect([&told](double, double) {
        const std::unique_ptr<GdkEvent, decltype(&gdk_event_free)> event(gtk_get_current_event(), &gdk_event_free);
        told.menuWanted(event.get());
    });
}

Gtk::Window& WindowToolkit::window() const
{
    return m_parts->window;
}

double WindowToolkit::scale() const
{
    return m_parts->window.get_scale_factor();
}

bool WindowToolkit::isComposited() const
{
    const auto screen = m_parts->window.get_screen();
    return screen->is_composited() && screen->get_rgba_visual();
}

bool WindowToolkit::hasKeyboard() const
{
    return m_parts->window.is_active();
}

void WindowToolkit::takePointerIn(const std::vector<Rect>& rows)
{
    m_parts->region = Cairo::Region::create();
    for (const auto& row : rows)
        m_parts->region->do_union({ static_cast<int>(row.x), static_cast<int>(row.y), static_cast<int>(row.width),
            static_cast<int>(row.height) });
    m_parts->applyShapes();
}

void WindowToolkit::saySurround(int room)
{
    m_parts->room = room;
    m_parts->applyShapes();
}

void WindowToolkit::showHand(bool isOnButton)
{
    if (std::exchange(m_parts->isHandShown, isOnButton) == isOnButton)
        return;
    const auto display = m_parts->window.get_display();
    m_parts->window.get_window()->set_cursor(
        isOnButton ? Gdk::Cursor::create(display, "pointer") : Glib::RefPtr<Gdk::Cursor>());
}

void WindowToolkit::repaint(const Rect& points)
{
    const int left = static_cast<int>(std::floor(points.x)), top = static_cast<int>(std::floor(points.y));
    m_parts->window.queue_draw_area(left, top, static_cast<int>(std::ceil(points.right())) - left,
        static_cast<int>(std::ceil(points.bottom())) - top);
}

bool WindowToolkit::isDrag(Point from, Point to) const
{
    const auto whole = [](double length) { return static_cast<int>(std::lround(length)); };
    return m_parts->window.drag_check_threshold(whole(from.x), whole(from.y), whole(to.x), whole(to.y));
}

void WindowToolkit::popUp(std::unique_ptr<Gtk::Menu> menu, const _GdkEvent* event, const Rect& card)
{
    auto& held = m_parts->menu;
    held = std::move(menu);
    held->attach_to_widget(m_parts->window);
    // What was chosen is told after the menu went; only then may it be forgotten.
    held->signal_deactivate().connect([this] { later([this] { m_parts->menu.reset(); }); });
    if (event)
        return held->popup_at_pointer(event);
    const Gdk::Rectangle place(static_cast<int>(card.x), static_cast<int>(card.y), static_cast<int>(card.width),
        static_cast<int>(card.height));
    held->popup_at_rect(m_parts->window.get_window(), place, Gdk::GRAVITY_CENTER, Gdk::GRAVITY_CENTER, nullptr);
}

void WindowToolkit::later(std::function<void()> what)
{
    m_parts->waiting.disconnect();
    m_parts->waiting = Glib::signal_idle().connect([what = std::move(what)] {
        what();
        return false;
    });
}

void WindowToolkit::after(std::chrono::milliseconds span, std::function<void()> what)
{
    m_parts->patience.disconnect();
    const auto once = [what = std::move(what)] {
        what();
        return false;
    };
    m_parts->patience = Glib::signal_timeout().connect(once, static_cast<unsigned>(span.count()));
}

}

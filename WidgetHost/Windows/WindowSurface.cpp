#include "WidgetHost/Windows/WindowSurface.h"

#include <cmath>
#include <utility>

#include "WidgetHost/Windows/LayerSurface.h"

#include <gtk-layer-shell.h>
#include <gtkmm.h>

#include <gdk/gdkx.h>

namespace orvel {

namespace {

int whole(double length)
{
    return static_cast<int>(std::lround(length));
}

class X11Surface final : public WindowSurface {
public:
    explicit X11Surface(Gtk::Window& window) : m_window(window)
    {
        // A window of the type "desktop" would be one of several there, and under the one that shows the wallpaper.
        m_window.set_type_hint(Gdk::WINDOW_TYPE_HINT_UTILITY);
        m_window.set_keep_below(true);
        m_window.stick();
        m_window.set_skip_taskbar_hint(true);
        m_window.set_skip_pager_hint(true);
        m_window.set_focus_on_map(false);
        // Some window managers hold such a window above the others of its group, which all of a program's are.
        m_window.signal_realize().connect([this] {
            const auto own = m_window.get_window();
            own->set_group(own);
        });
    }

    bool isPlaced() const override { return true; }

    void put(std::size_t, const Output& output, Point corner) override
    {
        m_area = output.area.origin();
        move(corner);
    }

    void beginDrag(const Grip& grip) override
    {
        m_start = m_corner;
        m_grip = grip.at.onScreen;
    }

    void drag(const PointerPlace& pointer) override
    {
        move({ m_start.x + pointer.onScreen.x - m_grip.x, m_start.y + pointer.onScreen.y - m_grip.y });
    }

    std::optional<Point> endDrag() override { return m_corner; }

private:
    void move(Point corner)
    {
        m_corner = corner;
        m_window.move(whole(m_area.x + corner.x), whole(m_area.y + corner.y));
    }

    Gtk::Window& m_window;
    Point m_area;
    Point m_corner;
    Point m_start;
    Point m_grip;
};

class PlainSurface final : public WindowSurface {
public:
    explicit PlainSurface(Gtk::Window& window) : m_window(window) { }

    bool isPlaced() const override { return false; }
    void put(std::size_t, const Output&, Point) override { }

    void beginDrag(const Grip& grip) override
    {
        m_window.begin_move_drag(
            static_cast<int>(grip.button), whole(grip.at.onScreen.x), whole(grip.at.onScreen.y), grip.time);
    }
    void drag(const PointerPlace&) override { }
    std::optional<Point> endDrag() override { return std::nullopt; }

private:
    Gtk::Window& m_window;
};

}

std::unique_ptr<WindowSurface> WindowSurface::of(Gtk::Window& window, Paint paint)
{
    if (GDK_IS_X11_DISPLAY(gdk_display_get_default()))
        return std::make_unique<X11Surface>(window);
    if (gtk_layer_is_supported())
        return layerSurface(window, std::move(paint));
    return std::make_unique<PlainSurface>(window);
}

}

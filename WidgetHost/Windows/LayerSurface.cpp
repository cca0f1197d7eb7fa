#include "WidgetHost/Windows/LayerSurface.h"

#include <cmath>
#include <utility>

#include "WidgetHost/Windows/Monitors.h"
#include "WidgetHost/Windows/SurfaceDrag.h"

#include <gtk-layer-shell.h>
#include <gtkmm.h>
#include <wayland-client.h>

#include <gdk/gdkwayland.h>

namespace orvel {

namespace {

class LayerSurface final : public WindowSurface {
public:
    explicit LayerSurface(Gtk::Window& window) : m_window(window)
    {
        gtk_layer_init_for_window(m_window.gobj());
        gtk_layer_set_namespace(m_window.gobj(), "orvel-widget");
        gtk_layer_set_layer(m_window.gobj(), GTK_LAYER_SHELL_LAYER_BOTTOM);
        gtk_layer_set_anchor(m_window.gobj(), GTK_LAYER_SHELL_EDGE_TOP, TRUE);
        gtk_layer_set_anchor(m_window.gobj(), GTK_LAYER_SHELL_EDGE_LEFT, TRUE);
        gtk_layer_set_exclusive_zone(m_window.gobj(), 0);
        gtk_layer_set_keyboard_mode(m_window.gobj(), GTK_LAYER_SHELL_KEYBOARD_MODE_ON_DEMAND);
    }

    ~LayerSurface() override { forgetSign(); }

    bool isPlaced() const override { return true; }

    void put(std::size_t index, const Output&, Point corner) override
    {
        auto* const here = monitor(index);
        // To say again which monitor it is would take the surface away and bring it back.
        if (here && here != gtk_layer_get_monitor(m_window.gobj()))
            gtk_layer_set_monitor(m_window.gobj(), here);
        move(corner);
    }

    void beginDrag(const Grip& grip) override
    {
        m_drag.emplace(m_corner, grip.at.onWindow, [this](Point place) {
            move(place);
            awaitSign();
        });
    }

    void drag(const PointerPlace& pointer) override
    {
        if (m_drag)
            m_drag->pointerMoved(pointer.onWindow);
    }

    std::optional<Point> endDrag() override
    {
        if (!m_drag)
            return std::nullopt;
        const auto end = m_drag->wanted();
        m_drag.reset();
        forgetSign();
        return end;
    }

private:
    void move(Point corner)
    {
        m_corner = corner;
        gtk_layer_set_margin(m_window.gobj(), GTK_LAYER_SHELL_EDGE_LEFT, static_cast<int>(std::lround(corner.x)));
        gtk_layer_set_margin(m_window.gobj(), GTK_LAYER_SHELL_EDGE_TOP, static_cast<int>(std::lround(corner.y)));
        if (auto* const window = gtk_widget_get_window(GTK_WIDGET(m_window.gobj())); window && m_drag)
            wl_surface_commit(gdk_wayland_window_get_wl_surface(window));
    }

    /// The compositor answers a question after all that it was told before it.
    void awaitSign()
    {
        forgetSign();
        m_sign = wl_display_sync(gdk_wayland_display_get_wl_display(gdk_display_get_default()));
        static constexpr wl_callback_listener listener { .done = &LayerSurface::signed_ };
        wl_callback_add_listener(m_sign, &listener, this);
    }

    static void signed_(void* surface, wl_callback*, std::uint32_t)
    {
        auto& self = *static_cast<LayerSurface*>(surface);
        self.forgetSign();
        if (self.m_drag)
            self.m_drag->placeTaken();
    }

    void forgetSign()
    {
        if (auto* const sign = std::exchange(m_sign, nullptr))
            wl_callback_destroy(sign);
    }

    Gtk::Window& m_window;
    Point m_corner;
    std::optional<SurfaceDrag> m_drag;
    wl_callback* m_sign = nullptr;
};

}

std::unique_ptr<WindowSurface> layerSurface(Gtk::Window& window)
{
    return std::make_unique<LayerSurface>(window);
}

}

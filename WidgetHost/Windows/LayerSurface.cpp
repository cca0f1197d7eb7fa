#include "WidgetHost/Windows/LayerSurface.h"

#include <cmath>
#include <utility>

#include "WidgetHost/Windows/Monitors.h"

#include <gtk-layer-shell.h>
#include <gtkmm.h>
#include <wayland-client.h>

#include <gdk/gdkwayland.h>

namespace orvel {

namespace {

void makeLayer(Gtk::Window& window, GtkLayerShellLayer layer, GtkLayerShellKeyboardMode keyboard)
{
    gtk_layer_init_for_window(window.gobj());
    gtk_layer_set_namespace(window.gobj(), "orvel-widget");
    gtk_layer_set_layer(window.gobj(), layer);
    gtk_layer_set_anchor(window.gobj(), GTK_LAYER_SHELL_EDGE_TOP, TRUE);
    gtk_layer_set_anchor(window.gobj(), GTK_LAYER_SHELL_EDGE_LEFT, TRUE);
    gtk_layer_set_exclusive_zone(window.gobj(), 0);
    gtk_layer_set_keyboard_mode(window.gobj(), keyboard);
}

void move(Gtk::Window& window, Point corner)
{
    gtk_layer_set_margin(window.gobj(), GTK_LAYER_SHELL_EDGE_LEFT, static_cast<int>(std::lround(corner.x)));
    gtk_layer_set_margin(window.gobj(), GTK_LAYER_SHELL_EDGE_TOP, static_cast<int>(std::lround(corner.y)));
    // The toolkit would say so with its next frame; and a surface out of sight never gets one.
    auto* const ours = gtk_widget_get_window(GTK_WIDGET(window.gobj()));
    auto* const surface = ours ? gdk_wayland_window_get_wl_surface(ours) : nullptr;
    if (surface) // a window that is not shown has none
        wl_surface_commit(surface);
}

/// What follows the pointer: a picture that no pointer meets, above all windows.
class DragImage {
public:
    DragImage(const Gtk::Window& original, Point corner, WindowSurface::Paint paint, std::function<void()> shown)
    {
        m_window.set_decorated(false);
        m_window.set_resizable(false);
        m_window.set_app_paintable(true);
        m_window.set_size_request(original.get_allocated_width(), original.get_allocated_height());
        if (const auto visual = m_window.get_screen()->get_rgba_visual())
            gtk_widget_set_visual(GTK_WIDGET(m_window.gobj()), visual->gobj());
        makeLayer(m_window, GTK_LAYER_SHELL_LAYER_TOP, GTK_LAYER_SHELL_KEYBOARD_MODE_NONE);
        auto* const constOriginal = const_cast<Gtk::Window&>(original).gobj();
        if (auto* const monitor = gtk_layer_get_monitor(constOriginal))
            gtk_layer_set_monitor(m_window.gobj(), monitor);
        m_window.signal_draw().connect(
            [paint = std::move(paint), shown = std::move(shown)](const Cairo::RefPtr<Cairo::Context>& context) {
                paint(context->cobj());
                shown();
                return true;
            },
            false);
        moveTo(corner);
        m_window.input_shape_combine_region(Cairo::Region::create());
        m_window.show();
    }

    void moveTo(Point corner) { move(m_window, corner); }

private:
    Gtk::Window m_window;
};

class LayerSurface final : public WindowSurface {
public:
    LayerSurface(Gtk::Window& window, Paint paint) : m_window(window), m_paint(std::move(paint))
    {
        makeLayer(m_window, GTK_LAYER_SHELL_LAYER_BOTTOM, GTK_LAYER_SHELL_KEYBOARD_MODE_ON_DEMAND);
    }

    ~LayerSurface() override { m_later.disconnect(); }

    bool isPlaced() const override { return true; }

    void put(std::size_t index, const Output&, Point corner) override
    {
        m_corner = corner;
        auto* const here = monitor(index);
        // To say again which monitor it is would take the surface away and bring it back.
        if (here && here != gtk_layer_get_monitor(m_window.gobj()))
            gtk_layer_set_monitor(m_window.gobj(), here);
        move(m_window, corner);
    }

    void beginDrag(const Grip& grip) override
    {
        m_later.disconnect();
        m_grip = grip.at.onWindow;
        m_dragged = m_corner;
        m_image = std::make_unique<DragImage>(m_window, m_corner, m_paint, [this] { imageShown(); });
    }

    void drag(const PointerPlace& pointer) override
    {
        m_dragged = { m_corner.x + pointer.onWindow.x - m_grip.x, m_corner.y + pointer.onWindow.y - m_grip.y };
        if (m_image)
            m_image->moveTo(m_dragged);
    }

    std::optional<Point> endDrag() override
    {
        m_isLifted = false;
        m_isOver = true;
        m_window.queue_draw();
        return m_dragged;
    }

    bool isLifted() const override { return m_isLifted; }

    /// Only now may the image go, or for a moment there would be neither.
    void settled() override
    {
        if (std::exchange(m_isOver, false))
            m_later = Glib::signal_idle().connect([this] {
                m_image.reset();
                return false;
            });
    }

private:
    void imageShown()
    {
        if (m_isOver || std::exchange(m_isLifted, true))
            return;
        m_window.queue_draw();
    }

    Gtk::Window& m_window;
    Paint m_paint;
    Point m_corner;
    Point m_grip;
    Point m_dragged;
    std::unique_ptr<DragImage> m_image;
    bool m_isLifted = false;
    bool m_isOver = false; // the drag, but the image is still there
    sigc::connection m_later;
};

}

std::unique_ptr<WindowSurface> layerSurface(Gtk::Window& window, WindowSurface::Paint paint)
{
    return std::make_unique<LayerSurface>(window, std::move(paint));
}

}

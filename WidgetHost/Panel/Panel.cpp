#include "WidgetHost/Panel/Panel.h"

#include <algorithm>
#include <utility>

#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Panel/ControlTile.h"
#include "WidgetHost/Panel/PanelStyle.h"
#include "WidgetHost/Style/Accessible.h"
#include "WidgetHost/Style/WindowStyle.h"
#include "WidgetHost/Windows/ActivationToken.h"

#include <gtk-layer-shell.h>
#include <gtkmm.h>

namespace orvel {

namespace {

namespace Space = Tokens::Space;

constexpr const char* windowName = "orvel-panel";

bool areTheSameControls(const std::vector<ControlFace>& some, const std::vector<ControlFace>& others)
{
    return std::ranges::equal(some, others, [](const ControlFace& one, const ControlFace& other) {
        return one.kind == other.kind && one.isToggle == other.isToggle;
    });
}

}

class Panel::Window {
    PanelEvents m_events; // first: the window's end is an event too

public:
    explicit Window(PanelEvents events);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { m_events = {}; } // nobody does what happens from now on

    void show(const PanelContent& content);

    Gtk::Window window { Gtk::WINDOW_TOPLEVEL };

private:
    void arrange();
    void listen();
    void standAbove();
    void followTheScreen();
    void offer(const std::vector<ControlFace>& controls);
    void use(const std::string& kind, std::optional<bool> wanted);

    std::vector<ControlFace> m_controls;
    WindowStyle m_style { window, windowName };
    Gtk::Box m_surface { Gtk::ORIENTATION_VERTICAL, static_cast<int>(Space::s3) };
    Gtk::Label m_notice;
    Gtk::Box m_row { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(Space::s3) };
    Gtk::Box m_foot { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(Space::s4) };
    Gtk::Button m_gallery;
    Gtk::Button m_quit;
    std::vector<std::unique_ptr<ControlTile>> m_tiles;
};

Panel::Window::Window(PanelEvents events) : m_events(std::move(events))
{
    window.set_decorated(false);
    window.set_resizable(false);
    window.set_type_hint(Gdk::WINDOW_TYPE_HINT_DIALOG);
    window.set_skip_taskbar_hint();
    window.set_skip_pager_hint();
    standAbove();
    followTheScreen();
    arrange();
    listen();
}

/// Near the pointer, which is where the tray was clicked. A Wayland client knows no place of its own: where it can, the
/// panel stands in the corner in which most desktops have their tray.
void Panel::Window::standAbove()
{
    if (gtk_layer_is_supported() == FALSE) {
        window.set_keep_above();
        window.set_position(Gtk::WIN_POS_MOUSE);
        return;
    }
    auto* const surface = window.gobj();
    gtk_layer_init_for_window(surface);
    gtk_layer_set_namespace(surface, windowName);
    gtk_layer_set_layer(surface, GTK_LAYER_SHELL_LAYER_TOP);
    gtk_layer_set_anchor(surface, GTK_LAYER_SHELL_EDGE_TOP, TRUE);
    window.signal_show().connect([surface] {
        gtk_layer_set_keyboard_mode(surface, GTK_LAYER_SHELL_KEYBOARD_MODE_EXCLUSIVE); // at first
    });
    window.signal_focus_in_event().connect([surface](GdkEventFocus*) {
        gtk_layer_set_keyboard_mode(surface, GTK_LAYER_SHELL_KEYBOARD_MODE_ON_DEMAND); // lets others be turned to
        return false;
    });
}

/// Where nothing shines through a window, the panel has a ground of its own up to its corners.
void Panel::Window::followTheScreen()
{
    const auto screen = window.get_screen();
    const auto visual = screen->get_rgba_visual();
    const bool isOpaque = !visual || !screen->is_composited();
    if (visual)
        gtk_widget_set_visual(GTK_WIDGET(window.gobj()), visual->gobj());
    if (isOpaque)
        window.get_style_context()->add_class("opaque");
    else
        window.get_style_context()->remove_class("opaque");
}

void Panel::Window::arrange()
{
    m_surface.get_style_context()->add_class("surface");
    m_notice.get_style_context()->add_class("notice");
    m_notice.get_style_context()->add_class("callout");
    m_notice.set_xalign(0);
    m_notice.set_line_wrap();
    m_notice.set_max_width_chars(1); // as wide as the controls are
    setAccessibleRole(m_notice, AccessibleRole::notification);
    m_row.set_homogeneous();
    for (auto* const button : { &m_gallery, &m_quit }) {
        button->get_style_context()->add_class("quiet");
        button->get_style_context()->add_class("callout");
    }
    m_foot.pack_start(m_gallery, Gtk::PACK_SHRINK);
    m_foot.pack_end(m_quit, Gtk::PACK_SHRINK);
    m_surface.pack_start(m_notice, Gtk::PACK_SHRINK);
    m_surface.pack_start(m_row, Gtk::PACK_SHRINK);
    m_surface.pack_start(m_foot, Gtk::PACK_SHRINK);
    window.add(m_surface);
    m_surface.show_all();
}

void Panel::Window::listen()
{
    const auto call = [this](std::function<void()> PanelEvents::*event) {
        return [this, event] {
            window.hide();
            if (m_events.*event)
                (m_events.*event)();
        };
    };
    m_gallery.signal_clicked().connect(call(&PanelEvents::galleryChosen));
    m_quit.signal_clicked().connect(call(&PanelEvents::quitChosen));
    window.signal_hide().connect([this] {
        if (m_events.closed)
            m_events.closed();
    });
    const auto hide = [this] {
        window.hide();
        return true;
    };
    window.signal_delete_event().connect([hide](GdkEventAny*) { return hide(); });
    window.signal_focus_out_event().connect([hide](GdkEventFocus*) {
        hide();
        return false;
    });
    window.signal_key_press_event().connect(
        [hide](GdkEventKey* event) { return event->keyval == GDK_KEY_Escape && hide(); }, false);
    window.get_screen()->signal_composited_changed().connect(sigc::track_obj([this] { followTheScreen(); }, window));
}

void Panel::Window::show(const PanelContent& content)
{
    if (!areTheSameControls(m_controls, content.controls))
        offer(content.controls);
    m_controls = content.controls;
    for (std::size_t i = 0; i < m_tiles.size(); ++i)
        m_tiles[i]->show(m_controls[i]);
    m_style.use(panelStyleSheet(windowName, content.style));
    window.set_title(content.words.title);
    m_notice.set_text(content.notice.value_or(""));
    m_notice.set_visible(content.notice.has_value());
    m_row.set_visible(!m_controls.empty());
    m_gallery.set_label(content.words.addWidgets);
    m_quit.set_label(content.words.quit);
    setDirection(window, content.isRightToLeft);
    if (gtk_layer_is_layer_window(window.gobj()) != FALSE) {
        gtk_layer_set_anchor(window.gobj(), GTK_LAYER_SHELL_EDGE_RIGHT, content.isRightToLeft ? FALSE : TRUE);
        gtk_layer_set_anchor(window.gobj(), GTK_LAYER_SHELL_EDGE_LEFT, content.isRightToLeft ? TRUE : FALSE);
    }
}

void Panel::Window::offer(const std::vector<ControlFace>& controls)
{
    m_tiles.clear();
    for (const auto& control : controls) {
        auto& tile = *m_tiles.emplace_back(std::make_unique<ControlTile>(
            control.isToggle, [this, kind = control.kind](std::optional<bool> wanted) { use(kind, wanted); }));
        m_row.pack_start(tile.widget());
    }
}

void Panel::Window::use(const std::string& kind, std::optional<bool> wanted)
{
    if (m_events.used)
        m_events.used(kind, wanted, activationToken(gtk_get_current_event_time()));
}

Panel::Panel(PanelEvents events) : m_window(std::make_unique<Window>(std::move(events))) { }
Panel::~Panel() = default;

void Panel::show(const PanelContent& content)
{
    m_window->show(content);
}

void Panel::raise(const std::string& activationToken)
{
    auto& window = m_window->window;
    if (!activationToken.empty())
        window.set_startup_id(activationToken);
    window.present();
}

void Panel::hide()
{
    m_window->window.hide();
}

bool Panel::isInSight() const
{
    return m_window->window.get_visible();
}

}

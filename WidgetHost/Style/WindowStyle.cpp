#include "WidgetHost/Style/WindowStyle.h"

#include "OrvelDesign/DesignBundle.h"
#include "OrvelPlatform/Base/Precondition.h"
#include "OrvelPlatform/Drawing/FontFolder.h"

#include <gtkmm.h>

namespace orvel {

struct WindowStyle::Parts {
    Glib::RefPtr<Gdk::Screen> screen;
    Glib::RefPtr<Gtk::CssProvider> provider = Gtk::CssProvider::create();
    std::string styleSheet;
};

WindowStyle::WindowStyle(Gtk::Window& window, const std::string& name)
    : m_parts(std::make_unique<Parts>(Parts { .screen = window.get_screen(), .styleSheet = {} }))
{
    [[maybe_unused]] static const bool haveFonts = (addFontsToProcess(designBundle().resources() / "Fonts"), true);
    window.set_name(name);
    // A provider of a widget's own says nothing of what is in it: the window's name keeps this one to the window.
    Gtk::StyleContext::add_provider_for_screen(
        m_parts->screen, m_parts->provider, GTK_STYLE_PROVIDER_PRIORITY_USER + 1);
}

WindowStyle::~WindowStyle()
{
    Gtk::StyleContext::remove_provider_for_screen(m_parts->screen, m_parts->provider);
}

void WindowStyle::use(const std::string& styleSheet)
{
    if (styleSheet == m_parts->styleSheet)
        return;
    try {
        m_parts->provider->load_from_data(styleSheet);
    } catch (const Glib::Error& error) {
        fatalError("a style sheet of ours is no style sheet: " + std::string(error.what()));
    }
    m_parts->styleSheet = styleSheet;
}

void setDirection(Gtk::Widget& widget, bool isRightToLeft)
{
    widget.set_direction(isRightToLeft ? Gtk::TEXT_DIR_RTL : Gtk::TEXT_DIR_LTR);
    if (auto* const container = dynamic_cast<Gtk::Container*>(&widget))
        container->forall([&](Gtk::Widget& child) { setDirection(child, isRightToLeft); });
}

}

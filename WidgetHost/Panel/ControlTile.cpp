#include "WidgetHost/Panel/ControlTile.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "WidgetHost/Panel/PanelStyle.h"
#include "WidgetHost/Style/Accessible.h"

#include <gtkmm.h>

namespace orvel {

namespace {

using Context = Cairo::RefPtr<Cairo::Context>;

/// A picture file's picture, as large as it is to be drawn. Null for what is no picture.
Glib::RefPtr<Gdk::Pixbuf> decoded(const std::string& file, int side)
{
    try {
        const auto loader = Gdk::PixbufLoader::create();
        loader->set_size(side, side);
        loader->write(reinterpret_cast<const guint8*>(file.data()), file.size());
        loader->close();
        return loader->get_pixbuf();
    } catch (const Glib::Error&) {
        return {};
    }
}

Gdk::RGBA platformColor(const ControlValue::Color& color)
{
    Gdk::RGBA result;
    result.set_rgba(color.red, color.green, color.blue, color.alpha);
    return result;
}

std::unique_ptr<Gtk::Button> makeButton(bool isToggle)
{
    if (isToggle)
        return std::make_unique<Gtk::ToggleButton>();
    return std::make_unique<Gtk::Button>();
}

}

struct ControlTile::Parts {
    std::unique_ptr<Gtk::Button> button;
    Gtk::ToggleButton* toggle; // the same, or null
    Gtk::Box row { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(TileMetrics::symbolGap) };
    Gtk::DrawingArea symbol;
    Gtk::Box texts { Gtk::ORIENTATION_VERTICAL, static_cast<int>(TileMetrics::textGap) };
    Gtk::Label title;
    Gtk::Label value;

    ControlFace face {};
    Glib::RefPtr<Gdk::Pixbuf> icon;
    int iconSide = 0; // pixels that the icon was decoded for
    bool isShowing = false; // what changes meanwhile was done by nobody
    std::function<void(std::optional<bool>)> used;

    Parts(bool isToggle, std::function<void(std::optional<bool>)> itsUsed);
    void arrange();
    void decodeIcon();
    void draw(const Context& context);
};

ControlTile::Parts::Parts(bool isToggle, std::function<void(std::optional<bool>)> itsUsed)
    : button(makeButton(isToggle)), toggle(dynamic_cast<Gtk::ToggleButton*>(button.get())), used(std::move(itsUsed))
{
    arrange();
    button->signal_clicked().connect([this] {
        if (!isShowing && used)
            used(toggle ? std::optional(toggle->get_active()) : std::nullopt);
    });
    symbol.signal_draw().connect([this](const Context& context) {
        draw(context);
        return true;
    });
}

void ControlTile::Parts::arrange()
{
    button->get_style_context()->add_class("tile");
    symbol.get_style_context()->add_class("symbol");
    title.get_style_context()->add_class("headline");
    value.get_style_context()->add_class("subheadline");
    value.get_style_context()->add_class("secondary");
    symbol.set_size_request(static_cast<int>(TileMetrics::circle), static_cast<int>(TileMetrics::circle));
    symbol.set_valign(Gtk::ALIGN_CENTER);
    texts.set_valign(Gtk::ALIGN_CENTER);
    for (auto* const label : { &title, &value }) {
        label->set_xalign(0);
        texts.pack_start(*label, Gtk::PACK_SHRINK);
    }
    row.pack_start(symbol, Gtk::PACK_SHRINK);
    row.pack_start(texts, Gtk::PACK_EXPAND_WIDGET);
    button->add(row);
    button->show_all();
}

void ControlTile::Parts::decodeIcon()
{
    const auto side = static_cast<int>(std::lround(TileMetrics::symbol * symbol.get_scale_factor()));
    if (side == std::exchange(iconSide, side))
        return;
    icon = face.icon ? decoded(*face.icon, side) : Glib::RefPtr<Gdk::Pixbuf>();
}

void ControlTile::Parts::draw(const Context& context)
{
    decodeIcon();
    const auto style = symbol.get_style_context();
    const bool isOn = toggle && toggle->get_active();
    constexpr double middle = TileMetrics::circle / 2;
    context->arc(middle, middle, middle, 0, 2 * std::numbers::pi);
    Gdk::Cairo::set_source_rgba(
        context, isOn && face.tint ? platformColor(*face.tint) : style->get_background_color(style->get_state()));
    context->fill();
    if (!icon)
        return;
    const auto surface = Gdk::Cairo::create_surface_from_pixbuf(icon, symbol.get_scale_factor());
    Gdk::Cairo::set_source_rgba(context, style->get_color(style->get_state()));
    context->mask(surface, middle - TileMetrics::symbol / 2, middle - TileMetrics::symbol / 2);
}

ControlTile::ControlTile(bool isToggle, std::function<void(std::optional<bool>)> used)
    : m_parts(std::make_unique<Parts>(isToggle, std::move(used)))
{
}

ControlTile::~ControlTile() = default;

Gtk::Button& ControlTile::widget()
{
    return *m_parts->button;
}

void ControlTile::show(const ControlFace& face)
{
    auto& parts = *m_parts;
    parts.isShowing = true;
    if (face.icon != parts.face.icon)
        parts.iconSide = 0;
    parts.face = face;
    parts.title.set_text(face.title);
    parts.value.set_text(face.value);
    const auto style = parts.value.get_style_context();
    if (face.isWaiting)
        style->add_class("waiting");
    else
        style->remove_class("waiting");
    if (parts.toggle)
        parts.toggle->set_active(face.isOn);
    parts.button->set_sensitive(face.isEnabled);
    parts.symbol.queue_draw();
    setAccessibleName(*parts.button, face.title);
    setAccessibleDescription(*parts.button, face.spokenState.value_or(face.value));
    parts.isShowing = false;
}

}

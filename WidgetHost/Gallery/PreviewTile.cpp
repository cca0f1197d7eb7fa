#include "WidgetHost/Gallery/PreviewTile.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "OrvelDesign/ToastTiming.h"
#include "WidgetHost/Gallery/GalleryStyle.h"
#include "WidgetHost/Style/Accessible.h"

#include <gtkmm.h>

namespace orvel {

namespace {

using Context = Cairo::RefPtr<Cairo::Context>;

void roundedRectangle(const Context& context, const Size& size, double radius)
{
    constexpr double quarter = std::numbers::pi / 2;
    context->begin_new_path();
    context->arc(size.width - radius, radius, radius, -quarter, 0);
    context->arc(size.width - radius, size.height - radius, radius, 0, quarter);
    context->arc(radius, size.height - radius, radius, quarter, 2 * quarter);
    context->arc(radius, radius, radius, 2 * quarter, 3 * quarter);
    context->close_path();
}

/// The picture's pixels where they lie, or nothing where it has none in full colour.
std::span<const std::uint32_t> pixels(const HostPicture* picture)
{
    if (!picture)
        return {};
    for (const auto& layer : picture->layers) {
        const auto* const mapped = std::get_if<MappedPixels>(&layer.content);
        if (mapped && layer.name == "whole")
            return mapped->pixels();
    }
    return {};
}

/// Fills a size with a picture; device pixel for device pixel where it was drawn for this scale.
void paint(const Context& context, const HostPicture& picture, std::span<const std::uint32_t> pixels, const Size& size)
{
    const auto width = static_cast<int>(picture.width), height = static_cast<int>(picture.height);
    // The surface is a source only, and never written to.
    auto* const bytes = const_cast<std::uint32_t*>(pixels.data());
    const auto surface = Cairo::ImageSurface::create(
        reinterpret_cast<unsigned char*>(bytes), Cairo::FORMAT_ARGB32, width, height, static_cast<int>(picture.stride));
    context->save();
    roundedRectangle(context, size, GalleryMetrics::corner);
    context->clip();
    context->scale(size.width / width, size.height / height);
    context->set_source(surface, 0, 0);
    context->paint();
    context->restore();
    surface->finish();
}

}

struct PreviewTile::Parts {
    Gtk::Button button;
    Gtk::Box column { Gtk::ORIENTATION_VERTICAL };
    Gtk::Box frame;
    Gtk::Overlay layers;
    Gtk::DrawingArea area;
    Gtk::Label placeholder;
    Gtk::Box caption;
    Gtk::Label sizeName;
    Gtk::Label add;

    GalleryPreview preview {};
    std::string description;
    GalleryWords words {};
    sigc::connection isAddedNoMore;
    std::function<void()> chosen;

    explicit Parts(std::function<void()> itsChosen);
    ~Parts() { isAddedNoMore.disconnect(); }

    void choose();
    void sayWhatAClickDoes();
    bool draw(const Context& context) const;
};

PreviewTile::Parts::Parts(std::function<void()> itsChosen) : chosen(std::move(itsChosen))
{
    button.get_style_context()->add_class("preview");
    frame.get_style_context()->add_class("picture");
    caption.get_style_context()->add_class("caption");
    sizeName.get_style_context()->add_class("headline");
    add.get_style_context()->add_class("headline");
    add.get_style_context()->add_class("add");
    placeholder.get_style_context()->add_class("secondary");

    layers.add(area);
    layers.add_overlay(placeholder);
    frame.pack_start(layers);
    frame.set_halign(Gtk::ALIGN_CENTER);
    caption.pack_start(sizeName, Gtk::PACK_SHRINK);
    caption.pack_end(add, Gtk::PACK_SHRINK);
    add.set_valign(Gtk::ALIGN_CENTER);
    column.pack_start(frame, Gtk::PACK_SHRINK);
    column.pack_start(caption, Gtk::PACK_SHRINK);
    button.add(column);
    button.show_all();

    button.signal_clicked().connect([this] { choose(); });
    area.signal_draw().connect([this](const Context& context) { return draw(context); });
}

void PreviewTile::Parts::choose()
{
    isAddedNoMore.disconnect();
    isAddedNoMore = Glib::signal_timeout().connect(
        [this] {
            isAddedNoMore = {};
            sayWhatAClickDoes();
            return false;
        },
        static_cast<unsigned>(std::lround(ToastTiming::visible * 1000)));
    sayWhatAClickDoes();
    if (chosen)
        chosen();
}

void PreviewTile::Parts::sayWhatAClickDoes()
{
    const bool isAdded = isAddedNoMore.connected();
    add.set_text(isAdded ? words.added : words.add);
    setAccessibleDescription(button, isAdded ? words.added : description);
}

bool PreviewTile::Parts::draw(const Context& context) const
{
    if (const auto its = pixels(preview.picture.get()); !its.empty())
        paint(context, *preview.picture, its, preview.size);
    return true;
}

PreviewTile::PreviewTile(std::function<void()> chosen) : m_parts(std::make_unique<Parts>(std::move(chosen))) { }
PreviewTile::~PreviewTile() = default;

Gtk::Button& PreviewTile::widget()
{
    return m_parts->button;
}

void PreviewTile::show(const GallerySection& section, const GalleryPreview& preview, const GalleryWords& words)
{
    auto& parts = *m_parts;
    parts.preview = preview;
    parts.words = words;
    parts.area.set_size_request(
        static_cast<int>(std::ceil(preview.size.width)), static_cast<int>(std::ceil(preview.size.height)));
    parts.area.queue_draw();
    parts.placeholder.set_text(section.name);
    parts.placeholder.set_visible(pixels(preview.picture.get()).empty());
    parts.sizeName.set_text(preview.sizeName);
    parts.description = section.description;
    parts.sayWhatAClickDoes();
    setAccessibleName(parts.button, preview.addSpoken);
}

}

#include "WidgetHost/Gallery/Gallery.h"

#include <algorithm>
#include <utility>

#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Gallery/GalleryStyle.h"
#include "WidgetHost/Gallery/PreviewTile.h"
#include "WidgetHost/Gallery/SettingsBar.h"
#include "WidgetHost/Gallery/WrappingRow.h"
#include "WidgetHost/Style/Accessible.h"
#include "WidgetHost/Style/WindowStyle.h"

#include <gtkmm.h>

namespace orvel {

namespace {

namespace Space = Tokens::Space;

constexpr const char* windowName = "orvel-gallery";

/// How far words stand within their column, so that they line up with the pictures and not with the buttons round them.
constexpr int tileInset = static_cast<int>(GalleryMetrics::tileInset);

void makeText(Gtk::Label& label, const char* styleClass)
{
    label.get_style_context()->add_class(styleClass);
    label.set_xalign(0);
    label.set_margin_start(tileInset);
    label.set_margin_end(tileInset);
    label.set_line_wrap();
    label.set_line_wrap_mode(Pango::WRAP_WORD_CHAR);
}

bool offersTheSame(const std::vector<GallerySection>& some, const std::vector<GallerySection>& others)
{
    return std::ranges::equal(some, others, [](const GallerySection& one, const GallerySection& other) {
        return one.kind == other.kind
            && std::ranges::equal(one.previews, other.previews, {}, &GalleryPreview::family, &GalleryPreview::family);
    });
}

/// One widget of the extension: its name, what it is for, and its previews.
class SectionView {
public:
    SectionView(const GallerySection& section, const GalleryEvents& events)
    {
        makeText(m_name, "title1");
        makeText(m_description, "body");
        m_description.get_style_context()->add_class("secondary");
        setAccessibleRole(m_name, AccessibleRole::heading);
        for (const auto& preview : section.previews) {
            auto& tile = *m_tiles.emplace_back(
                std::make_unique<PreviewTile>([&events, kind = section.kind, family = preview.family] {
                    if (events.addChosen)
                        events.addChosen(kind, family);
                }));
            m_row.add(tile.widget());
        }
        m_row.set_margin_top(static_cast<int>(Space::s1));
        m_column.pack_start(m_name, Gtk::PACK_SHRINK);
        m_column.pack_start(m_description, Gtk::PACK_SHRINK);
        m_column.pack_start(m_row, Gtk::PACK_SHRINK);
        m_column.show_all();
    }

    void show(const GallerySection& section, const GalleryWords& words)
    {
        m_name.set_text(section.name);
        m_description.set_text(section.description);
        for (std::size_t i = 0; i < m_tiles.size(); ++i)
            m_tiles[i]->show(section, section.previews[i], words);
    }

    Gtk::Widget& widget() { return m_column; }
    const std::vector<std::unique_ptr<PreviewTile>>& tiles() const { return m_tiles; }

private:
    Gtk::Box m_column { Gtk::ORIENTATION_VERTICAL, static_cast<int>(Space::s1) };
    Gtk::Label m_name;
    Gtk::Label m_description;
    Gtk::Box& m_row = makeWrappingRow(static_cast<int>(Space::s2), static_cast<int>(Space::s2));
    std::vector<std::unique_ptr<PreviewTile>> m_tiles;
};

}

class Gallery::Window {
    GalleryEvents m_events; // first: the window's end is an event too

public:
    explicit Window(GalleryEvents events);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window() { m_events = {}; } // nobody does what happens from now on

    void show(const GalleryContent& content);

    Gtk::Window window { Gtk::WINDOW_TOPLEVEL };

private:
    void arrange();
    void offer(const std::vector<GallerySection>& sections);
    std::optional<std::pair<std::string, std::string>> focusedPreview() const;
    void showWarning(const std::optional<GalleryWarning>& warning, const std::string& tryAgain);

    std::optional<GalleryContent> m_content;
    WindowStyle m_style { window, windowName };
    Gtk::HeaderBar m_header;
    Gtk::Box m_column { Gtk::ORIENTATION_VERTICAL };
    Gtk::ScrolledWindow m_scrolling;
    Gtk::Box m_page { Gtk::ORIENTATION_VERTICAL, static_cast<int>(Space::s8) };
    Gtk::Label m_title;
    Gtk::Box m_warning { Gtk::ORIENTATION_HORIZONTAL, static_cast<int>(Space::s4) };
    Gtk::Label m_warningSentence;
    Gtk::Button m_tryAgain;
    std::vector<std::unique_ptr<SectionView>> m_sections;
    SettingsBar m_settings;
};

Gallery::Window::Window(GalleryEvents events)
    : m_events(std::move(events)), m_settings(m_events.reducesTransparencyChosen, m_events.biggerTextChosen)
{
    arrange();
    m_tryAgain.signal_clicked().connect([this] {
        if (m_events.tryAgainChosen)
            m_events.tryAgainChosen();
    });
    window.signal_delete_event().connect([this](GdkEventAny*) {
        window.hide();
        return true;
    });
    window.signal_hide().connect([this] {
        if (m_events.closed)
            m_events.closed();
    });
    window.signal_key_press_event().connect(
        [this](GdkEventKey* event) {
            if (event->keyval != GDK_KEY_Escape)
                return false;
            window.hide();
            return true;
        },
        false);
    window.property_scale_factor().signal_changed().connect([this] {
        if (m_events.scaleChanged)
            m_events.scaleChanged(window.get_scale_factor());
    });
}

void Gallery::Window::arrange()
{
    m_header.set_show_close_button();
    m_header.set_has_subtitle(false);
    m_header.set_custom_title(*Gtk::make_managed<Gtk::Label>()); // the title stands on the page
    window.set_titlebar(m_header);

    makeText(m_title, "hero");
    setAccessibleRole(m_title, AccessibleRole::heading);
    makeText(m_warningSentence, "body");
    m_warningSentence.set_margin_start(0);
    m_warningSentence.set_margin_end(0);
    setAccessibleRole(m_warning, AccessibleRole::notification);
    m_warning.get_style_context()->add_class("warning");
    m_tryAgain.get_style_context()->add_class("capsule");
    m_tryAgain.get_style_context()->add_class("headline");
    m_tryAgain.set_valign(Gtk::ALIGN_CENTER);
    m_warning.set_margin_start(tileInset);
    m_warning.set_margin_end(tileInset);
    m_warning.pack_start(m_warningSentence, Gtk::PACK_EXPAND_WIDGET);
    m_warning.pack_start(m_tryAgain, Gtk::PACK_SHRINK);
    m_warning.set_no_show_all();
    m_warningSentence.show();

    constexpr int margin = static_cast<int>(GalleryMetrics::margin);
    m_page.set_margin_start(margin - tileInset);
    m_page.set_margin_end(margin - tileInset);
    m_page.set_margin_top(static_cast<int>(Space::s2));
    m_page.set_margin_bottom(margin);
    m_page.pack_start(m_title, Gtk::PACK_SHRINK);
    m_page.pack_start(m_warning, Gtk::PACK_SHRINK);
    m_scrolling.set_policy(Gtk::POLICY_NEVER, Gtk::POLICY_AUTOMATIC);
    m_scrolling.set_can_focus(false); // what is in it scrolls it
    m_scrolling.add(m_page);
    m_column.pack_start(m_scrolling, Gtk::PACK_EXPAND_WIDGET);
    m_column.pack_start(m_settings.widget(), Gtk::PACK_SHRINK);
    window.add(m_column);
    window.set_default_size(700, 760); // a small and a medium widget side by side, and most of a large one
    m_header.show_all();
    m_column.show_all();
}

void Gallery::Window::show(const GalleryContent& content)
{
    if (m_content == content)
        return;
    if (!m_content || !offersTheSame(m_content->sections, content.sections))
        offer(content.sections);
    m_content = content;

    m_style.use(galleryStyleSheet(windowName, content.style));
    window.set_title(content.words.title);
    m_title.set_text(content.words.title);
    showWarning(content.warning, content.words.tryAgain);
    for (std::size_t i = 0; i < m_sections.size(); ++i)
        m_sections[i]->show(content.sections[i], content.words);
    m_settings.show(content);
    setDirection(window, content.isRightToLeft);
}

void Gallery::Window::offer(const std::vector<GallerySection>& sections)
{
    const auto focused = focusedPreview();
    const bool isFirstOffer = m_sections.empty();
    m_sections.clear();
    for (const auto& section : sections) {
        auto& view = *m_sections.emplace_back(std::make_unique<SectionView>(section, m_events));
        m_page.pack_start(view.widget(), Gtk::PACK_SHRINK);
        for (std::size_t i = 0; i < section.previews.size(); ++i) {
            const bool isTheOne = focused == std::pair(section.kind, section.previews[i].family);
            // Before there was a preview, the toolkit could only give the keyboard to a setting.
            if (isTheOne || (isFirstOffer && &section == &sections.front() && i == 0))
                view.tiles()[i]->widget().grab_focus();
        }
    }
}

/// The kind and family of the preview that has the keyboard.
std::optional<std::pair<std::string, std::string>> Gallery::Window::focusedPreview() const
{
    for (std::size_t section = 0; section < m_sections.size(); ++section) {
        const auto& tiles = m_sections[section]->tiles();
        const auto found = std::ranges::find_if(tiles, [](const auto& tile) { return tile->widget().is_focus(); });
        if (found == tiles.end())
            continue;
        const auto& shown = m_content->sections[section];
        return std::pair(shown.kind, shown.previews[static_cast<std::size_t>(found - tiles.begin())].family);
    }
    return std::nullopt;
}

void Gallery::Window::showWarning(const std::optional<GalleryWarning>& warning, const std::string& tryAgain)
{
    m_warning.set_visible(warning.has_value());
    if (!warning)
        return;
    m_warningSentence.set_text(warning->sentence);
    m_tryAgain.set_label(tryAgain);
    m_tryAgain.set_visible(warning->canTryAgain);
}

Gallery::Gallery(GalleryEvents events) : m_window(std::make_unique<Window>(std::move(events))) { }
Gallery::~Gallery() = default;

void Gallery::show(const GalleryContent& content)
{
    m_window->show(content);
}

void Gallery::raise(const std::string& activationToken)
{
    auto& window = m_window->window;
    if (!activationToken.empty())
        window.set_startup_id(activationToken);
    window.present();
}

void Gallery::hide()
{
    m_window->window.hide();
}

bool Gallery::isInSight() const
{
    return m_window->window.get_visible();
}

double Gallery::scale() const
{
    return m_window->window.get_scale_factor();
}

}

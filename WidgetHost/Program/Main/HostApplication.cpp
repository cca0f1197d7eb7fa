#include "WidgetHost/Program/Main/HostApplication.h"

#include <tuple>
#include <utility>

#include "WidgetHost/Program/GalleryFilling.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

namespace {

WindowWords windowWords(const std::string& language)
{
    const HostWords words(language);
    WindowWords window {
        .size = words.size(),
        .families = {},
        .look = words.look(),
        .looks = {},
        .addWidgets = words.addWidgets(),
        .settings = words.settings(),
        .remove = words.removeWidget(),
    };
    for (const auto* family : { "systemSmall", "systemMedium", "systemLarge" })
        window.families.emplace(family, words.sizeName(family));
    for (std::size_t look = 0; look < window.looks.size(); ++look)
        window.looks[look] = words.lookName(static_cast<ChosenLook>(look));
    return window;
}

}

HostApplication::HostApplication(EventLoop& loop, std::function<void()> quit)
    : m_loop(loop)
    , m_quit(std::move(quit))
    , m_clock(loop)
    , m_requester(loop)
    , m_links(loop)
    , m_services(m_requester, m_links)
    , m_desk(m_clock, m_services, m_file, Homeland::current, listener())
    , m_windows(windowWords)
    , m_controls(loop, m_clock, m_requester,
          { .galleryChosen = [this](const std::string& token) { raiseGallery(token); }, .quitChosen = m_quit })
    , m_whenSet(m_clock.whenSet([this] {
        m_desk.clockWasSet();
        m_controls.clockWasSet();
    }))
    , m_zone("/etc/localtime", [this] { m_desk.homelandChanged(); })
    , m_settings(loop, [this](const DesktopAppearance& appearance) { m_desk.appearanceChanged(appearance); })
{
    auto center = WidgetCenterListener::listen(loop,
        { .reloadTimelines = [this](const auto& kinds) { m_desk.reload(kinds); },
            .reloadControls = [this](const auto& kinds) { m_controls.reload(kinds); } });
    if (center)
        m_center.emplace(*std::move(center));
}

HostApplication::~HostApplication()
{
    m_desk.save();
}

DeskListener HostApplication::listener()
{
    return {
        .faceChanged = [this](const std::string& id, const WidgetFace& face) { showFace(id, face); },
        .removed = [this](const std::string& id) { m_widgets.erase(id); },
        .galleryChanged = [this] { showRest(); },
    };
}

void HostApplication::showFace(const std::string& id, const WidgetFace& face)
{
    const auto found = m_widgets.find(id);
    if (found != m_widgets.end())
        return found->second.show(face);
    const auto [placed, isNew] = m_widgets.try_emplace(id, m_windows, m_desk.place(id), windowEvents(id));
    placed->second.show(face);
}

WidgetWindowEvents HostApplication::windowEvents(const std::string& id)
{
    return {
        .opened = [this, id](std::string token) { m_desk.open(id, std::move(token)); },
        .acted = [this, id](std::size_t action, std::string token) { m_desk.act(id, action, std::move(token)); },
        .moved = [this, id](WidgetPlace place) { m_desk.move(id, std::move(place)); },
        .scaleChanged = [this, id](double scale) { m_desk.setScale(id, scale); },
        .familyChosen = [this, id](const std::string& family) { m_desk.setFamily(id, family); },
        .lookChosen = [this, id](ChosenLook look) { m_desk.setLook(id, look); },
        .removeChosen = [this, id] { m_desk.remove(std::string(id)); },
        .galleryChosen = [this] { raiseGallery(); },
        .settingsChosen = {}, // they stand at the gallery's foot
    };
}

void HostApplication::add(const HostCall::Add& widget)
{
    m_desk.add(widget.kind, widget.family, widget.look);
    m_desk.save(); // whoever asked may list the widgets next
}

void HostApplication::raiseGallery(const std::string& activationToken)
{
    m_galleryEnd.reset();
    if (!m_gallery)
        m_gallery = std::make_unique<Gallery>(galleryEvents());
    m_desk.showPreviews(m_gallery->scale());
    showRest();
    m_gallery->raise(activationToken);
}

GalleryEvents HostApplication::galleryEvents()
{
    return {
        .addChosen = [this](const std::string& kind, const std::string& family) { m_desk.add(kind, family); },
        .reducesTransparencyChosen = [this](bool reduces) { m_desk.setSettings(reduces, m_desk.state().biggerText); },
        .biggerTextChosen = [this](int steps) { m_desk.setSettings(m_desk.state().reducesTransparency, steps); },
        .tryAgainChosen = [this] { m_desk.tryAgain(); },
        .scaleChanged = [this](double scale) { m_desk.showPreviews(scale); },
        .closed = [this] { m_galleryEnd = m_loop.whenIdle([this] { galleryClosed(); }); },
    };
}

/// Shows what is not a widget.
void HostApplication::showRest()
{
    if (const auto& around = m_desk.surroundings())
        m_controls.show(*around);
    if (m_gallery)
        m_gallery->show(galleryContent(m_desk));
}

/// A gallery out of sight costs nothing. Without it, without widgets and without a tray nobody could reach the host.
void HostApplication::galleryClosed()
{
    m_gallery.reset();
    m_desk.showPreviews(std::nullopt);
    if (m_desk.state().widgets.empty() && !m_controls.isInTray())
        m_quit();
}

}

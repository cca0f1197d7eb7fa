#include "WidgetHost/Program/Main/ControlSurfaces.h"

#include <algorithm>
#include <utility>

#include "WidgetHost/Program/ControlFilling.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

namespace {

std::optional<std::string> unlessEmpty(const std::string& token)
{
    return token.empty() ? std::nullopt : std::optional(token);
}

}

ControlSurfaces::ControlSurfaces(const EventLoop& loop, Clock& clock, WidgetRequester& requester, Events events)
    : m_loop(loop)
    , m_clock(clock)
    , m_events(std::move(events))
    , m_requests(requester)
    , m_center(clock, m_requests,
          { .changed = [this] { update(); },
              .useFailed = [this](const std::string&, const RequestFault& fault) { useFailed(fault); } })
{
}

ControlSurfaces::~ControlSurfaces() = default;

void ControlSurfaces::show(const Surroundings& around)
{
    if (m_around == around)
        return;
    m_around = around;
    if (!m_tray)
        placeTray();
    askForValues();
    update();
}

void ControlSurfaces::askForValues()
{
    m_areValuesWanted = m_areValuesWanted || m_panel || isInTray();
    if (!m_areValuesWanted || !m_around)
        return;
    auto environment = hostEnvironment(*m_around, {}, ChosenLook::automatic, 1);
    environment.family.reset();
    m_center.setEnvironment(environment);
}

/// A desktop without a bus has no tray either.
void ControlSurfaces::placeTray()
{
    const auto token = [](const TrayEvents::Token& given) { return given.value_or(""); };
    auto tray = Tray::place(m_loop, trayContent({ m_center.controls(), m_center.isReachable() }, *m_around),
        {
            .activated = [this, token](int, int, TrayEvents::Token given) { raisePanel(token(given)); },
            .menuAsked = [this, token](int, int, TrayEvents::Token given) { raisePanel(token(given)); },
            .chosen =
                [this, token](const std::string& id, TrayEvents::Token given) {
                    if (id == TrayLine::gallery)
                        m_events.galleryChosen(token(given));
                    else if (id == TrayLine::quit)
                        m_events.quitChosen();
                    else if (const auto kind = controlOfLine(id))
                        m_center.use(*kind, std::move(given));
                },
            .trayCame = [this] { askForValues(); },
        });
    if (tray)
        m_tray.emplace(*std::move(tray));
}

void ControlSurfaces::update()
{
    if (!m_around)
        return;
    const ShownControls shown { m_center.controls(), m_center.isReachable() };
    if (m_tray)
        m_tray->show(trayContent(shown, *m_around));
    if (m_panel)
        m_panel->show(panelContent(shown, *m_around, m_trouble));
}

void ControlSurfaces::raisePanel(const std::string& activationToken)
{
    m_panelEnd.reset();
    if (!m_panel)
        m_panel = std::make_unique<Panel>(panelEvents());
    askForValues();
    update();
    m_panel->raise(activationToken);
}

PanelEvents ControlSurfaces::panelEvents()
{
    return {
        .used = [this](const std::string& kind, std::optional<bool> wanted,
                    const std::string& token) { use(kind, wanted, unlessEmpty(token)); },
        .galleryChosen = [this] { m_events.galleryChosen({}); },
        .quitChosen = [this] { m_events.quitChosen(); },
        .closed = [this] { m_panelEnd = m_loop.whenIdle([this] { m_panel.reset(); }); },
    };
}

/// What a click wanted may be so already, when the value changed at the same time.
void ControlSurfaces::use(
    const std::string& kind, std::optional<bool> wanted, std::optional<std::string> activationToken)
{
    const auto& controls = m_center.controls();
    const auto control =
        std::ranges::find_if(controls, [&](const ShownControl& shown) { return shown.member.kind == kind; });
    if (control == controls.end() || (wanted && control->isOn() == *wanted))
        return update();
    m_center.use(kind, std::move(activationToken));
}

void ControlSurfaces::useFailed(const RequestFault& fault)
{
    if (fault.kind == RequestFault::Kind::busy)
        return; // a second click while the first is being performed asks for nothing more
    m_trouble = HostWords(m_around->home.language).couldNotAct();
    m_troubleEnd = m_clock.after(troubleSpan, [this] {
        m_trouble.reset();
        update();
    });
    update();
}

}

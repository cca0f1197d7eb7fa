#include "WidgetHost/Windows/WindowContent.h"

#include <chrono>
#include <cmath>
#include <utility>

#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Windows/ActivationToken.h"
#include "WidgetHost/Windows/CardViews.h"
#include "WidgetHost/Windows/FacePainter.h"
#include "WidgetHost/Windows/WidgetMenu.h"
#include "WidgetHost/Windows/WindowToolkit.h"

#include <gtkmm.h>

namespace orvel {

namespace {

constexpr double fineStep = Tokens::Space::s1;

/// A card whose picture comes sooner shows nothing before it: nobody would have the time to read a name.
constexpr std::chrono::milliseconds wordlessSpan { 250 };

}

WindowContent::WindowContent(DesktopWindows& windows, std::optional<WidgetPlace> place, WidgetWindowEvents events)
    : m_windows(windows), m_events(std::move(events)), m_place(std::move(place))
{
    m_surface = WindowSurface::of(m_toolkit.window(), [this](_cairo* context) { paintCard(context); });
    m_parts = std::make_unique<WidgetParts>(m_toolkit.window(),
        WidgetParts::Doing {
            [this] { open(); }, [this](std::size_t action) { act(action); }, [this] { repaintAll(); } });
    listen();
    m_membership.emplace(windows, *this);
}

WindowContent::~WindowContent() = default;

void WindowContent::leave()
{
    m_events = {};
    m_membership.reset();
    m_shown.reset();
    m_toolkit.window().hide();
}

void WindowContent::listen()
{
    m_toolkit.listen({
        .paint = [this](_cairo* context) { paint(context); },
        .pressed = [this](const Grip& grip) { pressed(grip); },
        .pointed = [this](const PointerPlace& pointer) { pointed(pointer); },
        .released = [this](const PointerPlace& pointer, std::uint32_t time) { released(pointer, time); },
        .keyPressed = [this](const KeyPress& press) { return keyPressed(press); },
        .menuWanted = [this](const _GdkEvent* event) { openMenu(event); },
        .closed = [this] { closed(); },
        .focusChanged = [this] { repaintAll(); },
        .surroundingsChanged = [this] { surroundingsChanged(); },
    });
}

// What is seen

void WindowContent::show(WidgetFace face)
{
    const bool isFirst = !m_face;
    const auto changed = isFirst ? FaceChange { true, true, true, {} } : change(*m_face, face);
    const bool isRenamed = isFirst || m_face->name != face.name;
    m_face = std::move(face);
    if (changed.card)
        layOut();
    else if (changed.parts)
        m_parts->show(*m_face, m_geometry);
    if (!changed.card && changed.notice)
        makeNotice();
    repaint(changed);
    if (isRenamed)
        m_toolkit.window().set_title(m_face->name);
    if (!isFirst)
        return;
    outputsChanged();
    if (!m_face->picture)
        m_toolkit.after(wordlessSpan, [this] { sayName(); });
}

void WindowContent::sayName()
{
    m_saysName = true;
    makePlaceholder();
    if (m_placeholder)
        m_toolkit.repaint(m_placeholder->place);
}

void WindowContent::makePlaceholder()
{
    m_placeholder = m_saysName ? m_windows.pictures().placeholder(*m_face, m_geometry) : nullptr;
}

void WindowContent::layOut()
{
    const double scale = m_toolkit.scale();
    m_geometry = windowGeometry(*m_face, scale, m_toolkit.isComposited());
    m_parts->show(*m_face, m_geometry);
    m_toolkit.takePointerIn(rowsOfCard(m_geometry));
    m_toolkit.saySurround(static_cast<int>(m_geometry.card.x));
    makeFrame();
    makePlaceholder();
    makeNotice();
    putInPlace();
    if (std::exchange(m_toldScale, scale) != scale && m_events.scaleChanged)
        m_events.scaleChanged(scale);
}

void WindowContent::makeNotice()
{
    if (m_notice)
        m_toolkit.repaint(m_notice->place);
    m_notice = m_windows.pictures().notice(*m_face, m_geometry);
    if (m_notice)
        m_toolkit.repaint(m_notice->place);
}

void WindowContent::surroundingsChanged()
{
    if (!m_face)
        return;
    layOut();
    m_toolkit.window().queue_draw();
}

void WindowContent::repaint(const FaceChange& change)
{
    if (change.card)
        return m_toolkit.window().queue_draw();
    const auto& card = m_geometry.card;
    if (change.pixels && isDrawnFor(*m_face->picture, m_face->size, m_geometry.scale)) {
        const double point = 1 / m_geometry.scale;
        m_toolkit.repaint({ card.x + change.pixels->x * point, card.y + change.pixels->y * point,
            change.pixels->width * point, change.pixels->height * point });
    } else if (change.pixels) {
        m_toolkit.repaint(card);
    }
}

bool WindowContent::showsFocus() const
{
    return m_isKeyboardUsed && m_toolkit.hasKeyboard();
}

void WindowContent::makeFrame()
{
    const auto action = m_parts->focusedAction();
    const bool isWholeFocused = showsFocus() && !action;
    m_frame = m_windows.pictures().frame(
        *m_face, m_geometry, cardGround(*m_face, m_toolkit.isComposited()).hasEdge, isWholeFocused);
    m_ring.reset();
    if (showsFocus() && action && m_face->picture && *action < m_face->picture->actions.size())
        m_ring = m_windows.pictures().ring(*m_face, m_geometry,
            placeInWindow(m_face->picture->actions[*action].frame, m_geometry, m_face->pointScale));
}

void WindowContent::repaintAll()
{
    if (!m_face)
        return;
    makeFrame();
    m_toolkit.window().queue_draw();
}

void WindowContent::paint(_cairo* context)
{
    if (m_surface->isLifted())
        return paintNothing(context);
    paintCard(context);
    m_surface->settled();
}

void WindowContent::paintCard(_cairo* context)
{
    if (!m_face)
        return;
    std::optional<Rect> held;
    if (m_press && m_press->action && !m_press->isDrag && m_face->picture
        && *m_press->action < m_face->picture->actions.size())
        held = placeInWindow(m_face->picture->actions[*m_press->action].frame, m_geometry, m_face->pointScale);
    orvel::paint(context,
        { .face = *m_face,
            .geometry = m_geometry,
            .ground = cardGround(*m_face, m_toolkit.isComposited()),
            .frame = m_frame.get(),
            .pictures = { m_placeholder.get(), m_notice.get(), m_ring.get() },
            .isRingedInside = m_geometry.card.x == 0 && showsFocus() && !m_parts->focusedAction(),
            .pressed = held });
}

// Where it is

void WindowContent::outputsChanged()
{
    if (!m_face)
        return;
    putInPlace();
    auto& window = m_toolkit.window();
    if (!m_shown && m_surface->isPlaced()) {
        window.hide(); // there is no monitor to be on
    } else if (!window.get_visible()) {
        window.show();
        m_shownSince = g_get_monotonic_time();
        putInPlace(); // what was said to a window that was not there may have been lost
    }
}

void WindowContent::putInPlace()
{
    if (!m_surface->isPlaced())
        return;
    const auto& outputs = m_windows.outputs();
    const auto card = m_geometry.card.size();
    const bool isFirst = !m_place;
    m_shown = m_place ? shownPlace(*m_place, card, outputs) : freePlace(card, m_windows.takenBeside(*this), outputs);
    if (!m_shown)
        return;
    const double room = m_geometry.card.x;
    m_surface->put(m_shown->output, outputs[m_shown->output], { m_shown->card.x - room, m_shown->card.y - room });
    if (!isFirst)
        return;
    m_place = keptPlace(*m_shown, outputs);
    if (m_events.moved)
        m_events.moved(*m_place);
}

void WindowContent::moveTo(const WidgetPlace& place)
{
    m_place = place;
    if (m_face)
        putInPlace();
}

void WindowContent::dropAt(const PlacedCard& dropped)
{
    const auto& outputs = m_windows.outputs();
    const auto settled = droppedPlace(dropped, outputs);
    if (!settled)
        return;
    m_place = keptPlace(*settled, outputs);
    putInPlace();
    if (m_events.moved)
        m_events.moved(*m_place);
}

void WindowContent::moveBy(double x, double y)
{
    if (!m_shown)
        return;
    auto moved = *m_shown;
    moved.card.x += x;
    moved.card.y += y;
    dropAt(moved);
}

/// Somebody closed the window: a compositor does when its monitor goes.
void WindowContent::closed()
{
    if (!m_surface->isPlaced()) {
        if (m_events.removeChosen)
            m_events.removeChosen();
        return;
    }
    constexpr std::int64_t second = 1'000'000;
    const bool isToReturn = g_get_monotonic_time() - m_shownSince > second; // one that closes it at once means it
    m_toolkit.window().hide();
    if (isToReturn)
        m_toolkit.later([this] { m_windows.refresh(); });
}

// What is done with it

void WindowContent::pressed(const Grip& grip)
{
    m_isKeyboardUsed = false;
    m_press = Press { grip, m_face ? actionAt(*m_face, m_geometry, grip.at.onWindow) : std::nullopt };
    repaintAll();
}

void WindowContent::pointed(const PointerPlace& pointer)
{
    if (!m_press) {
        const bool isOnAction = m_face && actionAt(*m_face, m_geometry, pointer.onWindow);
        return m_toolkit.showHand(isOnAction);
    }
    if (!pointer.isHeld) // it was let go where nobody heard of it
        return m_press->isDrag ? released(pointer, m_eventTime) : m_press.reset();
    const auto from = m_press->grip.at.onWindow;
    if (!m_press->isDrag && m_toolkit.isDrag(from, pointer.onWindow)) {
        m_press->isDrag = true;
        m_surface->beginDrag(m_press->grip);
        repaintAll();
        if (!m_surface->isPlaced())
            return m_press.reset(); // somebody else has the pointer now
    }
    if (m_press->isDrag)
        m_surface->drag(pointer);
}

void WindowContent::released(const PointerPlace& pointer, std::uint32_t time)
{
    const auto press = std::exchange(m_press, std::nullopt);
    if (!press || !m_face)
        return;
    m_eventTime = time;
    if (press->isDrag) {
        const auto corner = m_surface->endDrag();
        const double room = m_geometry.card.x;
        if (corner && m_shown)
            dropAt({ m_shown->output, { { corner->x + room, corner->y + room }, m_geometry.card.size() } });
        return;
    }
    repaintAll();
    if (actionAt(*m_face, m_geometry, pointer.onWindow) != press->action)
        return;
    press->action ? act(*press->action) : open();
}

bool WindowContent::keyPressed(const KeyPress& press)
{
    const auto& [key, isAlt, isControl, isShift, time] = press;
    m_eventTime = time;
    const double step = isControl ? fineStep : placeGap;
    const auto move = [&, isHeld = isAlt != isControl](double x, double y) {
        if (isHeld)
            moveBy(x * step, y * step);
        return isHeld;
    };
    const bool wasSeen = std::exchange(m_isKeyboardUsed, true);
    if (!wasSeen)
        repaintAll();
    switch (key) {
    case GDK_KEY_Tab:
    case GDK_KEY_KP_Tab:
    case GDK_KEY_ISO_Left_Tab:
        if (wasSeen) // or it would go from where nobody saw it
            m_parts->moveFocus(isShift);
        return true;
    case GDK_KEY_Return:
    case GDK_KEY_KP_Enter:
    case GDK_KEY_ISO_Enter:
    case GDK_KEY_space:
    case GDK_KEY_KP_Space:
        m_parts->activate();
        return true;
    case GDK_KEY_Menu:
        openMenu(nullptr);
        return true;
    case GDK_KEY_F10:
        if (isShift)
            openMenu(nullptr);
        return isShift;
    case GDK_KEY_Left:
        return move(-1, 0);
    case GDK_KEY_Right:
        return move(1, 0);
    case GDK_KEY_Up:
        return move(0, -1);
    case GDK_KEY_Down:
        return move(0, 1);
    default:
        return false;
    }
}

void WindowContent::open()
{
    if (m_events.opened && m_face && m_face->picture && !m_face->picture->link.empty())
        m_events.opened(activationToken(m_eventTime));
}

void WindowContent::act(std::size_t action)
{
    if (m_events.acted && m_face && m_face->picture && action < m_face->picture->actions.size())
        m_events.acted(action, activationToken(m_eventTime));
}

void WindowContent::focus()
{
    m_isKeyboardUsed = true;
    m_toolkit.window().present();
    if (m_face)
        repaintAll();
}

void WindowContent::openMenu(const _GdkEvent* event)
{
    if (!m_face)
        return;
    m_press.reset();
    auto menu = makeMenu(*m_face, m_windows.words(m_face->language),
        { .family = m_events.familyChosen,
            .look = m_events.lookChosen,
            .gallery = m_events.galleryChosen,
            .settings = m_events.settingsChosen,
            .remove = m_events.removeChosen });
    m_toolkit.popUp(std::move(menu), event, m_geometry.card);
}

}

#include "WidgetHost/Desk/Desk.h"

#include <algorithm>
#include <utility>

#include "WidgetHost/Desk/Families.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

namespace {

/// The first number that no widget has.
std::string newId(const std::vector<PlacedWidget>& widgets)
{
    for (std::size_t number = 1;; ++number) {
        auto id = std::to_string(number);
        if (std::ranges::find(widgets, id, &PlacedWidget::id) == widgets.end())
            return id;
    }
}

Size scaled(Size size, double factor)
{
    return { size.width * factor, size.height * factor };
}

/// In the window's points.
Size sizeOf(const HostPicture& picture, const HostEnvironment& drawnIn)
{
    return scaled(
        { static_cast<double>(picture.width), static_cast<double>(picture.height) }, 1 / drawnIn.scale.value_or(1));
}

std::optional<std::string> unlessEmpty(std::string text)
{
    return text.empty() ? std::nullopt : std::optional(std::move(text));
}

}

Desk::Desk(Clock& clock, HostServices& services, HostStateFile& file, HomelandNow homeland, DeskListener listener)
    : m_clock(clock)
    , m_services(services)
    , m_file(file)
    , m_homeland(std::move(homeland))
    , m_listener(std::move(listener))
    , m_members(clock, services, [this] { tellAll(); })
    , m_previews(services, [this] { m_listener.galleryChanged(); })
    , m_schedule(clock, services, [this](const std::string& id, const ShownWidget& shown) { show(id, shown); })
{
    auto reading = m_file.read();
    m_state = std::move(reading.state);
    m_fileWarning = std::move(reading.warning);
}

PlacedWidget* Desk::find(std::string_view id)
{
    const auto found = std::ranges::find(m_state.widgets, id, &PlacedWidget::id);
    return found == m_state.widgets.end() ? nullptr : &*found;
}

std::optional<WidgetPlace> Desk::place(std::string_view id) const
{
    const auto found = std::ranges::find(m_state.widgets, id, &PlacedWidget::id);
    return found == m_state.widgets.end() ? std::nullopt : found->place;
}

std::string Desk::add(std::string kind, std::string family, ChosenLook look)
{
    auto id = newId(m_state.widgets);
    m_state.widgets.push_back({ id, std::move(kind), std::move(family), look, std::nullopt });
    changed();
    return id;
}

void Desk::remove(const std::string& id)
{
    if (std::erase_if(m_state.widgets, [&](const PlacedWidget& widget) { return widget.id == id; }) == 0)
        return;
    const auto wasTold = m_shown.erase(id) > 0;
    changed();
    if (wasTold)
        m_listener.removed(id);
}

void Desk::move(const std::string& id, WidgetPlace place)
{
    auto* widget = find(id);
    if (!widget || widget->place == place)
        return;
    widget->place = std::move(place);
    changed();
}

void Desk::setFamily(const std::string& id, const std::string& family)
{
    auto* widget = find(id);
    if (!widget || widget->family == family)
        return;
    widget->family = family;
    changed();
}

void Desk::setLook(const std::string& id, ChosenLook look)
{
    auto* widget = find(id);
    if (!widget || widget->look == look)
        return;
    widget->look = look;
    changed();
}

void Desk::setSettings(bool reducesTransparency, int biggerText)
{
    const auto steps = std::clamp(biggerText, 0, HostState::mostBiggerText);
    if (m_state.reducesTransparency == reducesTransparency && m_state.biggerText == steps)
        return;
    m_state.reducesTransparency = reducesTransparency;
    m_state.biggerText = steps;
    changed();
}

void Desk::setScale(const std::string& id, double scale)
{
    m_lastScale = scale;
    const auto found = m_shown.find(id);
    if (found == m_shown.end() || found->second.scale == scale)
        return;
    found->second.scale = scale;
    refresh();
}

/// The state is another one: everybody hears of it, the file a little later, once for many changes in a row.
void Desk::changed()
{
    m_isUnsaved = true;
    if (!m_saving)
        m_saving = m_clock.after(savingDelay, [this] { save(); });
    refresh();
}

void Desk::save()
{
    m_saving.reset();
    if (!m_isUnsaved)
        return;
    m_isUnsaved = !m_file.write(m_state);
    if (std::exchange(m_couldNotSave, m_isUnsaved) != m_isUnsaved)
        m_listener.galleryChanged();
}

void Desk::appearanceChanged(const DesktopAppearance& appearance)
{
    m_appearance = appearance;
    refresh();
}

void Desk::homelandChanged()
{
    refresh();
}

void Desk::reload(const std::vector<std::string>& kinds)
{
    refresh();
    m_schedule.reload(kinds);
    m_previews.forget();
    wantPreviews();
}

void Desk::clockWasSet()
{
    refresh();
    m_schedule.clockWasSet();
}

HostEnvironment Desk::environment(const PlacedWidget& widget, double scale) const
{
    return hostEnvironment(*m_around, widget.family, widget.look, scale);
}

/// Asks for all that is missing in the surroundings as they are now.
void Desk::refresh()
{
    if (!m_appearance)
        return;
    m_around = { *m_appearance, m_state.reducesTransparency, m_state.biggerText, m_homeland() };
    m_members.want({ .locale = m_around->home.locale, .language = m_around->home.language });
    std::vector<ScheduledWidget> widgets;
    for (const auto& widget : m_state.widgets) {
        const auto& shown = m_shown.try_emplace(widget.id, m_lastScale).first->second;
        widgets.push_back({ widget.id, widget.kind, environment(widget, shown.scale) });
    }
    m_schedule.setWidgets(widgets);
    wantPreviews();
    tellAll();
}

void Desk::wantPreviews()
{
    std::vector<Offer> offers;
    if (m_previewScale && m_around) {
        for (const auto& member : m_members.widgets()) {
            for (const auto& family : member.families)
                offers.push_back({ member.kind, family });
        }
    }
    if (m_around)
        m_previews.want(offers, hostEnvironment(*m_around, "", ChosenLook::automatic, m_previewScale.value_or(1)));
}

void Desk::showPreviews(std::optional<double> scale)
{
    if (m_previewScale == scale)
        return;
    m_previewScale = scale;
    wantPreviews();
}

Size Desk::previewSize(const Offer& offer) const
{
    if (!m_around)
        return cardSize(offer.family);
    return scaled(
        cardSize(offer.family), pointScale(hostEnvironment(*m_around, offer.family, ChosenLook::automatic, 1)));
}

void Desk::show(const std::string& id, const ShownWidget& shown)
{
    const auto found = m_shown.find(id);
    const auto* widget = find(id);
    if (found == m_shown.end() || !widget)
        return;
    found->second.shown = shown;
    tell(*widget);
}

void Desk::tell(const PlacedWidget& widget)
{
    const auto found = m_shown.find(widget.id);
    if (found == m_shown.end() || !m_around)
        return;
    auto now = face(widget, found->second);
    if (found->second.told == now)
        return;
    found->second.told = now;
    const auto id = widget.id;
    m_listener.faceChanged(id, now);
}

void Desk::tellAll()
{
    const auto widgets = m_state.widgets; // whoever is told may change them
    for (const auto& [id, kind, family, look, place] : widgets) {
        if (const auto* widget = find(id))
            tell(*widget);
    }
    wantPreviews();
    m_listener.galleryChanged();
}

/// A card is as its picture was drawn, and as it is to be while there is none.
WidgetFace Desk::face(const PlacedWidget& widget, const Shown& shown) const
{
    const HostWords words(m_around->home.language);
    const auto* member = m_members.widget(widget.kind);
    const auto& picture = shown.shown.picture;
    const auto in = picture ? *shown.shown.environment : environment(widget, shown.scale);
    return {
        .name = member ? member->displayName : words.galleryTitle(),
        .size = picture ? sizeOf(*picture, in) : scaled(cardSize(widget.family), pointScale(in)),
        .pointScale = pointScale(in),
        .picture = picture,
        .notice = notice(shown),
        .tint = isTinted(in) ? std::optional(tint(in, m_around->appearance)) : std::nullopt,
        .isDark = in.colorScheme == "dark",
        .increasesContrast = in.contrast == "increased",
        .reducesTransparency = in.reduceTransparency.value_or(false),
        .language = m_around->home.language,
        .family = widget.family,
        .families = member ? member->families : std::vector { widget.family },
        .look = widget.look,
        .isRightToLeft = words.isRightToLeft(),
    };
}

std::optional<std::string> Desk::notice(const Shown& shown) const
{
    if (shown.trouble)
        return shown.trouble;
    if (!shown.shown.staleSince)
        return std::nullopt;
    const HostWords words(m_around->home.language);
    if (!shown.shown.picture)
        return words.noAnswer();
    const auto since = m_around->home.timeZone.wallTime(*shown.shown.staleSince);
    return words.notUpToDate(m_around->home.locale.time(since));
}

void Desk::open(const std::string& id, std::string activationToken)
{
    const auto found = m_shown.find(id);
    if (found == m_shown.end() || !found->second.shown.picture || found->second.shown.picture->link.empty())
        return;
    const auto& link = found->second.shown.picture->link;
    keep(start(m_services.opened(link, unlessEmpty(std::move(activationToken))), [this, id](auto outcome) {
        if (!outcome || !*outcome)
            complain(id, HostWords(m_around->home.language).couldNotOpen());
    }));
}

void Desk::act(const std::string& id, std::size_t action, std::string activationToken)
{
    const auto found = m_shown.find(id);
    if (found == m_shown.end() || !found->second.shown.picture || action >= found->second.shown.picture->actions.size())
        return;
    const auto& chosen = found->second.shown.picture->actions[action];
    const IntentPlatform platform { unlessEmpty(std::move(activationToken)) };
    keep(start(m_services.perform(chosen.intent, chosen.parameters, platform), [this, id](auto outcome) {
        const auto isDone = outcome && *outcome;
        // A second click while the first is being performed asks for nothing more.
        const auto isBusy = outcome && !*outcome && outcome->error().kind == RequestFault::Kind::busy;
        if (!isDone && !isBusy)
            complain(id, HostWords(m_around->home.language).couldNotAct());
    }));
}

void Desk::keep(StartedTask errand)
{
    std::erase_if(m_errands, [](const StartedTask& done) { return done.isOver(); });
    if (!errand.isOver())
        m_errands.push_back(std::move(errand));
}

void Desk::complain(const std::string& id, std::string sentence)
{
    const auto found = m_shown.find(id);
    const auto* widget = find(id);
    if (found == m_shown.end() || !widget)
        return;
    found->second.trouble = std::move(sentence);
    found->second.troubleEnd = m_clock.after(troubleSpan, [this, id] {
        const auto shown = m_shown.find(id);
        if (shown == m_shown.end())
            return;
        shown->second.trouble.reset();
        if (const auto* placed = find(id))
            tell(*placed);
    });
    tell(*widget);
}

std::optional<std::string> Desk::warning() const
{
    const HostWords words(m_around ? m_around->home.language : m_homeland().language);
    if (m_members.isLastAnswerMissing())
        return words.noAnswer();
    if (m_couldNotSave)
        return words.couldNotSave();
    return m_fileWarning;
}

void Desk::tryAgain()
{
    m_members.askAnew();
    reload({});
}

}

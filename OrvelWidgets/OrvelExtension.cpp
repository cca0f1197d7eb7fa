#include "OrvelWidgets/OrvelExtension.h"

#include <system_error>
#include <utility>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelWidgets/ControlAnswer.h"
#include "OrvelWidgets/EntryAnswers.h"
#include "OrvelWidgets/IntentCall.h"
#include "OrvelWidgets/MemberAnswers.h"
#include "OrvelWidgets/OpaqueMoment.h"
#include "OrvelWidgets/OrvelProvider.h"
#include "OrvelWidgets/PictureAnswer.h"
#include "OrvelWidgets/Refusal.h"
#include "OrvelWidgets/RequestSurroundings.h"

namespace orvel {

namespace {

using Kind = WidgetSnapshot::Kind;

bool isWidget(std::string_view kind)
{
    return kind == Kind::status || kind == Kind::breathe;
}

std::unexpected<RequestFault> noWidget(std::string_view kind)
{
    return refusal(RequestFault::Kind::unknownKind, "There is no widget of the kind", kind);
}

ShownWidget shown(std::string_view kind, OrvelEntry entry, const EntryPlace& place)
{
    if (kind == Kind::breathe)
        return BreatheWidgetView { .entry = std::move(entry) }.shown(place);
    return StatusWidgetView { .entry = std::move(entry) }.shown(place);
}

OrvelProvider provider(const OrvelExtension::Sources& sources, const HostEnvironment& environment)
{
    return OrvelProvider({ .now = [&clock = sources.clock] { return clock.now(); },
        .calendar = [&environment] { return calendar(environment); },
        .snapshot = sources.snapshot });
}

OrvelProvider::Context context(const HostEnvironment& environment)
{
    return { .isPreview = environment.isPreview.value_or(false) };
}

/// Does what answers a request in the language that it names.
template <typename Work>
auto worded(const HostEnvironment& environment, Work work)
{
    return Copy::inLanguage(wordsLocale(environment), work);
}

}

OrvelExtension::OrvelExtension(Sources sources) : m_sources(std::move(sources)) { }

Answer<std::vector<ExtensionMember>> OrvelExtension::members(const HostEnvironment& environment)
{
    return worded(environment, extensionMembers);
}

Answer<ExtensionEntry> OrvelExtension::placeholder(std::string_view kind, const HostEnvironment& environment)
{
    if (!isWidget(kind))
        return noWidget(kind);
    return worded(environment,
        [&] { return extensionEntry(provider(m_sources, environment).placeholder(context(environment))); });
}

Answer<ExtensionEntry> OrvelExtension::snapshot(std::string_view kind, const HostEnvironment& environment)
{
    if (!isWidget(kind))
        return noWidget(kind);
    return worded(environment,
        [&] { return extensionEntry(provider(m_sources, environment).getSnapshot(context(environment))); });
}

Answer<ExtensionTimeline> OrvelExtension::timeline(std::string_view kind, const HostEnvironment& environment)
{
    if (!isWidget(kind))
        return noWidget(kind);
    return extensionTimeline(provider(m_sources, environment).getTimeline(context(environment)));
}

Answer<ExtensionPicture> OrvelExtension::render(
    std::string_view kind, const ExtensionEntry& entry, const HostEnvironment& environment)
{
    if (!isWidget(kind))
        return noWidget(kind);
    auto moment = momentFromOpaque(entry.moment, entry.date);
    if (!moment)
        return refusal(RequestFault::Kind::badEntry, "The entry's moment is damaged or of another version.");
    const auto widget = worded(environment,
        [&] { return shown(kind, { .date = entry.date, .moment = *std::move(moment) }, entryPlace(environment)); });
    m_preparation = {}; // over, before it is drawn with
    auto drawn = m_sources.draw(widgetDrawing(widget, environment));
    if (!drawn)
        return refusal(RequestFault::Kind::cannotDraw, drawn.error().text());
    return extensionPicture(*std::move(drawn), widget.link);
}

Answer<ControlValue> OrvelExtension::controlValue(std::string_view kind, const HostEnvironment& environment)
{
    if (kind != Kind::breatheControl && kind != Kind::focusControl)
        return refusal(RequestFault::Kind::unknownKind, "There is no control of the kind", kind);
    const auto snapshot = m_sources.snapshot();
    return worded(environment, [&] {
        if (kind == Kind::breatheControl)
            return breatheControlValue(snapshot);
        return focusControlValue(
            snapshot, m_sources.clock.now(), calendar(environment), ColorFlags::in(designEnvironment(environment)));
    });
}

Task<Answer<void>> OrvelExtension::perform(std::string intent, IntentParameters parameters, IntentPlatform platform)
{
    return performed(intentCall(intent, parameters),
        { .clock = m_sources.clock,
            .workspace = m_sources.workspace,
            .foreground = m_sources.foreground,
            .activationToken = std::move(platform.activationToken) });
}

void OrvelExtension::prepareForPictures()
{
    if (!m_sources.prepareForPictures)
        return;
    try {
        m_preparation = std::jthread(m_sources.prepareForPictures);
    } catch (const std::system_error&) {
        // Without a thread the first picture loads what it needs by itself.
    }
}

}

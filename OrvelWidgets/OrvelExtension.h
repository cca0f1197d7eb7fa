#pragma once

#include <expected>
#include <functional>
#include <optional>
#include <thread>

#include "OrvelPlatform/Base/Clock.h"
#include "OrvelPlatform/Base/Foreground.h"
#include "OrvelPlatform/Base/Workspace.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgetsUI/WidgetDrawing.h"

namespace orvel {

/// The extension: what its members, its provider, its views, its controls and its intents say to a host, each request
/// in the language, the zone and the appearance that it names. It keeps nothing between requests.
class OrvelExtension final : public WidgetExtension {
public:
    /// What it asks of the world. All that is referred to outlives it and the intents that it runs.
    struct Sources {
        std::function<std::optional<WidgetSnapshot>()> snapshot;
        std::function<std::expected<DrawnWidget, Fault>(const WidgetDrawing&)> draw;
        std::function<void()> prepareForPictures; // in a thread of its own, before the first `draw`; may be empty
        Clock& clock;
        Workspace& workspace;
        Foreground& foreground;
    };

    explicit OrvelExtension(Sources sources);

    Answer<std::vector<ExtensionMember>> members(const HostEnvironment& environment) override;
    Answer<ExtensionEntry> placeholder(std::string_view kind, const HostEnvironment& environment) override;
    Answer<ExtensionEntry> snapshot(std::string_view kind, const HostEnvironment& environment) override;
    Answer<ExtensionTimeline> timeline(std::string_view kind, const HostEnvironment& environment) override;
    Answer<ExtensionPicture> render(
        std::string_view kind, const ExtensionEntry& entry, const HostEnvironment& environment) override;
    Answer<ControlValue> controlValue(std::string_view kind, const HostEnvironment& environment) override;
    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override;
    void prepareForPictures() override;

private:
    Sources m_sources;
    std::jthread m_preparation;
};

}

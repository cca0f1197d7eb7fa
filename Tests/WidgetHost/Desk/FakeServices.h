#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Tests/Support/HandMovedClock.h"
#include "Tests/TemporaryFolder.h"
#include "WidgetHost/Desk/Desk.h"

namespace orvel::tests {

using namespace std::chrono_literals;

inline constexpr Date morning = std::chrono::sys_days { std::chrono::year { 2026 } / 3 / 2 } + 9h;

/// An extension and a desktop in this process. Every answer comes at once, or after a nap.
class FakeServices : public HostServices {
public:
    explicit FakeServices(HandMovedClock& itsClock) : clock(itsClock) { }

    HandMovedClock& clock;
    std::set<std::string> broken; // "members", "timeline", "render", "snapshot", "open", "perform", "busy"
    Clock::Uptime nap { 0 };
    std::vector<HostEnvironment> drawn; // the environments of all pictures
    std::vector<HostEnvironment> sampled;
    std::vector<std::string> calls; // links and intents, with their tokens
    int timelines = 0;
    int memberRequests = 0;

    Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment environment) override
    {
        ++memberRequests;
        if (broken.contains("members"))
            co_return fault();
        const auto name = environment.language == "de" ? "Status auf Deutsch" : "Status";
        std::vector<ExtensionMember> members {
            { "status", ExtensionMember::Role::widget, name, "What is quiet", { "systemSmall", "systemMedium" }, {} },
            { "focus", ExtensionMember::Role::toggle, "Focus", "", {}, {} },
        };
        co_return members;
    }
    Task<Answer<ExtensionTimeline>> timeline(std::string, HostEnvironment) override
    {
        ++timelines;
        if (broken.contains("timeline"))
            co_return fault();
        ExtensionTimeline timeline { { { clock.now(), 0 } }, { "moment" }, clock.now() + 24h };
        co_return timeline;
    }
    Task<Answer<HostPicture>> render(std::string, ExtensionEntry, HostEnvironment environment) override
    {
        drawn.push_back(environment);
        const auto isBroken = broken.contains("render");
        auto sleep = clock.sleep(nap);
        if (nap > 0us)
            co_await sleep;
        if (isBroken)
            co_return fault();
        HostPicture picture {};
        const auto scale = static_cast<std::uint32_t>(environment.scale.value_or(1));
        picture.width = (environment.family == "systemMedium" ? 364 : 170) * scale;
        picture.height = 170 * scale;
        picture.link = "orvel://today";
        picture.actions = { { "Breathe now", {}, "OpenBreathe", { { "minutes", std::int64_t { 3 } } } } };
        co_return picture;
    }
    Task<Answer<ExtensionEntry>> snapshot(std::string, HostEnvironment environment) override
    {
        sampled.push_back(environment);
        if (broken.contains("snapshot"))
            co_return fault();
        ExtensionEntry entry { clock.now(), "sample" };
        co_return entry;
    }
    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override
    {
        calls.push_back(intent + " " + std::to_string(std::get<std::int64_t>(parameters.at("minutes"))) + " "
            + platform.activationToken.value_or("without token"));
        if (broken.contains("busy"))
            co_return std::unexpected(RequestFault { RequestFault::Kind::busy, "busy" });
        if (broken.contains("perform"))
            co_return std::unexpected(RequestFault { RequestFault::Kind::late, "late" });
        co_return Answer<void>();
    }
    Task<std::expected<void, Fault>> opened(std::string url, std::optional<std::string> token) override
    {
        calls.push_back(url + " " + token.value_or("without token"));
        if (broken.contains("open"))
            co_return std::unexpected(Fault { url, "nobody opens it" });
        co_return std::expected<void, Fault>();
    }

private:
    static std::unexpected<RequestFault> fault()
    {
        return std::unexpected(RequestFault { RequestFault::Kind::unavailable, "It is not there." });
    }
};

/// A desk with what it shows.
struct World {
    TemporaryFolder folder;
    HandMovedClock clock { morning };
    FakeServices services { clock };
    HostStateFile file { folder / "widget-host.json" };
    Homeland home { Locale::english(), "", TimeZone::utc() };
    std::map<std::string, WidgetFace> faces;
    int galleryChanges = 0;
    std::function<void(const std::string& id)> whenShown = [](const std::string&) {};
    Desk desk { clock, services, file, [this] { return home; },
        {
            .faceChanged =
                [this](const std::string& id, const WidgetFace& face) {
                    faces[id] = face;
                    whenShown(id);
                },
            .removed = [this](const std::string& id) { faces.erase(id); },
            .galleryChanged = [this] { ++galleryChanges; },
        } };

    const WidgetFace& face(const std::string& id = "1") const { return faces.at(id); }
    HostState kept() const { return HostStateFile(folder / "widget-host.json").read().state; }
};

}

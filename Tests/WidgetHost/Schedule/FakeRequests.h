#pragma once

#include <algorithm>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Tests/Support/HandMovedClock.h"
#include "WidgetHost/Schedule/WidgetSchedule.h"

namespace orvel::tests {

using namespace std::chrono_literals;
using Kind = RequestFault::Kind;

inline constexpr Date midnight { std::chrono::sys_days { std::chrono::year { 2026 } / 3 / 2 } };

/// A picture of an entry tells what it is of by its link.
inline std::string linkOf(Date date, const std::string& moment, const HostEnvironment& environment)
{
    return moment + " at " + std::to_string((date - midnight) / 1us) + " in " + environment.colorScheme.value_or("any");
}

/// An extension in this process, whose answers come when and how a test says. Widgets are told apart by their family.
class FakeRequests : public WidgetRequests {
public:
    struct Conduct {
        Clock::Uptime delay { 0 };
        std::optional<Kind> fault {};
    };

    explicit FakeRequests(HandMovedClock& itsClock) : clock(itsClock) { }

    std::function<ExtensionTimeline(Date now)> makeTimeline;
    std::function<Conduct()> timelineConduct = [] { return Conduct {}; };
    std::function<Conduct()> pictureConduct = [] { return Conduct {}; };

    HandMovedClock& clock;
    std::vector<Clock::Uptime> timelinesAsked;
    std::vector<Clock::Uptime> picturesAsked;
    int naps = 0; // how often this waited on the clock itself
    int outstanding = 0;
    std::map<std::string, ExtensionTimeline> given; // the last good one of each family
    std::map<std::string, bool> isUndrawn; // families whose last picture failed

    Task<Answer<ExtensionTimeline>> timeline(std::string, HostEnvironment environment) override
    {
        timelinesAsked.push_back(clock.uptime());
        const Busy busy(&outstanding);
        const auto conduct = timelineConduct();
        auto made = makeTimeline(clock.now());
        auto nap = clock.sleep(conduct.delay);
        if (conduct.delay > 0us)
            co_await nap;
        naps += conduct.delay > 0us;
        if (conduct.fault)
            co_return std::unexpected(RequestFault { *conduct.fault, "" });
        given[*environment.family] = made;
        co_return made;
    }

    Task<Answer<HostPicture>> render(std::string, ExtensionEntry entry, HostEnvironment environment) override
    {
        picturesAsked.push_back(clock.uptime());
        const Busy busy(&outstanding);
        const auto conduct = pictureConduct();
        auto nap = clock.sleep(conduct.delay);
        if (conduct.delay > 0us)
            co_await nap;
        naps += conduct.delay > 0us;
        isUndrawn[*environment.family] = conduct.fault.has_value();
        if (conduct.fault)
            co_return std::unexpected(RequestFault { *conduct.fault, "" });
        HostPicture picture {};
        picture.link = linkOf(entry.date, entry.moment, environment);
        co_return picture;
    }

    /// What is to be shown now of the last good timeline, found by looking at every entry.
    std::string expected(const HostEnvironment& environment) const
    {
        const auto& timeline = given.at(*environment.family);
        auto holding = timeline.entries.front();
        for (const auto& entry : timeline.entries) {
            if (entry.date <= clock.now())
                holding = entry;
        }
        return linkOf(holding.date, timeline.moments[holding.moment], environment);
    }

private:
    struct Busy {
        explicit Busy(int* itsCount) : count(itsCount) { ++*count; }
        Busy(const Busy&) = delete;
        Busy& operator=(const Busy&) = delete;
        ~Busy() { --*count; }
        int* count;
    };
};

/// A clock, an extension, and what a schedule shows.
struct Desk {
    HandMovedClock clock { midnight };
    FakeRequests extension { clock };
    std::map<std::string, ShownWidget> shown;
    std::function<void(const std::string& id)> whenPicture = [](const std::string&) {};
    WidgetSchedule schedule { clock, extension, [this](const std::string& id, const ShownWidget& now) {
                                 const auto isNew = shown[id].picture != now.picture;
                                 shown[id] = now;
                                 if (isNew)
                                     whenPicture(id);
                             } };

    std::string link(const std::string& id) const
    {
        const auto found = shown.find(id);
        return found == shown.end() || !found->second.picture ? "nothing" : found->second.picture->link;
    }
    void sleepThrough(Clock::Uptime span)
    {
        clock.set(clock.now() + span);
        schedule.clockWasSet();
    }
};

inline ScheduledWidget widget(const std::string& id, const std::string& kind = "status")
{
    return { .id = id, .kind = kind, .environment = { .family = id, .colorScheme = "light" } };
}

/// `count` entries, the first of now, each so long after the other, and the reload date with the last.
inline ExtensionTimeline ticking(Date now, int count, Clock::Uptime gap)
{
    ExtensionTimeline timeline { .entries = {}, .moments = { "tick", "tock" }, .reload = now + (count - 1) * gap };
    for (auto index = 0; index < count; ++index)
        timeline.entries.push_back({ now + index * gap, static_cast<std::uint32_t>(index % 2) });
    return timeline;
}

}

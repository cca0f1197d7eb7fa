#include "OrvelWidgets/MenuBarGlyph.h"

#include <algorithm>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

using State = WidgetSnapshot::State;

bool isUnlocked(const WidgetSnapshot::Running& running, Date at)
{
    return running.unlock && running.unlock->end > at;
}

/// The share of a span that is left; none of one that is empty.
double shareLeft(const WidgetSnapshot::Running& running, Date end, Date at)
{
    const Seconds span = end - running.start;
    return span > Seconds { 0 } ? std::clamp(Seconds { end - at } / span, 0.0, 1.0) : 0;
}

MenuBarOrbState quiet(const WidgetSnapshot::Running& running, Date at)
{
    if (isUnlocked(running, at))
        return MenuBarOrb::Unlock {};
    return MenuBarOrb::Active { .breath = 1 };
}

MenuBarOrbState focus(const WidgetSnapshot::Running& running, Date at)
{
    if (isUnlocked(running, at))
        return MenuBarOrb::Unlock {};
    if (!running.end)
        return MenuBarOrb::Active { .breath = 1 }; // there is no share of what has no end
    if (*running.end <= at)
        return MenuBarOrb::Idle {};
    return MenuBarOrb::Focus { .remaining = shareLeft(running, *running.end, at) };
}

}

MenuBarOrbState menuBarOrbState(const WidgetMoment& moment)
{
    if (!moment.isRunning)
        return MenuBarOrb::Idle {};
    return std::visit(Match {
                          [&](const State::Block& block) { return quiet(block.running, moment.date); },
                          [&](const State::Focus& running) { return focus(running.running, moment.date); },
                          [&](const State::FocusFilter& filter) { return quiet(filter.running, moment.date); },
                          [](const State::Next&) { return MenuBarOrbState(MenuBarOrb::Idle {}); },
                          [](State::NothingScheduled) { return MenuBarOrbState(MenuBarOrb::Idle {}); },
                          [](State::NoBlocks) { return MenuBarOrbState(MenuBarOrb::Idle {}); },
                      },
        static_cast<const State::Any&>(moment.state));
}

}

#include "OrvelWidgets/ControlAnswer.h"

#include <string_view>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelShared/TimelinePlan.h"
#include "OrvelShared/WidgetMoments.h"
#include "OrvelWidgets/ControlIcon.h"
#include "OrvelWidgets/MenuBarGlyph.h"
#include "OrvelWidgets/OrvelControls.h"
#include "OrvelWidgets/OrvelProvider.h"

namespace orvel {

namespace {

using State = WidgetSnapshot::State;

/// A glyph as the bus has it.
struct NamedGlyph {
    std::string_view name;
    std::optional<double> value; // only of the states that have one
};

NamedGlyph named(const MenuBarOrbState& state)
{
    return std::visit(Match {
                          [](MenuBarOrb::Active active) {
                              return NamedGlyph { "active", active.breath };
                          },
                          [](MenuBarOrb::Focus focus) {
                              return NamedGlyph { "focus", focus.remaining };
                          },
                          [](MenuBarOrb::Idle) {
                              return NamedGlyph { "idle", std::nullopt };
                          },
                          [](MenuBarOrb::Unlock) {
                              return NamedGlyph { "unlock", std::nullopt };
                          },
                          [](MenuBarOrb::Fix) {
                              return NamedGlyph { "fix", std::nullopt };
                          },
                      },
        state);
}

ControlValue::Color color(RGBA rgba)
{
    return { .red = rgba.red, .green = rgba.green, .blue = rgba.blue, .alpha = rgba.alpha };
}

ControlValue labelled(const ControlLabel& label)
{
    return { .title = label.title, .value = label.value, .symbol = label.symbol, .icon = symbolIcon(label.symbol) };
}

/// All that people see of the toggle and the glyph; the share of a Focus that is left follows its minutes.
bool looksTheSame(const WidgetMoment& one, const WidgetMoment& other)
{
    return ControlContent::focus(one) == ControlContent::focus(other)
        && menuBarOrbState(one).index() == menuBarOrbState(other).index();
}

/// When what is let through at a moment ends, which is no change of phase.
std::optional<Date> endOfUnlock(const WidgetMoment& moment)
{
    const auto end = [](const WidgetSnapshot::Running& running) {
        return running.unlock.transform([](const auto& unlock) { return unlock.end; });
    };
    return std::visit(Match {
                          [&](const State::Block& block) { return end(block.running); },
                          [&](const State::Focus& focus) { return end(focus.running); },
                          [&](const State::FocusFilter& filter) { return end(filter.running); },
                          [](const State::Next&) { return std::optional<Date>(); },
                          [](State::NothingScheduled) { return std::optional<Date>(); },
                          [](State::NoBlocks) { return std::optional<Date>(); },
                      },
        static_cast<const State::Any&>(moment.state));
}

/// When the countdown of the Focus that runs shows a minute less.
std::optional<Date> nextMinute(const WidgetMoment& moment)
{
    const auto focus = moment.focus();
    if (!focus)
        return std::nullopt;
    const auto past = (*focus->end - moment.date) % countdownStep;
    return moment.date + (past == past.zero() ? countdownStep : past);
}

/// The first instant after a moment at which any rule could make it look different.
std::optional<Date> nextOccasion(const WidgetSnapshot& snapshot, const WidgetMoment& moment)
{
    std::optional<Date> next;
    const auto consider = [&](std::optional<Date> date) {
        if (date && *date > moment.date && (!next || *date < *next))
            next = date;
    };
    for (const auto& phase : snapshot.phases)
        consider(phase.start);
    consider(nextMinute(moment));
    consider(endOfUnlock(moment));
    return next;
}

/// The first instant after `moment` at which the toggle or the glyph looks different. After as many occasions as a
/// timeline has dates it is the last of them, when a host may ask again. While blocking is paused nothing changes.
std::optional<Date> nextChange(const WidgetSnapshot& snapshot, WidgetMoment moment, const Calendar& calendar)
{
    if (!moment.isRunning)
        return std::nullopt;
    const auto present = moment;
    WidgetMoments moments(snapshot, calendar);
    for (auto occasions = OrvelProvider::limit; occasions > 0 && looksTheSame(moment, present); --occasions) {
        const auto next = nextOccasion(snapshot, moment);
        if (!next)
            return std::nullopt;
        moment = moments.moment(*next);
    }
    return moment.date;
}

}

ControlValue breatheControlValue(const std::optional<WidgetSnapshot>& snapshot)
{
    return labelled(BreatheNowControl::button(BreatheValue::currentValue(snapshot)).label);
}

ControlValue focusControlValue(
    const std::optional<WidgetSnapshot>& snapshot, Date now, const Calendar& calendar, ColorFlags appearance)
{
    const auto moment = snapshot ? snapshot->moment(now, calendar) : fallbackMoment(now, calendar);
    const auto content = ControlContent::focus(moment);
    const auto toggle = FocusNowControl::toggle(content);
    const auto glyph = named(menuBarOrbState(moment));
    auto value = labelled(toggle.label);
    value.isOn = toggle.isOn;
    value.barText = content.barText;
    value.spokenState = content.spokenState;
    value.glyph = glyph.name;
    value.glyphValue = glyph.value;
    if (toggle.isOn)
        value.tint = color(toggle.tint.rgba(appearance));
    if (const auto focus = moment.focus()) {
        value.start = focus->start;
        value.end = focus->end;
    }
    if (snapshot)
        value.changes = nextChange(*snapshot, moment, calendar);
    return value;
}

}

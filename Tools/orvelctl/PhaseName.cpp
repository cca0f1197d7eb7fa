#include "Tools/orvelctl/PhaseName.h"

#include "OrvelPlatform/Base/Match.h"

namespace orvelctl {

using State = orvel::WidgetSnapshot::State;

std::optional<std::string> phaseName(const State& state)
{
    using Name = std::optional<std::string>;
    return std::visit(orvel::Match {
                          [](const State::Block& block) -> Name { return block.running.name; },
                          [](const State::Focus& focus) -> Name { return focus.running.name; },
                          [](const State::FocusFilter& filter) -> Name { return filter.running.name; },
                          [](const State::Next& next) -> Name { return next.upcoming.name; },
                          [](State::NothingScheduled) -> Name { return std::nullopt; },
                          [](State::NoBlocks) -> Name { return std::nullopt; },
                      },
        state);
}

std::string_view phaseKind(const State& state)
{
    return std::visit(orvel::Match {
                          [](const State::Block&) { return "Block"; },
                          [](const State::Focus&) { return "Focus"; },
                          [](const State::FocusFilter&) { return "Focus filter"; },
                          [](const State::Next&) { return "Next"; },
                          [](State::NothingScheduled) { return "nothing scheduled"; },
                          [](State::NoBlocks) { return "no Blocks"; },
                      },
        state);
}

}

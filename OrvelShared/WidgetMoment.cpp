#include "OrvelShared/WidgetMoment.h"

namespace orvel {

std::optional<WidgetSnapshot::Running> WidgetMoment::focus() const
{
    const auto* focus = std::get_if<WidgetSnapshot::State::Focus>(&state);
    if (!isRunning || !focus || !focus->running.end || *focus->running.end <= date)
        return std::nullopt;
    return focus->running;
}

}

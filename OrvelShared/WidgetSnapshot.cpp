#include "OrvelShared/WidgetSnapshot.h"

#include <ranges>

#include "OrvelShared/AppGroup.h"
#include "OrvelShared/WidgetMoments.h"
#include "OrvelShared/WidgetSnapshotForm.h"

namespace orvel {

template std::expected<WidgetSnapshot, Fault> decodeJson<WidgetSnapshot>(std::string_view bytes);
template std::expected<std::string, Fault> encodeJson<WidgetSnapshot>(
    const WidgetSnapshot& snapshot, JsonAudience audience);

const SharedFile<WidgetSnapshot>& WidgetSnapshot::file()
{
    static const SharedFile<WidgetSnapshot> file("widgets.json", AppGroup::container());
    return file;
}

WidgetSnapshot::State WidgetSnapshot::state(Date at) const
{
    for (const auto& phase : phases | std::views::reverse) {
        if (phase.start <= at)
            return phase.state;
    }
    return phases.empty() ? State(State::NoBlocks {}) : phases.front().state;
}

WidgetMoment WidgetSnapshot::moment(Date at, const Calendar& calendar) const
{
    return WidgetMoments(*this, calendar).moment(at);
}

}

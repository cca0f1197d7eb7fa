#pragma once

#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshotForm.h"

namespace orvel {

/// A moment's own fields; a tool also sees the Focus that runs.
template <>
struct JsonForm<WidgetMoment> {
    static constexpr auto fields = std::tuple {
        JsonField { "blockCount", &WidgetMoment::blockCount },
        JsonField { "breathe", &WidgetMoment::breathe },
        JsonField { "date", &WidgetMoment::date },
        JsonDerived { "focus", &WidgetMoment::focus },
        JsonField { "focusMinutes", &WidgetMoment::focusMinutes },
        JsonField { "isRunning", &WidgetMoment::isRunning },
        JsonField { "state", &WidgetMoment::state },
        JsonField { "today", &WidgetMoment::today },
        JsonField { "week", &WidgetMoment::week },
    };
};

}

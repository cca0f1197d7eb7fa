#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Date.h"
#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgets/OrvelEntry.h"

namespace orvel {

/// Answers the widget host's three requests, for both widgets. It keeps nothing between them: each reads the snapshot
/// afresh, and takes the present instant and the calendar once.
class OrvelProvider {
public:
    /// What a request asks of the world.
    struct Sources {
        std::function<Date()> now;
        std::function<Calendar()> calendar;
        std::function<std::optional<WidgetSnapshot>()> snapshot;
    };

    /// What the host says of a request.
    struct Context {
        bool isPreview; // the widget gallery, which may show samples
    };

    /// The system's clock, the user's calendar and the shared snapshot.
    OrvelProvider();
    explicit OrvelProvider(Sources sources);

    /// A sample entry; the snapshot is not read.
    OrvelEntry placeholder(const Context& in) const;

    /// The present moment. Without a snapshot a preview shows the sample.
    OrvelEntry getSnapshot(const Context& in) const;

    /// What holds from now on. Without a snapshot it is one entry that says so, and the host comes back in an hour.
    OrvelTimeline getTimeline(const Context& in) const;

    /// How far ahead minutes are counted, and how many entries a timeline has at most.
    static constexpr Seconds countdownSpan { 10800 };
    static constexpr std::int64_t limit = 240;

private:
    Sources m_sources;
};

/// What is shown while there is no snapshot: no Blocks yet.
WidgetMoment fallbackMoment(Date now, const Calendar& calendar);

}

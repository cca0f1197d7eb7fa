#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelPlatform/Base/Match.h"
#include "OrvelShared/WidgetMomentForm.h"
#include "Tools/orvelctl/PhaseName.h"
#include "Tools/orvelctl/TimelineReport.h"

namespace orvelctl {

namespace {

struct Reason {
    std::optional<std::int64_t> minutesLeft;
    std::optional<std::string> name;
    std::optional<std::int64_t> phase;
    std::string rule;
};

struct Entry {
    orvel::Date date;
    orvel::WidgetMoment moment;
    std::optional<std::vector<Reason>> why;
};

struct Timeline {
    std::vector<Entry> entries;
    orvel::Date reload;
};

}

}

template <>
struct orvel::JsonForm<orvelctl::Reason> {
    using Reason = orvelctl::Reason;
    static constexpr auto fields = std::tuple {
        JsonField { "minutesLeft", &Reason::minutesLeft },
        JsonField { "name", &Reason::name },
        JsonField { "phase", &Reason::phase },
        JsonField { "rule", &Reason::rule },
    };
};

template <>
struct orvel::JsonForm<orvelctl::Entry> {
    using Entry = orvelctl::Entry;
    static constexpr auto fields = std::tuple {
        JsonField { "date", &Entry::date },
        JsonField { "moment", &Entry::moment },
        JsonField { "why", &Entry::why },
    };
};

template <>
struct orvel::JsonForm<orvelctl::Timeline> {
    using Timeline = orvelctl::Timeline;
    static constexpr auto fields = std::tuple {
        JsonField { "entries", &Timeline::entries },
        JsonField { "reload", &Timeline::reload },
    };
};

namespace orvelctl {

namespace {

using orvel::TimelineReason;

Reason plainReason(std::string rule)
{
    return { .minutesLeft = std::nullopt, .name = std::nullopt, .phase = std::nullopt, .rule = std::move(rule) };
}

Reason phaseReason(std::string rule, std::size_t phase, const orvel::WidgetSnapshot& snapshot)
{
    auto reason = plainReason(std::move(rule));
    reason.name = phaseName(snapshot.phases[phase].state);
    reason.phase = static_cast<std::int64_t>(phase);
    return reason;
}

Reason reason(const TimelineReason::Any& any, const orvel::WidgetSnapshot& snapshot)
{
    return std::visit(orvel::Match {
                          [](TimelineReason::Now) { return plainReason("now"); },
                          [](TimelineReason::Midnight) { return plainReason("midnight"); },
                          [&](TimelineReason::PhaseStart start) { return phaseReason("phase", start.phase, snapshot); },
                          [&](TimelineReason::CountdownMinute minute) {
                              auto countdown = phaseReason("countdown", minute.phase, snapshot);
                              countdown.minutesLeft = minute.minutesLeft;
                              return countdown;
                          },
                      },
        any);
}

}

std::expected<std::string, orvel::Fault> asJson(TimelineReport report)
{
    Timeline timeline { .entries = {}, .reload = report.timeline.reload };
    timeline.entries.reserve(report.timeline.entries.size());
    for (auto& entry : report.timeline.entries)
        timeline.entries.push_back({ .date = entry.date, .moment = std::move(entry.moment), .why = std::nullopt });
    for (std::size_t index = 0; index < report.reasons.size(); ++index) {
        auto& why = timeline.entries[index].why.emplace();
        for (const auto& any : report.reasons[index])
            why.push_back(reason(any, report.snapshot));
    }
    return orvel::encodeJson(timeline, orvel::JsonAudience::tool);
}

}

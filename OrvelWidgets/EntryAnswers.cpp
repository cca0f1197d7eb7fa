#include "OrvelWidgets/EntryAnswers.h"

#include <utility>

#include "OrvelWidgets/OpaqueMoment.h"
#include "OrvelWidgets/Refusal.h"

namespace orvel {

namespace {

std::unexpected<RequestFault> withoutForm(const Fault& fault)
{
    return refusal(RequestFault::Kind::cannotDraw, "A moment cannot be kept: " + fault.text());
}

/// Where a moment stands among others, sought from the back: equal ones mostly follow one another. Their number where
/// it does not.
std::size_t lastPlace(const std::vector<WidgetMoment>& moments, const WidgetMoment& moment)
{
    for (auto index = moments.size(); index-- > 0;) {
        if (moments[index] == moment)
            return index;
    }
    return moments.size();
}

}

Answer<ExtensionEntry> extensionEntry(const OrvelEntry& entry)
{
    auto moment = opaqueMoment(entry.moment);
    if (!moment)
        return withoutForm(moment.error());
    return ExtensionEntry { .date = entry.date, .moment = *std::move(moment) };
}

Answer<ExtensionTimeline> extensionTimeline(OrvelTimeline timeline)
{
    ExtensionTimeline answer { .entries = {}, .moments = {}, .reload = timeline.reload };
    answer.entries.reserve(timeline.entries.size());
    std::vector<WidgetMoment> moments;
    for (auto& [date, moment] : timeline.entries) {
        moment.date = {};
        const auto index = lastPlace(moments, moment);
        if (index == moments.size()) {
            auto opaque = opaqueMoment(moment);
            if (!opaque)
                return withoutForm(opaque.error());
            answer.moments.push_back(*std::move(opaque));
            moments.push_back(std::move(moment));
        }
        answer.entries.push_back({ .date = date, .moment = static_cast<std::uint32_t>(index) });
    }
    return answer;
}

}

#include "OrvelWidgets/EntryAnswers.h"

#include <algorithm>
#include <utility>

#include "OrvelWidgets/OpaqueMoment.h"
#include "OrvelWidgets/Refusal.h"

namespace orvel {

namespace {

std::unexpected<RequestFault> withoutForm(const Fault& fault)
{
    return refusal(RequestFault::Kind::cannotDraw, "A moment cannot be kept: " + fault.text());
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
        // Equal moments mostly follow one another.
        const auto equal = std::find(moments.rbegin(), moments.rend(), moment);
        const auto index = equal == moments.rend() ? moments.size() : moments.rend() - equal - 1;
        if (equal == moments.rend()) {
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

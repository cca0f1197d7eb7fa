#include <memory>

#include "OrvelWidgets/OrvelProvider.h"
#include "Tools/orvelctl/Card.h"
#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/TimelineReport.h"
#include "Tools/orvelctl/calls/Request.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    Request request;
    bool isWhy = false;
    bool hasCards = false;
};

OrvelTimeline timeline(const Situation& situation)
{
    const OrvelProvider provider({ .now = [&] { return situation.now; },
        .calendar = [&] { return situation.calendar; },
        .snapshot = [&] { return std::optional(situation.found.snapshot); } });
    return provider.getTimeline({ .isPreview = false });
}

TimelineReport report(const Situation& situation, bool isWhy)
{
    TimelineReport report { .snapshot = situation.found.snapshot, .timeline = timeline(situation), .reasons = {} };
    if (!isWhy)
        return report;
    std::vector<Date> dates;
    for (const auto& entry : report.timeline.entries)
        dates.push_back(entry.date);
    report.reasons =
        timelineReasons(report.snapshot, dates, situation.now, situation.calendar, OrvelProvider::countdownSpan);
    return report;
}

/// Both widgets and both controls at this instant.
std::string cards(const Situation& situation)
{
    const auto& snapshot = situation.found.snapshot;
    const auto moment = snapshot.moment(situation.now, situation.calendar);
    return card(WidgetContent::status(moment, situation.locale, situation.calendar))
        + card(WidgetContent::breathe(snapshot.breathe)) + line(ControlContent::focus(moment))
        + line(ControlContent::breathe(snapshot.breathe)) + "\n";
}

Exit show(const Call& call, const Situation& situation)
{
    auto report = orvelctl::report(situation, call.isWhy);
    if (call.request.isJson) {
        auto json = asJson(std::move(report));
        return json ? print(*json += '\n') : fail(json.error().text());
    }
    return print("Snapshot: " + printable(situation.found.origin) + "\n\n" + (call.hasCards ? cards(situation) : "")
        + asText(report, situation.locale, situation.calendar));
}

}

void addTimelineCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("timeline", "What the widgets will show from an instant on");
    const auto call = std::make_shared<Call>();
    call->request.addOptions(command, "--now");
    command->add_flag("--why", call->isWhy, "Name the rules behind each entry");
    command->add_flag("--cards", call->hasCards, "Show first what widgets and controls say at that instant");
    runs(command, action, [call] {
        return withSituation(call->request, [&](const Situation& situation) { return show(*call, situation); });
    });
}

}

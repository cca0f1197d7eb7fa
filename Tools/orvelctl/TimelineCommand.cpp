#include <memory>

#include "OrvelWidgets/OrvelProvider.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"
#include "Tools/orvelctl/Command.h"
#include "Tools/orvelctl/SnapshotSource.h"
#include "Tools/orvelctl/TimelineReport.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    std::string file;
    std::optional<Date> now;
    std::optional<TimeZone> zone;
    bool isWhy = false;
    bool isJson = false;
    bool isSampleAllowed = false;
};

/// The snapshot that the call names, or a sample where the container has none and the call allows it.
std::expected<FoundSnapshot, Fault> findSnapshot(const Call& call, Date now, const Calendar& calendar)
{
    auto found = readSnapshot(call.file);
    if (found || !call.isSampleAllowed || !call.file.empty()
        || found.error().cause != std::errc::no_such_file_or_directory)
        return found;
    return FoundSnapshot {
        .snapshot = WidgetFixtures::snapshot(WidgetFixtures::Scene::block, now, calendar),
        .origin = "built-in sample: there is no snapshot at " + WidgetSnapshot::file().url.string(),
    };
}

OrvelTimeline timeline(const WidgetSnapshot& snapshot, Date now, const Calendar& calendar)
{
    const OrvelProvider provider({ .now = [&] { return now; },
        .calendar = [&] { return calendar; },
        .snapshot = [&] { return std::optional(snapshot); } });
    return provider.getTimeline({ .isPreview = false });
}

Exit show(const Call& call)
{
    const auto now = call.now.value_or(orvel::now());
    const auto calendar = orvelctl::calendar(call.zone);
    const auto found = findSnapshot(call, now, calendar);
    if (!found)
        return fail(printable(found.error().text()));

    TimelineReport report {
        .snapshot = found->snapshot, .timeline = timeline(found->snapshot, now, calendar), .reasons = {}
    };
    if (call.isWhy) {
        std::vector<Date> dates;
        for (const auto& entry : report.timeline.entries)
            dates.push_back(entry.date);
        report.reasons = timelineReasons(found->snapshot, dates, now, calendar, OrvelProvider::countdownSpan);
    }
    if (!call.isJson)
        return print("Snapshot: " + printable(found->origin) + "\n\n" + asText(report, calendar));
    auto json = asJson(std::move(report));
    return json ? print(*json += '\n') : fail(json.error().text());
}

}

void addTimelineCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("timeline", "What the widgets will show from an instant on");
    const auto call = std::make_shared<Call>();
    command->add_option("--snapshot", call->file, "A snapshot file; - is standard input; without it the container's")
        ->type_name("FILE");
    addDateOption(command, "--now", call->now, "The timeline's first instant; without it the present");
    addTimeZoneOption(command, call->zone);
    command->add_flag("--why", call->isWhy, "Name the rules behind each entry");
    command->add_flag(
        "--or-sample", call->isSampleAllowed, "Use a built-in sample where the container has no snapshot");
    command->add_flag("--json", call->isJson, "Write JSON");
    runs(command, action, [call] { return show(*call); });
}

}

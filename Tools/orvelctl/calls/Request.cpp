#include "Tools/orvelctl/calls/Request.h"

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

namespace orvelctl {

namespace {

using namespace orvel;

/// The snapshot that the request names, or a sample where the container has none and the request allows it.
std::expected<FoundSnapshot, Fault> findSnapshot(const Request& request, Date now, const Calendar& calendar)
{
    auto found = readSnapshot(request.file);
    if (found || !request.isSampleAllowed || !request.file.empty()
        || found.error().cause != std::errc::no_such_file_or_directory)
        return found;
    return FoundSnapshot {
        .snapshot = WidgetFixtures::snapshot(WidgetFixtures::Scene::block, now, calendar),
        .origin = "built-in sample: there is no snapshot at " + WidgetSnapshot::file().url.string(),
    };
}

}

void Request::addOptions(CLI::App* command, std::string_view instant)
{
    command->add_option("--snapshot", file, "A snapshot file; - is standard input; without it the container's")
        ->type_name("FILE");
    addDateOption(command, instant, now, "The instant to show; without it the present");
    addTimeZoneOption(command, zone);
    addLocaleOption(command, locale);
    command->add_flag("--or-sample", isSampleAllowed, "Use a built-in sample where the container has no snapshot");
    command->add_flag("--json", isJson, "Write JSON");
}

Exit withSituation(const Request& request, const std::function<Exit(const Situation&)>& show)
{
    const auto now = request.now.value_or(orvel::now());
    const auto calendar = orvelctl::calendar(request.zone);
    auto found = findSnapshot(request, now, calendar);
    if (!found)
        return fail(printable(found.error().text()));
    const Situation situation { .found = *std::move(found),
        .now = now,
        .calendar = calendar,
        .locale = request.locale.value_or(Locale::current()) };
    return Copy::inLanguage(request.locale, [&] { return show(situation); });
}

}

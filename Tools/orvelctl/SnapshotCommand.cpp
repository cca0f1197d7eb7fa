#include <memory>

#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelShared/WidgetSnapshotForm.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"
#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/calls/SnapshotSource.h"

namespace orvelctl {

/// The answer of `snapshot check` for a program.
struct CheckReport {
    bool isGood;
    std::optional<std::string> where;
    std::optional<std::string> why;
};

}

template <>
struct orvel::JsonForm<orvelctl::CheckReport> {
    using CheckReport = orvelctl::CheckReport;
    static constexpr auto fields = std::tuple {
        JsonField { "isGood", &CheckReport::isGood },
        JsonField { "where", &CheckReport::where },
        JsonField { "why", &CheckReport::why },
    };
};

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    std::string file;
    std::string state = "now";
    std::optional<Date> now;
    std::optional<TimeZone> zone;
    bool isJson = false;
};

Exit check(const Call& call)
{
    const auto found = readSnapshot(call.file);
    if (!call.isJson)
        return found ? Exit::done : fail(printable(found.error().text()));
    CheckReport report { .isGood = found.has_value(), .where = std::nullopt, .why = std::nullopt };
    if (!found) {
        report.where = found.error().where;
        report.why = found.error().why;
    }
    const auto json = encodeJson(report);
    const auto exit = json ? print(*json + "\n") : fail(json.error().text());
    return found ? exit : Exit::no;
}

Exit printBytes(const WidgetSnapshot& snapshot)
{
    const auto bytes = encodeJson(snapshot);
    return bytes ? print(*bytes) : fail(bytes.error().text());
}

Exit printFile(const Call& call)
{
    const auto found = readSnapshot(call.file);
    return found ? printBytes(found->snapshot) : fail(printable(found.error().text()));
}

Exit printSample(const Call& call)
{
    const auto scene = fromRawValue<WidgetFixtures::Scene>(call.state);
    const auto state = fromRawValue<WidgetContent::State>(call.state);
    return printBytes(WidgetFixtures::snapshot(
        scene ? *scene : WidgetFixtures::scene(*state), call.now.value_or(now()), calendar(call.zone)));
}

/// Both the scenes' own names and the content states that they show.
std::vector<std::string> sampleNames()
{
    std::vector<std::string> names;
    for (const auto state : allCases<WidgetContent::State>())
        names.emplace_back(rawValue(state));
    for (const auto scene : allCases<WidgetFixtures::Scene>()) {
        if (!fromRawValue<WidgetContent::State>(rawValue(scene)))
            names.emplace_back(rawValue(scene));
    }
    return names;
}

void addFile(CLI::App* command, Call& call)
{
    command->add_option("file", call.file, "A snapshot file; - is standard input")->required()->type_name("FILE");
}

}

void addSnapshotCommand(CLI::App& app, Action& action)
{
    auto* snapshot = app.add_subcommand("snapshot", "Snapshot files, as the application writes them");
    snapshot->require_subcommand(0, 1);
    const auto call = std::make_shared<Call>();

    auto* checking = snapshot->add_subcommand("check", "Say nothing for a good file, else what is wrong and where");
    addFile(checking, *call);
    checking->add_flag("--json", call->isJson, "Write JSON");
    runs(checking, action, [call] { return check(*call); });

    auto* printing = snapshot->add_subcommand("print", "Write a file's record as the application would");
    addFile(printing, *call);
    printing->add_flag("--json", call->isJson, "It always is JSON");
    runs(printing, action, [call] { return printFile(*call); });

    auto* sampling = snapshot->add_subcommand("sample", "Write a sample made for an instant");
    sampling->add_option("--state", call->state, "What the widgets show at that instant")
        ->type_name("STATE")
        ->check(CLI::IsMember(sampleNames()));
    addDateOption(sampling, "--now", call->now, "The sample's instant; without it the present");
    addTimeZoneOption(sampling, call->zone);
    sampling->add_flag("--json", call->isJson, "It always is JSON");
    runs(sampling, action, [call] { return printSample(*call); });
}

}

#include <memory>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/WidgetCenter.h"
#include "Tools/orvelctl/bus/Commands.h"

namespace orvelctl {

namespace {

using namespace orvel;

/// Tells every host, as the application does when it has written its snapshot.
Exit reload(const std::vector<std::string>& kinds)
{
    const EventLoop loop;
    const auto center = WidgetCenter::connect(loop);
    if (!center)
        return fail(printable(center.error().text()));
    for (const auto& told : { center->reloadTimelines(kinds), center->reloadControls(kinds) }) {
        if (!told)
            return fail(printable(told.error().text()));
    }
    return Exit::done;
}

}

void addReloadCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("reload", "Tell every host that the snapshot has changed");
    const auto kinds = std::make_shared<std::vector<std::string>>();
    command->add_option("KIND", *kinds, "Only these, such as app.orvel.widget.status; without any, all");
    runs(command, action, [kinds] { return reload(*kinds); });
}

}

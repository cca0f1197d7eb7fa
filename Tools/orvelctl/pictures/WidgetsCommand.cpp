#include <fmt/format.h>
#include <memory>

#include "OrvelDesign/DesignBundle.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/calls/Request.h"
#include "Tools/orvelctl/pictures/Commands.h"
#include "Tools/orvelctl/pictures/Drawing.h"
#include "Tools/orvelctl/pictures/GalleryPage.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    Request request;
    std::string folder;
};

void addWidgets(GalleryPage& page, const Situation& situation, WidgetLook look, const Environment& environment)
{
    const auto moment = situation.found.snapshot.moment(situation.now, situation.calendar);
    const auto status = WidgetContent::status(moment, situation.locale, situation.calendar);
    for (const auto size : allCases<WidgetSize>())
        page.add(fmt::format("{}-{}", rawValue(size), rawValue(look)), rawValue(size),
            widgetPicture(status, size, look), environment);
    page.add(fmt::format("breathe-{}", rawValue(look)), "breathe",
        widgetPicture(WidgetContent::breathe(moment.breathe), WidgetSize::small, look), environment);
}

Exit drawWidgets(const Call& call)
{
    return withSituation(call.request, [&](const Situation& situation) {
        Renderer renderer(designBundle(), FontScope::ownProcess);
        GalleryPage page(call.folder, renderer);
        page.section("Your widgets", situation.found.origin);
        for (const auto look : { WidgetLook::dusk, WidgetLook::dawn }) {
            page.row(look == WidgetLook::dusk ? "dark" : "light");
            addWidgets(page, situation, look, wordsEnvironment(call.request.locale));
        }
        return page.finish();
    });
}

}

void addWidgetsCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("widgets", "Your widgets at this moment as pictures, and one page of them");
    const auto call = std::make_shared<Call>();
    call->request.addOptions(command, "--at,--now");
    command->remove_option(command->get_option("--json"));
    command->add_option("--out", call->folder, "The folder of the pictures and index.html")
        ->type_name("FOLDER")
        ->required();
    runs(command, action, [call] { return drawWidgets(*call); });
}

}

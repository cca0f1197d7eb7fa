#include <memory>

#include "OrvelDesign/DesignBundle.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/calls/Request.h"
#include "Tools/orvelctl/pictures/Commands.h"
#include "Tools/orvelctl/pictures/Drawing.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    Request request;
    std::string widget = "status";
    std::optional<WidgetSize> size;
    WidgetLook look = WidgetLook::dusk;
    double scale = 2;
    ColorSchemeContrast contrast = ColorSchemeContrast::standard;
    int bigger = 0;
    bool isOutlined = false;
    PictureFile file;

    bool isBreathe() const { return widget == "breathe"; }
};

Exit drawWidget(const Call& call)
{
    if (call.isBreathe() && call.size.value_or(WidgetSize::small) != WidgetSize::small)
        return fail("--size: the breathe widget is small", Exit::wrongCall);
    return withSituation(call.request, [&](const Situation& situation) {
        const auto& snapshot = situation.found.snapshot;
        const auto content = call.isBreathe()
            ? WidgetContent::breathe(snapshot.breathe)
            : WidgetContent::status(
                snapshot.moment(situation.now, situation.calendar), situation.locale, situation.calendar);
        auto picture = widgetPicture(content, call.size.value_or(WidgetSize::medium), call.look);
        if (call.isOutlined)
            picture.view = outlined(picture.view);
        const auto environment = wordsEnvironment(call.request.locale)
                                     .with<ColorSchemeContrastKey>(call.contrast)
                                     .with<OrvelBiggerTextKey>(BiggerText(call.bigger));
        Renderer renderer(designBundle(), FontScope::ownProcess);
        return draw(renderer, picture, call.scale, environment, call.file);
    });
}

}

void addDrawCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("draw", "A widget as a picture");
    const auto call = std::make_shared<Call>();
    command->add_option("--widget", call->widget, "status or breathe")
        ->type_name("WIDGET")
        ->check(CLI::IsMember({ "status", "breathe" }));
    addSizeAndLook(
        command, [call](WidgetSize size) { call->size = size; }, [call](WidgetLook look) { call->look = look; });
    call->request.addOptions(command, "--at");
    command->remove_option(command->get_option("--json"));
    command->add_option("--scale", call->scale, "Pixels in a point, 1 to 4")->type_name("SCALE")->check(within(1, 4));
    command
        ->add_option_function<std::string>(
            "--contrast",
            [call](const std::string& text) {
                call->contrast = text == "more" ? ColorSchemeContrast::increased : ColorSchemeContrast::standard;
            },
            "standard or more")
        ->type_name("CONTRAST")
        ->check(CLI::IsMember({ "standard", "more" }));
    command->add_option("--bigger", call->bigger, "The application's bigger text, in steps")
        ->type_name("STEPS")
        ->check(CLI::Range(0, BiggerText::maxSteps));
    command->add_flag("--outline", call->isOutlined, "Frame all that is drawn and all that is read aloud");
    addPictureFileOption(command, call->file, PictureFormats::pngAndSvg);
    runs(command, action, [call] { return drawWidget(*call); });
}

}

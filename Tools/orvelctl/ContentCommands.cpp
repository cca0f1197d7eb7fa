#include <memory>

#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelWidgetsUI/ContentForm.h"
#include "Tools/orvelctl/Card.h"
#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/calls/Request.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    Request request;
    std::string which;
};

template <typename Content>
Exit show(const Content& content, const Request& request, const std::function<std::string(const Content&)>& text)
{
    if (!request.isJson)
        return print(text(content));
    const auto json = encodeJson(content, JsonAudience::tool);
    return json ? print(*json + "\n") : fail(json.error().text());
}

Exit showContent(const Call& call)
{
    return withSituation(call.request, [&](const Situation& situation) {
        const auto& snapshot = situation.found.snapshot;
        const auto content = call.which == "breathe"
            ? WidgetContent::breathe(snapshot.breathe)
            : WidgetContent::status(
                snapshot.moment(situation.now, situation.calendar), situation.locale, situation.calendar);
        return show<WidgetContent>(content, call.request, card);
    });
}

Exit showControl(const Call& call)
{
    return withSituation(call.request, [&](const Situation& situation) {
        const auto& snapshot = situation.found.snapshot;
        const auto content = call.which == "breathe"
            ? ControlContent::breathe(snapshot.breathe)
            : ControlContent::focus(snapshot.moment(situation.now, situation.calendar));
        return show<ControlContent>(content, call.request, line);
    });
}

}

void addContentCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("content", "What a widget says at an instant");
    const auto call = std::make_shared<Call>();
    call->which = "status";
    command->add_option("--widget", call->which, "status or breathe")
        ->type_name("WIDGET")
        ->check(CLI::IsMember({ "status", "breathe" }));
    call->request.addOptions(command, "--at");
    runs(command, action, [call] { return showContent(*call); });
}

void addControlCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("control", "What a control says at an instant");
    const auto call = std::make_shared<Call>();
    command->add_option("control", call->which, "breathe or focus")
        ->required()
        ->type_name("CONTROL")
        ->check(CLI::IsMember({ "breathe", "focus" }));
    call->request.addOptions(command, "--at");
    runs(command, action, [call] { return showControl(*call); });
}

}

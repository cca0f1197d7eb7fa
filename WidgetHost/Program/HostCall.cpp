#include "WidgetHost/Program/HostCall.h"

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <fmt/format.h>

#include "WidgetHost/Desk/Families.h"

namespace orvel {

namespace {

constexpr const char* about = "Shows Orvel's widgets on the desktop. One runs for a session; a second start brings its "
                              "gallery to the front.";

/// The options as they were typed.
struct Typed {
    std::string kind, size, look;
    bool isInBackground = false, isGallery = false, isControls = false, isList = false, isQuit = false;

    void addTo(CLI::App& app)
    {
        auto* add =
            app.add_option("--add", kind, "Add a widget of this kind; --list tells the kinds")->type_name("KIND");
        app.add_option("--size", size, "Its size: small, medium or large")->type_name("SIZE");
        app.add_option("--look", look, "Its look: automatic (without this option), dusk, dawn, mono or clear")
            ->type_name("LOOK");
        auto* background = app.add_flag("--background", isInBackground, "Show no gallery, as for a start at login");
        auto* gallery = app.add_flag("--gallery", isGallery, "Show the gallery");
        auto* controls = app.add_flag("--controls", isControls, "Show the panel of controls");
        auto* list = app.add_flag("--list", isList, "List the widgets on the desktop, and those that can be added");
        auto* quit = app.add_flag("--quit", isQuit, "End the one that runs");
        const std::array tasks { add, background, gallery, controls, list, quit };
        for (auto* task : tasks) {
            for (auto* other : tasks) {
                if (task != other)
                    task->excludes(other);
            }
        }
        app.set_version_flag("--version", "orvel-widget-host " ORVEL_VERSION);
    }
};

std::unexpected<CallEnd> wrong(std::string why)
{
    return std::unexpected(CallEnd { std::move(why), true });
}

std::expected<HostCall, CallEnd> addition(const Typed& typed)
{
    auto family = familyOfSize(typed.size);
    if (!typed.size.empty() && !family)
        return wrong(fmt::format("--size {} is none of small, medium and large", typed.size));
    if (typed.kind.empty())
        return wrong("--size and --look go with --add KIND");
    if (!family)
        return wrong("--add needs --size: small, medium or large");
    const auto look = fromRawValue<ChosenLook>(typed.look.empty() ? "automatic" : typed.look);
    if (!look)
        return wrong(fmt::format("--look {} is none of automatic, dusk, dawn, mono and clear", typed.look));
    return HostCall { HostCall::Add { typed.kind, *std::move(family), *look } };
}

std::expected<HostCall, CallEnd> understood(const Typed& typed, bool isAdding)
{
    if (isAdding)
        return addition(typed);
    if (typed.isGallery)
        return HostCall { HostCall::ShowGallery {} };
    if (typed.isControls)
        return HostCall { HostCall::ShowControls {} };
    if (typed.isList)
        return HostCall { HostCall::List {} };
    if (typed.isQuit)
        return HostCall { HostCall::Quit {} };
    return HostCall { HostCall::Show { typed.isInBackground } };
}

}

std::expected<HostCall, CallEnd> hostCall(int argc, const char* const* argv)
{
    try {
        CLI::App app(about, "orvel-widget-host");
        Typed typed;
        typed.addTo(app);
        try {
            app.parse(argc, argv);
        } catch (const CLI::CallForHelp&) {
            return std::unexpected(CallEnd { app.help(), false });
        } catch (const CLI::CallForVersion& version) {
            return std::unexpected(CallEnd { std::string(version.what()) + "\n", false });
        }
        return understood(typed, app.count("--add") + app.count("--size") + app.count("--look") > 0);
    } catch (const std::exception& error) {
        return wrong(error.what());
    }
}

}

#include <CLI/Error.hpp>
#include <exception>
#include <fmt/format.h>

#include "Tools/orvelctl/Command.h"

namespace {

using namespace orvelctl;

/// Help is an answer; anything else that parsing throws is a wrong call, told in one line.
Exit report(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
        app.exit(error);
        return Exit::done;
    }
    return fail(printable(error.what()), Exit::wrongCall);
}

Exit run(int argc, const char* const* argv)
{
    CLI::App app("Orvel's widgets from a shell: what they will show, when, and why.", "orvelctl");
    app.require_subcommand(0, 1);
    Action action;
    addTimelineCommand(app, action);
    addContentCommand(app, action);
    addControlCommand(app, action);
    addLinkCommand(app, action);
    addSnapshotCommand(app, action);
    addTokensCommand(app, action);
    addMetricsCommand(app, action);
    addGlyphCommand(app, action);
    addOrbCommand(app, action);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return report(app, error);
    }
    return action ? action() : fail("a command is missing; --help lists them", Exit::wrongCall);
}

}

int main(int argc, char** argv)
{
    try {
        return static_cast<int>(run(argc, argv));
    } catch (const std::exception& error) {
        return static_cast<int>(fail(error.what()));
    }
}

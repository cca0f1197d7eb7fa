#include "Tools/orvelctl/calls/Program.h"

#include <CLI/Error.hpp>
#include <exception>

namespace orvelctl {

namespace {

/// Help and the version are answers; anything else that parsing throws is a wrong call, told in one line.
Exit report(const CLI::App& app, const CLI::ParseError& error)
{
    if (error.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
        app.exit(error);
        return Exit::done;
    }
    return fail(printable(error.what()), Exit::wrongCall);
}

}

int runProgram(int argc, const char* const* argv, const std::function<void(CLI::App& app, Action& action)>& addCommands)
{
    try {
        CLI::App app("Orvel's widgets from a shell: what they will show, when, and why.", "orvelctl");
        app.require_subcommand(0, 1);
        app.set_version_flag("--version", "orvelctl " ORVEL_VERSION);
        Action action;
        addCommands(app, action);
        try {
            app.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            return static_cast<int>(report(app, error));
        }
        return static_cast<int>(action ? action() : fail("a command is missing; --help lists them", Exit::wrongCall));
    } catch (const std::exception& error) {
        return static_cast<int>(fail(error.what()));
    }
}

}

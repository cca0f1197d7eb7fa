#include <array>
#include <cerrno>
#include <string>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "OrvelPlatform/Base/Bundle.h"
#include "Tools/orvelctl/Commands.h"

namespace orvelctl {

namespace {

constexpr std::array<std::pair<const char*, const char*>, 6> pictureCommands { {
    { "draw", "A widget as a picture" },
    { "day", "A contact sheet: every distinct picture of a day" },
    { "gallery", "Every look, size and state, as pictures and one page" },
    { "widgets", "Your widgets at this moment, as pictures and one page" },
    { "glyph", "The menu bar's glyph" },
    { "orb", "The orb in a pose of a breath" },
} };

/// Becomes the program that draws; comes back only where that cannot be started.
Exit handOver(char** arguments)
{
    const auto program = orvel::Bundle::main().path() / "orvelctl-pictures";
    ::execv(program.c_str(), arguments);
    return fail(program.string() + " cannot be started: " + std::generic_category().message(errno));
}

}

void addPictureCommands(CLI::App& app, Action& action, char** arguments)
{
    for (const auto& [name, what] : pictureCommands) {
        auto* command = app.add_subcommand(name, what);
        command->set_help_flag(); // the other program's to answer, with everything that follows the name
        command->prefix_command();
        runs(command, action, [arguments] { return handOver(arguments); });
    }
}

}

#include <array>
#include <cerrno>
#include <string>
#include <system_error>
#include <unistd.h>

#include "OrvelPlatform/Base/Bundle.h"
#include "Tools/orvelctl/Commands.h"

namespace orvelctl {

namespace {

struct HandedOver {
    const char* name;
    const char* what;
    const char* program; // beside this one
};

constexpr std::array<HandedOver, 8> handedOver { {
    { "draw", "A widget as a picture", "orvelctl-pictures" },
    { "day", "A contact sheet: every distinct picture of a day", "orvelctl-pictures" },
    { "gallery", "Every look, size and state, as pictures and one page", "orvelctl-pictures" },
    { "widgets", "Your widgets at this moment, as pictures and one page", "orvelctl-pictures" },
    { "glyph", "The menu bar's glyph", "orvelctl-pictures" },
    { "orb", "The orb in a pose of a breath", "orvelctl-pictures" },
    { "ask", "Ask the extension on the bus everything that a host asks", "orvelctl-bus" },
    { "reload", "Tell every host that the snapshot has changed", "orvelctl-bus" },
} };

/// Becomes the other program; comes back only where that cannot be started.
Exit handOver(const char* name, char** arguments)
{
    const auto program = orvel::Bundle::main().path() / name;
    ::execv(program.c_str(), arguments);
    return fail(program.string() + " cannot be started: " + std::generic_category().message(errno));
}

}

void addHandedOverCommands(CLI::App& app, Action& action, char** arguments)
{
    for (const auto& [name, what, program] : handedOver) {
        auto* command = app.add_subcommand(name, what);
        command->set_help_flag(); // the other program's to answer, with everything that follows the name
        command->prefix_command();
        runs(command, action, [program = program, arguments] { return handOver(program, arguments); });
    }
}

}

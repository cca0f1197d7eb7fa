#pragma once

#include <functional>

#include "Tools/orvelctl/calls/Command.h"

namespace orvelctl {

/// A whole program: understands a call with the commands that `addCommands` adds, runs the one that it names, and gives
/// the exit status. A wrong call is told in one line.
int runProgram(
    int argc, const char* const* argv, const std::function<void(CLI::App& app, Action& action)>& addCommands);

}

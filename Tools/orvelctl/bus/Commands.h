#pragma once

#include "Tools/orvelctl/calls/Command.h"

namespace orvelctl {

/// Each adds one command; parsing it sets `action`.
void addAskCommand(CLI::App& app, Action& action);
void addReloadCommand(CLI::App& app, Action& action);

}

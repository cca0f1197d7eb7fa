#pragma once

#include "Tools/orvelctl/calls/Command.h"

namespace orvelctl {

/// Each adds one command; parsing it sets `action`.
void addTimelineCommand(CLI::App& app, Action& action);
void addContentCommand(CLI::App& app, Action& action);
void addControlCommand(CLI::App& app, Action& action);
void addLinkCommand(CLI::App& app, Action& action);
void addSnapshotCommand(CLI::App& app, Action& action);
void addTokensCommand(CLI::App& app, Action& action);
void addMetricsCommand(CLI::App& app, Action& action);
void addCopyCommand(CLI::App& app, Action& action);

/// The commands that draw and those that talk on the bus, which belong to programs of their own beside this one: a
/// timeline need not wait until all that has been loaded. `arguments` are the whole call's.
void addHandedOverCommands(CLI::App& app, Action& action, char** arguments);

}

#pragma once

#include "Tools/orvelctl/calls/Command.h"

namespace orvelctl {

/// Each adds one command; parsing it sets `action`.
void addDrawCommand(CLI::App& app, Action& action);
void addDayCommand(CLI::App& app, Action& action);
void addGalleryCommand(CLI::App& app, Action& action);
void addWidgetsCommand(CLI::App& app, Action& action);
void addGlyphCommand(CLI::App& app, Action& action);
void addOrbCommand(CLI::App& app, Action& action);

}

#pragma once

#include <memory>

#include "WidgetHost/Windows/WindowSurface.h"

namespace orvel {

/// A surface of the bottom layer. It reserves no room, and its corner counts from what panels leave of the output:
/// where that begins, only the compositor knows.
std::unique_ptr<WindowSurface> layerSurface(Gtk::Window& window);

}

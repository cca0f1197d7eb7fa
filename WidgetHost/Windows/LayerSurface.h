#pragma once

#include <memory>

#include "WidgetHost/Windows/WindowSurface.h"

namespace orvel {

/// A surface of the bottom layer. It reserves no room, and its corner counts from what panels leave of the output:
/// where that begins, only the compositor knows.
///
/// A surface hears of the pointer by where it is on the surface, and compositors differ in what they make of that while
/// it moves under a held button. So it stays where it is during a drag, and an image of it follows the pointer.
std::unique_ptr<WindowSurface> layerSurface(Gtk::Window& window, WindowSurface::Paint paint);

}

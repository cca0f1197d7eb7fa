#pragma once

#include <string>

#include "OrvelWidgetsUI/ControlContent.h"
#include "OrvelWidgetsUI/WidgetContent.h"

namespace orvelctl {

/// A widget as a card in a terminal.
std::string card(const orvel::WidgetContent& content);

/// A control as a line.
std::string line(const orvel::ControlContent& content);

}

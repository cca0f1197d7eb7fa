#pragma once

#include <string>

#include "OrvelPlatform/Views/Text.h"
#include "OrvelWidgetsUI/WidgetType.h"

namespace orvel {

/// How a text style of the widgets is set. Figures have digits of one width, so that they stay where they are while
/// they count.
TextStyle textStyle(WidgetType type);

/// One line in a style; what is too long ends in an ellipsis.
Text lineOfText(std::string words, const TextStyle& style, Paint paint);

}

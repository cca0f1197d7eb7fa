#pragma once

#include <string>

#include "OrvelPlatform/Views/View.h"
#include "OrvelWidgetsUI/WidgetType.h"

namespace orvel {

/// Words in parts that " · " joins, set so that what belongs together stays together: where the words need more than
/// one line, a line ends after a part wherever that is possible, and never begins with a separator. Lines are of about
/// one length, so that no word is left alone. It is an element with the words as they were given.
struct PartedText {
    std::string words;
    WidgetType type;
    Paint paint;
    int lineLimit = 2;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

}

#pragma once

#include <optional>
#include <string>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Base/URL.h"
#include "OrvelWidgets/OpenBreatheIntent.h"
#include "OrvelWidgets/OrvelEntry.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"
#include "OrvelWidgetsUI/WidgetSize.h"

namespace orvel {

/// What an entry's view is told by the place in which it stands.
struct EntryPlace {
    std::string family;
    WidgetRenderingMode renderingMode;
    ColorScheme colorScheme;
    Locale locale; // of times and weekdays
    Calendar calendar;
};

/// A widget as it is to be drawn, before anything is. Behind it stands the look's container background.
struct ShownWidget {
    WidgetContent content;
    WidgetSize size;
    WidgetLook look;
    URL link; // where a click on the whole widget leads
    std::optional<OpenBreatheIntent> breatheButton; // what the breathe label runs, where the layout has one

    bool operator==(const ShownWidget&) const = default;
};

struct StatusWidgetView {
    OrvelEntry entry;

    /// The button opens the moment's style of breath, for as long as the content says.
    ShownWidget shown(const EntryPlace& in) const;
};

struct BreatheWidgetView {
    OrvelEntry entry;

    /// Always small and without a button: the whole widget is one link.
    ShownWidget shown(const EntryPlace& in) const;
};

}

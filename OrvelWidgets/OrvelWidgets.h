#pragma once

#include <array>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "OrvelWidgets/EntryViews.h"
#include "OrvelWidgets/OrvelControls.h"

namespace orvel {

/// What a desktop registers of a widget.
struct WidgetConfiguration {
    std::string_view kind;
    std::string displayName;
    std::string description;
    std::vector<std::string_view> families; // in the order in which they are offered
    bool disablesContentMargins; // the views draw from edge to edge

    bool operator==(const WidgetConfiguration&) const = default;
};

/// What keeps things quiet now or next, today's figures and the week, in three sizes. Its entries are
/// `OrvelProvider`'s.
struct StatusWidget {
    using Content = StatusWidgetView;
    static WidgetConfiguration configuration();
};

/// A breath, one click away. The entries are the status widget's; only the view differs.
struct BreatheWidget {
    using Content = BreatheWidgetView;
    static WidgetConfiguration configuration();
};

/// Everything that the extension offers, in order.
struct OrvelWidgets {
    using Member = std::variant<StatusWidget, BreatheWidget, BreatheNowControl, FocusNowControl>;
    static constexpr std::array<Member, 4> body { StatusWidget {}, BreatheWidget {}, BreatheNowControl {},
        FocusNowControl {} };
};

}

#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "OrvelPlatform/Base/JsonForm.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// How a widget is to look: as the desktop's appearance has it, or in one way whatever that is.
enum class ChosenLook : std::uint8_t { automatic, dusk, dawn, mono, clear };

template <>
inline constexpr std::array<std::string_view, 5> rawValues<ChosenLook> { "automatic", "dusk", "dawn", "mono", "clear" };

/// Where somebody put a widget: points from the top left corner of an output, which may not be there today.
struct WidgetPlace {
    std::string output; // its connector's name, such as "DP-1"
    std::int32_t x;
    std::int32_t y;
    bool operator==(const WidgetPlace&) const = default;
};

struct PlacedWidget {
    std::string id; // the host's own; not empty, and no other widget's
    std::string kind;
    std::string family;
    ChosenLook look;
    std::optional<WidgetPlace> place; // absent: nobody chose one yet
    bool operator==(const PlacedWidget&) const = default;
};

/// What a desktop host keeps from one run to the next.
struct HostState {
    static constexpr std::int32_t mostBiggerText = 4;

    std::vector<PlacedWidget> widgets {};
    bool reducesTransparency = false;
    std::int32_t biggerText = 0; // steps, 0 to 4
    bool operator==(const HostState&) const = default;
};

template <>
struct JsonForm<ChosenLook> {
    static constexpr std::string_view noun = "look";
};

template <>
struct JsonForm<WidgetPlace> {
    static constexpr auto fields = std::tuple {
        JsonField { "output", &WidgetPlace::output },
        JsonField { "x", &WidgetPlace::x },
        JsonField { "y", &WidgetPlace::y },
    };
};

template <>
struct JsonForm<PlacedWidget> {
    static constexpr auto fields = std::tuple {
        JsonField { "family", &PlacedWidget::family },
        JsonField { "id", &PlacedWidget::id },
        JsonField { "kind", &PlacedWidget::kind },
        JsonDefaulted { "look", &PlacedWidget::look },
        JsonField { "place", &PlacedWidget::place },
    };
};

template <>
struct JsonForm<HostState> {
    static constexpr auto fields = std::tuple {
        JsonDefaulted { "biggerText", &HostState::biggerText },
        JsonDefaulted { "reducesTransparency", &HostState::reducesTransparency },
        JsonDefaulted { "widgets", &HostState::widgets },
    };
};

}

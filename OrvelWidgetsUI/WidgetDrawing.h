#pragma once

#include <cstdint>
#include <expected>
#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"
#include "OrvelWidgetsUI/WidgetSize.h"

/// The one door to everything that draws: a library of its own, so that a process that only answers timelines loads
/// neither typefaces nor a drawing library. It has its own copy of all that it needs; only these values go through.
namespace orvel {

/// What a part of a widget runs: an intent and its parameters by name.
struct WidgetAction {
    std::string intent; // "OpenBreathe"
    std::map<std::string, std::variant<std::string, std::int64_t, bool>, std::less<>> parameters;
    bool operator==(const WidgetAction&) const = default;
};

/// Everything that a picture of a widget depends on.
struct WidgetDrawing {
    enum class Format { pixels, png };

    WidgetContent content;
    WidgetSize size; // the breathe widget's content is always drawn small
    WidgetLook look;
    std::optional<WidgetAction> breathe = std::nullopt; // what the breathe label runs; without one it is only drawn
    bool hasBackground = true; // in the tinted looks there is never one
    double scale = 1; // pixels in a point, before bigger text
    Format format = Format::pixels;
    std::optional<Locale> words = std::nullopt; // the language of what layouts add; absent: the process's
    Environment environment = {}; // the design system's values: contrast, reduced transparency, bigger text
};

/// A drawn widget.
struct DrawnWidget {
    /// A tinted look has the layers "default" and "accent", white with the coverage as alpha; any other one "whole".
    struct Layer {
        std::string name;
        std::vector<std::uint32_t> pixels; // premultiplied ARGB, rows without gaps; empty for a PNG
        std::string png; // a whole file; empty for pixels
    };

    struct Frame { // in points, from the top left corner
        double x;
        double y;
        double width;
        double height;
        bool operator==(const Frame&) const = default;
    };

    /// One thing that is read aloud. Actions are told apart from it: what an element hides is read, not done.
    struct Element {
        std::string role; // "text", "button", "image" or "group"
        std::string label;
        Frame frame;
        bool operator==(const Element&) const = default;
    };

    struct Action {
        std::string label;
        Frame frame;
        WidgetAction action;
        bool operator==(const Action&) const = default;
    };

    std::uint32_t width; // pixels
    std::uint32_t height;
    std::vector<Layer> layers;
    std::vector<Element> elements;
    std::vector<Action> actions;
};

/// Draws a widget. The library that does is loaded on the first call and never unloaded; where it is missing, or the
/// picture would be larger than a picture may be, the fault says so. For one thread.
std::expected<DrawnWidget, Fault> drawWidget(const WidgetDrawing& drawing);

/// Loads the library without drawing, so that the first picture is sooner there.
std::expected<void, Fault> prepareDrawing();

/// What lies behind the door.
using WidgetDoor = std::expected<DrawnWidget, Fault> (*)(const WidgetDrawing&);
inline constexpr auto widgetDoorName = "orvelDrawWidget";

}

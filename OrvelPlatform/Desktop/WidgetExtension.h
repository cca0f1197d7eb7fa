#pragma once

#include <array>
#include <cstdint>
#include <expected>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "OrvelPlatform/Base/Date.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Base/Task.h"
#include "OrvelPlatform/Desktop/HostEnvironment.h"

/// What a widget extension answers, in plain values: the runner serves it on the bus, and a host gets the same values
/// from the requester.
namespace orvel {

template <typename T>
class Task;

/// Why there is no answer, with a sentence for people. The last three arise only at a host.
struct RequestFault {
    enum class Kind : std::uint8_t {
        unknownKind, // no widget or control of that kind
        unknownIntent,
        badEntry, // a moment of another version, or a damaged one: ask for a new timeline
        badArgument,
        cannotDraw,
        busy, // this intent is still being performed for the same sender
        unavailable, // the extension cannot be started, or left before it answered
        late, // no answer within the deadline
        badReply, // an answer that is not what it should be
    };

    Kind kind;
    std::string sentence;

    bool operator==(const RequestFault&) const = default;
};

template <typename T>
using Answer = std::expected<T, RequestFault>;

/// A value given to an intent. Shaped as in pictures' actions, so that these can be performed as they are.
using IntentValue = std::variant<std::string, std::int64_t, bool>;
using IntentParameters = std::map<std::string, IntentValue, std::less<>>;

/// What the desktop adds when it runs an intent.
struct IntentPlatform {
    std::optional<std::string> activationToken {}; // lets the application come to the front

    bool operator==(const IntentPlatform&) const = default;
};

struct ExtensionIntent {
    enum class Type : std::uint8_t { text, integer, truth };
    struct Parameter {
        std::string name;
        std::string title;
        Type type;
        bool isOptional;
        bool operator==(const Parameter&) const = default;
    };

    std::string name; // such as "OpenBreathe"
    std::string title;
    std::vector<Parameter> parameters;

    bool operator==(const ExtensionIntent&) const = default;
};

/// The type's text on the bus is its D-Bus signature.
template <>
inline constexpr std::array<std::string_view, 3> rawValues<ExtensionIntent::Type> { "s", "x", "b" };

/// One thing that the extension offers.
struct ExtensionMember {
    enum class Role : std::uint8_t { widget, toggle, button };

    std::string kind; // its identifier, such as "app.orvel.widget.status"
    Role role;
    std::string displayName;
    std::string description;
    std::vector<std::string> families; // of a widget, in the order in which they are offered
    std::vector<ExtensionIntent> intents; // what it can run

    bool operator==(const ExtensionMember&) const = default;
};

template <>
inline constexpr std::array<std::string_view, 3> rawValues<ExtensionMember::Role> { "widget", "toggle", "button" };

/// What is shown from an instant on. The moment is made and read by the extension only; a host keeps it as it is.
struct ExtensionEntry {
    Date date;
    std::string moment; // bytes

    bool operator==(const ExtensionEntry&) const = default;
};

/// Entries in ascending order. Those that differ in nothing but their date share one moment.
struct ExtensionTimeline {
    struct Entry {
        Date date;
        std::uint32_t moment; // index among the moments
        bool operator==(const Entry&) const = default;
    };

    std::vector<Entry> entries;
    std::vector<std::string> moments; // bytes
    Date reload; // the instant after which a host asks anew

    bool operator==(const ExtensionTimeline&) const = default;
};

/// A rectangle within a picture, in points, from its top left corner.
struct PictureFrame {
    double x;
    double y;
    double width;
    double height;
    bool operator==(const PictureFrame&) const = default;
};

/// One thing in a picture that is read aloud.
struct PictureElement {
    std::string role; // "text", "button", "image" or "group"
    std::string label;
    PictureFrame frame;
    bool operator==(const PictureElement&) const = default;
};

/// A part of a picture that runs an intent. It lies above whatever elements hold the same place.
struct PictureAction {
    std::string label;
    PictureFrame frame;
    std::string intent;
    IntentParameters parameters;
    bool operator==(const PictureAction&) const = default;
};

/// A drawn entry: its layers, the link that it opens, and what it says and does.
struct ExtensionPicture {
    /// Premultiplied ARGB, one word a pixel, rows without gaps: width × height of them.
    using Pixels = std::vector<std::uint32_t>;
    struct Png {
        std::string bytes;
        bool operator==(const Png&) const = default;
    };
    /// "whole", or "default" and "accent" where the desktop gives the colours.
    struct Layer {
        std::string name;
        std::variant<Pixels, Png> content; // as the host's format asks
        bool operator==(const Layer&) const = default;
    };

    /// The longest side in pixels, and the most bytes in all layers; a larger picture is an error.
    static constexpr std::uint32_t longestSide = 4096;
    static constexpr std::size_t mostBytes = std::size_t { 32 } << 20;

    std::uint32_t width; // pixels
    std::uint32_t height;
    std::vector<Layer> layers;
    std::string link; // a URL; empty: nothing is opened
    std::vector<PictureElement> elements;
    std::vector<PictureAction> actions;

    bool operator==(const ExtensionPicture&) const = default;
};

/// What a control shows now.
struct ControlValue {
    /// Components from 0 to 1 in sRGB, not premultiplied.
    struct Color {
        double red;
        double green;
        double blue;
        double alpha;
        bool operator==(const Color&) const = default;
    };

    std::string title;
    std::string value;
    std::string symbol; // the product's name for it
    std::optional<bool> isOn {}; // of a toggle; absent for a button
    std::optional<Color> tint {}; // of a toggle that is on, as the environment's appearance has it
    std::optional<std::string> barText {}; // where there is room for a few letters beside the symbol
    std::optional<std::string> spokenState {}; // for assistive technology, with the title
    std::optional<std::string> icon {}; // bytes of an SVG or PNG file that shows the symbol
    std::optional<Date> start {}; // of what runs
    std::optional<Date> end {};
    std::optional<Date> changes {}; // when the value will be another one: a host asks again then
    std::optional<std::string> glyph {}; // the state that a menu bar's glyph shows
    std::optional<double> glyphValue {}; // how far that state is, from 0 to 1

    bool operator==(const ControlValue&) const = default;
};

/// The extension as the runner sees it. Every call comes on the runner's thread; the synchronous ones answer at once
/// and keep nothing from call to call. Texts are UTF-8. Nothing is thrown; what is thrown all the same becomes an error
/// for the one who asked.
class WidgetExtension {
public:
    WidgetExtension() = default;
    WidgetExtension(const WidgetExtension&) = delete;
    WidgetExtension& operator=(const WidgetExtension&) = delete;
    virtual ~WidgetExtension() = default;

    virtual Answer<std::vector<ExtensionMember>> members(const HostEnvironment& environment) = 0;
    virtual Answer<ExtensionEntry> placeholder(std::string_view kind, const HostEnvironment& environment) = 0;
    virtual Answer<ExtensionEntry> snapshot(std::string_view kind, const HostEnvironment& environment) = 0;
    virtual Answer<ExtensionTimeline> timeline(std::string_view kind, const HostEnvironment& environment) = 0;

    /// Draws an entry that was answered before, by this process or another. The date lies in the years 1 to 9999; the
    /// moment may be any bytes.
    virtual Answer<ExtensionPicture> render(
        std::string_view kind, const ExtensionEntry& entry, const HostEnvironment& environment) = 0;

    virtual Answer<ControlValue> controlValue(std::string_view kind, const HostEnvironment& environment) = 0;

    /// Runs an intent. The task is awaited on the runner's loop and may wait there; other requests are answered
    /// meanwhile.
    virtual Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) = 0;

    /// Called once, to begin loading what pictures need: as soon as the first picture is asked for, or when nothing
    /// waits after the first timeline was answered. Nobody waits for it but `render`.
    virtual void prepareForPictures() { }
};

}

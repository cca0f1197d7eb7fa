#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelPlatform/Base/TimeZone.h"

namespace orvel {

/// How a host wants a picture: pixels in shared memory, or files.
enum class PictureFormat : std::uint8_t { pixels, png };

template <>
inline constexpr std::array<std::string_view, 2> rawValues<PictureFormat> { "pixels", "png" };

/// What a host says of the place where an answer will be shown. Names, midnights and texts depend on it as much as
/// pixels do. A field that is absent was not said, and the extension's own surroundings hold.
///
/// Whoever has one may rely on it: the texts are among those named beside them, and the numbers are within their
/// ranges.
struct HostEnvironment {
    static constexpr double smallestTextScale = 0.5;
    static constexpr double largestTextScale = 3;
    static constexpr int mostBiggerText = 4;
    static constexpr double largestScale = 4;

    std::optional<std::string> family {}; // any text; what is made of an unknown one is the extension's affair
    std::optional<bool> isPreview {}; // the gallery of widgets, which may show samples
    std::optional<std::string> renderingMode {}; // "fullColor", "vibrant" or "accented"
    std::optional<std::string> colorScheme {}; // "light" or "dark"
    std::optional<std::string> contrast {}; // "standard" or "increased"
    std::optional<bool> reduceMotion {};
    std::optional<bool> reduceTransparency {};
    std::optional<bool> personalAccent {}; // the user chose an accent colour, whichever it is
    std::optional<double> textScale {}; // the desktop's, 0.5 to 3
    std::optional<int> biggerText {}; // the product's own, 0 to 4 steps
    std::optional<Locale> locale {}; // formats of times, weekdays and lists
    std::optional<std::string>
        language {}; // words: names of languages, the preferred first, colons between; empty: English
    std::optional<TimeZone> timeZone {};
    std::optional<double> scale {}; // device pixels in a point, 1 to 4
    std::optional<bool> background {}; // whether the container's background is painted
    std::optional<PictureFormat> format {};

    bool operator==(const HostEnvironment&) const = default;
};

}

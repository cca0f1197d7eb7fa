#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/State/HostState.h"

/// Where widgets lie. A place is in whole points from the top left corner of an output; the cards are what is placed,
/// their shadows count for nothing.
namespace orvel {

/// A monitor, in the points of the whole desktop.
struct Output {
    std::string name; // its connector's, such as "DP-1"
    Rect area;
    Rect workArea; // what panels leave of it
    bool isPrimary = false;
    bool operator==(const Output&) const = default;
};

/// A card on an output, in points from the output's corner.
struct PlacedCard {
    std::size_t output; // index
    Rect card;
    bool operator==(const PlacedCard&) const = default;
};

/// The distance between widgets that nobody placed, and from them to the edges; also how far a key moves a widget.
inline constexpr double placeGap = 24;

/// Where a card is to be seen today: on its output, or on the primary one as long as that is away; and wholly on what
/// panels leave of it, as far as it fits. Absent only where there is no output.
std::optional<PlacedCard> shownPlace(const WidgetPlace& place, Size card, const std::vector<Output>& outputs);

/// Where a card goes that nobody placed: on the primary output, from the top left corner down, then column by column,
/// clear of those that are there. Where there is no room left, each lies a little further from the corner.
std::optional<PlacedCard> freePlace(
    Size card, const std::vector<PlacedCard>& taken, const std::vector<Output>& outputs);

/// The place of a card that was dropped: on the output that its middle is on, or the nearest. Given in points from the
/// corner of one output, which it may have left.
std::optional<PlacedCard> droppedPlace(const PlacedCard& dropped, const std::vector<Output>& outputs);

/// A place as it is kept.
WidgetPlace keptPlace(const PlacedCard& placed, const std::vector<Output>& outputs);

}

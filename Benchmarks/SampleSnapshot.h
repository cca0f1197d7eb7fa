#pragma once

#include <cstddef>
#include <string_view>

#include "OrvelShared/WidgetSnapshot.h"

namespace orvelbench {

/// Where and when the sample is read. Its week holds the night in which clocks are put forward.
inline constexpr std::string_view sampleZone = "Europe/Berlin";
orvel::Date sampleNow();

/// A busy user's snapshot, the same in every run: as many Blocks as there may be, Lists, a hundred phases over seven
/// days and two weeks of tallies. What runs at `sampleNow` ends in about two and a half hours, and a timeline from then
/// on has more dates than are kept.
orvel::WidgetSnapshot sampleSnapshot();

/// The worst order of phases: every second one counts down through the whole span to an end at a second of its own, so
/// that all countdowns overlap and few ticks coincide.
orvel::WidgetSnapshot overlappingSnapshot(std::size_t phases);

/// One phase, and a horizon at the end of the year 9999.
orvel::WidgetSnapshot farSnapshot();

}

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelShared/WidgetMoment.h"
#include "OrvelShared/WidgetSnapshot.h"
#include "OrvelWidgetsUI/WidgetContent.h"

/// Believable sample values: for placeholders, the widget gallery, and a first look without the application.
namespace orvel::WidgetFixtures {

/// What a sample is about: a snapshot's states, and blocking paused.
enum class Scene : std::uint8_t { block, focus, focusFilter, next, nothingScheduled, noBlocks, paused };

/// A snapshot written at an instant, with the scene holding then and a schedule for the days after.
WidgetSnapshot snapshot(Scene scene, Date at, const Calendar& calendar);

/// The instant of all sample moments: a Wednesday morning, at 10:48 in the calendar's zone.
Date sampleDate(const Calendar& calendar);

/// The scene that shows a content state.
Scene scene(WidgetContent::State state);

/// A sample moment in a content state.
WidgetMoment moment(WidgetContent::State state, const Calendar& calendar);

}

template <>
inline constexpr std::array<std::string_view, 7> orvel::rawValues<orvel::WidgetFixtures::Scene> { "block", "focus",
    "focusFilter", "next", "nothingScheduled", "noBlocks", "paused" };

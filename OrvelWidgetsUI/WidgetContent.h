#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Calendar.h"
#include "OrvelPlatform/Base/Locale.h"
#include "OrvelPlatform/Base/RawValue.h"
#include "OrvelShared/OrvelLink.h"
#include "OrvelShared/WidgetMoment.h"

namespace orvel {

/// What one widget entry shows, ready to be drawn: every text, symbol, tone, number and bar, the spoken summary and the
/// link. All wording is decided here; layouts only place what they get.
struct WidgetContent {
    /// Which of the six presentations applies.
    enum class State : std::uint8_t { now, next, focus, paused, none, breathe };

    /// One of today's figures.
    struct Number {
        std::string value; // decimal, or "—" for 0
        std::string label;
        bool operator==(const Number&) const = default;
    };

    /// One day of the week: how often the user stayed off.
    struct Bar {
        std::string label; // a letter or so for the weekday
        double height; // 0…1, of the best day; a week whose best is 1 is drawn at full height
        bool isToday;
        bool operator==(const Bar&) const = default;
    };

    State state;
    std::optional<std::string> kicker; // absent for the empty states and for breathe
    std::string smallTitle; // for the small widget
    std::string smallDetail;
    std::string title; // for the medium and large widgets
    std::string detail;
    std::string symbol; // the name of a symbol
    std::string tone; // the name of an identity tone
    std::optional<double> progress; // the share of the running span that is left, 0…1; absent when nothing runs
    bool showsRing; // the progress is a ring around the orb
    std::vector<Number> numbers; // today's three figures
    std::vector<Bar> week; // oldest first, today last
    std::int64_t breatheMinutes;
    std::string sentence; // read aloud for the whole widget
    OrvelLink link; // where a click leads

    /// The medium widget offers a breath where it has no progress to show.
    bool showsMediumBreathe() const { return !progress.has_value(); }

    /// The status widget at a moment. Clock times and weekdays follow the locale and the calendar's zone.
    static WidgetContent status(const WidgetMoment& moment, const Locale& locale, const Calendar& calendar);

    /// The breathe widget.
    static WidgetContent breathe(const WidgetSnapshot::Breath& breath);

    bool operator==(const WidgetContent&) const = default;
};

template <>
inline constexpr std::array<std::string_view, 6> rawValues<WidgetContent::State> { "now", "next", "focus", "paused",
    "none", "breathe" };

}

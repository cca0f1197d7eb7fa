#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "OrvelDesign/BiggerText.h"
#include "OrvelDesign/SystemTextStyle.h"
#include "OrvelDesign/TypeMetrics.h"
#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

/// The role that a text of the interface has. The veil roles serve the breath veil and the room roles the breath room,
/// where the same texts are drawn larger than in a window.
enum class MacTypeRole {
    cue,
    hero,
    titleSerif,
    captionSerif,
    numeral,
    title1,
    title2,
    title3,
    headline,
    body,
    callout,
    subheadline,
    popoverNumeral,
    controlXL,
    veilTitle,
    veilContext,
    veilButton,
    veilCue,
    veilCaption,
    roomTitle,
    roomContext,
    roomTile,
    roomButton,
    roomCue,
    roomCaption,
};

template <>
inline constexpr std::array<std::string_view, 25> rawValues<MacTypeRole> {
    "cue",
    "hero",
    "titleSerif",
    "captionSerif",
    "numeral",
    "title1",
    "title2",
    "title3",
    "headline",
    "body",
    "callout",
    "subheadline",
    "popoverNumeral",
    "controlXL",
    "veilTitle",
    "veilContext",
    "veilButton",
    "veilCue",
    "veilCaption",
    "roomTitle",
    "roomContext",
    "roomTile",
    "roomButton",
    "roomCue",
    "roomCaption",
};

/// The role's face and its size at the system's default scale.
TypeSpecValue spec(MacTypeRole role);

/// The system text style whose scaling the role follows.
SystemTextStyle textStyle(MacTypeRole role);

bool tabularDigits(MacTypeRole role);

/// The role's metrics. `systemScale` is the system's text scale; absent, the process's preferred size for the role's
/// text style says it. Bigger text is added after scaling and not scaled itself, so that small labels gain
/// proportionally more than large titles.
TypeMetrics metrics(MacTypeRole role, BiggerText bigger, std::optional<double> systemScale);

}

#pragma once

#include <array>

#include "OrvelDesign/NamedToken.h"
#include "OrvelDesign/TypeSpecValue.h"

namespace orvel {

/// Text styles: family, size, line height, weight, italic, tracking. The names that begin with mac are the
/// desktop's sizes, the others are for touch, which has no title1.
///
/// Some share a value (macHero and titleSerif, macTitle1 and title2, macTitle2 and headline, footnote and macBody).
/// They are separate tokens because they may drift apart.
namespace Tokens::TypeSpec {
inline constexpr TypeSpecValue cue { TypeFamily::serif, 44, 52, 400, false, 0 };
inline constexpr TypeSpecValue hero { TypeFamily::serif, 34, 41, 400, false, 0 };
inline constexpr TypeSpecValue titleSerif { TypeFamily::serif, 28, 34, 400, false, 0 };
inline constexpr TypeSpecValue captionSerif { TypeFamily::serif, 20, 26, 400, true, 0 };
inline constexpr TypeSpecValue numeral { TypeFamily::rounded, 34, 41, 300, false, 0 };
inline constexpr TypeSpecValue title2 { TypeFamily::rounded, 22, 28, 600, false, 0 };
inline constexpr TypeSpecValue title3 { TypeFamily::rounded, 20, 25, 600, false, 0 };
inline constexpr TypeSpecValue headline { TypeFamily::rounded, 17, 22, 600, false, 0 };
inline constexpr TypeSpecValue body { TypeFamily::rounded, 17, 22, 400, false, 0 };
inline constexpr TypeSpecValue callout { TypeFamily::rounded, 16, 21, 400, false, 0 };
inline constexpr TypeSpecValue subheadline { TypeFamily::rounded, 15, 20, 400, false, 0 };
inline constexpr TypeSpecValue footnote { TypeFamily::rounded, 13, 18, 400, false, 0 };
inline constexpr TypeSpecValue labelCaps { TypeFamily::rounded, 12, 16, 600, false, 0.2 };

inline constexpr TypeSpecValue macCue { TypeFamily::serif, 40, 48, 400, false, 0 };
inline constexpr TypeSpecValue macHero { TypeFamily::serif, 28, 34, 400, false, 0 };
inline constexpr TypeSpecValue macTitleSerif { TypeFamily::serif, 22, 28, 400, false, 0 };
inline constexpr TypeSpecValue macCaptionSerif { TypeFamily::serif, 16, 22, 400, true, 0 };
inline constexpr TypeSpecValue macNumeral { TypeFamily::rounded, 26, 32, 300, false, 0 };
inline constexpr TypeSpecValue macTitle1 { TypeFamily::rounded, 22, 28, 600, false, 0 };
inline constexpr TypeSpecValue macTitle2 { TypeFamily::rounded, 17, 22, 600, false, 0 };
inline constexpr TypeSpecValue macTitle3 { TypeFamily::rounded, 15, 20, 600, false, 0 };
inline constexpr TypeSpecValue macHeadline { TypeFamily::rounded, 13, 16, 600, false, 0 };
inline constexpr TypeSpecValue macBody { TypeFamily::rounded, 13, 18, 400, false, 0 };
inline constexpr TypeSpecValue macCallout { TypeFamily::rounded, 12, 16, 400, false, 0 };
inline constexpr TypeSpecValue macSubheadline { TypeFamily::rounded, 11, 14, 400, false, 0 };

inline constexpr std::array all {
    ORVEL_TOKEN(cue),
    ORVEL_TOKEN(hero),
    ORVEL_TOKEN(titleSerif),
    ORVEL_TOKEN(captionSerif),
    ORVEL_TOKEN(numeral),
    ORVEL_TOKEN(title2),
    ORVEL_TOKEN(title3),
    ORVEL_TOKEN(headline),
    ORVEL_TOKEN(body),
    ORVEL_TOKEN(callout),
    ORVEL_TOKEN(subheadline),
    ORVEL_TOKEN(footnote),
    ORVEL_TOKEN(labelCaps),
    ORVEL_TOKEN(macCue),
    ORVEL_TOKEN(macHero),
    ORVEL_TOKEN(macTitleSerif),
    ORVEL_TOKEN(macCaptionSerif),
    ORVEL_TOKEN(macNumeral),
    ORVEL_TOKEN(macTitle1),
    ORVEL_TOKEN(macTitle2),
    ORVEL_TOKEN(macTitle3),
    ORVEL_TOKEN(macHeadline),
    ORVEL_TOKEN(macBody),
    ORVEL_TOKEN(macCallout),
    ORVEL_TOKEN(macSubheadline),
};
}

}

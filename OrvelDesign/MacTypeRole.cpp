#include "OrvelDesign/MacTypeRole.h"

#include <algorithm>
#include <cstddef>

#include "OrvelDesign/TokensType.h"

namespace orvel {

namespace {

namespace TypeSpec = Tokens::TypeSpec;

struct Row {
    MacTypeRole role;
    TypeSpecValue spec;
    SystemTextStyle textStyle;
};

/// In the order of the cases. What is drawn larger outside a window is the window's face at a size of its own.
constexpr Row rows[] {
    { MacTypeRole::cue, TypeSpec::macCue, SystemTextStyle::largeTitle },
    { MacTypeRole::hero, TypeSpec::macHero, SystemTextStyle::largeTitle },
    { MacTypeRole::titleSerif, TypeSpec::macTitleSerif, SystemTextStyle::title1 },
    { MacTypeRole::captionSerif, TypeSpec::macCaptionSerif, SystemTextStyle::title3 },
    { MacTypeRole::numeral, TypeSpec::macNumeral, SystemTextStyle::largeTitle },
    { MacTypeRole::title1, TypeSpec::macTitle1, SystemTextStyle::title1 },
    { MacTypeRole::title2, TypeSpec::macTitle2, SystemTextStyle::title2 },
    { MacTypeRole::title3, TypeSpec::macTitle3, SystemTextStyle::title3 },
    { MacTypeRole::headline, TypeSpec::macHeadline, SystemTextStyle::headline },
    { MacTypeRole::body, TypeSpec::macBody, SystemTextStyle::body },
    { MacTypeRole::callout, TypeSpec::macCallout, SystemTextStyle::callout },
    { MacTypeRole::subheadline, TypeSpec::macSubheadline, SystemTextStyle::subheadline },
    { MacTypeRole::popoverNumeral, { TypeFamily::rounded, 22, 26, 300, false, 0 }, SystemTextStyle::largeTitle },
    { MacTypeRole::controlXL, TypeSpec::macHeadline.resized(14, 18), SystemTextStyle::headline },
    { MacTypeRole::veilTitle, TypeSpec::macHero.resized(30, 36), SystemTextStyle::largeTitle },
    { MacTypeRole::veilContext, TypeSpec::macTitle3.resized(15, 20).withWeight(400), SystemTextStyle::title3 },
    { MacTypeRole::veilButton, TypeSpec::macTitle3.resized(15, 20), SystemTextStyle::title3 },
    { MacTypeRole::veilCue, TypeSpec::macCue.resized(44, 52), SystemTextStyle::largeTitle },
    { MacTypeRole::veilCaption, TypeSpec::macCaptionSerif.resized(18, 24), SystemTextStyle::title3 },
    { MacTypeRole::roomTitle, TypeSpec::macHero.resized(40, 48), SystemTextStyle::largeTitle },
    { MacTypeRole::roomContext, TypeSpec::macTitle3.resized(16, 22).withWeight(400), SystemTextStyle::title3 },
    { MacTypeRole::roomTile, TypeSpec::macTitle2.resized(18, 24), SystemTextStyle::title2 },
    { MacTypeRole::roomButton, TypeSpec::macTitle3.resized(16, 20), SystemTextStyle::title3 },
    { MacTypeRole::roomCue, TypeSpec::macCue.resized(56, 64), SystemTextStyle::largeTitle },
    { MacTypeRole::roomCaption, TypeSpec::macCaptionSerif.resized(20, 27), SystemTextStyle::title3 },
};

static_assert(std::ranges::equal(rows, allCases<MacTypeRole>(), {}, &Row::role));

const Row& row(MacTypeRole role)
{
    return rows[static_cast<std::size_t>(role)];
}

}

TypeSpecValue spec(MacTypeRole role)
{
    return row(role).spec;
}

SystemTextStyle textStyle(MacTypeRole role)
{
    return row(role).textStyle;
}

bool tabularDigits(MacTypeRole role)
{
    return role == MacTypeRole::numeral || role == MacTypeRole::popoverNumeral;
}

TypeMetrics metrics(MacTypeRole role, BiggerText bigger, std::optional<double> systemScale)
{
    const auto style = textStyle(role);
    const double scale = systemScale ? *systemScale : preferredSize(style) / referenceSize(style);
    const auto base = spec(role);
    return {
        .spec = base,
        .size = bigger.points() + scale * base.size,
        .lineHeight = bigger.points() + scale * base.lineHeight,
        .tabularDigits = tabularDigits(role),
    };
}

}

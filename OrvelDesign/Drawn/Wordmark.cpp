#include "OrvelDesign/Drawn/Wordmark.h"

#include "OrvelDesign/Drawn/OrvelFont.h"
#include "OrvelDesign/Palette.h"
#include "OrvelPlatform/Views/Text.h"

namespace orvel {

View Wordmark::body(const Environment& environment) const
{
    return Text {
        .runs = { { "Orvel", OrvelFont { MacTypeRole::titleSerif }.style(environment) } },
        .paint = Color(Palette::textPrimary.resolve(environment)),
        .lineLimit = 1,
    };
}

}

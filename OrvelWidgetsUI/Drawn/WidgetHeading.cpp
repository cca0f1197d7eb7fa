#include "OrvelWidgetsUI/Drawn/WidgetHeading.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/PartedText.h"
#include "OrvelWidgetsUI/Drawn/WidgetHeader.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"

namespace orvel {

namespace {

/// Between the header and the words: air, which the words may use up where they need a line more.
View gap()
{
    constexpr double least = 2, most = 8;
    return Frame { .height = { .least = least, .ideal = most, .most = most }, .content = Spacer {} };
}

}

View WidgetHeading::body(const Environment& environment) const
{
    const WidgetColors colors { look };
    const auto title = paint(colors.title(), look, environment);
    const auto detail = paint(colors.detail(), look, environment);
    const View words = VStack {
        .alignment = HorizontalAlignment::leading,
        .children = {
            PartedText { .words = content.title, .type = WidgetType::mediumTitle, .paint = title },
            PartedText { .words = content.detail, .type = WidgetType::detail, .paint = detail },
        },
    };
    return VStack {
        .alignment = HorizontalAlignment::leading,
        .children = { WidgetHeader(content, look), gap(), Priority { 1, words } },
    };
}

}

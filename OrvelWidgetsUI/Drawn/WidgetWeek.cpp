#include "OrvelWidgetsUI/Drawn/WidgetWeek.h"

#include <algorithm>

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"

namespace orvel {

namespace {

constexpr std::size_t daysInWeek = 7;

View bar(const WidgetContent::Bar& day, WidgetLook look, const Environment& environment)
{
    constexpr double tallest = 44, shortest = 4, radius = 4;
    const WidgetColors colors { look };
    const auto ink = paint(day.isToday ? colors.todayBar() : colors.line(), look, environment);
    const double height = std::max(std::min(day.height, 1.0) * tallest, shortest);
    View shape = Frame {
        .width = FrameLength::filling(),
        .height = FrameLength::exactly(height),
        .content = Shape { RoundedRectangle { radius }, ink },
    };
    return day.isToday ? View(Accentable { shape }) : shape;
}

View letter(const WidgetContent::Bar& day, WidgetLook look, const Environment& environment)
{
    constexpr double boxHeight = 12; // the letters themselves; their line is a little higher
    constexpr int bold = 700;
    const WidgetColors colors { look };
    auto style = textStyle(WidgetType::label);
    if (day.isToday)
        style.weight = bold;
    const auto ink = day.isToday ? colors.title() : colors.detail();
    return Frame {
        .height = FrameLength::exactly(boxHeight),
        .content = lineOfText(day.label, style, paint(ink, look, environment)),
    };
}

}

View WidgetWeek::body(const Environment& environment) const
{
    constexpr double height = 60, spacing = 8, spacingToLetter = 4;
    const auto column = [](View content) {
        return Frame { .width = FrameLength::filling(), .content = std::move(content) };
    };
    const auto shown = std::min(bars.size(), daysInWeek);
    std::vector<View> columns(daysInWeek - shown, column(Spacer {}));
    for (auto day = bars.end() - static_cast<std::ptrdiff_t>(shown); day != bars.end(); ++day)
        columns.push_back(column(VStack {
            .spacing = spacingToLetter,
            .children = { bar(*day, look, environment), letter(*day, look, environment) },
        }));
    return Hidden { Frame {
        .width = FrameLength::filling(),
        .height = FrameLength::exactly(height),
        .alignment = Alignment::bottom,
        .content = HStack { .alignment = VerticalAlignment::bottom, .spacing = spacing, .children = columns },
    } };
}

}

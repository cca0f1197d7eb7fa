#include "OrvelWidgetsUI/Drawn/MediumWidget.h"

#include "OrvelCopy/Widgets.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetBreatheLabel.h"
#include "OrvelWidgetsUI/Drawn/WidgetFigure.h"
#include "OrvelWidgetsUI/Drawn/WidgetFrame.h"
#include "OrvelWidgetsUI/Drawn/WidgetHairline.h"
#include "OrvelWidgetsUI/Drawn/WidgetHeading.h"
#include "OrvelWidgetsUI/Drawn/WidgetProgressBar.h"

namespace orvel {

namespace {

View foot(const MediumWidget& widget)
{
    if (const auto progress = widget.content.progress)
        return Hidden { WidgetProgressBar { .progress = *progress, .look = widget.look } };
    View label =
        WidgetBreatheLabel { .text = std::string(Copy::Widgets::breatheNow()), .large = false, .look = widget.look };
    return widget.breatheButton ? widget.breatheButton(label) : label;
}

View figures(const MediumWidget& widget)
{
    constexpr double width = 92, gap = 8;
    std::vector<View> rows;
    for (const auto& number : widget.content.numbers) {
        if (!rows.empty())
            rows.push_back(Frame { .height = FrameLength::exactly(gap), .content = WidgetHairline { widget.look } });
        rows.push_back(WidgetFigure { .number = number, .large = false, .look = widget.look });
    }
    return Frame {
        .width = FrameLength::exactly(width),
        .alignment = Alignment::leading,
        .content = VStack { .alignment = HorizontalAlignment::leading, .children = std::move(rows) },
    };
}

}

View MediumWidget::body(const Environment&) const
{
    constexpr double spacing = 14;
    constexpr double leastAboveFoot = 8; // with four lines of text just this is left
    const View left = Frame {
        .width = FrameLength::filling(),
        .height = FrameLength::filling(),
        .alignment = Alignment::topLeading,
        .content =
            VStack {
                .alignment = HorizontalAlignment::leading,
                .children = { Priority { 1, WidgetHeading { content, look } }, Spacer { leastAboveFoot }, foot(*this) },
            },
    };
    return WidgetFrame {
        .size = WidgetSize::medium,
        .sentence = {},
        .content = HStack { .spacing = spacing, .children = { left, figures(*this) } },
    };
}

}

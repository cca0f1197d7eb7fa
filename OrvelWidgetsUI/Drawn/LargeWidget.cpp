#include "OrvelWidgetsUI/Drawn/LargeWidget.h"

#include "OrvelCopy/Widgets.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetBreatheLabel.h"
#include "OrvelWidgetsUI/Drawn/WidgetFigure.h"
#include "OrvelWidgetsUI/Drawn/WidgetFrame.h"
#include "OrvelWidgetsUI/Drawn/WidgetHairline.h"
#include "OrvelWidgetsUI/Drawn/WidgetHeading.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetProgressBar.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"
#include "OrvelWidgetsUI/Drawn/WidgetWeek.h"

namespace orvel {

namespace {

constexpr double spacing = 14;

/// At the top, with all the room that the rest leaves below it.
View headerGroup(const LargeWidget& widget)
{
    View bar;
    if (const auto progress = widget.content.progress)
        bar = Hidden { WidgetProgressBar { .progress = *progress, .look = widget.look } };
    return Frame {
        .width = FrameLength::filling(),
        .height = FrameLength::filling(),
        .alignment = Alignment::topLeading,
        .content =
            VStack {
                .alignment = HorizontalAlignment::leading,
                .spacing = 8,
                .children = { WidgetHeading { widget.content, widget.look }, bar },
            },
    };
}

View figures(const LargeWidget& widget)
{
    constexpr double height = 42;
    std::vector<View> columns;
    for (const auto& number : widget.content.numbers) {
        if (!columns.empty())
            columns.push_back(WidgetHairline { widget.look, Axis::vertical });
        columns.push_back(Frame {
            .width = FrameLength::filling(),
            .alignment = Alignment::leading,
            .content = WidgetFigure { .number = number, .large = true, .look = widget.look },
        });
    }
    return Frame {
        .height = FrameLength::exactly(height),
        .content = HStack { .spacing = spacing, .children = std::move(columns) },
    };
}

View week(const LargeWidget& widget, const Environment& environment)
{
    const auto ink = paint(WidgetColors { widget.look }.detail(), widget.look, environment);
    const std::string heading(Copy::Widgets::stayedOffThisWeek());
    return VStack {
        .alignment = HorizontalAlignment::leading,
        .spacing = 6,
        .children = {
            lineOfText(heading, textStyle(WidgetType::label), ink),
            WidgetWeek { .bars = widget.content.week, .look = widget.look },
        },
    };
}

View breathe(const LargeWidget& widget)
{
    View label = WidgetBreatheLabel {
        .text = Copy::Widgets::breatheNowFor(widget.content.breatheMinutes), .large = true, .look = widget.look
    };
    return widget.breatheButton ? widget.breatheButton(label) : label;
}

}

View LargeWidget::body(const Environment& environment) const
{
    const View hairline = WidgetHairline { look };
    return WidgetFrame {
        .size = WidgetSize::large,
        .sentence = content.sentence,
        .content = VStack {
            .alignment = HorizontalAlignment::leading,
            .spacing = spacing,
            .children = {
                headerGroup(*this),
                hairline,
                figures(*this),
                hairline,
                week(*this, environment),
                breathe(*this),
            },
        },
    };
}

}

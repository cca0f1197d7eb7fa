#include "OrvelWidgetsUI/ControlContent.h"

#include "OrvelCopy/Controls.h"
#include "OrvelCopy/Format.h"
#include "OrvelCopy/Widgets.h"
#include "OrvelDesign/Palette.h"

namespace orvel {

DynamicColor ControlContent::tint()
{
    return Palette::toggleOn.solid();
}

ControlContent ControlContent::breathe(const WidgetSnapshot::Breath& breath)
{
    return {
        .kind = Kind::breathe,
        .title = std::string(Copy::Controls::breatheNow()),
        .value = Copy::Widgets::session(breath.minutes, Copy::Widgets::style(breath.style)),
        .symbol = std::string(breatheSymbol),
        .isOn = false,
        .barText = std::nullopt,
        .spokenState = std::nullopt,
    };
}

ControlContent ControlContent::focus(const WidgetMoment& moment)
{
    ControlContent content {
        .kind = Kind::focus,
        .title = std::string(Copy::Controls::focusNow()),
        .value = Copy::Controls::focusOff(moment.focusMinutes),
        .symbol = std::string(focusSymbol),
        .isOn = false,
        .barText = std::nullopt,
        .spokenState = std::string(Copy::Controls::focusOffSpoken()),
    };
    if (const auto focus = moment.focus()) {
        const auto left = *focus->end - moment.date;
        const auto minutes = std::chrono::ceil<std::chrono::minutes>(left).count();
        content.isOn = true;
        content.value = Copy::Widgets::minutesLeft(minutes);
        content.barText = Format::shortMinutes(left);
        content.spokenState = Copy::Controls::focusOnSpoken(minutes);
    }
    return content;
}

}

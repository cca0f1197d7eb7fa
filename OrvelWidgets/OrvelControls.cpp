#include "OrvelWidgets/OrvelControls.h"

#include "OrvelCopy/Controls.h"
#include "OrvelDesign/Palette.h"
#include "OrvelWidgets/OrvelProvider.h"

namespace orvel {

namespace {

ControlLabel label(const ControlContent& content)
{
    return { .title = content.title, .value = content.value, .symbol = content.symbol };
}

}

ControlConfiguration FocusNowControl::configuration()
{
    return {
        .kind = WidgetSnapshot::Kind::focusControl,
        .displayName = std::string(Copy::Controls::focusNow()),
        .description = std::string(Copy::Controls::focusDescription()),
    };
}

ControlToggle FocusNowControl::toggle(const ControlContent& content)
{
    return {
        .isOn = content.isOn,
        .tint = Palette::toggleOn.nsColor(),
        .label = label(content),
        .valueLabel = { .text = content.barText.value_or(content.value), .symbol = content.symbol },
    };
}

ControlConfiguration BreatheNowControl::configuration()
{
    return {
        .kind = WidgetSnapshot::Kind::breatheControl,
        .displayName = std::string(Copy::Controls::breatheNow()),
        .description = std::string(Copy::Controls::breatheDescription()),
    };
}

ControlButton BreatheNowControl::button(const ControlContent& content)
{
    return { .action = {}, .label = label(content) };
}

ControlContent FocusValue::previewValue(Date now, const Calendar& calendar)
{
    return ControlContent::focus(fallbackMoment(now, calendar));
}

ControlContent FocusValue::currentValue(
    const std::optional<WidgetSnapshot>& snapshot, Date now, const Calendar& calendar)
{
    return snapshot ? ControlContent::focus(snapshot->moment(now, calendar)) : previewValue(now, calendar);
}

ControlContent BreatheValue::previewValue()
{
    return ControlContent::breathe({ .style = "calm", .minutes = 1 });
}

ControlContent BreatheValue::currentValue(const std::optional<WidgetSnapshot>& snapshot)
{
    return snapshot ? ControlContent::breathe(snapshot->breathe) : previewValue();
}

}

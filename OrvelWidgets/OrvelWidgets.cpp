#include "OrvelWidgets/OrvelWidgets.h"

#include "OrvelCopy/Widgets.h"
#include "OrvelWidgets/WidgetFamily.h"

namespace orvel {

WidgetConfiguration StatusWidget::configuration()
{
    return {
        .kind = WidgetSnapshot::Kind::status,
        .displayName = std::string(Copy::Widgets::statusName()),
        .description = std::string(Copy::Widgets::statusDescription()),
        .families = { WidgetFamily::systemSmall, WidgetFamily::systemMedium, WidgetFamily::systemLarge },
        .disablesContentMargins = true,
    };
}

WidgetConfiguration BreatheWidget::configuration()
{
    return {
        .kind = WidgetSnapshot::Kind::breathe,
        .displayName = std::string(Copy::Widgets::breatheName()),
        .description = std::string(Copy::Widgets::breatheDescription()),
        .families = { WidgetFamily::systemSmall },
        .disablesContentMargins = true,
    };
}

}

#include "OrvelWidgets/EntryViews.h"

#include <utility>

#include "OrvelWidgets/WidgetFamily.h"

namespace orvel {

ShownWidget StatusWidgetView::shown(const EntryPlace& in) const
{
    auto content = WidgetContent::status(entry.moment, in.locale, in.calendar);
    auto link = content.link.url();
    OpenBreatheIntent breathe { .style = entry.moment.breathe.style, .minutes = content.breatheMinutes };
    return {
        .content = std::move(content),
        .size = WidgetFamily::size(in.family),
        .look = widgetLook(in.renderingMode, in.colorScheme),
        .link = std::move(link),
        .breatheButton = std::move(breathe),
    };
}

ShownWidget BreatheWidgetView::shown(const EntryPlace& in) const
{
    auto content = WidgetContent::breathe(entry.moment.breathe);
    auto link = content.link.url();
    return {
        .content = std::move(content),
        .size = WidgetSize::small,
        .look = widgetLook(in.renderingMode, in.colorScheme),
        .link = std::move(link),
        .breatheButton = std::nullopt,
    };
}

}

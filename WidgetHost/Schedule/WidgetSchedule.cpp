#include "WidgetHost/Schedule/WidgetSchedule.h"

#include <algorithm>
#include <utility>

namespace orvel {

WidgetSchedule::WidgetSchedule(Clock& clock, WidgetRequests& requests, Show show)
    : m_clock(clock), m_requests(requests), m_show(std::move(show)), m_timer(clock, [this] { update(); })
{
}

void WidgetSchedule::setWidgets(const std::vector<ScheduledWidget>& widgets)
{
    std::erase_if(m_widgets, [&](const auto& placed) {
        return std::ranges::find(widgets, placed.first, &ScheduledWidget::id) == widgets.end();
    });
    for (const auto& widget : widgets)
        place(widget);
    update();
}

void WidgetSchedule::place(const ScheduledWidget& widget)
{
    auto& course = m_widgets[widget.id].course;
    if (!course || course->widget().kind != widget.kind)
        course = std::make_unique<WidgetCourse>(widget, m_clock, m_requests, [this] { update(); });
    else if (course->widget().environment != widget.environment)
        course->move(widget.environment);
}

void WidgetSchedule::reload(const std::vector<std::string>& kinds)
{
    for (const auto& [id, placed] : m_widgets) {
        if (kinds.empty() || std::ranges::find(kinds, placed.course->widget().kind) != kinds.end())
            placed.course->askAnew();
    }
    update();
}

void WidgetSchedule::clockWasSet()
{
    reload({});
}

void WidgetSchedule::update()
{
    if (std::exchange(m_isUpdating, true)) {
        m_hasAnswers = true;
        return;
    }
    do {
        m_hasAnswers = false;
        for (const auto& [id, placed] : m_widgets)
            placed.course->update();
    } while (m_hasAnswers);
    m_isUpdating = false;
    m_timer.set(nextWake());
    tell();
}

NextWake WidgetSchedule::nextWake() const
{
    NextWake next;
    for (const auto& [id, placed] : m_widgets) {
        const auto wake = placed.course->nextWake();
        next.include(wake.date);
        next.include(wake.uptime);
    }
    return next;
}

void WidgetSchedule::tell()
{
    // Whoever is told may change the widgets.
    const auto isUntold = [](const auto& placed) { return placed.second.course->shown() != placed.second.told; };
    for (auto next = m_widgets.begin(); (next = std::ranges::find_if(m_widgets, isUntold)) != m_widgets.end();) {
        next->second.told = next->second.course->shown();
        const auto [id, shown] = std::pair(next->first, next->second.told);
        m_show(id, shown);
    }
}

}

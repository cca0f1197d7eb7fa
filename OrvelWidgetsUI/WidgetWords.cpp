#include "OrvelWidgetsUI/WidgetWords.h"

#include <algorithm>
#include <utility>

#include "OrvelCopy/Format.h"
#include "OrvelCopy/Widgets.h"

namespace orvel {

namespace {

std::string withNoBreakSpaces(std::string_view text)
{
    std::string bound;
    for (const auto character : text) {
        if (character == ' ')
            bound += "\u00A0";
        else
            bound += character;
    }
    return bound;
}

}

std::string WidgetWords::time(Date date) const
{
    return Format::time(date, locale, calendar.timeZone());
}

std::string WidgetWords::start(Date date) const
{
    auto time = this->time(date);
    if (calendar.isDate(date, now))
        return time;
    const auto tomorrow = calendar.addingDays(1, now);
    if (tomorrow && calendar.isDate(date, *tomorrow))
        return Copy::Widgets::tomorrow(time);
    const auto weekday = std::chrono::weekday { calendar.day(date) };
    return Copy::Widgets::onDay(locale.abbreviatedWeekday(weekday), time);
}

std::int64_t WidgetWords::minutesUntil(Date end) const
{
    return end > now ? std::chrono::ceil<std::chrono::minutes>(end - now).count() : 0;
}

double WidgetWords::shareLeft(Date start, Date end) const
{
    const Seconds total = end - start;
    if (total <= Seconds { 0 })
        return 0;
    return std::clamp(Seconds { end - now } / total, 0.0, 1.0);
}

std::string WidgetWords::remaining(Date end) const
{
    return withNoBreakSpaces(Format::remaining(end - now));
}

std::string_view levelWord(WidgetSnapshot::Level level)
{
    switch (level) {
    case WidgetSnapshot::Level::gentle:
        return Copy::Widgets::gentle();
    case WidgetSnapshot::Level::firm:
        return Copy::Widgets::firm();
    case WidgetSnapshot::Level::ultraHard:
        return Copy::Widgets::ultraHard();
    }
    std::unreachable();
}

std::string joined(const std::vector<std::string>& names, std::string_view separator)
{
    std::string text;
    for (const auto& name : names) {
        if (&name != &names.front())
            text += separator;
        text += name;
    }
    return text;
}

}

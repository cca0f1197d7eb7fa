#pragma once

#include <string>

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"
#include "OrvelWidgetsUI/Drawn/OrvelBreatheWidgetView.h"
#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

/// Contents for the tests of layouts, and what is recorded of them. Letters are half their size wide.
namespace orvel {

inline WidgetContent sample(WidgetContent::State state)
{
    const Calendar utc(TimeZone::utc());
    const auto moment = WidgetFixtures::moment(state, utc);
    if (state == WidgetContent::State::breathe)
        return WidgetContent::breathe(moment.breathe);
    return WidgetContent::status(moment, *Locale::named("en-GB"), utc);
}

inline const Environment rightToLeft = Environment().with<LayoutDirectionKey>(LayoutDirection::rightToLeft);

inline Rect canvasOf(WidgetSize size)
{
    return { 0, 0, points(size).width, points(size).height };
}

inline RecordingCanvas recorded(const View& view, const Rect& in, const Environment& environment = {})
{
    RecordingCanvas canvas;
    draw(view, canvas, in, environment);
    return canvas;
}

/// A widget whose breathe label acts.
inline RecordingCanvas recordedWidget(
    const WidgetContent& content, WidgetSize size, WidgetLook look, const Environment& environment = {})
{
    if (content.state == WidgetContent::State::breathe)
        return recorded(OrvelBreatheWidgetView { content, look }, canvasOf(WidgetSize::small), environment);
    const auto button = [](View label) { return Action { "Breathe", "OpenBreathe", {}, std::move(label) }; };
    return recorded(OrvelWidgetView { content, size, look, button }, canvasOf(size), environment);
}

/// The marks' lines alone that hold a text.
inline std::string linesWith(const RecordingCanvas& canvas, std::string_view part)
{
    std::string found, all = canvas.text();
    for (std::size_t at = 0; at < all.size();) {
        const auto end = all.find('\n', at);
        const auto line = all.substr(at, end - at + 1);
        if (line.contains(part))
            found += line.substr(line.find_first_not_of(' '));
        at = end + 1;
    }
    return found;
}

}

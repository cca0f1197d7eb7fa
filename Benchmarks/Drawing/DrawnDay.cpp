#include "Benchmarks/Drawing/DrawnDay.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <utility>

#include "Benchmarks/SampleSnapshot.h"
#include "OrvelCopy/Widgets.h"
#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelShared/WidgetMoments.h"
#include "OrvelWidgets/OrvelProvider.h"
#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"
#include "OrvelWidgetsUI/Drawn/WidgetBackground.h"
#include "OrvelWidgetsUI/WidgetBackground.h"
#include "OrvelWidgetsUI/WidgetColors.h"

namespace orvelbench {

namespace {

using namespace orvel;
using nlohmann::json;

constexpr auto look = WidgetLook::dusk;
constexpr auto size = WidgetSize::medium;

/// Every tenth entry: countdowns, waits and Focuses.
constexpr std::size_t step = 10;

std::vector<WidgetContent> contents()
{
    const auto zone = TimeZone::named(sampleZone);
    const auto locale = Locale::named("en-GB");
    if (!zone || !locale)
        throw std::runtime_error("the sample's zone or locale is missing");
    const Calendar calendar(*zone);
    const auto snapshot = sampleSnapshot();
    WidgetMoments moments(snapshot, calendar);
    std::vector<WidgetContent> contents;
    const auto dates =
        snapshot.timelineDates(sampleNow(), calendar, OrvelProvider::countdownSpan, OrvelProvider::limit);
    for (std::size_t i = 0; i < dates.size(); i += step)
        contents.push_back(WidgetContent::status(moments.moment(dates[i]), *locale, calendar));
    return contents;
}

std::string hex(const RGBA& color)
{
    const auto byte = [](double component) { return std::lround(component * 255); };
    return fmt::format(
        "#{:02x}{:02x}{:02x}{:02x}", byte(color.alpha), byte(color.red), byte(color.green), byte(color.blue));
}

std::string hex(const WidgetInk& ink)
{
    return hex(resolve(ink, look, Environment()).value());
}

json colorsForPeers()
{
    const WidgetColors colors { look };
    json stops = json::array();
    const auto background = widgetBackground(look, Environment()).value();
    for (const auto& stop : background.stops)
        stops.push_back({ { "location", stop.location }, { "color", hex(stop.color) } });
    return { { "kicker", hex(colors.kicker()) }, { "title", hex(colors.title()) }, { "detail", hex(colors.detail()) },
        { "progress", hex(colors.ringProgress()) }, { "track", hex(colors.ringTrack()) },
        { "line", hex(colors.line()) }, { "capsule", hex(colors.accentFill()) },
        { "onCapsule", hex(colors.accentOn()) }, { "background", stops } };
}

json forPeers(const WidgetContent& content)
{
    const WidgetColors colors { look };
    const auto tone = toneOrLavender(content.tone);
    json numbers = json::array();
    for (const auto& number : content.numbers)
        numbers.push_back({ { "value", number.value }, { "label", number.label } });
    return { { "kicker", content.kicker.value_or("") }, { "title", content.title }, { "detail", content.detail },
        { "symbol", content.symbol }, { "symbolColor", hex(colors.headerSymbol(tone)) },
        { "discColor", hex(colors.headerDisc(tone)) }, { "progress", content.progress.value_or(-1) },
        { "numbers", numbers } };
}

}

DrawnDay::DrawnDay() : m_contents(contents()), m_renderer(designBundle(), FontScope::ownProcess) { }

std::string DrawnDay::forPeers() const
{
    const auto folder = designBundle().resources();
    json words = json::array();
    for (const auto& content : m_contents)
        words.push_back(orvelbench::forPeers(content));
    return json({ { "width", points(size).width }, { "height", points(size).height }, { "scale", scale },
                    { "radius", Tokens::Radius::lg }, { "colors", colorsForPeers() },
                    { "breatheNow", Copy::Widgets::breatheNow() }, { "symbols", (folder / "Symbols.txt").string() },
                    { "fonts", (folder / "Fonts").string() }, { "contents", words } })
        .dump();
}

Picture DrawnDay::drawn(const WidgetContent& content)
{
    const View whole = Background {
        .content = OrvelWidgetView { .content = content, .size = size, .look = look, .breatheButton = {} },
        .back = WidgetBackground { look },
    };
    auto picture = m_renderer.draw(Clipped { RoundedRectangle { Tokens::Radius::lg }, whole },
        { .size = { points(size).width, points(size).height }, .scale = scale }, Environment());
    if (!picture)
        throw std::runtime_error(picture.error().text());
    return *std::move(picture);
}

Picture DrawnDay::again()
{
    return drawn(m_contents[m_next++ % m_contents.size()]);
}

Picture DrawnDay::withNewWords()
{
    auto content = m_contents[m_next++ % m_contents.size()];
    content.detail += fmt::format(" {}", ++m_newest);
    content.numbers.front().value = fmt::to_string(m_newest);
    return drawn(content);
}

}

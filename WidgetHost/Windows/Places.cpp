#include "WidgetHost/Windows/Places.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ranges>

namespace orvel {

namespace {

std::size_t primary(const std::vector<Output>& outputs)
{
    const auto found = std::ranges::find(outputs, true, &Output::isPrimary);
    return found == outputs.end() ? 0 : static_cast<std::size_t>(found - outputs.begin());
}

/// The work area from the output's own corner.
Rect room(const Output& output)
{
    return { output.workArea.x - output.area.x, output.workArea.y - output.area.y, output.workArea.width,
        output.workArea.height };
}

/// Within the room; where it is too large for it, from the room's start.
double within(double start, double length, double roomStart, double roomLength)
{
    return std::round(std::max(roomStart, std::min(start, roomStart + roomLength - length)));
}

PlacedCard clamped(std::size_t index, const Rect& card, const std::vector<Output>& outputs)
{
    const auto free = room(outputs[index]);
    return { index,
        { within(card.x, card.width, free.x, free.width), within(card.y, card.height, free.y, free.height), card.width,
            card.height } };
}

bool isClear(const Rect& card, const std::vector<Rect>& taken)
{
    return std::ranges::none_of(taken, [&](const Rect& other) {
        const auto grown = other.insetBy(-placeGap);
        return card.x < grown.right() && grown.x < card.right() && card.y < grown.bottom() && grown.y < card.bottom();
    });
}

/// Starts along one side: the room's own, and one after each card.
std::vector<double> starts(double first, const std::vector<Rect>& taken, double (Rect::*end)() const)
{
    std::vector<double> starts { first };
    for (const auto& card : taken)
        starts.push_back((card.*end)() + placeGap);
    std::ranges::sort(starts);
    return starts;
}

double distance(double at, double start, double length)
{
    return std::max({ start - at, at - (start + length), 0.0 });
}

}

std::optional<PlacedCard> shownPlace(const WidgetPlace& place, Size card, const std::vector<Output>& outputs)
{
    if (outputs.empty())
        return std::nullopt;
    const auto found = std::ranges::find(outputs, place.output, &Output::name);
    const auto index = found == outputs.end() ? primary(outputs) : static_cast<std::size_t>(found - outputs.begin());
    return clamped(index, { { static_cast<double>(place.x), static_cast<double>(place.y) }, card }, outputs);
}

std::optional<PlacedCard> freePlace(Size card, const std::vector<PlacedCard>& taken, const std::vector<Output>& outputs)
{
    if (outputs.empty())
        return std::nullopt;
    const auto index = primary(outputs);
    const auto free = room(outputs[index]).insetBy(placeGap);
    std::vector<Rect> cards;
    for (const auto& other : taken) {
        if (other.output == index)
            cards.push_back(other.card);
    }
    for (const double x : starts(free.x, cards, &Rect::right)) {
        for (const double y : starts(free.y, cards, &Rect::bottom)) {
            const Rect candidate { { std::ceil(x), std::ceil(y) }, card };
            const bool fits = candidate.x >= free.x && candidate.y >= free.y && candidate.right() <= free.right()
                && candidate.bottom() <= free.bottom();
            if (fits && isClear(candidate, cards))
                return PlacedCard { index, candidate };
        }
    }
    const double step = placeGap * static_cast<double>(cards.size() + 1);
    return clamped(index, { { free.x + step, free.y + step }, card }, outputs);
}

std::optional<PlacedCard> droppedPlace(const PlacedCard& dropped, const std::vector<Output>& outputs)
{
    if (dropped.output >= outputs.size())
        return std::nullopt;
    auto card = dropped.card;
    card.x += outputs[dropped.output].area.x;
    card.y += outputs[dropped.output].area.y;
    const auto away = [middle = card.center()](const Output& output) {
        return distance(middle.x, output.area.x, output.area.width)
            + distance(middle.y, output.area.y, output.area.height);
    };
    const auto nearest = std::ranges::min_element(outputs, {}, away);
    card.x -= nearest->area.x;
    card.y -= nearest->area.y;
    return clamped(static_cast<std::size_t>(nearest - outputs.begin()), card, outputs);
}

WidgetPlace keptPlace(const PlacedCard& placed, const std::vector<Output>& outputs)
{
    const auto whole = [](double length) {
        constexpr double most = 1'000'000; // no desktop is as large
        return static_cast<std::int32_t>(std::clamp(std::round(length), -most, most));
    };
    return { outputs.at(placed.output).name, whole(placed.card.x), whole(placed.card.y) };
}

}

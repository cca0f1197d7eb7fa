#include "Tools/orvelctl/Card.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fmt/format.h>
#include <vector>

#include "OrvelCopy/Widgets.h"
#include "OrvelPlatform/Base/TextColumns.h"
#include "Tools/orvelctl/calls/Terminal.h"

namespace orvelctl {

namespace {

constexpr std::size_t leastWidth = 42;
constexpr std::size_t dayWidth = 6; // seven of them are a card's least width

std::string padded(std::string text, std::size_t width)
{
    const auto taken = orvel::columns(text);
    return text + std::string(width > taken ? width - taken : 0, ' ');
}

std::size_t widthOf(const std::vector<std::string>& lines)
{
    auto width = leastWidth;
    for (const auto& line : lines)
        width = std::max(width, orvel::columns(line));
    return width;
}

/// A line between the card's edges, for each text.
std::string framed(const std::vector<std::string>& lines)
{
    const auto width = widthOf(lines);
    std::string edge;
    for (std::size_t column = 0; column < width + 2; ++column)
        edge += "─";
    auto card = fmt::format("╭{}╮\n", edge);
    for (const auto& line : lines)
        card += fmt::format("│ {} │\n", padded(line, width));
    return card + fmt::format("╰{}╯\n", edge);
}

std::string progressBar(double progress, std::size_t width)
{
    const auto filled = static_cast<std::size_t>(std::lround(progress * static_cast<double>(width)));
    std::string bar;
    for (std::size_t column = 0; column < width; ++column)
        bar += column < filled ? "█" : "░";
    return bar;
}

std::string numbersLine(const std::vector<orvel::WidgetContent::Number>& numbers)
{
    std::string line;
    for (const auto& number : numbers)
        line += fmt::format("{}{} {}", line.empty() ? "" : "   ", number.value, number.label);
    return line;
}

std::string weekBars(const std::vector<orvel::WidgetContent::Bar>& week)
{
    constexpr std::array<std::string_view, 8> heights { "▁", "▂", "▃", "▄", "▅", "▆", "▇", "█" };
    std::string line;
    for (const auto& bar : week) {
        const auto height = std::lround(std::clamp(bar.height, 0.0, 1.0) * (heights.size() - 1));
        const auto mark = heights[static_cast<std::size_t>(height)];
        line += padded(fmt::format("{}{}{}", mark, mark, mark), dayWidth);
    }
    return line;
}

std::string weekLabels(const std::vector<orvel::WidgetContent::Bar>& week)
{
    std::string line;
    for (const auto& bar : week)
        line += padded(bar.isToday ? "[" + bar.label + "]" : " " + bar.label, dayWidth);
    return line;
}

}

std::string card(const orvel::WidgetContent& content)
{
    std::vector<std::string> lines;
    if (content.kicker)
        lines.push_back(printable(*content.kicker));
    lines.push_back(printable(content.title));
    lines.push_back(printable(content.detail));
    const auto textEnd = static_cast<std::ptrdiff_t>(lines.size());
    if (!content.numbers.empty())
        lines.insert(lines.end(), { "", numbersLine(content.numbers) });
    if (!content.week.empty())
        lines.insert(lines.end(),
            { "", std::string(orvel::Copy::Widgets::stayedOffThisWeek()), weekBars(content.week),
                weekLabels(content.week) });
    if (content.progress)
        lines.insert(lines.begin() + textEnd, progressBar(*content.progress, widthOf(lines)));
    return framed(lines);
}

std::string line(const orvel::ControlContent& content)
{
    const auto isToggle = content.kind == orvel::ControlContent::Kind::focus;
    const auto mark = !isToggle ? "( )" : content.isOn ? "[x]" : "[ ]";
    return fmt::format("{} {}  {}\n", mark, content.title, content.value);
}

}

#include "WidgetHost/Program/HostListing.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "OrvelPlatform/Base/TextColumns.h"
#include "WidgetHost/Desk/Families.h"

namespace orvel {

namespace {

/// Rows of cells; all but the last of a row are filled up to the widest of their column.
using Rows = std::vector<std::vector<std::string>>;

/// What others wrote, on one line: controls of a terminal are shown, not obeyed.
std::string printable(std::string text)
{
    std::ranges::replace_if(
        text, [](char character) { return (character >= 0 && character < ' ') || character == 0x7F; }, '?');
    return text;
}

std::string asLines(const Rows& rows)
{
    std::vector<std::size_t> widths;
    for (const auto& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], columns(row[column]));
    }
    std::string lines;
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column)
            line += "  " + row[column] + std::string(widths[column] - columns(row[column]), ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        lines += line + "\n";
    }
    return lines;
}

std::string placeText(const std::optional<WidgetPlace>& place)
{
    return place ? fmt::format("{} at {}, {}", printable(place->output), place->x, place->y) : "not placed yet";
}

std::string sizes(const ExtensionMember& member)
{
    std::vector<std::string> sizes;
    for (const auto& family : member.families)
        sizes.push_back(printable(sizeOfFamily(family)));
    return fmt::format("{}", fmt::join(sizes, ", "));
}

bool isWidget(const ExtensionMember& member)
{
    return member.role == ExtensionMember::Role::widget;
}

}

std::string hostListing(const HostState& state, const std::optional<std::vector<ExtensionMember>>& members)
{
    Rows placed;
    for (const auto& widget : state.widgets)
        placed.push_back({ printable(widget.kind), printable(sizeOfFamily(widget.family)),
            std::string(rawValue(widget.look)), placeText(widget.place) });
    auto text = placed.empty() ? "There are no widgets on the desktop.\n" : "On the desktop:\n" + asLines(placed);
    if (!members)
        return text;
    Rows offered;
    for (const auto& member : *members) {
        if (isWidget(member))
            offered.push_back({ printable(member.kind), sizes(member),
                printable(member.displayName) + ": " + printable(member.description) });
    }
    return text + (offered.empty() ? "There are none to add.\n" : "To add:\n" + asLines(offered));
}

std::optional<std::string> whyNotAdded(const HostCall::Add& call, const std::vector<ExtensionMember>& members)
{
    const auto member = std::ranges::find_if(
        members, [&](const ExtensionMember& offered) { return isWidget(offered) && offered.kind == call.kind; });
    if (member == members.end())
        return fmt::format("there is no widget of the kind {}; --list tells those that there are", call.kind);
    if (std::ranges::find(member->families, call.family) == member->families.end())
        return fmt::format("{} has no size {}, only {}", call.kind, sizeOfFamily(call.family), sizes(*member));
    return std::nullopt;
}

}

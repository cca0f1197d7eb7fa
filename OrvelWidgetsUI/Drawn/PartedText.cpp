#include "OrvelWidgetsUI/Drawn/PartedText.h"

#include <algorithm>
#include <string_view>

#include "OrvelWidgetsUI/Drawn/WidgetText.h"

namespace orvel {

namespace {

std::string replaced(std::string_view text, std::string_view from, std::string_view to)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const auto found = text.find(from, at);
        result += text.substr(at, found - at);
        if (found == std::string_view::npos)
            break;
        result += to;
        at = found + from.size();
    }
    return result;
}

/// A separator may end a line and not begin one.
std::string loosely(std::string_view words)
{
    return replaced(replaced(words, " · ", "\u00A0· "), " – ", "\u00A0– ");
}

/// A line may end after a separator of parts and nowhere else. A dash needs a joiner: by itself it ends a line even
/// before a space that does not break.
std::string tightly(std::string_view words)
{
    return replaced(
        replaced(replaced(words, " – ", "\u00A0–\u2060\u00A0"), " ", "\u00A0"), "\u00A0·\u00A0", "\u00A0· ");
}

Text text(const PartedText& parted, std::string words)
{
    return {
        .runs = { { std::move(words), textStyle(parted.type) } },
        .paint = parted.paint,
        .lineLimit = parted.lineLimit,
        .balanced = true,
    };
}

/// Whether every part of tightly set words has room on a line.
bool hasRoomForParts(const PartedText& parted, std::string_view tight, double width, const Environment& environment)
{
    for (std::size_t at = 0; at < tight.size();) {
        const auto end = std::min(tight.find(' ', at), tight.size());
        const auto part = text(parted, std::string(tight.substr(at, end - at)));
        if (part.measure(Proposal::ideal, environment).size.width > width)
            return false;
        at = end + 1;
    }
    return true;
}

bool isCut(const Text& text, double width, const Environment& environment)
{
    // The same one as is measured, so that it is set once.
    const TextBlock block {
        .runs = { { text.runs.front().text, text.runs.front().style } },
        .lineLimit = text.lineLimit,
        .alignment = text.alignment,
        .balanced = text.balanced,
        .direction = environment.get<LayoutDirectionKey>(),
        .language = environment.get<TextLanguageKey>(),
    };
    return environment.get<TextSystemKey>()->shape(block, width)->isCut;
}

/// The words as they are set within a width. What is set tightly there is so within the width that it then takes.
Text set(const PartedText& parted, double room, const Environment& environment)
{
    auto plain = text(parted, parted.words);
    if (plain.measure(Proposal::ideal, environment).size.width <= room)
        return plain;
    auto tight = text(parted, tightly(parted.words));
    auto loose = text(parted, loosely(parted.words));
    const bool isTight = hasRoomForParts(parted, tight.runs.front().text, room, environment)
        && (!isCut(tight, room, environment) || isCut(loose, room, environment));
    return isTight ? tight : loose;
}

double roomIn(ProposedLength width)
{
    constexpr double roundingRoom = 0.01;
    return width.value_or(infiniteLength) + roundingRoom;
}

}

Extent PartedText::measure(const Proposal& proposed, const Environment& environment) const
{
    const double room = roomIn(proposed.width);
    const auto chosen = set(*this, room, environment);
    auto extent = chosen.measure(proposed, environment);
    // Words that are cut keep all their room: in less, other parts would fit.
    if (proposed.width && isCut(chosen, room, environment))
        extent.size.width = std::max(extent.size.width, *proposed.width);
    return extent;
}

void PartedText::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    canvas.add(ElementMark { ElementRole::text, words, in });
    const auto silent = canvas.silent();
    set(*this, roomIn(in.width), environment).draw(canvas, in, environment);
}

}

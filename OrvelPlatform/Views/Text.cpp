#include "OrvelPlatform/Views/Text.h"

#include <algorithm>
#include <cmath>

#include "OrvelPlatform/Views/Alignment.h"

namespace orvel {

namespace {

// Sums of widths come back with their last digits off; a line is not broken for that.
constexpr double roundingRoom = 0.01;

int lineLimitWithin(const Text& text, double height)
{
    const double lineHeight = text.runs.front().style.lineHeight;
    if (!std::isfinite(height) || lineHeight <= 0)
        return text.lineLimit;
    constexpr double plenty = 1000;
    const int lines = static_cast<int>(std::clamp((height + roundingRoom) / lineHeight, 1.0, plenty));
    return text.lineLimit > 0 ? std::min(lines, text.lineLimit) : lines;
}

std::shared_ptr<const ShapedText> shaped(const Text& text, double width, double height, const Environment& environment)
{
    TextBlock block {
        .runs = {},
        .lineLimit = lineLimitWithin(text, height),
        .alignment = text.alignment,
        .balanced = text.balanced,
        .direction = environment.get<LayoutDirectionKey>(),
        .language = environment.get<TextLanguageKey>(),
    };
    block.runs.reserve(text.runs.size());
    for (const auto& run : text.runs)
        block.runs.push_back({ run.text, run.style });
    return environment.get<TextSystemKey>()->shape(block, width + roundingRoom);
}

HorizontalAlignment horizontal(TextAlignment alignment)
{
    switch (alignment) {
    case TextAlignment::leading:
        return HorizontalAlignment::leading;
    case TextAlignment::center:
        return HorizontalAlignment::center;
    case TextAlignment::trailing:
        return HorizontalAlignment::trailing;
    }
    return HorizontalAlignment::leading;
}

std::string spoken(const Text& text)
{
    std::string words;
    for (const auto& run : text.runs)
        words += run.text;
    return words;
}

}

Extent Text::measure(const Proposal& proposed, const Environment& environment) const
{
    if (runs.empty())
        return {};
    const auto text =
        shaped(*this, proposed.width.value_or(infiniteLength), proposed.height.value_or(infiniteLength), environment);
    return { text->size, text->firstBaseline, text->lastBaseline };
}

void Text::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    if (runs.empty())
        return;
    const auto text = shaped(*this, in.width, in.height, environment);
    std::vector<Paint> paints;
    for (const auto& run : runs)
        paints.push_back(run.paint.value_or(paint));
    const double x =
        placedX(text->size.width, in.x, in.width, horizontal(alignment), environment.get<LayoutDirectionKey>());
    canvas.text(*text, { x, in.y }, paints);
    canvas.add(ElementMark { ElementRole::text, spoken(*this), in });
}

}

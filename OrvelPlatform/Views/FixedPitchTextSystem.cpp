#include "OrvelPlatform/Views/FixedPitchTextSystem.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace orvel {

namespace {

struct Letter {
    std::string bytes;
    double width;
    bool isSpace() const { return bytes == " "; }
};

using Letters = std::vector<Letter>;

bool continuesLetter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

double pitch(const TextStyle& style)
{
    return style.size / 2 + style.tracking;
}

Letters letters(const TextBlock& block)
{
    Letters all;
    for (const auto& run : block.runs) {
        for (const char byte : run.text) {
            if (continuesLetter(byte) && !all.empty())
                all.back().bytes += byte;
            else
                all.push_back({ std::string(1, byte == '\n' ? ' ' : byte), pitch(run.style) });
        }
    }
    return all;
}

double widthOf(const Letters& line)
{
    double width = 0;
    for (const auto& letter : line)
        width += letter.width;
    return width;
}

void trim(Letters& line)
{
    while (!line.empty() && line.back().isSpace())
        line.pop_back();
}

/// How many letters stand on the first line: up to the last space within the width, else as many as there is room for.
std::size_t lengthOfLine(const Letters& all, std::size_t from, double width)
{
    double used = 0;
    std::size_t afterSpace = from;
    for (std::size_t i = from; i < all.size(); ++i) {
        if (all[i].isSpace())
            afterSpace = i + 1;
        used += all[i].width;
        if (used > width && !all[i].isSpace())
            return std::max<std::size_t>(afterSpace > from ? afterSpace - from : i - from, 1);
    }
    return all.size() - from;
}

std::vector<Letters> broken(const Letters& all, double width)
{
    std::vector<Letters> lines;
    for (std::size_t from = 0; from < all.size();) {
        const auto length = lengthOfLine(all, from, width);
        const auto begin = all.begin() + static_cast<std::ptrdiff_t>(from);
        lines.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(length));
        trim(lines.back());
        from += length;
    }
    return lines;
}

void endInEllipsis(Letters& line, double width, double ellipsis)
{
    while (!line.empty() && widthOf(line) + ellipsis > width)
        line.pop_back();
    trim(line);
    line.push_back({ "…", ellipsis });
}

double widthOfLongestWord(const Letters& all)
{
    double longest = 0, word = 0;
    for (const auto& letter : all) {
        word = letter.isSpace() ? 0 : word + letter.width;
        longest = std::max(longest, word);
    }
    return longest;
}

/// The narrowest width that needs no more lines and breaks no word.
std::vector<Letters> balanced(const Letters& all, std::vector<Letters> lines, double width)
{
    const double step = all.front().width;
    const double least = widthOfLongestWord(all);
    for (double narrower = width - step; narrower >= least; narrower -= step) {
        auto attempt = broken(all, narrower);
        if (attempt.size() > lines.size())
            break;
        lines = std::move(attempt);
    }
    return lines;
}

std::string joined(const Letters& line)
{
    std::string text;
    for (const auto& letter : line)
        text += letter.bytes;
    return text;
}

double lineX(double spare, const TextBlock& block)
{
    if (block.alignment == TextAlignment::center)
        return spare / 2;
    const bool atLeft =
        (block.alignment == TextAlignment::leading) == (block.direction == LayoutDirection::leftToRight);
    return atLeft ? 0 : spare;
}

}

std::shared_ptr<const ShapedText> FixedPitchTextSystem::shape(const TextBlock& block, double width)
{
    auto shaped = std::make_shared<ShapedText>();
    const auto& style = block.runs.front().style;
    const auto all = letters(block);
    auto lines = broken(all, width);
    if (lines.empty())
        lines.emplace_back();
    const auto limit = static_cast<std::size_t>(std::max(block.lineLimit, 0));
    if (limit > 0 && lines.size() > limit) {
        shaped->isCut = true;
        lines.resize(limit);
        endInEllipsis(lines.back(), width, pitch(style));
    } else if (block.balanced && lines.size() > 1) {
        lines = balanced(all, std::move(lines), width);
    }
    for (const auto& line : lines)
        shaped->size.width = std::max(shaped->size.width, widthOf(line));
    for (const auto& line : lines)
        shaped->lines.push_back({ joined(line), lineX(shaped->size.width - widthOf(line), block), widthOf(line) });
    shaped->size.height = style.lineHeight * static_cast<double>(lines.size());
    constexpr double ascent = 0.8;
    shaped->firstBaseline = (style.lineHeight - style.size) / 2 + ascent * style.size;
    shaped->lastBaseline = shaped->size.height - style.lineHeight + shaped->firstBaseline;
    return shaped;
}

TextSystemKey::Value TextSystemKey::defaultValue()
{
    return std::make_shared<FixedPitchTextSystem>();
}

}

#include "OrvelPlatform/Views/RecordingCanvas.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <utility>

#include "OrvelPlatform/Base/Match.h"

namespace orvel {

namespace {

/// A length with at most two decimals, which hides the last digits of sums.
std::string number(double value)
{
    constexpr double hundredths = 100;
    return fmt::format("{}", std::round(value * hundredths) / hundredths + 0.0);
}

int byte(double component)
{
    constexpr double largest = 255;
    return static_cast<int>(std::lround(std::clamp(component, 0.0, 1.0) * largest));
}

std::string described(const std::vector<GradientStop>& stops)
{
    std::string text;
    for (const auto& stop : stops)
        text += fmt::format(" {} {}", number(stop.location), described(stop.color));
    return text;
}

std::string described(const Paint& paint)
{
    return std::visit(Match {
                          [](const Color& color) { return described(color); },
                          [](const LinearGradient& gradient) { return "linear" + described(gradient.stops); },
                          [](const RadialGradient& gradient) {
                              return "radial " + number(gradient.radius) + described(gradient.stops);
                          },
                          [](const Texture& texture) {
                              return fmt::format(
                                  "{} texture {} {}", described(texture.ground), texture.name, number(texture.opacity));
                          },
                          [](const Erase&) { return std::string("erase"); },
                      },
        paint);
}

std::string described(const Outline& outline)
{
    return std::visit(Match {
                          [](const Rectangle&) { return std::string("rectangle"); },
                          [](const RoundedRectangle& rounded) { return "rounded " + number(rounded.radius); },
                          [](const Capsule&) { return std::string("capsule"); },
                          [](const Ellipse&) { return std::string("ellipse"); },
                          [](const Arc& arc) { return fmt::format("arc {} {}", number(arc.start), number(arc.sweep)); },
                          [](const Ring& ring) { return "ring " + number(ring.width); },
                      },
        outline);
}

bool erases(const Paint& paint)
{
    return std::holds_alternative<Erase>(paint);
}

std::string_view nameOf(RecordingCanvas::Mark::Kind kind)
{
    switch (kind) {
    case RecordingCanvas::Mark::Kind::fill:
        return "fill";
    case RecordingCanvas::Mark::Kind::stroke:
        return "stroke";
    case RecordingCanvas::Mark::Kind::shadow:
        return "shadow";
    case RecordingCanvas::Mark::Kind::text:
        return "text";
    case RecordingCanvas::Mark::Kind::symbol:
        return "symbol";
    }
    return "";
}

std::string described(const ActionParameters& parameters)
{
    std::string text;
    for (const auto& [key, value] : parameters)
        text += fmt::format(" {}={}", key,
            std::visit(Match {
                           [](const std::string& words) { return words; },
                           [](std::int64_t whole) { return fmt::format("{}", whole); },
                           [](bool yes) { return fmt::format("{}", yes); },
                       },
                value));
    return text;
}

}

std::string described(const Rect& rect)
{
    return fmt::format("{},{} {}×{}", number(rect.x), number(rect.y), number(rect.width), number(rect.height));
}

std::string described(const Color& color)
{
    auto text = fmt::format("#{:02X}{:02X}{:02X}", byte(color.red), byte(color.green), byte(color.blue));
    constexpr double percent = 100;
    if (color.alpha < 1)
        text += fmt::format(" {}%", std::lround(color.alpha * percent));
    return text;
}

void RecordingCanvas::write(const std::string& line)
{
    m_lines += std::string(2 * m_depth, ' ') + line + '\n';
}

void RecordingCanvas::record(
    Mark::Kind kind, const Rect& in, std::string shows, std::string paint, bool erases, bool isCut)
{
    write(fmt::format("{} {} {} {}", nameOf(kind), described(seen(in)), shows, paint));
    m_marks.push_back({ kind, seen(in), std::move(shows), std::move(paint), m_accents > 0, erases, isCut, m_clips });
}

void RecordingCanvas::fill(const Outline& outline, const Rect& in, const Paint& paint)
{
    record(Mark::Kind::fill, in, described(outline), described(paint), erases(paint));
}

void RecordingCanvas::stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint)
{
    const auto* caps = stroke.cap == Stroke::Cap::round ? " round" : "";
    record(Mark::Kind::stroke, in, fmt::format("{} width {}{}", described(outline), number(stroke.width), caps),
        described(paint), erases(paint));
}

void RecordingCanvas::shadow(const Outline& outline, const Rect& in, const Shadow& shadow)
{
    record(Mark::Kind::shadow, in,
        fmt::format("{}{} {},{} blur {} spread {}", described(outline), shadow.inset ? " inset" : "", number(shadow.x),
            number(shadow.y), number(shadow.blur), number(shadow.spread)),
        described(shadow.color), false);
}

void RecordingCanvas::text(const ShapedText& text, Point at, const std::vector<Paint>& paints)
{
    std::string words;
    for (const auto& line : text.lines)
        words += (words.empty() ? "" : " / ") + line.text;
    std::string colors;
    for (const auto& paint : paints)
        colors += (colors.empty() ? "" : ", ") + described(paint);
    const bool erasing = std::ranges::any_of(paints, [](const Paint& paint) { return erases(paint); });
    record(Mark::Kind::text, { at, text.size }, '"' + words + '"', colors, erasing, text.isCut);
}

void RecordingCanvas::symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint)
{
    record(Mark::Kind::symbol, in, fmt::format("{} width {}", symbol.name, number(strokeWidth)), described(paint),
        erases(paint));
}

void RecordingCanvas::entered(const State& state)
{
    std::visit(Match {
                   [&](const Clip& clip) {
                       m_clips.push_back(seen(clip.in));
                       write(fmt::format("clip {} {}", described(seen(clip.in)), described(clip.outline)));
                   },
                   [&](const Fade& fade) { write("opacity " + number(fade.opacity)); },
                   [&](const Magnify& magnify) { write("scale " + number(magnify.factor)); },
                   [&](const Accent&) {
                       ++m_accents;
                       write("accent");
                   },
                   [](const Silence&) {},
               },
        state);
    if (!std::holds_alternative<Silence>(state))
        ++m_depth;
}

void RecordingCanvas::left(const State& state)
{
    if (std::holds_alternative<Clip>(state))
        m_clips.pop_back();
    if (std::holds_alternative<Accent>(state))
        --m_accents;
    if (!std::holds_alternative<Silence>(state))
        --m_depth;
}

std::string RecordingCanvas::text() const
{
    auto text = m_lines;
    for (const auto& element : elements())
        text += fmt::format("element {} {} \"{}\"\n", rawValue(element.role), described(element.frame), element.label);
    for (const auto& action : actions())
        text += fmt::format("action {} \"{}\" {}{}\n", described(action.frame), action.label, action.intent,
            described(action.parameters));
    return text;
}

}

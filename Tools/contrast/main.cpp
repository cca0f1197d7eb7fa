/// Writes docs/contrast.md: how the colours of text and marks stand out from what they are drawn on, measured from the
/// tokens themselves.

#include <array>
#include <cmath>

#include <fmt/format.h>

#include "Tools/contrast/Pairs.h"

using namespace orvel;

namespace {

struct Setting {
    std::string_view name;
    ColorFlags flags;
};

constexpr std::array settings {
    Setting { "dusk", { .dark = true } },
    Setting { "dusk, more contrast", { .dark = true, .increaseContrast = true } },
    Setting { "dawn", {} },
    Setting { "dawn, more contrast", { .increaseContrast = true } },
};

/// Cut after two digits and never rounded up, so that no pair seems to reach what it misses.
double shown(double ratio)
{
    return std::floor(ratio * 100) / 100;
}

/// Where a pair falls short, as "dawn 4.12:1"; empty where it never does.
std::string shortfalls(const Pair& pair, double required)
{
    std::string list;
    for (const auto& setting : settings)
        if (const double ratio = pair.ratio(setting.flags); ratio < required)
            list += fmt::format("{}{} {:.2f}:1", list.empty() ? "" : "; ", setting.name, shown(ratio));
    return list;
}

std::string row(const Pair& pair, double required)
{
    auto line = fmt::format("| `{}` | {} |", pair.name, pair.surface.name);
    for (const auto& setting : settings) {
        const double ratio = pair.ratio(setting.flags);
        const std::string_view emphasis = ratio < required ? "**" : "";
        line += fmt::format(" {0}{1:.2f}{0} |", emphasis, shown(ratio));
    }
    return line + (shortfalls(pair, required).empty() ? " yes |\n" : " **no** |\n");
}

std::string table(const Section& section)
{
    auto text = fmt::format("\n## {}\n\n{} At least {:.2g}:1 is asked for.\n\n| ink | surface |", section.title,
        section.about, section.required);
    std::string rule = "\n| --- | --- |";
    for (const auto& setting : settings) {
        text += fmt::format(" {} |", setting.name);
        rule += " ---: |";
    }
    text += " enough |" + rule + " --- |\n";
    for (const auto& pair : section.pairs)
        text += row(pair, section.required);
    return text;
}

/// What to know first: the pairs that are too weak.
std::string summary(const std::vector<Section>& all)
{
    std::string list;
    std::size_t pairs = 0, weak = 0;
    for (const auto& section : all)
        for (const auto& pair : section.pairs) {
            ++pairs;
            const auto missed = shortfalls(pair, section.required);
            if (missed.empty())
                continue;
            ++weak;
            list += fmt::format(
                "- `{}` on {}: {} (asked for: {:.2g}:1)\n", pair.name, pair.surface.name, missed, section.required);
        }
    const auto verdict = weak == 0 ? std::string("Every one reaches what is asked for.\n")
                                   : fmt::format("Of these, {} fall short in at least one setting:\n\n{}", weak, list);
    return fmt::format("{} pairs in four settings. {}", pairs, verdict);
}

}

int main()
{
    const auto all = sections();
    fmt::print(
        "# Contrast\n\n"
        "Made by `Tools/contrast` from the tokens; do not edit. Ratios follow WCAG 2.2 (relative luminance, sRGB), "
        "cut after two\ndigits. Text of ordinary size needs 4.5:1 (success criterion 1.4.3), parts of controls and "
        "meaningful symbols 3:1\n(1.4.11). Translucent colours are composited over what lies beneath them. What "
        "falls short is in bold.\nThe tinted looks of widgets are left out: their colours are the desktop's.\n\n{}",
        summary(all));
    for (const auto& section : all)
        fmt::print("{}", table(section));
}

#include "Tools/orvelctl/pictures/GalleryDesign.h"

#include <cmath>
#include <fmt/format.h>

#include "OrvelDesign/Drawn/BloomingOrb.h"
#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelDesign/Drawn/Orb.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/Drawn/OrvelFont.h"
#include "OrvelDesign/Drawn/Wordmark.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/OrbSize.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensMotion.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "Tools/orvelctl/pictures/Specimens.h"

namespace orvelctl {

using namespace orvel;

namespace {

std::string hex(const RGBA& color)
{
    const auto byte = [](double channel) { return static_cast<int>(std::lround(channel * 255)); };
    const auto text = fmt::format("#{:02x}{:02x}{:02x}", byte(color.red), byte(color.green), byte(color.blue));
    return color.alpha == 1 ? text : fmt::format("{} {:.0f} %", text, color.alpha * 100);
}

/// A colour on the palette's background, so that a translucent one shows as it will.
View swatch(const OrvelColor& color, const Environment& environment)
{
    constexpr Size size { 132, 56 };
    const auto value = color.resolve(environment);
    const View field = Overlay {
        .content = Shape { RoundedRectangle { Tokens::Radius::sm }, Color(value) },
        .front = Shape { RoundedRectangle { Tokens::Radius::sm }, Color(Palette::line.resolve(environment)),
            Stroke { .width = 1 } },
    };
    return Specimen { field, size, { std::string(color.name), hex(value) } };
}

View swatches(const Environment& environment)
{
    std::vector<View> all;
    for (const auto& [name, color] : Palette::all)
        all.push_back(swatch(color, environment));
    for (const auto tone : allCases<IdentityTone>())
        all.push_back(swatch(Palette::identity(tone), environment));
    constexpr std::size_t columns = 5;
    return grid(all, columns);
}

View typeSample(MacTypeRole role, const Environment& environment)
{
    const auto font = metrics(role, environment.get<OrvelBiggerTextKey>(), 1);
    const auto& spec = font.spec;
    const auto kind = fmt::format("{} · {:g}/{:g} · {}{} · {}", rawValue(role), font.size, font.lineHeight, spec.weight,
        spec.italic ? " italic" : "", rawValue(spec.family));
    return VStack {
        .alignment = HorizontalAlignment::leading,
        .spacing = Tokens::Space::s1,
        .children = {
            Text {
                .runs = { { font.tabularDigits ? "0123456789" : "A quiet hour, well begun",
                    orvel::font(font) } },
                .paint = Color(Palette::textPrimary.resolve(environment)),
                .lineLimit = 1,
            },
            Text {
                .runs = { { kind, OrvelFont { MacTypeRole::subheadline }.style(environment) } },
                .paint = Color(Palette::textSecondary.resolve(environment)),
                .lineLimit = 1,
            },
        },
    };
}

/// An orb with room for its pool at its widest.
View orbSpecimen(View orb, double disc, std::vector<std::string> lines)
{
    const double side = std::ceil(disc * orbPoolFactor * OrbPose::inhaled.poolScale);
    return Specimen { std::move(orb), { side, side }, std::move(lines) };
}

constexpr double discSize = OrbSize::resting;

std::vector<View> phase(BreathMotion motion)
{
    std::vector<View> row;
    for (const double progress : { 0.0, 0.25, 0.5, 0.75, 1.0 }) {
        row.push_back(orbSpecimen(Orb { discSize, OrbPose::breathing(motion, progress) }, discSize,
            { fmt::format("{} {:.0f} %", rawValue(motion), progress * 100) }));
    }
    return row;
}

View breath()
{
    std::vector<View> all;
    for (const auto motion : allCases<BreathMotion>()) {
        const auto row = phase(motion);
        all.insert(all.end(), row.begin(), row.end());
    }
    constexpr std::size_t columns = 5;
    return grid(all, columns);
}

View poses()
{
    const std::pair<std::string, OrbPose> named[] { { "rest", OrbPose::rest }, { "exhaled", OrbPose::exhaled },
        { "inhaled", OrbPose::inhaled }, { "first inhale", OrbPose::firstInhale }, { "paused", OrbPose::paused } };
    std::vector<View> row;
    for (const auto& [name, pose] : named)
        row.push_back(orbSpecimen(Orb { discSize, pose }, discSize, { name }));
    return grid(row, row.size());
}

View bloom()
{
    std::vector<View> row;
    for (const double share : { 0.0, 0.2, 0.4, 0.6, 0.8, 1.0 }) {
        const Seconds elapsed { Tokens::Duration::bloom * share };
        row.push_back(orbSpecimen(
            BloomingOrb { discSize, elapsed }, discSize, { fmt::format("after {:.0f} ms", elapsed.count() * 1000) }));
    }
    return grid(row, row.size());
}

struct NamedGlyph {
    std::string name;
    MenuBarOrbState state;
};

std::vector<NamedGlyph> glyphs()
{
    std::vector<NamedGlyph> all { { "idle", MenuBarOrb::Idle {} } };
    for (const double breath : { 0.0, 0.5, 1.0 })
        all.push_back({ fmt::format("active {:g}", breath), MenuBarOrb::Active { breath } });
    for (const double remaining : { 1.0, 0.6, 0.25, 0.0 })
        all.push_back({ fmt::format("focus {:g}", remaining), MenuBarOrb::Focus { remaining } });
    all.push_back({ "unlock", MenuBarOrb::Unlock {} });
    all.push_back({ "fix", MenuBarOrb::Fix {} });
    return all;
}

/// Each state in the size of the bar, and its two bitmaps enlarged to the same size.
View glyphSheet()
{
    constexpr double shownSide = 132;
    constexpr std::size_t columns = 6;
    std::vector<View> all;
    for (const auto& [name, state] : glyphs()) {
        const auto image = MenuBarOrbGlyph::image(state);
        constexpr double nameWidth = 72; // of the longest name, so that columns stand below each other
        const View inBar = Frame {
            .width = FrameLength::exactly(nameWidth),
            .alignment = Alignment::leading,
            .content = GlyphPixels { image.bitmaps[1], 0.5 },
        };
        all.push_back(Specimen { inBar, { nameWidth, image.side }, { name, "in the bar" } });
        for (const auto& bitmap : image.bitmaps)
            all.push_back(Specimen { GlyphPixels { bitmap, shownSide / bitmap.side }, { shownSide, shownSide },
                { name, fmt::format("{} × {} pixels", bitmap.side, bitmap.side) } });
    }
    return grid(all, columns);
}

}

void addPalette(GalleryPage& page, const Environment& base)
{
    page.section("Palette", "Every colour by its name, in both appearances.");
    for (const auto contrast : { ColorSchemeContrast::standard, ColorSchemeContrast::increased }) {
        page.row(contrast == ColorSchemeContrast::standard ? "Usual contrast" : "More contrast");
        addInBoth(page, contrast == ColorSchemeContrast::standard ? "palette" : "palette-contrast",
            base.with<ColorSchemeContrastKey>(contrast), swatches);
    }
}

void addType(GalleryPage& page, const Environment& base)
{
    page.section("Type", "Every role: name, size and line height in points, weight, family.");
    page.row("Roles");
    addInBoth(page, "type", base, [](const Environment& environment) {
        std::vector<View> all;
        for (const auto role : allCases<MacTypeRole>())
            all.push_back(typeSample(role, environment));
        return View(VStack {
            .alignment = HorizontalAlignment::leading, .spacing = Tokens::Space::s4, .children = std::move(all) });
    });
    page.row("Wordmark");
    addInBoth(page, "wordmark", base, [](const Environment&) { return View(Wordmark {}); });
}

void addOrb(GalleryPage& page, const Environment& base)
{
    page.section("Orb", "Its poses, every phase of a breath, and a bloom.");
    page.row("Poses");
    addInBoth(page, "orb-poses", base, [](const Environment&) { return poses(); });
    page.row("A breath");
    addInBoth(page, "orb-breath", base, [](const Environment&) { return breath(); });
    page.row("A bloom");
    addInBoth(page, "orb-bloom", base, [](const Environment&) { return bloom(); });
    page.row("With reduced motion");
    const auto still = base.with<ReduceMotionKey>(true);
    addInBoth(page, "orb-still-inhale", still, [](const Environment&) { return grid(phase(BreathMotion::inhale), 5); });
    addInBoth(page, "orb-still-bloom", still, [](const Environment&) { return bloom(); });
    page.row("With reduced transparency");
    addInBoth(page, "orb-solid", base.with<ReduceTransparencyKey>(true), [](const Environment&) { return poses(); });
}

void addGlyph(GalleryPage& page, const Environment& base)
{
    page.section("Menu bar glyph", "As it stands in a bar, and the pixels of both its bitmaps.");
    page.row("States");
    addInBoth(page, "glyph", base, [](const Environment&) { return glyphSheet(); });
}

}

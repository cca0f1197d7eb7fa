#include <algorithm>
#include <cairo.h>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/Drawn/CardBackground.h"
#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelDesign/Drawn/Orb.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Door/WidgetPicture.h"
#include "OrvelWidgetsUI/Drawn/ControlStandIn.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

/// A few whole pictures as they were when a person last found them good. With ORVEL_RENEW_PICTURES set, they are drawn
/// anew instead of compared: look at each before it is committed.
namespace orvel {
namespace {

namespace fs = std::filesystem;
using Pixels = std::vector<std::uint32_t>;

struct Drawn {
    std::uint32_t width;
    std::uint32_t height;
    Pixels pixels;
};

constexpr int tolerance = 2; // of 255, in a channel
constexpr double mostOthers = 0.001; // of all pixels

Renderer& renderer()
{
    static Renderer shared(designBundle(), FontScope::ownProcess);
    return shared;
}

Drawn pictured(const View& view, Size size, const Environment& environment = {}, double scale = 1)
{
    auto picture = renderer().draw(view, { size, scale }, environment).value();
    return { picture.width, picture.height, std::move(picture.layers.front().pixels) };
}

Drawn widget(WidgetContent::State state, WidgetSize size, WidgetLook look, const char* language = "en-GB")
{
    const Calendar utc(TimeZone::utc());
    const auto locale = *Locale::named(language);
    const auto moment = WidgetFixtures::moment(state, utc);
    const auto content = Copy::inLanguage(locale, [&] {
        return state == WidgetContent::State::breathe ? WidgetContent::breathe(moment.breathe)
                                                      : WidgetContent::status(moment, locale, utc);
    });
    auto drawn = drawnWidget(renderer(), { .content = content, .size = size, .look = look, .words = locale }).value();
    auto pixels = drawn.layers.front().pixels;
    if (drawn.layers.size() > 1)
        pixels.insert(pixels.end(), drawn.layers[1].pixels.begin(), drawn.layers[1].pixels.end());
    return { drawn.width, static_cast<std::uint32_t>(pixels.size() / drawn.width), std::move(pixels) };
}

Drawn glyph(int scale)
{
    const auto bitmap = *MenuBarOrbGlyph::bitmap(MenuBarOrb::Focus { 0.6 }, scale);
    const auto side = static_cast<std::uint32_t>(bitmap.side);
    Pixels pixels;
    for (const std::uint32_t alpha : bitmap.alpha)
        pixels.push_back(alpha << 24U);
    return { side, side, std::move(pixels) };
}

Drawn card()
{
    const auto dark = Environment().with<ColorSchemeKey>(ColorScheme::dark);
    const View view = CardBackground { Color(Palette::surface1.resolve(dark)), Tokens::Radius::md, LitEdge::active };
    return pictured(Padding { Insets::all(12), view }, { 120, 80 }, dark, 2);
}

Drawn control()
{
    const Calendar utc(TimeZone::utc());
    const auto content = ControlContent::focus(WidgetFixtures::moment(WidgetContent::State::focus, utc));
    const View view = ControlStandIn { content, ControlStandIn::Size::bar };
    const auto size = measure(view, Proposal::ideal, renderer().environment({})).size;
    return pictured(view, size);
}

std::string png(const Drawn& drawn)
{
    const Picture picture { drawn.width, drawn.height, { { "whole", drawn.pixels } }, {}, {} };
    return picture.png(picture.layers.front()).value();
}

std::optional<Drawn> read(const fs::path& path)
{
    const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
        cairo_image_surface_create_from_png(path.c_str()), &cairo_surface_destroy);
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS)
        return std::nullopt;
    Drawn drawn { static_cast<std::uint32_t>(cairo_image_surface_get_width(surface.get())),
        static_cast<std::uint32_t>(cairo_image_surface_get_height(surface.get())), {} };
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()));
    const unsigned char* bytes = cairo_image_surface_get_data(surface.get());
    const bool hasAlpha = cairo_image_surface_get_format(surface.get()) == CAIRO_FORMAT_ARGB32;
    for (std::size_t y = 0; y < drawn.height; ++y) {
        const auto* row = reinterpret_cast<const std::uint32_t*>(bytes + y * stride);
        for (std::size_t x = 0; x < drawn.width; ++x)
            drawn.pixels.push_back(hasAlpha ? row[x] : row[x] | 0xff000000U);
    }
    return drawn;
}

int largestDifference(std::uint32_t one, std::uint32_t other)
{
    int largest = 0;
    for (unsigned shift = 0; shift < 32; shift += 8)
        largest = std::max(
            largest, std::abs(static_cast<int>((one >> shift) & 255U) - static_cast<int>((other >> shift) & 255U)));
    return largest;
}

/// White where pixels differ by more than they may.
Drawn difference(const Drawn& expected, const Drawn& got)
{
    Drawn shown { expected.width, expected.height, {} };
    for (std::size_t i = 0; i < expected.pixels.size(); ++i)
        shown.pixels.push_back(
            largestDifference(expected.pixels[i], got.pixels[i]) > tolerance ? 0xffffffffU : 0xff000000U);
    return shown;
}

/// Compares, or renews. What failed is left beside the test program, three pictures for each.
void expectPicture(const std::string& name, const Drawn& got)
{
    const auto path = fs::path(ORVEL_GOLDEN_PICTURES) / (name + ".png");
    if (std::getenv("ORVEL_RENEW_PICTURES")) {
        ASSERT_TRUE(replaceFile(path, png(got)));
        return;
    }
    const auto expected = read(path);
    ASSERT_TRUE(expected) << path << " cannot be read";
    const auto folder = fs::current_path() / "pictures";
    const auto leave = [&](const char* what, const Drawn& drawn) {
        EXPECT_TRUE(replaceFile(folder / fmt::format("{}-{}.png", name, what), png(drawn)));
    };
    const bool isAlike = expected->width == got.width && expected->height == got.height;
    const auto others = isAlike ? difference(*expected, got) : Drawn {};
    const auto count = std::ranges::count(others.pixels, 0xffffffffU);
    if (isAlike && static_cast<double>(count) <= mostOthers * static_cast<double>(got.pixels.size()))
        return;
    leave("expected", *expected);
    leave("got", got);
    if (isAlike)
        leave("difference", others);
    ADD_FAILURE() << name << ": " << (isAlike ? fmt::format("{} pixels differ", count) : "another size") << "; see "
                  << folder;
}

TEST(GoldenPictures, Widgets)
{
    using State = WidgetContent::State;
    expectPicture("small-dusk", widget(State::focus, WidgetSize::small, WidgetLook::dusk));
    expectPicture("medium-dawn", widget(State::next, WidgetSize::medium, WidgetLook::dawn));
    expectPicture("large-dusk", widget(State::now, WidgetSize::large, WidgetLook::dusk));
    expectPicture("large-dawn-german", widget(State::now, WidgetSize::large, WidgetLook::dawn, "de"));
    expectPicture("medium-dusk-arabic", widget(State::now, WidgetSize::medium, WidgetLook::dusk, "ar"));
    expectPicture("medium-mono", widget(State::next, WidgetSize::medium, WidgetLook::mono));
    expectPicture("small-clear", widget(State::now, WidgetSize::small, WidgetLook::clear));
    expectPicture("breathe-dawn", widget(State::breathe, WidgetSize::small, WidgetLook::dawn));
}

TEST(GoldenPictures, OfTheDesignSystem)
{
    expectPicture("orb-exhaled", pictured(Orb { 56, OrbPose::exhaled }, { 140, 140 }));
    expectPicture("glyph-22", glyph(1));
    expectPicture("glyph-44", glyph(2));
    expectPicture("card", card());
    expectPicture("control", control());
}

}
}

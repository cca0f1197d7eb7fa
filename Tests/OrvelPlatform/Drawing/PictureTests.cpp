#include <cairo.h>
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "OrvelPlatform/Drawing/GradientPixels.h"
#include "Tests/OrvelPlatform/Drawing/Drawn.h"

using namespace orvel;

namespace {

const Color black { 0, 0, 0 };
const Color white { 1, 1, 1 };

View sized(double width, double height, View view)
{
    return Frame { FrameLength::exactly(width), FrameLength::exactly(height), Alignment::center, std::move(view) };
}

/// One shadow of a rounded square in the middle.
struct Cast {
    Shadow shadow;
    Extent measure(const Proposal& proposed, const Environment&) const
    {
        return Size { proposed.width.value_or(0), proposed.height.value_or(0) };
    }
    void draw(Canvas& canvas, const Rect& in, const Environment&) const
    {
        canvas.shadow(RoundedRectangle { 4 }, in.insetBy(20), shadow);
    }
};

cairo_status_t readFrom(void* rest, unsigned char* bytes, unsigned int count)
{
    auto& text = *static_cast<std::string_view*>(rest);
    if (text.size() < count)
        return CAIRO_STATUS_READ_ERROR;
    std::copy_n(text.begin(), count, bytes);
    text.remove_prefix(count);
    return CAIRO_STATUS_SUCCESS;
}

}

TEST(Hairlines, lieOnWholePixels)
{
    struct Case {
        double y;
        double scale;
        std::size_t row;
        std::size_t rows;
    };
    const Case cases[] = { { 3.3, 1, 3, 1 }, { 3.5, 1, 4, 1 }, { 3.3, 2, 7, 2 }, { 3, 1.25, 4, 1 }, { 3.2, 1.5, 5, 2 },
        { 3.2, 3, 10, 3 } };
    for (const auto& c : cases) {
        const View line = Padding { { c.y, 0, 9 - c.y, 0 }, Shape { Rectangle {}, black } };
        const auto pixels = drawn(line, { 10, 10 }, c.scale);
        for (std::size_t y = 0; static_cast<double>(y) < std::floor(10 * c.scale); ++y)
            EXPECT_EQ(pixels.alpha(5, y), y >= c.row && y < c.row + c.rows ? 255 : 0)
                << c.y << " at " << c.scale << ", row " << y;
    }
}

TEST(Gradients, areExactOnAverageAndWithoutBands)
{
    const LinearGradient gradient { { 0.37, 0.02 }, { 0.63, 0.98 },
        { { 0, { 0.173, 0.157, 0.263 } }, { 0.55, { 0.133, 0.122, 0.216 } }, { 1, { 0.09, 0.082, 0.165 } } } };
    constexpr std::size_t side = 160, tile = 8;
    const auto pixels = drawn(Shape { Rectangle {}, gradient }, { side, side });
    for (std::size_t y = 0; y < side; y += tile) {
        for (std::size_t x = 0; x < side; x += tile) {
            double sum = 0;
            for (std::size_t i = 0; i < tile * tile; ++i)
                sum += pixels.red(x + i % tile, y + i / tile);
            const double middleX = static_cast<double>(x) + tile / 2.0, middleY = static_cast<double>(y) + tile / 2.0;
            const double dx = 0.26 * side, dy = 0.96 * side;
            const double at = ((middleX - 0.37 * side) * dx + (middleY - 0.02 * side) * dy) / (dx * dx + dy * dy);
            EXPECT_NEAR(sum / (tile * tile), colorAt(gradient.stops, at).red * 255, 0.25) << x << ',' << y;
        }
    }
}

TEST(Gradients, ofOneTranslucentColorArePremultiplied)
{
    const Color half { 1, 0.5, 0, 0.5 };
    const auto pixels =
        drawn(Shape { Ellipse {}, RadialGradient { { 0.5, 0.5 }, 30, { { 0, half }, { 1, half } } } }, { 40, 40 });
    const auto pixel = pixels.at(20, 20);
    EXPECT_NEAR(static_cast<double>(pixel >> 24U), 127.5, 1);
    EXPECT_NEAR(static_cast<double>(pixel >> 16U & 0xffU), 127.5, 1);
    EXPECT_NEAR(static_cast<double>(pixel >> 8U & 0xffU), 63.75, 1);
    EXPECT_EQ(pixel & 0xffU, 0U);
    EXPECT_EQ(pixels.alpha(1, 1), 0);
}

TEST(Shadows, areBlurredByTwoDeviationsAndKeepToTheirSide)
{
    constexpr double deviation = 4;
    const auto coverage = [](double distance) { // of a long straight edge, inside positive
        return 255 * 0.5 * (1 + std::erf(distance / (deviation * std::numbers::sqrt2)));
    };
    const auto outer = drawn(Cast { { false, 0, 0, 2 * deviation, 0, black } }, { 120, 120 });
    const auto inner = drawn(Cast { { true, 0, 0, 2 * deviation, 0, black } }, { 120, 120 });
    for (std::size_t distance = 0; distance < 12; ++distance) {
        const double middle = static_cast<double>(distance) + 0.5;
        EXPECT_NEAR(outer.alpha(60, 100 + distance), coverage(-middle), 6) << distance;
        EXPECT_NEAR(inner.alpha(60, 99 - distance), coverage(-middle), 6) << distance;
    }
    EXPECT_EQ(outer.alpha(60, 99), 0);
    EXPECT_EQ(inner.alpha(60, 100), 0);

    const auto line = drawn(Cast { { true, 0, 1, 0, 0, black } }, { 120, 120 });
    EXPECT_EQ(line.alpha(60, 20), 255);
    EXPECT_EQ(line.alpha(60, 21), 0);
    const auto grown = drawn(Cast { { false, 0, 0, 0, 3, black } }, { 120, 120 });
    EXPECT_EQ(grown.alpha(60, 17), 255);
    EXPECT_EQ(grown.alpha(60, 16), 0);
}

TEST(TintedPictures, haveTwoLayersThatErasingReachesBoth)
{
    const auto at = [](double x, View view) { return Padding { { 0, x, 0, 0 }, sized(10, 10, std::move(view)) }; };
    const View view = Overlay { Overlay { at(0, Shape { Rectangle {}, white }),
                                    Accentable { at(10, Shape { Rectangle {}, white }) }, Alignment::topLeading },
        at(5, Shape { Rectangle {}, Erase {} }), Alignment::topLeading };
    const View whole = Frame { FrameLength::exactly(30), FrameLength::exactly(10), Alignment::topLeading, view };
    const auto picture = renderer().draw(whole, { .size = { 30, 10 }, .isTinted = true }, {}).value();
    ASSERT_EQ(picture.layers.size(), 2U);
    EXPECT_EQ(picture.layers[0].name, "default");
    EXPECT_EQ(picture.layers[1].name, "accent");
    const Pixels ground { picture.layers[0].pixels, picture.width }, accent { picture.layers[1].pixels, picture.width };
    struct Case {
        std::size_t x;
        int ground, accent;
    };
    for (const auto& c : { Case { 2, 255, 0 }, { 7, 0, 0 }, { 12, 0, 0 }, { 17, 0, 255 }, { 25, 0, 0 } }) {
        EXPECT_EQ(ground.alpha(c.x, 5), c.ground) << c.x;
        EXPECT_EQ(accent.alpha(c.x, 5), c.accent) << c.x;
    }
}

TEST(Scopes, clipFadeAndMagnify)
{
    const View overlapping = Overlay { Shape { Rectangle {}, black }, Shape { Rectangle {}, black } };
    EXPECT_NEAR(drawn(Opacity { 0.5, overlapping }, { 8, 8 }).alpha(4, 4), 128, 1) << "faded as one";
    const auto clipped = drawn(Clipped { Ellipse {}, overlapping }, { 20, 20 });
    EXPECT_EQ(clipped.alpha(1, 1), 0);
    EXPECT_EQ(clipped.alpha(10, 10), 255);
    const auto magnified = drawn(Scale { 0.5, overlapping }, { 20, 20 });
    EXPECT_EQ(magnified.alpha(4, 10), 0);
    EXPECT_EQ(magnified.alpha(5, 10), 255);
    EXPECT_EQ(magnified.alpha(15, 10), 0);
}

TEST(Textures, leaveTheirGroundAsLightAsItIs)
{
    for (const Color& ground : { Color(0.0902, 0.0824, 0.1647), Color(0.9569, 0.9333, 0.8941), Color(0.5, 0.5, 0.5) }) {
        const auto pixels = drawn(Shape { Rectangle {}, Texture { "grain", ground, 0.3 } }, { 128, 128 });
        double sum = 0, away = 0;
        for (const auto pixel : pixels.words) {
            const double difference = static_cast<int>(pixel >> 16U & 0xffU) - ground.red * 255;
            sum += difference;
            away += std::abs(difference);
        }
        EXPECT_NEAR(sum / (128 * 128), 0, 0.1) << ground.red;
        EXPECT_GT(away / (128 * 128), 0.5) << ground.red;
    }
}

TEST(Textures, thatNobodyKnowsAreTheirGround)
{
    EXPECT_EQ(drawn(Shape { Rectangle {}, Texture { "../grain", Color(1, 0, 0) } }, { 8, 8 }).at(4, 4), 0xffff0000);
}

TEST(Pictures, beyondTheirLimitsAreRefused)
{
    struct Case {
        Renderer::Request request;
        bool isDrawn;
    };
    const Case cases[] = {
        { { { 4096, 1 } }, true },
        { { { 4096, 2048 } }, true },
        { { { 4096, 2049 } }, false },
        { { { 2049, 2048 }, 1, true }, false },
        { { { 4097, 1 } }, false },
        { { { 2049, 1 }, 2 }, false },
        { { { 0, 10 } }, false },
        { { { 10, -10 } }, false },
        { { { 10, 10 }, std::nan("") }, false },
        { { { 10, infiniteLength } }, false },
    };
    for (const auto& c : cases)
        EXPECT_EQ(renderer().draw(View {}, c.request, {}).has_value(), c.isDrawn)
            << c.request.size.width << " x " << c.request.size.height << " at " << c.request.scale;
}

TEST(Pictures, asPngKeepTheirPixels)
{
    const View view =
        Shape { Ellipse {}, LinearGradient { {}, { 1, 1 }, { { 0, { 1, 0.5, 0.2, 0.9 } }, { 1, white } } } };
    const auto picture = renderer().draw(view, { .size = { 33, 17 }, .scale = 2 }, {}).value();
    const auto file = picture.png(picture.layers[0]).value();
    std::string_view rest(file);
    auto* const surface = cairo_image_surface_create_from_png_stream(readFrom, &rest);
    ASSERT_EQ(cairo_surface_status(surface), CAIRO_STATUS_SUCCESS);
    ASSERT_EQ(cairo_image_surface_get_width(surface), 66);
    ASSERT_EQ(cairo_image_surface_get_height(surface), 34);
    for (std::size_t i = 0; i < picture.layers[0].pixels.size(); ++i) {
        const auto* const row = cairo_image_surface_get_data(surface)
            + i / 66 * static_cast<std::size_t>(cairo_image_surface_get_stride(surface));
        for (unsigned channel = 0; channel < 4; ++channel)
            EXPECT_NEAR(row[i % 66 * 4 + channel], picture.layers[0].pixels[i] >> 8 * channel & 0xffU, 1) << i;
    }
    cairo_surface_destroy(surface);
}

TEST(Pictures, asSvgStayShapesAndLetters)
{
    const View view = Background { Text { .runs = { { "Now", {} } }, .paint = white },
        Shape { Capsule {}, LinearGradient { {}, { 1, 1 }, { { 0, black }, { 1, white } } } } };
    const auto document = renderer().svg(view, { 60, 20 }, {}).value();
    EXPECT_NE(document.find("<linearGradient"), std::string::npos);
    EXPECT_NE(document.find("<use xlink:href=\"#glyph"), std::string::npos);
    EXPECT_EQ(document.find("<image"), std::string::npos);
}

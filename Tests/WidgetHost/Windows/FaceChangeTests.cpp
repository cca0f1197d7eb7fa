#include "WidgetHost/Windows/FaceChange.h"

#include <gtest/gtest.h>

#include "Tests/WidgetHost/Windows/Faces.h"

namespace orvel::tests {

namespace {

PixelAt withOthers(std::vector<std::pair<std::uint32_t, std::uint32_t>> others)
{
    return [others = std::move(others)](std::uint32_t x, std::uint32_t y) {
        return std::ranges::find(others, std::pair(x, y)) == others.end() ? 0xFF000000U : 0xFFFFFFFFU;
    };
}

TEST(Pixels, thatDifferAreFound)
{
    const auto before = picture(12, 9, withOthers({}));
    struct Case {
        std::string_view name;
        HostPicture after;
        std::optional<Rect> differing;
    };
    auto tinted = picture(12, 9, withOthers({}));
    tinted.layers.front().name = "default";
    const Case cases[] = {
        { "none", picture(12, 9, withOthers({})), std::nullopt },
        { "the first", picture(12, 9, withOthers({ { 0, 0 } })), Rect { 0, 0, 1, 1 } },
        { "the last", picture(12, 9, withOthers({ { 11, 8 } })), Rect { 11, 8, 1, 1 } },
        { "two that span a rectangle", picture(12, 9, withOthers({ { 7, 2 }, { 3, 5 } })), Rect { 3, 2, 5, 4 } },
        { "another size", picture(12, 8, withOthers({})), Rect { 0, 0, 12, 8 } },
        { "other layers", std::move(tinted), Rect { 0, 0, 12, 9 } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(differingPixels(before, c.after), c.differing) << c.name;
}

TEST(Pixels, ofEveryLayerCount)
{
    const auto tinted = [](PixelAt first, PixelAt second) {
        auto drawn = picture(6, 6);
        drawn.layers.clear();
        drawn.layers.push_back(layer("default", 6, 6, first));
        drawn.layers.push_back(layer("accent", 6, 6, second));
        return drawn;
    };
    const auto before = tinted(withOthers({}), withOthers({}));
    EXPECT_EQ(
        differingPixels(before, tinted(withOthers({ { 1, 1 } }), withOthers({ { 4, 2 } }))), (Rect { 1, 1, 4, 2 }));
}

TEST(FaceChanges, sayNoMoreThanIsNeeded)
{
    const auto first = face({ 12, 9 }, shared(picture(12, 9, withOthers({}))));
    const auto changed = [&](const std::function<void(WidgetFace&)>& set) {
        auto after = first;
        set(after);
        return change(first, after);
    };
    const auto spoken = [&](const std::string& label) {
        auto same = picture(12, 9, withOthers({}));
        same.elements.push_back({ "text", label, { 0, 0, 1, 1 } });
        return shared(std::move(same));
    };
    EXPECT_EQ(changed([](auto&) {}), FaceChange {});
    EXPECT_EQ(changed([](auto& face) {
        face.picture = shared(picture(12, 9, withOthers({ { 2, 3 } })));
    }),
        (FaceChange { .pixels = Rect { 2, 3, 1, 1 } }));
    EXPECT_EQ(changed([&](auto& face) { face.picture = spoken("12 minutes"); }), (FaceChange { .parts = true }))
        << "other words under the same pixels";
    EXPECT_EQ(changed([](auto& face) { face.notice = "late"; }), (FaceChange { .notice = true, .parts = true }));
    EXPECT_EQ(changed([](auto& face) { face.families = { "systemSmall" }; }), FaceChange {}) << "the menu's affair";
    using Set = void (*)(WidgetFace&);
    const std::pair<std::string_view, Set> wholes[] = {
        { "size", [](WidgetFace& face) { face.size.width = 13; } },
        { "scheme", [](WidgetFace& face) { face.isDark = true; } },
        { "contrast", [](WidgetFace& face) { face.increasesContrast = true; } },
        { "tint", [](WidgetFace& face) { face.tint = WindowTint {}; } },
        { "look", [](WidgetFace& face) { face.look = ChosenLook::clear; } },
        { "no picture", [](WidgetFace& face) { face.picture = nullptr; } },
        { "a picture of another scale", [](WidgetFace& face) { face.picture = shared(picture(24, 18)); } },
    };
    for (const auto& [name, set] : wholes)
        EXPECT_TRUE(changed(set).card) << name;
}

}

}

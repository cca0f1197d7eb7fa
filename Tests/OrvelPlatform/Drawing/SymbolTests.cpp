#include <gtest/gtest.h>

#include "OrvelPlatform/Drawing/SymbolTable.h"
#include "Tests/OrvelPlatform/Drawing/Drawn.h"

using namespace orvel;

namespace {

std::shared_ptr<const Symbol> found(std::string_view name)
{
    return renderer().environment({}).get<SymbolSourceKey>()->find(name);
}

}

TEST(Symbols, areFoundByTheProductsNames)
{
    for (const auto* name : { "shield", "moon", "timer", "pause", "circle.circle", "book", "briefcase", "bed.double",
             "gamecontroller", "cart", "envelope", "message", "music.note", "leaf", "flame", "star", "heart", "house",
             "person", "fork.knife", "graduationcap", "paintbrush", "newspaper", "tv", "phone", "globe", "bolt",
             "sun.max", "cloud", "airplane", "moon.fill" }) {
        const auto symbol = found(name);
        ASSERT_TRUE(symbol) << name;
        EXPECT_FALSE(symbol->parts.empty()) << name;
        for (const auto& part : symbol->parts) {
            for (const auto& step : part.path) {
                for (const auto& point : step.points) {
                    EXPECT_GE(std::min(point.x, point.y), -1) << name;
                    EXPECT_LE(std::max(point.x, point.y), symbol->side + 1) << name;
                }
            }
        }
    }
}

TEST(Symbols, unknownTakeTheCallersDefault)
{
    const auto icon = [](std::string name) {
        return drawn(Icon { .name = std::move(name), .fallback = "shield", .paint = Color(0, 0, 0) }, { 16, 16 }).words;
    };
    EXPECT_NE(icon("moon"), icon("shield"));
    for (const auto* name : { "", "no.such.symbol", "../../../etc/passwd", "/dev/zero", "shield\tmoon", ".fill" }) {
        EXPECT_EQ(found(name), nullptr) << name;
        EXPECT_EQ(icon(name), icon("shield")) << name;
    }
}

TEST(Symbols, areReadFromPathData)
{
    const SymbolTable table("a\tSM1 2L3 4C1 2 3 4 5 6Z\tFM-1.5 0\nb\tSM1\nc\tXM1 2Q\n");
    const auto symbol = table.find("a");
    ASSERT_TRUE(symbol);
    const Symbol expected { "a", 24,
        { { { { PathStep::Kind::move, { Point { 1, 2 } } }, { PathStep::Kind::line, { Point { 3, 4 } } },
                { PathStep::Kind::curve, { Point { 1, 2 }, Point { 3, 4 }, Point { 5, 6 } } },
                { PathStep::Kind::close } },
              false },
            { { { PathStep::Kind::move, { Point { -1.5, 0 } } } }, true } } };
    EXPECT_EQ(*symbol, expected);
    EXPECT_EQ(table.find("b"), nullptr);
    EXPECT_EQ(table.find("c"), nullptr);
    EXPECT_EQ(SymbolTable("").find(""), nullptr);
}

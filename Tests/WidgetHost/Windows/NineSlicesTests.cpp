#include "WidgetHost/Windows/NineSlices.h"

#include <cmath>
#include <gtest/gtest.h>

namespace orvel::tests {

namespace {

/// Where on the source each pixel of one side of the target comes from; -1: from nowhere.
std::vector<int> columnsOf(const std::vector<Slice>& slices, double row, double width)
{
    std::vector<int> columns(static_cast<std::size_t>(width), -1);
    for (const auto& [from, to] : slices) {
        if (row < to.y || row >= to.bottom())
            continue;
        for (double x = to.x; x < to.right(); ++x) {
            auto& column = columns[static_cast<std::size_t>(x)];
            EXPECT_EQ(column, -1) << "painted twice at " << x;
            column = static_cast<int>(std::floor(from.x + (x - to.x) * from.width / to.width));
        }
    }
    return columns;
}

TEST(FrameSlices, drawOutTheMiddleAndKeepTheCorners)
{
    constexpr double corner = 3;
    EXPECT_EQ(columnsOf(frameSlices(corner, { 10, 8 }), 0, 10), (std::vector { 0, 1, 2, 3, 3, 3, 3, 4, 5, 6 }));
    EXPECT_EQ(columnsOf(frameSlices(corner, { 10, 8 }), 4, 10), (std::vector { 0, 1, 2, -1, -1, -1, -1, 4, 5, 6 }))
        << "the middle is left out";
    EXPECT_EQ(columnsOf(frameSlices(corner, { 7, 7 }), 0, 7), (std::vector { 0, 1, 2, 3, 4, 5, 6 })) << "as it is";
    EXPECT_EQ(columnsOf(frameSlices(corner, { 6, 6 }), 5, 6), (std::vector { 0, 1, 2, 4, 5, 6 })) << "corners alone";
    EXPECT_EQ(columnsOf(frameSlices(corner, { 3, 3 }), 0, 3), (std::vector { 0, 1, 6 })) << "too small for its corners";
}

}

}

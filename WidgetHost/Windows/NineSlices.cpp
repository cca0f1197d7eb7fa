#include "WidgetHost/Windows/NineSlices.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvel {

namespace {

/// A stretch of one side of the source, and of the target.
struct Span {
    double from;
    double length;
    double to;
    double drawn;
};

std::array<Span, 3> spans(double corner, double target)
{
    const double first = std::min(corner, std::ceil(target / 2));
    const double last = std::min(corner, target - first);
    return { {
        { 0, first, 0, first },
        { corner, 1, first, target - first - last },
        { 2 * corner + 1 - last, last, target - last, last },
    } };
}

}

std::vector<Slice> frameSlices(double corner, Size target)
{
    const auto columns = spans(corner, target.width);
    const auto rows = spans(corner, target.height);
    std::vector<Slice> slices;
    for (const auto& row : rows) {
        for (const auto& column : columns) {
            const bool isMiddle = &row == &rows[1] && &column == &columns[1];
            if (isMiddle || row.drawn <= 0 || column.drawn <= 0)
                continue;
            slices.push_back({ { column.from, row.from, column.length, row.length },
                { column.to, row.to, column.drawn, row.drawn } });
        }
    }
    return slices;
}

}

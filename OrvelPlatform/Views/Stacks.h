#pragma once

#include <limits>
#include <vector>

#include "OrvelPlatform/Views/Alignment.h"
#include "OrvelPlatform/Views/View.h"

/// Rows and columns. A stack takes its spacings away, keeps the least sizes of the lower priorities back, and then
/// serves the least flexible child first with an equal share of what is left. A share is equal among those that can
/// take it: what is above a child's most, or missing to another's least, is shared by the others. So a stack in its
/// ideal size gives every child its own.
namespace orvel {

/// Children side by side, from the leading edge on.
struct HStack {
    VerticalAlignment alignment = VerticalAlignment::center;
    double spacing = 0; // points between any two, spacers too
    std::vector<View> children {};

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Children below each other.
struct VStack {
    HorizontalAlignment alignment = HorizontalAlignment::center;
    double spacing = 0;
    std::vector<View> children {};

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
};

/// Takes what room everybody else in a stack leaves, at least `least`.
struct Spacer {
    static constexpr bool isQuicklyMeasured = true;

    double least = 0;

    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas&, const Rect&, const Environment&) const { }
    StackTraits stackTraits() const { return { .priority = std::numeric_limits<double>::lowest(), .isSpacer = true }; }
};

/// Served before its siblings of a lower priority; 0 is everybody's.
struct Priority {
    double priority;
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;
    StackTraits stackTraits() const;
};

}

#pragma once

#include <vector>

#include "OrvelPlatform/Views/View.h"

namespace orvel {

enum class Axis { horizontal, vertical };

/// What rows and columns have in common: how long each child is along the axis.
class StackLayout {
public:
    struct Child {
        View view;
        Extent extent;
        double offset; // along the axis
    };

    /// The children outlive it.
    StackLayout(Axis axis, double spacing, const std::vector<View>& children);

    /// The children with their extents for an offered size, in order, without those that are nothing.
    std::vector<Child> served(const Proposal& proposed, const Environment& environment) const;

    double along(Size size) const { return m_axis == Axis::horizontal ? size.width : size.height; }

private:
    Extent measured(const View& view, ProposedLength along, ProposedLength across, const Environment&) const;
    double lengthOf(const View& view, ProposedLength along, ProposedLength across, const Environment&) const;
    void share(std::vector<Child>& children, double available, ProposedLength across, const Environment&) const;

    Axis m_axis;
    double m_spacing;
    const std::vector<View>& m_children;
};

}

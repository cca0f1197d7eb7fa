#include "OrvelPlatform/Views/Padding.h"

#include <algorithm>

namespace orvel {

namespace {

ProposedLength less(ProposedLength proposed, double taken)
{
    return proposed.transform([&](double length) { return std::max(length - taken, 0.0); });
}

}

Extent Padding::measure(const Proposal& proposed, const Environment& environment) const
{
    const double across = insets.leading + insets.trailing;
    const double down = insets.top + insets.bottom;
    const auto inner = content.measure({ less(proposed.width, across), less(proposed.height, down) }, environment);
    return inner.movedInto({ inner.size.width + across, inner.size.height + down }, insets.top);
}

void Padding::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    content.draw(canvas, inset(in, insets, environment.get<LayoutDirectionKey>()), environment);
}

}

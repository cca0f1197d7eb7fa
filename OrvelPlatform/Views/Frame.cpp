#include "OrvelPlatform/Views/Frame.h"

#include <algorithm>

namespace orvel {

namespace {

/// What the content is offered.
ProposedLength within(const FrameLength& length, ProposedLength proposed)
{
    if (!proposed)
        return length.ideal;
    // Limits the wrong way round: the least counts.
    return std::max(std::min(*proposed, length.most.value_or(infiniteLength)), length.least.value_or(0));
}

/// The frame's own length round a content.
double around(const FrameLength& length, ProposedLength proposed, double content)
{
    const double least = length.least.value_or(std::min(content, length.most.value_or(content)));
    const double most = std::max(length.most.value_or(std::max(content, least)), least);
    return std::clamp(proposed.value_or(length.ideal.value_or(content)), least, most);
}

Proposal within(const Frame& frame, const Proposal& proposed)
{
    return { within(frame.width, proposed.width), within(frame.height, proposed.height) };
}

Rect placedIn(const Extent& content, const Rect& in, const Frame& frame, const Environment& environment)
{
    return placed(content, in, frame.alignment, environment.get<LayoutDirectionKey>());
}

}

Extent Frame::measure(const Proposal& proposed, const Environment& environment) const
{
    const auto inner = content.measure(within(*this, proposed), environment);
    const Size size { around(width, proposed.width, inner.size.width),
        around(height, proposed.height, inner.size.height) };
    return inner.movedInto(size, placedIn(inner, { {}, size }, *this, environment).y);
}

void Frame::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const auto inner = content.measure(within(*this, Proposal::of(in.size())), environment);
    content.draw(canvas, placedIn(inner, in, *this, environment), environment);
}

}

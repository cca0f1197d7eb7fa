#include "OrvelPlatform/Views/View.h"

#include "OrvelPlatform/Views/MeasureMemory.h"

namespace orvel {

namespace {

MeasureMemory* memory(const Environment& environment)
{
    const auto* found = environment.find<MeasureMemoryKey>();
    return found ? *found : nullptr;
}

}

Extent View::measure(const Proposal& proposed, const Environment& environment) const
{
    if (!m_node)
        return {};
    auto* const kept = m_node->isQuicklyMeasured() ? nullptr : memory(environment);
    return kept ? kept->measure(*this, proposed, environment) : measureAfresh(proposed, environment);
}

Extent View::measureAfresh(const Proposal& proposed, const Environment& environment) const
{
    return m_node->isComposed() ? bodyOf(environment).measure(proposed, environment)
                                : m_node->measure(proposed, environment);
}

View View::bodyOf(const Environment& environment) const
{
    auto* const kept = memory(environment);
    return kept ? kept->body(*this, environment) : m_node->body(environment);
}

void View::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    if (!m_node)
        return;
    if (m_node->isComposed())
        bodyOf(environment).draw(canvas, in, environment);
    else
        m_node->draw(canvas, in, environment);
}

void draw(const View& view, Canvas& canvas, const Rect& in, const Environment& environment)
{
    MeasureMemory memory;
    view.draw(canvas, in, environment.with<MeasureMemoryKey>(&memory));
}

Extent measure(const View& view, const Proposal& proposed, const Environment& environment)
{
    MeasureMemory memory;
    return view.measure(proposed, environment.with<MeasureMemoryKey>(&memory));
}

}

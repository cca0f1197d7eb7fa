#include "OrvelPlatform/Views/Canvas.h"

#include <utility>

namespace orvel {

Canvas::Scope Canvas::enter(State state)
{
    entered(state);
    const auto before = m_magnification;
    if (const auto* magnify = std::get_if<Magnify>(&state)) {
        m_magnification.offset.x += before.factor * magnify->about.x * (1 - magnify->factor);
        m_magnification.offset.y += before.factor * magnify->about.y * (1 - magnify->factor);
        m_magnification.factor *= magnify->factor;
    } else if (std::holds_alternative<Silence>(state)) {
        ++m_silences;
    }
    m_states.push_back({ std::move(state), before });
    return Scope(*this);
}

void Canvas::leave()
{
    const auto ended = std::move(m_states.back());
    m_states.pop_back();
    m_magnification = ended.before;
    if (std::holds_alternative<Silence>(ended.state))
        --m_silences;
    left(ended.state);
}

Canvas::Scope Canvas::clipped(const Outline& outline, const Rect& in)
{
    return enter(Clip { outline, in });
}

Canvas::Scope Canvas::faded(double opacity)
{
    return enter(Fade { opacity });
}

Canvas::Scope Canvas::magnified(double factor, Point about)
{
    return enter(Magnify { factor, about });
}

Canvas::Scope Canvas::accented()
{
    return enter(Accent {});
}

Canvas::Scope Canvas::silent()
{
    return enter(Silence {});
}

Rect Canvas::seen(const Rect& rect) const
{
    const auto& [factor, offset] = m_magnification;
    return { rect.x * factor + offset.x, rect.y * factor + offset.y, rect.width * factor, rect.height * factor };
}

void Canvas::add(ElementMark element)
{
    if (m_silences > 0)
        return;
    element.frame = seen(element.frame);
    m_elements.push_back(std::move(element));
}

void Canvas::add(ActionMark action)
{
    action.frame = seen(action.frame);
    m_actions.push_back(std::move(action));
}

}

#include "WidgetHost/Windows/SurfaceDrag.h"

#include <cmath>

namespace orvel {

void SurfaceDrag::pointerMoved(Point onSurface)
{
    // Places are whole points; a remainder would be asked for again and again.
    m_wanted = { std::round(m_place.x + onSurface.x - m_grip.x), std::round(m_place.y + onSurface.y - m_grip.y) };
    askForWanted();
}

void SurfaceDrag::placeTaken()
{
    if (!m_asked)
        return;
    m_place = *m_asked;
    m_asked.reset();
    askForWanted();
}

void SurfaceDrag::askForWanted()
{
    if (m_asked || m_wanted == m_place)
        return;
    m_asked = m_wanted;
    m_ask(m_wanted);
}

}

#pragma once

#include <functional>
#include <optional>

#include "OrvelPlatform/Views/Geometry.h"

namespace orvel {

/// A drag of a surface that hears of the pointer only by where it is on the surface itself, while the compositor moves
/// that surface later than it is asked to. What was heard before the compositor moved it counts from where it lay then,
/// so one move is asked for at a time, and the next one only when the compositor has answered.
class SurfaceDrag {
public:
    /// Asks the compositor for a place, and for a sign when it has taken it.
    using Ask = std::function<void(Point place)>;

    SurfaceDrag(Point place, Point grip, Ask ask) : m_place(place), m_wanted(place), m_grip(grip), m_ask(std::move(ask))
    {
    }

    /// The pointer is there on the surface.
    void pointerMoved(Point onSurface);
    /// The compositor has taken the place that it was asked for.
    void placeTaken();

    /// Where the surface is to be when everything is done.
    Point wanted() const { return m_wanted; }

private:
    void askForWanted();

    Point m_place; // as the compositor has it
    std::optional<Point> m_asked;
    Point m_wanted;
    Point m_grip;
    Ask m_ask;
};

}

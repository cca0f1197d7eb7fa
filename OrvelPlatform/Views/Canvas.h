#pragma once

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

#include "OrvelPlatform/Views/Marks.h"
#include "OrvelPlatform/Views/Outline.h"
#include "OrvelPlatform/Views/Paint.h"
#include "OrvelPlatform/Views/Symbol.h"
#include "OrvelPlatform/Views/TextSystem.h"

namespace orvel {

/// A line along an outline, half of its width on either side.
struct Stroke {
    enum class Cap { butt, round };

    double width; // points
    Cap cap = Cap::butt;
    bool operator==(const Stroke&) const = default;
};

/// A shadow of an outline. An outer one is drawn outside the outline only, an inset one inside only.
struct Shadow {
    bool inset;
    double x;
    double y; // positive is downward
    double blur; // twice the standard deviation of the blur
    double spread; // how far the outline grows (inset: how far the light inside shrinks) before it is blurred
    Color color;
    bool operator==(const Shadow&) const = default;
};

/// What views draw on. It paints or records; and it collects elements and actions either way.
///
/// All rectangles are in the points of the whole picture. What holds for a while is a scope:
///
///     const auto half = canvas.faded(0.5);
///     canvas.fill(Capsule {}, in, color); // until `half` ends
class Canvas {
public:
    /// Ends what it stands for.
    class [[nodiscard]] Scope {
    public:
        explicit Scope(Canvas& canvas) : m_canvas(canvas) { }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope() { m_canvas.leave(); }

    private:
        Canvas& m_canvas;
    };

    virtual ~Canvas() = default;

    /// A rectangle at most a point thin is a hairline: it is moved onto whole device pixels.
    virtual void fill(const Outline& outline, const Rect& in, const Paint& paint) = 0;
    virtual void stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint) = 0;
    virtual void shadow(const Outline& outline, const Rect& in, const Shadow& shadow) = 0;

    /// The text with its top left corner there. Its runs take the paints in turn, the last one for all that are left.
    virtual void text(const ShapedText& text, Point at, const std::vector<Paint>& paints) = 0;

    /// The symbol fitted into the rectangle; its strokes are `strokeWidth` points wide.
    virtual void symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint) = 0;

    /// Nothing outside the outline is drawn.
    Scope clipped(const Outline& outline, const Rect& in);
    /// Drawn as one and then at an opacity.
    Scope faded(double opacity);
    /// Larger or smaller about a point. Elements and actions keep to what is seen.
    Scope magnified(double factor, Point about);
    /// Belongs to the accent layer of a tinted picture.
    Scope accented();
    /// Elements are not listed; actions are.
    Scope silent();

    void add(ElementMark element);
    void add(ActionMark action);
    const std::vector<ElementMark>& elements() const { return m_elements; }
    const std::vector<ActionMark>& actions() const { return m_actions; }

protected:
    struct Clip {
        Outline outline;
        Rect in;
    };
    struct Fade {
        double opacity;
    };
    struct Magnify {
        double factor;
        Point about;
    };
    struct Accent { };
    struct Silence { };
    using State = std::variant<Clip, Fade, Magnify, Accent, Silence>;

    /// Called when a scope begins and when it ends; they nest.
    virtual void entered(const State& state) = 0;
    virtual void left(const State& state) = 0;

    /// A rectangle as it is seen, with every magnification applied.
    Rect seen(const Rect& rect) const;

private:
    /// seen = point × factor + offset
    struct Magnification {
        double factor = 1;
        Point offset;
    };
    struct Entered {
        State state;
        Magnification before;
    };

    Scope enter(State state);
    void leave();

    std::vector<Entered> m_states;
    std::vector<ElementMark> m_elements;
    std::vector<ActionMark> m_actions;
    int m_silences = 0;
    Magnification m_magnification;
};

}

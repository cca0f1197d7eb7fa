#pragma once

#include <concepts>
#include <memory>
#include <optional>
#include <utility>

#include "OrvelPlatform/Base/Environment.h"
#include "OrvelPlatform/Views/Canvas.h"
#include "OrvelPlatform/Views/Extent.h"

/// How to write a view.
///
/// A view is a plain value that stores what it shows, never where it is or what it measured. Most are made of others
/// and say so in one function:
///
///     struct Greeting {
///         std::string name;
///
///         View body(const Environment& environment) const
///         {
///             return VStack {
///                 .alignment = HorizontalAlignment::leading,
///                 .spacing = 4,
///                 .children = {
///                     Text { .runs = { { name, titleStyle } }, .paint = titleColor(environment), .lineLimit = 2 },
///                     Shape { .outline = Capsule {}, .paint = lineColor(environment) },
///                 },
///             };
///         }
///     };
///
/// One that draws by itself has the two passes instead:
///
///     struct Dot {
///         Color color;
///         Extent measure(const Proposal& proposed, const Environment&) const;
///         void draw(Canvas& canvas, const Rect& in, const Environment&) const { canvas.fill(Ellipse {}, in, color); }
///     };
///
/// A view around one other view, named `content`, may leave `measure` out: it takes that view's size.
///
/// The parent decides the place, the child the size: `in` has the size that was measured for one of the parent's
/// proposals or the one that the parent insists on. A view larger than its place overhangs and never clips itself. Only
/// leading and trailing exist; a view that places things by x asks LayoutDirectionKey. Everything is named in
/// Primitives.h; `draw(view, canvas, in, environment)` below draws a whole picture.
namespace orvel {

class View;

/// What a stack asks of a child besides its size.
struct StackTraits {
    double priority = 0; // the higher are served first; the others keep their least sizes
    bool isSpacer = false; // has a length along the stack and none across it
};

template <typename T>
concept MeasuringView = requires(const T& view, const Proposal& proposed, const Environment& environment)
{
    {
        view.measure(proposed, environment)
        } -> std::same_as<Extent>;
};

/// Changes how its content is drawn and takes its size.
template <typename T>
concept WrappingView = requires(const T& view)
{
    {
        view.content
        } -> std::same_as<const View&>;
};

template <typename T>
concept DrawnView = (MeasuringView<T> || WrappingView<T>)&&requires(
    const T& view, Canvas& canvas, const Rect& in, const Environment& environment)
{
    view.draw(canvas, in, environment);
};

template <typename T>
concept ComposedView = requires(const T& view, const Environment& environment)
{
    {
        view.body(environment)
        } -> std::same_as<View>;
};

/// Holds any view. Copies share what they hold, which never changes. A default one is nothing: it has no size, and a
/// stack leaves it and the gap beside it out.
class View {
public:
    View() = default;

    template <typename T>
    requires(!std::same_as<T, View> && (DrawnView<T> || ComposedView<T>)) View(T view)
        : m_node(std::make_shared<const NodeOf<T>>(std::move(view)))
    {
    }

    /// A view that may be absent.
    template <typename T>
    requires(!std::same_as<T, View> && (DrawnView<T> || ComposedView<T>)) View(std::optional<T> view)
    {
        if (view)
            *this = View(*std::move(view));
    }

    bool isNothing() const { return m_node == nullptr; }
    StackTraits stackTraits() const { return m_node ? m_node->stackTraits() : StackTraits {}; }

    /// Asks the memory of the pass first.
    Extent measure(const Proposal& proposed, const Environment& environment) const;
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const;

private:
    friend class MeasureMemory;

    struct Node {
        virtual ~Node() = default;
        virtual bool isComposed() const = 0;
        virtual View body(const Environment& environment) const = 0;
        virtual Extent measure(const Proposal& proposed, const Environment& environment) const = 0;
        virtual void draw(Canvas& canvas, const Rect& in, const Environment& environment) const = 0;
        virtual StackTraits stackTraits() const = 0;
        virtual bool isQuicklyMeasured() const = 0;
    };

    template <typename T>
    struct NodeOf;

    View bodyOf(const Environment& environment) const;
    Extent measureAfresh(const Proposal& proposed, const Environment& environment) const;

    std::shared_ptr<const Node> m_node;
};

template <typename T>
struct View::NodeOf final : View::Node {
    explicit NodeOf(T itsView) : view(std::move(itsView)) { }

    bool isComposed() const override { return ComposedView<T>; }

    View body([[maybe_unused]] const Environment& environment) const override
    {
        if constexpr (ComposedView<T>)
            return view.body(environment);
        else
            return {};
    }

    Extent measure(
        [[maybe_unused]] const Proposal& proposed, [[maybe_unused]] const Environment& environment) const override
    {
        if constexpr (MeasuringView<T>)
            return view.measure(proposed, environment);
        else if constexpr (WrappingView<T>)
            return view.content.measure(proposed, environment);
        else
            return {};
    }

    void draw([[maybe_unused]] Canvas& canvas, [[maybe_unused]] const Rect& in,
        [[maybe_unused]] const Environment& environment) const override
    {
        if constexpr (!ComposedView<T>)
            view.draw(canvas, in, environment);
    }

    StackTraits stackTraits() const override
    {
        if constexpr (requires { view.stackTraits(); })
            return view.stackTraits();
        else
            return {};
    }

    /// Whether a memory of its extents would cost more than asking again: its content's memory serves a wrapper, and
    /// some say so themselves.
    bool isQuicklyMeasured() const override
    {
        if constexpr (requires { T::isQuicklyMeasured; })
            return T::isQuicklyMeasured;
        else
            return WrappingView<T> && !MeasuringView<T>;
    }

    T view;
};

/// Draws a whole picture: a view in a rectangle, with a memory for this one pass.
void draw(const View& view, Canvas& canvas, const Rect& in, const Environment& environment);

/// The extent of a view that stands alone.
Extent measure(const View& view, const Proposal& proposed, const Environment& environment);

}

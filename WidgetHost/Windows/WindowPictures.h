#pragma once

#include <compare>
#include <map>
#include <memory>
#include <optional>

#include "OrvelPlatform/Drawing/Renderer.h"
#include "WidgetHost/Face/WidgetFace.h"
#include "WidgetHost/Windows/WindowGeometry.h"

namespace orvel {

/// Draws what the windows show besides the extension's pictures. The frame of a card is drawn once for each look, scale
/// and size of letters, whatever the cards' sizes; it is kept.
class WindowPictures {
public:
    WindowPictures();
    ~WindowPictures();

    /// A square frame whose corners serve cards of any size: twice the corner's pixels and one more on a side.
    struct Frame {
        Picture picture;
        double corner; // pixels, room for the shadow included
    };
    std::shared_ptr<const Frame> frame(
        const WidgetFace& face, const WindowGeometry& geometry, bool hasEdge, bool isFocused);

    /// A picture at a place of its own.
    struct Placed {
        Picture picture;
        Rect place; // in the window's points
    };
    /// The name in place of a picture; absent where there is one.
    std::shared_ptr<const Placed> placeholder(const WidgetFace& face, const WindowGeometry& geometry);
    /// The notice, over the card's lower edge; absent where there is none.
    std::shared_ptr<const Placed> notice(const WidgetFace& face, const WindowGeometry& geometry);
    /// The ring round a button, which is a place in the window.
    std::shared_ptr<const Placed> ring(const WidgetFace& face, const WindowGeometry& geometry, const Rect& button);

private:
    struct FrameKey {
        double radius;
        double scale;
        bool isDark;
        bool increasesContrast;
        bool hasEdge;
        bool isFocused;
        auto operator<=>(const FrameKey&) const = default;
    };

    Renderer& renderer();
    std::shared_ptr<const Placed> drawn(const View& view, const WidgetFace& face, const WindowGeometry& geometry,
        const Rect& place, double magnification);

    std::unique_ptr<Renderer> m_renderer; // made when something is to be drawn
    std::map<FrameKey, std::weak_ptr<const Frame>> m_frames; // the windows keep them
};

}

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

    /// What is written on the card, as large as it: the name where there is no picture, and the notice. Absent where
    /// there is neither.
    std::shared_ptr<const Picture> words(const WidgetFace& face, const WindowGeometry& geometry);

    /// The ring round a button, with as much room on each side as it needs.
    struct Ring {
        Picture picture;
        Rect place; // in the window's points
    };
    std::shared_ptr<const Ring> ring(const WidgetFace& face, const WindowGeometry& geometry, const Rect& button);

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

    std::unique_ptr<Renderer> m_renderer; // made when something is to be drawn
    std::map<FrameKey, std::weak_ptr<const Frame>> m_frames; // the windows keep them
};

}

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "OrvelPlatform/Drawing/DeviceSpace.h"
#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Drawing/PendingClips.h"
#include "OrvelPlatform/Drawing/Sources.h"
#include "OrvelPlatform/Views/Canvas.h"

namespace orvel {

/// Paints on one surface, or on two for a tinted picture.
class CairoCanvas final : public Canvas {
public:
    /// Surfaces on which nothing has been drawn.
    struct Target {
        _cairo_surface* whole; // or the default layer
        _cairo_surface* accent; // null: everything on one surface
        double scale; // device pixels in a point
        bool isVector; // no pixels: gradients and text stay what they are
    };

    CairoCanvas(const Target& target, KeptSurfaces& kept, const TextureTiles& textures);

    void fill(const Outline& outline, const Rect& in, const Paint& paint) override;
    void stroke(const Outline& outline, const Rect& in, const Stroke& stroke, const Paint& paint) override;
    void shadow(const Outline& outline, const Rect& in, const Shadow& shadow) override;
    void text(const ShapedText& text, Point at, const std::vector<Paint>& paints) override;
    void symbol(const Symbol& symbol, const Rect& in, double strokeWidth, const Paint& paint) override;

private:
    /// Draws with the source that is set, on one context.
    using Drawing = std::function<void(_cairo*)>;

    void entered(const State& state) override;
    void left(const State& state) override;

    /// `pixels` is where it draws; absent where that is not known.
    void paintOn(
        const Paint& paint, const PaintedArea& area, const std::optional<Rect>& pixels, const Drawing& drawing);
    void paintMask(const Paint& paint, const PaintedArea& area, _cairo_surface* mask, Point at);
    void paintGround(const LinearGradient& gradient, const PaintedArea& area, const Drawing& drawing);
    void cutRows(_cairo_surface* ground, const PixelBox& rows, const Drawing& drawing) const;
    void cutGround(_cairo_surface* ground, const Rect& drawn, const Drawing& drawing) const;
    SurfaceHandle groundSurface(const LinearGradient& gradient, const PaintedArea& area, const Drawing& drawing) const;
    void paintShape(const Paint& paint, const PaintedArea& area, SurfaceKey key, const Drawing& drawing);
    bool isWhole(const Rect& pixels) const;
    _cairo* current() const;

    std::vector<CairoHandle> m_contexts; // the default layer's, then the accent's
    Sources m_sources;
    bool m_isVector;
    bool m_isClear = true; // nothing was painted yet
    PendingClips m_clips;
    std::vector<std::size_t> m_appliedBefore; // a group each
    int m_accents = 0;
};

}

#pragma once

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Drawing/KeptSurfaces.h"
#include "OrvelPlatform/Views/Outline.h"

namespace orvel {

/// The clips that hold, applied only to what they cut. Most of a widget lies well within its rounded corners, and the
/// drawing library is several times slower inside such a clip than without one.
class PendingClips {
public:
    /// A clip in the context's present units.
    void push(_cairo* context, const Outline& outline, const Rect& in);
    void pop() { m_clips.pop_back(); }

    /// Applies those that are not yet, until the context is restored.
    void applyTo(_cairo* context) const;
    /// From now on all are applied; gives how many were before.
    std::size_t setAllApplied() { return std::exchange(m_applied, m_clips.size()); }
    void setApplied(std::size_t count) { m_applied = count; }

    /// Adds those that are not yet applied.
    void addTo(SurfaceKey& key) const;

    /// Whether something within these device pixels may be cut; absent pixels: it is not known where it draws.
    bool cut(const std::optional<Rect>& pixels) const;

    /// Applies those that are not yet, until the scope ends, if they may cut what is drawn.
    class Scope {
    public:
        Scope(const PendingClips& clips, _cairo* context, const std::optional<Rect>& pixels);
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;
        ~Scope();

    private:
        _cairo* m_context; // null: nothing was applied
    };

private:
    struct Clip {
        Outline outline;
        Rect in;
        std::array<double, 6> matrix; // the context's
        Rect pixels;
        double scale;
    };

    static bool isWithin(const Rect& pixels, const Clip& clip);

    std::vector<Clip> m_clips;
    std::size_t m_applied = 0;
};

}

#pragma once

#include <cstddef>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "OrvelPlatform/Drawing/Handles.h"
#include "OrvelPlatform/Views/Outline.h"

namespace orvel {

/// What a surface is known by: everything that its pixels depend on.
class SurfaceKey {
public:
    explicit SurfaceKey(std::string_view kind) : m_bytes(kind) { }

    SurfaceKey& add(double number);
    SurfaceKey& add(std::string_view text);

    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

/// Adds an outline without the rectangle that it is drawn in.
void addTo(SurfaceKey& key, const Outline& outline);

/// Surfaces that are the same in many frames: gradients, blurred shadows and the coverage of shapes. Those not used for
/// the longest time go first when they are more than `limit` bytes. A large one is kept from the second time on that it
/// is wanted: who draws a single picture needs no copy of its ground.
class KeptSurfaces {
public:
    explicit KeptSurfaces(std::size_t limit) : m_limit(limit) { }

    /// Whether a surface of so many bytes would not be kept: a large one that is wanted for the first time. Asking
    /// counts as wanting it.
    bool isWantedOnce(const SurfaceKey& key, std::size_t size);

    /// The surface known by the key, made now if need be.
    std::shared_ptr<_cairo_surface> find(const SurfaceKey& key, const std::function<SurfaceHandle()>& make);

private:
    struct Entry {
        std::string key;
        std::shared_ptr<_cairo_surface> surface;
        std::size_t size;
    };

    std::size_t m_limit;
    std::size_t m_size = 0;
    std::list<Entry> m_entries; // the latest first
    std::unordered_map<std::string_view, std::list<Entry>::iterator> m_byKey; // the views are of the entries' keys
    std::unordered_set<std::string> m_wantedOnce; // large ones
};

}

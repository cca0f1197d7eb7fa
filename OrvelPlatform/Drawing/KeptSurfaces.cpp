#include "OrvelPlatform/Drawing/KeptSurfaces.h"

#include <array>
#include <bit>
#include <cairo.h>
#include <utility>

namespace orvel {

namespace {

constexpr std::size_t small = 256U << 10U; // bytes
constexpr std::size_t mostWantedOnce = 64;

}

SurfaceKey& SurfaceKey::add(double number)
{
    const auto bytes = std::bit_cast<std::array<char, sizeof number>>(number);
    m_bytes.append(bytes.begin(), bytes.end());
    return *this;
}

SurfaceKey& SurfaceKey::add(std::string_view text)
{
    add(static_cast<double>(text.size()));
    m_bytes += text;
    return *this;
}

void addTo(SurfaceKey& key, const Outline& outline)
{
    key.add(static_cast<double>(outline.index()));
    if (const auto* rounded = std::get_if<RoundedRectangle>(&outline))
        key.add(rounded->radius);
    if (const auto* arc = std::get_if<Arc>(&outline))
        key.add(arc->start).add(arc->sweep);
    if (const auto* ring = std::get_if<Ring>(&outline))
        key.add(ring->width);
}

bool KeptSurfaces::isWantedOnce(const SurfaceKey& key, std::size_t size)
{
    if (size <= small || m_byKey.contains(key.bytes()))
        return false;
    if (m_wantedOnce.size() > mostWantedOnce)
        m_wantedOnce.clear();
    return m_wantedOnce.insert(key.bytes()).second;
}

std::shared_ptr<cairo_surface_t> KeptSurfaces::find(const SurfaceKey& key, const std::function<SurfaceHandle()>& make)
{
    if (const auto found = m_byKey.find(key.bytes()); found != m_byKey.end()) {
        m_entries.splice(m_entries.begin(), m_entries, found->second);
        return found->second->surface;
    }
    std::shared_ptr<cairo_surface_t> surface(make());
    const auto size = static_cast<std::size_t>(cairo_image_surface_get_stride(surface.get()))
        * static_cast<std::size_t>(cairo_image_surface_get_height(surface.get()));
    if (size > m_limit || isWantedOnce(key, size))
        return surface;
    m_wantedOnce.erase(key.bytes());
    m_entries.push_front({ key.bytes(), surface, size });
    m_byKey.emplace(m_entries.front().key, m_entries.begin());
    m_size += size;
    while (m_size > m_limit) {
        m_size -= m_entries.back().size;
        m_byKey.erase(m_entries.back().key);
        m_entries.pop_back();
    }
    return surface;
}

}

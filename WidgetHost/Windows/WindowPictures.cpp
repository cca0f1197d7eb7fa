#include "WidgetHost/Windows/WindowPictures.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "WidgetHost/Windows/CardViews.h"

namespace orvel {

namespace {

/// How far from a card's edge its corner, or the blur at it, is still to be seen; in points.
double reachOfCorner(double radius)
{
    constexpr double blurred = WindowGeometry::roomForShadow;
    return radius + blurred;
}

template <typename T>
std::shared_ptr<const T> sharedOrNull(std::expected<Picture, Fault> drawn, const auto& rest)
{
    if (!drawn)
        return nullptr; // memory is short, or the card enormous: better bare than not at all
    return std::make_shared<const T>(T { *std::move(drawn), rest });
}

}

WindowPictures::WindowPictures() = default;
WindowPictures::~WindowPictures() = default;

Renderer& WindowPictures::renderer()
{
    if (!m_renderer)
        m_renderer = std::make_unique<Renderer>(designBundle(), FontScope::guest);
    return *m_renderer;
}

std::shared_ptr<const WindowPictures::Frame> WindowPictures::frame(
    const WidgetFace& face, const WindowGeometry& geometry, bool hasEdge, bool isFocused)
{
    if ((!hasEdge && !isFocused) || geometry.card.x == 0)
        return nullptr;
    auto& kept = m_frames[{ geometry.radius, geometry.scale, face.isDark, face.increasesContrast, hasEdge, isFocused }];
    if (auto found = kept.lock())
        return found;
    std::erase_if(m_frames, [&](const auto& entry) { return &entry.second != &kept && entry.second.expired(); });
    const double room = WindowGeometry::roomForShadow;
    const double corner = std::ceil((room + reachOfCorner(geometry.radius)) * geometry.scale);
    constexpr double error = 1e-6; // of the division, which must not make another pixel
    const double side = (2 * corner + 1 - error) / geometry.scale;
    const View view =
        Padding { .insets = Insets::all(room), .content = CardFrame { geometry.radius, hasEdge, isFocused } };
    auto drawn = renderer().draw(view, { .size = { side, side }, .scale = geometry.scale }, environmentOf(face));
    auto made = sharedOrNull<Frame>(std::move(drawn), corner);
    kept = made;
    return made;
}

std::shared_ptr<const Picture> WindowPictures::words(const WidgetFace& face, const WindowGeometry& geometry)
{
    std::vector<View> layers;
    View words;
    if (!face.picture)
        words = CardPlaceholder { face.name, face.tint };
    if (face.notice) {
        const View notice = CardNotice { *face.notice, face.tint };
        words = words.isNothing() ? notice : Overlay { std::move(words), notice };
    }
    if (words.isNothing())
        return nullptr;
    const Size points { geometry.card.width / face.pointScale, geometry.card.height / face.pointScale };
    auto drawn =
        renderer().draw(words, { .size = points, .scale = geometry.scale * face.pointScale }, environmentOf(face));
    return drawn ? std::make_shared<const Picture>(*std::move(drawn)) : nullptr;
}

std::shared_ptr<const WindowPictures::Ring> WindowPictures::ring(
    const WidgetFace& face, const WindowGeometry& geometry, const Rect& button)
{
    constexpr double room = FocusRing::outset + FocusRing::width + 1;
    // Whole points keep the line as sharp as its corners allow.
    const double left = std::floor(button.x), top = std::floor(button.y);
    const Rect place =
        Rect { left, top, std::ceil(button.right()) - left, std::ceil(button.bottom()) - top }.insetBy(-room);
    const View view = Padding { .insets = Insets::all(room), .content = ActionRing {} };
    return sharedOrNull<Ring>(
        renderer().draw(view, { .size = place.size(), .scale = geometry.scale }, environmentOf(face)), place);
}

}

#include "WidgetHost/Windows/WindowPictures.h"

#include <algorithm>
#include <cmath>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/TokensSpace.h"
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

/// Grown to whole points, so that what is drawn in it is as sharp as it was meant.
Rect wholePoints(const Rect& rect)
{
    const double left = std::floor(rect.x), top = std::floor(rect.y);
    return { left, top, std::ceil(rect.right()) - left, std::ceil(rect.bottom()) - top };
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
    if (!drawn)
        return nullptr; // memory is short: better bare than not at all
    auto made = std::make_shared<const Frame>(Frame { *std::move(drawn), corner });
    kept = made;
    return made;
}

std::shared_ptr<const WindowPictures::Placed> WindowPictures::drawn(
    const View& view, const WidgetFace& face, const WindowGeometry& geometry, const Rect& place, double magnification)
{
    const Renderer::Request request { .size = { place.width / magnification, place.height / magnification },
        .scale = geometry.scale * magnification };
    auto picture = renderer().draw(view, request, environmentOf(face));
    return picture ? std::make_shared<const Placed>(Placed { *std::move(picture), place }) : nullptr;
}

std::shared_ptr<const WindowPictures::Placed> WindowPictures::placeholder(
    const WidgetFace& face, const WindowGeometry& geometry)
{
    if (face.picture)
        return nullptr;
    return drawn(CardPlaceholder { face.name, face.tint }, face, geometry, geometry.card, face.pointScale);
}

std::shared_ptr<const WindowPictures::Placed> WindowPictures::notice(
    const WidgetFace& face, const WindowGeometry& geometry)
{
    if (!face.notice)
        return nullptr;
    const View view = CardNotice { *face.notice, face.tint };
    const auto& card = geometry.card;
    const double most = card.width / face.pointScale - 2 * Tokens::Space::s2;
    const auto environment = renderer().environment(environmentOf(face));
    const auto size = measure(view, { most, CardNotice::height }, environment).size;
    const double width = size.width * face.pointScale, height = size.height * face.pointScale;
    // Half of it on the card; all of it where a card has nothing round it.
    const double top = std::min(card.bottom() - height / 2, geometry.window.height - height);
    return drawn(view, face, geometry, wholePoints({ card.center().x - width / 2, std::round(top), width, height }),
        face.pointScale);
}

std::shared_ptr<const WindowPictures::Placed> WindowPictures::ring(
    const WidgetFace& face, const WindowGeometry& geometry, const Rect& button)
{
    constexpr double room = FocusRing::outset + FocusRing::width + 1;
    const View view = Padding { .insets = Insets::all(room), .content = ActionRing {} };
    return drawn(view, face, geometry, wholePoints(button).insetBy(-room), 1);
}

}

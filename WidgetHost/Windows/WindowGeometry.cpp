#include "WidgetHost/Windows/WindowGeometry.h"

#include <algorithm>
#include <cmath>
#include <ranges>

#include "OrvelDesign/TokensSpace.h"

namespace orvel {

namespace {

constexpr double nextPixel = 1.5; // whoever drew may have rounded the other way

/// As many pixels as hold a length. What arithmetic adds beyond a whole number is none of it.
double pixelsOf(double points, double scale)
{
    constexpr double error = 1e-6;
    return std::max(1.0, std::ceil(points * scale - error));
}

bool contains(const Rect& rect, Point at)
{
    return at.x >= rect.x && at.x < rect.right() && at.y >= rect.y && at.y < rect.bottom();
}

/// How far a round corner cuts into a row, at the row's middle.
double cutOf(double radius, double fromEdge)
{
    const double toCentre = radius - fromEdge;
    return toCentre <= 0 ? 0 : radius - std::sqrt(std::max(0.0, radius * radius - toCentre * toCentre));
}

}

bool isDrawnFor(const HostPicture& picture, Size card, double scale)
{
    return std::abs(picture.width - card.width * scale) < nextPixel
        && std::abs(picture.height - card.height * scale) < nextPixel;
}

WindowGeometry windowGeometry(const WidgetFace& face, double scale, bool isComposited)
{
    Size pixels { pixelsOf(face.size.width, scale), pixelsOf(face.size.height, scale) };
    if (face.picture && isDrawnFor(*face.picture, face.size, scale))
        pixels = { static_cast<double>(face.picture->width), static_cast<double>(face.picture->height) };
    const double room = isComposited ? WindowGeometry::roomForShadow : 0;
    const Rect card { room, room, pixels.width / scale, pixels.height / scale };
    return {
        .window = { std::ceil(card.width) + 2 * room, std::ceil(card.height) + 2 * room },
        .card = card,
        .radius = isComposited ? Tokens::Radius::lg * face.pointScale : 0,
        .scale = scale,
    };
}

Rect placeInWindow(const PictureFrame& frame, const WindowGeometry& geometry, double pointScale)
{
    return { geometry.card.x + frame.x * pointScale, geometry.card.y + frame.y * pointScale, frame.width * pointScale,
        frame.height * pointScale };
}

std::optional<std::size_t> actionAt(const WidgetFace& face, const WindowGeometry& geometry, Point at)
{
    if (!face.picture)
        return std::nullopt;
    const auto& actions = face.picture->actions;
    for (auto index = actions.size(); index-- > 0;) {
        if (contains(placeInWindow(actions[index].frame, geometry, face.pointScale), at))
            return index;
    }
    return std::nullopt;
}

std::vector<Rect> rowsOfCard(const WindowGeometry& geometry)
{
    const Rect card { geometry.card.x, geometry.card.y, std::ceil(geometry.card.width),
        std::ceil(geometry.card.height) };
    const double radius = std::min({ geometry.radius, card.width / 2, card.height / 2 });
    const double corner = std::ceil(radius);
    std::vector<Rect> rows;
    if (card.height > 2 * corner)
        rows.push_back({ card.x, card.y + corner, card.width, card.height - 2 * corner });
    for (double y = 0; y < std::min(corner, std::ceil(card.height / 2)); ++y) {
        const double cut = std::floor(cutOf(radius, y + 0.5));
        const double mirrored = card.height - 1 - y;
        for (const double row : { y, mirrored })
            rows.push_back({ card.x + cut, card.y + row, card.width - 2 * cut, 1 });
    }
    return rows;
}

}

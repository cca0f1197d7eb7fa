#include "WidgetHost/Windows/FaceChange.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

namespace orvel {

namespace {

using Row = std::span<const std::uint32_t>;

/// Grows as it meets what differs; edges in pixels.
struct Box {
    std::size_t left = SIZE_MAX, top = SIZE_MAX, right = 0, bottom = 0;

    void addRow(std::size_t y, Row one, Row other)
    {
        if (std::memcmp(one.data(), other.data(), one.size_bytes()) == 0) // most rows are alike, and this is quickest
            return;
        const auto first = std::ranges::mismatch(one, other).in1 - one.begin();
        auto last = std::ssize(one);
        while (one[static_cast<std::size_t>(last) - 1] == other[static_cast<std::size_t>(last) - 1])
            --last;
        left = std::min(left, static_cast<std::size_t>(first));
        right = std::max(right, static_cast<std::size_t>(last));
        top = std::min(top, y);
        bottom = std::max(bottom, y + 1);
    }

    std::optional<Rect> rect() const
    {
        if (right == 0)
            return std::nullopt;
        return Rect { static_cast<double>(left), static_cast<double>(top), static_cast<double>(right - left),
            static_cast<double>(bottom - top) };
    }
};

const MappedPixels* pixelsOf(const HostPicture::Layer& layer)
{
    return std::get_if<MappedPixels>(&layer.content);
}

bool areComparable(const HostPicture& one, const HostPicture& other)
{
    return one.width == other.width && one.height == other.height && one.stride == other.stride
        && std::ranges::equal(one.layers, other.layers, [](const auto& layer, const auto& same) {
               return layer.name == same.name && pixelsOf(layer) && pixelsOf(same);
           });
}

bool haveOneGround(const WidgetFace& one, const WidgetFace& other)
{
    return one.size == other.size && one.pointScale == other.pointScale && one.tint == other.tint
        && one.isDark == other.isDark && one.increasesContrast == other.increasesContrast
        && one.reducesTransparency == other.reducesTransparency && one.look == other.look
        && (one.picture == nullptr) == (other.picture == nullptr)
        && (one.picture || (one.name == other.name && one.language == other.language));
}

bool haveOneMeaning(const WidgetFace& one, const WidgetFace& other)
{
    if (one.name != other.name || one.notice != other.notice || one.pointScale != other.pointScale
        || one.size != other.size)
        return false;
    if (one.picture == other.picture)
        return true;
    return one.picture && other.picture && one.picture->elements == other.picture->elements
        && one.picture->actions == other.picture->actions && one.picture->link.empty() == other.picture->link.empty();
}

}

std::optional<Rect> differingPixels(const HostPicture& before, const HostPicture& after)
{
    if (!areComparable(before, after))
        return Rect { 0, 0, static_cast<double>(after.width), static_cast<double>(after.height) };
    Box box;
    const std::size_t words = after.stride / sizeof(std::uint32_t);
    for (std::size_t layer = 0; layer < after.layers.size(); ++layer) {
        const auto one = pixelsOf(before.layers[layer])->pixels(), other = pixelsOf(after.layers[layer])->pixels();
        for (std::size_t y = 0; y < after.height; ++y)
            box.addRow(y, one.subspan(y * words, after.width), other.subspan(y * words, after.width));
    }
    return box.rect();
}

FaceChange change(const WidgetFace& before, const WidgetFace& after)
{
    FaceChange change {
        .card = !haveOneGround(before, after),
        .notice = before.notice != after.notice || before.isRightToLeft != after.isRightToLeft,
        .parts = !haveOneMeaning(before, after),
    };
    if (!change.card && before.picture != after.picture)
        change.pixels = differingPixels(*before.picture, *after.picture);
    // A picture of another size may be of another scale; the card follows its pixels.
    if (before.picture && after.picture
        && (before.picture->width != after.picture->width || before.picture->height != after.picture->height))
        change.card = true;
    return change;
}

}

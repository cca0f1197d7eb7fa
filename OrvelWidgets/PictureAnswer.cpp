#include "OrvelWidgets/PictureAnswer.h"

#include <utility>

namespace orvel {

namespace {

PictureFrame pictureFrame(const DrawnWidget::Frame& frame)
{
    return { .x = frame.x, .y = frame.y, .width = frame.width, .height = frame.height };
}

ExtensionPicture::Layer pictureLayer(DrawnWidget::Layer layer)
{
    if (layer.png.empty())
        return { .name = std::move(layer.name), .content = std::move(layer.pixels) };
    return { .name = std::move(layer.name), .content = ExtensionPicture::Png { .bytes = std::move(layer.png) } };
}

}

ExtensionPicture extensionPicture(DrawnWidget drawn, const URL& link)
{
    ExtensionPicture picture {
        .width = drawn.width,
        .height = drawn.height,
        .layers = {},
        .link = link.text,
        .elements = {},
        .actions = {},
    };
    for (auto& layer : drawn.layers)
        picture.layers.push_back(pictureLayer(std::move(layer)));
    for (auto& [role, label, frame] : drawn.elements)
        picture.elements.push_back(
            { .role = std::move(role), .label = std::move(label), .frame = pictureFrame(frame) });
    for (auto& [label, frame, action] : drawn.actions)
        picture.actions.push_back({ .label = std::move(label),
            .frame = pictureFrame(frame),
            .intent = std::move(action.intent),
            .parameters = std::move(action.parameters) });
    return picture;
}

}

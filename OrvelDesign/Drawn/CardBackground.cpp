#include "OrvelDesign/Drawn/CardBackground.h"

namespace orvel {

Extent CardBackground::measure(const Proposal& proposed, const Environment&) const
{
    return allOf(proposed);
}

void CardBackground::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const CardShape shape { radius };
    const auto card = placed(shape, in);
    const auto drawnEdge = cardEdge(edge, ColorFlags::in(environment));
    canvas.fill(card.outline, card.in, fill);
    for (const auto& layer : drawnEdge.layers)
        canvas.shadow(card.outline, card.in, shadow(layer));
    if (const auto& border = drawnEdge.border) {
        const auto line = placed(shape.insetBy(border->width / 2), in);
        canvas.stroke(line.outline, line.in, Stroke { border->width }, Color(border->color));
    }
}

PlacedOutline placed(const CardShape& shape, const Rect& in)
{
    const auto path = shape.path({ in.x, in.y, in.width, in.height, 0 });
    return { RoundedRectangle { path.radius }, { path.x, path.y, path.width, path.height } };
}

Shadow shadow(const ShadowLayer& layer)
{
    return {
        .inset = layer.inset,
        .x = layer.x,
        .y = layer.y,
        .blur = layer.blur,
        .spread = layer.spread,
        .color = layer.color,
    };
}

}

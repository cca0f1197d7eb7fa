#include "WidgetHost/Windows/PartList.h"

#include <algorithm>

#include "OrvelPlatform/Base/RawValue.h"

namespace orvel {

namespace {

bool contains(const PictureFrame& outer, const PictureFrame& inner)
{
    constexpr double error = 1;
    return inner.x >= outer.x - error && inner.y >= outer.y - error
        && inner.x + inner.width <= outer.x + outer.width + error
        && inner.y + inner.height <= outer.y + outer.height + error;
}

bool isButtonOfAction(const PictureElement& element, const HostPicture& picture)
{
    return std::ranges::any_of(picture.actions, [&](const PictureAction& action) {
        return contains(action.frame, element.frame)
            || (element.role == "button" && contains(element.frame, action.frame));
    });
}

/// What of a frame lies on the card: light and long words may reach beyond it, where there is no window any more.
Rect onCard(const Rect& frame, const Rect& card)
{
    const double left = std::clamp(frame.x, card.x, card.right()), top = std::clamp(frame.y, card.y, card.bottom());
    return { left, top, std::clamp(frame.right(), left, card.right()) - left,
        std::clamp(frame.bottom(), top, card.bottom()) - top };
}

std::string allThatIsSaid(const HostPicture& picture)
{
    std::string said;
    for (const auto& element : picture.elements)
        said += (said.empty() ? "" : "\n") + element.label;
    return said;
}

Rect placeOf(const PictureFrame& frame, const WidgetFace& face, const WindowGeometry& geometry)
{
    return onCard(placeInWindow(frame, geometry, face.pointScale), geometry.card);
}

void addElements(std::vector<ListedPart>& parts, const WidgetFace& face, const WindowGeometry& geometry)
{
    for (const auto& element : face.picture->elements) {
        if (isButtonOfAction(element, *face.picture))
            continue;
        const auto role = fromRawValue<ElementRole>(element.role).value_or(ElementRole::text);
        parts.push_back({
            .meaning = { role, element.label },
            .frame = placeOf(element.frame, face, geometry),
            .opens = role == ElementRole::button && !face.picture->link.empty(),
        });
    }
}

void addActions(std::vector<ListedPart>& parts, const WidgetFace& face, const WindowGeometry& geometry)
{
    for (std::size_t index = 0; index < face.picture->actions.size(); ++index) {
        const auto& action = face.picture->actions[index];
        parts.push_back({
            .meaning = { ElementRole::button, action.label, {}, true },
            .frame = placeOf(action.frame, face, geometry),
            .action = index,
        });
    }
}

}

std::vector<ListedPart> partsOf(const WidgetFace& face, const WindowGeometry& geometry)
{
    const bool opens = face.picture && !face.picture->link.empty();
    const auto said = face.picture ? allThatIsSaid(*face.picture) : std::string();
    std::vector<ListedPart> parts { {
        .meaning = { opens ? ElementRole::button : ElementRole::group, face.name, said, true },
        .frame = geometry.card,
        .opens = opens,
    } };
    if (face.picture)
        addElements(parts, face, geometry);
    if (face.notice)
        parts.push_back({ .meaning = { ElementRole::text, *face.notice }, .frame = geometry.card });
    if (face.picture)
        addActions(parts, face, geometry);
    return parts;
}

}

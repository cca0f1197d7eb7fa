#include "OrvelWidgetsUI/Door/WidgetPicture.h"

#include <string_view>
#include <utility>
#include <vector>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelCopy/Widgets.h"
#include "OrvelDesign/TextMagnification.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/OrvelBreatheWidgetView.h"
#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"
#include "OrvelWidgetsUI/Drawn/WidgetBackground.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"

namespace orvel {

namespace {

bool isBreathe(const WidgetDrawing& drawing)
{
    return drawing.content.state == WidgetContent::State::breathe;
}

BreatheButton breatheButton(const std::optional<WidgetAction>& action)
{
    if (!action)
        return {};
    return [action = *action](View label) -> View {
        return Action {
            .label = std::string(Copy::Widgets::breatheNow()),
            .intent = action.intent,
            .parameters = action.parameters,
            .content = std::move(label),
        };
    };
}

View widget(const WidgetDrawing& drawing)
{
    if (isBreathe(drawing))
        return OrvelBreatheWidgetView { drawing.content, drawing.look };
    return OrvelWidgetView { drawing.content, drawing.size, drawing.look, breatheButton(drawing.breathe) };
}

View withBackground(const WidgetDrawing& drawing)
{
    if (!drawing.hasBackground)
        return widget(drawing);
    return Background { .content = widget(drawing), .back = WidgetBackground { drawing.look } };
}

/// The language that words are asked for in.
Locale wordsLocale(const std::optional<Locale>& asked)
{
    const auto preferred = Locale::preferred(Locale::wordsSetting());
    return asked.value_or(preferred.empty() ? Locale::english() : preferred.front());
}

Environment environment(const WidgetDrawing& drawing)
{
    const auto direction = Copy::isRightToLeft() ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight;
    return drawing.environment.with<WordsLocaleKey>(wordsLocale(drawing.words)).with<LayoutDirectionKey>(direction);
}

DrawnWidget::Frame enlarged(const Rect& frame, double by)
{
    return { frame.x * by, frame.y * by, frame.width * by, frame.height * by };
}

std::expected<std::vector<DrawnWidget::Layer>, Fault> layers(Picture& picture, WidgetDrawing::Format format)
{
    std::vector<DrawnWidget::Layer> layers;
    for (auto& drawn : picture.layers) {
        auto& layer = layers.emplace_back(std::move(drawn.name));
        if (format == WidgetDrawing::Format::pixels) {
            layer.pixels = std::move(drawn.pixels);
            continue;
        }
        auto png = picture.png(std::move(drawn));
        if (!png)
            return std::unexpected(std::move(png).error());
        layer.png = *std::move(png);
    }
    return layers;
}

std::expected<DrawnWidget, Fault> drawnHere(Renderer& renderer, const WidgetDrawing& drawing)
{
    const auto canvas = points(isBreathe(drawing) ? WidgetSize::small : drawing.size);
    const double by = textMagnification(drawing.environment);
    auto picture = renderer.draw(withBackground(drawing),
        { { canvas.width, canvas.height }, drawing.scale * by, isSystemTinted(drawing.look) }, environment(drawing));
    if (!picture)
        return std::unexpected(std::move(picture).error());
    auto drawn = layers(*picture, drawing.format);
    if (!drawn)
        return std::unexpected(std::move(drawn).error());
    DrawnWidget widget { picture->width, picture->height, *std::move(drawn), {}, {} };
    for (const auto& mark : picture->elements)
        widget.elements.push_back({ std::string(rawValue(mark.role)), mark.label, enlarged(mark.frame, by) });
    for (const auto& mark : picture->actions)
        widget.actions.push_back({ mark.label, enlarged(mark.frame, by), { mark.intent, mark.parameters } });
    return widget;
}

}

std::expected<DrawnWidget, Fault> drawnWidget(Renderer& renderer, const WidgetDrawing& drawing)
{
    return Copy::inLanguage(drawing.words, [&] { return drawnHere(renderer, drawing); });
}

}

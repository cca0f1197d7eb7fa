#include "Tools/orvelctl/pictures/Drawing.h"

#include <utility>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelDesign/TextMagnification.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"
#include "OrvelWidgetsUI/Drawn/OrvelBreatheWidgetView.h"
#include "OrvelWidgetsUI/Drawn/OrvelWidgetView.h"
#include "OrvelWidgetsUI/Drawn/WidgetBackground.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"

namespace orvelctl {

namespace {

using namespace orvel;

View widget(const WidgetContent& content, WidgetSize size, WidgetLook look)
{
    if (content.state == WidgetContent::State::breathe)
        return OrvelBreatheWidgetView { content, look };
    return OrvelWidgetView { .content = content, .size = size, .look = look, .breatheButton = {} };
}

/// Everything larger, from the top left corner on.
struct Magnified {
    SizedView content;
    double factor;

    Extent measure(const Proposal&, const Environment&) const
    {
        return Size { content.size.width * factor, content.size.height * factor };
    }
    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const
    {
        const auto magnified = canvas.magnified(factor, in.origin());
        content.view.draw(canvas, { in.origin(), content.size }, environment);
    }
};

struct Outlined {
    View content;

    void draw(Canvas& canvas, const Rect& in, const Environment& environment) const
    {
        content.draw(canvas, in, environment);
        RecordingCanvas recording;
        content.draw(recording, in, environment);
        constexpr Color textColor { 0, 0.75, 1 }, shapeColor { 0.6, 0.6, 0.6, 0.8 }, spokenColor { 1, 0, 0.7 };
        constexpr Stroke thin { .width = 0.5 };
        for (const auto& mark : recording.marks()) {
            const bool isText = mark.kind == RecordingCanvas::Mark::Kind::text;
            canvas.stroke(Rectangle {}, mark.frame, thin, isText ? textColor : shapeColor);
        }
        for (const auto& element : recording.elements())
            canvas.stroke(Rectangle {}, element.frame.insetBy(-1), thin, spokenColor);
    }
};

}

void addSizeAndLook(
    CLI::App* command, std::function<void(orvel::WidgetSize)> setSize, std::function<void(orvel::WidgetLook)> setLook)
{
    addCaseOption<WidgetSize>(
        command, "--size", "SIZE", "small, medium or large; without it medium", std::move(setSize));
    addCaseOption<WidgetLook>(
        command, "--look", "LOOK", "dusk, dawn, mono or clear; without it dusk", std::move(setLook));
}

SizedView widgetPicture(const WidgetContent& content, WidgetSize size, WidgetLook look)
{
    const bool isBreathe = content.state == WidgetContent::State::breathe;
    const auto canvas = points(isBreathe ? WidgetSize::small : size);
    View whole = Background { .content = widget(content, size, look), .back = WidgetBackground { look } };
    return { Clipped { RoundedRectangle { Tokens::Radius::lg }, std::move(whole) }, { canvas.width, canvas.height } };
}

View outlined(View content)
{
    return Outlined { std::move(content) };
}

Environment wordsEnvironment(const std::optional<Locale>& locale)
{
    const auto preferred = Locale::preferred(Locale::wordsSetting());
    const auto words = locale.value_or(preferred.empty() ? Locale::english() : preferred.front());
    const auto direction = Copy::isRightToLeft() ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight;
    return Environment().with<WordsLocaleKey>(words).with<LayoutDirectionKey>(direction);
}

Exit draw(
    Renderer& renderer, const SizedView& view, double scale, const Environment& environment, const PictureFile& file)
{
    const double magnification = textMagnification(environment);
    if (file.format == PictureFormat::svg) {
        const Magnified whole { view, magnification };
        return file.write(renderer.svg(whole, whole.measure({}, environment).size, environment));
    }
    auto picture = renderer.draw(view.view, { view.size, scale * magnification }, environment);
    return file.write(picture ? picture->png(std::move(picture->layers.front())) : std::unexpected(picture.error()));
}

}

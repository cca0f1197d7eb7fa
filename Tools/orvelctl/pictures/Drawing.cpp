#include "Tools/orvelctl/pictures/Drawing.h"

#include <fmt/format.h>
#include <unistd.h>

#include "OrvelCopy/Lookup/Lookup.h"
#include "OrvelDesign/TextMagnification.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Base/ResourceBundle.h"
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

Renderer designRenderer()
{
    static const char here = 0; // in this program
    return { resourceBundle("OrvelDesign_OrvelDesign", &here), FontScope::ownProcess };
}

Exit save(const std::string& path, std::string_view bytes)
{
    if (path.empty())
        return isatty(STDOUT_FILENO) != 0 ? fail("-o FILE names where the picture goes", Exit::wrongCall)
                                          : print(bytes);
    const auto written = replaceFile(path, bytes);
    return written ? Exit::done : fail(printable(written.error().text()));
}

Exit draw(
    Renderer& renderer, const SizedView& view, double scale, const Environment& environment, const std::string& path)
{
    const double magnification = textMagnification(environment);
    if (path.ends_with(".svg")) {
        const Magnified whole { view, magnification };
        const auto document = renderer.svg(whole, whole.measure({}, environment).size, environment);
        return document ? save(path, *document) : fail(document.error().text());
    }
    const auto picture = renderer.draw(view.view, { view.size, scale * magnification }, environment);
    if (!picture)
        return fail(picture.error().text());
    const auto png = picture->png(picture->layers.front());
    return png ? save(path, *png) : fail(png.error().text());
}

}

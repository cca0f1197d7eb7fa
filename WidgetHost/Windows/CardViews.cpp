#include "WidgetHost/Windows/CardViews.h"

#include "OrvelDesign/Drawn/CardBackground.h"
#include "OrvelDesign/Drawn/DropShadows.h"
#include "OrvelDesign/Drawn/FocusRing.h"
#include "OrvelDesign/Drawn/OrvelFont.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensShadow.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Primitives.h"

namespace orvel {

namespace {

constexpr Color nothing { 0, 0, 0, 0 };

View words(const std::string& text, MacTypeRole role, const Paint& paint, int lineLimit, const Environment& environment)
{
    return Text {
        .runs = { { text, OrvelFont { role }.style(environment) } },
        .paint = paint,
        .lineLimit = lineLimit,
        .alignment = TextAlignment::center,
        .balanced = lineLimit > 1,
    };
}

Color quietColor(const std::optional<WindowTint>& tint, const Environment& environment)
{
    constexpr double quiet = 0.82; // as the widgets' own secondary words are
    return tint ? tint->foreground.faded(quiet) : Color(Palette::textSecondary.resolve(environment));
}

}

Environment environmentOf(const WidgetFace& face)
{
    return Environment()
        .with<ColorSchemeKey>(face.isDark ? ColorScheme::dark : ColorScheme::light)
        .with<ColorSchemeContrastKey>(
            face.increasesContrast ? ColorSchemeContrast::increased : ColorSchemeContrast::standard)
        .with<ReduceTransparencyKey>(face.reducesTransparency)
        .with<OrvelSystemTextScaleKey>(1) // the whole face is magnified
        .with<TextLanguageKey>(face.language)
        .with<LayoutDirectionKey>(face.isRightToLeft ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight);
}

CardGround cardGround(const WidgetFace& face, bool isComposited)
{
    const bool isOpaque = face.reducesTransparency || !isComposited;
    const ColorFlags flags { face.isDark, face.increasesContrast, isOpaque };
    if (face.look == ChosenLook::clear && !isOpaque)
        return { std::nullopt, false };
    if (face.tint)
        return { Palette::popoverFill.rgba(flags), isComposited };
    if (face.picture)
        return { std::nullopt, isComposited };
    return { Palette::surface1.rgba(flags), isComposited };
}

ShadowLayers widgetShadow(bool isDark)
{
    const auto& sheet = isDark ? Tokens::Shadow::sheet.dusk : Tokens::Shadow::sheet.dawn;
    auto layer = *sheet.begin();
    layer.x = 0;
    layer.y = Tokens::Space::s1;
    layer.blur = Tokens::Space::s4;
    return layer;
}

View CardFrame::body(const Environment& environment) const
{
    const RoundedRectangle outline { radius };
    View edge = Shape { outline, nothing };
    if (hasEdge) {
        const bool isDark = environment.get<ColorSchemeKey>() == ColorScheme::dark;
        edge = DropShadows { widgetShadow(isDark), outline, CardBackground { nothing, radius } };
    }
    return FocusRing { isFocused, outline, std::move(edge) };
}

View CardPlaceholder::body(const Environment& environment) const
{
    return Frame {
        .width = FrameLength::filling(),
        .height = FrameLength::filling(),
        .content = Padding { .insets = Insets::all(Tokens::Space::s4),
            .content = words(name, MacTypeRole::headline, quietColor(tint, environment), 2, environment) },
    };
}

View CardNotice::body(const Environment& environment) const
{
    const auto resolved = [&](const OrvelColor& color) { return Color(color.resolve(environment)); };
    const auto words = tint ? quietColor(tint, environment) : resolved(Palette::noticeText);
    const auto line = resolved(tint ? Palette::line : Palette::noticeLine);
    const auto ground = tint ? Color(Palette::surface1.resolve(environment)) : resolved(Palette::noticeFill);
    constexpr double lineWidth = 1;
    const View plate = Background {
        .content = Padding { .insets = Insets::all(lineWidth / 2),
            .content = Shape { Capsule {}, line, Stroke { lineWidth } } },
        .back = Shape { Capsule {}, ground },
    };
    return Background {
        .content =
            Frame {
                .height = FrameLength::exactly(height),
                .content = Padding { .insets = Insets::sides(Tokens::Space::s2, 0),
                    .content = orvel::words(sentence, MacTypeRole::subheadline, words, 1, environment) },
            },
        .back = plate,
    };
}

View ActionRing::body(const Environment&) const
{
    return FocusRing { true, Capsule {}, Shape { Capsule {}, nothing } };
}

}

#include "OrvelWidgetsUI/Drawn/ControlStandIn.h"

#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensType.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetSymbol.h"
#include "OrvelWidgetsUI/Drawn/WordsLocale.h"

namespace orvel {

namespace {

constexpr int regular = 400, medium = 500, semibold = 600;

Paint paint(const OrvelColor& color, const Environment& environment)
{
    return Color { color.resolve(environment) };
}

TextStyle style(const TypeSpecValue& spec, int weight)
{
    return { .size = spec.size, .lineHeight = spec.lineHeight, .weight = weight };
}

View roundButton(const ControlContent& content, double side, double symbolSize, const OrvelColor& off,
    const Environment& environment)
{
    const auto ink = paint(content.isOn ? Palette::accentOn : Palette::textPrimary, environment);
    const auto fill = content.isOn ? Paint(Color { ControlContent::tint().rgba(ColorFlags::in(environment)) })
                                   : paint(off, environment);
    return Background {
        .content =
            Frame {
                .width = FrameLength::exactly(side),
                .height = FrameLength::exactly(side),
                .content = symbol(content.symbol, {}, symbolSize, semibold, ink),
            },
        .back = Shape { Ellipse {}, fill },
    };
}

View smallBody(const ControlContent& content, const Environment& environment)
{
    constexpr double circle = 56, symbolSize = 17, labelWidth = 76;
    const Text title {
        .runs = { { content.title, style(Tokens::TypeSpec::macSubheadline, medium) } },
        .paint = paint(Palette::textPrimary, environment),
        .lineLimit = 2,
        .alignment = TextAlignment::center,
        .balanced = true,
    };
    return Frame {
        .width = FrameLength::exactly(100),
        .height = FrameLength::exactly(102),
        .content = VStack {
            .spacing = 6,
            .children = {
                roundButton(content, circle, symbolSize, Palette::surface2, environment),
                Frame { .width = FrameLength::exactly(labelWidth), .content = title },
            },
        },
    };
}

View mediumBody(const ControlContent& content, const Environment& environment)
{
    constexpr double circle = 40, symbolSize = 15, padding = 12, radius = 22;
    const auto text = [&](const std::string& words, const TextStyle& style, const OrvelColor& color) {
        return Text {
            .runs = { { words, style } }, .paint = paint(color, environment), .lineLimit = 2, .balanced = true
        };
    };
    const View row = HStack {
        .spacing = 10,
        .children = {
            roundButton(content, circle, symbolSize, Palette::line, environment),
            VStack {
                .alignment = HorizontalAlignment::leading,
                .spacing = 1,
                .children = {
                    text(content.title, style(Tokens::TypeSpec::macHeadline, semibold), Palette::textPrimary),
                    text(content.value, style(Tokens::TypeSpec::macSubheadline, regular), Palette::textSecondary),
                },
            },
        },
    };
    return Background {
        .content =
            Frame {
                .width = FrameLength::exactly(168),
                .height = FrameLength::exactly(76),
                .alignment = Alignment::leading,
                .content = Padding { .insets = Insets::sides(padding, 0), .content = row },
            },
        .back = Shape { RoundedRectangle { radius }, paint(Palette::surface2, environment) },
    };
}

View barBody(const ControlContent& content, const Environment& environment)
{
    constexpr double symbolSize = 13, padding = 6;
    const auto ink = paint(Palette::textPrimary, environment);
    auto digits = style(Tokens::TypeSpec::macHeadline, semibold);
    digits.tabularDigits = true;
    View text;
    if (content.barText)
        text = Text { .runs = { { *content.barText, digits } }, .paint = ink, .lineLimit = 1 };
    return Frame {
        .height = FrameLength::exactly(22),
        .content =
            Padding {
                .insets = Insets::sides(padding, 0),
                .content = HStack { .spacing = 4,
                    .children = { symbol(content.symbol, {}, symbolSize, semibold, ink), text } },
            },
    };
}

View picture(const ControlStandIn& control, const Environment& environment)
{
    switch (control.size) {
    case ControlStandIn::Size::small:
        return smallBody(control.content, environment);
    case ControlStandIn::Size::medium:
        return mediumBody(control.content, environment);
    case ControlStandIn::Size::bar:
        return barBody(control.content, environment);
    }
    return {};
}

}

View ControlStandIn::body(const Environment& environment) const
{
    return Element {
        .role = ElementRole::button,
        .label = content.title + " · " + content.spokenState.value_or(content.value),
        .content = With { .changes = withTextLanguage({}, environment), .content = picture(*this, environment) },
    };
}

}

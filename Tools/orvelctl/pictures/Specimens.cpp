#include "Tools/orvelctl/pictures/Specimens.h"

#include <algorithm>
#include <fmt/format.h>

#include "OrvelDesign/Drawn/OrvelFont.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/Palette.h"
#include "OrvelDesign/TokensSpace.h"
#include "OrvelPlatform/Views/Canvas.h"
#include "OrvelPlatform/Views/Primitives.h"

namespace orvelctl {

using namespace orvel;

namespace {

View caption(const std::string& text, bool isName, const Environment& environment)
{
    const auto& color = isName ? Palette::textPrimary : Palette::textSecondary;
    return Text {
        .runs = { { text, OrvelFont { MacTypeRole::subheadline }.style(environment) } },
        .paint = Color(color.resolve(environment)),
        .lineLimit = 1,
    };
}

}

View Specimen::body(const Environment& environment) const
{
    std::vector<View> column;
    column.push_back(Frame {
        .width = FrameLength::exactly(size.width),
        .height = FrameLength::exactly(size.height),
        .content = content,
    });
    for (std::size_t i = 0; i < lines.size(); ++i)
        column.push_back(caption(lines[i], i == 0, environment));
    return VStack { .alignment = HorizontalAlignment::leading, .spacing = Tokens::Space::s1, .children = column };
}

View grid(const std::vector<View>& views, std::size_t columns)
{
    std::vector<View> rows;
    for (std::size_t start = 0; start < views.size(); start += columns) {
        const auto end = std::min(start + columns, views.size());
        rows.push_back(HStack {
            .alignment = VerticalAlignment::top,
            .spacing = Tokens::Space::s6,
            .children = { views.begin() + static_cast<std::ptrdiff_t>(start),
                views.begin() + static_cast<std::ptrdiff_t>(end) },
        });
    }
    return VStack { .alignment = HorizontalAlignment::leading, .spacing = Tokens::Space::s5, .children = rows };
}

View SpecimenSheet::body(const Environment& environment) const
{
    return Background {
        .content = Padding { .insets = Insets::all(Tokens::Space::s6), .content = content },
        .back = Shape { RoundedRectangle { Tokens::Radius::lg }, Color(Palette::bg.resolve(environment)) },
    };
}

void addInBoth(GalleryPage& page, const std::string& name, const Environment& base,
    const std::function<View(const Environment&)>& content)
{
    for (const auto scheme : { ColorScheme::dark, ColorScheme::light }) {
        const auto environment = base.with<ColorSchemeKey>(scheme);
        const auto appearance = scheme == ColorScheme::dark ? "dusk" : "dawn";
        const View sheet = SpecimenSheet { content(environment) };
        page.add(fmt::format("{}-{}", name, appearance), appearance, { sheet, page.sizeOf(sheet, environment) },
            environment);
    }
}

Extent GlyphPixels::measure(const Proposal&, const Environment&) const
{
    return Size { bitmap.side * cell, bitmap.side * cell };
}

void GlyphPixels::draw(Canvas& canvas, const Rect& in, const Environment& environment) const
{
    const Color ink = Palette::textPrimary.resolve(environment);
    for (int y = 0; y < bitmap.side; ++y) {
        for (int x = 0; x < bitmap.side; ++x) {
            if (const auto alpha = bitmap.at(x, y); alpha > 0)
                canvas.fill(Rectangle {}, { in.x + x * cell, in.y + y * cell, cell, cell }, ink.faded(alpha / 255.0));
        }
    }
}

}

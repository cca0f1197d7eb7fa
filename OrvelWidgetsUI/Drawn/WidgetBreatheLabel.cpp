#include "OrvelWidgetsUI/Drawn/WidgetBreatheLabel.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/ControlContent.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"

namespace orvel {

namespace {

struct Measures {
    double spacing, icon, leading, trailing, height;
    WidgetType type;
};

constexpr Measures largeMeasures { 8, 20, 7, 14, 32, WidgetType::buttonLarge };
constexpr Measures mediumMeasures { 7, 18, 6, 12, 28, WidgetType::button };

}

View WidgetBreatheLabel::body(const Environment& environment) const
{
    constexpr int iconWeight = 400; // two rings in one square look heavier than the letters beside them
    const auto& measures = large ? largeMeasures : mediumMeasures;
    const WidgetColors colors { look };
    const auto ink = paint(colors.accentOn(), look, environment);
    const View row = HStack {
        .spacing = measures.spacing,
        .children = {
            Icon {
                .name = std::string(ControlContent::breatheSymbol),
                .fallback = {},
                .size = measures.icon,
                .weight = iconWeight,
                .paint = ink,
            },
            lineOfText(text, textStyle(measures.type), ink),
        },
    };
    const View inside = Padding {
        .insets = { .leading = measures.leading, .trailing = measures.trailing },
        .content = row,
    };
    const View capsule = Background {
        .content = Frame { .height = FrameLength::exactly(measures.height), .content = inside },
        .back = Shape { Capsule {}, paint(colors.accentFill(), look, environment) },
    };
    return Element { .role = ElementRole::button, .label = text, .content = Accentable { capsule } };
}

}

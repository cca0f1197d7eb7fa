#include "OrvelWidgetsUI/Drawn/SmallWidget.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/PartedText.h"
#include "OrvelWidgetsUI/Drawn/WidgetFrame.h"
#include "OrvelWidgetsUI/Drawn/WidgetKicker.h"
#include "OrvelWidgetsUI/Drawn/WidgetOrbWithPool.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetRing.h"

namespace orvel {

namespace {

View orbBlock(const SmallWidget& widget)
{
    const auto& content = widget.content;
    if (content.showsRing && content.progress)
        return WidgetRing { .progress = *content.progress, .look = widget.look };
    if (content.state == WidgetContent::State::breathe)
        return WidgetOrbWithPool { .box = 120, .size = 56, .look = widget.look };
    return WidgetOrbWithPool { .box = 104, .size = 40, .look = widget.look };
}

/// The orb stands at the corner of the text; the box of its light overhangs all round.
View slot(const SmallWidget& widget)
{
    const bool isBreathe = widget.content.state == WidgetContent::State::breathe;
    const auto side = FrameLength::exactly(isBreathe ? 56 : 40);
    return Frame { .width = side, .height = side, .content = orbBlock(widget) };
}

View texts(const SmallWidget& widget, const Environment& environment)
{
    const auto& [content, look] = widget;
    const WidgetColors colors { look };
    const auto title = paint(colors.title(), look, environment);
    const auto detail = paint(colors.detail(), look, environment);
    return VStack {
        .alignment = HorizontalAlignment::leading,
        .spacing = 2,
        .children = {
            content.kicker ? View(WidgetKicker { *content.kicker, look }) : View(),
            PartedText { .words = content.smallTitle, .type = WidgetType::smallTitle, .paint = title },
            PartedText { .words = content.smallDetail, .type = WidgetType::detail, .paint = detail },
        },
    };
}

}

View SmallWidget::body(const Environment& environment) const
{
    return WidgetFrame {
        .size = WidgetSize::small,
        .sentence = content.sentence,
        .content =
            Frame {
                .width = FrameLength::filling(),
                .height = FrameLength::filling(),
                .alignment = Alignment::topLeading,
                .content =
                    VStack {
                        .alignment = HorizontalAlignment::leading,
                        .children = { slot(*this), Spacer {}, Priority { 1, texts(*this, environment) } },
                    },
            },
    };
}

}

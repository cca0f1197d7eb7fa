#include "OrvelWidgetsUI/Drawn/WidgetHeader.h"

#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelWidgetsUI/Drawn/WidgetKicker.h"
#include "OrvelWidgetsUI/Drawn/WidgetPaint.h"
#include "OrvelWidgetsUI/Drawn/WidgetSymbol.h"

namespace orvel {

namespace {

std::string defaultSymbol(WidgetContent::State state)
{
    switch (state) {
    case WidgetContent::State::now:
        return "shield";
    case WidgetContent::State::focus:
        return "timer";
    case WidgetContent::State::paused:
        return "pause";
    case WidgetContent::State::breathe:
        return "circle.circle";
    case WidgetContent::State::next:
    case WidgetContent::State::none:
        return "moon";
    }
    return "moon";
}

View disc(const WidgetHeader& header, const Environment& environment)
{
    constexpr double side = 24, symbolSize = 12;
    constexpr int semibold = 600;
    const WidgetColors colors { header.look };
    const auto tone = toneOrLavender(header.tone);
    return Frame {
        .width = FrameLength::exactly(side),
        .height = FrameLength::exactly(side),
        .content =
            Background {
                .content =
                    Frame {
                        .width = FrameLength::filling(),
                        .height = FrameLength::filling(),
                        .content = symbol(header.symbol, defaultSymbol(header.state), symbolSize, semibold,
                            paint(colors.headerSymbol(tone), header.look, environment)),
                    },
                .back = Shape { Ellipse {}, paint(colors.headerDisc(tone), header.look, environment) },
            },
    };
}

}

WidgetHeader::WidgetHeader(const WidgetContent& content, WidgetLook itsLook)
    : state(content.state), symbol(content.symbol), tone(content.tone), kicker(content.kicker), look(itsLook)
{
}

View WidgetHeader::body(const Environment& environment) const
{
    return HStack {
        .spacing = 8,
        .children = {
            Hidden { Accentable { disc(*this, environment) } },
            kicker.transform([&](const std::string& words) { return WidgetKicker { words, look }; }),
        },
    };
}

}

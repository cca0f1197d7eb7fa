#include <algorithm>
#include <cmath>
#include <memory>

#include "OrvelCopy/Format.h"
#include "OrvelDesign/DesignBundle.h"
#include "OrvelPlatform/Views/Primitives.h"
#include "OrvelPlatform/Views/RecordingCanvas.h"
#include "OrvelWidgets/OrvelProvider.h"
#include "OrvelWidgetsUI/Drawn/WidgetText.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/calls/Request.h"
#include "Tools/orvelctl/pictures/Commands.h"
#include "Tools/orvelctl/pictures/Drawing.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    Request request;
    WidgetSize size = WidgetSize::medium;
    WidgetLook look = WidgetLook::dusk;
    PictureFile file;
};

/// A picture, and from when until when it is to be seen.
struct Shown {
    SizedView picture;
    std::string marks; // tell pictures apart
    std::vector<std::pair<Date, Date>> spans;
};

/// The instants of a day at which something shown changes, for a host that asks anew at each of them.
std::vector<Date> changes(const Situation& situation, Date start, Date end)
{
    std::vector<Date> all;
    for (auto from = start; from < end;) {
        all.push_back(from);
        const auto dates =
            situation.found.snapshot.timelineDates(from, situation.calendar, OrvelProvider::countdownSpan, 2);
        from = dates.size() > 1 ? dates[1] : end;
    }
    return all;
}

std::string marksOf(const SizedView& picture, const Environment& environment)
{
    RecordingCanvas canvas;
    orvel::draw(Hidden { picture.view }, canvas, { {}, picture.size }, environment);
    return canvas.text();
}

std::vector<Shown> distinctPictures(
    const Call& call, const Situation& situation, const Environment& environment, Date start, Date end)
{
    std::vector<Shown> all;
    const auto dates = changes(situation, start, end);
    for (std::size_t i = 0; i < dates.size(); ++i) {
        const auto moment = situation.found.snapshot.moment(dates[i], situation.calendar);
        const auto content = WidgetContent::status(moment, situation.locale, situation.calendar);
        const auto picture = widgetPicture(content, call.size, call.look);
        auto marks = marksOf(picture, environment);
        const auto until = i + 1 < dates.size() ? dates[i + 1] : end;
        auto shown = std::ranges::find(all, marks, &Shown::marks);
        if (shown == all.end())
            shown = all.insert(all.end(), { picture, std::move(marks), {} });
        if (!shown->spans.empty() && shown->spans.back().second == dates[i])
            shown->spans.back().second = until;
        else
            shown->spans.emplace_back(dates[i], until);
    }
    return all;
}

std::string caption(const Shown& shown, const Situation& situation)
{
    std::string text;
    for (const auto& [from, until] : shown.spans) {
        const auto time = [&](Date date) {
            return Format::time(date, situation.locale, situation.calendar.timeZone());
        };
        text += (text.empty() ? "" : ", ") + time(from);
        if (until - from > std::chrono::minutes { 1 })
            text += " – " + time(until);
    }
    return text;
}

constexpr double gap = 24, captionHeight = 32;

View cell(const Shown& shown, const Situation& situation)
{
    const auto& size = shown.picture.size;
    Text times = lineOfText(caption(shown, situation), textStyle(WidgetType::detail), Color { 1, 1, 1 });
    times.lineLimit = 2;
    return VStack {
        .spacing = 4,
        .children = {
            Frame {
                .width = FrameLength::exactly(size.width),
                .height = FrameLength::exactly(size.height),
                .content = shown.picture.view,
            },
            Frame {
                .width = FrameLength::exactly(size.width),
                .height = FrameLength::exactly(captionHeight),
                .alignment = Alignment::top,
                .content = times,
            },
        },
    };
}

/// Rows of pictures, about as wide as it is high.
SizedView contactSheet(const std::vector<Shown>& pictures, const Situation& situation, const Environment& environment)
{
    const auto& size = pictures.front().picture.size;
    const double across = size.width + gap, down = size.height + captionHeight + gap;
    const auto count = static_cast<double>(pictures.size());
    const auto columns = static_cast<std::size_t>(std::ceil(std::sqrt(count * down / across)));
    std::vector<View> rows;
    for (std::size_t start = 0; start < pictures.size(); start += columns) {
        std::vector<View> row;
        for (auto i = start; i < std::min(start + columns, pictures.size()); ++i)
            row.push_back(cell(pictures[i], situation));
        rows.push_back(HStack { .spacing = gap, .children = std::move(row) });
    }
    View sheet = Padding {
        .insets = Insets::all(gap),
        .content = VStack { .alignment = HorizontalAlignment::leading, .spacing = gap, .children = std::move(rows) },
    };
    const auto extent = measure(sheet, Proposal::ideal, environment);
    constexpr Color desk { 0.38, 0.42, 0.5 };
    const View back = Frame {
        .width = FrameLength::exactly(extent.size.width + 1), // the last pixel too, where the sides are no whole ones
        .height = FrameLength::exactly(extent.size.height + 1),
        .content = Shape { Rectangle {}, desk },
    };
    return { Background { sheet, back, Alignment::topLeading }, extent.size };
}

/// As fine as a picture may be, at most two pixels in a point.
double scaleFor(Size size)
{
    constexpr double finest = 2, bytesInPixel = 4;
    constexpr double rounding = 0.999; // sides are rounded up
    const double fits = Picture::longestSide / std::max(size.width, size.height);
    const double allowed = std::sqrt(Picture::mostBytes / (size.width * size.height * bytesInPixel));
    return std::min({ finest, rounding * fits, rounding * allowed });
}

Exit drawDay(const Call& call)
{
    return withSituation(call.request, [&](const Situation& situation) {
        Renderer renderer(designBundle(), FontScope::ownProcess);
        const auto environment = renderer.environment(wordsEnvironment(call.request.locale));
        const auto start = situation.calendar.startOfDay(situation.now);
        const auto end = situation.calendar.addingDays(1, start).value_or(start + std::chrono::hours { 24 });
        const auto pictures = distinctPictures(call, situation, environment, start, end);
        const auto sheet = contactSheet(pictures, situation, environment);
        return draw(renderer, sheet, scaleFor(sheet.size), environment, call.file);
    });
}

}

void addDayCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("day", "A contact sheet: every distinct picture of a day, its times below");
    const auto call = std::make_shared<Call>();
    addSizeAndLook(
        command, [call](WidgetSize size) { call->size = size; }, [call](WidgetLook look) { call->look = look; });
    call->request.addOptions(command, "--at");
    command->remove_option(command->get_option("--json"));
    addPictureFileOption(command, call->file, PictureFormats::pngAndSvg, "--out");
    runs(command, action, [call] { return drawDay(*call); });
}

}

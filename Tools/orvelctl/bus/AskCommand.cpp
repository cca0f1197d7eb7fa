#include <filesystem>
#include <fmt/format.h>
#include <memory>
#include <system_error>

#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"
#include "Tools/orvelctl/bus/Commands.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    HostEnvironment environment;
    std::string folder; // empty: no pictures
};

std::string text(Date date)
{
    return iso8601WithFraction(date).value_or("a date beyond the calendar");
}

/// A host for one round of questions: asks everything that there is to ask, and tells each answer.
class Round {
public:
    Round(const EventLoop& loop, Call call) : m_host(loop), m_call(std::move(call)) { }

    Task<Exit> ask()
    {
        auto asking = m_host.members(m_call.environment);
        const auto members = co_await asking;
        if (!members)
            co_return fail(members.error());
        for (const auto& member : *members) {
            tell(fmt::format("{} “{}”: {}", rawValue(member.role), member.displayName, member.description));
            tell("  " + member.kind);
            auto showing = member.role == ExtensionMember::Role::widget ? widget(member) : control(member);
            const auto asked = co_await showing;
            if (asked != Exit::done)
                co_return asked;
        }
        co_return m_exit;
    }

private:
    Task<Exit> widget(ExtensionMember member)
    {
        auto asking = m_host.timeline(member.kind, m_call.environment);
        const auto timeline = co_await asking;
        if (!timeline)
            co_return fail(timeline.error());
        tell(fmt::format("  timeline: {} entries with {} moments from {}, reload after {}", timeline->entries.size(),
            timeline->moments.size(), text(timeline->entries.front().date), text(timeline->reload)));
        const auto& first = timeline->entries.front();
        for (const auto& family : member.families) {
            auto drawing = picture(member.kind, family, { first.date, timeline->moments[first.moment] });
            const auto shown = co_await drawing;
            if (shown != Exit::done)
                co_return shown;
        }
        co_return Exit::done;
    }

    Task<Exit> picture(std::string kind, std::string family, ExtensionEntry entry)
    {
        auto environment = m_call.environment;
        environment.family = family;
        environment.format = PictureFormat::png;
        auto drawing = m_host.render(kind, std::move(entry), environment);
        const auto picture = co_await drawing;
        if (!picture)
            co_return fail(picture.error());
        tell(fmt::format("  {}: {} × {} pixels, opens {}", family, picture->width, picture->height, picture->link));
        for (const auto& element : picture->elements)
            tell(fmt::format("    says “{}”", element.label));
        for (const auto& action : picture->actions)
            tell(fmt::format("    button “{}”: {}", action.label, action.intent));
        if (m_call.folder.empty())
            co_return Exit::done;
        const auto& layer = std::get<ExtensionPicture::Png>(picture->layers.front().content);
        const auto name = kind.substr(kind.rfind('.') + 1) + "-" + family + ".png";
        const auto written = replaceFile(std::filesystem::path(m_call.folder) / name, layer.bytes);
        co_return written ? Exit::done : orvelctl::fail(printable(written.error().text()));
    }

    Task<Exit> control(ExtensionMember member)
    {
        auto asking = m_host.controlValue(member.kind, m_call.environment);
        const auto value = co_await asking;
        if (!value)
            co_return fail(value.error());
        const auto state = value->isOn ? *value->isOn ? "[x] " : "[ ] " : "( ) ";
        tell(fmt::format("  {}{} · {}{}", state, value->title, value->value,
            value->changes ? ", changes at " + text(*value->changes) : ""));
        co_return Exit::done;
    }

    Exit fail(const RequestFault& fault) { return orvelctl::fail(printable(fault.sentence)); }
    void tell(const std::string& line)
    {
        if (const auto told = print(printable(line) + "\n"); told != Exit::done)
            m_exit = told;
    }

    WidgetRequester m_host;
    Call m_call;
    Exit m_exit = Exit::done;
};

Exit ask(const Call& call)
{
    std::error_code error;
    if (!call.folder.empty() && !std::filesystem::create_directories(call.folder, error) && error)
        return fail(printable(call.folder + ": " + error.message()));
    EventLoop loop;
    Round round(loop, call);
    auto exit = Exit::no;
    start(round.ask(), [&](const TaskOutcome<Exit>& outcome) {
        exit = outcome.value_or(Exit::no);
        loop.quit();
    }).detach();
    loop.run();
    return exit;
}

}

void addAskCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("ask", "Ask the extension on the bus everything that a host asks");
    const auto call = std::make_shared<Call>();
    addTimeZoneOption(command, call->environment.timeZone);
    addLocaleOption(command, call->environment.locale);
    command->add_option("--out", call->folder, "Where the pictures go; without it there are none")->type_name("FOLDER");
    runs(command, action, [call] {
        if (call->environment.locale)
            call->environment.language = call->environment.locale->identifier();
        call->environment.scale = 2;
        return ask(*call);
    });
}

}

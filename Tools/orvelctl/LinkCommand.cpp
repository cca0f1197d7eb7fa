#include <array>
#include <fmt/format.h>
#include <memory>

#include "OrvelPlatform/Base/JsonEncoding.h"
#include "OrvelShared/OrvelLink.h"
#include "Tools/orvelctl/Commands.h"

namespace orvelctl {

/// A link as a tool prints it.
struct LinkReport {
    std::string name;
    std::optional<std::int64_t> minutes;
    std::optional<std::string> style;
};

}

template <>
struct orvel::JsonForm<orvelctl::LinkReport> {
    using LinkReport = orvelctl::LinkReport;
    static constexpr auto fields = std::tuple {
        JsonField { "case", &LinkReport::name },
        JsonField { "minutes", &LinkReport::minutes },
        JsonField { "style", &LinkReport::style },
    };
};

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    std::string url;
    std::string name;
    std::optional<std::string> style;
    std::optional<std::int64_t> minutes;
    std::optional<std::string> scheme;
    bool isJson = false;
};

Exit parse(const Call& call)
{
    const auto link = OrvelLink::fromURL({ call.url });
    LinkReport report { .name = std::string(link.name()), .minutes = std::nullopt, .style = std::nullopt };
    if (const auto* breathe = std::get_if<OrvelLink::Breathe>(&link)) {
        report.minutes = breathe->minutes;
        report.style = breathe->style;
    }
    if (call.isJson) {
        const auto json = encodeJson(report, JsonAudience::tool);
        return json ? print(*json + "\n") : fail(json.error().text());
    }
    auto text = fmt::format("case     {}\n", report.name);
    if (report.style)
        text += fmt::format("style    {}\n", printable(*report.style));
    if (report.minutes)
        text += fmt::format("minutes  {}\n", *report.minutes);
    return print(text);
}

Exit make(const Call& call)
{
    // A URL of any scheme names the case by its host, so reading one is the way to make one.
    auto link = OrvelLink::fromURL({ "orvel://" + call.name });
    if (auto* breathe = std::get_if<OrvelLink::Breathe>(&link))
        *breathe = { .style = call.style, .minutes = call.minutes };
    else if (call.style || call.minutes)
        return fail("--style and --minutes go with breathe only", Exit::wrongCall);
    const auto url = call.scheme ? link.url(*call.scheme) : link.url();
    if (!call.isJson)
        return print(url.text + "\n");
    const auto json = encodeJson(url.text);
    return json ? print(*json + "\n") : fail(json.error().text());
}

}

void addLinkCommand(CLI::App& app, Action& action)
{
    auto* link = app.add_subcommand("link", "Deep links into the application");
    link->require_subcommand(0, 1);
    const auto call = std::make_shared<Call>();

    auto* parsing = link->add_subcommand("parse", "What a URL means");
    parsing->add_option("url", call->url, "Any URL")->required()->type_name("URL");
    parsing->add_flag("--json", call->isJson, "Write JSON");
    runs(parsing, action, [call] { return parse(*call); });

    auto* making = link->add_subcommand("make", "The URL of a place in the application");
    making->add_option("case", call->name, "breathe, focus, today, settings or main")
        ->required()
        ->type_name("CASE")
        ->check(CLI::IsMember({ "breathe", "focus", "today", "settings", "main" }));
    making->add_option("--style", call->style, "The breath's style")->type_name("STYLE");
    making->add_option("--minutes", call->minutes, "The breath's length")->type_name("MINUTES");
    making->add_option("--scheme", call->scheme, "The URL's scheme; without it this installation's")
        ->type_name("SCHEME");
    making->add_flag("--json", call->isJson, "Write JSON");
    runs(making, action, [call] { return make(*call); });
}

}

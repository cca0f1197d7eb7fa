#include <memory>

#include "Tools/orvelctl/Commands.h"
#include "Tools/orvelctl/exports/MetricsExport.h"
#include "Tools/orvelctl/exports/TokensExport.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct Call {
    std::string format = "json";
    int bigger = 0;
    std::optional<double> scale;
    bool isJson = false;
};

}

void addTokensCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("tokens", "The design system's values, for designers and other programs");
    const auto call = std::make_shared<Call>();
    command->add_option("--format", call->format, "json (design tokens) or css (custom properties)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({ "json", "css" }));
    command->add_flag("--json", call->isJson, "The same as --format json");
    runs(command, action,
        [call] { return print(call->format == "css" && !call->isJson ? tokensAsCss() : tokensAsJson()); });
}

void addMetricsCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("metrics", "Sizes and line heights of every type role");
    const auto call = std::make_shared<Call>();
    command->add_option("--bigger", call->bigger, "The application's bigger text, in steps")
        ->type_name("STEPS")
        ->check(CLI::Range(0, BiggerText::maxSteps));
    command->add_option("--scale", call->scale, "The system's text scale; without it what is preferred here")
        ->type_name("SCALE")
        ->check(CLI::Range(0.5, 3.0));
    command->add_flag("--json", call->isJson, "Write JSON");
    runs(command, action, [call] {
        const BiggerText bigger(call->bigger);
        return print(call->isJson ? metricsAsJson(bigger, call->scale) : metricsAsTable(bigger, call->scale));
    });
}

}

#include "OrvelWidgets/MemberAnswers.h"

#include <utility>

#include "OrvelPlatform/Base/Match.h"
#include "OrvelWidgets/OrvelWidgets.h"

namespace orvel {

namespace {

using Role = ExtensionMember::Role;

ExtensionIntent::Type type(IntentParameter::Type type)
{
    switch (type) {
    case IntentParameter::Type::text:
        return ExtensionIntent::Type::text;
    case IntentParameter::Type::integer:
        return ExtensionIntent::Type::integer;
    case IntentParameter::Type::truth:
        return ExtensionIntent::Type::truth;
    }
    return ExtensionIntent::Type::text;
}

ExtensionIntent intent(IntentMetadata metadata)
{
    ExtensionIntent intent { .name = std::string(metadata.name), .title = std::move(metadata.title), .parameters = {} };
    for (auto& parameter : metadata.parameters) {
        intent.parameters.push_back({ .name = std::string(parameter.name),
            .title = std::move(parameter.title),
            .type = type(parameter.type),
            .isOptional = parameter.isOptional });
    }
    return intent;
}

ExtensionMember widget(WidgetConfiguration configuration, std::vector<ExtensionIntent> intents)
{
    return {
        .kind = std::string(configuration.kind),
        .role = Role::widget,
        .displayName = std::move(configuration.displayName),
        .description = std::move(configuration.description),
        .families = { configuration.families.begin(), configuration.families.end() },
        .intents = std::move(intents),
    };
}

ExtensionMember control(ControlConfiguration configuration, Role role, IntentMetadata action)
{
    return {
        .kind = std::string(configuration.kind),
        .role = role,
        .displayName = std::move(configuration.displayName),
        .description = std::move(configuration.description),
        .families = {},
        .intents = { intent(std::move(action)) },
    };
}

ExtensionMember extensionMember(const OrvelWidgets::Member& member)
{
    return std::visit(
        Match {
            [](StatusWidget) {
                return widget(StatusWidget::configuration(), { intent(OpenBreatheIntent::metadata()) });
            },
            [](BreatheWidget) { return widget(BreatheWidget::configuration(), {}); },
            [](BreatheNowControl) {
                return control(BreatheNowControl::configuration(), Role::button, OpenBreatheIntent::metadata());
            },
            [](FocusNowControl) {
                return control(FocusNowControl::configuration(), Role::toggle, FocusNowControlIntent::metadata());
            },
        },
        member);
}

}

std::vector<ExtensionMember> extensionMembers()
{
    std::vector<ExtensionMember> members;
    for (const auto& member : OrvelWidgets::body)
        members.push_back(extensionMember(member));
    return members;
}

}

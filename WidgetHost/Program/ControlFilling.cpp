#include "WidgetHost/Program/ControlFilling.h"

#include <algorithm>

#include "WidgetHost/Program/SurroundingStyle.h"
#include "WidgetHost/Tray/TrayGlyph.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

namespace {

constexpr std::string_view controlPrefix = "control "; // kinds are any text

std::string titleOf(const ShownControl& control)
{
    return control.value ? control.value->title : control.member.displayName;
}

bool isToggle(const ShownControl& control)
{
    return control.member.role == ExtensionMember::Role::toggle;
}

ControlFace face(const ShownControl& control)
{
    ControlFace face {
        .kind = control.member.kind,
        .isToggle = isToggle(control),
        .title = titleOf(control),
        .value = {},
        .isOn = control.isOn(),
        .isWaiting = control.askedFor.has_value(),
        .isEnabled = control.value.has_value(),
    };
    if (const auto& value = control.value) {
        face.value = value->value;
        face.icon = value->icon;
        face.tint = value->tint;
        face.spokenState = value->spokenState;
    }
    return face;
}

TrayEntry line(const ShownControl& control)
{
    return {
        .id = std::string(controlPrefix) + control.member.kind,
        .label = titleOf(control),
        .isChecked = isToggle(control) ? std::optional(control.isOn()) : std::nullopt,
        .isEnabled = control.value.has_value(),
    };
}

/// The value that the glyph shows; null while there is none.
const ControlValue* glyphValue(const std::vector<ShownControl>& controls)
{
    const auto found = std::ranges::find_if(
        controls, [](const ShownControl& control) { return control.value && control.value->glyph; });
    return found == controls.end() ? nullptr : &*found->value;
}

}

PanelContent panelContent(
    const ShownControls& shown, const Surroundings& around, const std::optional<std::string>& trouble)
{
    const HostWords words(around.home.language);
    PanelContent content;
    for (const auto& control : shown.controls)
        content.controls.push_back(face(control));
    content.notice = shown.isReachable ? trouble : words.noAnswer();
    content.words = { .title = words.controlsTitle(), .addWidgets = words.addWidgets(), .quit = words.quit() };
    content.style = styleIn(around);
    content.isRightToLeft = words.isRightToLeft();
    return content;
}

TrayContent trayContent(const ShownControls& shown, const Surroundings& around)
{
    const HostWords words(around.home.language);
    const auto* value = glyphValue(shown.controls);
    TrayContent content {
        .glyph = trayGlyph(value ? std::optional(*value) : std::nullopt, shown.isReachable),
        .foreground = trayForeground(around.appearance),
        .title = words.galleryTitle(),
        .toolTipTitle = value ? value->title : words.galleryTitle(),
        .toolTipText = {},
        .menu = {},
        .isRightToLeft = words.isRightToLeft(),
    };
    if (!shown.isReachable)
        content.toolTipText = words.noAnswer();
    else if (value)
        content.toolTipText = value->value;
    for (const auto& control : shown.controls)
        content.menu.push_back(line(control));
    if (!content.menu.empty())
        content.menu.push_back({});
    content.menu.push_back({ .id = TrayLine::gallery, .label = words.addWidgets() });
    content.menu.push_back({ .id = TrayLine::quit, .label = words.quit() });
    return content;
}

std::optional<std::string> controlOfLine(const std::string& id)
{
    if (!id.starts_with(controlPrefix))
        return std::nullopt;
    return id.substr(controlPrefix.size());
}

}

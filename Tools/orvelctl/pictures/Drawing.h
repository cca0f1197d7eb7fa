#pragma once

#include <functional>
#include <optional>

#include "OrvelPlatform/Drawing/Renderer.h"
#include "OrvelWidgetsUI/WidgetContent.h"
#include "OrvelWidgetsUI/WidgetLook.h"
#include "OrvelWidgetsUI/WidgetSize.h"
#include "Tools/orvelctl/calls/Command.h"
#include "Tools/orvelctl/pictures/PictureFile.h"

namespace orvelctl {

/// An option whose values are the cases of an enumeration.
template <typename Enum>
void addCaseOption(CLI::App* command, const std::string& name, std::string_view type, const std::string& what,
    std::function<void(Enum)> set)
{
    const auto& cases = orvel::rawValues<Enum>;
    const auto setCase = [set = std::move(set)](const std::string& text) { set(*orvel::fromRawValue<Enum>(text)); };
    command->add_option_function<std::string>(name, setCase, what)
        ->type_name(std::string(type))
        ->check(CLI::IsMember(std::vector<std::string>(cases.begin(), cases.end())));
}

/// `--size` and `--look` of a widget; without them they are left as they are.
void addSizeAndLook(
    CLI::App* command, std::function<void(orvel::WidgetSize)> setSize, std::function<void(orvel::WidgetLook)> setLook);

/// A view with the size that it is drawn in, in points.
struct SizedView {
    orvel::View view;
    orvel::Size size;
};

/// A widget as a desktop shows it: with its background and round corners. A content of the breathe widget is small.
SizedView widgetPicture(const orvel::WidgetContent& content, orvel::WidgetSize size, orvel::WidgetLook look);

/// Frames round all that is drawn and all that is read aloud or acts, on top of it.
orvel::View outlined(orvel::View content);

/// The environment of words in a locale: its capitals, and the direction of the words that there are in it.
orvel::Environment wordsEnvironment(const std::optional<orvel::Locale>& locale);

/// Draws with as many pixels in a point and writes the file.
Exit draw(orvel::Renderer& renderer, const SizedView& view, double scale, const orvel::Environment& environment,
    const PictureFile& file);

}

#include <array>
#include <cmath>
#include <cstdint>
#include <fmt/format.h>
#include <memory>
#include <utility>

#include "OrvelDesign/DesignBundle.h"
#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelDesign/Drawn/Orb.h"
#include "OrvelDesign/Drawn/OrbPool.h"
#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelDesign/OrbSize.h"
#include "OrvelPlatform/Drawing/Renderer.h"
#include "OrvelPlatform/Views/Frame.h"
#include "Tools/orvelctl/pictures/Commands.h"
#include "Tools/orvelctl/pictures/PictureFile.h"

namespace orvelctl {

namespace {

using namespace orvel;

struct GlyphCall {
    std::string state;
    std::optional<double> value;
    int scale = 2;
    PictureFile file;
};

struct OrbCall {
    std::optional<BreathMotion> motion;
    double progress = 0;
    double size = OrbSize::breathePlayer;
    double scale = 2;
    ColorScheme appearance = ColorScheme::dark;
    PictureFile file;
};

/// Adds an option with an enumeration's cases as its values.
template <typename Take>
void addChoice(CLI::App* command, const std::string& name, const std::vector<std::string>& choices, const Take& take,
    std::string what)
{
    command->add_option_function<std::string>(name, take, std::move(what))->check(CLI::IsMember(choices));
}

/// The state that a call names; absent where it and the value do not go together.
std::optional<MenuBarOrbState> state(const GlyphCall& call)
{
    if (call.state == "active" && call.value)
        return MenuBarOrb::Active { *call.value };
    if (call.state == "focus" && call.value)
        return MenuBarOrb::Focus { *call.value };
    if (call.state == "idle" && !call.value)
        return MenuBarOrb::Idle {};
    if (call.state == "unlock" && !call.value)
        return MenuBarOrb::Unlock {};
    if (call.state == "fix" && !call.value)
        return MenuBarOrb::Fix {};
    return std::nullopt;
}

std::expected<std::string, Fault> png(const TemplateBitmap& bitmap)
{
    const auto side = static_cast<std::uint32_t>(bitmap.side);
    Picture picture { .width = side, .height = side, .layers = { { "whole", {} } }, .elements = {}, .actions = {} };
    auto& layer = picture.layers.front();
    for (const std::uint32_t alpha : bitmap.alpha)
        layer.pixels.push_back(alpha << 24U); // black, premultiplied
    return picture.png(std::move(layer));
}

Exit drawGlyph(const GlyphCall& call)
{
    const auto shown = state(call);
    if (!shown)
        return fail(call.value ? fmt::format("{} has no VALUE; active and focus have one", call.state)
                               : fmt::format("{} needs a VALUE from 0 to 1", call.state),
            Exit::wrongCall);
    return call.file.write(png(*MenuBarOrbGlyph::bitmap(*shown, call.scale)));
}

/// As large as the orb with its pool ever is, so that the pictures of one breath lie on each other.
View breathingRoom(const Orb& orb)
{
    const auto side = FrameLength::exactly(std::ceil(orb.size * orbPoolFactor * OrbPose::inhaled.poolScale));
    return Frame { .width = side, .height = side, .content = orb };
}

std::expected<std::string, Fault> drawn(const View& view, double scale, PictureFormat format, const Environment& base)
{
    Renderer renderer(designBundle(), FontScope::ownProcess);
    const auto size = measure(view, Proposal::ideal, base).size;
    if (format == PictureFormat::svg)
        return renderer.svg(view, size, base);
    auto picture = renderer.draw(view, { .size = size, .scale = scale }, base);
    return picture ? picture->png(std::move(picture->layers.front())) : std::unexpected(picture.error());
}

Exit drawOrb(const OrbCall& call)
{
    const Orb orb { call.size, call.motion ? OrbPose::breathing(*call.motion, call.progress) : OrbPose::rest };
    const auto environment = Environment().with<ColorSchemeKey>(call.appearance);
    return call.file.write(drawn(breathingRoom(orb), call.scale, call.file.format, environment));
}

}

void addGlyphCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("glyph", "The menu bar's orb as a template picture");
    const auto call = std::make_shared<GlyphCall>();
    command->add_option("STATE", call->state, "active, focus, idle, unlock or fix")
        ->check(CLI::IsMember({ "active", "focus", "idle", "unlock", "fix" }))
        ->required();
    command->add_option("VALUE", call->value, "How full the breath is, or how much of the Focus is left: 0 to 1")
        ->check(within(0, 1));
    command->add_option("--scale", call->scale, "Pixels in a point; without it 2")
        ->type_name("N")
        ->check(CLI::Range(1, MenuBarOrbGlyph::largestScale));
    addPictureFileOption(command, call->file, PictureFormats::png);
    runs(command, action, [call] { return drawGlyph(*call); });
}

void addOrbCommand(CLI::App& app, Action& action)
{
    auto* command = app.add_subcommand("orb", "The orb at a point of a breath, or at rest");
    const auto call = std::make_shared<OrbCall>();
    const auto names = [](const auto& values) { return std::vector<std::string>(values.begin(), values.end()); };
    addChoice(
        command, "--motion", names(rawValues<BreathMotion>),
        [call](const std::string& name) { call->motion = fromRawValue<BreathMotion>(name); }, "The breath's phase");
    command->add_option("--progress", call->progress, "How far the phase has come")
        ->type_name("P")
        ->check(within(0, 1))
        ->needs("--motion");
    command->add_option("--size", call->size, "The disc's side in points; without it 200")
        ->type_name("POINTS")
        ->check(within(8, OrbSize::roomPlayer));
    command->add_option("--scale", call->scale, "Pixels in a point; without it 2")->type_name("N")->check(within(1, 4));
    addChoice(
        command, "--appearance", { "dusk", "dawn" },
        [call](const std::string& name) { call->appearance = name == "dusk" ? ColorScheme::dark : ColorScheme::light; },
        "Dark or light; without it dusk");
    addPictureFileOption(command, call->file, PictureFormats::pngAndSvg);
    runs(command, action, [call] { return drawOrb(*call); });
}

}

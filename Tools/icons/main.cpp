#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <string>

#include "OrvelDesign/EnvironmentValues.h"
#include "OrvelPlatform/Drawing/Renderer.h"
#include "Tools/icons/AppIcon.h"

/// Writes the application's icon in all its sizes into a folder laid out as the icon theme hicolor.
namespace {

using namespace orvel;

constexpr std::string_view name = "app.orvel.WidgetHost";

bool write(const std::filesystem::path& path, const std::expected<std::string, Fault>& bytes)
{
    if (!bytes) {
        fmt::print(stderr, "{}: {}\n", path.string(), bytes.error().text());
        return false;
    }
    std::error_code error; // a folder that cannot be made shows in the file that cannot be written
    std::filesystem::create_directories(path.parent_path(), error);
    std::ofstream file(path, std::ios::binary);
    file << *bytes << std::flush;
    if (!file)
        fmt::print(stderr, "{}: cannot be written\n", path.string());
    return static_cast<bool>(file);
}

std::expected<std::string, Fault> png(Renderer& renderer, double side, const Environment& environment)
{
    const auto picture = renderer.draw(AppIcon { side }, { .size = { side, side } }, environment);
    return picture ? picture->png(picture->layers.front()) : std::unexpected(picture.error());
}

bool writeTheme(const std::filesystem::path& theme)
{
    Renderer renderer(Bundle::main(), FontScope::ownProcess);
    const auto night = Environment().with<ColorSchemeKey>(ColorScheme::dark);
    bool isWritten = true;
    for (const int side : { 16, 22, 24, 32, 48, 64, 128, 256, 512 })
        isWritten &= write(theme / fmt::format("{0}x{0}/apps/{1}.png", side, name), png(renderer, side, night));
    const auto scalable = renderer.svg(AppIcon { 128 }, { 128, 128 }, night);
    return write(theme / fmt::format("scalable/apps/{}.svg", name), scalable) && isWritten;
}

}

int main(int count, char** arguments)
{
    if (count != 2) {
        fmt::print(stderr, "usage: icons FOLDER\n");
        return 2;
    }
    return writeTheme(arguments[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
}

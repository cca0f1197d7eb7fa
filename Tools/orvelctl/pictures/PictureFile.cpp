#include "Tools/orvelctl/pictures/PictureFile.h"

#include <cerrno>
#include <cstring>
#include <fmt/format.h>
#include <fstream>

namespace orvelctl {

namespace {

PictureFormat formatOf(const std::string& path, PictureFormats formats)
{
    if (path == "-" || path.ends_with(".png"))
        return PictureFormat::png;
    if (formats == PictureFormats::pngAndSvg && path.ends_with(".svg"))
        return PictureFormat::svg;
    throw CLI::ValidationError("The picture's file",
        fmt::format(
            "\"{}\" does not end in {}", printable(path), formats == PictureFormats::png ? ".png" : ".png or .svg"));
}

}

Exit PictureFile::write(const std::expected<std::string, orvel::Fault>& bytes) const
{
    if (!bytes)
        return fail(bytes.error().text());
    if (path == "-")
        return print(*bytes);
    // A picture is like any file that a shell makes: what the user's mask lets others read, they may.
    std::ofstream stream(path, std::ios::binary);
    stream << *bytes << std::flush;
    return stream ? Exit::done : fail(fmt::format("{}: cannot be written: {}", printable(path), std::strerror(errno)));
}

void addPictureFileOption(CLI::App* command, PictureFile& file, PictureFormats formats, const std::string& name)
{
    command
        ->add_option_function<std::string>(
            name,
            [&file, formats](const std::string& path) {
                file = { path, formatOf(path, formats) };
            },
            formats == PictureFormats::png ? "Where the PNG goes; - is standard output"
                                           : "Where the PNG or SVG goes; - is standard output")
        ->type_name("FILE")
        ->required();
}

}

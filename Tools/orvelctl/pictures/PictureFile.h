#pragma once

#include <expected>
#include <string>

#include "Tools/orvelctl/calls/Command.h"

namespace orvelctl {

enum class PictureFormat { png, svg };

/// A required option: where a picture goes, "-" for standard output. Checks that the name ends as one of the formats
/// that the command can make; "-" takes the first of them.
struct PictureFile {
    std::string path;
    PictureFormat format = PictureFormat::png;

    /// The picture's bytes to where they belong; a fault of its making or writing is told.
    Exit write(const std::expected<std::string, orvel::Fault>& bytes) const;
};

enum class PictureFormats { png, pngAndSvg };
void addPictureFileOption(
    CLI::App* command, PictureFile& file, PictureFormats formats, const std::string& name = "-o,--output");

}

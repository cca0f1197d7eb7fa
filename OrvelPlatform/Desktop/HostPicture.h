#pragma once

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "OrvelPlatform/Desktop/SharedPixels.h"
#include "OrvelPlatform/Desktop/WidgetExtension.h"

namespace orvel {

/// A picture as a host gets it: its pixels lie where the extension drew them, for as long as this lives.
struct HostPicture {
    /// "whole", or "default" and "accent" where the host gives the colours.
    struct Layer {
        std::string name;
        std::variant<MappedPixels, ExtensionPicture::Png> content;
    };

    std::uint32_t width; // pixels
    std::uint32_t height;
    std::uint32_t stride; // bytes from row to row
    std::vector<Layer> layers;
    std::string link; // a URL; empty: nothing is opened
    std::vector<PictureElement> elements;
    std::vector<PictureAction> actions;
};

}

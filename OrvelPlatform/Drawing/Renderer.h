#pragma once

#include <expected>
#include <memory>
#include <string>

#include "OrvelPlatform/Base/Bundle.h"
#include "OrvelPlatform/Drawing/FontMaps.h"
#include "OrvelPlatform/Drawing/Picture.h"
#include "OrvelPlatform/Views/View.h"

namespace orvel {

/// Turns views into pictures, with the typefaces, symbols and textures of a bundle. What can be used again (shaped
/// text, gradients, shadows) is kept from picture to picture. For one thread.
class Renderer {
public:
    struct Request {
        Size size; // points
        double scale = 1; // device pixels in a point
        bool isTinted = false; // two layers, for a desktop that gives the colours
    };

    /// The bundle's resources are `Fonts/*.ttf`, `Symbols.txt` and `Textures/*.pgm`; what is missing is not drawn with.
    Renderer(const Bundle& bundle, FontScope scope);
    ~Renderer();

    /// An environment to measure and draw with: a copy with this renderer's text and symbols.
    Environment environment(const Environment& base) const;

    /// A view drawn at its top left corner on a clear ground.
    std::expected<Picture, Fault> draw(const View& view, const Request& request, const Environment& base);

    /// The same as an SVG document, in one layer.
    std::expected<std::string, Fault> svg(const View& view, Size size, const Environment& base);

private:
    struct Resources;
    std::unique_ptr<Resources> m_resources;
};

}

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelPlatform/Views/View.h"
#include "Tools/orvelctl/pictures/GalleryPage.h"

namespace orvelctl {

/// A thing shown in a place of its own size with its name below.
struct Specimen {
    orvel::View content;
    orvel::Size size; // points
    std::vector<std::string> lines; // the name, then what there is to know of it

    orvel::View body(const orvel::Environment& environment) const;
};

/// Views in rows of as many.
orvel::View grid(const std::vector<orvel::View>& views, std::size_t columns);

/// Specimens on the palette's background.
struct SpecimenSheet {
    orvel::View content;

    orvel::View body(const orvel::Environment& environment) const;
};

/// The same sheet in both appearances, side by side; `content` is asked once for each.
void addInBoth(GalleryPage& page, const std::string& name, const orvel::Environment& base,
    const std::function<orvel::View(const orvel::Environment&)>& content);

/// A menu bar's glyph, each of its pixels as a square of `cell` points.
struct GlyphPixels {
    orvel::TemplateBitmap bitmap;
    double cell;

    orvel::Extent measure(const orvel::Proposal& proposed, const orvel::Environment& environment) const;
    void draw(orvel::Canvas& canvas, const orvel::Rect& in, const orvel::Environment& environment) const;
};

}

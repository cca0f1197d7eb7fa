#pragma once

#include <string>

#include "OrvelDesign/TokensSpace.h"
#include "WidgetHost/Style/StyleSheet.h"

namespace orvel {

/// The gallery's distances, in points.
namespace GalleryMetrics {
inline constexpr double margin = Tokens::Space::s10; // round everything
inline constexpr double gap = Tokens::Space::s6; // between previews
inline constexpr double tileInset = Tokens::Space::s3; // between a preview and the edge of its button
inline constexpr double corner = Tokens::Radius::lg; // of a widget's picture
}

/// The gallery's style; `window` is its window's name.
std::string galleryStyleSheet(const std::string& window, const StyleSettings& settings);

}

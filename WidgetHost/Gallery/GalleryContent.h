#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "OrvelPlatform/Desktop/HostPicture.h"
#include "OrvelPlatform/Views/Geometry.h"
#include "WidgetHost/Style/StyleSheet.h"
#include "WidgetHost/Words/HostWords.h"

namespace orvel {

/// A widget as it would look in one size.
struct GalleryPreview {
    std::string family;
    std::string sizeName; // "Medium"
    std::string addSpoken; // what its button is called: "Add Status, Medium"
    Size size {}; // points, with the text's enlargement
    std::shared_ptr<const HostPicture> picture; // in full colour and as pixels; null: not drawn yet
    bool operator==(const GalleryPreview&) const = default;
};

struct GallerySection {
    std::string kind;
    std::string name;
    std::string description;
    std::vector<GalleryPreview> previews;
    bool operator==(const GallerySection&) const = default;
};

/// Something that does not work, said quietly above the widgets.
struct GalleryWarning {
    std::string sentence;
    bool canTryAgain; // whether there is a button for it
    bool operator==(const GalleryWarning&) const = default;
};

/// The window's own words.
struct GalleryWords {
    std::string title; // "Orvel Widgets"
    std::string add; // "Add"
    std::string added; // "Added": on a button for a while after it was used
    std::string reduceTransparency; // "Reduce transparency"
    std::string biggerText; // "Bigger text"
    std::string tryAgain; // "Try Again"
    bool operator==(const GalleryWords&) const = default;
};

GalleryWords galleryWords(const HostWords& words);

/// All that the gallery shows.
struct GalleryContent {
    std::vector<GallerySection> sections;
    bool reducesTransparency = false; // the settings, as they are
    int biggerText = 0; // steps, 0 to 4
    std::optional<GalleryWarning> warning {};
    GalleryWords words;
    StyleSettings style {};
    bool isRightToLeft = false;
    bool operator==(const GalleryContent&) const = default;
};

}

#pragma once

#include <functional>
#include <memory>
#include <string>

#include "WidgetHost/Gallery/GalleryContent.h"

namespace Gtk {
class Button;
}

namespace orvel {

/// A preview that is one large button: the picture, and below it the size's name and what a click does.
class PreviewTile {
public:
    explicit PreviewTile(std::function<void()> chosen);
    PreviewTile(const PreviewTile&) = delete;
    PreviewTile& operator=(const PreviewTile&) = delete;
    ~PreviewTile();

    void show(const GallerySection& section, const GalleryPreview& preview, const GalleryWords& words);

    Gtk::Button& widget();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}

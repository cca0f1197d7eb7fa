#pragma once

#include <functional>
#include <memory>
#include <string>

#include "WidgetHost/Gallery/GalleryContent.h"

namespace orvel {

/// What somebody does in the gallery; called on the loop. Each may be empty.
struct GalleryEvents {
    std::function<void(const std::string& kind, const std::string& family)> addChosen {};
    std::function<void(bool)> reducesTransparencyChosen {};
    std::function<void(int)> biggerTextChosen {}; // steps, 0 to 4
    std::function<void()> tryAgainChosen {};
    std::function<void(double)> scaleChanged {}; // device pixels in a point, for the previews
    std::function<void()> closed {}; // the window is out of sight; `raise` brings it back
};

/// The window in which widgets are looked at and added, and the host's settings are made. The toolkit has to be up.
class Gallery {
public:
    explicit Gallery(GalleryEvents events);
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;
    ~Gallery();

    /// What the window shows from now on; it does not come into sight by this. The keyboard's place is kept as long as
    /// the same previews are offered.
    void show(const GalleryContent& content);

    /// Brings the window into sight and to the front, with the token of the click that asked for it, or with none.
    void raise(const std::string& activationToken = {});
    void hide();

    bool isInSight() const;
    double scale() const; // device pixels in a point, where the window is

private:
    class Window;
    std::unique_ptr<Window> m_window;
};

}

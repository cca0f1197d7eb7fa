#pragma once

#include <functional>
#include <memory>

#include "WidgetHost/Gallery/GalleryContent.h"

namespace Gtk {
class Widget;
}

namespace orvel {

/// The host's settings, at the gallery's foot.
class SettingsBar {
public:
    SettingsBar(std::function<void(bool)> reducesTransparencyChosen, std::function<void(int)> biggerTextChosen);
    SettingsBar(const SettingsBar&) = delete;
    SettingsBar& operator=(const SettingsBar&) = delete;
    ~SettingsBar();

    /// Shows the settings as they are; nothing counts as chosen by this.
    void show(const GalleryContent& content);

    Gtk::Widget& widget();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}

#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "WidgetHost/Panel/PanelContent.h"

namespace Gtk {
class Button;
}

namespace orvel {

/// A control as one large button.
class ControlTile {
public:
    /// `isToggle` stays what it is. `used` gets a toggle's new state.
    ControlTile(bool isToggle, std::function<void(std::optional<bool>)> used);
    ControlTile(const ControlTile&) = delete;
    ControlTile& operator=(const ControlTile&) = delete;
    ~ControlTile();

    /// Nothing counts as used by this.
    void show(const ControlFace& face);

    Gtk::Button& widget();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

}

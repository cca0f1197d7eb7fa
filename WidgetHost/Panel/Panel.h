#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "WidgetHost/Panel/PanelContent.h"

namespace orvel {

/// What somebody does in the panel; called on the loop. Each may be empty.
struct PanelEvents {
    /// A control was used. `wanted` is a toggle's new state, absent for a button. The token lets what is opened by it
    /// come to the front; empty where the desktop has none.
    std::function<void(const std::string& kind, std::optional<bool> wanted, const std::string& activationToken)>
        used {};
    std::function<void()> galleryChosen {};
    std::function<void()> quitChosen {};
    std::function<void()> closed {}; // the panel is out of sight; `raise` brings it back
};

/// A small window with the extension's controls, which goes out of sight when something else is turned to. The toolkit
/// has to be up.
class Panel {
public:
    explicit Panel(PanelEvents events);
    Panel(const Panel&) = delete;
    Panel& operator=(const Panel&) = delete;
    ~Panel();

    /// What the panel shows from now on; it does not come into sight by this. A toggle takes the state it is given,
    /// also when it was switched meanwhile.
    void show(const PanelContent& content);

    /// Brings the panel into sight near the pointer, with the token of the click that asked for it, or with none.
    void raise(const std::string& activationToken = {});
    void hide();

    bool isInSight() const;

private:
    class Window;
    std::unique_ptr<Window> m_window;
};

}

#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/EventLoop.h"
#include "WidgetHost/Tray/TrayContent.h"

namespace orvel {

/// What a person does with the item; on the loop. A token lets a window come to the front. None may destroy the tray.
struct TrayEvents {
    using Token = std::optional<std::string>;

    std::function<void(int x, int y, Token activationToken)> activated; // clicked, at this place of the screen
    std::function<void(int x, int y, Token activationToken)> menuAsked; // by a tray that shows no menus itself
    std::function<void(const std::string& id, Token activationToken)> chosen; // a line of the menu
    std::function<void()> trayCame {}; // a tray appeared that the item can be seen in
};

/// The host's item in the desktop's tray: the menu bar's glyph, a tool tip and a menu. It is registered whenever a tray
/// appears, and lives without one. Nothing moves by itself: whoever has it says what it shows, and the tray is told of
/// what differs.
class Tray {
public:
    /// The loop outlives the tray. A fault: there is no bus.
    [[nodiscard]] static std::expected<Tray, Fault> place(
        const EventLoop& loop, TrayContent content, TrayEvents events);

    Tray(Tray&& other) noexcept;
    Tray& operator=(Tray&&) = delete;
    ~Tray();

    void show(const TrayContent& content);

    /// Whether there is a tray that it can be seen in.
    bool isSeen() const;

private:
    class Item;
    explicit Tray(std::unique_ptr<Item> item);

    std::unique_ptr<Item> m_item; // the bus library knows where it lies
};

}

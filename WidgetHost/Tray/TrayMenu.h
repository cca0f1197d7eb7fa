#pragma once

#include <expected>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/ServedObject.h"
#include "WidgetHost/Tray/TrayContent.h"

namespace orvel {

/// The lines of a flat menu under the numbers by which a tray knows them. A line keeps its number for as long as the
/// menu lives, also while it is away, so that a late click never reaches another one.
class TrayMenuItems {
public:
    static constexpr int root = 0; // the menu itself, which is no line

    struct Item {
        int number;
        TrayEntry entry;
        bool operator==(const Item&) const = default;
    };

    /// What a tray that knows the lines before has to be told.
    struct Change {
        bool isLayout = false; // other lines, another order, or a line of another sort
        std::vector<int> items {}; // lines whose properties changed, where the layout did not
    };
    Change set(const std::vector<TrayEntry>& entries);

    const std::vector<Item>& items() const { return m_items; }
    const Item* find(int number) const;

    /// Goes up with every change of the layout.
    unsigned revision() const { return m_revision; }

private:
    std::vector<Item> m_items;
    std::map<std::string, int> m_numbers; // of all that ever was
    unsigned m_revision = 1;
};

/// The menu on the bus, as trays ask for it.
class TrayMenu {
public:
    using Chosen = std::function<void(const std::string& id)>;

    /// `chosen` is called on the loop for lines that can be chosen, and must not destroy the menu.
    TrayMenu(const TrayContent& content, Chosen chosen);
    TrayMenu(const TrayMenu&) = delete; // the served object knows its place
    TrayMenu& operator=(const TrayMenu&) = delete;

    /// Makes it known on a connection, which outlives it.
    [[nodiscard]] std::expected<void, Fault> serve(const BusConnection& connection);

    /// Tells trays of what differs.
    void show(const TrayContent& content);

private:
    void receive(MethodCall call);
    Answer<Reply> answer(const MethodCall& call);
    Answer<Reply> layout(const MethodCall& call) const;
    Answer<Reply> groupProperties(const MethodCall& call) const;
    Answer<Reply> property(const MethodCall& call) const;
    Answer<Reply> event(const MethodCall& call);
    Answer<Reply> eventGroup(const MethodCall& call);
    Answer<Reply> aboutToShow(const MethodCall& call) const;
    Answer<Reply> aboutToShowGroup(const MethodCall& call) const;
    VariantHandle menuProperty(std::string_view name) const;

    bool isKnown(int number) const;
    void take(int number, std::string_view event);

    TrayMenuItems m_items;
    bool m_isRightToLeft;
    Chosen m_chosen;
    std::vector<std::string> m_choices; // made by the call that is being answered
    std::optional<ServedObject> m_object; // absent: not served yet
};

}

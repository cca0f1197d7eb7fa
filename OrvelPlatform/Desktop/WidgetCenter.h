#pragma once

#include <expected>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "OrvelPlatform/Base/Fault.h"
#include "OrvelPlatform/Desktop/BusConnection.h"

namespace orvel {

/// How the application tells every host that what was answered before may have changed: after it wrote the snapshot.
class WidgetCenter {
public:
    [[nodiscard]] static std::expected<WidgetCenter, Fault> connect(const EventLoop& loop);

    /// Hosts ask anew for the timelines of these kinds, or for the values of these controls; none means all of them.
    /// Returns when the bus has it.
    [[nodiscard]] std::expected<void, Fault> reloadTimelines(const std::vector<std::string>& kinds) const;
    [[nodiscard]] std::expected<void, Fault> reloadControls(const std::vector<std::string>& kinds) const;

private:
    explicit WidgetCenter(BusConnection connection) : m_connection(std::move(connection)) { }
    std::expected<void, Fault> emit(const char* signal, const std::vector<std::string>& kinds) const;

    BusConnection m_connection;
};

/// How a host hears of it, from whichever process says so. Destroyed, it is silent; the loop outlives it.
class WidgetCenterListener {
public:
    /// With the kinds that are named; none means all. A signal that names more than `mostKinds` means all, too.
    struct Handlers {
        std::function<void(std::vector<std::string> kinds)> reloadTimelines;
        std::function<void(std::vector<std::string> kinds)> reloadControls;
    };
    static constexpr std::size_t mostKinds = 64;

    [[nodiscard]] static std::expected<WidgetCenterListener, Fault> listen(const EventLoop& loop, Handlers handlers);

    WidgetCenterListener(WidgetCenterListener&& other) noexcept;
    WidgetCenterListener& operator=(WidgetCenterListener&&) = delete;
    ~WidgetCenterListener();

private:
    WidgetCenterListener(BusConnection connection, Handlers handlers);

    BusConnection m_connection;
    std::unique_ptr<Handlers> m_handlers; // GDBus knows where they lie
    unsigned m_subscription;
};

}

#include "Benchmarks/Extension/Service.h"

#include <csignal>
#include <cstdint>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <gio/gio.h>
#include <gio/gunixfdlist.h>
#include <stdexcept>
#include <string>
#include <thread>

namespace orvelbench {

namespace {

using namespace orvel;

constexpr int deadline = 30'000; // milliseconds

VariantHandle called(const BusConnection& bus, Service::Address at, const char* method, _GVariant* arguments)
{
    ErrorHandle error;
    _GUnixFDList* files = nullptr;
    VariantHandle answer(g_dbus_connection_call_with_unix_fd_list_sync(bus.get(), at.name, at.path, at.interface,
        method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, deadline, nullptr, &files, nullptr, ErrorOut { error }));
    const FDListHandle closed(files);
    if (!answer)
        throw std::runtime_error(fmt::format("{}: {}", method, error->message));
    return answer;
}

VariantHandle askedOfTheBus(const BusConnection& bus, const char* method, const char* name)
{
    return called(bus, { "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus" }, method,
        g_variant_new("(s)", name));
}

}

VariantHandle Service::call(const char* method, _GVariant* arguments) const
{
    return called(m_bus, m_address, method, arguments);
}

std::chrono::duration<double, std::micro> Service::time(const char* method, _GVariant* arguments) const
{
    const auto start = std::chrono::steady_clock::now();
    const auto answer = call(method, arguments);
    return std::chrono::steady_clock::now() - start;
}

void Service::end() const
{
    if (!isRunning())
        return;
    ::kill(process(), SIGKILL);
    while (isRunning())
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

std::chrono::duration<double, std::micro> Service::processorTime() const
{
    std::uint64_t nanoseconds = 0;
    for (const auto& task : std::filesystem::directory_iterator(fmt::format("/proc/{}/task", process()))) {
        std::uint64_t ofTask = 0;
        std::ifstream(task.path() / "schedstat") >> ofTask;
        nanoseconds += ofTask;
    }
    return std::chrono::nanoseconds(nanoseconds);
}

std::size_t Service::residentMemory() const
{
    std::ifstream status(fmt::format("/proc/{}/status", process()));
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmRSS:"))
            return std::stoul(line.substr(6));
    }
    throw std::runtime_error("the process does not say its memory");
}

bool Service::isRunning() const
{
    gboolean has = FALSE;
    g_variant_get(askedOfTheBus(m_bus, "NameHasOwner", m_address.name).get(), "(b)", &has);
    return has != FALSE;
}

pid_t Service::process() const
{
    guint32 process = 0;
    g_variant_get(askedOfTheBus(m_bus, "GetConnectionUnixProcessID", m_address.name).get(), "(u)", &process);
    return static_cast<pid_t>(process);
}

}

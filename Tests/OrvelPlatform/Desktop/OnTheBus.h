#pragma once

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gio/gio.h>
#include <gtest/gtest.h>

#include "OnTheLoop.h"
#include "OrvelPlatform/Desktop/BusContract.h"
#include "OrvelPlatform/Desktop/WidgetRequester.h"

namespace orvel::tests {

/// A host on the tests' own bus, where the bus starts FakeExtension.
class OnTheBus : public testing::Test {
protected:
    OnTheBus() : bus(BusConnection::connect(loop).value()) { }

    template <typename T>
    T get(Task<T> task)
    {
        return finished(loop, std::move(task));
    }

    /// A call as anybody may make it, and its failure's name, or nothing.
    std::string failureOf(const char* path, const char* interface, const char* method, _GVariant* arguments)
    {
        ErrorHandle error;
        const VariantHandle reply(g_dbus_connection_call_sync(bus.get(), BusName::extension, path, interface, method,
            arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, 20'000, nullptr, ErrorOut { error }));
        const GlibText name(error ? g_dbus_error_get_remote_error(error.get()) : nullptr);
        return error ? name ? name.get() : error->message : "";
    }

    VariantHandle askTheBus(const char* method, _GVariant* arguments)
    {
        return VariantHandle(g_dbus_connection_call_sync(bus.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus",
            "org.freedesktop.DBus", method, arguments, nullptr, G_DBUS_CALL_FLAGS_NONE, 5000, nullptr, nullptr));
    }

    bool isOwned(const char* name)
    {
        const auto reply = askTheBus("NameHasOwner", g_variant_new("(s)", name));
        return g_variant_get_boolean(VariantHandle(g_variant_get_child_value(reply.get(), 0)).get()) != FALSE;
    }

    ControlValue state() { return get(host.controlValue("state", {})).value(); }
    pid_t process() { return std::stoi(state().title); }

    /// Ends the extension that runs, and has the next one started with these settings.
    void startAnewWith(const char* idle, const char* farewell)
    {
        if (isOwned(BusName::extension))
            ::kill(process(), SIGKILL);
        EXPECT_TRUE(lookUntil(loop, [&] { return !isOwned(BusName::extension); }));
        GVariantBuilder settings;
        g_variant_builder_init(&settings, G_VARIANT_TYPE("a{ss}"));
        g_variant_builder_add(&settings, "{ss}", "FAKE_IDLE", idle);
        g_variant_builder_add(&settings, "{ss}", "FAKE_FAREWELL", farewell);
        askTheBus("UpdateActivationEnvironment", g_variant_new("(a{ss})", &settings));
    }

    static std::string log()
    {
        std::ifstream file(std::getenv("FAKE_LOG"));
        return { std::istreambuf_iterator<char>(file), {} };
    }

    void SetUp() override { std::filesystem::remove(std::getenv("FAKE_LOG")); }

    EventLoop loop;
    BusConnection bus;
    WidgetRequester host { loop };
};

}

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OnTheBus.h"
#include "OrvelPlatform/Base/File.h"
#include "OrvelPlatform/Desktop/LinkOpener.h"

namespace orvel::tests {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

fs::path folderIn(const char* variable)
{
    const fs::path folder = std::getenv(variable);
    fs::create_directories(folder / "applications");
    return folder;
}

void write(const fs::path& path, const std::string& text)
{
    std::ofstream(path) << text;
}

/// Desktop entries in the tests' own home, each for a scheme of its own. Written before GLib looks for the first time.
void writeHandlers()
{
    const auto entries = folderIn("XDG_DATA_HOME") / "applications";
    const auto folder = folderIn("XDG_CONFIG_HOME");
    const std::string head = "[Desktop Entry]\nType=Application\nName=Tester\n";
    write(entries / "app.orvel.On-Bus.desktop", head + "DBusActivatable=true\nExec=/bin/false %u\n");
    write(entries / "by-hand.desktop",
        head + "Path=/usr\nExec=/bin/sh -c 'echo \"$1 $XDG_ACTIVATION_TOKEN\" > \"$FAKE_LOG\"' 100%% %u %i\n");
    write(entries / "terminal.desktop", head + "Terminal=true\nExec=/bin/true %u\n");
    write(entries / "broken.desktop", head + "DBusActivatable=true\nExec=/bin/sh 'unfinished\n");
    write(folder / "mimeapps.list",
        "[Default Applications]\n"
        "x-scheme-handler/onbus=app.orvel.On-Bus.desktop\n"
        "x-scheme-handler/byhand=by-hand.desktop\n"
        "x-scheme-handler/interm=terminal.desktop\n");
}

/// A name on the bus whose every method is noted down and answered in the same way.
class Noting {
public:
    Noting(EventLoop& loop, const char* name, const char* path, const char* introspection, const char* answer)
        : m_bus(BusConnection::connect(loop).value()), m_answer(answer)
    {
        const LoopScope scope(loop.context());
        const NodeInfoHandle info(g_dbus_node_info_new_for_xml(introspection, nullptr));
        constexpr GDBusInterfaceVTable methods {
            .method_call = &Noting::called, .get_property = nullptr, .set_property = nullptr, .padding = {}
        };
        g_dbus_connection_register_object(m_bus.get(), path, info->interfaces[0], &methods, this, nullptr, nullptr);
        EXPECT_TRUE(m_bus.takeName(name));
    }

    std::vector<std::string> calls;

private:
    static void called(GDBusConnection*, const char*, const char*, const char*, const char* method, GVariant* arguments,
        GDBusMethodInvocation* invocation, void* self)
    {
        auto& noting = *static_cast<Noting*>(self);
        const GlibText text(g_variant_print(arguments, FALSE));
        noting.calls.push_back(std::string(method) + text.get());
        g_dbus_method_invocation_return_value(invocation, g_variant_new_parsed(noting.m_answer));
    }

    BusConnection m_bus;
    const char* m_answer;
};

Noting application(EventLoop& loop)
{
    return { loop, "app.orvel.On-Bus", "/app/orvel/On_Bus",
        "<node><interface name='org.freedesktop.Application'><method name='Open'>"
        "<arg type='as' direction='in'/><arg type='a{sv}' direction='in'/></method></interface></node>",
        "()" };
}

Noting serviceManager(EventLoop& loop)
{
    return { loop, "org.freedesktop.systemd1", "/org/freedesktop/systemd1",
        "<node><interface name='org.freedesktop.systemd1.Manager'><method name='StartTransientUnit'>"
        "<arg type='s' direction='in'/><arg type='s' direction='in'/><arg type='a(sv)' direction='in'/>"
        "<arg type='a(sa(sv))' direction='in'/><arg type='o' direction='out'/></method></interface></node>",
        "(objectpath '/job/1',)" };
}

Noting portal(EventLoop& loop)
{
    return { loop, "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
        "<node><interface name='org.freedesktop.portal.OpenURI'><method name='OpenURI'><arg type='s' direction='in'/>"
        "<arg type='s' direction='in'/><arg type='a{sv}' direction='in'/><arg type='o' direction='out'/></method>"
        "</interface></node>",
        "(objectpath '/request/1',)" };
}

class Links : public OnTheBus {
protected:
    static void SetUpTestSuite() { writeHandlers(); }

    std::expected<void, Fault> open(const std::string& url, std::optional<std::string> token = std::nullopt)
    {
        LinkOpener opener(loop);
        return get(opener.opened(url, std::move(token)));
    }
};

TEST_F(Links, anApplicationWithANameOnTheBusGetsTheLinkAndTheToken)
{
    auto here = application(loop);
    auto manager = serviceManager(loop);
    EXPECT_TRUE(open("onbus://breathe?minutes=3", "token"));
    EXPECT_TRUE(open("onbus://today"));
    EXPECT_THAT(here.calls,
        ElementsAre(
            "Open(['onbus://breathe?minutes=3'], {'activation-token': <'token'>, 'desktop-startup-id': <'token'>})",
            "Open(['onbus://today'], {})"));
    EXPECT_THAT(manager.calls, IsEmpty());
}

TEST_F(Links, theServiceManagerStartsACommandOutside)
{
    auto manager = serviceManager(loop);
    EXPECT_TRUE(open("byhand://focus", "token"));
    ASSERT_EQ(manager.calls.size(), 1U);
    const auto& call = manager.calls.front();
    EXPECT_THAT(call, HasSubstr("StartTransientUnit('app-orvel-link-"));
    EXPECT_THAT(call, HasSubstr("'100%', 'byhand://focus'], false"));
    EXPECT_THAT(call, HasSubstr("('WorkingDirectory', <'/usr'>)"));
    EXPECT_THAT(call, HasSubstr("<['XDG_ACTIVATION_TOKEN=token', 'DESKTOP_STARTUP_ID=token']>"));
}

TEST_F(Links, anApplicationThatIsNotThereIsStartedInsteadOfAsked)
{
    auto manager = serviceManager(loop);
    EXPECT_TRUE(open("onbus://today"));
    ASSERT_EQ(manager.calls.size(), 1U);
    EXPECT_THAT(manager.calls.front(), HasSubstr("['/bin/false', 'onbus://today']"));
}

TEST_F(Links, thePortalOpensWhatNobodyElseDoes)
{
    auto manager = serviceManager(loop);
    auto desktop = portal(loop);
    for (const auto* url : { "interm://today", "nobody://today" })
        EXPECT_TRUE(open(url, "token"));
    EXPECT_THAT(manager.calls, IsEmpty());
    EXPECT_THAT(desktop.calls,
        ElementsAre("OpenURI('', 'interm://today', {'activation_token': <'token'>})",
            "OpenURI('', 'nobody://today', {'activation_token': <'token'>})"));
}

TEST_F(Links, aChildIsTheLastResort)
{
    EXPECT_TRUE(open("byhand://focus", "token"));
    EXPECT_TRUE(lookUntil(loop, [] { return log() == "byhand://focus token\n"; })) << log();
}

TEST_F(Links, whatCannotBeOpenedIsAFault)
{
    for (const auto* url : { "", "no scheme", "nobody://today", "onbus://\xff" })
        EXPECT_FALSE(open(url)) << url;
}

}

}

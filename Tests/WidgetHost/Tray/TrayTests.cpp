#include "WidgetHost/Tray/Tray.h"

#include <gio/gio.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include "OrvelDesign/Drawn/MenuBarOrbImage.h"
#include "OrvelPlatform/Desktop/BusConnection.h"
#include "Tests/OrvelPlatform/Desktop/OnTheLoop.h"
#include "WidgetHost/Tray/TrayInterfaces.h"

namespace orvel::tests {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

/// A tray as a desktop has it: items register with it, and it asks them.
class FakeTray {
public:
    explicit FakeTray(EventLoop& loop) : m_loop(loop), m_bus(BusConnection::connect(loop).value())
    {
        const LoopScope scope(loop.context());
        const NodeInfoHandle info(
            g_dbus_node_info_new_for_xml("<node><interface name='org.kde.StatusNotifierWatcher'>"
                                         "<method name='RegisterStatusNotifierItem'><arg type='s' direction='in'/>"
                                         "</method></interface></node>",
                nullptr));
        constexpr GDBusInterfaceVTable methods {
            .method_call = &FakeTray::receive, .get_property = nullptr, .set_property = nullptr, .padding = {}
        };
        g_dbus_connection_register_object(
            m_bus.get(), TrayPath::watcher, info->interfaces[0], &methods, this, nullptr, nullptr);
        for (const auto* interface : { TrayName::item, TrayName::menu })
            g_dbus_connection_signal_subscribe(m_bus.get(), nullptr, interface, nullptr, nullptr, nullptr,
                G_DBUS_SIGNAL_FLAGS_NONE, &FakeTray::hear, this, nullptr);
        m_bus.settle();
    }

    void come() const { EXPECT_TRUE(m_bus.takeName(TrayName::watcher)); }
    void go() const { EXPECT_TRUE(m_bus.giveUpName(TrayName::watcher)); }

    bool hasItems(std::size_t count)
    {
        return turnUntil(m_loop, [&] { return items.size() >= count; });
    }

    /// What a method of the last item gives; null: an error.
    VariantHandle call(const char* path, const char* interface, const char* method, const char* arguments)
    {
        struct Waiting {
            bool isOver = false;
            VariantHandle reply;
        } waiting;
        const auto take = +[](GObject* source, GAsyncResult* result, void* data) {
            auto& it = *static_cast<Waiting*>(data);
            it.isOver = true;
            it.reply.reset(g_dbus_connection_call_finish(reinterpret_cast<GDBusConnection*>(source), result, nullptr));
        };
        const LoopScope scope(m_loop.context());
        g_dbus_connection_call(m_bus.get(), items.back().c_str(), path, interface, method,
            g_variant_new_parsed(arguments), nullptr, G_DBUS_CALL_FLAGS_NONE, 20'000, nullptr, take, &waiting);
        turnUntil(m_loop, [&] { return waiting.isOver; });
        return std::move(waiting.reply);
    }

    VariantHandle property(const char* name)
    {
        const auto names = "('" + std::string(TrayName::item) + "', '" + name + "')";
        const auto reply = call(TrayPath::item, "org.freedesktop.DBus.Properties", "Get", names.c_str());
        _GVariant* value = nullptr;
        if (reply)
            g_variant_get(reply.get(), "(v)", &value);
        return VariantHandle(value);
    }

    std::string menu(const char* method, const char* arguments)
    {
        return printed(call(TrayPath::menu, TrayName::menu, method, arguments));
    }
    std::string item(const char* method, const char* arguments)
    {
        return printed(call(TrayPath::item, TrayName::item, method, arguments));
    }

    static std::string printed(const VariantHandle& value)
    {
        return value ? GlibText(g_variant_print(value.get(), FALSE)).get() : "error";
    }

    /// The signals since the last time.
    std::vector<std::string> news()
    {
        property("Id"); // what was sent before its answer has come
        return std::exchange(m_signals, {});
    }

    std::vector<std::string> items;

private:
    static void receive(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant* arguments,
        GDBusMethodInvocation* invocation, void* self)
    {
        const char* service = nullptr;
        g_variant_get(arguments, "(&s)", &service);
        static_cast<FakeTray*>(self)->items.emplace_back(service);
        g_dbus_method_invocation_return_value(invocation, nullptr);
    }

    static void hear(
        GDBusConnection*, const char*, const char*, const char*, const char* signal, GVariant* arguments, void* self)
    {
        const GlibText text(g_variant_print(arguments, FALSE));
        static_cast<FakeTray*>(self)->m_signals.push_back(signal + std::string(text.get()));
    }

    EventLoop& m_loop;
    BusConnection m_bus;
    std::vector<std::string> m_signals;
};

class TrayOnTheBus : public testing::Test {
protected:
    Tray placed()
    {
        const auto at = [this](const char* what) {
            return [this, what](int x, int y, TrayEvents::Token token) {
                told.push_back(
                    what + std::to_string(x) + "," + std::to_string(y) + " with " + token.value_or("nothing"));
            };
        };
        return Tray::place(loop, content,
            { .activated = at("activated "),
                .menuAsked = at("menu "),
                .chosen = [this](const auto& id,
                              auto token) { told.push_back(id + " with " + token.value_or("nothing")); } })
            .value();
    }

    EventLoop loop;
    FakeTray desktop { loop };
    std::vector<std::string> told;
    TrayContent content {
        .glyph = MenuBarOrb::Idle {},
        .foreground = { 1, 1, 1, 1 },
        .title = "Orvel Widgets",
        .toolTipTitle = "Focus now",
        .toolTipText = "Work & <Play>",
        .menu = { { .id = "focus", .label = "Focus_now", .isChecked = false }, {},
            { .id = "gallery", .label = "Add Widgets…", .isEnabled = false }, { .id = "quit", .label = "Quit" } },
    };
};

/// The pixels of one size, as the glyph itself has them.
void expectPixels(_GVariant* pixmap, const MenuBarOrbState& state, int scale, const char* name)
{
    int width = 0;
    int height = 0;
    VariantHandle bytes;
    _GVariant* list = nullptr;
    g_variant_get(pixmap, "(ii@ay)", &width, &height, &list);
    bytes.reset(list);
    gsize size = 0;
    const auto* pixels = static_cast<const std::uint8_t*>(g_variant_get_fixed_array(bytes.get(), &size, 1));
    const auto glyph = MenuBarOrbGlyph::bitmap(state, scale).value();
    ASSERT_EQ(width, 22 * scale);
    ASSERT_EQ(height, width);
    ASSERT_EQ(size, glyph.alpha.size() * 4);
    for (std::size_t pixel = 0; pixel < glyph.alpha.size(); ++pixel) {
        const std::array<int, 4> got { pixels[4 * pixel], pixels[4 * pixel + 1], pixels[4 * pixel + 2],
            pixels[4 * pixel + 3] };
        ASSERT_THAT(got, ElementsAre(glyph.alpha[pixel], 255, 0, 51)) << name << ", pixel " << pixel;
    }
}

TEST_F(TrayOnTheBus, showsEveryStateOfTheGlyphPixelByPixel)
{
    content.foreground = { 1, 0, 0.2, 1 };
    desktop.come();
    auto tray = placed();
    ASSERT_TRUE(desktop.hasItems(1));
    const std::pair<const char*, MenuBarOrbState> states[] = {
        { "idle", MenuBarOrb::Idle {} },
        { "a Block runs", MenuBarOrb::Active { 1 } },
        { "a Focus begins", MenuBarOrb::Focus { 1 } },
        { "a Focus goes on", MenuBarOrb::Focus { 0.98 } },
        { "a Focus is nearly over", MenuBarOrb::Focus { 0.02 } },
        { "something is let through", MenuBarOrb::Unlock {} },
        { "out of reach", MenuBarOrb::Fix {} },
    };
    for (const auto& [name, state] : states) {
        content.glyph = state;
        tray.show(content);
        const auto isFirst = state == states[0].second;
        EXPECT_THAT(desktop.news(), testing::SizeIs(isFirst ? 0 : 1)) << name;
        const auto both = desktop.property("IconPixmap");
        ASSERT_EQ(g_variant_n_children(both.get()), 2U);
        for (const auto scale : { 1, 2 })
            expectPixels(VariantHandle(g_variant_get_child_value(both.get(), static_cast<gsize>(scale - 1))).get(),
                state, scale, name);
    }
}

TEST_F(TrayOnTheBus, registersWithEveryTrayThatComes)
{
    auto tray = placed();
    EXPECT_FALSE(turnUntil(
        loop, [&] { return !desktop.items.empty(); }, std::chrono::milliseconds { 50 }));
    const auto name = "org.kde.StatusNotifierItem-" + std::to_string(::getpid()) + "-1";
    desktop.come();
    ASSERT_TRUE(desktop.hasItems(1));
    desktop.go();
    tray.show({}); // nobody looks
    desktop.come();
    ASSERT_TRUE(desktop.hasItems(2));
    EXPECT_THAT(desktop.items, ElementsAre(name, name));
    EXPECT_EQ(FakeTray::printed(desktop.property("Title")), "''") << "the tray that comes sees what holds now";

    const auto other = placed(); // another process of our number
    ASSERT_TRUE(desktop.hasItems(3));
    EXPECT_THAT(desktop.items.back(), StartsWith(":"));
    EXPECT_EQ(FakeTray::printed(desktop.property("Title")), "'Orvel Widgets'");
}

TEST_F(TrayOnTheBus, tellsOfWhatDiffersOnly)
{
    desktop.come();
    auto tray = placed();
    ASSERT_TRUE(desktop.hasItems(1));
    EXPECT_EQ(FakeTray::printed(desktop.property("ToolTip")), "('', [], 'Focus now', 'Work &amp; &lt;Play&gt;')");
    EXPECT_EQ(FakeTray::printed(desktop.property("ItemIsMenu")), "false");
    tray.show(content);
    EXPECT_THAT(desktop.news(), IsEmpty());
    content.glyph = MenuBarOrb::Focus { 0.25 };
    tray.show(content);
    EXPECT_THAT(desktop.news(), IsEmpty()) << "nobody has asked for an icon that could be old";
    EXPECT_TRUE(desktop.property("IconPixmap"));
    content.glyph = MenuBarOrb::Focus { 1.5 };
    tray.show(content);
    EXPECT_THAT(desktop.news(), ElementsAre("NewIcon()"));
    content.glyph = MenuBarOrb::Focus { 1 };
    tray.show(content);
    EXPECT_THAT(desktop.news(), IsEmpty()) << "it looks the same";
    content.foreground = { 0, 0, 0, 1 };
    content.toolTipText = "Quiet";
    tray.show(content);
    EXPECT_THAT(desktop.news(), ElementsAre("NewIcon()", "NewToolTip()"));
    content.menu[0].isChecked = true;
    tray.show(content);
    EXPECT_THAT(desktop.news(),
        ElementsAre(
            AllOf(StartsWith("ItemsPropertiesUpdated([(1, {"), HasSubstr("'toggle-state': <1>"), HasSubstr("], [])"))));
    content.menu.pop_back();
    tray.show(content);
    EXPECT_THAT(desktop.news(), ElementsAre("LayoutUpdated(3, 0)"));
}

TEST_F(TrayOnTheBus, answersWhateverATrayAsksOfTheMenu)
{
    desktop.come();
    const auto tray = placed();
    ASSERT_TRUE(desktop.hasItems(1));
    EXPECT_EQ(FakeTray::printed(desktop.property("Menu")), "'/StatusNotifierItem/Menu'");
    struct Case {
        const char* method;
        const char* arguments;
        const char* reply;
    };
    const Case cases[] = {
        { "GetLayout", "(0, -1, ['label', 'type', 'toggle-state', 'children-display'])",
            "(2, (0, {'children-display': <'submenu'>}, "
            "[<(1, {'label': <'Focus__now'>, 'toggle-state': <0>}, @av [])>, <(2, {'type': <'separator'>}, @av [])>, "
            "<(3, {'label': <'Add Widgets…'>}, @av [])>, <(4, {'label': <'Quit'>}, @av [])>]))" },
        { "GetLayout", "(0, 0, @as [])", "(2, (0, {'children-display': <'submenu'>}, []))" },
        { "GetLayout", "(4, 1, ['label'])", "(2, (4, {'label': <'Quit'>}, []))" },
        { "GetLayout", "(5, -1, @as [])", "error" },
        { "GetLayout", "(-1, -1, @as [])", "error" },
        { "GetLayout", "('', -1, @as [])", "error" },
        { "GetGroupProperties", "([4, 99, 3], ['enabled'])",
            "([(3, {'enabled': <false>}), (4, {'enabled': <true>})],)" },
        { "GetGroupProperties", "(@ai [], ['toggle-type'])",
            "([(0, {}), (1, {'toggle-type': <'checkmark'>}), (2, {}), (3, {}), (4, {})],)" },
        { "GetProperty", "(1, 'label')", "(<'Focus__now'>,)" },
        { "GetProperty", "(4, 'toggle-state')", "error" },
        { "GetProperty", "(99, 'label')", "error" },
        { "AboutToShow", "(0,)", "(false,)" },
        { "AboutToShow", "(99,)", "error" },
        { "AboutToShowGroup", "([0, 99],)", "([], [99])" },
        { "Event", "(99, 'clicked', <0>, uint32 0)", "error" },
        { "EventGroup", "([(98, 'clicked', <0>, uint32 0), (99, 'clicked', <0>, 0)],)", "error" },
        { "EventGroup", "(@a(isvu) [],)", "([],)" },
        { "Explode", "()", "error" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(desktop.menu(c.method, c.arguments), c.reply) << c.method << c.arguments;
    EXPECT_FALSE(desktop.property("Password"));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(TrayOnTheBus, passesOnWhatAPersonDoes)
{
    desktop.come();
    const auto tray = placed();
    ASSERT_TRUE(desktop.hasItems(1));
    EXPECT_EQ(desktop.item("Activate", "(12, -7)"), "()");
    EXPECT_EQ(desktop.item("ProvideXdgActivationToken", "('token-1',)"), "()");
    EXPECT_EQ(desktop.item("ContextMenu", "(1, 2)"), "()");
    EXPECT_EQ(desktop.item("SecondaryActivate", "(3, 4)"), "()");
    EXPECT_EQ(desktop.item("Scroll", "(120, 'vertical')"), "()");
    EXPECT_EQ(desktop.item("Activate", "('left', 'top')"), "error");
    EXPECT_EQ(desktop.item("ProvideXdgActivationToken", "('token-2',)"), "()");
    EXPECT_EQ(desktop.menu("Event", "(1, 'hovered', <''>, uint32 0)"), "()");
    EXPECT_EQ(desktop.menu("Event", "(1, 'clicked', <''>, uint32 0)"), "()");
    EXPECT_EQ(desktop.menu("Event", "(3, 'clicked', <''>, uint32 0)"), "()") << "which cannot be chosen";
    EXPECT_EQ(desktop.menu(
                  "EventGroup", "([(2, 'clicked', <0>, uint32 0), (77, 'clicked', <0>, 0), (4, 'clicked', <0>, 0)],)"),
        "([77],)");
    const std::string huge(5000, 'x');
    EXPECT_EQ(desktop.item("ProvideXdgActivationToken", ("('" + huge + "',)").c_str()), "()");
    EXPECT_EQ(desktop.menu("Event", "(1, 'clicked', <''>, uint32 0)"), "()");
    EXPECT_THAT(told,
        ElementsAre("activated 12,-7 with nothing", "menu 1,2 with token-1", "focus with token-2", "quit with nothing",
            "focus with nothing"));
}

}

}

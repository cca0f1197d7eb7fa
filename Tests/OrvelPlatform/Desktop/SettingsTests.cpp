#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "OnTheBus.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/DesktopSettings.h"

namespace orvel::tests {

namespace {

using ColorScheme = DesktopAppearance::ColorScheme;
using AccentColor = DesktopAppearance::AccentColor;
using testing::ElementsAre;
using testing::IsEmpty;

VariantHandle parsed(const std::string& text)
{
    return VariantHandle(g_variant_ref_sink(g_variant_new_parsed(text.c_str())));
}

/// A portal that answers with the settings it has, or leaves those who ask waiting.
class FakePortal {
public:
    FakePortal(EventLoop& loop, std::string itsSettings)
        : settings(std::move(itsSettings)), m_bus(BusConnection::connect(loop).value())
    {
        const LoopScope scope(loop.context());
        const NodeInfoHandle info(
            g_dbus_node_info_new_for_xml("<node><interface name='org.freedesktop.portal.Settings'>"
                                         "<method name='ReadAll'><arg type='as' direction='in'/>"
                                         "<arg type='a{sa{sv}}' direction='out'/></method></interface></node>",
                nullptr));
        constexpr GDBusInterfaceVTable methods {
            .method_call = &FakePortal::called, .get_property = nullptr, .set_property = nullptr, .padding = {}
        };
        g_dbus_connection_register_object(m_bus.get(), path, info->interfaces[0], &methods, this, nullptr, nullptr);
        EXPECT_TRUE(m_bus.takeName("org.freedesktop.portal.Desktop"));
    }

    void change(const std::string& setting) const
    {
        g_dbus_connection_emit_signal(m_bus.get(), nullptr, path, "org.freedesktop.portal.Settings", "SettingChanged",
            g_variant_new_parsed(setting.c_str()), nullptr);
        m_bus.flush();
    }

    void answer()
    {
        auto* reply = g_variant_new("(@a{sa{sv}})", g_variant_new_parsed(("@a{sa{sv}} " + settings).c_str()));
        g_dbus_method_invocation_return_value(std::exchange(waiting, nullptr), reply);
    }

    std::string settings;
    bool isSlow = false;
    GDBusMethodInvocation* waiting = nullptr;

private:
    static constexpr const char* path = "/org/freedesktop/portal/desktop";

    static void called(GDBusConnection*, const char*, const char*, const char*, const char*, GVariant*,
        GDBusMethodInvocation* invocation, void* self)
    {
        auto& portal = *static_cast<FakePortal*>(self);
        portal.waiting = invocation;
        if (!portal.isSlow)
            portal.answer();
    }

    BusConnection m_bus;
};

/// A desktop's settings, and every appearance that was told.
struct Watched {
    explicit Watched(EventLoop& loop) : settings(loop, [this](const auto& appearance) { told.push_back(appearance); })
    {
        EXPECT_THAT(told, IsEmpty());
        EXPECT_TRUE(turnUntil(loop, [&] { return !told.empty(); }));
    }
    std::vector<DesktopAppearance> told;
    DesktopSettings settings;
};

/// What the tests' schemas say where nobody says anything else.
constexpr DesktopAppearance stored { .textScale = 1.5 };

using Settings = OnTheBus;

TEST(DesktopAppearance, isReadFromWhateverADesktopSays)
{
    struct Case {
        std::string_view name;
        std::string settings;
        DesktopAppearance appearance;
    };
    const std::string shared = "'org.freedesktop.appearance'";
    const std::string gnome = "'org.gnome.desktop.interface'";
    const Case cases[] = {
        { "nothing", "@a{sa{sv}} {}", {} },
        { "all that is shared",
            "{" + shared
                + ": {'color-scheme': <uint32 1>, 'contrast': <uint32 1>, 'reduced-motion': <uint32 1>,"
                  "'accent-color': <(0.25, 0.5, 1.0)>}}",
            { ColorScheme::dark, true, true, AccentColor { 0.25, 0.5, 1 }, 1 } },
        { "GNOME's own",
            "{" + gnome
                + ": {'color-scheme': <'prefer-dark'>, 'enable-animations': <false>, 'text-scaling-factor': <1.25>},"
                  "'org.gnome.desktop.a11y.interface': {'high-contrast': <true>}}",
            { ColorScheme::dark, true, true, {}, 1.25 } },
        { "what is shared counts more, also where it is no preference",
            "{" + shared + ": {'color-scheme': <uint32 0>, 'contrast': <uint32 0>, 'reduced-motion': <uint32 0>}, "
                + gnome
                + ": {'color-scheme': <'prefer-light'>, 'enable-animations': <false>},"
                  "'org.gnome.desktop.a11y.interface': {'high-contrast': <true>}}",
            {} },
        { "numbers without a meaning",
            "{" + shared
                + ": {'color-scheme': <uint32 7>, 'contrast': <uint32 7>, 'accent-color': <(-1.0, 0.0, 0.0)>}, " + gnome
                + ": {'text-scaling-factor': <-2.0>}}",
            {} },
        { "values of another type",
            "{" + shared + ": {'color-scheme': <'dark'>, 'contrast': <true>, 'accent-color': <(1, 1, 1)>}, " + gnome
                + ": {'color-scheme': <'prefer-light'>, 'enable-animations': <0>, 'text-scaling-factor': <'2'>}}",
            { .colorScheme = ColorScheme::light } },
        { "a size nobody can read", "{" + gnome + ": {'text-scaling-factor': <90.0>}}", { .textScale = 3 } },
    };
    for (const auto& c : cases) {
        const auto all = parsed(c.settings);
        const auto value = [&](const SettingName& name) {
            const VariantHandle found(g_variant_lookup_value(all.get(), name.space, G_VARIANT_TYPE_VARDICT));
            return found ? lookUp(found.get(), name.key) : nullptr;
        };
        EXPECT_EQ(appearanceFrom(value), c.appearance) << c.name;
    }
}

TEST_F(Settings, theyAreThePortalsAndFollowIt)
{
    FakePortal portal(loop,
        "{'org.freedesktop.appearance': {'color-scheme': <<uint32 1>>, 'contrast': <<<uint32 0>>>},"
        "'org.gnome.desktop.interface': {'text-scaling-factor': <1.25>}, 'elsewhere': {'color-scheme': <uint32 2>}}");
    Watched watched(loop);
    EXPECT_EQ(watched.told.back(), (DesktopAppearance { .colorScheme = ColorScheme::dark, .textScale = 1.25 }));

    portal.change("('elsewhere', 'color-scheme', <uint32 2>)");
    portal.change("('org.freedesktop.appearance', 'color-scheme', <uint32 1>)");
    portal.change("('org.freedesktop.appearance', 'contrast', <<uint32 1>>)");
    portal.change("('org.freedesktop.appearance', 'accent-color', <(1.0, 0.0, 0.0)>)");
    EXPECT_TRUE(turnUntil(loop, [&] { return watched.told.size() >= 3; }));
    EXPECT_EQ(watched.told.size(), 3U) << "only what changes anything is told";
    EXPECT_EQ(watched.settings.appearance(),
        (DesktopAppearance { ColorScheme::dark, true, false, AccentColor { 1, 0, 0 }, 1.25 }));
}

TEST_F(Settings, theyAreTheStoredOnesWhereThereIsNoPortal)
{
    Watched watched(loop);
    EXPECT_THAT(watched.told, ElementsAre(stored));

    struct Release {
        void operator()(GSettings* settings) const { g_object_unref(settings); }
    };
    const std::unique_ptr<GSettings, Release> somebody(g_settings_new("org.gnome.desktop.interface"));
    g_settings_set_boolean(somebody.get(), "enable-animations", FALSE);
    EXPECT_TRUE(turnUntil(loop, [&] { return watched.told.size() == 2; }));
    EXPECT_TRUE(watched.told.back().reducesMotion);
    g_settings_reset(somebody.get(), "enable-animations");
}

TEST_F(Settings, aPortalThatTakesItsTimeOrComesLaterIsHeardAllTheSame)
{
    std::optional<FakePortal> portal(
        std::in_place, loop, "{'org.freedesktop.appearance': {'color-scheme': <uint32 1>}}");
    portal->isSlow = true;
    Watched watched(loop);
    EXPECT_THAT(watched.told, ElementsAre(stored)) << "nobody waits for it";
    portal->answer();
    EXPECT_TRUE(turnUntil(loop, [&] { return watched.told.size() == 2; }));
    EXPECT_EQ(watched.told.back().colorScheme, ColorScheme::dark);

    portal.reset();
    portal.emplace(loop, "{'org.freedesktop.appearance': {'color-scheme': <uint32 2>}}");
    EXPECT_TRUE(turnUntil(loop, [&] { return watched.told.size() == 3; }));
    EXPECT_EQ(watched.told.back().colorScheme, ColorScheme::light);
}

}

}

#include "WidgetHost/Controls/ControlCenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "Tests/Support/HandMovedClock.h"

namespace orvel::tests {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using Kind = RequestFault::Kind;
using Role = ExtensionMember::Role;

constexpr Date midnight { std::chrono::sys_days { std::chrono::year { 2026 } / 3 / 2 } };

ExtensionMember member(const std::string& kind, Role role, std::vector<ExtensionIntent> intents)
{
    return { .kind = kind,
        .role = role,
        .displayName = kind,
        .description = "",
        .families = {},
        .intents = std::move(intents) };
}

ExtensionMember focus()
{
    using Type = ExtensionIntent::Type;
    return member("focus", Role::toggle,
        { { "Other", "Other", { { "name", "Name", Type::text, false } } },
            { "FocusNow", "Focus",
                { { "why", "Why", Type::text, true }, { "value", "Focus", Type::truth, false } } } });
}

ExtensionMember breathe()
{
    return member("breathe", Role::button,
        { { "OpenBreathe", "Breathe", { { "minutes", "Minutes", ExtensionIntent::Type::integer, true } } } });
}

/// An extension and an application in this process, whose answers come when and how a test says.
class FakeControls : public ControlRequests {
public:
    struct Conduct {
        Clock::Uptime delay { 0 };
        std::optional<Kind> fault {};
    };

    explicit FakeControls(HandMovedClock& itsClock) : clock(itsClock) { }

    std::vector<ExtensionMember> offered { member("status", Role::widget, {}), focus(), breathe(), breathe() };
    bool isFocusOn = false;
    std::function<std::optional<Date>(Date now)> changes = [](Date) { return std::nullopt; };
    Conduct membersConduct, valueConduct, performConduct;

    HandMovedClock& clock;
    int membersAsked = 0;
    std::vector<std::string> valuesAsked;
    std::vector<std::string> performed;
    int performing = 0;
    int mostPerforming = 0;

    Task<Answer<std::vector<ExtensionMember>>> members(HostEnvironment) override
    {
        ++membersAsked;
        return answered(membersConduct, offered);
    }

    Task<Answer<ControlValue>> controlValue(std::string kind, HostEnvironment environment) override
    {
        valuesAsked.push_back(kind);
        ControlValue value { .title = kind, .value = environment.language.value_or(""), .symbol = "" };
        if (kind == "focus")
            value.isOn = isFocusOn;
        if (kind == "focus")
            value.changes = changes(clock.now());
        return answered(valueConduct, value);
    }

    Task<Answer<void>> perform(std::string intent, IntentParameters parameters, IntentPlatform platform) override
    {
        for (const auto& [name, value] : parameters)
            intent += " " + name + (std::get<bool>(value) ? " on" : " off");
        performed.push_back(intent + " " + platform.activationToken.value_or("-"));
        mostPerforming = std::max(mostPerforming, ++performing);
        const auto conduct = performConduct;
        auto nap = clock.sleep(conduct.delay);
        if (conduct.delay > 0us)
            co_await nap;
        --performing;
        if (conduct.fault)
            co_return std::unexpected(RequestFault { *conduct.fault, "no" });
        co_return Answer<void>();
    }

private:
    template <typename T>
    Task<Answer<T>> answered(Conduct conduct, T value)
    {
        auto nap = clock.sleep(conduct.delay);
        if (conduct.delay > 0us)
            co_await nap;
        if (conduct.fault)
            co_return std::unexpected(RequestFault { *conduct.fault, "" });
        co_return value;
    }
};

struct Controls {
    Controls() { center.setEnvironment({ .language = "en" }); }

    HandMovedClock clock { midnight };
    FakeControls extension { clock };
    int changes = 0;
    std::vector<std::string> faults;
    ControlCenter center { clock, extension,
        { .changed = [this] { ++changes; },
            .useFailed = [this](const auto& kind,
                             const auto& fault) { faults.push_back(kind + ": " + fault.sentence); } } };

    const ShownControl& toggle() const { return center.controls().at(0); }
    bool click() { return center.use("focus", "token"); }
};

TEST(ControlCenter, asksForValuesWhenTheyChangeAndNeverOtherwise)
{
    Controls controls;
    EXPECT_THAT(controls.extension.valuesAsked, ElementsAre("focus", "breathe"));
    EXPECT_EQ(controls.center.controls().size(), 2U) << "widgets are none, and of two of one kind one counts";
    controls.extension.changes = [](Date now) { return now + 1min; };
    controls.center.reload({ "focus" });
    controls.extension.valuesAsked.clear();
    const auto changes = controls.changes;
    controls.clock.advance(1h - 1us);
    EXPECT_EQ(controls.extension.valuesAsked, std::vector<std::string>(59, "focus"));
    EXPECT_EQ(controls.clock.calls(), 59);
    EXPECT_EQ(controls.clock.waiting(), 1);
    EXPECT_EQ(controls.changes - changes, 59);
    EXPECT_EQ(controls.extension.membersAsked, 1);
}

TEST(ControlCenter, anOccasionReachesTheControlsItConcerns)
{
    struct Case {
        std::string_view name;
        std::function<void(ControlCenter&)> occasion;
        std::vector<std::string> asked;
        int members = 0;
    };
    const auto reload = [](std::vector<std::string> kinds) {
        return [kinds = std::move(kinds)](ControlCenter& center) { center.reload(kinds); };
    };
    const Case cases[] = {
        { "a signal for all", reload({}), { "focus", "breathe" } },
        { "a signal for one, named twice, beside an unknown one", reload({ "nobody", "breathe", "breathe" }),
            { "breathe" } },
        { "a signal for unknown ones", reload({ "nobody", "" }), {} },
        { "the clock is set", [](ControlCenter& center) { center.clockWasSet(); }, { "focus", "breathe" } },
        { "another language", [](ControlCenter& center) { center.setEnvironment({ .language = "de" }); },
            { "focus", "breathe" }, 1 },
        { "the same language", [](ControlCenter& center) { center.setEnvironment({ .language = "en" }); }, {} },
    };
    for (const auto& c : cases) {
        Controls controls;
        controls.extension.valuesAsked.clear();
        c.occasion(controls.center);
        EXPECT_EQ(controls.extension.valuesAsked, c.asked) << c.name;
        EXPECT_EQ(controls.extension.membersAsked, 1 + c.members) << c.name;
    }
}

TEST(ControlCenter, aToggleShowsWhatWasAskedForUntilTheSnapshotCounts)
{
    struct Step {
        Clock::Uptime wait;
        bool reloads; // after the wait
        bool isOn;
        bool isSettled;
    };
    struct Case {
        std::string_view name;
        bool turnsOn; // whether the application does as it is asked
        FakeControls::Conduct value, perform;
        std::vector<Step> steps;
    };
    const Case cases[] = {
        { "the application tells of it", true, {}, {}, { { 1s, false, true, false }, { 0s, true, true, true } } },
        { "the application refuses", false, {}, {}, { { 1s, true, false, true } } },
        { "nobody tells, but it is done", true, {}, {},
            { { 5s - 1us, false, true, false }, { 1us, false, true, true } } },
        { "nothing is done", false, {}, {}, { { 5s - 1us, false, true, false }, { 1us, false, false, true } } },
        { "the call fails", false, {}, { 2s, Kind::unavailable },
            { { 2s - 1us, false, true, false }, { 1us, false, false, true } } },
        { "the call takes long", true, {}, { .delay = 20s },
            { { 5s, false, true, true }, { 20s, false, true, true } } },
        { "the value takes its time", true, { .delay = 3s }, {},
            { { 5s, false, true, false }, { 3s - 1us, false, true, false }, { 1us, false, true, true } } },
        { "an answer from before the signal", true, { .delay = 3s }, {},
            { { 1s, true, true, false }, { 1s, true, true, false }, { 2s, false, true, false },
                { 3s - 1us, false, true, false }, { 1us, false, true, true } } },
        { "the extension is gone", false, { .fault = Kind::unavailable }, {},
            { { 5s - 1us, false, true, false }, { 1us, false, false, true } } },
    };
    for (const auto& c : cases) {
        Controls controls;
        controls.extension.valueConduct = c.value;
        controls.extension.performConduct = c.perform;
        EXPECT_TRUE(controls.click());
        controls.extension.isFocusOn = c.turnsOn;
        EXPECT_TRUE(controls.toggle().isOn()) << c.name << ": at once";
        for (const auto& step : c.steps) {
            controls.clock.advance(step.wait);
            if (step.reloads)
                controls.center.reload({ "focus" });
            EXPECT_EQ(controls.toggle().isOn(), step.isOn) << c.name << " at " << controls.clock.uptime() / 1us;
            EXPECT_EQ(!controls.toggle().askedFor, step.isSettled) << c.name << " at " << controls.clock.uptime() / 1us;
        }
        EXPECT_THAT(controls.extension.performed, ElementsAre("FocusNow value on token")) << c.name;
        EXPECT_EQ(controls.faults.size(), c.perform.fault ? 1U : 0U) << c.name;
    }
}

TEST(ControlCenter, aMinuteThatPassesDoesNotSettleAToggle)
{
    Controls controls;
    controls.extension.changes = [](Date now) { return now + 2s; };
    controls.center.reload({});
    controls.click();
    controls.clock.advance(4s);
    EXPECT_TRUE(controls.toggle().isOn());
    EXPECT_EQ(controls.toggle().value->isOn, false);
    controls.clock.advance(1s);
    EXPECT_FALSE(controls.toggle().isOn());
}

TEST(ControlCenter, everyClickIsACallOfItsOwn)
{
    Controls controls;
    controls.extension.performConduct = { .delay = 1s };
    for (auto click = 0; click < 3; ++click)
        EXPECT_TRUE(controls.click());
    EXPECT_TRUE(controls.toggle().isOn());
    EXPECT_TRUE(controls.center.use("breathe", std::nullopt));
    EXPECT_FALSE(controls.center.use("status", "token"));
    controls.clock.advance(1s);
    EXPECT_TRUE(controls.toggle().isOn()) << "the last one counts";
    controls.clock.advance(10s);
    EXPECT_THAT(controls.extension.performed,
        ElementsAre("FocusNow value on token", "OpenBreathe -", "FocusNow value off token", "FocusNow value on token"));
    EXPECT_EQ(controls.extension.mostPerforming, 2) << "one of each control";

    controls.extension.offered = { member("focus", Role::toggle, { { "Start", "Start", {} } }) };
    controls.center.setEnvironment({});
    EXPECT_FALSE(controls.click()) << "an intent that takes no state";
}

TEST(ControlCenter, whatFailsBacksOffKeepsItsValueAndIsKnown)
{
    struct Case {
        std::string_view name;
        Kind fault;
        bool isReachable;
    };
    const Case cases[] = {
        { "it cannot be started", Kind::unavailable, false },
        { "it hangs", Kind::late, false },
        { "it talks nonsense", Kind::badReply, false },
        { "it has no such control", Kind::unknownKind, true },
    };
    for (const auto& c : cases) {
        Controls controls;
        controls.extension.isFocusOn = true;
        controls.extension.changes = [](Date now) { return now + 1min; };
        controls.center.reload({});
        controls.extension.valuesAsked.clear();
        controls.extension.valueConduct.fault = c.fault;
        controls.clock.advance(1min);
        EXPECT_TRUE(controls.center.isReachable()) << "once may be chance";
        controls.clock.advance(30min);
        EXPECT_EQ(controls.extension.valuesAsked.size(), 1U + 9 + 4) << c.name; // 1, 2 … 256 s, then every five minutes
        EXPECT_EQ(controls.center.isReachable(), c.isReachable) << c.name;
        controls.center.reload({ "focus" });
        EXPECT_EQ(controls.center.isReachable(), c.isReachable) << c.name << ", still";
        EXPECT_TRUE(controls.toggle().isOn()) << c.name;
        controls.extension.valueConduct.fault.reset();
        controls.clock.advance(1s);
        EXPECT_TRUE(controls.center.isReachable()) << c.name;
    }
}

TEST(ControlCenter, controlsComeWhenTheExtensionDoes)
{
    HandMovedClock clock { midnight };
    FakeControls extension { clock };
    extension.membersConduct.fault = Kind::unavailable;
    ControlCenter center { clock, extension, {} };
    center.reload({});
    EXPECT_EQ(extension.membersAsked, 0) << "before there is an environment";
    center.setEnvironment({});
    clock.advance(1s);
    EXPECT_FALSE(center.isReachable());
    extension.membersConduct.fault.reset();
    clock.advance(2s);
    EXPECT_TRUE(center.isReachable());
    EXPECT_EQ(center.controls().size(), 2U);
}

TEST(ControlCenter, aControlThatGoesTakesItsRequestsAlong)
{
    Controls controls;
    controls.extension.valueConduct = { .delay = 3s };
    controls.extension.performConduct = { .delay = 3s };
    controls.click();
    controls.center.reload({});
    controls.extension.offered = { breathe() };
    controls.center.setEnvironment({ .language = "de" });
    EXPECT_EQ(controls.center.controls().size(), 1U);
    controls.clock.advance(1h);
    EXPECT_EQ(controls.center.controls().at(0).value->value, "de");
    EXPECT_EQ(controls.clock.waiting(), 0);
}

TEST(ControlCenter, aValueThatIsOverAtOnceIsNotAskedForWithoutEnd)
{
    for (const auto changes : { -1h, 0h }) {
        Controls controls;
        controls.extension.changes = [&](Date now) { return now + changes; };
        controls.extension.valuesAsked.clear();
        controls.center.reload({ "focus" });
        controls.clock.advance(1h);
        EXPECT_LE(controls.extension.valuesAsked.size(), 22U);
        EXPECT_LE(controls.clock.calls(), 22);
    }
}

}

}

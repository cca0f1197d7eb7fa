#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>

#include "OnTheBus.h"
#include "OrvelPlatform/Desktop/BusValues.h"
#include "OrvelPlatform/Desktop/HostEnvironmentCoding.h"

namespace orvel::tests {

namespace {

using namespace std::chrono_literals;
using testing::HasSubstr;
using Kind = RequestFault::Kind;

const ExtensionEntry entry { .date = Date { 7s }, .moment = "moment" };

TEST_F(OnTheBus, everyQuestionIsAnswered)
{
    const auto members = get(host.members({ .language = "de" })).value();
    ASSERT_EQ(members.size(), 2U);
    EXPECT_EQ(members[0].displayName, "de");
    EXPECT_EQ(members[0].description, std::string(4096, 'x'));
    EXPECT_EQ(members[0].families, std::vector<std::string> { "systemSmall" });
    ASSERT_EQ(members[0].intents.size(), 1U);
    EXPECT_EQ(members[0].intents[0].parameters[0],
        (ExtensionIntent::Parameter {
            .name = "minutes", .title = "Minutes", .type = ExtensionIntent::Type::integer, .isOptional = true }));

    const ExtensionEntry expected { .date = Date { 1s }, .moment = std::string("\x01\x00\xff", 3) };
    EXPECT_EQ(get(host.placeholder("plain", {})), expected);
    EXPECT_EQ(get(host.snapshot("plain", {})), expected);

    const auto timeline = get(host.timeline("plain", {})).value();
    EXPECT_EQ(timeline.entries.size(), 10U);
    EXPECT_EQ(timeline.moments[4], "eeeeeeee");
    EXPECT_EQ(timeline.reload, Date { 1h });

    const auto value = state();
    EXPECT_EQ(value.tint, (ControlValue::Color { 0, 0.25, 0.5, 1 }));
    EXPECT_EQ(value.changes, Date { 5s });
    EXPECT_FALSE(value.barText);
}

TEST_F(OnTheBus, aPictureComesInSharedMemoryOrAsFiles)
{
    const auto picture = get(host.render("plain", entry, { .scale = 1.0 })).value();
    ASSERT_EQ(picture.layers.size(), 1U);
    const auto pixels = std::get<MappedPixels>(picture.layers[0].content).pixels();
    EXPECT_EQ(std::vector(pixels.begin(), pixels.end()), std::vector<std::uint32_t>(9, 0x80402010U));
    EXPECT_EQ(picture.elements[0].label, "Ä" + std::string(4094, 'y'));
    EXPECT_EQ(picture.elements[0].frame.width, 1.5);
    EXPECT_EQ(picture.actions[0].parameters,
        (IntentParameters { { "minutes", std::int64_t { 3 } }, { "style", std::string("calm") } }));

    const auto files = get(host.render("plain", entry, { .format = PictureFormat::png })).value();
    EXPECT_THAT(std::get<ExtensionPicture::Png>(files.layers[0].content).bytes, HasSubstr("and so on"));
}

TEST_F(OnTheBus, aFaultComesWithItsKindAndASentence)
{
    const auto unknown = get(host.timeline("huge", {}));
    EXPECT_EQ(unknown.value().entries.size(), 6U); // three moments of 1 MiB, each of two entries
    EXPECT_EQ(unknown.value().reload, Date { 6min });

    const auto kindOf = [](const auto& answer) { return answer.error().kind; };
    const auto sentence = get(host.controlValue("nothing", {})).error();
    EXPECT_EQ(sentence, (RequestFault { .kind = Kind::unknownKind, .sentence = "There is no \"nothing\"." }));
    EXPECT_EQ(kindOf(get(host.controlValue("throws", {}))), Kind::unavailable);
    EXPECT_EQ(kindOf(get(host.render("plain", { .date = {}, .moment = "of another version" }, {}))), Kind::badEntry);
    EXPECT_EQ(kindOf(get(host.render("large", entry, {}))), Kind::cannotDraw);
    EXPECT_EQ(kindOf(get(host.render("plain", { .date = Date::max(), .moment = "moment" }, {}))), Kind::badArgument);
    EXPECT_THAT(get(host.members({ .textScale = 9.0 })).error().sentence, HasSubstr("\"textScale\""));
    EXPECT_EQ(kindOf(get(host.perform("Sing", {}, {}))), Kind::unknownIntent);
}

TEST_F(OnTheBus, hostileCallsHarmNobody)
{
    const auto before = process();
    const std::string megabyte(1U << 20U, 'x');
    auto* deep = g_variant_new_int32(1);
    for (int level = 0; level < 60; ++level)
        deep = g_variant_new_variant(deep);
    const auto none = [] { return environmentValue({}); };
    GVariantBuilder many;
    g_variant_builder_init(&many, G_VARIANT_TYPE_VARDICT);
    for (int index = 0; index < 20'000; ++index)
        g_variant_builder_add(&many, "{sv}", "scale", g_variant_new_string("wide"));

    struct Case {
        std::string_view name;
        const char* interface;
        const char* method;
        _GVariant* arguments;
        std::string error;
    };
    const char* widgets = BusInterface::widgetExtension;
    const Case cases[] = {
        { "no arguments", widgets, "Timeline", nullptr, "org.freedesktop.DBus.Error.InvalidArgs" },
        { "other types", widgets, "Render", g_variant_new("(s)", "plain"), "org.freedesktop.DBus.Error.InvalidArgs" },
        { "no such method", widgets, "Quit", nullptr, "org.freedesktop.DBus.Error.UnknownMethod" },
        { "a kind of a megabyte", widgets, "Snapshot", g_variant_new("(s@a{sv})", megabyte.c_str(), none()),
            "app.orvel.Error.UnknownKind" },
        { "a moment of a megabyte", widgets, "Render",
            g_variant_new("(sx@ay@a{sv})", "plain", 0L, bytesValue(megabyte), none()), "app.orvel.Error.BadEntry" },
        { "deep values", widgets, "Members", g_variant_new_parsed("({'scale': %v},)", deep),
            "app.orvel.Error.BadArgument" },
        { "twenty thousand keys", widgets, "Members", g_variant_new("(a{sv})", &many), "app.orvel.Error.BadArgument" },
        { "a name of a megabyte", widgets, "Members", g_variant_new_parsed("({'timeZone': <%s>},)", megabyte.c_str()),
            "app.orvel.Error.BadArgument" },
        { "an intent of a megabyte", BusInterface::intents, "Perform",
            g_variant_new("(s@a{sv}@a{sv})", megabyte.c_str(), none(), none()), "app.orvel.Error.UnknownIntent" },
        { "a parameter of no type", BusInterface::intents, "Perform",
            g_variant_new_parsed("('FocusNow', {'value': <1.5>}, @a{sv} {})"), "app.orvel.Error.BadArgument" },
        { "a token that is none", BusInterface::intents, "Perform",
            g_variant_new_parsed("('FocusNow', @a{sv} {}, {'activation-token': <1>})"), "app.orvel.Error.BadArgument" },
        { "writing the version", "org.freedesktop.DBus.Properties", "Set",
            g_variant_new("(ssv)", widgets, "Version", g_variant_new_uint32(9)),
            "org.freedesktop.DBus.Error.InvalidArgs" },
        { "reading the version", "org.freedesktop.DBus.Properties", "Get", g_variant_new("(ss)", widgets, "Version"),
            "" },
        { "looking around", "org.freedesktop.DBus.Introspectable", "Introspect", nullptr, "" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(failureOf(BusPath::extension, c.interface, c.method, c.arguments), c.error) << c.name;
    EXPECT_EQ(failureOf("/", widgets, "Members", g_variant_new("(@a{sv})", none())),
        "org.freedesktop.DBus.Error.UnknownMethod");
    EXPECT_EQ(process(), before);
}

TEST_F(OnTheBus, twoHostsAreAnsweredSideBySide)
{
    WidgetRequester other { loop };
    int answered = 0;
    for (int round = 0; round < 50; ++round) {
        for (auto* asking : { &host, &other })
            begin<Answer<ExtensionTimeline>>(
                asking->timeline("plain", {}), [&](auto timeline) { answered += timeline ? 1 : 0; });
    }
    EXPECT_TRUE(turnUntil(loop, [&] { return answered == 100; })) << answered;
}

std::ptrdiff_t openFiles(pid_t process)
{
    using Files = std::filesystem::directory_iterator;
    return std::distance(Files("/proc/" + std::to_string(process) + "/fd"), Files());
}

TEST_F(OnTheBus, aHostMayVanishWhileItsPictureIsMade)
{
    const auto before = process();
    const auto files = openFiles(before);
    for (int round = 0; round < 3; ++round) {
        EventLoop brief;
        auto connection = BusConnection::connect(brief).value();
        const BusCall::Target target { .name = BusName::extension,
            .path = BusPath::extension,
            .interface = BusInterface::widgetExtension,
            .mayStart = true };
        auto* arguments = g_variant_new("(sx@ay@a{sv})", "slow", 0L, bytesValue("moment"), environmentValue({}));
        const BusCall call(connection, target, "Render", arguments, "(a{sv})", 1s);
        connection.settle();
    }
    EXPECT_EQ(process(), before);
    turnFor(loop, 20ms); // its side of the vanished connections
    EXPECT_LE(openFiles(process()), files);
}

TEST_F(OnTheBus, oneSenderWaitsForOneIntentOfAKind)
{
    WidgetRequester other { loop };
    std::vector<std::string> order;
    const auto note = [&](std::string name) {
        return [&order, name](const Answer<void>& answer) { order.push_back(name + (answer ? "" : " refused")); };
    };
    const IntentParameters wait { { "minutes", std::int64_t { 300 } } };
    begin<Answer<void>>(host.perform("OpenBreathe", wait, {}), note("first"));
    turnFor(loop, 30ms);
    EXPECT_EQ(get(host.perform("OpenBreathe", {}, {})).error().kind, Kind::busy);
    EXPECT_TRUE(get(host.perform("FocusNow", {}, {})));
    EXPECT_TRUE(get(other.perform("OpenBreathe", {}, {})));
    EXPECT_TRUE(get(host.timeline("plain", {})));
    EXPECT_TRUE(order.empty());
    EXPECT_TRUE(turnUntil(loop, [&] { return !order.empty(); }));
    EXPECT_EQ(order, std::vector<std::string> { "first" });
    EXPECT_TRUE(get(host.perform("OpenBreathe", {}, {})));
}

TEST_F(OnTheBus, aProcessThatIsKilledIsStartedAnewAndAskedOnceMore)
{
    const auto before = process();
    std::optional<Answer<ControlValue>> answer;
    begin<Answer<ControlValue>>(host.controlValue("slow", {}), [&](auto value) { answer.emplace(std::move(value)); });
    turnFor(loop, 50ms);
    EXPECT_FALSE(answer);
    ::kill(before, SIGKILL);
    ASSERT_TRUE(turnUntil(loop, [&] { return answer.has_value(); }));
    ASSERT_TRUE(*answer) << answer->error().sentence;
    EXPECT_NE(answer->value().title, std::to_string(before));

    EXPECT_EQ(get(host.controlValue("dies", {})).error().kind, Kind::unavailable);
    EXPECT_EQ(log(), "died\ndied\n"); // asked twice, no more
    EXPECT_TRUE(get(host.controlValue("state", {})));
}

TEST_F(OnTheBus, anIntentWhoseAnswerIsLostIsNotRepeated)
{
    EXPECT_EQ(get(host.perform("Die", {}, {})).error().kind, Kind::unavailable);
    EXPECT_EQ(log(), "died\n");
    EXPECT_TRUE(get(host.perform("FocusNow", {}, {})));
}

TEST_F(OnTheBus, aRequestEndsAtItsDeadline)
{
    WidgetRequester hasty { loop, { .answer = 40ms, .performed = 40ms } };
    state();
    EXPECT_EQ(get(hasty.controlValue("slow", {})).error().kind, Kind::late);
    state(); // the extension is free again
    EXPECT_EQ(get(hasty.perform("OpenBreathe", { { "minutes", std::int64_t { 100 } } }, {})).error().kind, Kind::late);
}

TEST_F(OnTheBus, preparesForPicturesAfterTheFirstTimelineOrForTheFirstPicture)
{
    startAnewWith("30000", "50");
    EXPECT_EQ(state().isOn, false);
    turnFor(loop, 20ms);
    EXPECT_EQ(state().isOn, false);
    EXPECT_TRUE(get(host.timeline("plain", {})));
    EXPECT_TRUE(lookUntil(loop, [&] { return state().isOn == true; }));

    startAnewWith("30000", "50");
    EXPECT_EQ(state().isOn, false);
    EXPECT_TRUE(get(host.render("plain", entry, {})));
    EXPECT_EQ(state().isOn, true);
}

/// Also when nobody has taken note of its end yet.
bool hasEnded(pid_t process)
{
    std::ifstream commandLine("/proc/" + std::to_string(process) + "/cmdline");
    return !commandLine || commandLine.peek() == std::ifstream::traits_type::eof();
}

TEST_F(OnTheBus, answersWhatWaitsBeforeItEnds)
{
    const auto before = process();
    std::optional<Answer<void>> answer;
    begin<Answer<void>>(host.perform("OpenBreathe", { { "minutes", std::int64_t { 150 } } }, {}),
        [&](auto done) { answer.emplace(std::move(done)); });
    turnFor(loop, 30ms);
    ::kill(before, SIGTERM);
    EXPECT_TRUE(lookUntil(loop, [&] { return !isOwned(BusName::extension); }));
    EXPECT_NE(process(), before); // meanwhile another one is asked
    ASSERT_TRUE(turnUntil(loop, [&] { return answer.has_value(); }));
    EXPECT_TRUE(*answer);
    EXPECT_TRUE(lookUntil(loop, [&] { return hasEnded(before); }));
}

TEST_F(OnTheBus, aSecondProcessAndOneWithoutABusSayWhyAndLeave)
{
    const auto program = "/proc/" + std::to_string(process()) + "/exe 2>&1 >&- | grep -q ";
    EXPECT_EQ(std::system((program + "'another process has this name'").c_str()), 0);
    EXPECT_EQ(std::system(("DBUS_SESSION_BUS_ADDRESS=unix:path=/nowhere " + program + "'session bus'").c_str()), 0);
}

TEST_F(OnTheBus, noCallIsLostWhenTheProcessLeaves)
{
    startAnewWith("10", "5");
    const BusCall::Target target { .name = BusName::extension,
        .path = BusPath::extension,
        .interface = BusInterface::widgetExtension,
        .mayStart = true };
    const auto ask = [](const BusConnection& connection, BusCall::Target extension) -> Task<BusCall::Result> {
        auto* arguments = g_variant_new("(s@a{sv})", "state", environmentValue({}));
        BusCall call(connection, extension, "ControlValue", arguments, "(a{sv})", 20s);
        auto result = co_await call;
        co_return result;
    };
    std::mt19937 chance(7);
    std::uniform_int_distribution<int> pause(0, 14);
    std::set<std::string> processes;
    std::vector<std::string> lost;
    constexpr int calls = 400;
    int answered = 0;
    for (int sent = 0; sent < calls; ++sent) {
        begin<BusCall::Result>(ask(bus, target), [&](BusCall::Result result) {
            ++answered;
            if (result)
                processes.insert(answerFrom<ControlValue>(*result).value().title);
            else
                lost.push_back(result.error().fault.sentence);
        });
        turnFor(loop, std::chrono::milliseconds { pause(chance) });
    }
    EXPECT_TRUE(turnUntil(loop, [&] { return answered == calls; }));
    EXPECT_EQ(lost, std::vector<std::string> {});
    EXPECT_GT(processes.size(), 10U); // else nothing was tried
    startAnewWith("30000", "50");
}

}

}

#include "OrvelWidgets/OrvelExtension.h"

#include <gmock/gmock.h>

#include "OrvelWidgets/OpaqueMoment.h"
#include "OrvelWidgets/OrvelProvider.h"
#include "Tests/OrvelWidgets/ExtensionWorld.h"

using namespace orvel;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Scene = WidgetFixtures::Scene;
using Kind = WidgetSnapshot::Kind;

const HostEnvironment inUtc { .locale = Locale::named("en-GB"), .language = "en", .timeZone = TimeZone::utc() };

/// The fault of an answer that is one, as "kind: sentence".
template <typename T>
std::optional<RequestFault::Kind> faultOf(const Answer<T>& answer)
{
    return answer ? std::nullopt : std::optional(answer.error().kind);
}

/// The picture of a widget at the present, and the drawing that it was made of.
WidgetDrawing drawingOf(std::string_view kind, const HostEnvironment& environment, Scene scene = Scene::next)
{
    ExtensionWorld world(ExtensionWorld::sample(scene));
    const auto entry = world.extension.snapshot(kind, environment).value();
    const auto picture = world.extension.render(kind, entry, environment);
    EXPECT_TRUE(picture);
    return world.drawings.at(0);
}

}

TEST(TheExtension, hasFourMembers)
{
    ExtensionWorld world;
    const auto members = world.extension.members(inUtc).value();
    std::vector<std::string> texts;
    for (const auto& member : members) {
        auto text = member.kind + " " + std::string(rawValue(member.role)) + " " + member.displayName;
        for (const auto& family : member.families)
            text += " " + family;
        for (const auto& intent : member.intents) {
            text += " | " + intent.name + " " + intent.title;
            for (const auto& [name, title, type, isOptional] : intent.parameters)
                text += " " + name + ":" + std::string(rawValue(type)) + (isOptional ? "?" : "") + " " + title;
        }
        texts.push_back(text);
    }
    EXPECT_THAT(texts,
        ElementsAre("app.orvel.widget.status widget Orvel systemSmall systemMedium systemLarge"
                    " | OpenBreathe Breathe Now style:s? Style minutes:x? Minutes",
            "app.orvel.widget.breathe widget Breathe Now systemSmall",
            "app.orvel.control.breathe button Breathe now"
            " | OpenBreathe Breathe Now style:s? Style minutes:x? Minutes",
            "app.orvel.control.focus toggle Focus now | FocusNow Focus Now value:b Focus"));
}

TEST(TheExtension, knowsItsKindsOnly)
{
    ExtensionWorld world(ExtensionWorld::sample(Scene::block));
    const auto entry = world.extension.placeholder(Kind::status, inUtc).value();
    const auto long_ = std::string(5000, 'k');
    struct Case {
        std::string_view kind;
        bool isWidget, isControl;
    };
    const Case cases[] = {
        { "app.orvel.widget.status", true, false },
        { "app.orvel.widget.breathe", true, false },
        { "app.orvel.control.breathe", false, true },
        { "app.orvel.control.focus", false, true },
        { "app.orvel.widget", false, false },
        { "", false, false },
        { long_, false, false },
    };
    for (const auto& c : cases) {
        auto& extension = world.extension;
        const auto widget = c.isWidget ? std::nullopt : std::optional(RequestFault::Kind::unknownKind);
        EXPECT_EQ(faultOf(extension.placeholder(c.kind, inUtc)), widget) << c.kind;
        EXPECT_EQ(faultOf(extension.snapshot(c.kind, inUtc)), widget) << c.kind;
        EXPECT_EQ(faultOf(extension.timeline(c.kind, inUtc)), widget) << c.kind;
        EXPECT_EQ(faultOf(extension.render(c.kind, entry, inUtc)), widget) << c.kind;
        const auto control = extension.controlValue(c.kind, inUtc);
        EXPECT_EQ(control.has_value(), c.isControl) << c.kind;
        EXPECT_TRUE(control || control.error().sentence.size() < 200) << c.kind;
    }
}

TEST(Timelines, onTheBusAreTheProvidersWithMomentsShared)
{
    for (const auto scene : allCases<Scene>()) {
        ExtensionWorld world(ExtensionWorld::sample(scene));
        const auto answer = world.extension.timeline(Kind::breathe, inUtc).value();
        const OrvelProvider provider({ .now = [] { return ExtensionWorld::present; },
            .calendar = &ExtensionWorld::utc,
            .snapshot = [&] { return world.snapshot; } });
        const auto expected = provider.getTimeline({ .isPreview = false });
        EXPECT_EQ(answer.reload, expected.reload);
        ASSERT_EQ(answer.entries.size(), expected.entries.size());
        for (std::size_t index = 0; index < expected.entries.size(); ++index) {
            const auto& [date, moment] = answer.entries[index];
            const auto& entry = expected.entries[index];
            EXPECT_EQ(date, entry.date);
            ASSERT_LT(moment, answer.moments.size());
            EXPECT_EQ(momentFromOpaque(answer.moments[moment], date), entry.moment);
        }
        auto distinct = answer.moments;
        std::ranges::sort(distinct);
        EXPECT_EQ(std::ranges::adjacent_find(distinct), distinct.end()) << rawValue(scene);
    }
}

TEST(Timelines, ofACountdownHaveFewMoments)
{
    ExtensionWorld world(ExtensionWorld::sample(Scene::focus));
    const auto timeline = world.extension.timeline(Kind::status, inUtc).value();
    EXPECT_GT(timeline.entries.size(), 3 * timeline.moments.size());
}

TEST(Pictures, areOfTheEntryWhateverHappenedToTheFile)
{
    ExtensionWorld world(ExtensionWorld::sample(Scene::focus));
    auto entry = world.extension.snapshot(Kind::status, inUtc).value();
    const auto expected = world.snapshot->moment(entry.date + 1min, ExtensionWorld::utc());
    world.snapshot = std::nullopt;
    world.readings = 0;
    entry.date += 1min;
    ASSERT_TRUE(world.extension.render(Kind::status, entry, inUtc));
    EXPECT_EQ(world.readings, 0);
    EXPECT_EQ(world.drawings.at(0).content,
        WidgetContent::status(expected, Locale::named("en-GB").value(), ExtensionWorld::utc()));
}

TEST(Pictures, haveALinkElementsAndActions)
{
    ExtensionWorld world(ExtensionWorld::sample(Scene::next));
    const auto entry = world.extension.snapshot(Kind::status, inUtc).value();
    const WidgetAction action { .intent = "OpenBreathe", .parameters = { { "minutes", std::int64_t { 3 } } } };
    world.drawn = DrawnWidget {
        .width = 2,
        .height = 1,
        .layers = { { .name = "default", .pixels = { 1, 2 }, .png = "" },
            { .name = "accent", .pixels = {}, .png = "png" } },
        .elements = { { .role = "text", .label = "Orvel", .frame = { 1, 2, 3, 4 } } },
        .actions = { { .label = "Breathe now", .frame = { 5, 6, 7, 8 }, .action = action } },
    };
    const ExtensionPicture expected {
        .width = 2,
        .height = 1,
        .layers = { { .name = "default", .content = ExtensionPicture::Pixels { 1, 2 } },
            { .name = "accent", .content = ExtensionPicture::Png { "png" } } },
        .link = "orvel://today",
        .elements = { { .role = "text", .label = "Orvel", .frame = { 1, 2, 3, 4 } } },
        .actions = { { .label = "Breathe now",
            .frame = { 5, 6, 7, 8 },
            .intent = "OpenBreathe",
            .parameters = { { "minutes", std::int64_t { 3 } } } } },
    };
    EXPECT_EQ(world.extension.render(Kind::status, entry, inUtc), expected);

    world.drawn = std::unexpected(Fault { .where = "liborvel-drawn.so", .why = "not found" });
    const auto fault = world.extension.render(Kind::status, entry, inUtc).error();
    EXPECT_EQ(fault.kind, RequestFault::Kind::cannotDraw);
    EXPECT_THAT(fault.sentence, HasSubstr("not found"));

    EXPECT_EQ(
        faultOf(world.extension.render(Kind::status, { entry.date, "moment" }, inUtc)), RequestFault::Kind::badEntry);
}

TEST(Pictures, drawnInEarnestHaveActionsThatCanBePerformed)
{
    ExtensionWorld world(ExtensionWorld::sample(Scene::next));
    OrvelExtension extension({ .snapshot = [&] { return world.snapshot; },
        .draw = drawWidget,
        .prepareForPictures = [] { EXPECT_TRUE(prepareDrawing()); },
        .clock = world.intents.clock,
        .workspace = world.intents.workspace,
        .foreground = world.intents.foreground });
    auto environment = inUtc;
    environment.family = "systemMedium";
    environment.language = "de";
    const auto entry = extension.snapshot(Kind::status, environment).value();
    extension.prepareForPictures();
    const auto picture = extension.render(Kind::status, entry, environment).value();
    ASSERT_EQ(picture.actions.size(), 1U);
    const auto& action = picture.actions.front();
    EXPECT_THAT(action.label, HasSubstr("Jetzt atmen"));
    const auto work = start(extension.perform(action.intent, action.parameters, {}), [](auto) {});
    const auto& [style, minutes] = world.snapshot->breathe;
    const auto link = OrvelLink(OrvelLink::Breathe { .style = style, .minutes = minutes }).url();
    EXPECT_THAT(world.intents.journal, ElementsAre("open " + link.text));
}

TEST(Pictures, followTheHostsEnvironment)
{
    auto environment = inUtc;
    const auto plain = drawingOf(Kind::status, environment);
    EXPECT_EQ(plain.size, WidgetSize::small);
    EXPECT_EQ(plain.look, WidgetLook::dawn);
    EXPECT_EQ(plain.scale, 1);
    EXPECT_TRUE(plain.hasBackground);
    EXPECT_EQ(plain.environment.get<OrvelSystemTextScaleKey>(), 1);
    EXPECT_FALSE(effectiveAccessibility(plain.environment).increaseContrast);

    environment.family = "systemLarge";
    environment.renderingMode = "fullColor";
    environment.colorScheme = "dark";
    environment.contrast = "increased";
    environment.reduceMotion = true;
    environment.reduceTransparency = true;
    environment.personalAccent = true;
    environment.textScale = 1.5;
    environment.biggerText = 2;
    environment.scale = 2.5;
    environment.background = false;
    environment.format = PictureFormat::png;
    const auto rich = drawingOf(Kind::status, environment);
    EXPECT_EQ(rich.size, WidgetSize::large);
    EXPECT_EQ(rich.look, WidgetLook::dusk);
    EXPECT_EQ(rich.scale, 2.5);
    EXPECT_FALSE(rich.hasBackground);
    EXPECT_EQ(rich.format, WidgetDrawing::Format::png);
    EXPECT_EQ(rich.environment.get<OrvelSystemTextScaleKey>(), 1.5);
    EXPECT_EQ(rich.environment.get<OrvelBiggerTextKey>(), BiggerText(2));
    EXPECT_EQ(effectiveAccessibility(rich.environment), (OrvelAccessibility { true, true, true, true }));
    EXPECT_EQ(rich.content, plain.content);
    EXPECT_EQ(rich.breathe, plain.breathe);
    EXPECT_EQ(rich.breathe->intent, "OpenBreathe");

    environment.renderingMode = "accented";
    EXPECT_EQ(drawingOf(Kind::status, environment).look, WidgetLook::clear);
    const auto breathe = drawingOf(Kind::breathe, environment);
    EXPECT_EQ(breathe.content.state, WidgetContent::State::breathe);
    EXPECT_EQ(breathe.breathe, std::nullopt);
}

TEST(Requests, followTheZoneAndTheFormatsThatTheyName)
{
    auto environment = inUtc;
    EXPECT_THAT(drawingOf(Kind::status, environment, Scene::block).content.smallDetail, HasSubstr("until 12:"));
    environment.timeZone = TimeZone::named("America/New_York");
    environment.locale = Locale::named("en-US");
    EXPECT_THAT(drawingOf(Kind::status, environment, Scene::block).content.smallDetail, HasSubstr("until 7:"));

    ExtensionWorld world(ExtensionWorld::sample(Scene::nothingScheduled));
    const auto entries = world.extension.timeline(Kind::status, environment).value().entries;
    EXPECT_EQ(entries.at(1).date, dateFromISO8601("2026-03-05T00:00:00-05:00"));
}

TEST(Requests, showSamplesInTheGalleryOnly)
{
    ExtensionWorld world;
    auto environment = inUtc;
    environment.isPreview = true;
    EXPECT_EQ(world.extension.snapshot(Kind::status, environment), world.extension.placeholder(Kind::status, inUtc));
    const auto entry = world.extension.snapshot(Kind::status, inUtc).value();
    EXPECT_EQ(
        momentFromOpaque(entry.moment, entry.date), fallbackMoment(ExtensionWorld::present, ExtensionWorld::utc()));
}

TEST(Performing, takesIntentsByNameAndTheirParametersByType)
{
    struct Case {
        std::string_view name;
        std::string intent;
        IntentParameters parameters;
        std::optional<RequestFault::Kind> fault;
        std::string journal; // what was opened, or what a fault's sentence names
    };
    const auto bad = RequestFault::Kind::badArgument;
    const Case cases[] = {
        { "a breath", "OpenBreathe", {}, {}, "open orvel://breathe with token" },
        { "a style and a length", "OpenBreathe", { { "style", "calm" }, { "minutes", std::int64_t { 3 } } }, {},
            "open orvel://breathe?style=calm&minutes=3 with token" },
        { "something else besides", "OpenBreathe", { { "value", true } }, {}, "open orvel://breathe with token" },
        { "a style that is a number", "OpenBreathe", { { "style", std::int64_t { 3 } } }, bad, "\"style\"" },
        { "minutes that are text", "OpenBreathe", { { "minutes", "3" } }, bad, "\"minutes\"" },
        { "on", "FocusNow", { { "value", true } }, {}, "open orvel://focus with token" },
        { "off", "FocusNow", { { "value", false } }, {}, "open orvel://today with token" },
        { "without a value", "FocusNow", {}, bad, "\"value\"" },
        { "a value that is a number", "FocusNow", { { "value", std::int64_t { 1 } } }, bad, "\"value\"" },
        { "another intent", "openBreathe", {}, RequestFault::Kind::unknownIntent, "\"openBreathe\"" },
    };
    for (const auto& c : cases) {
        ExtensionWorld world;
        std::optional<Answer<void>> answer;
        const auto work = start(world.extension.perform(c.intent, c.parameters, { .activationToken = "token" }),
            [&](auto outcome) { answer = outcome.value(); });
        ASSERT_TRUE(answer) << c.name;
        EXPECT_EQ(faultOf(*answer), c.fault) << c.name;
        EXPECT_THAT(answer->has_value() ? "" : answer->error().sentence, HasSubstr(c.fault ? c.journal : "")) << c.name;
        EXPECT_EQ(world.intents.journal, c.fault ? IntentWorld::Journal {} : IntentWorld::Journal { c.journal })
            << c.name;
    }
}

#include "OrvelWidgets/OpaqueMoment.h"

#include <gtest/gtest.h>

#include "OrvelPlatform/Base/Checksum.h"
#include "OrvelWidgetsUI/WidgetFixtures.h"

using namespace orvel;
using namespace std::chrono_literals;

namespace {

WidgetMoment sample(WidgetFixtures::Scene scene)
{
    const Calendar calendar(TimeZone::utc());
    const auto at = WidgetFixtures::sampleDate(calendar);
    return WidgetFixtures::snapshot(scene, at, calendar).moment(at + 1234567us, calendar);
}

const WidgetSnapshot::Running& runningOf(const WidgetMoment& moment)
{
    return std::get<WidgetSnapshot::State::Block>(moment.state).running;
}

}

TEST(OpaqueMoments, areReadBackWithTheDateOfTheirEntry)
{
    for (const auto scene : allCases<WidgetFixtures::Scene>()) {
        auto moment = sample(scene);
        const auto bytes = opaqueMoment(moment).value();
        EXPECT_EQ(momentFromOpaque(bytes, moment.date), moment) << rawValue(scene);
        moment.date += 90s;
        EXPECT_EQ(opaqueMoment(moment), bytes) << rawValue(scene);
        EXPECT_EQ(momentFromOpaque(bytes, moment.date), moment) << rawValue(scene);
    }
}

TEST(OpaqueMoments, areRefusedWithAnyBitFlipped)
{
    const auto moment = sample(WidgetFixtures::Scene::block);
    auto bytes = opaqueMoment(moment).value();
    for (auto& byte : bytes) {
        for (auto bit = 0; bit < 8; ++bit) {
            const auto before = byte;
            byte = static_cast<char>(byte ^ (1 << bit));
            EXPECT_FALSE(momentFromOpaque(bytes, moment.date)) << &byte - bytes.data() << ", bit " << bit;
            byte = before;
        }
    }
}

TEST(OpaqueMoments, areRefusedWhenTheyAreNone)
{
    const auto whole = opaqueMoment(sample(WidgetFixtures::Scene::focus)).value();
    const auto sealed = [](std::string_view json) {
        std::string bytes(1, '\1');
        for (auto shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(crc32(json) >> shift & 0xFF);
        return bytes.append(json);
    };
    ASSERT_EQ(sealed(whole.substr(5)), whole);
    EXPECT_EQ(crc32("123456789"), 0xCBF43926U);

    const std::pair<std::string_view, std::string> cases[] = {
        { "nothing", "" },
        { "the version alone", whole.substr(0, 1) },
        { "no JSON", whole.substr(0, 5) },
        { "cut short", whole.substr(0, whole.size() - 1) },
        { "something behind", whole + " " },
        { "another version", '\2' + whole.substr(1) },
        { "sealed, but empty", sealed("") },
        { "sealed, but no JSON", sealed("moment") },
        { "sealed, but another record", sealed("{}") },
    };
    for (const auto& [name, bytes] : cases)
        EXPECT_FALSE(momentFromOpaque(bytes, {})) << name;
}

TEST(OpaqueMoments, stayReadableAndSmallWhateverAnApplicationWrote)
{
    auto moment = sample(WidgetFixtures::Scene::block);
    auto& running = std::get<WidgetSnapshot::State::Block>(moment.state).running;
    running.name = std::string(4095, 'a') + "ä"; // its last character would lie across the bound
    running.names.assign(100'000, "Name");
    running.listNames.assign(1'000'000, "");
    running.unlock = { .name = std::string(1 << 20, 'b'), .end = moment.date };
    moment.breathe.style.assign(5000, 'c');

    const auto bytes = opaqueMoment(moment).value();
    EXPECT_LT(bytes.size(), 500'000U);
    const auto read = momentFromOpaque(bytes, moment.date).value();
    EXPECT_EQ(runningOf(read).name, std::string(4095, 'a'));
    EXPECT_EQ(runningOf(read).names.size(), longestMomentList / 5);
    EXPECT_EQ(runningOf(read).unlock->name.size(), longestMomentText);
    EXPECT_EQ(read.breathe.style.size(), longestMomentStyle);
}

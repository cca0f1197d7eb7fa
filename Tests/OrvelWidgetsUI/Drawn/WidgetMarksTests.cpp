#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "OrvelWidgetsUI/Drawn/WordsLocale.h"
#include "Tests/OrvelWidgetsUI/Drawn/Samples.h"

using namespace orvel;

// What holds for every content at every size in every look, however long its words.

namespace {

using Mark = RecordingCanvas::Mark;

class Chance {
public:
    explicit Chance(unsigned seed) : m_numbers(seed) { }

    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_numbers); }
    bool oneIn(int number) { return upTo(number - 1) == 0; }

    std::string word(int longest)
    {
        static const std::vector<std::string> letters { "a", "i", "ß", "W", "م", "日", "é", "1" };
        std::string text;
        for (int left = 1 + upTo(longest - 1); left > 0; --left)
            text += letters[static_cast<std::size_t>(upTo(static_cast<int>(letters.size()) - 1))];
        return text;
    }

    std::string words(int most)
    {
        std::string text = word(oneIn(10) ? 60 : 12);
        for (int left = upTo(most); left > 0; --left)
            text += (oneIn(3) ? " · " : oneIn(6) ? " – " : " ") + word(12);
        return text;
    }

private:
    std::mt19937 m_numbers;
};

WidgetContent randomContent(Chance& chance)
{
    auto content = sample(allCases<WidgetContent::State>()[static_cast<std::size_t>(chance.upTo(5))]);
    content.smallTitle = chance.words(8);
    content.smallDetail = chance.words(8);
    content.title = chance.words(12);
    content.detail = chance.words(12);
    if (chance.oneIn(4))
        content.kicker = chance.words(3);
    if (chance.oneIn(4))
        content.kicker.reset();
    if (chance.oneIn(3))
        content.progress = chance.upTo(30) / 20.0 - 0.25;
    content.showsRing = chance.oneIn(2);
    if (!content.numbers.empty() && chance.oneIn(3))
        content.numbers[1] = { std::to_string(chance.upTo(2'000'000'000)) + "0000000000", chance.words(2) };
    if (!content.week.empty())
        content.week.resize(static_cast<std::size_t>(chance.upTo(7)), content.week.front());
    content.breatheMinutes = chance.oneIn(5) ? 9'000'000'000'000'000'000 : chance.upTo(99);
    return content;
}

Rect intersection(const Rect& a, const Rect& b)
{
    const double left = std::max(a.x, b.x), top = std::max(a.y, b.y);
    return { left, top, std::max(std::min(a.right(), b.right()) - left, 0.0),
        std::max(std::min(a.bottom(), b.bottom()) - top, 0.0) };
}

/// How much of a mark is seen.
Rect seen(const Mark& mark)
{
    auto frame = mark.frame;
    for (const auto& clip : mark.clips)
        frame = intersection(frame, clip);
    return frame;
}

bool touch(const Rect& a, const Rect& b)
{
    constexpr double rounding = 0.001;
    const auto common = intersection(a, b);
    return common.width > rounding && common.height > rounding;
}

bool holds(const Rect& outer, const Rect& inner)
{
    constexpr double rounding = 0.02;
    return inner.x >= outer.x - rounding && inner.y >= outer.y - rounding && inner.right() <= outer.right() + rounding
        && inner.bottom() <= outer.bottom() + rounding;
}

/// Without what setting words in lines changes.
std::string bare(std::string text)
{
    for (const std::string_view dropped : { "\u00A0", "\u2060", " / ", " ", "\"" }) {
        for (auto at = text.find(dropped); at != std::string::npos; at = text.find(dropped))
            text.erase(at, dropped.size());
    }
    return text;
}

std::vector<std::string> saidBy(const WidgetContent& content)
{
    std::vector<std::string> all { content.smallTitle, content.smallDetail, content.title, content.detail };
    all.push_back(Locale::english().uppercased(content.kicker.value_or("")));
    for (const auto& number : content.numbers) {
        all.push_back(number.value);
        all.push_back(number.label);
    }
    for (const auto& bar : content.week)
        all.push_back(bar.label);
    all.push_back("Stayed off, this week");
    all.push_back("Breathe now");
    all.push_back("Breathe now · " + std::to_string(content.breatheMinutes) + " min");
    std::ranges::transform(all, all.begin(), bare);
    return all;
}

/// A text shows all of something that the content says, or the beginning of it with an ellipsis.
bool isSaidWhole(const Mark& mark, const std::vector<std::string>& said)
{
    auto shown = bare(mark.shows);
    if (!mark.isCut)
        return std::ranges::find(said, shown) != said.end();
    constexpr std::string_view ellipsis = "…";
    if (!shown.ends_with(ellipsis))
        return false;
    shown.resize(shown.size() - ellipsis.size());
    return std::ranges::any_of(said, [&](const std::string& text) { return text.starts_with(shown); });
}

void expectSound(const RecordingCanvas& canvas, const Rect& widget, const WidgetContent& content)
{
    constexpr double air = 16; // what words and figures keep from the edges
    const auto said = saidBy(content);
    std::vector<Mark> texts;
    for (const auto& mark : canvas.marks()) {
        EXPECT_TRUE(holds(widget, seen(mark))) << mark.shows;
        if (mark.kind != Mark::Kind::text)
            continue;
        EXPECT_TRUE(holds(widget.insetBy(air), mark.frame)) << mark.shows;
        EXPECT_TRUE(isSaidWhole(mark, said)) << mark.shows;
        for (const auto& other : texts)
            EXPECT_FALSE(touch(mark.frame, other.frame)) << mark.shows << " and " << other.shows;
        texts.push_back(mark);
    }
}

/// A desktop colours the layers apart: nothing default may lie on an accent piece. What erases does so in both.
void expectApartLayers(const RecordingCanvas& canvas)
{
    for (const auto& accent : canvas.marks()) {
        for (const auto& plain : canvas.marks()) {
            const bool areApart = accent.isAccent == plain.isAccent || !touch(seen(accent), seen(plain));
            EXPECT_TRUE(areApart || accent.erases || plain.erases) << accent.shows << " and " << plain.shows;
        }
    }
}

}

TEST(WidgetMarks, areSoundForAllWords)
{
    Chance chance(5);
    constexpr int rounds = 40;
    for (int round = 0; round < rounds && !HasFailure(); ++round) {
        const auto content = randomContent(chance);
        const auto& environment = chance.oneIn(2) ? rightToLeft : Environment();
        for (const auto size : allCases<WidgetSize>()) {
            const bool isBreathe = content.state == WidgetContent::State::breathe;
            const auto widget = canvasOf(isBreathe ? WidgetSize::small : size);
            for (const auto look : { WidgetLook::dusk, WidgetLook::clear }) {
                SCOPED_TRACE(std::string(rawValue(size)) + " " + std::string(rawValue(look)) + ", round "
                    + std::to_string(round));
                const auto canvas = recordedWidget(content, size, look, environment);
                expectSound(canvas, widget, content);
                if (isSystemTinted(look))
                    expectApartLayers(canvas);
            }
        }
    }
}

TEST(WidgetMarks, standMirroredInAMirroredLayout)
{
    for (const auto state : allCases<WidgetContent::State>()) {
        for (const auto size : allCases<WidgetSize>()) {
            const auto content = sample(state);
            const auto straight = recordedWidget(content, size, WidgetLook::dusk);
            const auto mirrored = recordedWidget(content, size, WidgetLook::dusk, rightToLeft);
            const double width = straight.marks().front().clips.front().width;
            ASSERT_EQ(straight.marks().size(), mirrored.marks().size());
            for (std::size_t i = 0; i < straight.marks().size(); ++i) {
                const auto &one = straight.marks()[i].frame, &other = mirrored.marks()[i].frame;
                EXPECT_NEAR(one.x, width - other.right(), 0.001) << straight.marks()[i].shows;
                EXPECT_NEAR(one.y, other.y, 0.001) << straight.marks()[i].shows;
            }
        }
    }
}

TEST(WidgetMarks, areReadAloudBySize)
{
    const auto labels = [](WidgetContent::State state, WidgetSize size) {
        const auto canvas = recordedWidget(sample(state), size, WidgetLook::dusk);
        std::vector<std::string> all;
        for (const auto& element : canvas.elements())
            all.push_back(element.label);
        for (const auto& action : canvas.actions())
            all.push_back("action " + action.label);
        return all;
    };
    using State = WidgetContent::State;
    using Labels = std::vector<std::string>;
    const auto focus = sample(State::focus);
    EXPECT_EQ(labels(State::focus, WidgetSize::small), Labels { focus.sentence });
    EXPECT_EQ(labels(State::breathe, WidgetSize::small), Labels { sample(State::breathe).sentence });
    EXPECT_EQ(labels(State::focus, WidgetSize::medium),
        (Labels { "Focus", "38 min left", focus.detail, "3 breaths", "7 min breathed", "12 stayed off" }));
    EXPECT_EQ(labels(State::none, WidgetSize::medium),
        (Labels { "No Blocks this week", "Your Blocks are off this week. Breathe now still works.", "Breathe now",
            "3 breaths", "7 min breathed", "12 stayed off", "action Breathe" }));
    EXPECT_EQ(labels(State::focus, WidgetSize::large), (Labels { focus.sentence, "action Breathe" }));
}

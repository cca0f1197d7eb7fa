#include <gmock/gmock.h>
#include <random>

#include "Tests/OrvelPlatform/Drawing/Drawn.h"

using namespace orvel;
using testing::ElementsAre;

namespace {

constexpr double noLimit = infiniteLength;

std::shared_ptr<const ShapedText> shaped(const TextBlock& block, double width = noLimit)
{
    return renderer().environment({}).get<TextSystemKey>()->shape(block, width);
}

TextBlock block(std::string text, TextStyle style = {})
{
    return { .runs = { { std::move(text), style } } };
}

double widthOf(std::string text, TextStyle style = {})
{
    return shaped(block(std::move(text), style))->size.width;
}

std::vector<std::string> linesOf(const ShapedText& text)
{
    std::vector<std::string> lines;
    for (const auto& line : text.lines)
        lines.push_back(line.text);
    return lines;
}

}

TEST(TextMeasures, areThoseOfTheBundlesTypefaces)
{
    struct Case {
        std::string_view name;
        double width;
        double expected;
    };
    const std::string words = "Morning · Deep work";
    const TextStyle plain { .size = 20, .lineHeight = 24 };
    auto tracked = plain;
    tracked.tracking = 2;
    const Case cases[] = {
        { "light", widthOf(words, { .size = 20, .weight = 300 }), 183.94 },
        { "regular", widthOf(words, plain), 187.24 },
        { "semibold", widthOf(words, { .size = 20, .weight = 600 }), 190.48 },
        { "bold", widthOf(words, { .size = 20, .weight = 700 }), 194.38 },
        { "serif", widthOf(words, { .family = FontFamily::serif, .size = 20 }), 199.74 },
        { "serif italic", widthOf(words, { .family = FontFamily::serif, .size = 20, .italic = true }), 184.04 },
        { "twice the size", widthOf(words, { .size = 40 }), 2 * widthOf(words, plain) },
        { "a narrow space", widthOf("9:05\u202FAM", plain), widthOf("9:05 AM", plain) },
        { "tracking between five letters", widthOf("FOCUS", tracked), widthOf("FOCUS", plain) + 4 * 2 },
    };
    for (const auto& c : cases)
        EXPECT_NEAR(c.width, c.expected, 0.1) << c.name;
}

TEST(TextMeasures, giveTabularDigitsOneWidth)
{
    const TextStyle styles[] = {
        { .size = 20, .weight = 300, .tabularDigits = true },
        { .family = FontFamily::serif, .size = 20, .tabularDigits = true },
    };
    for (const auto& style : styles) {
        for (const auto* digits : { "00000", "11111", "47917" })
            EXPECT_NEAR(widthOf(digits, style), widthOf("88888", style), 0.01) << digits;
    }
}

TEST(TextMeasures, keepExactLineHeights)
{
    const auto text = shaped(block("one two three", { .size = 17, .lineHeight = 22 }), 75);
    ASSERT_EQ(text->lines.size(), 2U);
    EXPECT_EQ(text->size.height, 44);
    constexpr double ascent = 1.011, descent = 0.353; // of the rounded face
    EXPECT_NEAR(text->firstBaseline, (22 - 17 * (ascent + descent)) / 2 + 17 * ascent, 0.01);
    EXPECT_NEAR(text->lastBaseline, text->firstBaseline + 22, 1e-9);
    // A fallback face's own height moves nothing.
    EXPECT_EQ(shaped(block("日本語 🌙", { .size = 17, .lineHeight = 22 }))->size.height, 22);
}

TEST(TextLines, breakCutAndBalance)
{
    const auto with = [](std::string text, int limit, bool isBalanced) {
        auto made = block(std::move(text), { .size = 17, .weight = 600 });
        made.lineLimit = limit;
        made.balanced = isBalanced;
        return made;
    };
    struct Case {
        std::string_view name;
        TextBlock block;
        double width;
        std::vector<std::string> lines;
    };
    const Case cases[] = {
        { "at spaces", with("Morning and evening walks", 2, false), 150, { "Morning and", "evening walks" } },
        { "the limit ends in an ellipsis", with("Morning and evening walks", 1, false), 150, { "Morning and eve…" } },
        { "a short second line", with("Deep work and reading a book", 2, false), 220,
            { "Deep work and reading a", "book" } },
        { "the same balanced", with("Deep work and reading a book", 2, true), 220,
            { "Deep work and", "reading a book" } },
        { "balance breaks no word", with("Wochenendunterbrechung a", 2, true), 214, { "Wochenendunterbrechung", "a" } },
        { "a word too long", with("Donaudampfschifffahrt", 2, true), 100, { "Donaudam", "pfschifffahrt" } },
        { "a break is a space", with("one\ntwo\r\nthree\u2028four", 1, false), noLimit, { "one two  three four" } },
        { "not UTF-8", with("caf\xe9 \xff", 1, false), noLimit, { "caf\uFFFD \uFFFD" } },
        { "a zero byte", with(std::string("a\0b", 3), 1, false), noLimit, { "a\uFFFDb" } },
        { "nothing", with("", 2, true), 10, { "" } },
        { "no room", with("anything", 1, false), 0, { "…" } },
        { "no separator before an ellipsis", with("Morning · evening", 1, false), 90, { "Morning…" } },
    };
    for (const auto& c : cases)
        EXPECT_EQ(linesOf(*shaped(c.block, c.width)), c.lines) << c.name;
}

TEST(TextLines, areNotCutWithinLettersThatJoin)
{
    const TextStyle style { .size = 17, .weight = 600 };
    auto arabic = block("والإجابة عن كل سؤال على حدة", style);
    arabic.lineLimit = 1;
    const double room = widthOf("والإجابة عن كل سؤال عل…", style) + 1;
    EXPECT_THAT(linesOf(*shaped(arabic, room)), ElementsAre("والإجابة عن كل سؤال…"));
    EXPECT_TRUE(shaped(arabic, room)->isCut);
    const auto within = linesOf(*shaped(arabic, widthOf("والإ…", style) + 1));
    EXPECT_TRUE(within.front().ends_with("…") && within.front() != "…") << "a word longer than the line";
}

TEST(TextLines, areTheSameInTheWidthTheyTook)
{
    std::mt19937 random(11);
    const auto upTo = [&](unsigned most) { return static_cast<unsigned>(random() % (most + 1)); };
    const std::vector<std::string> words { "a", "Fokus", "·", "日本語", "Deep", "Donaudampfschiff", "العربية", "9:00" };
    for (int round = 0; round < 200; ++round) {
        std::string text;
        for (auto count = upTo(7) + 1; count > 0; --count)
            text += words[upTo(7)] + " ";
        TextBlock made = block(text, { .size = 8 + upTo(30) / 3.0, .tracking = upTo(4) / 3.0 });
        made.lineLimit = static_cast<int>(upTo(3));
        made.balanced = upTo(1) == 1;
        const auto first = shaped(made, 20 + upTo(400) / 2.0);
        const auto again = shaped(made, first->size.width + 0.01);
        if (!first->isCut) {
            EXPECT_EQ(linesOf(*again), linesOf(*first)) << text;
        }
    }
}

TEST(TextFallback, findsLettersThatTheTypefacesLack)
{
    const TextStyle style { .size = 20, .lineHeight = 24 };
    EXPECT_NEAR(widthOf("日本語", style), 60, 3) << "each as wide as it is high";
    EXPECT_LT(widthOf("ببب", style), 3 * widthOf("ب", style) - 1) << "letters join";

    const View moon = Text { .runs = { { "🌙", style } }, .paint = Color(0, 0, 0) };
    const auto pixels = drawn(moon, { 40, 24 }, 2);
    EXPECT_TRUE(std::ranges::any_of(pixels.words, [](std::uint32_t pixel) { return (pixel & 0xffffffU) != 0; }))
        << "an emoji has colours of its own";
}

TEST(TextFallback, marksAStretchOfLettersThatNoFaceHas)
{
    // Of the private use area: no typeface has a letter there.
    EXPECT_THAT(linesOf(*shaped(block("a\U00100000\U00100001b\U00100002"))), ElementsAre("a□b□"));
    TextBlock two { .runs = { { "x\U00100000", {} }, { "\U00100001y", {} } } };
    EXPECT_THAT(linesOf(*shaped(two)), ElementsAre("x□y"));
}

TEST(TextFallback, standsOnTheSameBaseline)
{
    const auto lowestRow = [](std::string words, std::size_t from, std::size_t to) {
        const View view = Text { .runs = { { std::move(words), { .size = 20, .lineHeight = 24 } } }, .paint = Color() };
        const auto pixels = drawn(view, { 80, 24 }, 2);
        std::size_t lowest = 0;
        for (std::size_t y = 0; y < 48; ++y) {
            for (auto x = from; x < to; ++x)
                lowest = pixels.alpha(x, y) > 128 ? y : lowest;
        }
        return lowest;
    };
    const auto width = static_cast<std::size_t>(2 * widthOf("日", { .size = 20 }));
    EXPECT_EQ(lowestRow("日88", width + 2, 160), lowestRow("88", 0, 160)) << "digits after a Han letter";
}

TEST(TextLanguage, formsItsLetters)
{
    const auto drawnIn = [](const char* language) {
        const TextStyle italic { .family = FontFamily::serif, .size = 20, .lineHeight = 24, .italic = true };
        const View view = Text { .runs = { { "бгдпт", italic } }, .paint = Color() };
        const auto words = Environment().with<TextLanguageKey>(language);
        return renderer().draw(view, { .size = { 60, 24 } }, words)->layers.front().pixels;
    };
    EXPECT_NE(drawnIn("sr"), drawnIn("ru"));
}

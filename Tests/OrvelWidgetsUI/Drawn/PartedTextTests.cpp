#include "OrvelWidgetsUI/Drawn/PartedText.h"

#include <gtest/gtest.h>

#include "Tests/OrvelWidgetsUI/Drawn/Samples.h"

using namespace orvel;

namespace {

/// The words as they are set, with plain spaces for those that do not break, and without joiners.
std::string set(std::string_view words, double letters)
{
    constexpr double pitch = 6; // of details
    const View view = PartedText { .words = std::string(words), .type = WidgetType::detail, .paint = Color() };
    const auto extent = measure(view, { letters * pitch, std::nullopt }, {});
    auto text = recorded(view, { {}, extent.size }).marks().front().shows;
    for (const auto& [from, to] : { std::pair("\u00A0", " "), std::pair("\u2060", "") }) {
        for (auto at = text.find(from); at != std::string::npos; at = text.find(from))
            text.replace(at, std::string_view(from).size(), to);
    }
    return text;
}

}

TEST(PartedText, keepsTogetherWhatBelongsTogether)
{
    struct Case {
        std::string_view name;
        std::string_view words;
        double letters; // room in a line
        std::string_view lines;
    };
    const Case cases[] = {
        { "with room for all", "Tomorrow 9:00 – 10:30 · Firm", 30, "\"Tomorrow 9:00 – 10:30 · Firm\"" },
        { "between parts", "Tomorrow 9:00 – 10:30 · Ultra Hard", 26, "\"Tomorrow 9:00 – 10:30 · / Ultra Hard\"" },
        { "not before a separator", "Morning · Deep work · Evening", 21, "\"Morning · / Deep work · Evening\"" },
        { "about one length", "Morning · Work · Evening · Night", 26, "\"Morning · Work · / Evening · Night\"" },
        { "within a part that has no room", "Finish the long report · Evening", 16,
            "\"Finish the long / report · Evening\"" },
        { "within parts rather than cut", "aa bb cc · dd ee · ff gg hh", 14, "\"aa bb cc · dd / ee · ff gg hh\"" },
        { "cut", "Finish the quarterly report and answer", 16, "\"Finish the / quarterly repor…\"" },
        { "cut after a whole part", "Morning · Deep work · Writing hours", 18, "\"Morning · / Deep work ·…\"" },
        { "nothing", "", 10, "\"\"" },
    };
    for (const auto& c : cases)
        EXPECT_EQ(set(c.words, c.letters), c.lines) << c.name;
}
